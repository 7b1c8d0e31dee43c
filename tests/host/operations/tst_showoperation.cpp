// SPDX-License-Identifier: MIT
#include "tests/host/operations/samplescene.h"
#include "tests/support/logcatcher.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/kernel.h>
#include <orvane/operations/showoperation.h>

using orvane::ShowOperation;
using Showing = SampleScene;

TEST_F(Showing, hidesAndShowsAgain)
{
    ShowOperation operation({quad(), loop(), tetrahedron()}, false);
    expectDoUndoRedo(operation, "Show or Hide");
    EXPECT_TRUE(quad()->IsHidden());
    EXPECT_TRUE(loop()->IsHidden());
    EXPECT_FALSE(net()->IsHidden());
    ASSERT_TRUE(orvane::Kernel()->Undo());
    EXPECT_FALSE(quad()->IsHidden());
    EXPECT_TRUE(tetrahedron()->IsHidden()); // it was hidden before, and is not shown by undo
}

TEST_F(Showing, showsAndHidesAgain)
{
    ShowOperation operation({loose(), quad()}, true);
    expectDoUndoRedo(operation, "Show or Hide");
    EXPECT_FALSE(loose()->IsHidden());
    EXPECT_TRUE(tetrahedron()->IsHidden());
}

TEST_F(Showing, whatIsShownIsNoStep)
{
    ShowOperation operation({quad(), net()}, true);
    expectRefused(operation);
}

TEST_F(Showing, aNodeThatIsNotInTheSceneIsRefused)
{
    const LogCatcher logs;
    orvane::Geometry stranger;
    ShowOperation operation({quad(), &stranger}, false);
    expectRefused(operation);
    EXPECT_EQ(logs.count(), 1);
}
