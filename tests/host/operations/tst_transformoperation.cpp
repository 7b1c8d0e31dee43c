// SPDX-License-Identifier: MIT
#include "tests/host/operations/samplescene.h"
#include "tests/support/logcatcher.h"
#include "tests/support/recordinginterface.h"
#include "tests/support/scenebytes.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/operations/transformoperation.h>

#include <limits>

using orvane::CurvePoint;
using orvane::Matrix;
using orvane::OrvaneCurve;
using orvane::TransformOperation;
using orvane::Vector;

namespace {

const float Tolerance = 1e-5f; // scene units, at places a few units from the origin

void expectNear(const Vector &a, const Vector &b, float tolerance = Tolerance)
{
    EXPECT_LE((a - b).Length(), tolerance)
        << a.x << ' ' << a.y << ' ' << a.z << " / " << b.x << ' ' << b.y << ' ' << b.z;
}

class Transforming : public SampleScene
{
protected:
    const Matrix m_move = Matrix::Scaling({2, 0.5f, 3}) * Matrix::Rotation({1, 1, 0}, 1.1f)
                          * Matrix::Translation({-4, 2, 0.5f});
};

} // namespace

TEST_F(Transforming, aGeometryGoesBackAndForth)
{
    TransformOperation operation(quad(), m_move);
    expectDoUndoRedo(operation, "Transform");
    EXPECT_EQ(quad()->Placement()->WorldMatrix(), m_move);
}

TEST_F(Transforming, boundPointsLieExactlyWhereBindingThemAnewWouldPutThem)
{
    TransformOperation operation(quad(), m_move);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    for (int i = 0; i < 2; ++i) {
        const CurvePoint point = net()->PointAt(i);
        const orvane::SurfacePoint anew(*quad()->CurrentLevel(), 0, point.surfacePoint.U(),
                                        point.surfacePoint.V());
        EXPECT_EQ(point.surfacePoint.Mesh(), quad()->CurrentLevel());
        EXPECT_EQ(point.surfacePoint.WorldPosition(), anew.WorldPosition());
        EXPECT_EQ(point.position, anew.WorldPosition());
    }
}

TEST_F(Transforming, everyPointOfACurveOnItMovesAlike)
{
    const QVector<CurvePoint> before = net()->Points();
    TransformOperation operation(quad(), m_move);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    ASSERT_EQ(net()->PointCount(), before.size());
    for (int i = 0; i < before.size(); ++i)
        expectNear(net()->PointAt(i).position, m_move.Transform(before[i].position, 1.0f));
    const orvane::SurfacePoint other = net()->PointAt(3).surfacePoint;
    EXPECT_EQ(other.Mesh(), triangle()->CurrentLevel());
    expectNear(other.WorldPosition(), net()->PointAt(3).position);
    EXPECT_EQ(net()->PointAt(2).surfacePoint.Mesh(), nullptr);
}

TEST_F(Transforming, aPointLiftedOffTheSurfaceStaysLifted)
{
    orvane::SurfacePoint lifted(*quad()->CurrentLevel(), 0, 0.5f, 0.5f);
    lifted.Shift({0, 0, 0.25f});
    net()->SetPoints({CurvePoint(lifted)});
    TransformOperation operation(quad(), m_move);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    expectNear(net()->PointAt(0).position, m_move.Transform({0.5f, 0.5f, 0.25f}, 1.0f));
    EXPECT_TRUE(net()->PointAt(0).surfacePoint.IsOnValidFace());
}

TEST_F(Transforming, curvesOnOtherGeometriesStay)
{
    const QVector<CurvePoint> before = loop()->Points();
    TransformOperation operation(quad(), m_move);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    for (int i = 0; i < before.size(); ++i)
        EXPECT_EQ(loop()->PointAt(i).position, before[i].position);
    EXPECT_EQ(loose()->PointAt(0).position, Vector(1, 2, 3));
}

TEST_F(Transforming, aClosedCurveStaysAThousandthOpen)
{
    TransformOperation operation(triangle(), m_move);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    const Vector first = loop()->PointAt(0).position;
    const float stretch = (loop()->PointAt(2).position - first).Length();
    const float gap = (loop()->PointAt(3).position - first).Length();
    EXPECT_NEAR(gap / stretch, 0.001f, 1e-4f);
}

TEST_F(Transforming, theEndsOfAClosedCurveStayApartFarFromTheOrigin)
{
    net()->SetPoints(
        {CurvePoint(Vector(0.25f, 0.25f, 0)), net()->PointAt(0), CurvePoint(Vector(0.25f, 1, 0))});
    net()->AppendPoint(CurvePoint(net()->ClosingPosition()));
    net()->SetClosed(true);
    TransformOperation operation(quad(), Matrix::Translation({100000, -70000, 0}));
    expectDoUndoRedo(operation, "Transform");
    EXPECT_NE(net()->PointAt(3).position, net()->PointAt(0).position);
}

TEST_F(Transforming, manyRandomMovesAreUndoneToTheBit)
{
    std::mt19937 random(testSeed());
    QVector<QByteArray> scenes{sceneBytes()};
    for (int i = 0; i < 60; ++i) {
        TransformOperation operation(i % 2 == 0 ? quad() : triangle(), randomPlacement(random));
        ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, false, false));
        scenes.append(sceneBytes());
    }
    for (int i = 59; i >= 0; --i) {
        ASSERT_TRUE(orvane::Kernel()->Undo());
        ASSERT_TRUE(sceneBytes() == scenes[i]);
    }
    for (int i = 1; i <= 60; ++i) {
        ASSERT_TRUE(orvane::Kernel()->Redo());
        ASSERT_TRUE(sceneBytes() == scenes[i]);
    }
}

TEST_F(Transforming, toWhereItStandsIsNoStep)
{
    TransformOperation operation(triangle(), triangle()->Placement()->WorldMatrix());
    expectRefused(operation);
}

TEST_F(Transforming, aMatrixWithoutInverseIsRefusedAndTheUserToldWhy)
{
    const LogCatcher logs;
    RecordingInterface interface;
    const QByteArray before = sceneBytes();
    TransformOperation operation(quad(), Matrix::Scaling({1, 0, 1}));
    EXPECT_FALSE(orvane::Kernel()->DoOperation(&operation, true, false));
    EXPECT_TRUE(sceneBytes() == before);
    EXPECT_FALSE(orvane::Kernel()->Undos().CanUndo());
    EXPECT_GE(logs.count(), 1);
    ASSERT_EQ(interface.messages.size(), 1);
    EXPECT_TRUE(interface.messages[0].text.contains(QStringLiteral("flattens")));
}

TEST_F(Transforming, placesThatAreNotFiniteAreRefused)
{
    const LogCatcher logs;
    const float endless = std::numeric_limits<float>::infinity();
    for (const Vector &scale : {Vector(endless, 1, 1), Vector(1, 1, endless)}) {
        TransformOperation operation(quad(), Matrix::Scaling(scale));
        expectRefused(operation);
    }
    auto *empty = new orvane::Geometry; // the scene's
    orvane::Kernel()->Scene()->AddGeometry(empty);
    TransformOperation ofNothing(empty, Matrix::Scaling({endless, 1, 1}));
    expectRefused(ofNothing);
    const float huge = std::numeric_limits<float>::max();
    TransformOperation tooFar(tetrahedron(),
                              Matrix::Scaling({1, huge, 1}) * Matrix::Translation({0, huge, 0}));
    expectRefused(tooFar);
}

TEST_F(Transforming, aCurveThatWouldLeaveAllBoundsKeepsTheGeometryToo)
{
    const LogCatcher logs;
    const float far = 1e30f;
    net()->AppendPoint(CurvePoint(Vector(far, far, far)));
    TransformOperation operation(quad(), Matrix::Scaling({far, far, far}));
    expectRefused(operation);
    EXPECT_GE(logs.count(), 1);
}
