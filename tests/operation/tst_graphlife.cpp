// SPDX-License-Identifier: MIT
#include "graph/graphwalk.h"
#include "graph/nodestore.h"
#include "operation/manualretopooperation.h"
#include "tests/operation/operationscene.h"
#include "tests/support/graphchecks.h"

#include <orvane/kernel/kernel.h>

namespace {

// How long the nodes of a run live: while an operation lists their seeds, or someone holds them,
// and at least until the next generation starts.
class GraphLife : public OperationScene
{
protected:
    GraphLife() { drawCell(sheet, {2, 2, 0}, 2.0f); }

    std::unique_ptr<ManualRetopoOperation> done()
    {
        auto operation = operationOn(sheet.curves());
        EXPECT_TRUE(operation->ExecuteAndInvert());
        return operation;
    }

    // Reads every node: a freed one would show under the address sanitizer.
    static int nodesReachedFrom(const QList<IntersectionNode *> &seeds)
    {
        QList<IntersectionNode *> nodes;
        for (IntersectionNode *seed : seeds)
            walkGraph(seed, [&](IntersectionNode *node) { nodes.append(node); });
        EXPECT_TRUE(isSound(nodes));
        return nodes.size();
    }

    NodeStore &store = NodeStore::instance();
    Sheet sheet;
};

const int CellNodes = 4;

} // namespace

TEST_F(GraphLife, undoAndDestructorFreeNoNode)
{
    auto operation = done();
    EXPECT_EQ(store.nodeCount(), CellNodes);
    const QList<IntersectionNode *> list = operation->Subgraphs();
    ASSERT_TRUE(operation->ExecuteAndInvert());
    EXPECT_EQ(operation->Subgraphs(), list);
    EXPECT_EQ(nodesReachedFrom(list), CellNodes);
    operation.reset();
    EXPECT_EQ(store.nodeCount(), CellNodes);
    EXPECT_EQ(nodesReachedFrom(list), CellNodes) << "good until the next generation starts";
}

TEST_F(GraphLife, theNextGenerationFreesWhatNoLivingOperationLists)
{
    done();
    const auto second = done();
    EXPECT_EQ(store.nodeCount(), CellNodes);
    const auto third = done();
    EXPECT_EQ(store.nodeCount(), 2 * CellNodes);
    EXPECT_EQ(nodesReachedFrom(second->Subgraphs()), CellNodes);
}

TEST_F(GraphLife, aCopyAndAnAssignedOperationKeepTheNodesToo)
{
    auto original = done();
    auto copy = std::make_unique<ManualRetopoOperation>(*original);
    ManualRetopoOperation assigned;
    assigned = *copy;
    original.reset();
    copy.reset();
    const auto other = done();
    EXPECT_EQ(store.nodeCount(), 2 * CellNodes);
    EXPECT_EQ(nodesReachedFrom(assigned.Subgraphs()), CellNodes);
    assigned = ManualRetopoOperation();
    done();
    EXPECT_EQ(store.nodeCount(), 2 * CellNodes) << "the other and the latest";
}

TEST_F(GraphLife, assigningAnOperationToItselfKeepsItsNodes)
{
    const auto operation = done();
    const ManualRetopoOperation &same = *operation;
    *operation = same;
    done();
    EXPECT_EQ(nodesReachedFrom(operation->Subgraphs()), CellNodes);
    EXPECT_EQ(store.nodeCount(), 2 * CellNodes);
}

TEST_F(GraphLife, aPinnedListOutlivesTheOperation)
{
    auto operation = done();
    const QList<IntersectionNode *> pinned = operation->Subgraphs();
    store.hold(pinned);
    operation.reset();
    done();
    done();
    EXPECT_EQ(nodesReachedFrom(pinned), CellNodes);
    store.release(pinned);
    done();
    EXPECT_EQ(store.nodeCount(), CellNodes);
}

TEST_F(GraphLife, anOperationThatGeneratesAgainLetsItsOldNodesGo)
{
    const auto operation = done();
    for (int round = 0; round < 10; ++round) {
        ASSERT_TRUE(operation->ExecuteAndInvert());
        ASSERT_TRUE(operation->ExecuteAndInvert());
        EXPECT_LE(store.nodeCount(), 2 * CellNodes);
        EXPECT_EQ(nodesReachedFrom(operation->Subgraphs()), CellNodes);
    }
}

TEST_F(GraphLife, aRunThatMakesNothingLeavesNothingBehind)
{
    const auto operation = operationOn(sheet.curves().mid(0, 3)); // no cell is closed
    EXPECT_FALSE(operation->ExecuteAndInvert());
    EXPECT_EQ(store.nodeCount(), 2);
    EXPECT_EQ(nodesReachedFrom(operation->Subgraphs()), 2);
    const auto empty = operationOn({});
    EXPECT_FALSE(empty->ExecuteAndInvert());
    *operation = *empty;
    store.beginRun();
    EXPECT_EQ(store.nodeCount(), 0);
}

TEST_F(GraphLife, absorbedNodesAreFreedWithTheirRun)
{
    sheet.straight({1, 2.05f, 0}, {5, 2.05f, 0});
    done();
    EXPECT_EQ(store.nodeCount(), CellNodes + 2);
    store.beginRun();
    EXPECT_EQ(store.nodeCount(), 0);
}

TEST_F(GraphLife, theUndoQueueHoldsNoGraph)
{
    for (int step = 0; step < 5; ++step) {
        auto operation = operationOn(sheet.curves());
        ASSERT_TRUE(orvane::Kernel()->DoOperation(operation.get(), false, false));
    }
    for (int round = 0; round < 3; ++round) {
        while (orvane::Kernel()->Undo()) {
        }
        while (orvane::Kernel()->Redo())
            EXPECT_EQ(store.nodeCount(), CellNodes);
    }
}
