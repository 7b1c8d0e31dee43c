// SPDX-License-Identifier: MIT
#include "host/meshchecker/meshshape.h"

#include <orvane/geometry/mesh.h>
#include <orvane/math/axisalignedboundingbox.h>

#include <cmath>

namespace orvane {

namespace {

const double ZeroLengthFraction = 1e-6; // of the diagonal

// Corners from first on, where consecutive ones differ: do only two vertices alternate?
bool alternates(const QVector<int> &corners, int first)
{
    for (int i = first + 2; i < corners.size(); ++i) {
        if (corners[i] != corners[i - 2])
            return false;
    }
    return true;
}

void appendBoundary(QVector<int> &corners, const PolygonList &polygons, int polygon,
                    int vertexCount)
{
    const int first = corners.size();
    const int *corner = polygons.Corners(polygon);
    for (int i = 0; i < polygons.CornerCount(polygon); ++i) {
        // A mesh that lost vertices after its faces were set may still point beyond the end.
        const bool exists = corner[i] >= 0 && corner[i] < vertexCount;
        const bool repeated = corners.size() > first && corners.last() == corner[i];
        if (exists && !repeated)
            corners.append(corner[i]);
    }
    while (corners.size() > first + 1 && corners.last() == corners[first])
        corners.removeLast();
    if (corners.size() > first + 2 && alternates(corners, first))
        corners.resize(first + 2);
}

// Is the polygon its own boundary, as nearly all are?
bool isBoundary(const PolygonList &polygons, int polygon, int vertexCount)
{
    const int *corner = polygons.Corners(polygon);
    const int count = polygons.CornerCount(polygon);
    bool alternating = true;
    for (int i = 0; i < count; ++i) {
        if (corner[i] < 0 || corner[i] >= vertexCount
            || corner[i] == corner[i == 0 ? count - 1 : i - 1])
            return false;
        alternating = alternating && (i < 2 || corner[i] == corner[i - 2]);
    }
    return count < 3 || !alternating;
}

PolygonList boundariesOf(const PolygonList &polygons, int vertexCount)
{
    PolygonList boundaries = polygons;
    boundaries.uvCorners.clear();
    int clean = 0;
    while (clean < polygons.Count() && isBoundary(polygons, clean, vertexCount))
        ++clean;
    if (clean == polygons.Count())
        return boundaries; // shares its lists with the polygons
    boundaries.firstCorner.clear();
    boundaries.corners.clear();
    boundaries.firstCorner.reserve(polygons.firstCorner.size());
    boundaries.corners.reserve(polygons.corners.size());
    for (int p = 0; p < polygons.Count(); ++p) {
        boundaries.firstCorner.append(boundaries.corners.size());
        appendBoundary(boundaries.corners, polygons, p, vertexCount);
    }
    boundaries.firstCorner.append(boundaries.corners.size());
    return boundaries;
}

// Of the vertices that faces use: a stray one far away must not make every edge look short.
double diagonalOf(const PolygonList &boundaries, const Mesh &mesh)
{
    QVector<char> used(mesh.VertexCount(), 0);
    char *isUsed = used.data();
    for (int vertex : boundaries.corners)
        isUsed[vertex] = 1;
    AxisAlignedBoundingBox box;
    for (int v = 0; v < used.size(); ++v) {
        const Vector position = mesh.VertexPosition(v);
        if (isUsed[v] && position.IsFinite())
            box.Extend(position);
    }
    if (box.IsEmpty())
        return 0.0;
    const double x = double(box.maximum.x) - box.minimum.x;
    const double y = double(box.maximum.y) - box.minimum.y;
    const double z = double(box.maximum.z) - box.minimum.z;
    return std::sqrt(x * x + y * y + z * z);
}

} // namespace

MeshShape::MeshShape(const Mesh &source)
    : mesh(source),
      polygons(source.IsUpdated() ? source.Polygons() : polygonsOf(source)),
      boundaries(boundariesOf(polygons, source.VertexCount())),
      edges(source.IsUpdated() && boundaries.corners.constData() == polygons.corners.constData()
                ? source.Edges()
                : edgesOf(boundaries, source.VertexCount())),
      edgesAt(source.VertexCount(), 0),
      boundaryEdgesAt(source.VertexCount(), 0),
      zeroLength(ZeroLengthFraction * diagonalOf(boundaries, source))
{
    int *all = edgesAt.data();
    int *open = boundaryEdgesAt.data();
    for (const MeshEdge &edge : qAsConst(edges)) {
        const int boundary = edge.polygons == 1 ? 1 : 0;
        ++all[edge.a];
        ++all[edge.b];
        open[edge.a] += boundary;
        open[edge.b] += boundary;
    }
}

} // namespace orvane
