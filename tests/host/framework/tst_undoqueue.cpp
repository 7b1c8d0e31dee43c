// SPDX-License-Identifier: MIT
#include "tests/support/logcatcher.h"
#include "tests/support/numberoperation.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/base/classdesc.h>
#include <orvane/base/stream.h>
#include <orvane/kernel/undoqueue.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

#include <vector>

using orvane::UndoQueue;

namespace {

// Puts its own words for one class into the menus, as a language file would.
class Words : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool known =
            qstrcmp(context, "NumberOperation") == 0 && qstrcmp(source, "Change the Number") == 0;
        if (qstrcmp(context, "UndoStep") == 0 && qstrcmp(source, "Count") == 0)
            return QStringLiteral("Zählen");
        return known ? QStringLiteral("Zahl ändern") : QString();
    }
    bool isEmpty() const override { return false; }
};

// Of a class that nobody registered.
class Stranger : public NumberOperation
{
public:
    const orvane::ClassDesc *RuntimeClass() const override
    {
        return orvane::Operation::StaticClass();
    }
};

} // namespace

class Undoing : public SceneCleaner
{
protected:
    void add(int amount, bool merge = false, int ballast = 0)
    {
        NumberOperation operation(amount, ballast);
        ASSERT_TRUE(operation.ExecuteAndInvert());
        m_queue.Push(&operation, merge);
    }

    UndoQueue m_queue;
};

TEST_F(Undoing, hasNothingToUndoAtFirst)
{
    EXPECT_FALSE(m_queue.CanUndo());
    EXPECT_FALSE(m_queue.CanRedo());
    EXPECT_FALSE(m_queue.Undo());
    EXPECT_FALSE(m_queue.Redo());
    EXPECT_TRUE(m_queue.UndoText().isEmpty());
    EXPECT_TRUE(m_queue.RedoText().isEmpty());
}

TEST_F(Undoing, takesStepsBackAndForth)
{
    add(1);
    add(10);
    add(100);
    EXPECT_EQ(m_queue.StepCount(), 3);
    for (const int number : {11, 1, 0}) {
        EXPECT_TRUE(m_queue.Undo());
        EXPECT_EQ(NumberOperation::number, number);
    }
    EXPECT_FALSE(m_queue.Undo());
    for (const int number : {1, 11, 111}) {
        EXPECT_TRUE(m_queue.Redo());
        EXPECT_EQ(NumberOperation::number, number);
    }
    EXPECT_FALSE(m_queue.Redo());
}

TEST_F(Undoing, keepsNothingOfTheObjectThatRan)
{
    {
        NumberOperation shortLived(5);
        shortLived.ExecuteAndInvert();
        m_queue.Push(&shortLived, false);
        shortLived = NumberOperation(1000);
    }
    EXPECT_TRUE(m_queue.Undo());
    EXPECT_EQ(NumberOperation::number, 0);
}

TEST_F(Undoing, agreesWithAListOfAllStates)
{
    std::mt19937 random(testSeed());
    std::vector<int> states = {0};
    size_t at = 0;
    for (int i = 0; i < 2000; ++i) {
        const unsigned choice = random() % 3;
        if (choice == 0 && at < 90) {
            states.resize(at + 1);
            states.push_back(states[at] + 1 + int(random() % 50));
            add(states[at + 1] - states[at]);
            ++at;
        } else if (choice == 1) {
            EXPECT_EQ(m_queue.Undo(), at > 0) << "action " << i;
            at -= at > 0 ? 1 : 0;
        } else if (choice == 2) {
            EXPECT_EQ(m_queue.Redo(), at + 1 < states.size()) << "action " << i;
            at += at + 1 < states.size() ? 1 : 0;
        }
        ASSERT_EQ(NumberOperation::number, states[at]) << "action " << i;
        ASSERT_EQ(m_queue.CanUndo(), at > 0);
        ASSERT_EQ(m_queue.CanRedo(), at + 1 < states.size());
    }
}

TEST_F(Undoing, forgetsWhatCouldBeRedoneAfterAPush)
{
    add(1);
    add(10);
    m_queue.Undo();
    EXPECT_TRUE(m_queue.CanRedo());
    add(100);
    EXPECT_FALSE(m_queue.CanRedo());
    EXPECT_EQ(m_queue.StepCount(), 2);
    m_queue.Undo();
    EXPECT_EQ(NumberOperation::number, 1);
}

TEST_F(Undoing, takesMergedOperationsTogetherAndInReverse)
{
    add(1);
    add(10, true);
    add(100, true);
    add(1000);
    EXPECT_EQ(m_queue.StepCount(), 2);
    EXPECT_TRUE(m_queue.Undo());
    EXPECT_EQ(NumberOperation::number, 111);
    EXPECT_TRUE(m_queue.Undo());
    EXPECT_EQ(NumberOperation::number, 0);
    EXPECT_TRUE(m_queue.Redo());
    EXPECT_EQ(NumberOperation::number, 111);
}

TEST_F(Undoing, makesAStepOfAMergeIntoNothing)
{
    add(1, true);
    EXPECT_EQ(m_queue.StepCount(), 1);
    EXPECT_TRUE(m_queue.Undo());
    EXPECT_EQ(NumberOperation::number, 0);
}

TEST_F(Undoing, mergesIntoTheLatestStepThatIsDone)
{
    add(1);
    add(10);
    m_queue.Undo();
    add(100, true);
    EXPECT_EQ(m_queue.StepCount(), 1);
    EXPECT_FALSE(m_queue.CanRedo());
    m_queue.Undo();
    EXPECT_EQ(NumberOperation::number, 0);
}

TEST_F(Undoing, staysWhereItIsWhenAnOperationRefuses)
{
    add(1);
    add(10);
    NumberOperation::refused = -10;
    EXPECT_FALSE(m_queue.Undo());
    EXPECT_EQ(NumberOperation::number, 11);
    EXPECT_TRUE(m_queue.CanUndo());
    EXPECT_FALSE(m_queue.CanRedo());
    NumberOperation::refused = 0;
    EXPECT_TRUE(m_queue.Undo());
    NumberOperation::refused = 10;
    EXPECT_FALSE(m_queue.Redo());
    EXPECT_EQ(NumberOperation::number, 1);
    EXPECT_TRUE(m_queue.CanRedo());
}

TEST_F(Undoing, takesAMergedStepAsAWholeOrNotAtAll)
{
    add(1);
    add(10, true);
    add(100, true);
    for (const int refused : {-1, -10, -100}) {
        NumberOperation::refused = refused;
        EXPECT_FALSE(m_queue.Undo());
        EXPECT_EQ(NumberOperation::number, 111) << refused;
    }
    NumberOperation::refused = 0;
    EXPECT_TRUE(m_queue.Undo());
    for (const int refused : {1, 10, 100}) {
        NumberOperation::refused = refused;
        EXPECT_FALSE(m_queue.Redo());
        EXPECT_EQ(NumberOperation::number, 0) << refused;
    }
    NumberOperation::refused = 0;
    EXPECT_TRUE(m_queue.Redo());
    EXPECT_EQ(NumberOperation::number, 111);
}

TEST_F(Undoing, keepsTheLatestHundredSteps)
{
    EXPECT_EQ(UndoQueue::MaximumSteps, 100);
    for (int i = 0; i < 130; ++i)
        add(1);
    EXPECT_EQ(m_queue.StepCount(), 100);
    int undone = 0;
    while (m_queue.Undo())
        ++undone;
    EXPECT_EQ(undone, 100);
    EXPECT_EQ(NumberOperation::number, 30);
}

TEST_F(Undoing, keepsNoMoreBytesThanAllowedButAlwaysTheLatestStep)
{
    EXPECT_EQ(UndoQueue::MaximumBytes, qint64(1) << 30);
    m_queue = UndoQueue(10000);
    add(1, false, 4000);
    add(1, false, 4000);
    EXPECT_EQ(m_queue.StepCount(), 2);
    add(1, false, 4000);
    EXPECT_EQ(m_queue.StepCount(), 2) << "the oldest makes room";
    add(1, false, 50000);
    EXPECT_EQ(m_queue.StepCount(), 1);
    EXPECT_TRUE(m_queue.Undo());
    EXPECT_FALSE(m_queue.Undo());
}

TEST_F(Undoing, countsTheBytesOfAllPartsOfAStep)
{
    m_queue = UndoQueue(10000);
    add(1, false, 4000);
    add(1, false, 4000);
    add(1, true, 4000);
    EXPECT_EQ(m_queue.StepCount(), 1);
    EXPECT_TRUE(m_queue.Undo());
    EXPECT_EQ(NumberOperation::number, 1);
}

TEST_F(Undoing, refusesAStepOfAClassThatIsNotThere)
{
    Stranger operation;
    m_queue.Push(&operation, false);
    LogCatcher log;
    EXPECT_FALSE(m_queue.Undo());
    EXPECT_EQ(log.count(), 1);
    EXPECT_TRUE(m_queue.CanUndo());
}

TEST_F(Undoing, isEmptyAfterClear)
{
    add(1);
    add(1);
    m_queue.Undo();
    m_queue.Clear();
    EXPECT_FALSE(m_queue.CanUndo());
    EXPECT_FALSE(m_queue.CanRedo());
    EXPECT_EQ(m_queue.StepCount(), 0);
}

TEST_F(Undoing, aStepIsCalledByItsTitle)
{
    m_queue.SetTitle(QStringLiteral("Count")); // of nothing
    add(1);
    m_queue.SetTitle(QStringLiteral("Count"));
    add(2, true);
    m_queue.SetTitle(QStringLiteral("Too late"));
    EXPECT_EQ(m_queue.UndoText(), QStringLiteral("Count"));
    add(3);
    EXPECT_EQ(m_queue.UndoText(), QStringLiteral("Change the Number"));
    m_queue.Undo();
    m_queue.Undo();
    EXPECT_EQ(m_queue.RedoText(), QStringLiteral("Count"));
    UndoQueue other;
    other.Restore(m_queue.Steps(), 1);
    EXPECT_EQ(other.UndoText(), QStringLiteral("Count"));
    Words words;
    QCoreApplication::installTranslator(&words);
    EXPECT_EQ(other.UndoText(), QStringLiteral("Zählen"));
    QCoreApplication::removeTranslator(&words);
}

TEST_F(Undoing, goesOnWithWhatAnotherQueueKept)
{
    add(1);
    add(20);
    add(300, true);
    add(4000);
    m_queue.Undo();
    UndoQueue other;
    other.Restore(m_queue.Steps(), m_queue.Position());
    EXPECT_EQ(other.StepCount(), 3);
    EXPECT_EQ(other.Position(), 2);
    EXPECT_TRUE(other.Redo());
    EXPECT_EQ(NumberOperation::number, 4321);
    EXPECT_TRUE(other.Undo());
    EXPECT_TRUE(other.Undo());
    EXPECT_EQ(NumberOperation::number, 1);
    EXPECT_TRUE(other.Undo());
    EXPECT_FALSE(other.Undo());
}

TEST_F(Undoing, restoresWithoutEmptyStepsAndAtAPositionInRange)
{
    add(1);
    add(20);
    const QVector<orvane::UndoStep> steps{{}, m_queue.Steps()[0], {}, m_queue.Steps()[1]};
    const auto positionAfter = [this, &steps](int position) {
        m_queue.Restore(steps, position);
        EXPECT_EQ(m_queue.StepCount(), 2);
        return m_queue.Position();
    };
    EXPECT_EQ(positionAfter(-1), 0);
    EXPECT_EQ(positionAfter(1), 0);
    EXPECT_EQ(positionAfter(2), 1);
    EXPECT_EQ(positionAfter(3), 1);
    EXPECT_EQ(positionAfter(4), 2);
    EXPECT_EQ(positionAfter(1000), 2);
}

TEST_F(Undoing, knowsWhereTheSceneWasSaved)
{
    EXPECT_FALSE(m_queue.IsAtSaved());
    m_queue.SetSaved(true);
    add(1);
    EXPECT_FALSE(m_queue.IsAtSaved());
    m_queue.Undo();
    EXPECT_TRUE(m_queue.IsAtSaved());
    m_queue.Redo();
    m_queue.SetSaved(true);
    m_queue.Undo();
    EXPECT_FALSE(m_queue.IsAtSaved());
    add(20); // what was saved is cut off
    EXPECT_FALSE(m_queue.IsAtSaved());
    m_queue.SetSaved(true);
    add(300, true); // and now grows
    EXPECT_FALSE(m_queue.IsAtSaved());
    m_queue.Undo();
    EXPECT_FALSE(m_queue.IsAtSaved()) << "half a step is nowhere";
    m_queue.SetSaved(true);
    m_queue.SetSaved(false);
    EXPECT_FALSE(m_queue.IsAtSaved());
}

TEST_F(Undoing, losesTheSavedPlaceThatFallsOff)
{
    UndoQueue small(1000);
    m_queue.SetSaved(true);
    for (int i = 0; i <= UndoQueue::MaximumSteps; ++i)
        add(1);
    while (m_queue.Undo()) {
    }
    EXPECT_EQ(m_queue.Position(), 0);
    EXPECT_FALSE(m_queue.IsAtSaved());

    small.SetSaved(true);
    NumberOperation large(1, 5000);
    ASSERT_TRUE(large.ExecuteAndInvert());
    small.Push(&large, false);
    small.Push(&large, false);
    EXPECT_TRUE(small.Undo());
    EXPECT_FALSE(small.IsAtSaved()) << "more bytes than allowed in one go";
}

TEST_F(Undoing, countsItsChanges)
{
    int revision = m_queue.Revision();
    const auto hasChanged = [&] {
        const bool changed = m_queue.Revision() != revision;
        revision = m_queue.Revision();
        return changed;
    };
    add(1);
    EXPECT_TRUE(hasChanged());
    m_queue.Undo();
    EXPECT_TRUE(hasChanged());
    EXPECT_FALSE(m_queue.Undo());
    EXPECT_FALSE(hasChanged());
    m_queue.Redo();
    EXPECT_TRUE(hasChanged());
    m_queue.Clear();
    EXPECT_TRUE(hasChanged());
}

TEST_F(Undoing, namesItsStepsByTheirClass)
{
    add(1);
    EXPECT_EQ(m_queue.UndoText(), QStringLiteral("Change the Number"));
    EXPECT_TRUE(m_queue.RedoText().isEmpty());
    m_queue.Undo();
    EXPECT_TRUE(m_queue.UndoText().isEmpty());
    EXPECT_EQ(m_queue.RedoText(), QStringLiteral("Change the Number"));
}

TEST_F(Undoing, namesItsStepsInTheUsersLanguage)
{
    add(1);
    Words words;
    ASSERT_TRUE(QCoreApplication::installTranslator(&words));
    EXPECT_EQ(m_queue.UndoText(), QStringLiteral("Zahl ändern"));
    QCoreApplication::removeTranslator(&words);
    EXPECT_EQ(m_queue.UndoText(), QStringLiteral("Change the Number"));
}
