// SPDX-License-Identifier: MIT
#include "host/files/objmesh.h"

#include "host/files/objtext.h"
#include "host/files/textwords.h"

#include <orvane/base/parallel.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <initializer_list>
#include <vector>

namespace orvane {

namespace {

const int LeastBytesOfThread = 1 << 18;
const int LeastLinesOfThread = 5000; // written
const int PartsOfThread = 4;         // vertices and faces take different times to read

class ObjMeshReader
{
public:
    ObjMeshReader(const TextLines &lines, PolygonMesh *mesh) : m_lines(lines), m_mesh(mesh) {}

    bool read()
    {
        if (!readElements())
            return false;
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

    //! Of a text that something comes before: counting back might lead out of it, so a number that
    //! does is none.
    bool readPart()
    {
        m_countsBack = false;
        return readElements();
    }

    const QString &error() const { return m_error; }

private:
    bool readElements()
    {
        while (m_lines.next()) {
            if (!readElement(m_lines.words()))
                return false;
        }
        return true;
    }

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
        const int vertices = m_countsBack ? m_mesh->positions.size() : 0;
        const int uvs = m_countsBack ? m_mesh->uvs.size() : 0;
        const int vertex =
            readObjReference(word.substr(0, slash), vertices, QLatin1String("vertex"), &what);
        const int uv =
            vertex < 0 || uvWord.empty()
                ? -1
                : readObjReference(uvWord, uvs, QLatin1String("texture coordinate"), &what);
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
    bool m_countsBack = true;
    QVector<int> m_lineOfFace; // by polygon
    QString m_error;
};

// Room for all parts at once: vectors that grow are copied again and again.
void reserveFor(const std::vector<PolygonMesh> &parts, PolygonMesh *mesh)
{
    int vertices = 0;
    int uvs = 0;
    int corners = 0;
    int polygons = 0;
    for (const PolygonMesh &part : parts) {
        vertices += part.positions.size();
        uvs += part.uvs.size();
        corners += part.polygons.corners.size();
        polygons += polygonCount(part);
    }
    mesh->positions.reserve(vertices);
    mesh->uvs.reserve(uvs);
    mesh->polygons.corners.reserve(corners);
    mesh->polygons.uvCorners.reserve(corners);
    mesh->polygons.firstCorner.reserve(polygons + 1);
}

// Numbers of corners do not depend on where their part stands.
void appendMesh(PolygonMesh *mesh, const PolygonMesh &part)
{
    const int cornersBefore = mesh->polygons.corners.size();
    mesh->positions += part.positions;
    mesh->uvs += part.uvs;
    mesh->polygons.corners += part.polygons.corners;
    mesh->polygons.uvCorners += part.polygons.uvCorners;
    for (int p = 1; p < part.polygons.firstCorner.size(); ++p)
        mesh->polygons.firstCorner.append(cornersBefore + part.polygons.firstCorner[p]);
}

// Does every corner name a vertex, and a texture coordinate or none?
bool isComplete(const PolygonMesh &mesh)
{
    const auto areBelow = [](const QVector<int> &numbers, int count) {
        return std::all_of(numbers.cbegin(), numbers.cend(),
                           [count](int number) { return number < count; });
    };
    return !mesh.positions.isEmpty() && areBelow(mesh.polygons.corners, mesh.positions.size())
           && areBelow(mesh.polygons.uvCorners, mesh.uvs.size());
}

// False where one part alone cannot tell what is right, or anything is wrong.
bool readInParts(const std::vector<TextLines> &parts, PolygonMesh *mesh)
{
    std::vector<PolygonMesh> meshes(parts.size());
    std::atomic<bool> isGood{true};
    inParallel(int(parts.size()), [&](int part) {
        if (isGood && !ObjMeshReader(parts[size_t(part)], &meshes[size_t(part)]).readPart())
            isGood = false;
    });
    PolygonMesh whole;
    whole.name = mesh->name;
    if (isGood)
        reserveFor(meshes, &whole);
    for (PolygonMesh &part : meshes) {
        if (isGood)
            appendMesh(&whole, part);
        part = {};
    }
    isGood = isGood && isComplete(whole);
    if (isGood)
        *mesh = whole;
    return isGood;
}

void writeNumbers(QByteArray *text, const char *keyword, std::initializer_list<float> numbers)
{
    *text += keyword;
    for (float number : numbers) {
        *text += ' ';
        appendNumber(text, number);
    }
    *text += '\n';
}

class ObjMeshWriter
{
public:
    void write(const PolygonMesh &mesh)
    {
        m_text += "o " + mesh.name.toUtf8() + '\n';
        writeLines(mesh.positions.size(), [&mesh](QByteArray *text, int v) {
            const Vector &p = mesh.positions.at(v);
            writeNumbers(text, "v", {p.x, p.y, p.z});
        });
        writeLines(mesh.uvs.size(), [&mesh](QByteArray *text, int i) {
            const UV &uv = mesh.uvs.at(i);
            writeNumbers(text, "vt", {uv.u, uv.v});
        });
        writeLines(mesh.normals.size(), [&mesh](QByteArray *text, int v) {
            const Vector &n = mesh.normals.at(v);
            writeNumbers(text, "vn", {n.x, n.y, n.z});
        });
        writeLines(polygonCount(mesh), [this, &mesh](QByteArray *text, int p) {
            *text += 'f';
            for (int slot = mesh.polygons.firstCorner[p]; slot < mesh.polygons.firstCorner[p + 1];
                 ++slot)
                writeCorner(text, mesh, slot);
            *text += '\n';
        });
        m_vertices += mesh.positions.size();
        m_uvs += mesh.uvs.size();
        m_normals += mesh.normals.size();
    }

    const QByteArray &text() const { return m_text; }

private:
    template <typename WriteLine>
    void writeLines(int count, WriteLine writeLine)
    {
        const qint64 lines = count;
        const int parts = threadsFor(lines, LeastLinesOfThread);
        std::vector<QByteArray> texts;
        texts.resize(size_t(parts));
        inParallel(parts, [&](int part) {
            QByteArray *text = part == 0 ? &m_text : &texts[size_t(part)];
            for (qint64 line = lines * part / parts; line < lines * (part + 1) / parts; ++line)
                writeLine(text, int(line));
        });
        for (const QByteArray &text : texts)
            m_text += text;
    }

    // Numbers go on counting from object to object.
    void writeCorner(QByteArray *text, const PolygonMesh &mesh, int slot) const
    {
        const int vertex = mesh.polygons.corners[slot] + 1;
        const int uv = mesh.polygons.uvCorners[slot] + 1;
        *text += ' ';
        appendNumber(text, m_vertices + vertex);
        if (uv > 0 || !mesh.normals.isEmpty())
            *text += '/';
        if (uv > 0)
            appendNumber(text, m_uvs + uv);
        if (!mesh.normals.isEmpty()) {
            *text += '/';
            appendNumber(text, m_normals + vertex);
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
    const int threads = threadsFor(text.size(), LeastBytesOfThread);
    return readObjMesh(text, threads > 1 ? threads * PartsOfThread : 1, mesh, error);
}

bool readObjMesh(const QByteArray &text, int parts, PolygonMesh *mesh, QString *error)
{
    const TextLines lines(text, true);
    if (parts > 1 && readInParts(lines.inParts(parts), mesh))
        return true;
    ObjMeshReader reader(lines, mesh); // what is wrong, it names by its line
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
