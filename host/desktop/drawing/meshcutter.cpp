// SPDX-License-Identifier: MIT
#include "host/desktop/drawing/meshcutter.h"

#include <orvane/geometry/mesh.h>

#include <QHash>

#include <utility>

namespace orvane {

namespace {

// Where the line crosses an edge, and the up to two stretches that meet there.
struct Crossing
{
    SurfacePoint point;
    QVector<int> stretches;
};

struct Stretch
{
    int crossing[2];
    bool walked = false;
};

quint64 edgeKey(int a, int b)
{
    return quint64(quint32(qMin(a, b))) << 32 | quint32(qMax(a, b));
}

SurfacePoint pointOfWeights(const Mesh &mesh, int face, const double (&weight)[4])
{
    const double *w = weight;
    if (!mesh.IsQuads())
        return {mesh, face, float(w[1]), float(w[2])};
    // See SurfacePoint: one of w[1] and w[3] is zero.
    return {mesh, face, float(w[1] + w[2]), float(w[2] + w[3])};
}

} // namespace

// Finds the stretches of one cut and chains them.
class MeshCutter::Tracer
{
public:
    Tracer(const MeshCutter &cutter, const Plane &plane) : m_cutter(cutter)
    {
        m_heights.reserve(cutter.m_places.size());
        for (const Vector &place : cutter.m_places)
            m_heights.append(height(place, plane));
    }

    QVector<SectionLine> lines()
    {
        for (const Triangle &triangle : m_cutter.m_triangles)
            addStretch(triangle);
        // A line that has ends must begin at one.
        for (int i = 0; i < m_crossings.size(); ++i) {
            if (m_crossings[i].stretches.size() % 2 == 1)
                traceFrom(i);
        }
        for (int i = 0; i < m_crossings.size(); ++i)
            traceFrom(i);
        return m_lines;
    }

private:
    static double height(const Vector &place, const Plane &plane)
    {
        const auto part = [](float a, float b, float along) {
            return (double(a) - double(b)) * double(along);
        };
        return part(place.x, plane.point.x, plane.normal.x)
               + part(place.y, plane.point.y, plane.normal.y)
               + part(place.z, plane.point.z, plane.normal.z);
    }

    bool isAbove(int vertex) const { return m_heights[vertex] >= 0.0; }

    void addStretch(const Triangle &triangle)
    {
        int ends[2];
        int count = 0;
        for (int i = 0; i < 3; ++i) {
            const int j = (i + 1) % 3;
            if (isAbove(triangle.vertex[i]) != isAbove(triangle.vertex[j]))
                ends[count++] = crossingOf(triangle, i, j);
        }
        // The sides of a face that names a vertex twice may be one edge.
        if (count < 2 || ends[0] == ends[1])
            return;
        for (int end : ends)
            m_crossings[end].stretches.append(m_stretches.size());
        m_stretches.append(Stretch{{ends[0], ends[1]}});
    }

    int crossingOf(const Triangle &triangle, int i, int j)
    {
        const quint64 key = edgeKey(triangle.vertex[i], triangle.vertex[j]);
        const int known = m_crossingOfEdge.value(key, -1);
        if (known >= 0)
            return known;
        const double a = m_heights[triangle.vertex[i]];
        const double b = m_heights[triangle.vertex[j]];
        double weight[4] = {};
        weight[triangle.corner[i]] = b / (b - a);
        weight[triangle.corner[j]] = a / (a - b);
        m_crossings.append({pointOfWeights(m_cutter.m_mesh, triangle.face, weight), {}});
        m_crossingOfEdge.insert(key, m_crossings.size() - 1);
        return m_crossings.size() - 1;
    }

    int unwalkedAt(int crossing) const
    {
        for (int stretch : m_crossings[crossing].stretches) {
            if (!m_stretches[stretch].walked)
                return stretch;
        }
        return -1;
    }

    void traceFrom(int start)
    {
        while (unwalkedAt(start) >= 0) {
            SectionLine line;
            line.points.append(m_crossings[start].point);
            int at = start;
            for (int next = unwalkedAt(at); next >= 0; next = unwalkedAt(at)) {
                Stretch &stretch = m_stretches[next];
                stretch.walked = true;
                at = stretch.crossing[0] == at ? stretch.crossing[1] : stretch.crossing[0];
                append(&line, m_crossings[at].point);
            }
            line.closed = at == start;
            if (line.points.size() > 1)
                m_lines.append(line);
        }
    }

    // All edges of a vertex in the plane are crossed at the vertex: the stretches between have no
    // length.
    static void append(SectionLine *line, const SurfacePoint &point)
    {
        if (point.WorldPosition() != line->points.last().WorldPosition())
            line->points.append(point);
    }

    const MeshCutter &m_cutter;
    QVector<double> m_heights; // by vertex, above the plane, times the normal's length
    QVector<Crossing> m_crossings;
    QVector<Stretch> m_stretches;
    QHash<quint64, int> m_crossingOfEdge;
    QVector<SectionLine> m_lines;
};

QVector<Vector> placesOf(const SectionLine &line)
{
    QVector<Vector> places;
    places.reserve(line.points.size());
    for (const SurfacePoint &point : line.points)
        places.append(point.WorldPosition());
    return places;
}

MeshCutter::MeshCutter(const Mesh &mesh) : m_mesh(mesh)
{
    for (int v = 0; v < mesh.VertexCount(); ++v)
        m_places.append(mesh.WorldVertexPosition(v));
    for (int face = 0; face < mesh.FaceCount(); ++face) {
        for (int corner = 2; corner < mesh.CornersPerFace(); ++corner) {
            const auto vertex = [&](int c) {
                return mesh.VertexIndex(face, c);
            };
            m_triangles.append(
                {face, {0, corner - 1, corner}, {vertex(0), vertex(corner - 1), vertex(corner)}});
        }
    }
}

QVector<SectionLine> MeshCutter::Cut(const Plane &plane) const
{
    if (!plane.point.IsFinite() || !plane.normal.IsFinite() || plane.normal == Vector())
        return {};
    return Tracer(*this, plane).lines();
}

} // namespace orvane
