// SPDX-License-Identifier: MIT
#include <orvane/geometry/polygons.h>

#include <orvane/geometry/topology.h>

#include <algorithm>
#include <numeric>

namespace orvane {

namespace {

// Every face is a polygon of its own: the corners are shared with the mesh.
PolygonList facesAsPolygons(const Topology &topology)
{
    const int faceCount = topology.FaceCount();
    PolygonList list;
    list.corners = topology.Corners();
    list.uvCorners = topology.UVCorners();
    list.firstFace.resize(faceCount);
    list.firstCorner.resize(faceCount + 1);
    int *firstFace = list.firstFace.data();
    int *firstCorner = list.firstCorner.data();
    std::iota(firstFace, firstFace + faceCount, 0);
    for (int face = 0; face <= faceCount; ++face)
        firstCorner[face] = face * topology.CornersPerFace();
    return list;
}

} // namespace

PolygonList polygonsOf(const Topology &topology)
{
    if (!topology.HasFakeTriangles())
        return facesAsPolygons(topology);
    PolygonList list;
    const QVector<int> &corners = topology.Corners();
    const int perFace = topology.CornersPerFace();
    const int faceCount = topology.FaceCount();
    int fakes = 0;
    for (int face = 0; face < faceCount; ++face)
        fakes += topology.IsFakeTriangle(face) ? 1 : 0;
    list.corners.reserve(corners.size() - 2 * fakes);
    list.firstFace.reserve(faceCount - fakes);
    list.firstCorner.reserve(faceCount - fakes + 1);
    for (int face = 0; face < faceCount; ++face) {
        const bool fake = topology.IsFakeTriangle(face);
        if (!fake) {
            list.firstFace.append(face);
            list.firstCorner.append(list.corners.size());
        }
        for (int corner = fake ? 2 : 0; corner < perFace; ++corner) {
            list.corners.append(corners[face * perFace + corner]);
            if (topology.HasUVs())
                list.uvCorners.append(topology.UVIndex(face, corner));
        }
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
    int *count = start.data() + 1;
    forEachSide([count](int a, int) { ++count[a]; });
    for (int v = 0; v < vertexCount; ++v)
        start[v + 1] += start[v];
    QVector<int> upper(start[vertexCount]);
    QVector<int> next = start;
    int *place = next.data();
    int *sides = upper.data();
    forEachSide([place, sides](int a, int b) { sides[place[a]++] = b; });

    int edgeCount = 0;
    for (int a = 0; a < vertexCount; ++a) {
        int *begin = sides + start.at(a);
        int *end = sides + start.at(a + 1);
        std::sort(begin, end);
        for (const int *side = begin; side != end; ++side)
            edgeCount += side == begin || *side != side[-1];
    }
    QVector<MeshEdge> edges(edgeCount);
    MeshEdge *edge = edges.data();
    for (int a = 0; a < vertexCount; ++a) {
        const int *end = sides + start.at(a + 1);
        for (const int *side = sides + start.at(a); side != end; ++edge) {
            *edge = {a, *side, 0};
            for (; side != end && *side == edge->b; ++side)
                ++edge->polygons;
        }
    }
    return edges;
}

} // namespace orvane
