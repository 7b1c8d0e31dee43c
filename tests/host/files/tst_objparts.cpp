// SPDX-License-Identifier: MIT
// An OBJ text read in parts is what it is when read as a whole, and is written by several threads
// as by one.
#include "host/files/objmesh.h"
#include "host/files/textwords.h"

#include "tests/support/repetitions.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>

using namespace orvane;

namespace {

const int ManyLines = 30000; // so many are shared out

struct Read
{
    bool isGood = false;
    PolygonMesh mesh;
    QString error;
};

Read readAs(const QByteArray &text, int parts)
{
    Read read;
    read.mesh.name = QStringLiteral("mesh");
    read.isGood = readObjMesh(text, parts, &read.mesh, &read.error);
    return read;
}

template <typename T>
bool isSame(const QVector<T> &a, const QVector<T> &b)
{
    return a.size() == b.size()
           && std::memcmp(a.constData(), b.constData(), size_t(a.size()) * sizeof(T)) == 0;
}

void expectSame(const Read &read, const Read &wanted, const QByteArray &text)
{
    ASSERT_EQ(read.isGood, wanted.isGood) << text.constData();
    ASSERT_EQ(read.error, wanted.error) << text.constData();
    if (!wanted.isGood)
        return;
    const PolygonMesh &mesh = read.mesh;
    EXPECT_EQ(mesh.name, wanted.mesh.name);
    EXPECT_TRUE(isSame(mesh.positions, wanted.mesh.positions)) << text.constData();
    EXPECT_TRUE(isSame(mesh.uvs, wanted.mesh.uvs)) << text.constData();
    EXPECT_EQ(mesh.polygons.corners, wanted.mesh.polygons.corners) << text.constData();
    EXPECT_EQ(mesh.polygons.uvCorners, wanted.mesh.polygons.uvCorners) << text.constData();
    EXPECT_EQ(mesh.polygons.firstCorner, wanted.mesh.polygons.firstCorner) << text.constData();
}

class RandomText
{
public:
    explicit RandomText(std::mt19937 *random)
        : m_random(*random),
          m_allowsFaults(below(2) == 0),
          m_countsBack(below(3) == 0),
          m_break(below(4))
    {}

    QByteArray text()
    {
        QByteArray text = below(4) == 0 ? "\xef\xbb\xbf" : "";
        for (int line = 2 + below(40); line > 0; --line)
            text += this->line() + lineBreak();
        if (below(4) == 0)
            text.chop(1);
        return text;
    }

private:
    int below(int count) { return int(m_random() % unsigned(count)); }
    bool isFault() { return m_allowsFaults && below(60) == 0; }

    QByteArray lineBreak()
    {
        const char *const breaks[] = {"\n", "\r\n", "\r"};
        return breaks[m_break == 3 ? below(3) : m_break];
    }

    // Of words; the blank between two may carry on in the next line.
    QByteArray blank()
    {
        return below(12) == 0  ? (below(2) == 0 ? " \\" : "\\ ") + lineBreak()
               : below(8) == 0 ? QByteArray("\t ")
                               : QByteArray(" ");
    }

    QByteArray number() { return isFault() ? "1x" : QByteArray::number(below(2000) / 8.0 - 9.0); }

    QByteArray reference(int count)
    {
        if (isFault())
            return QByteArray::number(below(2 * count + 9) - count - 4);
        if (count > 0 && m_countsBack && below(2) == 0)
            return QByteArray::number(-1 - below(count));
        return QByteArray::number(1 + below(count + (m_allowsFaults ? 3 : 0)));
    }

    QByteArray line()
    {
        switch (below(9)) {
        case 0:
            return "";
        case 1:
            return below(2) == 0 ? "# f 9 9 9 \\" : " vn 0 0 1 # \\ ";
        case 2:
            ++m_uvs;
            return "vt" + blank() + number() + blank() + number();
        case 3:
        case 4:
        case 5:
            break;
        default:
            ++m_vertices;
            return "v" + blank() + number() + blank() + number() + blank() + number();
        }
        if (m_vertices == 0)
            return "s off";
        QByteArray face = "f";
        for (int corners = below(6); corners > 0; --corners)
            face += blank() + reference(m_vertices)
                    + (m_uvs > 0 && below(2) == 0 ? '/' + reference(m_uvs) : QByteArray());
        return face;
    }

    std::mt19937 &m_random;
    bool m_allowsFaults;
    bool m_countsBack;
    int m_break;
    int m_vertices = 0;
    int m_uvs = 0;
};

QByteArray lineOf(const char *keyword, const Vector &v)
{
    return keyword + (' ' + numberText(v.x)) + ' ' + numberText(v.y) + ' ' + numberText(v.z) + '\n';
}

} // namespace

TEST(ObjParts, giveTheMeshOrTheErrorOfTheWholeText)
{
    std::mt19937 random(testSeed());
    int good = 0;
    int bad = 0;
    const int texts = repetitions("QUILLMESH_OBJ_TEXTS", 1500);
    for (int i = 0; i < texts; ++i) {
        const QByteArray text = RandomText(&random).text();
        const Read wanted = readAs(text, 1);
        ++(wanted.isGood ? good : bad);
        for (int parts : {2, 3, 7, 50})
            ASSERT_NO_FATAL_FAILURE(expectSame(readAs(text, parts), wanted, text));
    }
    EXPECT_GT(good, texts / 10);
    EXPECT_GT(bad, texts / 10);
}

TEST(ObjParts, aLineThatCarriesOnIsNeverCut)
{
    const QByteArray text = "v 0 0 0\r\nv 1 0 \\\r\n 0\r\nv 0 1 0\nf \\ \n\\\n1 \\\r2\\\r\n 3\n";
    for (int parts = 2; parts <= text.size(); ++parts) {
        const Read read = readAs(text, parts);
        EXPECT_TRUE(read.isGood) << qPrintable(read.error);
        EXPECT_EQ(read.mesh.polygons.corners, QVector<int>({0, 1, 2})) << parts;
    }
}

TEST(ObjParts, anErrorNamesItsLineInTheWholeText)
{
    QByteArray text;
    for (int i = 0; i < 1000; ++i)
        text += "v 0 0 " + QByteArray::number(i) + "\r\n";
    text += "\\\r\n\r\nf 1 2 0\r\n" + QByteArray(500, ' ') + "\r\nf 1 x 2\r\n";
    for (int parts : {1, 2, 5, 40})
        EXPECT_EQ(readAs(text, parts).error,
                  QStringLiteral("line 1003: face 1 refers to vertex 0, but they count from 1."));
}

TEST(ObjParts, aMarkOfTheByteOrderIsOneInFrontAlone)
{
    const QByteArray text = "\xef\xbb\xbfv 0 0 0\nv 1 0 0\n\xef\xbb\xbfv 9 9 9\nv 0 1 0\nf 1 2 3\n";
    const Read wanted = readAs(text, 1);
    EXPECT_EQ(wanted.mesh.positions.size(), 3);
    for (int parts = 2; parts < 20; ++parts)
        expectSame(readAs(text, parts), wanted, text);
}

TEST(ObjParts, manyLinesAreWrittenInTheirOrder)
{
    std::mt19937 random(testSeed());
    PolygonMesh mesh;
    mesh.name = QStringLiteral("net");
    QByteArray vertices;
    QByteArray uvs;
    QByteArray normals;
    QByteArray faces;
    for (int i = 0; i < ManyLines; ++i) {
        const Vector place(randomBetween(random, -9, 9), randomBetween(random, -9, 9), float(i));
        const Vector normal(randomBetween(random, -1, 1), 0.0f, randomBetween(random, -1e-5f, 1));
        mesh.positions.append(place);
        mesh.normals.append(normal);
        mesh.uvs.append({place.x, normal.x});
        vertices += lineOf("v", place);
        normals += lineOf("vn", normal);
        uvs += "vt " + numberText(place.x) + ' ' + numberText(normal.x) + '\n';
        faces += 'f';
        for (int corner = 0; corner < 3; ++corner) {
            const int vertex = int(random() % ManyLines);
            const QByteArray n = QByteArray::number(vertex + 1);
            mesh.addCorner(vertex, corner == 1 ? -1 : vertex);
            faces += ' ' + n + (corner == 1 ? "//" : '/' + n + '/') + n;
        }
        mesh.endPolygon();
        faces += '\n';
    }
    EXPECT_EQ(objTextOf({mesh}), "o net\n" + vertices + uvs + normals + faces);
}
