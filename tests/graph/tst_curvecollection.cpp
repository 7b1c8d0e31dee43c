// SPDX-License-Identifier: MIT
#include "graph/curvecollection.h"
#include "tests/support/recordinginterface.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"
#include "tests/support/strokes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <cmath>
#include <limits>

using orvane::CurvePoint;
using orvane::OrvaneCurve;
using orvane::SurfacePoint;
using orvane::Vector;

namespace {

class CurveCollection : public SceneCleaner
{};

// Points on the face, not in the scene.
void addPoints(OrvaneCurve &curve, const orvane::Geometry &geometry, int face, int count)
{
    for (int i = 0; i < count; ++i)
        curve.AppendPoint(CurvePoint(SurfacePoint(*geometry.CurrentLevel(), face, 0.2f, 0.1f)));
}

} // namespace

TEST_F(CurveCollection, aSceneWithNoCurveShowsNoValid3dCurveFor2000MillisecondsAndGivesAnEmptyList)
{
    RecordingInterface interface;
    addToScene(singleQuad());
    EXPECT_TRUE(collectCurves().isEmpty());
    ASSERT_EQ(interface.messages.size(), 1);
    EXPECT_EQ(interface.messages[0].text, QStringLiteral("No valid 3d curve in scene"));
    EXPECT_EQ(interface.messages[0].type, 1);
    EXPECT_EQ(interface.messages[0].milliseconds, 2000);
    EXPECT_TRUE(interface.phases.isEmpty());
}

TEST_F(CurveCollection, oneTriangleOfSide2UnderThreeCurvePointsGives1999998AndNot2)
{
    const float height = std::sqrt(3.0f);
    orvane::Geometry *geometry = addToScene(
        meshOf(orvane::Topology::Triangles, {{-1, 0, 0}, {1, 0, 0}, {0, height, 0}}, {0, 1, 2}));
    OrvaneCurve curve;
    addPoints(curve, *geometry, 0, 3);
    const double length = averageEdgeLength({&curve});
    EXPECT_NEAR(length, 1.999998, 3e-7);
    EXPECT_LT(length, 1.9999985);
}

TEST_F(CurveCollection, aPointWhoseFaceIndexIsNotBelowTheFaceCountDoesNotCountInTheAverage)
{
    orvane::Geometry *geometry = addToScene(singleQuad(3.0f));
    OrvaneCurve curve;
    addPoints(curve, *geometry, 0, 1);
    addPoints(curve, *geometry, 1, 5);
    addPoints(curve, *geometry, -1, 5);
    EXPECT_EQ(averageEdgeLength({&curve}), 3.0);
}

TEST_F(CurveCollection, takesEveryCurveOfTheSceneInOrderButHiddenOnes)
{
    RecordingInterface interface;
    Sheet sheet;
    OrvaneCurve *first = sheet.straight({1, 1, 0}, {2, 2, 0});
    OrvaneCurve *hidden = sheet.straight({1, 1, 0}, {3, 2, 0});
    addToScene(singleQuad());
    OrvaneCurve *onePoint = sheet.stroke({{1, 1, 0}});
    hidden->SetHidden(true);
    EXPECT_EQ(collectCurves(), (QList<OrvaneCurve *>{first, onePoint}));
    EXPECT_TRUE(interface.messages.isEmpty());
    first->SetHidden(true);
    onePoint->SetHidden(true);
    EXPECT_TRUE(collectCurves().isEmpty());
    EXPECT_EQ(interface.messages.size(), 1) << "only hidden curves are no curves";
}

TEST_F(CurveCollection, aFaceCountsOncePerPointOnIt)
{
    orvane::Geometry *small = addToScene(singleQuad(1.0f));
    orvane::Geometry *large = addToScene(singleQuad(4.0f));
    OrvaneCurve dense;
    OrvaneCurve sparse;
    addPoints(dense, *small, 0, 3);
    addPoints(sparse, *large, 0, 1);
    EXPECT_EQ(averageEdgeLength({&dense, nullptr, &sparse}), (3 * 1.0 + 4.0) / 4.0);
}

TEST_F(CurveCollection, lengthsAreMeasuredInWorldSpace)
{
    orvane::Geometry *geometry =
        addToScene(singleQuad(2.0f), QStringLiteral("Scaled"), orvane::Matrix::Scaling({5, 1, 1}));
    OrvaneCurve curve;
    addPoints(curve, *geometry, 0, 2);
    EXPECT_EQ(averageEdgeLength({&curve}), (10.0 + 2.0 + 10.0 + 2.0) / 4.0);
}

TEST_F(CurveCollection, withoutAPointOnAFaceTheAverageIsExactlyOne)
{
    OrvaneCurve loose;
    loose.AppendPoint(CurvePoint(Vector(1, 2, 3)));
    EXPECT_EQ(averageEdgeLength({}), 1.0);
    EXPECT_EQ(averageEdgeLength({nullptr}), 1.0);
    EXPECT_EQ(averageEdgeLength({&loose}), 1.0);
}

TEST_F(CurveCollection, aMeshWithoutExtentOrWithPlacesThatAreNoNumbersGivesOne)
{
    orvane::Geometry *point = addToScene(singleQuad(0.0f));
    orvane::Geometry *broken = addToScene(singleQuad(1.0f));
    OrvaneCurve onPoint;
    OrvaneCurve onBroken;
    addPoints(onPoint, *point, 0, 2);
    addPoints(onBroken, *broken, 0, 2);
    broken->CurrentLevel()->SetVertexPosition(
        1, {std::numeric_limits<float>::quiet_NaN(), 0.0f, 0.0f});
    EXPECT_EQ(averageEdgeLength({&onPoint}), 1.0);
    EXPECT_EQ(averageEdgeLength({&onBroken}), 1.0);
}
