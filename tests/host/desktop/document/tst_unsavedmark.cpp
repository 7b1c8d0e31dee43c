// SPDX-License-Identifier: MIT
#include "tests/host/desktop/document/documenttest.h"

#include "tests/support/numberoperation.h"
#include "tests/support/shapes.h"

#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/kernel/selectalloperation.h>

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTimer>

using namespace orvane;

namespace {

class UnsavedMark : public DocumentTest
{
protected:
    void undo() { EXPECT_TRUE(Kernel()->Undo()); }
    void redo() { EXPECT_TRUE(Kernel()->Redo()); }
};

// What the queue holds, step by step: the numbers of the operations, each given once.
struct PlainQueue
{
    QVector<int> done() const
    {
        QVector<int> result;
        for (int i = 0; i < position; ++i)
            result += steps[i];
        return result;
    }
    void push(int operation, bool merge)
    {
        steps.resize(position);
        if (!merge || steps.isEmpty())
            steps.append(QVector<int>());
        steps.last().append(operation);
        position = steps.size();
    }

    QVector<QVector<int>> steps;
    int position = 0;
};

} // namespace

TEST_F(UnsavedMark, anEmptySceneHasNothingToSave)
{
    EXPECT_FALSE(document.IsChanged());
    EXPECT_TRUE(document.Path().isEmpty());
    EXPECT_EQ(document.Title(), QStringLiteral("Untitled"));
}

TEST_F(UnsavedMark, aStepSetsItAndUndoTakesItBack)
{
    step();
    EXPECT_TRUE(document.IsChanged());
    undo();
    EXPECT_FALSE(document.IsChanged());
    EXPECT_FALSE(Kernel()->Scene()->IsChanged());
    redo();
    EXPECT_TRUE(document.IsChanged());
}

TEST_F(UnsavedMark, savingTakesItBackAndUndoSetsIt)
{
    step();
    step();
    save(QStringLiteral("a.orvane"));
    EXPECT_FALSE(document.IsChanged());
    undo();
    EXPECT_TRUE(document.IsChanged());
    redo();
    EXPECT_FALSE(document.IsChanged());
    step();
    EXPECT_TRUE(document.IsChanged());
    undo();
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(UnsavedMark, aSavedStateThatWasCutOffNeverComesBack)
{
    step();
    step();
    save(QStringLiteral("a.orvane"));
    undo();
    step();
    EXPECT_TRUE(document.IsChanged()) << "as many steps as when it was saved, but another one";
    step();
    undo();
    EXPECT_TRUE(document.IsChanged());
    undo();
    EXPECT_TRUE(document.IsChanged());
}

TEST_F(UnsavedMark, aCutThatNobodyLookedAtIsSeen)
{
    step();
    step();
    save(QStringLiteral("a.orvane"));
    undo();
    step();
    step();
    undo();
    EXPECT_TRUE(document.IsChanged());
}

TEST_F(UnsavedMark, anOperationMergedIntoTheSavedStepIsAChange)
{
    step();
    save(QStringLiteral("a.orvane"));
    step(true);
    EXPECT_TRUE(document.IsChanged());
    undo();
    EXPECT_TRUE(document.IsChanged());
    redo();
    EXPECT_TRUE(document.IsChanged());
}

TEST_F(UnsavedMark, aSliderDragOfManyOperationsIsTakenBackAsOne)
{
    save(QStringLiteral("a.orvane"));
    for (int i = 0; i < 150; ++i) {
        step(i > 0);
        EXPECT_TRUE(document.IsChanged());
    }
    undo();
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(UnsavedMark, aSavedStateIsFoundAgainWhenOlderStepsFellOff)
{
    step();
    step();
    save(QStringLiteral("a.orvane"));
    for (int i = 1; i < UndoQueue::MaximumSteps; ++i) {
        step();
        EXPECT_TRUE(document.IsChanged());
    }
    EXPECT_EQ(Kernel()->Undos().StepCount(), UndoQueue::MaximumSteps);
    for (int i = 1; i < UndoQueue::MaximumSteps; ++i) {
        EXPECT_TRUE(document.IsChanged()) << i;
        undo();
    }
    EXPECT_EQ(NumberOperation::number, 2);
    EXPECT_FALSE(document.IsChanged());
    undo();
    EXPECT_TRUE(document.IsChanged());
}

TEST_F(UnsavedMark, aSavedStateWhoseStepsFellOffIsLost)
{
    save(QStringLiteral("a.orvane"));
    for (int i = 0; i <= UndoQueue::MaximumSteps; ++i) {
        step();
        document.Refresh();
    }
    while (Kernel()->Undo()) {
    }
    EXPECT_EQ(NumberOperation::number, 1);
    EXPECT_TRUE(document.IsChanged());
}

TEST_F(UnsavedMark, manyStepsInOneGoThatLoseTheSavedStateLoseIt)
{
    save(QStringLiteral("a.orvane"));
    for (int i = 0; i <= UndoQueue::MaximumSteps; ++i)
        step();
    while (Kernel()->Undo()) {
    }
    EXPECT_TRUE(document.IsChanged());
}

TEST_F(UnsavedMark, whatNeitherChangesNorStaysDoesNotSetIt)
{
    addToScene(cube());
    step();
    save(QStringLiteral("a.orvane"));
    NumberOperation::refused = 7;
    NumberOperation refused(7);
    EXPECT_FALSE(Kernel()->DoOperation(&refused, true, false));
    SelectAllOperation selection(true);
    EXPECT_TRUE(Kernel()->DoOperation(&selection, false, false));
    EXPECT_FALSE(document.IsChanged());
    step();
    undo();
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(UnsavedMark, aChangeBesideTheUndoHistoryStaysUntilItIsSaved)
{
    step();
    save(QStringLiteral("a.orvane"));
    Kernel()->Scene()->SetChanged(true);
    EXPECT_TRUE(document.IsChanged());
    step();
    undo();
    EXPECT_TRUE(document.IsChanged());
    save(QStringLiteral("a.orvane"));
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(UnsavedMark, whoListensIsToldWithoutAsking)
{
    QSignalSpy changed(&document, &Document::changed);
    step();
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    EXPECT_EQ(changed.count(), 1);
    undo();
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(UnsavedMark, theRevisionChangesWithEveryStepUndoAndRedo)
{
    QVector<int> revisions{document.Revision()};
    EXPECT_EQ(document.Revision(), revisions.last());
    step();
    revisions.append(document.Revision());
    undo();
    revisions.append(document.Revision());
    redo();
    revisions.append(document.Revision());
    step(true);
    revisions.append(document.Revision());
    document.NewScene();
    revisions.append(document.Revision());
    for (int i = 0; i < revisions.size(); ++i)
        EXPECT_EQ(revisions.count(revisions[i]), 1) << i;
}

TEST_F(UnsavedMark, agreesWithAPlainQueueOnRandomHistories)
{
    std::mt19937 random(testSeed());
    int unchanged = 0;
    for (int history = 0; history < 200; ++history) {
        ASSERT_TRUE(document.NewScene());
        const bool looksAlways = history % 2 == 0;
        PlainQueue plain;
        QVector<int> saved;
        for (int i = 0; i < 60; ++i) {
            switch (random() % 8) {
            case 0:
            case 1:
            case 2: {
                const bool merge = random() % 4 == 0;
                step(merge);
                plain.push(i, merge);
                break;
            }
            case 3:
            case 4:
                plain.position -= Kernel()->Undo();
                break;
            case 5:
            case 6:
                plain.position += Kernel()->Redo();
                break;
            default:
                if (random() % 3 == 0) {
                    save(QStringLiteral("a.orvane"));
                    saved = plain.done();
                }
            }
            if (!looksAlways && random() % 4 != 0)
                continue;
            const bool isChanged = document.IsChanged();
            unchanged += !isChanged;
            ASSERT_TRUE(isChanged || saved == plain.done()) << history << ", " << i;
            ASSERT_TRUE(!looksAlways || !isChanged || saved != plain.done())
                << history << ", " << i;
        }
    }
    EXPECT_GT(unchanged, 500);
}
