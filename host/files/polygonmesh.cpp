// SPDX-License-Identifier: MIT
#include "host/files/polygonmesh.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/placement.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <QHash>
#include <QPair>
#include <QVarLengthArray>

#include <algorithm>
#include <cstring>
#include <initializer_list>

namespace orvane {

namespace {

using CornerKey = QPair<int, int>; // vertex, texture coordinate

struct PlaceKey
{
    quint32 bits[3];
};

bool operator==(const PlaceKey &a, const PlaceKey &b)
{
    return std::equal(a.bits, a.bits + 3, b.bits);
}

uint qHash(const PlaceKey &key, uint seed)
{
    return qHashBits(key.bits, sizeof(key.bits), seed);
}

PlaceKey keyOf(float x, float y, float z)
{
    const float values[3] = {x + 0.0f, y + 0.0f, z + 0.0f}; // turns -0 into 0
    PlaceKey key;
    std::memcpy(key.bits, values, sizeof(key.bits));
    return key;
}

PlaceKey keyOf(const Vector &place)
{
    return keyOf(place.x, place.y, place.z);
}

PlaceKey keyOf(const UV &uv)
{
    return keyOf(uv.u, uv.v, 0.0f);
}

// Keeps the first of equal values; corners that point to another one are led to it.
template <typename T>
void joinEqual(QVector<T> *values, QVector<int> *corners)
{
    QHash<PlaceKey, int> known;
    QVector<int> joined;
    QVector<T> kept;
    joined.reserve(values->size());
    for (const T &value : qAsConst(*values)) {
        const PlaceKey key = keyOf(value);
        const auto found = known.constFind(key);
        joined.append(found == known.constEnd() ? kept.size() : *found);
        if (found != known.constEnd())
            continue;
        known.insert(key, kept.size());
        kept.append(value);
    }
    for (int &corner : *corners)
        corner = corner < 0 ? corner : joined[corner];
    *values = kept;
}

void repeatVertex(PolygonMesh *mesh, int vertex)
{
    mesh->positions.append(Vector(mesh->positions[vertex]));
    if (!mesh->normals.isEmpty())
        mesh->normals.append(Vector(mesh->normals[vertex]));
}

bool isMirrored(const Matrix &matrix)
{
    return Dot(matrix.Row(0) & matrix.Row(1), matrix.Row(2)) < 0.0f;
}

bool isFlat(const int *corners, int count)
{
    if (count == 3)
        return corners[0] == corners[1] || corners[1] == corners[2] || corners[2] == corners[0];
    QVarLengthArray<int, 8> sorted(count);
    std::copy(corners, corners + count, sorted.begin());
    std::sort(sorted.begin(), sorted.end());
    return std::unique(sorted.begin(), sorted.end()) - sorted.begin() < 3;
}

bool areAllQuads(const PolygonList &polygons)
{
    const QVector<int> &first = polygons.firstCorner;
    for (int p = 0; p + 1 < first.size(); ++p) {
        if (first[p + 1] - first[p] != 4)
            return false;
    }
    return true;
}

class LevelBuilder
{
public:
    explicit LevelBuilder(const PolygonMesh &mesh)
        : m_mesh(mesh),
          m_quads(areAllQuads(mesh.polygons)),
          m_level(new SubdivisionLevel(m_quads ? Topology::Quads : Topology::Triangles))
    {}

    SubdivisionLevel *build()
    {
        const PolygonList &polygons = m_mesh.polygons;
        const int count = polygonCount(m_mesh);
        setPlaces();
        m_level->SetFaceCount(m_quads ? count : polygons.corners.size() - 2 * count);
        int face = 0;
        for (int p = 0; p < count; ++p) {
            const int first = polygons.firstCorner[p];
            const int end = polygons.firstCorner[p + 1];
            if (m_quads)
                setFace(face++, {first, first + 1, first + 2, first + 3});
            for (int corner = first + 2; !m_quads && corner < end; ++corner) {
                setFace(face, {first, corner - 1, corner});
                if (corner > first + 2)
                    m_level->SetFakeTriangle(face, true);
                ++face;
            }
        }
        m_level->RecomputeNormals(false);
        m_level->Update(true, 0);
        return m_level;
    }

private:
    void setPlaces()
    {
        m_level->SetVertexCount(m_mesh.positions.size());
        for (int v = 0; v < m_mesh.positions.size(); ++v)
            m_level->SetVertexPosition(v, m_mesh.positions[v]);
        m_level->SetUVCount(m_mesh.uvs.size());
        for (int uv = 0; uv < m_mesh.uvs.size(); ++uv)
            m_level->SetTextureCoordinate(uv, m_mesh.uvs[uv]);
    }

    void setFace(int face, std::initializer_list<int> slots)
    {
        int corner = 0;
        for (int slot : slots) {
            const int vertex = m_mesh.polygons.corners[slot];
            if (m_quads)
                m_level->SetQuadIndex(face, corner, vertex);
            else
                m_level->SetTriangleIndex(face, corner, vertex);
            const int uv = m_mesh.polygons.uvCorners[slot];
            if (uv >= 0)
                m_level->SetUVIndex(face, corner, uv);
            ++corner;
        }
    }

    const PolygonMesh &m_mesh;
    bool m_quads;
    SubdivisionLevel *m_level; // owned by whoever called build
};

} // namespace

void joinEqualPlaces(PolygonMesh *mesh)
{
    joinEqual(&mesh->positions, &mesh->polygons.corners);
    joinEqual(&mesh->uvs, &mesh->polygons.uvCorners);
}

int dropFlatPolygons(PolygonMesh *mesh)
{
    const PolygonList &polygons = mesh->polygons;
    QVector<int> flat;
    for (int p = 0; p < polygonCount(*mesh); ++p) {
        if (isFlat(polygons.Corners(p), polygons.CornerCount(p)))
            flat.append(p);
    }
    if (flat.isEmpty())
        return 0;
    PolygonMesh kept;
    int dropped = 0;
    for (int p = 0; p < polygonCount(*mesh); ++p) {
        if (dropped < flat.size() && flat[dropped] == p) {
            ++dropped;
            continue;
        }
        for (int slot = polygons.firstCorner[p]; slot < polygons.firstCorner[p + 1]; ++slot)
            kept.addCorner(polygons.corners[slot], polygons.uvCorners[slot]);
        kept.endPolygon();
    }
    mesh->polygons = kept.polygons;
    return dropped;
}

void dropLooseVertices(PolygonMesh *mesh)
{
    QVector<int> number(mesh->positions.size(), -1);
    for (int vertex : qAsConst(mesh->polygons.corners))
        number[vertex] = 0;
    if (!number.contains(-1))
        return;
    int kept = 0;
    for (int v = 0; v < number.size(); ++v) {
        if (number[v] < 0)
            continue;
        mesh->positions[kept] = mesh->positions[v];
        if (!mesh->normals.isEmpty())
            mesh->normals[kept] = mesh->normals[v];
        number[v] = kept++;
    }
    mesh->positions.resize(kept);
    mesh->normals.resize(mesh->normals.isEmpty() ? 0 : kept);
    for (int &vertex : mesh->polygons.corners)
        vertex = number[vertex];
}

void reversePolygons(PolygonMesh *mesh)
{
    PolygonList &polygons = mesh->polygons;
    for (int p = 0; p < polygonCount(*mesh); ++p) {
        const int first = polygons.firstCorner[p];
        const int end = polygons.firstCorner[p + 1];
        // The first corner stays: a fan about it keeps its triangles.
        std::reverse(polygons.corners.begin() + first + 1, polygons.corners.begin() + end);
        std::reverse(polygons.uvCorners.begin() + first + 1, polygons.uvCorners.begin() + end);
    }
}

void splitAtSeams(PolygonMesh *mesh)
{
    if (mesh->uvs.isEmpty())
        return;
    // The first corner met at a vertex keeps its number; the others' vertices come after the end.
    QHash<CornerKey, int> split;
    QVector<UV> uvs(mesh->positions.size());
    QVector<char> taken(mesh->positions.size(), 0);
    PolygonList &polygons = mesh->polygons;
    for (int slot = 0; slot < polygons.corners.size(); ++slot) {
        const CornerKey key(polygons.corners[slot], polygons.uvCorners[slot]);
        auto found = split.constFind(key);
        if (found == split.constEnd()) {
            const bool first = !taken[key.first];
            taken[key.first] = 1;
            found = split.insert(key, first ? key.first : mesh->positions.size());
            if (!first)
                repeatVertex(mesh, key.first);
            uvs.resize(mesh->positions.size());
            uvs[*found] = mesh->uvs.value(key.second);
        }
        polygons.corners[slot] = *found;
        polygons.uvCorners[slot] = *found;
    }
    mesh->uvs = uvs;
}

Geometry *geometryOf(const PolygonMesh &mesh)
{
    auto *geometry = new Geometry;
    geometry->SetName(mesh.name);
    geometry->AddLevel(LevelBuilder(mesh).build());
    return geometry;
}

PolygonMesh polygonMeshOf(const Geometry &geometry)
{
    PolygonMesh result;
    result.name = geometry.Name();
    const Mesh *level = geometry.CurrentLevel();
    if (!level)
        return result;
    result.polygons = polygonsOf(*level);
    if (level->HasUVs()) {
        for (int uv = 0; uv < level->UVCount(); ++uv)
            result.uvs.append(level->TextureCoordinate(uv));
    } else {
        result.polygons.uvCorners.fill(-1, result.polygons.corners.size());
    }
    for (int v = 0; v < level->VertexCount(); ++v) {
        result.positions.append(level->WorldVertexPosition(v));
        result.normals.append(level->WorldVertexNormal(v));
    }
    dropLooseVertices(&result);
    const auto known = [](const Vector &n) {
        return n.IsFinite() && n.LengthSquared() > 0.5f;
    };
    if (!std::all_of(result.normals.cbegin(), result.normals.cend(), known))
        result.normals.clear();
    if (isMirrored(geometry.Placement()->WorldMatrix()))
        reversePolygons(&result);
    return result;
}

} // namespace orvane
