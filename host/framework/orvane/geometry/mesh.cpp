// SPDX-License-Identifier: MIT
#include <orvane/geometry/mesh.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/log.h>
#include <orvane/base/parallel.h>
#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/keptlocator.h>
#include <orvane/geometry/placement.h>

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

const int LeastFaces = 20000; // of a thread

// Logs it; answers false.
bool refuse(const char *what, int index, int count)
{
    log(QStringLiteral("No %1 %2: the mesh has %3.")
            .arg(QLatin1String(what))
            .arg(index)
            .arg(count));
    return false;
}

// The angle at p between the directions to q and r, in radians; 0 for coincident points.
float cornerAngle(const Vector &p, const Vector &q, const Vector &r)
{
    const Vector a = q - p;
    const Vector b = r - p;
    return std::atan2((a & b).Length(), Dot(a, b));
}

} // namespace

Mesh::Mesh(FaceType type) : Topology(type) {}

Mesh::~Mesh() = default;

Vector Mesh::WorldVertexPosition(int vertex) const
{
    const Vector local = VertexPosition(vertex);
    return m_holder ? m_holder->Placement()->ToWorld(local) : local;
}

Vector Mesh::WorldVertexNormal(int vertex) const
{
    const Vector local = VertexNormal(vertex);
    return m_holder ? m_holder->Placement()->NormalToWorld(local) : Normalized(local);
}

Vector Mesh::TriangleVertexPosition(int face, int corner) const
{
    return cornerPosition(Triangles, face, corner);
}

Vector Mesh::QuadVertexPosition(int face, int corner) const
{
    return cornerPosition(Quads, face, corner);
}

Vector Mesh::cornerPosition(FaceType type, int face, int corner) const
{
    const int vertex = type == Type() ? VertexIndex(face, corner) : -1;
    return vertex < 0 ? Vector() : WorldVertexPosition(vertex);
}

const SurfaceLocator &Mesh::Locator() const
{
    if (!m_locator || !m_locator->IsCurrent(*this))
        m_locator.reset(new KeptLocator(*this));
    return m_locator->Locator();
}

void Mesh::SetFaceCount(int count)
{
    resizeFaces(count);
}

void Mesh::SetVertexCount(int count)
{
    m_positions.resize(qMax(0, count));
    m_normals.resize(m_positions.size());
    setVertexLimits(m_positions.size(), m_uvs.size());
}

void Mesh::SetFakeTriangleCount(int count)
{
    reserveFakes(count);
}

void Mesh::SetUVCount(int count)
{
    m_uvs.resize(qMax(0, count));
    setVertexLimits(m_positions.size(), m_uvs.size());
}

void Mesh::SetTextureCoordinate(int uv, const UV &coordinate)
{
    if (uv >= 0 && uv < UVCount())
        m_uvs[uv] = coordinate;
    else
        refuse("texture coordinate", uv, UVCount());
}

bool Mesh::refuseVertex(int vertex) const
{
    return refuse("vertex", vertex, VertexCount());
}

void Mesh::RecomputeNormals(bool keepVertexNormals)
{
    const qint64 faces = FaceCount();
    const qint64 vertices = VertexCount();
    const int threads = threadsFor(faces, LeastFaces);
    m_faceNormals.resize(FaceCount());
    Vector *faceNormals = m_faceNormals.data();
    inParallel(threads, [=](int part) {
        setFaceNormals(int(faces * part / threads), int(faces * (part + 1) / threads), faceNormals);
    });
    if (keepVertexNormals)
        return;
    m_normals.fill(Vector(), VertexCount());
    Vector *normals = m_normals.data();
    inParallel(threads, [=](int part) {
        setVertexNormals(int(vertices * part / threads), int(vertices * (part + 1) / threads),
                         normals);
    });
}

void Mesh::setFaceNormals(int begin, int end, Vector *faceNormals) const
{
    for (int face = begin; face < end; ++face) {
        const int slot = face * CornersPerFace();
        const Vector p0 = placeAt(slot);
        const Vector p1 = placeAt(slot + 1);
        const Vector p2 = placeAt(slot + 2);
        // The diagonals of a quad see all four corners, bent or not.
        const Vector area =
            IsQuads() ? (p2 - p0) & (placeAt(slot + 3) - p1) : (p1 - p0) & (p2 - p0);
        faceNormals[face] = Normalized(area);
    }
}

// Goes through all faces whatever the vertices are: each sum is made in the same order.
void Mesh::setVertexNormals(int begin, int end, Vector *normals) const
{
    const int corners = CornersPerFace();
    for (int first = 0, face = 0; first < m_corners.size(); first += corners, ++face) {
        for (int i = 0; i < corners; ++i) {
            const int vertex = m_corners.at(first + i);
            if (vertex < begin || vertex >= end)
                continue;
            const Vector next = placeAt(first + (i + 1 == corners ? 0 : i + 1));
            const Vector previous = placeAt(first + (i == 0 ? corners : i) - 1);
            normals[vertex] +=
                m_faceNormals.at(face) * cornerAngle(m_positions.at(vertex), next, previous);
        }
    }
    for (int vertex = begin; vertex < end; ++vertex)
        normals[vertex].Normalize();
}

void Mesh::Update(bool topology, int)
{
    m_bounds = AxisAlignedBoundingBox();
    for (const Vector &position : qAsConst(m_positions))
        m_bounds.Extend(position);
    if (!topology || !m_facesChanged)
        return;
    m_polygons = polygonsOf(*this);
    m_edgeLimit = VertexCount();
    m_edgesFound = false;
    m_facesChanged = false;
}

const QVector<MeshEdge> &Mesh::Edges() const
{
    if (!m_edgesFound)
        m_edges = edgesOf(m_polygons, m_edgeLimit);
    m_edgesFound = true;
    return m_edges;
}

void Mesh::SetChanged(bool changed)
{
    m_changed = changed;
}

void Mesh::Serialize(Stream &stream)
{
    Node::Serialize(stream);
    int type = m_type;
    stream.Transfer(type);
    stream.Transfer(m_positions);
    stream.Transfer(m_normals);
    stream.Transfer(m_uvs);
    stream.Transfer(m_corners);
    stream.Transfer(m_fake);
    stream.Transfer(m_uvCorners);
    if (stream.IsWriting())
        return;
    m_type = type == Quads ? Quads : Triangles;
    m_normals.resize(m_positions.size());
    setVertexLimits(m_positions.size(), m_uvs.size());
    if (!cornersInRange()) {
        log(QStringLiteral("The faces of mesh \"%1\" do not fit its vertices and were dropped.")
                .arg(Name()));
        m_corners.clear();
        m_fake.clear();
        m_uvCorners.clear();
    }
    RecomputeNormals(true);
    Update(true, 0);
}

bool Mesh::cornersInRange() const
{
    const auto all = [](const QVector<int> &indices, int low, int high) {
        for (int index : indices) {
            if (index < low || index >= high)
                return false;
        }
        return true;
    };
    const bool lengthsAgree = m_corners.size() % CornersPerFace() == 0
                              && (m_fake.isEmpty() || m_fake.size() == FaceCount())
                              && (m_fake.isEmpty() || !m_fake[0])
                              && (m_uvCorners.isEmpty() || m_uvCorners.size() == m_corners.size());
    return lengthsAgree && all(m_corners, 0, VertexCount()) && all(m_uvCorners, -1, UVCount());
}

bool Mesh::CheckValidity() const
{
    const auto isFinite = [](const Vector &v) {
        return v.IsFinite();
    };
    return std::all_of(m_positions.cbegin(), m_positions.cend(), isFinite)
           && std::all_of(m_normals.cbegin(), m_normals.cend(), isFinite);
}

const ClassDesc *Mesh::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *Mesh::StaticClass()
{
    static const ClassDesc desc(Node::StaticClass(), Node::StaticClass(), "Mesh", "Mesh", nullptr,
                                0, 0);
    return &desc;
}

} // namespace orvane
