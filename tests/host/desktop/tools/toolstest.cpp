// SPDX-License-Identifier: MIT
#include "tests/host/desktop/tools/toolstest.h"

#include "tests/support/scenebytes.h"
#include "tests/support/shapes.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/evenspacing.h"
#include "host/desktop/tools/scenecurves.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <cmath>

using namespace orvane;

namespace {

const double Turn = 6.283185307179586; // radians

float diagonalOf(const Mesh &mesh)
{
    AxisAlignedBoundingBox box;
    for (int v = 0; v < mesh.VertexCount(); ++v)
        box.Extend(mesh.WorldVertexPosition(v));
    return box.Diagonal();
}

float distanceTo(const QVector<Vector> &line, const Vector &place)
{
    return line.size() < 2 ? 1e9f : nearestOnLine(line, place).distance;
}

void expectOnSurface(const OrvaneCurve &curve)
{
    for (const CurvePoint &point : curve.Points()) {
        const SurfacePoint &at = point.surfacePoint;
        ASSERT_TRUE(at.IsOnValidFace()) << curve.Name().toStdString();
        const SurfacePoint anew(*at.Mesh(), at.FaceIndex(), at.U(), at.V());
        ASSERT_LE((anew.WorldPosition() - point.position).Length(), 1e-5f * diagonalOf(*at.Mesh()))
            << curve.Name().toStdString();
    }
}

void expectWellClosed(const OrvaneCurve &curve)
{
    if (!curve.Closed())
        return;
    ASSERT_GE(curve.PointCount(), 4);
    const Vector first = curve.PointAt(0).position;
    const Vector last = curve.PointAt(curve.DrawnPointCount() - 1).position;
    const float gap = (curve.Points().last().position - first).Length();
    EXPECT_GT(gap, 0.0f);
    EXPECT_LT(gap, 0.5f * (last - first).Length());
}

} // namespace

ToolsTest::ToolsTest()
{
    context.camera.SetViewportSize({1280.0, 720.0});
}

Geometry *ToolsTest::show(SubdivisionLevel *shape, const Matrix &placement)
{
    Geometry *geometry = addToScene(shape, QStringLiteral("Shape"), placement);
    AxisAlignedBoundingBox bounds;
    for (const Geometry *each : Kernel()->Scene()->Geometries()) {
        const Mesh &mesh = *each->CurrentLevel();
        for (int v = 0; v < mesh.VertexCount(); ++v)
            bounds.Extend(mesh.WorldVertexPosition(v));
    }
    context.camera.SetSceneBounds(bounds);
    context.camera.Frame(bounds);
    return geometry;
}

Tool &ToolsTest::take(const char *id)
{
    EXPECT_TRUE(box.Choose(QLatin1String(id))) << id;
    return *box.InHand();
}

QPointF ToolsTest::at(const Vector &place) const
{
    return context.camera.Project(place).pixel;
}

QVector<QPointF> ToolsTest::circle(const QPointF &center, double radius, double step)
{
    const int count = int(Turn * radius / step);
    QVector<QPointF> way;
    for (int i = 0; i <= count; ++i) {
        const double angle = Turn * i / count;
        way.append(center + QPointF(std::cos(angle), std::sin(angle)) * radius);
    }
    return way;
}

QVector<QPointF> ToolsTest::line(const QPointF &from, const QPointF &to, int events)
{
    QVector<QPointF> way;
    for (int i = 0; i <= events; ++i)
        way.append(from + (to - from) * (double(i) / events));
    return way;
}

void ToolsTest::press(const QPointF &pixel, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    box.Handle({PointerEvent::Press, pixel, button, button, modifiers});
}

void ToolsTest::moveTo(const QPointF &pixel, Qt::KeyboardModifiers modifiers)
{
    box.Handle({PointerEvent::Move, pixel, Qt::NoButton, Qt::NoButton, modifiers});
}

void ToolsTest::release(const QPointF &pixel, Qt::MouseButton button,
                        Qt::KeyboardModifiers modifiers)
{
    box.Handle({PointerEvent::Release, pixel, button, Qt::NoButton, modifiers});
}

void ToolsTest::drag(const QVector<QPointF> &way, Qt::KeyboardModifiers modifiers)
{
    press(way.first(), Qt::LeftButton, modifiers);
    for (const QPointF &pixel : way)
        moveTo(pixel, modifiers);
    release(way.last(), Qt::LeftButton, modifiers);
}

void ToolsTest::click(const QPointF &pixel, Qt::KeyboardModifiers modifiers)
{
    drag({pixel}, modifiers);
}

OrvaneCurve *ToolsTest::draw(const QVector<QPointF> &way)
{
    const QString before = box.InHand()->Description().id;
    const int count = curves().size();
    box.Choose(QStringLiteral("draw"));
    drag(way);
    box.Choose(before);
    EXPECT_EQ(curves().size(), count + 1);
    return curves().value(count);
}

QVector<OrvaneCurve *> ToolsTest::curves()
{
    return sceneCurves();
}

void ToolsTest::select(const QVector<int> &indices)
{
    const QVector<OrvaneCurve *> all = curves();
    for (int i = 0; i < all.size(); ++i)
        all[i]->SetSelected(indices.contains(i));
}

QVector<int> ToolsTest::selected()
{
    QVector<int> indices;
    const QVector<OrvaneCurve *> all = curves();
    for (int i = 0; i < all.size(); ++i) {
        if (all[i]->Selected())
            indices.append(i);
    }
    return indices;
}

int ToolsTest::stepCount()
{
    return Kernel()->Undos().StepCount();
}

void ToolsTest::expectOneStep(const std::function<void()> &gesture)
{
    const QByteArray before = sceneBytes();
    const int position = Kernel()->Undos().Position();
    gesture();
    const QByteArray after = sceneBytes();
    EXPECT_NE(before, after);
    ASSERT_EQ(Kernel()->Undos().Position(), position + 1);
    ASSERT_EQ(stepCount(), position + 1);
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(Kernel()->Undo());
        EXPECT_EQ(sceneBytes(), before);
        EXPECT_TRUE(Kernel()->Redo());
        EXPECT_EQ(sceneBytes(), after);
    }
    expectSound();
}

void ToolsTest::expectNoTrace(const std::function<void()> &gesture)
{
    const QByteArray before = sceneBytes();
    const QVector<UndoStep> steps = Kernel()->Undos().Steps();
    const int position = Kernel()->Undos().Position();
    gesture();
    EXPECT_EQ(sceneBytes(), before);
    EXPECT_EQ(stepCount(), steps.size());
    EXPECT_EQ(Kernel()->Undos().Position(), position);
    EXPECT_FALSE(box.InHand()->IsBusy());
}

// Each point against each stretch, without a grid or a box that could be wrong.
void ToolsTest::expectSound() const
{
    const QVector<OrvaneCurve *> all = curves();
    const QVector<Geometry *> geometries = Kernel()->Scene()->Geometries();
    const float size =
        geometries.isEmpty() ? 1.0f : diagonalOf(*geometries.first()->CurrentLevel());
    const float least = 1e-7f * size; // scene units: no more than rounding
    for (const OrvaneCurve *each : all) {
        expectOnSurface(*each);
        expectWellClosed(*each);
        for (const OrvaneCurve *other : all) {
            const QVector<Vector> stretches = placesOf(other->Points());
            for (int i = 0; other != each && i < each->PointCount(); ++i) {
                const Vector place = each->PointAt(i).position;
                ASSERT_GT(distanceTo(stretches, place), least)
                    << "point " << i << " of " << each->Name().toStdString() << " lies on "
                    << other->Name().toStdString();
            }
        }
    }
}

void ToolsTest::expectEven(const OrvaneCurve &curve) const
{
    EXPECT_LE(unevenness(shapeOf(curve)), 0.1f) << curve.PointCount() << " points";
}
