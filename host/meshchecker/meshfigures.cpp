// SPDX-License-Identifier: MIT
#include "host/meshchecker/meshfigures.h"

#include "host/meshchecker/meshshape.h"

#include <orvane/geometry/mesh.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace orvane {

namespace {

const int QuadCorners = 4;
const int InnerValence = 4;    // edges at an inner vertex of a regular grid
const int BoundaryValence = 3; // and at one of its boundary, at most: a corner has two

// Vertices that edges join, found by root.
class JoinedVertices
{
public:
    explicit JoinedVertices(int vertices) : m_parent(vertices)
    {
        std::iota(m_parent.begin(), m_parent.end(), 0);
    }

    void join(int a, int b)
    {
        a = root(a);
        b = root(b);
        m_parent[std::max(a, b)] = std::min(a, b);
    }
    bool isRoot(int vertex) const { return m_parent[vertex] == vertex; }

private:
    int root(int vertex)
    {
        while (m_parent[vertex] != vertex) {
            m_parent[vertex] = m_parent[m_parent[vertex]];
            vertex = m_parent[vertex];
        }
        return vertex;
    }

    QVector<int> m_parent; // by vertex: a lower one of the same part, itself at the root
};

struct Place
{
    explicit Place(const Vector &v) : x(double(v.x)), y(double(v.y)), z(double(v.z)) {}
    Place(double ax, double ay, double az) : x(ax), y(ay), z(az) {}
    Place operator-(const Place &other) const { return {x - other.x, y - other.y, z - other.z}; }
    double length() const { return std::sqrt(x * x + y * y + z * z); }

    double x;
    double y;
    double z;
};

Place cross(const Place &a, const Place &b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

QVector<bool> usedVertices(const MeshShape &shape)
{
    QVector<bool> used(shape.mesh.VertexCount(), false);
    for (int vertex : shape.boundaries.corners)
        used[vertex] = true;
    return used;
}

void countPolygons(const MeshShape &shape, MeshFigures &figures)
{
    QVector<int> &counts = figures.polygonsByCorners;
    figures.polygons = shape.boundaries.Count();
    for (int p = 0; p < figures.polygons; ++p) {
        const int corners = shape.boundaries.CornerCount(p);
        if (corners >= counts.size())
            counts.resize(corners + 1);
        ++counts[corners];
    }
}

void countVertices(const MeshShape &shape, MeshFigures &figures)
{
    const QVector<bool> used = usedVertices(shape);
    JoinedVertices parts(used.size());
    JoinedVertices boundary(used.size());
    for (const MeshEdge &edge : shape.edges) {
        parts.join(edge.a, edge.b);
        if (edge.polygons != 1)
            continue;
        ++figures.openEdges;
        boundary.join(edge.a, edge.b);
    }
    const bool areQuads =
        figures.polygons > 0 && figures.polygonsByCorners.value(QuadCorners) == figures.polygons;
    for (int v = 0; v < used.size(); ++v) {
        const bool isOpen = shape.boundaryEdgesAt[v] > 0;
        const bool isIrregular =
            isOpen ? shape.edgesAt[v] > BoundaryValence : shape.edgesAt[v] != InnerValence;
        figures.unusedVertices += !used[v];
        figures.parts += used[v] && parts.isRoot(v);
        figures.boundaryLoops += isOpen && boundary.isRoot(v);
        figures.irregularVertices += areQuads && used[v] && isIrregular;
    }
}

void measureEdges(const MeshShape &shape, MeshFigures &figures)
{
    double sum = 0.0;
    int measured = 0;
    for (const MeshEdge &edge : shape.edges) {
        const double length = (Place(shape.mesh.WorldVertexPosition(edge.a))
                               - Place(shape.mesh.WorldVertexPosition(edge.b)))
                                  .length();
        if (!std::isfinite(length))
            continue;
        const bool isFirst = measured++ == 0;
        figures.shortestEdge = isFirst ? length : std::min(figures.shortestEdge, length);
        figures.longestEdge = std::max(figures.longestEdge, length);
        sum += length;
    }
    figures.meanEdge = measured > 0 ? sum / measured : 0.0;
}

double areaOf(const Mesh &mesh)
{
    double area = 0.0;
    for (int face = 0; face < mesh.FaceCount(); ++face) {
        const auto corner = [&mesh, face](int i) {
            return Place(mesh.WorldVertexPosition(mesh.VertexIndex(face, i)));
        };
        const Place first = corner(0);
        for (int i = 2; i < mesh.CornersPerFace(); ++i) {
            const double doubled = cross(corner(i - 1) - first, corner(i) - first).length();
            area += std::isfinite(doubled) ? doubled / 2 : 0.0;
        }
    }
    return area;
}

} // namespace

QStringList MeshFigures::FaultTexts() const
{
    QStringList texts;
    for (const MeshFault &fault : faults)
        texts.append(fault.Text());
    return texts;
}

MeshFigures figuresOf(const Mesh *mesh)
{
    MeshFigures figures;
    if (!mesh)
        return figures;
    const MeshShape shape(*mesh);
    figures.vertices = mesh->VertexCount();
    figures.edges = shape.edges.size();
    countPolygons(shape, figures);
    countVertices(shape, figures);
    measureEdges(shape, figures);
    figures.area = areaOf(*mesh);
    figures.faults = MeshChecker().Find(mesh);
    return figures;
}

} // namespace orvane
