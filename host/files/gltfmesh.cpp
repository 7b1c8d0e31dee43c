// SPDX-License-Identifier: MIT
#include "host/files/gltfmesh.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>

#include <orvane/math/axisalignedboundingbox.h>

namespace orvane {

namespace {

// Numbers that the glTF 2.0 format fixes.
const int FloatComponents = 5126;
const int UnsignedComponents = 5125;
const int VertexTarget = 34962;
const int IndexTarget = 34963;
const quint32 GlbMagic = 0x46546c67;    // "glTF"
const quint32 JsonChunk = 0x4e4f534a;   // "JSON"
const quint32 BinaryChunk = 0x004e4942; // "BIN"

void appendUnsigned(QByteArray *bytes, quint32 value)
{
    const quint32 little = qToLittleEndian(value);
    bytes->append(reinterpret_cast<const char *>(&little), sizeof(little));
}

void appendFloat(QByteArray *bytes, float value)
{
    const float little = qToLittleEndian(value);
    bytes->append(reinterpret_cast<const char *>(&little), sizeof(little));
}

QJsonArray arrayOf(const Vector &v)
{
    return {double(v.x), double(v.y), double(v.z)};
}

class GltfBuilder
{
public:
    explicit GltfBuilder(const QVector<PolygonMesh> &meshes)
    {
        QJsonArray nodes;
        QJsonArray roots;
        for (PolygonMesh mesh : meshes) {
            splitAtSeams(&mesh);
            roots.append(nodes.size());
            nodes.append(QJsonObject{{QStringLiteral("name"), mesh.name},
                                     {QStringLiteral("mesh"), m_meshes.size()}});
            addMesh(mesh);
        }
        m_nodes = nodes;
        m_roots = roots;
    }

    const QByteArray &buffer() const { return m_buffer; }

    //! uri: where the buffer is; empty for the one that follows in the file.
    QByteArray json(const QString &uri) const
    {
        QJsonObject buffer{{QStringLiteral("byteLength"), m_buffer.size()}};
        if (!uri.isEmpty())
            buffer.insert(QStringLiteral("uri"), uri);
        const QJsonObject root{
            {QStringLiteral("asset"),
             QJsonObject{{QStringLiteral("version"), QStringLiteral("2.0")},
                         {QStringLiteral("generator"), QStringLiteral("Orvane")}}},
            {QStringLiteral("scene"), 0},
            {QStringLiteral("scenes"), QJsonArray{QJsonObject{{QStringLiteral("nodes"), m_roots}}}},
            {QStringLiteral("nodes"), m_nodes},
            {QStringLiteral("meshes"), m_meshes},
            {QStringLiteral("accessors"), m_accessors},
            {QStringLiteral("bufferViews"), m_views},
            {QStringLiteral("buffers"), QJsonArray{buffer}},
        };
        return QJsonDocument(root).toJson(QJsonDocument::Compact);
    }

private:
    void addMesh(const PolygonMesh &mesh)
    {
        QJsonObject attributes{{QStringLiteral("POSITION"), addPositions(mesh)}};
        if (!mesh.normals.isEmpty())
            attributes.insert(QStringLiteral("NORMAL"), addVectors(mesh.normals));
        if (!mesh.uvs.isEmpty())
            attributes.insert(QStringLiteral("TEXCOORD_0"), addUVs(mesh.uvs));
        const QJsonObject primitive{{QStringLiteral("attributes"), attributes},
                                    {QStringLiteral("indices"), addTriangles(mesh)}};
        m_meshes.append(QJsonObject{{QStringLiteral("name"), mesh.name},
                                    {QStringLiteral("primitives"), QJsonArray{primitive}}});
    }

    int addPositions(const PolygonMesh &mesh)
    {
        AxisAlignedBoundingBox box;
        for (const Vector &position : mesh.positions)
            box.Extend(position);
        const int accessor = addVectors(mesh.positions);
        QJsonObject bounded = m_accessors[accessor].toObject();
        bounded.insert(QStringLiteral("min"), arrayOf(box.minimum));
        bounded.insert(QStringLiteral("max"), arrayOf(box.maximum));
        m_accessors[accessor] = bounded;
        return accessor;
    }

    int addVectors(const QVector<Vector> &vectors)
    {
        const int start = m_buffer.size();
        for (const Vector &v : vectors) {
            appendFloat(&m_buffer, v.x);
            appendFloat(&m_buffer, v.y);
            appendFloat(&m_buffer, v.z);
        }
        return addAccessor(start, vectors.size(), QStringLiteral("VEC3"), FloatComponents,
                           VertexTarget);
    }

    int addUVs(const QVector<UV> &uvs)
    {
        const int start = m_buffer.size();
        for (const UV &uv : uvs) {
            appendFloat(&m_buffer, uv.u);
            appendFloat(&m_buffer, 1.0f - uv.v); // glTF counts from the upper edge
        }
        return addAccessor(start, uvs.size(), QStringLiteral("VEC2"), FloatComponents,
                           VertexTarget);
    }

    int addTriangles(const PolygonMesh &mesh)
    {
        const int start = m_buffer.size();
        forEachTriangle(mesh, [this](int a, int b, int c) {
            for (int vertex : {a, b, c})
                appendUnsigned(&m_buffer, quint32(vertex));
        });
        const int count = (m_buffer.size() - start) / int(sizeof(quint32));
        return addAccessor(start, count, QStringLiteral("SCALAR"), UnsignedComponents, IndexTarget);
    }

    int addAccessor(int start, int count, const QString &type, int componentType, int target)
    {
        const int view = m_views.size();
        m_views.append(QJsonObject{{QStringLiteral("buffer"), 0},
                                   {QStringLiteral("byteOffset"), start},
                                   {QStringLiteral("byteLength"), m_buffer.size() - start},
                                   {QStringLiteral("target"), target}});
        m_accessors.append(QJsonObject{{QStringLiteral("bufferView"), view},
                                       {QStringLiteral("componentType"), componentType},
                                       {QStringLiteral("count"), count},
                                       {QStringLiteral("type"), type}});
        return m_accessors.size() - 1;
    }

    QByteArray m_buffer;
    QJsonArray m_nodes;
    QJsonArray m_roots;
    QJsonArray m_meshes;
    QJsonArray m_accessors;
    QJsonArray m_views;
};

// A chunk starts and ends at multiples of four bytes.
void appendChunk(QByteArray *file, quint32 type, QByteArray bytes, char filler)
{
    while (bytes.size() % 4 != 0)
        bytes.append(filler);
    appendUnsigned(file, quint32(bytes.size()));
    appendUnsigned(file, type);
    file->append(bytes);
}

} // namespace

QByteArray glbBytesOf(const QVector<PolygonMesh> &meshes)
{
    const GltfBuilder builder(meshes);
    QByteArray chunks;
    appendChunk(&chunks, JsonChunk, builder.json(QString()), ' ');
    appendChunk(&chunks, BinaryChunk, builder.buffer(), '\0');
    QByteArray file;
    appendUnsigned(&file, GlbMagic);
    appendUnsigned(&file, 2); // version of the container
    appendUnsigned(&file, quint32(3 * sizeof(quint32)) + quint32(chunks.size()));
    return file + chunks;
}

QByteArray gltfTextOf(const QVector<PolygonMesh> &meshes)
{
    const GltfBuilder builder(meshes);
    const QByteArray encoded = builder.buffer().toBase64();
    return builder.json(QStringLiteral("data:application/octet-stream;base64,")
                        + QString::fromLatin1(encoded));
}

} // namespace orvane
