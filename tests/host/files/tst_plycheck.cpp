// SPDX-License-Identifier: MIT
#include "tests/host/files/filetest.h"

#include <orvane/geometry/subdivisionlevel.h>

using namespace orvane;

namespace {

const char Head[] = "ply\nformat ascii 1.0\ncomment made by hand\nelement vertex 4\n"
                    "property float x\nproperty float y\nproperty float z\n"
                    "element face 2\nproperty list uchar int vertex_indices\nend_header\n";
const char Places[] = "0 0 0\n1 0 0\n1 1 0\n0 1 0\n";

class PlyCheck : public FileTest
{
protected:
    QString error(const QByteArray &text) { return meshError(QStringLiteral("test.ply"), text); }

    //! Two triangles in binary form.
    static QByteArray binary(bool bigEndian)
    {
        QByteArray head = Head;
        head.replace("ascii", bigEndian ? "binary_big_endian" : "binary_little_endian");
        const auto word = [bigEndian](char highest) {
            return bigEndian ? QByteArray{} + highest + QByteArray(3, '\0')
                             : QByteArray(3, '\0') + highest;
        };
        const auto number = [bigEndian](char lowest) {
            return bigEndian ? QByteArray(3, '\0') + lowest
                             : QByteArray{} + lowest + QByteArray(3, '\0');
        };
        const QByteArray zero = word('\0');
        const QByteArray two = word('\x40'); // 0x40000000 is 2 as a float
        const QByteArray three(1, '\3');
        return head + zero + zero + zero + two + zero + zero + two + two + zero + zero + two + zero
               + three + number(0) + number(1) + number(2) + three + number(0) + number(2)
               + number(3);
    }
};

} // namespace

TEST_F(PlyCheck, textFormIsRead)
{
    const Geometry *read =
        mesh(file(QStringLiteral("a.ply"), QByteArray(Head) + Places + "3 0 1 2\n4 3 2 1 0\n"));
    EXPECT_EQ(read->CurrentLevel()->Corners(), QVector<int>({0, 1, 2, 3, 2, 1, 3, 1, 0}));
    EXPECT_TRUE(read->CurrentLevel()->IsFakeTriangle(2));
}

TEST_F(PlyCheck, bothBinaryFormsAreRead)
{
    for (bool bigEndian : {false, true}) {
        const Geometry *read = mesh(file(QStringLiteral("a.ply"), binary(bigEndian)));
        EXPECT_EQ(read->CurrentLevel()->Corners(), QVector<int>({0, 1, 2, 0, 2, 3}));
        EXPECT_EQ(read->CurrentLevel()->VertexPosition(2), Vector(2, 2, 0));
    }
}

TEST_F(PlyCheck, verticesAtOnePlaceStayApart)
{
    QByteArray text = QByteArray(Head) + Places + "3 0 1 2\n3 3 2 1\n";
    text.replace("0 1 0\n", "0 0 0\n");
    EXPECT_EQ(mesh(file(QStringLiteral("a.ply"), text))->CurrentLevel()->VertexCount(), 4);
}

TEST_F(PlyCheck, everyCutIsNoticed)
{
    for (bool bigEndian : {false, true}) {
        const QByteArray whole = binary(bigEndian);
        for (int length = 1; length < whole.size(); ++length)
            EXPECT_FALSE(error(whole.left(length)).isEmpty()) << length;
    }
}

TEST_F(PlyCheck, cutTextNamesTheElement)
{
    EXPECT_EQ(
        error(QByteArray(Head) + Places + "3 0 1 2\n"),
        QStringLiteral("test.ply: the file ends before face 2; its header announces 2 of them."));
    EXPECT_EQ(
        error(QByteArray(Head) + Places + "3 0 1 2\n3 0 1\n"),
        QStringLiteral(
            "test.ply: line 16: face 2 does not have the numbers that the header announces."));
}

TEST_F(PlyCheck, hugeCountIsNotBelieved)
{
    QByteArray text = QByteArray(Head) + Places + "3 0 1 2\n3 0 2 3\n";
    text.replace("face 2", "face 2000000000");
    EXPECT_EQ(error(text),
              QStringLiteral("test.ply: the file ends before face 3; its header announces "
                             "2000000000 of them."));
}

TEST_F(PlyCheck, wordInPlaceOfANumberIsNamed)
{
    QByteArray text = QByteArray(Head) + Places + "3 0 1 2\n3 0 2 3\n";
    text.replace("1 1 0", "1 x 0");
    EXPECT_EQ(error(text),
              QStringLiteral("test.ply: line 13: vertex 3 does not have the numbers that "
                             "the header announces."));
}

TEST_F(PlyCheck, headerLineThatMeansNothingIsNamed)
{
    for (const char *line :
         {"format klingon 1.0", "element vertex", "element vertex -1", "property float",
          "property quark x", "property list float int i", "hello"}) {
        QByteArray text = Head;
        text.replace("comment made by hand", line);
        const QString sentence = error(text);
        EXPECT_TRUE(sentence.startsWith(
            QStringLiteral("test.ply: line 3: \"%1").arg(QString::fromLatin1(line))))
            << qPrintable(sentence);
    }
}

TEST_F(PlyCheck, headerWithoutEndIsRefused)
{
    EXPECT_EQ(error("ply\nformat ascii 1.0\n"),
              QStringLiteral("test.ply: the header does not end; expected a line \"end_header\"."));
}

TEST_F(PlyCheck, otherFileUnderThatNameIsRefused)
{
    EXPECT_EQ(error("hello\n"),
              QStringLiteral("test.ply: this is no PLY file; expected \"ply\" as its first line."));
}
