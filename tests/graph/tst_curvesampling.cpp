// SPDX-License-Identifier: MIT
#include "graph/curvesampling.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"
#include "tests/support/strokes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

using orvane::CurvePoint;
using orvane::OrvaneCurve;
using orvane::Vector;

namespace {

class CurveSampling : public SceneCleaner
{
protected:
    static QList<CurvePoint> samplesOf(const OrvaneCurve *curve, float overrun = 0.0f)
    {
        QList<CurvePoint> samples;
        sampleCurve(*curve, samples, overrun);
        return samples;
    }

    Sheet sheet{16};
};

} // namespace

TEST_F(CurveSampling, overrunHalfEndsAnOpenCurve2BeyondALastSegmentOf4AndAClosedOneIsNotExtended)
{
    const QVector<Vector> places = {{2, 2, 0}, {4, 2, 0}, {4, 6, 0}};
    const QList<CurvePoint> open = samplesOf(sheet.stroke(places), 0.5f);
    ASSERT_EQ(open.size(), 3);
    EXPECT_EQ(samplePosition(open[2]), Vector(4, 8, 0));
    EXPECT_EQ(open[2].position, Vector(4, 8, 0)) << "the stored place moves with it";
    EXPECT_EQ(samplePosition(open[0]), Vector(1, 2, 0));
    EXPECT_EQ(samplePosition(open[1]), Vector(4, 2, 0));

    const OrvaneCurve *closed = sheet.loop(places);
    const QList<CurvePoint> samples = samplesOf(closed, 0.5f);
    ASSERT_EQ(samples.size(), closed->PointCount());
    for (int i = 0; i < samples.size(); ++i)
        EXPECT_EQ(samplePosition(samples[i]), samplePosition(closed->PointAt(i)));
}

TEST_F(CurveSampling, anOpenCurveWithASinglePointIsNotExtended)
{
    const QList<CurvePoint> samples = samplesOf(sheet.stroke({{3, 3, 0}}), 0.5f);
    ASSERT_EQ(samples.size(), 1);
    EXPECT_EQ(samplePosition(samples[0]), Vector(3, 3, 0));
}

TEST_F(CurveSampling, aPointWhoseFaceIndexIsNotBelowTheFaceCountIsDropped)
{
    OrvaneCurve *curve = sheet.straight({1, 1, 0}, {2, 1, 0});
    const int faces = sheet.mesh()->FaceCount();
    curve->AppendPoint(CurvePoint(orvane::SurfacePoint(*sheet.mesh(), faces, 0.5f, 0.5f)));
    curve->AppendPoint(CurvePoint(orvane::SurfacePoint(*sheet.mesh(), -1, 0.5f, 0.5f)));
    curve->AppendPoint(sheet.point({3, 1, 0}));
    const QList<CurvePoint> samples = samplesOf(curve);
    ASSERT_EQ(samples.size(), 3);
    EXPECT_EQ(samplePosition(samples[2]), Vector(3, 1, 0));
}

TEST_F(CurveSampling, aPointOffTheMeshIsDroppedAndStillGivesTheEndsTheirDirection)
{
    const OrvaneCurve *curve = sheet.stroke({{-2, 4, 0}, {2, 4, 0}, {3, 4, 0}, {18, 4, 0}});
    const QList<CurvePoint> samples = samplesOf(curve, 1.0f);
    ASSERT_EQ(samples.size(), 2);
    EXPECT_EQ(samplePosition(samples[0]), Vector(2, 4, 0)) << "it is no end of the curve";
    EXPECT_EQ(samplePosition(samples[1]), Vector(3, 4, 0));

    const QList<CurvePoint> bent = samplesOf(sheet.stroke({{8, -4, 0}, {8, 1, 0}}), 0.2f);
    ASSERT_EQ(bent.size(), 1);
    EXPECT_EQ(samplePosition(bent[0]), Vector(8, 2, 0));
}

TEST_F(CurveSampling, samplesAreAppendedToWhatIsThere)
{
    QList<CurvePoint> samples = {CurvePoint(Vector(7, 7, 7))};
    sampleCurve(*sheet.straight({1, 1, 0}, {2, 1, 0}, 100), samples, 0.0f);
    ASSERT_EQ(samples.size(), 101);
    EXPECT_EQ(samples[0].position, Vector(7, 7, 7));
}

TEST_F(CurveSampling, aNegativeOverrunShortensAndPointsInOnePlaceStay)
{
    const QList<CurvePoint> shorter = samplesOf(sheet.straight({2, 2, 0}, {6, 2, 0}), -0.25f);
    EXPECT_EQ(samplePosition(shorter[0]), Vector(3, 2, 0));
    EXPECT_EQ(samplePosition(shorter[1]), Vector(5, 2, 0));
    const QList<CurvePoint> still = samplesOf(sheet.stroke({{2, 2, 0}, {2, 2, 0}}), 0.5f);
    EXPECT_EQ(samplePosition(still[1]), Vector(2, 2, 0));
}

TEST_F(CurveSampling, aSampleLiesWhereItsMeshSaysOrWhereItWasStoredOnceTheMeshIsGone)
{
    const OrvaneCurve *curve = sheet.straight({1, 1, 0}, {2, 1, 0});
    CurvePoint point = sheet.point({5, 5, 0});
    point.position = {1, 1, 1};
    EXPECT_EQ(samplePosition(point), Vector(5, 5, 0));
    orvane::Geometry *geometry = sheet.geometry();
    orvane::Kernel()->Scene()->RemoveGeometry(geometry);
    EXPECT_EQ(samplePosition(point), Vector(1, 1, 1));
    delete geometry;
    EXPECT_TRUE(samplesOf(curve).isEmpty());
}
