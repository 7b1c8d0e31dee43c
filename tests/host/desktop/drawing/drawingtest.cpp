// SPDX-License-Identifier: MIT
#include "tests/host/desktop/drawing/drawingtest.h"

#include "tests/support/shapes.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/evenspacing.h"
#include "host/desktop/drawing/meshcutter.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <cmath>

using namespace orvane;

namespace {

const float Pi = 3.14159265f;
const float LocalSlack = 1e-5f; // of a local position

struct Place
{
    double x, y, z;
};

Place crossing(const Vector &a, const Vector &b, double ha, double hb)
{
    const double t = ha / (ha - hb);
    return {double(a.x) + t * double(b.x - a.x), double(a.y) + t * double(b.y - a.y),
            double(a.z) + t * double(b.z - a.z)};
}

// What one triangle gives to the cut, found without knowing of others: the part of the triangle
// in the plane, when a corner is below it and another is not.
double cutLength(const Vector (&corner)[3], const Plane &plane)
{
    QVector<Place> ends;
    for (int i = 0; i < 3; ++i) {
        const Vector &a = corner[i];
        const Vector &b = corner[(i + 1) % 3];
        const double ha = heightOf(a, plane);
        const double hb = heightOf(b, plane);
        if ((ha < 0) != (hb < 0))
            ends.append(crossing(a, b, ha, hb));
    }
    if (ends.size() != 2)
        return 0.0;
    return std::hypot(std::hypot(ends[1].x - ends[0].x, ends[1].y - ends[0].y),
                      ends[1].z - ends[0].z);
}

} // namespace

double heightOf(const Vector &v, const Plane &plane)
{
    return (double(v.x) - double(plane.point.x)) * double(plane.normal.x)
           + (double(v.y) - double(plane.point.y)) * double(plane.normal.y)
           + (double(v.z) - double(plane.point.z)) * double(plane.normal.z);
}

double lengthByEveryFace(const Mesh &mesh, const Plane &plane)
{
    double sum = 0.0;
    for (int face = 0; face < mesh.FaceCount(); ++face) {
        const auto at = [&](int i) {
            return mesh.WorldVertexPosition(mesh.VertexIndex(face, i));
        };
        for (int i = 2; i < mesh.CornersPerFace(); ++i)
            sum += cutLength({at(0), at(i - 1), at(i)}, plane);
    }
    return sum;
}

double lengthOfAll(const QVector<SectionLine> &lines)
{
    double sum = 0.0;
    for (const SectionLine &line : lines)
        sum += lengthOf(placesOf(line));
    return sum;
}

SubdivisionLevel *torus(float large, float small, int segments, int rings)
{
    QVector<Vector> positions;
    QVector<int> corners;
    for (int i = 0; i < segments; ++i) {
        const float round = 2 * Pi * float(i) / float(segments);
        for (int k = 0; k < rings; ++k) {
            const float turn = 2 * Pi * float(k) / float(rings);
            const float out = large + small * std::cos(turn);
            positions.append(
                Vector(out * std::cos(round), out * std::sin(round), small * std::sin(turn)));
            const int j = (i + 1) % segments * rings;
            const int next = (k + 1) % rings;
            corners << i * rings + k << j + k << j + next << i * rings + next;
        }
    }
    return meshOf(Topology::Quads, positions, corners);
}

SubdivisionLevel *floorAndWall(int side)
{
    QVector<Vector> positions;
    QVector<int> corners;
    for (int i = -side; i <= side; ++i) {
        for (int k = 0; k <= side; ++k)
            positions.append(Vector(float(qMax(0, i)), float(k), float(qMax(0, -i))));
    }
    for (int i = 0; i < 2 * side; ++i) {
        for (int k = 0; k < side; ++k) {
            const int v = i * (side + 1) + k;
            corners << v << v + side + 1 << v + side + 2 << v + 1;
        }
    }
    return meshOf(Topology::Quads, positions, corners);
}

void DrawingTest::drawOn(SubdivisionLevel *shape, const Matrix &placement)
{
    drawOn(*addToScene(shape, QStringLiteral("Shape"), placement)->CurrentLevel());
}

void DrawingTest::drawOn(const Mesh &mesh)
{
    m_mesh = &mesh;
    m_surface.reset(new SurfaceLocator(mesh));
    m_box = AxisAlignedBoundingBox();
    for (int v = 0; v < mesh.VertexCount(); ++v)
        m_box.Extend(mesh.WorldVertexPosition(v));
}

SurfacePoint DrawingTest::hit(const Vector &near) const
{
    return onSurface(*m_surface, near).surfacePoint;
}

CurveShape DrawingTest::line(const QVector<Vector> &near) const
{
    CurveShape shape;
    for (const Vector &place : near)
        shape.points.append(onSurface(*m_surface, place));
    return shape;
}

CurveShape DrawingTest::line(const Vector &from, const Vector &to, int points) const
{
    QVector<Vector> places;
    for (int i = 0; i < points; ++i)
        places.append(from + (to - from) * (float(i) / float(points - 1)));
    return line(places);
}

CurveShape DrawingTest::ring(float radius, float height, int points) const
{
    QVector<Vector> places;
    for (int i = 0; i < points; ++i) {
        const float angle = 2 * Pi * float(i) / float(points);
        places.append(Vector(radius * std::cos(angle), radius * std::sin(angle), height));
    }
    return closedThrough(line(places).points, *m_surface);
}

void DrawingTest::expectOnSurface(const CurveShape &shape) const
{
    for (const CurvePoint &point : shape.points) {
        const SurfacePoint &at = point.surfacePoint;
        ASSERT_EQ(at.Mesh(), m_mesh);
        ASSERT_TRUE(at.IsOnValidFace());
        const float high = m_mesh->IsQuads() ? std::max(at.U(), at.V()) : at.U() + at.V();
        EXPECT_GE(std::min(at.U(), at.V()), -LocalSlack);
        EXPECT_LE(high, 1.0f + LocalSlack);
        const SurfacePoint anew(*m_mesh, at.FaceIndex(), at.U(), at.V());
        EXPECT_LE((anew.WorldPosition() - point.position).Length(), 1e-5f * diagonal());
    }
}

void DrawingTest::expectEven(const CurveShape &shape, float tolerance) const
{
    EXPECT_LE(unevenness(shape), tolerance) << shape.points.size() << " points";
}

void DrawingTest::expectWellClosed(const CurveShape &shape) const
{
    if (!shape.closed)
        return;
    ASSERT_GE(shape.points.size(), 4);
    const Vector first = shape.points.first().position;
    const Vector last = drawnPoints(shape).last().position;
    const float gap = (shape.points.last().position - first).Length();
    EXPECT_GT(gap, 0.0f);
    EXPECT_LT(gap, 0.5f * (last - first).Length());
}
