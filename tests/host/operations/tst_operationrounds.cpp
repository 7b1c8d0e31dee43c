// SPDX-License-Identifier: MIT
#include "tests/host/operations/operationsamples.h"
#include "tests/support/memoryuse.h"
#include "tests/support/recordinginterface.h"
#include "tests/support/scenebytes.h"

#include <orvane/base/classdesc.h>
#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/operations/renameoperation.h>

#include <iostream>

namespace {

const qint64 MemoryAllowance = 1 << 20; // bytes that a thousand rounds may cost

void goRounds(int rounds)
{
    for (int i = 0; i < rounds; ++i) {
        ASSERT_TRUE(orvane::Kernel()->Undo());
        ASSERT_TRUE(orvane::Kernel()->Redo());
    }
}

class OperationRounds : public OperationSamples
{
protected:
    OperationRounds() : operation(makeOperation()) {}

    class orvane::Kernel &kernel = *orvane::Kernel();
    std::unique_ptr<orvane::Operation> operation;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(EachClass, OperationRounds, testing::ValuesIn(OperationClasses),
                         sampleName);

TEST_P(OperationRounds, areFoundByTheClassName)
{
    ASSERT_NE(operation, nullptr);
    EXPECT_EQ(operation->RuntimeClass()->Name(), QString::fromUtf8(GetParam()));
    const std::unique_ptr<orvane::Node> made(operation->RuntimeClass()->Create());
    EXPECT_EQ(made->RuntimeClass(), operation->RuntimeClass());
}

TEST_P(OperationRounds, aHundredTimesGiveTheSameBytes)
{
    const QByteArray before = sceneBytes();
    ASSERT_TRUE(kernel.DoOperation(operation.get(), true, false));
    const QByteArray after = sceneBytes();
    const QByteArray kept = kernel.Undos().Steps().first().first().bytes;
    EXPECT_TRUE(before != after);
    for (int round = 0; round < 100; ++round) {
        ASSERT_TRUE(kernel.Undo());
        ASSERT_TRUE(sceneBytes() == before);
        ASSERT_TRUE(kernel.Redo());
        ASSERT_TRUE(sceneBytes() == after);
        ASSERT_TRUE(kernel.Undos().Steps().first().first().bytes == kept);
    }
}

TEST_P(OperationRounds, aThousandLeaveMemoryFlat)
{
    ASSERT_TRUE(kernel.DoOperation(operation.get(), true, false));
    goRounds(100);
    const qint64 before = memoryInUse();
    goRounds(1000);
    const qint64 growth = memoryInUse() - before;
    std::cout << GetParam() << ": memory grew by " << growth << " bytes" << std::endl;
    EXPECT_LE(growth, MemoryAllowance);
}

TEST_P(OperationRounds, refreshWhatIsShownEachTime)
{
    RecordingInterface interface;
    ASSERT_TRUE(kernel.DoOperation(operation.get(), true, false));
    EXPECT_EQ(interface.refreshes, 1);
    ASSERT_TRUE(kernel.Undo());
    EXPECT_EQ(interface.refreshes, 2);
    ASSERT_TRUE(kernel.Redo());
    EXPECT_EQ(interface.refreshes, 3);
}

TEST_P(OperationRounds, anOperationNeverExecutedLeavesTheSceneAsItIs)
{
    const QByteArray before = sceneBytes();
    operation.reset(); // what it owns goes with it; a leak is found by the sanitizer
    EXPECT_TRUE(sceneBytes() == before);
}

TEST_P(OperationRounds, aDefaultOneIsRefused)
{
    const std::unique_ptr<orvane::Node> made(operation->RuntimeClass()->Create());
    expectRefused(dynamic_cast<orvane::Operation &>(*made));
}

TEST_P(OperationRounds, operationsFoldedIntoOneStepAreUndoneTogether)
{
    const QByteArray before = sceneBytes();
    orvane::RenameOperation first(triangle(), QStringLiteral("Slope"));
    orvane::RenameOperation last(triangle(), QStringLiteral("Hill"));
    ASSERT_TRUE(kernel.DoOperation(&first, true, false));
    ASSERT_TRUE(kernel.DoOperation(operation.get(), true, true));
    ASSERT_TRUE(kernel.DoOperation(&last, true, true));
    const QByteArray after = sceneBytes();
    ASSERT_EQ(kernel.Undos().StepCount(), 1);
    ASSERT_EQ(kernel.Undos().Steps().first().size(), 3);
    for (int round = 0; round < 3; ++round) {
        ASSERT_TRUE(kernel.Undo());
        EXPECT_TRUE(sceneBytes() == before);
        ASSERT_TRUE(kernel.Redo());
        EXPECT_TRUE(sceneBytes() == after);
    }
}
