// SPDX-License-Identifier: MIT
#include "tests/host/operations/samplescene.h"

#include "tests/support/scenebytes.h"
#include "tests/support/shapes.h"

#include <orvane/base/operation.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

using orvane::CurvePoint;
using orvane::Geometry;
using orvane::OrvaneCurve;
using orvane::SurfacePoint;

namespace {

OrvaneCurve *addCurve(const QString &name, const QVector<CurvePoint> &points)
{
    auto *curve = new OrvaneCurve; // the scene's
    curve->SetName(name);
    curve->SetPoints(points);
    orvane::Kernel()->Scene()->AddCurve(curve);
    return curve;
}

template <typename T>
T *nodeAt(int index)
{
    return dynamic_cast<T *>(orvane::Kernel()->Scene()->NodeAt(index));
}

} // namespace

SampleScene::SampleScene()
{
    fill();
}

void SampleScene::fill()
{
    ASSERT_TRUE(orvane::Kernel()->NewScene());
    orvane::Scene *scene = orvane::Kernel()->Scene();
    Geometry *quad = addToScene(singleQuad(), QStringLiteral("Quad"));
    const orvane::SubdivisionLevel &square = *quad->CurrentLevel();
    OrvaneCurve *net =
        addCurve(QStringLiteral("Net"), {CurvePoint(SurfacePoint(square, 0, 0.1f, 0.2f)),
                                         CurvePoint(SurfacePoint(square, 0, 0.7f, 0.4f)),
                                         CurvePoint(orvane::Vector(2.5f, 0.5f, 0.125f))});
    Geometry *triangle = addToScene(singleTriangle(2.0f), QStringLiteral("Triangle"),
                                    orvane::Matrix::Rotation({1, 2, 3}, 0.7f)
                                        * orvane::Matrix::Translation({3, 0, 1}));
    const orvane::SubdivisionLevel &slope = *triangle->CurrentLevel();
    net->AppendPoint(CurvePoint(SurfacePoint(slope, 0, 0.3f, 0.3f)));
    OrvaneCurve *loop =
        addCurve(QStringLiteral("Loop"), {CurvePoint(SurfacePoint(slope, 0, 0.1f, 0.1f)),
                                          CurvePoint(SurfacePoint(slope, 0, 0.6f, 0.1f)),
                                          CurvePoint(SurfacePoint(slope, 0, 0.1f, 0.6f))});
    loop->AppendPoint(CurvePoint(loop->ClosingPosition()));
    loop->SetClosed(true);
    loop->SetSelected(true);
    Geometry *tetrahedron = addToScene(::tetrahedron(), QStringLiteral("Tetrahedron"));
    tetrahedron->SetHidden(true);
    addCurve(QStringLiteral("Loose"), {CurvePoint(orvane::Vector(1, 2, 3))})->SetHidden(true);
    quad->SetSelected(true);
    for (Geometry *geometry : {quad, tetrahedron, triangle})
        scene->SetActiveGeometry(geometry);
    scene->SetDrawingSurface(triangle);
    sceneBytes(); // every node has its number from now on
}

Geometry *SampleScene::quad()
{
    return nodeAt<Geometry>(0);
}

Geometry *SampleScene::triangle()
{
    return nodeAt<Geometry>(2);
}

Geometry *SampleScene::tetrahedron()
{
    return nodeAt<Geometry>(4);
}

OrvaneCurve *SampleScene::net()
{
    return nodeAt<OrvaneCurve>(1);
}

OrvaneCurve *SampleScene::loop()
{
    return nodeAt<OrvaneCurve>(3);
}

OrvaneCurve *SampleScene::loose()
{
    return nodeAt<OrvaneCurve>(5);
}

void SampleScene::expectDoUndoRedo(orvane::Operation &operation, const char *text)
{
    class orvane::Kernel &kernel = *orvane::Kernel();
    const QByteArray before = sceneBytes();
    ASSERT_TRUE(kernel.DoOperation(&operation, true, false));
    const QByteArray after = sceneBytes();
    EXPECT_TRUE(before != after);
    EXPECT_EQ(kernel.Undos().UndoText(), QString::fromUtf8(text));
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(kernel.Undo());
        EXPECT_TRUE(sceneBytes() == before);
        ASSERT_TRUE(kernel.Redo());
        EXPECT_TRUE(sceneBytes() == after);
    }
}

void SampleScene::expectRefused(orvane::Operation &operation)
{
    class orvane::Kernel &kernel = *orvane::Kernel();
    const QByteArray before = sceneBytes();
    const int steps = kernel.Undos().StepCount();
    EXPECT_FALSE(kernel.DoOperation(&operation, false, false));
    EXPECT_TRUE(sceneBytes() == before);
    EXPECT_EQ(kernel.Undos().StepCount(), steps);
}
