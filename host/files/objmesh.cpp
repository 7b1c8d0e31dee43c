// SPDX-License-Identifier: MIT
#include "host/files/objmesh.h"

#include "host/files/objtext.h"
#include "host/files/textwords.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace orvane {

namespace {

class ObjMeshReader
{
public:
    ObjMeshReader(const QByteArray &text, PolygonMesh *mesh) : m_lines(text, true), m_mesh(mesh) {}

    bool read()
    {
        while (m_lines.next()) {
            if (!readElement(m_lines.words()))
                return false;
        }
        if (m_mesh->positions.isEmpty()) {
            m_error =
                QStringLiteral("no vertices; expected the \"v\" and \"f\" lines of an OBJ mesh.");
            return false;
        }
        for (int face = 0; face < m_lineOfFace.size(); ++face) {
            if (!checkFace(face))
                return false;
        }
        return true;
    }

    const QString &error() const { return m_error; }

private:
    bool readElement(const Words &words)
    {
        if (words[0] == "v")
            return readVertex(words);
        if (words[0] == "vt")
            return readUV(words);
        if (words[0] == "f")
            return readFace(words);
        return true; // what else there is says nothing about the shape
    }

    bool readVertex(const Words &words)
    {
        Vector place;
        QString what;
        m_mesh->positions.append(place);
        if (!readObjPlace(words, &m_mesh->positions.last(), &what))
            return fail(QStringLiteral("vertex %1: %2").arg(m_mesh->positions.size()).arg(what));
        return true;
    }

    bool readUV(const Words &words)
    {
        const std::optional<float> u = words.size() > 1 ? numberIn(words[1]) : std::nullopt;
        const std::optional<float> v = words.size() > 2 ? numberIn(words[2]) : 0.0f;
        if (!u || !v || !std::isfinite(*u) || !std::isfinite(*v)) {
            return fail(
                QStringLiteral("texture coordinate %1: expected finite numbers after \"vt\"")
                    .arg(m_mesh->uvs.size() + 1));
        }
        m_mesh->uvs.append({*u, *v});
        return true;
    }

    bool readFace(const Words &words)
    {
        m_lineOfFace.append(m_lines.line());
        for (size_t i = 1; i < words.size(); ++i) {
            if (!readCorner(words[i]))
                return false;
        }
        m_mesh->endPolygon();
        return true;
    }

    // vertex, vertex/uv, vertex/uv/normal or vertex//normal
    bool readCorner(std::string_view word)
    {
        const size_t slash = std::min(word.find('/'), word.size());
        const std::string_view rest = word.substr(std::min(slash + 1, word.size()));
        const std::string_view uvWord = rest.substr(0, rest.find('/'));
        QString what;
        const int vertex = readObjReference(word.substr(0, slash), m_mesh->positions.size(),
                                            QStringLiteral("vertex"), &what);
        const int uv = vertex < 0 || uvWord.empty()
                           ? -1
                           : readObjReference(uvWord, m_mesh->uvs.size(),
                                              QStringLiteral("texture coordinate"), &what);
        if (!what.isEmpty())
            return fail(QStringLiteral("face %1 %2").arg(m_lineOfFace.size()).arg(what));
        m_mesh->addCorner(vertex, uv);
        return true;
    }

    bool checkFace(int face)
    {
        const PolygonList &polygons = m_mesh->polygons;
        for (int slot = polygons.firstCorner[face]; slot < polygons.firstCorner[face + 1]; ++slot) {
            if (polygons.corners[slot] >= m_mesh->positions.size())
                return failRange(face, QStringLiteral("vertex"), polygons.corners[slot],
                                 QStringLiteral("vertices"), m_mesh->positions.size());
            if (polygons.uvCorners[slot] >= m_mesh->uvs.size())
                return failRange(face, QStringLiteral("texture coordinate"),
                                 polygons.uvCorners[slot], QStringLiteral("texture coordinates"),
                                 m_mesh->uvs.size());
        }
        return true;
    }

    bool failRange(int face, const QString &what, int index, const QString &things, int count)
    {
        m_error = QStringLiteral("line %1: face %2 refers to %3 %4, but the file has %5 %6.")
                      .arg(m_lineOfFace[face])
                      .arg(face + 1)
                      .arg(what)
                      .arg(index + 1)
                      .arg(count)
                      .arg(things);
        return false;
    }

    bool fail(const QString &text)
    {
        m_error = QStringLiteral("line %1: %2.").arg(m_lines.line()).arg(text);
        return false;
    }

    TextLines m_lines;
    PolygonMesh *m_mesh;
    QVector<int> m_lineOfFace; // by polygon
    QString m_error;
};

class ObjMeshWriter
{
public:
    void write(const PolygonMesh &mesh)
    {
        m_text += "o " + mesh.name.toUtf8() + '\n';
        for (const Vector &p : mesh.positions)
            writeNumbers("v", {p.x, p.y, p.z});
        for (const UV &uv : mesh.uvs)
            writeNumbers("vt", {uv.u, uv.v});
        for (const Vector &n : mesh.normals)
            writeNumbers("vn", {n.x, n.y, n.z});
        for (int p = 0; p < polygonCount(mesh); ++p) {
            m_text += 'f';
            for (int slot = mesh.polygons.firstCorner[p]; slot < mesh.polygons.firstCorner[p + 1];
                 ++slot)
                writeCorner(mesh, slot);
            m_text += '\n';
        }
        m_vertices += mesh.positions.size();
        m_uvs += mesh.uvs.size();
        m_normals += mesh.normals.size();
    }

    const QByteArray &text() const { return m_text; }

private:
    void writeNumbers(const char *keyword, std::initializer_list<float> numbers)
    {
        m_text += keyword;
        for (float number : numbers) {
            m_text += ' ';
            appendNumber(&m_text, number);
        }
        m_text += '\n';
    }

    // Numbers go on counting from object to object.
    void writeCorner(const PolygonMesh &mesh, int slot)
    {
        const int vertex = mesh.polygons.corners[slot] + 1;
        const int uv = mesh.polygons.uvCorners[slot] + 1;
        m_text += ' ';
        appendNumber(&m_text, m_vertices + vertex);
        if (uv > 0 || !mesh.normals.isEmpty())
            m_text += '/';
        if (uv > 0)
            appendNumber(&m_text, m_uvs + uv);
        if (!mesh.normals.isEmpty()) {
            m_text += '/';
            appendNumber(&m_text, m_normals + vertex);
        }
    }

    QByteArray m_text;
    int m_vertices = 0; // written for the objects before
    int m_uvs = 0;
    int m_normals = 0;
};

} // namespace

bool readObjMesh(const QByteArray &text, PolygonMesh *mesh, QString *error)
{
    ObjMeshReader reader(text, mesh);
    if (reader.read())
        return true;
    *error = reader.error();
    return false;
}

QByteArray objTextOf(const QVector<PolygonMesh> &meshes)
{
    ObjMeshWriter writer;
    for (const PolygonMesh &mesh : meshes)
        writer.write(mesh);
    return writer.text();
}

} // namespace orvane
