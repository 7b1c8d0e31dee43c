// SPDX-License-Identifier: MIT
#include <orvane/geometry/polygons.h>

#include <orvane/geometry/topology.h>

#include <algorithm>

namespace orvane {

namespace {

void appendCorner(PolygonList &list, const Topology &topology, int face, int corner)
{
    list.corners.append(topology.VertexIndex(face, corner));
    if (topology.HasUVs())
        list.uvCorners.append(topology.UVIndex(face, corner));
}

} // namespace

PolygonList polygonsOf(const Topology &topology)
{
    PolygonList list;
    list.corners.reserve(topology.Corners().size());
    for (int face = 0; face < topology.FaceCount(); ++face) {
        if (topology.IsFakeTriangle(face)) {
            appendCorner(list, topology, face, 2);
            continue;
        }
        list.firstFace.append(face);
        list.firstCorner.append(list.corners.size());
        for (int corner = 0; corner < topology.CornersPerFace(); ++corner)
            appendCorner(list, topology, face, corner);
    }
    list.firstCorner.append(list.corners.size());
    return list;
}

QVector<MeshEdge> edgesOf(const PolygonList &polygons, int vertexCount)
{
    // Sides are gathered by their lower vertex, so that only the few of one vertex need sorting.
    QVector<int> start(vertexCount + 1, 0);
    const auto forEachSide = [&polygons, vertexCount](auto visit) {
        for (int p = 0; p < polygons.Count(); ++p) {
            const int *corner = polygons.Corners(p);
            const int count = polygons.CornerCount(p);
            for (int i = 0; i < count; ++i) {
                const int v = corner[i];
                const int w = corner[i + 1 == count ? 0 : i + 1];
                if (v != w && std::max(v, w) < vertexCount)
                    visit(std::min(v, w), std::max(v, w));
            }
        }
    };
    forEachSide([&start](int a, int) { ++start[a + 1]; });
    for (int v = 0; v < vertexCount; ++v)
        start[v + 1] += start[v];
    QVector<int> upper(start[vertexCount]);
    QVector<int> next = start;
    forEachSide([&](int a, int b) { upper[next[a]++] = b; });

    QVector<MeshEdge> edges;
    edges.reserve(upper.size() / 2);
    for (int a = 0; a < vertexCount; ++a) {
        std::sort(upper.begin() + start[a], upper.begin() + start[a + 1]);
        for (int i = start[a]; i < start[a + 1]; ++i) {
            if (i > start[a] && upper[i] == upper[i - 1])
                ++edges.last().polygons;
            else
                edges.append({a, upper[i], 1});
        }
    }
    return edges;
}

} // namespace orvane
