// SPDX-License-Identifier: MIT
#include "tests/host/operations/samplescene.h"
#include "tests/support/logcatcher.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/operations/deleteoperations.h>
#include <orvane/operations/drawonoperation.h>

using orvane::DrawOnOperation;
using orvane::Kernel;

namespace {

class DrawOn : public SampleScene
{
protected:
    static orvane::Geometry *surface() { return Kernel()->Scene()->DrawingSurface(); }

    void choose(const orvane::Geometry *geometry)
    {
        DrawOnOperation operation(geometry);
        ASSERT_TRUE(Kernel()->DoOperation(&operation, true, false));
    }
};

} // namespace

TEST_F(DrawOn, theChoiceGoesBackAndForth)
{
    DrawOnOperation operation(quad());
    expectDoUndoRedo(operation, "Choose Mesh to Draw On");
    EXPECT_EQ(surface(), quad());
}

TEST_F(DrawOn, theMeshThatIsDrawnOnAlreadyIsNoStep)
{
    DrawOnOperation operation(triangle());
    expectRefused(operation);
}

TEST_F(DrawOn, whatIsNoGeometryOfTheSceneIsRefused)
{
    const LogCatcher logs;
    const orvane::Geometry stranger;
    DrawOnOperation other(&stranger);
    expectRefused(other);
    DrawOnOperation nothing;
    expectRefused(nothing);
    EXPECT_EQ(logs.count(), 2);
}

// The first geometry is drawn on as long as nobody chooses; undo brings that back, too, not the
// geometry that happened to be the first.
TEST_F(DrawOn, undoTakesTheFirstChoiceBackAltogether)
{
    Kernel()->Scene()->SetDrawingSurface(nullptr);
    orvane::DeleteGeometryOperation gone({quad()});
    ASSERT_TRUE(Kernel()->DoOperation(&gone, true, false));
    const orvane::Geometry *slope = surface();
    EXPECT_EQ(slope->Name(), QStringLiteral("Triangle"));
    choose(Kernel()->Scene()->Geometries().last());
    EXPECT_NE(surface(), slope);
    ASSERT_TRUE(Kernel()->Undo());
    EXPECT_EQ(surface(), slope);
    ASSERT_TRUE(Kernel()->Undo());
    EXPECT_EQ(surface(), quad());
}
