// SPDX-License-Identifier: MIT
#include "host/desktop/view/meshdrawdata.h"

#include "host/meshchecker/meshchecker.h"

#include <orvane/geometry/mesh.h>

#include <algorithm>
#include <cstring>

namespace orvane {

namespace {

// A mesh that writes to an array it shares gets a new one, so an array that we hold has kept its
// content as long as the mesh's is at the same place.
template <typename T>
bool isSameArray(const QVector<T> &ours, const QVector<T> &theirs)
{
    return ours.constData() == theirs.constData() && ours.size() == theirs.size();
}

// A normal that is not a number equals itself here, or it would be uploaded for ever.
bool isSameBits(const Vector &a, const Vector &b)
{
    return std::memcmp(&a, &b, sizeof(Vector)) == 0;
}

bool areVertices(const int *corners, int count, int vertexCount)
{
    return std::all_of(corners, corners + count,
                       [vertexCount](int v) { return v >= 0 && v < vertexCount; });
}

void appendFan(QVector<int> &triangles, const int *corners, int count)
{
    for (int i = 2; i < count; ++i)
        triangles << corners[0] << corners[i - 1] << corners[i];
}

QVector<int> trianglesOf(const Mesh &mesh)
{
    const QVector<int> &corners = mesh.Corners();
    const int perFace = mesh.CornersPerFace();
    // Fake triangles are stored as the fan they stand for: nothing to be done, and nothing copied.
    if (perFace == 3 && areVertices(corners.constData(), corners.size(), mesh.VertexCount()))
        return corners;
    QVector<int> triangles;
    triangles.reserve(mesh.FaceCount() * (perFace - 2) * 3);
    for (int face = 0; face < mesh.FaceCount(); ++face) {
        const int *corner = corners.constData() + face * perFace;
        if (areVertices(corner, perFace, mesh.VertexCount()))
            appendFan(triangles, corner, perFace);
    }
    return triangles;
}

// Newell's method, from the first corner, so that a polygon far from the origin keeps its digits.
Vector polygonNormal(const QVector<Vector> &positions, const int *corners, int count)
{
    const Vector first = positions[corners[0]];
    Vector area;
    for (int i = 2; i < count; ++i)
        area += (positions[corners[i - 1]] - first) & (positions[corners[i]] - first);
    return area.Normalize();
}

// visit(polygon, corners, their count) for each polygon of which the mesh has all vertices.
template <typename Visit>
void forEachPolygon(const Mesh &mesh, const PolygonList &polygons, Visit visit)
{
    for (int p = 0; p < polygons.Count(); ++p) {
        const int *corners = polygons.Corners(p);
        const int count = polygons.CornerCount(p);
        if (areVertices(corners, count, mesh.VertexCount()))
            visit(corners, count);
    }
}

void appendEdgeFault(FaultDrawData &data, const Mesh &mesh, const MeshFault &fault)
{
    for (const MeshEdge &edge : fault.edges) {
        const int ends[] = {edge.a, edge.b};
        if (!areVertices(ends, 2, mesh.VertexCount()))
            continue;
        const Vector a = mesh.VertexPosition(edge.a);
        const Vector b = mesh.VertexPosition(edge.b);
        data.lines << a << b;
        if (fault.bit == MeshChecker::ZeroLengthEdge)
            data.points << a;
    }
}

void appendPolygonFault(FaultDrawData &data, const Mesh &mesh, const PolygonList &polygons,
                        const MeshFault &fault)
{
    const bool withoutArea =
        fault.bit == MeshChecker::DegenerateFace || fault.bit == MeshChecker::TwoSidedFace;
    const QVector<Vector> &positions = mesh.Positions();
    for (const FaultyPolygon &faulty : fault.polygons) {
        if (faulty.polygon < 0 || faulty.polygon >= polygons.Count())
            continue;
        const int *corners = polygons.Corners(faulty.polygon);
        const int count = polygons.CornerCount(faulty.polygon);
        if (!areVertices(corners, count, mesh.VertexCount()))
            continue;
        for (int i = 0; i < count; ++i) {
            data.lines << positions[corners[i]] << positions[corners[(i + 1) % count]];
            if (withoutArea)
                data.points << positions[corners[i]];
            if (i >= 2)
                data.triangles << positions[corners[0]] << positions[corners[i - 1]]
                               << positions[corners[i]];
        }
    }
}

} // namespace

int MeshDrawData::Update(const Mesh &mesh)
{
    const bool moved = !isSameArray(m_positions, mesh.Positions());
    const bool joined = !isSameArray(m_corners, mesh.Corners())
                        || !isSameArray(m_polygonCorners, mesh.Polygons().corners)
                        || m_positions.size() != mesh.VertexCount();
    m_positions = mesh.Positions();
    if (joined)
        updateFaces(mesh);
    const bool given = updateNormals(mesh);
    if (!given && !((moved || joined) && m_givenNormals.contains(Vector())))
        return (moved ? PositionsPart : 0) | (joined ? FacesPart : 0);
    fillMissingNormals();
    return (moved ? PositionsPart : 0) | (joined ? FacesPart : 0) | NormalsPart;
}

bool MeshDrawData::updateNormals(const Mesh &mesh)
{
    int vertex = 0;
    const int common = std::min(mesh.VertexCount(), m_givenNormals.size());
    while (vertex < common && isSameBits(m_givenNormals.at(vertex), mesh.VertexNormal(vertex)))
        ++vertex;
    if (vertex == mesh.VertexCount() && vertex == m_givenNormals.size())
        return false;
    m_givenNormals.resize(mesh.VertexCount());
    for (; vertex < mesh.VertexCount(); ++vertex)
        m_givenNormals[vertex] = mesh.VertexNormal(vertex);
    return true;
}

void MeshDrawData::updateFaces(const Mesh &mesh)
{
    m_corners = mesh.Corners();
    m_polygonCorners = mesh.Polygons().corners;
    m_triangles = trianglesOf(mesh);
    m_wireframe.clear();
    m_boundary.clear();
    m_wireframe.reserve(2 * mesh.Edges().size());
    for (const MeshEdge &edge : mesh.Edges()) {
        if (std::max(edge.a, edge.b) >= mesh.VertexCount())
            continue;
        m_wireframe << edge.a << edge.b;
        if (edge.polygons == 1)
            m_boundary << edge.a << edge.b;
    }
}

void MeshDrawData::fillMissingNormals()
{
    m_normals = m_givenNormals;
    for (Vector &normal : m_normals)
        normal.Normalize();
    if (!m_givenNormals.contains(Vector()))
        return;
    QVector<Vector> sums(m_normals.size());
    for (int i = 0; i < m_triangles.size(); i += 3) {
        const int *corner = m_triangles.constData() + i;
        const Vector first = m_positions.at(corner[0]);
        const Vector area =
            (m_positions.at(corner[1]) - first) & (m_positions.at(corner[2]) - first);
        for (int k = 0; k < 3; ++k)
            sums[corner[k]] += area;
    }
    for (int v = 0; v < m_normals.size(); ++v) {
        if (m_givenNormals.at(v) == Vector())
            m_normals[v] = Normalized(sums.at(v));
    }
}

FlatDrawData flatDrawData(const Mesh &mesh)
{
    FlatDrawData data;
    const int corners = mesh.FaceCount() * (mesh.CornersPerFace() - 2) * 3;
    data.positions.reserve(corners);
    data.normals.reserve(corners);
    const QVector<Vector> &positions = mesh.Positions();
    forEachPolygon(mesh, mesh.Polygons(), [&](const int *corner, int count) {
        const Vector normal = polygonNormal(positions, corner, count);
        for (int i = 2; i < count; ++i) {
            data.positions << positions[corner[0]] << positions[corner[i - 1]]
                           << positions[corner[i]];
            data.normals << normal << normal << normal;
        }
    });
    return data;
}

FaultDrawData faultDrawData(const Mesh &mesh, const QVector<MeshFault> &faults)
{
    FaultDrawData data;
    PolygonList polygons;
    for (const MeshFault &fault : faults) {
        for (int vertex : fault.vertices) {
            if (areVertices(&vertex, 1, mesh.VertexCount()))
                data.points << mesh.VertexPosition(vertex);
        }
        appendEdgeFault(data, mesh, fault);
        // The checker needs no Update of the mesh, so its polygons may be newer than the mesh's.
        if (!fault.polygons.isEmpty() && polygons.Count() == 0)
            polygons = polygonsOf(mesh);
        appendPolygonFault(data, mesh, polygons, fault);
    }
    return data;
}

} // namespace orvane
