// SPDX-License-Identifier: MIT
#include "tests/host/operations/samplescene.h"
#include "tests/support/scenebytes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/kernel/selectalloperation.h>
#include <orvane/operations/selectoperation.h>

using orvane::SelectOperation;

namespace {

class SelectingSome : public SampleScene
{
protected:
    // Of the geometries, then of the curves, each in order.
    static QVector<bool> selection()
    {
        return {quad()->Selected(), triangle()->Selected(), tetrahedron()->Selected(),
                net()->Selected(),  loop()->Selected(),     loose()->Selected()};
    }
};

} // namespace

TEST_F(SelectingSome, goesBackAndForth)
{
    SelectOperation operation({triangle(), loop(), net()});
    expectDoUndoRedo(operation, "Select");
    EXPECT_EQ(selection(), (QVector<bool>{false, true, false, true, true, false}));
}

TEST_F(SelectingSome, nothingClearsTheSelection)
{
    SelectOperation operation(QVector<orvane::Node *>{});
    expectDoUndoRedo(operation, "Select");
    EXPECT_FALSE(selection().contains(true));
}

TEST_F(SelectingSome, whatIsSelectedAlreadyIsNoStep)
{
    SelectOperation operation({loop(), quad(), loop()});
    expectRefused(operation);
}

TEST_F(SelectingSome, aNodeOfNoSceneIsIgnored)
{
    orvane::OrvaneCurve stranger;
    SelectOperation operation({&stranger, nullptr, loop()});
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    EXPECT_EQ(selection(), (QVector<bool>{false, false, false, false, true, false}));
    EXPECT_FALSE(stranger.Selected());
}

TEST_F(SelectingSome, leavesNoStepUnlessTheUserAskedForIt)
{
    SelectOperation tidying({loop()});
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&tidying, false, false));
    EXPECT_TRUE(loop()->Selected());
    EXPECT_FALSE(orvane::Kernel()->Undos().CanUndo());
    EXPECT_FALSE(orvane::Kernel()->Scene()->IsChanged());
}

TEST_F(SelectingSome, canBeUndoneAndRedoneAfterASelectionThatLeftNoStep)
{
    SelectOperation operation({triangle(), tetrahedron(), loop()});
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    const QByteArray after = sceneBytes();
    orvane::SelectAllOperation none(false);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&none, false, false));
    ASSERT_TRUE(orvane::Kernel()->Undo());
    EXPECT_EQ(selection(), (QVector<bool>{true, false, false, false, true, false}));
    ASSERT_TRUE(orvane::Kernel()->Redo());
    EXPECT_TRUE(sceneBytes() == after);
}
