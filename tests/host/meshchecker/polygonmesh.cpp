// SPDX-License-Identifier: MIT
#include "tests/host/meshchecker/polygonmesh.h"

#include "host/meshchecker/meshchecker.h"

#include <QStringList>

#include <cmath>

using orvane::MeshFault;
using orvane::SubdivisionLevel;
using orvane::Vector;

namespace {

int triangleCount(const QVector<QVector<int>> &polygons)
{
    int count = 0;
    for (const QVector<int> &polygon : polygons)
        count += polygon.size() - 2;
    return count;
}

MeshFault onePlace(int bit)
{
    MeshFault fault;
    fault.bit = bit;
    return fault;
}

} // namespace

MeshPointer polygonMesh(const QVector<Vector> &positions, const QVector<QVector<int>> &polygons)
{
    MeshPointer mesh(new SubdivisionLevel(orvane::Topology::Triangles));
    mesh->SetVertexCount(positions.size());
    for (int v = 0; v < positions.size(); ++v)
        mesh->SetVertexPosition(v, positions[v]);
    mesh->SetFaceCount(triangleCount(polygons));
    int face = 0;
    for (const QVector<int> &polygon : polygons) {
        for (int i = 2; i < polygon.size(); ++i, ++face) {
            mesh->SetTriangleIndex(face, 0, polygon[0]);
            mesh->SetTriangleIndex(face, 1, polygon[i - 1]);
            mesh->SetTriangleIndex(face, 2, polygon[i]);
            if (i > 2)
                mesh->SetFakeTriangle(face, true);
        }
    }
    return mesh;
}

MeshPointer wheel(int n)
{
    QVector<Vector> positions{{0, 0, 0}};
    QVector<QVector<int>> triangles;
    for (int i = 0; i < n; ++i) {
        const double angle = 2.0 * M_PI * i / n;
        positions.append({float(std::cos(angle)), float(std::sin(angle)), 0});
        triangles.append({0, 1 + i, 1 + (i + 1) % n});
    }
    return polygonMesh(positions, triangles);
}

QStringList placesOf(int bit, const orvane::Mesh &mesh)
{
    QStringList places;
    const QVector<MeshFault> found = orvane::MeshChecker().Find(&mesh);
    for (const MeshFault &fault : found) {
        if (fault.bit != bit)
            continue;
        MeshFault one = onePlace(bit);
        for (int vertex : fault.vertices) {
            one.vertices = {vertex};
            places.append(one.FirstPlace());
        }
        for (const orvane::MeshEdge &edge : fault.edges) {
            one.edges = {edge};
            places.append(one.FirstPlace());
        }
        for (const orvane::FaultyPolygon &polygon : fault.polygons) {
            one.polygons = {polygon};
            places.append(one.FirstPlace());
        }
    }
    return places;
}
