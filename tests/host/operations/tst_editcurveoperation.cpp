// SPDX-License-Identifier: MIT
#include "tests/host/operations/samplescene.h"
#include "tests/support/logcatcher.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/operations/editcurveoperation.h>

#include <limits>

using orvane::CurvePoint;
using orvane::EditCurveOperation;
using EditingCurves = SampleScene;

TEST_F(EditingCurves, newPointsGoBackAndForth)
{
    EditCurveOperation operation(net(), loop()->Points().mid(1), false);
    expectDoUndoRedo(operation, "Edit Curve");
    EXPECT_EQ(net()->PointCount(), 3);
    EXPECT_EQ(net()->Geometry(), triangle());
}

TEST_F(EditingCurves, openingALoopGoesBackAndForth)
{
    EditCurveOperation operation(loop(), loop()->Points().mid(0, 3), false);
    expectDoUndoRedo(operation, "Edit Curve");
    EXPECT_FALSE(loop()->Closed());
    EXPECT_EQ(loop()->DrawnPointCount(), 3);
}

TEST_F(EditingCurves, theClosedMarkAloneIsAChange)
{
    EditCurveOperation operation(loop(), loop()->Points(), false);
    expectDoUndoRedo(operation, "Edit Curve");
}

TEST_F(EditingCurves, erasingAllPointsGoesBackAndForth)
{
    EditCurveOperation operation(net(), {}, false);
    expectDoUndoRedo(operation, "Edit Curve");
    EXPECT_EQ(net()->PointCount(), 0);
}

TEST_F(EditingCurves, theSamePointsAreNoStep)
{
    EditCurveOperation operation(loop(), loop()->Points(), true);
    expectRefused(operation);
}

TEST_F(EditingCurves, pointsThatAreNowhereAreRefused)
{
    const LogCatcher logs;
    const float nowhere = std::numeric_limits<float>::infinity();
    EditCurveOperation operation(net(), {CurvePoint(orvane::Vector(nowhere, 0, 0))}, false);
    expectRefused(operation);
    EXPECT_EQ(logs.count(), 1);
}

TEST_F(EditingCurves, noCurveIsRefused)
{
    const LogCatcher logs;
    EditCurveOperation operation(nullptr, net()->Points(), false);
    expectRefused(operation);
    EXPECT_EQ(logs.count(), 1);
}
