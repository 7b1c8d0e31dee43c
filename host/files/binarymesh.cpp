// SPDX-License-Identifier: MIT
#include "host/files/binarymesh.h"

#include <QDataStream>

#include <algorithm>

namespace orvane {

namespace {

const int StlHeaderSize = 80;  // bytes
const int MostOfOneByte = 255; // corners

class LittleEndianBytes
{
public:
    explicit LittleEndianBytes(QByteArray *bytes) : m_stream(bytes, QIODevice::Append)
    {
        m_stream.setByteOrder(QDataStream::LittleEndian);
        m_stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
    }

    template <typename T>
    void put(T value)
    {
        m_stream << value;
    }
    void put(const Vector &v) { m_stream << v.x << v.y << v.z; }

private:
    QDataStream m_stream;
};

template <typename Test>
bool holdsForAll(const QVector<PolygonMesh> &meshes, Test test)
{
    return std::all_of(meshes.cbegin(), meshes.cend(), test);
}

class PlyWriter
{
public:
    explicit PlyWriter(const QVector<PolygonMesh> &meshes) : m_meshes(meshes)
    {
        m_normals = holdsForAll(meshes, [](const PolygonMesh &m) { return !m.normals.isEmpty(); });
        m_uvs = holdsForAll(meshes, [](const PolygonMesh &m) { return !m.uvs.isEmpty(); });
        for (PolygonMesh &mesh : m_meshes) {
            if (m_uvs)
                splitAtSeams(&mesh);
            m_vertexCount += mesh.positions.size();
            m_polygonCount += polygonCount(mesh);
            for (int p = 0; p < polygonCount(mesh); ++p)
                m_mostCorners = std::max(m_mostCorners, mesh.polygons.CornerCount(p));
        }
    }

    QByteArray bytes() const
    {
        QByteArray result = header();
        LittleEndianBytes body(&result);
        for (const PolygonMesh &mesh : m_meshes)
            putVertices(&body, mesh);
        int firstVertex = 0;
        for (const PolygonMesh &mesh : m_meshes) {
            putPolygons(&body, mesh, firstVertex);
            firstVertex += mesh.positions.size();
        }
        return result;
    }

private:
    QByteArray header() const
    {
        const QByteArray countType = m_mostCorners > MostOfOneByte ? "int" : "uchar";
        QByteArray text = "ply\nformat binary_little_endian 1.0\n";
        text += "element vertex " + QByteArray::number(m_vertexCount) + '\n';
        text += "property float x\nproperty float y\nproperty float z\n";
        if (m_normals)
            text += "property float nx\nproperty float ny\nproperty float nz\n";
        if (m_uvs)
            text += "property float s\nproperty float t\n";
        text += "element face " + QByteArray::number(m_polygonCount) + '\n';
        text += "property list " + countType + " int vertex_indices\nend_header\n";
        return text;
    }

    void putVertices(LittleEndianBytes *body, const PolygonMesh &mesh) const
    {
        for (int v = 0; v < mesh.positions.size(); ++v) {
            body->put(mesh.positions[v]);
            if (m_normals)
                body->put(mesh.normals[v]);
            if (!m_uvs)
                continue;
            body->put(mesh.uvs[v].u);
            body->put(mesh.uvs[v].v);
        }
    }

    void putPolygons(LittleEndianBytes *body, const PolygonMesh &mesh, int firstVertex) const
    {
        for (int p = 0; p < polygonCount(mesh); ++p) {
            const int count = mesh.polygons.CornerCount(p);
            if (m_mostCorners > MostOfOneByte)
                body->put(qint32(count));
            else
                body->put(quint8(count));
            for (int i = 0; i < count; ++i)
                body->put(qint32(firstVertex + mesh.polygons.Corners(p)[i]));
        }
    }

    QVector<PolygonMesh> m_meshes;
    bool m_normals;
    bool m_uvs;
    int m_vertexCount = 0;
    int m_polygonCount = 0;
    int m_mostCorners = 0;
};

void putTriangle(LittleEndianBytes *body, const Vector &a, const Vector &b, const Vector &c)
{
    body->put(Normalized((b - a) & (c - a)));
    body->put(a);
    body->put(b);
    body->put(c);
    body->put(quint16(0)); // attribute bytes that nobody uses
}

} // namespace

QByteArray plyBytesOf(const QVector<PolygonMesh> &meshes)
{
    return PlyWriter(meshes).bytes();
}

QByteArray stlBytesOf(const QVector<PolygonMesh> &meshes)
{
    quint32 triangles = 0;
    for (const PolygonMesh &mesh : meshes)
        triangles += quint32(mesh.polygons.corners.size() - 2 * polygonCount(mesh));
    // It must not start with "solid", by which the text form is known.
    QByteArray result = QByteArray("Binary STL").leftJustified(StlHeaderSize, ' ');
    LittleEndianBytes body(&result);
    body.put(triangles);
    for (const PolygonMesh &mesh : meshes) {
        forEachTriangle(mesh, [&](int a, int b, int c) {
            putTriangle(&body, mesh.positions[a], mesh.positions[b], mesh.positions[c]);
        });
    }
    return result;
}

} // namespace orvane
