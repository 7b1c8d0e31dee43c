// SPDX-License-Identifier: MIT
#include "tests/support/numberoperation.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>
#include <orvane/kernel/scene.h>
#include <orvane/kernel/viewport.h>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

// Notes what a desktop would show.
class Screen : public orvane::Interface
{
public:
    void SetBusy(bool busy) override { busyCalls.append(busy); }
    void HUDMessageShow(const QString &text, int type, int) override
    {
        messages.append(text);
        types.append(type);
        isUp = true;
    }
    bool IsHUDMessageUp() const override { return isUp; }

    QVector<bool> busyCalls;
    QStringList messages;
    QVector<int> types;
    bool isUp = false;
};

// Follows the command attribute as a tool does.
class Tool : public orvane::Node
{
public:
    void OnNodeEvent(const orvane::Attribute &, orvane::NodeEventType type) override
    {
        if (type == orvane::NodeEventValueChanged)
            heard.append(next.Value());
    }

    orvane::AttributeInstance<QString> next{this, QStringLiteral("next")};
    QStringList heard;
};

bool answersWhileRunning[4]; // of the operation below, in its order

void tryEverything()
{
    auto *kernel = orvane::Kernel();
    NumberOperation other(1000);
    NumberOperation::whileRunning = nullptr;
    answersWhileRunning[0] = kernel->IsOperationRunning();
    answersWhileRunning[1] = kernel->DoOperation(&other, true, false);
    answersWhileRunning[2] = kernel->Undo();
    answersWhileRunning[3] = kernel->Redo();
}

void leaveWithAFullScene()
{
    addToScene(cube());
    orvane::Kernel()->Scene()->NodeAt(0)->ID();
    std::exit(0);
}

} // namespace

class TheKernel : public SceneCleaner
{
protected:
    TheKernel() { m_kernel->SetInterface(&m_screen); }
    ~TheKernel() override { m_kernel->SetInterface(nullptr); }

    bool run(int amount, bool interactive, bool merge = false)
    {
        NumberOperation operation(amount);
        return m_kernel->DoOperation(&operation, interactive, merge);
    }

    Screen m_screen;
    class orvane::Kernel *m_kernel = orvane::Kernel();
};

TEST_F(TheKernel, isOneAndHasAllItsParts)
{
    EXPECT_EQ(orvane::Kernel(), &orvane::Kernel::Instance());
    EXPECT_NE(m_kernel->Scene(), nullptr);
    EXPECT_NE(m_kernel->Preferences(), nullptr);
    EXPECT_NE(m_kernel->ViewPort(), nullptr);
    EXPECT_EQ(m_kernel->Interface(), &m_screen);
    EXPECT_FALSE(m_kernel->IsTestModeOn());
    m_kernel->SetTestMode(true);
    EXPECT_TRUE(m_kernel->IsTestModeOn());
}

TEST_F(TheKernel, showsNothingWithoutAnInterfaceOrAView)
{
    orvane::ViewPort view;
    m_kernel->SetViewPort(&view);
    EXPECT_EQ(m_kernel->ViewPort(), &view);
    m_kernel->SetViewPort(nullptr);
    m_kernel->SetInterface(nullptr);
    ASSERT_NE(m_kernel->ViewPort(), nullptr);
    ASSERT_NE(m_kernel->Interface(), nullptr);
    EXPECT_NE(m_kernel->ViewPort(), &view);
    EXPECT_EQ(m_kernel->Interface()->MainWindow(), nullptr);
}

TEST_F(TheKernel, runsAnOperationAndMarksTheScene)
{
    EXPECT_TRUE(run(5, true));
    EXPECT_EQ(NumberOperation::number, 5);
    EXPECT_TRUE(m_kernel->Scene()->IsChanged());
    EXPECT_EQ(m_kernel->Undos().StepCount(), 1);
}

TEST_F(TheKernel, keepsAStepWhateverTheFlags)
{
    EXPECT_TRUE(run(1, false));
    EXPECT_TRUE(run(10, true));
    EXPECT_EQ(m_kernel->Undos().StepCount(), 2);
    EXPECT_TRUE(run(100, true, true));
    EXPECT_TRUE(run(1000, false, true));
    EXPECT_EQ(m_kernel->Undos().StepCount(), 2);
    EXPECT_TRUE(m_kernel->Undo());
    EXPECT_EQ(NumberOperation::number, 1);
}

TEST_F(TheKernel, marksTheSceneOnUndoAndRedo)
{
    run(1, true);
    m_kernel->Scene()->SetChanged(false);
    EXPECT_TRUE(m_kernel->Undo());
    EXPECT_TRUE(m_kernel->Scene()->IsChanged());
    m_kernel->Scene()->SetChanged(false);
    EXPECT_FALSE(m_kernel->Undo());
    EXPECT_FALSE(m_kernel->Scene()->IsChanged());
    EXPECT_TRUE(m_kernel->Redo());
    EXPECT_TRUE(m_kernel->Scene()->IsChanged());
}

TEST_F(TheKernel, refusesNothing)
{
    EXPECT_FALSE(m_kernel->DoOperation(nullptr, true, false));
    EXPECT_TRUE(m_screen.messages.isEmpty());
}

TEST_F(TheKernel, leavesQueueAndSceneAsTheyWereWhenAnOperationAnswersFalse)
{
    run(1, true);
    m_kernel->Undo();
    m_kernel->Scene()->SetChanged(false);
    NumberOperation::refused = 7;
    EXPECT_FALSE(run(7, true));
    EXPECT_FALSE(m_kernel->Scene()->IsChanged());
    EXPECT_FALSE(m_kernel->Undos().CanUndo());
    EXPECT_TRUE(m_kernel->Undos().CanRedo());
}

TEST_F(TheKernel, showsThatItIsBusyOnlyWhenTheUserWaits)
{
    run(1, false);
    EXPECT_TRUE(m_screen.busyCalls.isEmpty());
    run(1, true);
    EXPECT_EQ(m_screen.busyCalls, QVector<bool>({true, false}));
    NumberOperation::refused = 7;
    run(7, true);
    EXPECT_EQ(m_screen.busyCalls, QVector<bool>({true, false, true, false}));
}

TEST_F(TheKernel, saysThatNothingWasMade)
{
    NumberOperation::refused = 7;
    run(7, true);
    EXPECT_EQ(m_screen.messages, QStringList(QStringLiteral("Nothing was made")));
    EXPECT_EQ(m_screen.types, QVector<int>({1}));
}

TEST_F(TheKernel, saysWhyNothingWasMade)
{
    NumberOperation::refused = 7;
    NumberOperation::whileRunning = []() {
        orvane::Kernel()->ExplainFailure(QStringLiteral("the curves do not cross"));
    };
    run(7, true);
    EXPECT_EQ(m_screen.messages,
              QStringList(QStringLiteral("Nothing was made: the curves do not cross")));
    m_screen.isUp = false;
    NumberOperation::whileRunning = nullptr;
    run(7, true);
    EXPECT_EQ(m_screen.messages.last(), QStringLiteral("Nothing was made"))
        << "the reason was that of the first";
}

TEST_F(TheKernel, saysNothingWhenTheUserDidNotAskOrSomethingWasMade)
{
    run(1, true);
    NumberOperation::refused = 7;
    run(7, false);
    EXPECT_TRUE(m_screen.messages.isEmpty());
}

TEST_F(TheKernel, saysNothingOverAMessageThatIsUp)
{
    NumberOperation::refused = 7;
    m_screen.isUp = true;
    run(7, true);
    EXPECT_TRUE(m_screen.messages.isEmpty());
}

TEST_F(TheKernel, runsOneOperationAtATime)
{
    run(1, true);
    run(2, true);
    m_kernel->Undo();
    NumberOperation::whileRunning = tryEverything;
    EXPECT_TRUE(run(10, true));
    EXPECT_TRUE(answersWhileRunning[0]);
    EXPECT_FALSE(answersWhileRunning[1]);
    EXPECT_FALSE(answersWhileRunning[2]);
    EXPECT_FALSE(answersWhileRunning[3]);
    EXPECT_EQ(NumberOperation::number, 11);
    EXPECT_FALSE(m_kernel->IsOperationRunning());
}

TEST_F(TheKernel, runsNothingInTheMiddleOfAnUndo)
{
    run(1, true);
    run(2, true);
    NumberOperation::whileRunning = tryEverything;
    EXPECT_TRUE(m_kernel->Undo());
    EXPECT_TRUE(answersWhileRunning[0]);
    EXPECT_FALSE(answersWhileRunning[1]);
    EXPECT_FALSE(answersWhileRunning[2]);
    EXPECT_EQ(NumberOperation::number, 1);
    NumberOperation::whileRunning = tryEverything;
    EXPECT_TRUE(m_kernel->Redo());
    EXPECT_FALSE(answersWhileRunning[1]);
    EXPECT_EQ(NumberOperation::number, 3);
    EXPECT_FALSE(m_kernel->IsOperationRunning());
}

TEST_F(TheKernel, runsAgainAfterAnOperationThatAnsweredFalse)
{
    NumberOperation::refused = 7;
    run(7, true);
    EXPECT_FALSE(m_kernel->IsOperationRunning());
    EXPECT_TRUE(run(1, true));
}

TEST_F(TheKernel, tellsToolsOfACommandEachTimeItIsSet)
{
    Tool tool;
    ASSERT_TRUE(tool.next.Connect(&m_kernel->CommandAttribute(), false));
    m_kernel->CommandAttribute().SetValue(QStringLiteral("make 5"));
    m_kernel->CommandAttribute().SetValue(QStringLiteral("make 5"));
    EXPECT_EQ(tool.heard, QStringList({QStringLiteral("make 5"), QStringLiteral("make 5")}));
}

TEST_F(TheKernel, recordsCommandsWithoutCarryingThemOut)
{
    Tool tool;
    tool.next.Connect(&m_kernel->CommandAttribute(), false);
    const QString before = m_kernel->CommandAttribute().Value();
    const int recorded = m_kernel->RecordedCommands().size();
    m_kernel->RecordCommand(QStringLiteral("make 6"));
    EXPECT_TRUE(tool.heard.isEmpty());
    EXPECT_EQ(m_kernel->CommandAttribute().Value(), before);
    EXPECT_EQ(m_kernel->RecordedCommands().size(), recorded + 1);
    EXPECT_EQ(m_kernel->RecordedCommands().last(), QStringLiteral("make 6"));
}

TEST_F(TheKernel, beginsANewSceneWithNothingOfTheOld)
{
    addToScene(cube());
    NumberOperation operation(1);
    orvane::Kernel()->DoOperation(&operation, false, false);
    EXPECT_TRUE(orvane::Kernel()->NewScene());
    EXPECT_EQ(orvane::Kernel()->Scene()->NodeCount(), 0);
    EXPECT_FALSE(orvane::Kernel()->Scene()->IsChanged());
    EXPECT_FALSE(orvane::Kernel()->Undos().CanUndo());
    EXPECT_EQ(addToScene(cube())->ID(), 1);
}

TEST_F(TheKernel, beginsNoNewSceneWhileAnOperationRuns)
{
    addToScene(cube());
    NumberOperation::whileRunning = [] {
        EXPECT_FALSE(orvane::Kernel()->NewScene());
    };
    NumberOperation operation(1);
    EXPECT_TRUE(orvane::Kernel()->DoOperation(&operation, false, false));
    EXPECT_EQ(orvane::Kernel()->Scene()->NodeCount(), 1);
}

TEST_F(TheKernel, countsTheOperationsThatWereTried)
{
    const int before = orvane::Kernel()->OperationCount();
    NumberOperation operation(1);
    orvane::Kernel()->DoOperation(&operation, false, false);
    NumberOperation::refused = 2;
    NumberOperation refused(2);
    orvane::Kernel()->DoOperation(&refused, false, false);
    orvane::Kernel()->DoOperation(nullptr, false, false);
    orvane::Kernel()->Undo();
    EXPECT_EQ(orvane::Kernel()->OperationCount(), before + 2);
}

TEST_F(TheKernel, leavesQuietlyWithAFullScene)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(leaveWithAFullScene(), testing::ExitedWithCode(0), ".*");
}
