// SPDX-License-Identifier: MIT
#include "tests/host/operations/historysteps.h"
#include "tests/operation/operationscene.h"
#include "tests/support/logcatcher.h"
#include "tests/support/repetitions.h"
#include "tests/support/scenebytes.h"
#include "tests/support/shapes.h"

#include <orvane/kernel/kernel.h>

#include <array>
#include <iostream>

namespace {

const int StepsOfAHistory = 50;
const int MovesOfAWalk = 60;
const int UsualHistories = 20; // in a short run

class MixedHistories : public OperationScene
{
protected:
    // Does random operations until the history has its steps. At times one becomes a part of the
    // step before it, and at times some steps are undone and others done in their place.
    void grow(HistorySteps &steps)
    {
        m_scenes = {sceneBytes()}; // every node at the start has its numbers now
        for (int attempt = 0; m_undos.StepCount() < StepsOfAHistory; ++attempt) {
            ASSERT_LT(attempt, 20 * StepsOfAHistory);
            for (int back = steps.below(10) == 0 ? steps.below(4) : 0; back > 0; --back)
                expectMove(true);
            tryOne(steps);
            if (HasFatalFailure())
                return;
        }
    }

    void tryOne(HistorySteps &steps)
    {
        const int kind = steps.randomKind();
        const bool merge = m_undos.CanUndo() && steps.below(8) == 0;
        const QByteArray before = look();
        const auto operation = steps.make(kind);
        if (!operation)
            return;
        if (!orvane::Kernel()->DoOperation(operation.get(), true, merge)) {
            ++m_refused[size_t(kind)];
            ASSERT_TRUE(look() == before) << HistorySteps::kindName(kind);
            return;
        }
        ++m_done[size_t(kind)];
        m_scenes.resize(m_undos.Position());
        m_scenes.append(look());
    }

    // Empty while nobody looks. Looking gives each node its number at once; otherwise it gets it
    // when the history first needs it.
    QByteArray look() const { return m_isWatched ? sceneBytes() : QByteArray(); }

    // One step back or forth, as far as there is one; the scene must be as noted there.
    void expectMove(bool back)
    {
        const int position = m_undos.Position();
        if (back ? !m_undos.CanUndo() : !m_undos.CanRedo())
            return;
        ASSERT_TRUE(back ? orvane::Kernel()->Undo() : orvane::Kernel()->Redo());
        ASSERT_EQ(m_undos.Position(), position + (back ? -1 : 1));
        const QByteArray &noted = m_scenes[m_undos.Position()];
        ASSERT_TRUE(noted.isEmpty() || sceneBytes() == noted) << "from step " << position;
    }

    void goTo(int position)
    {
        while (m_undos.Position() != position && !HasFatalFailure())
            expectMove(m_undos.Position() > position);
    }

    void start(HistorySteps &steps)
    {
        ASSERT_TRUE(orvane::Kernel()->NewScene());
        steps.fillScene();
        grow(steps);
    }

    orvane::UndoQueue &m_undos = orvane::Kernel()->Undos();
    bool m_isWatched = true;
    QVector<QByteArray> m_scenes; // by position in the history
    std::array<int, HistorySteps::KindCount> m_done{};
    std::array<int, HistorySteps::KindCount> m_refused{};
};

} // namespace

TEST_F(MixedHistories, areUndoneAndRedoneToTheBitAtEachStep)
{
    const unsigned seed = testSeed();
    const int count = repetitions("QUILLMESH_HISTORIES", UsualHistories);
    for (int history = 0; history < count; ++history) {
        SCOPED_TRACE(history);
        const LogCatcher logs;
        HistorySteps steps(seed + unsigned(history));
        start(steps);
        goTo(0);
        goTo(StepsOfAHistory);
        for (int move = 0; move < MovesOfAWalk && !HasFatalFailure(); ++move)
            expectMove(steps.below(2) == 0);
        goTo(0);
        goTo(StepsOfAHistory);
        ASSERT_FALSE(HasFatalFailure());
    }
    for (int kind = 0; kind < HistorySteps::KindCount; ++kind) {
        std::cout << HistorySteps::kindName(kind) << ": " << m_done[size_t(kind)] << " done, "
                  << m_refused[size_t(kind)] << " refused" << std::endl;
        EXPECT_GT(m_done[size_t(kind)], count);
    }
}

TEST_F(MixedHistories, areUndoneAndRedoneToTheBitWhenNobodyLooksInBetween)
{
    m_isWatched = false;
    const unsigned seed = testSeed() + 1000;
    const int count = repetitions("QUILLMESH_HISTORIES", UsualHistories);
    for (int history = 0; history < count; ++history) {
        SCOPED_TRACE(history);
        const LogCatcher logs;
        HistorySteps steps(seed + unsigned(history));
        start(steps);
        goTo(0);
        goTo(StepsOfAHistory);
        m_scenes.last() = sceneBytes();
        goTo(0);
        goTo(StepsOfAHistory);
        ASSERT_FALSE(HasFatalFailure());
    }
}
