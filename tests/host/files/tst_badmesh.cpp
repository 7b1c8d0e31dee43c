// SPDX-License-Identifier: MIT
// Meshes that cannot be used, in every format: one sentence with the file, the place and what was
// expected. What only OBJ or PLY can get wrong is with their own tests.
#include "tests/host/files/filetest.h"
#include "tests/support/shapes.h"

#include "host/files/meshfile.h"

#include <orvane/geometry/subdivisionlevel.h>

#include <QDir>

#include <limits>

using namespace orvane;

namespace {

class BadMesh : public FileTest
{
protected:
    //! Where the tetrahedron of the file has a vertex with x = 7, the bytes of another number.
    QByteArray withMark(const QString &suffix, float number)
    {
        Geometry shape;
        shape.AddLevel(tetrahedron(7.0f));
        write({&shape}, path(QStringLiteral("good.") + suffix));
        QByteArray bytes = bytesOf(path(QStringLiteral("good.") + suffix));
        const float mark = 7.0f;
        const QByteArray old(reinterpret_cast<const char *>(&mark), sizeof(mark));
        EXPECT_GT(bytes.count(old), 0);
        return bytes.replace(old,
                             QByteArray(reinterpret_cast<const char *>(&number), sizeof(number)));
    }

    QString writeError(const QVector<const Geometry *> &geometries, const QString &path)
    {
        QString error;
        EXPECT_FALSE(writeMeshes(geometries, path, &error));
        return error;
    }
};

} // namespace

TEST_F(BadMesh, missing)
{
    EXPECT_EQ(meshError(path(QStringLiteral("nothere.obj"))),
              QStringLiteral("nothere.obj: no such file."));
}

TEST_F(BadMesh, aFolder)
{
    ASSERT_TRUE(QDir().mkdir(path(QStringLiteral("folder.obj"))));
    EXPECT_EQ(meshError(path(QStringLiteral("folder.obj"))),
              QStringLiteral("folder.obj: this is a folder or a device; expected a file."));
}

TEST_F(BadMesh, empty)
{
    for (const char *suffix : {"obj", "ply", "stl", "glb", "gltf", "dae"}) {
        const QString name = QStringLiteral("empty.") + QString::fromLatin1(suffix);
        EXPECT_EQ(meshError(name, QByteArray()), name + QStringLiteral(": the file is empty."));
    }
}

TEST_F(BadMesh, notAMesh)
{
    for (const char *suffix : {"obj", "ply", "stl", "glb", "gltf", "dae", "fbx", "txt", "xyz"}) {
        const QString name = QStringLiteral("letter.") + QString::fromLatin1(suffix);
        const QString error =
            meshError(name, "Dear reader,\nthis is a letter and no mesh at all.\n");
        EXPECT_TRUE(error.startsWith(name + QStringLiteral(": "))) << qPrintable(error);
        EXPECT_TRUE(error.endsWith(QLatin1Char('.'))) << qPrintable(error);
        EXPECT_EQ(error.count(QLatin1Char('\n')), 0);
        EXPECT_FALSE(error.contains(QDir::currentPath())) << qPrintable(error);
    }
    EXPECT_EQ(
        meshError(QStringLiteral("letter.txt"), "Dear reader"),
        QStringLiteral("letter.txt: this is no mesh file; expected OBJ, PLY, STL, glTF or another "
                       "mesh format."));
    EXPECT_EQ(meshError(QStringLiteral("letter.obj"), "Dear reader"),
              QStringLiteral(
                  "letter.obj: no vertices; expected the \"v\" and \"f\" lines of an OBJ mesh."));
}

TEST_F(BadMesh, withoutFaces)
{
    EXPECT_EQ(meshError(QStringLiteral("a.obj"), "v 0 0 0\nv 1 0 0\nl 1 2\n"),
              QStringLiteral("a.obj: the file has no faces; expected at least one."));
    const QByteArray points = "ply\nformat ascii 1.0\nelement vertex 1\nproperty float x\n"
                              "property float y\nproperty float z\nend_header\n0 0 0\n";
    EXPECT_EQ(meshError(QStringLiteral("a.ply"), points),
              QStringLiteral("a.ply: the file has no faces; expected at least one."));
    EXPECT_FALSE(meshError(QStringLiteral("a.stl"), QByteArray(84, '\0')).isEmpty());
}

TEST_F(BadMesh, nonFinitePositionsNameTheVertex)
{
    const float infinity = std::numeric_limits<float>::infinity();
    for (const char *suffix : {"ply", "stl", "glb"}) {
        for (float bad : {infinity, -infinity, std::numeric_limits<float>::quiet_NaN()}) {
            const QString name = QStringLiteral("bad.") + QString::fromLatin1(suffix);
            const QString error = meshError(name, withMark(QString::fromLatin1(suffix), bad));
            EXPECT_TRUE(error.startsWith(name + QStringLiteral(": vertex "))) << qPrintable(error);
            EXPECT_TRUE(error.endsWith(QStringLiteral("expected finite numbers.")))
                << qPrintable(error);
        }
    }
}

TEST_F(BadMesh, faceIndexOutOfRangeNamesFaceAndVertex)
{
    const QByteArray text = "ply\nformat ascii 1.0\nelement vertex 3\nproperty float x\n"
                            "property float y\nproperty float z\nelement face 2\n"
                            "property list uchar int vertex_indices\nend_header\n"
                            "0 0 0\n1 0 0\n0 1 0\n3 0 1 2\n";
    EXPECT_EQ(meshError(QStringLiteral("a.ply"), text + "3 0 1 3\n"),
              QStringLiteral("a.ply: face 2 refers to vertex 4, but there are 3 vertices."));
    EXPECT_TRUE(meshError(QStringLiteral("a.ply"), text + "3 0 1 -1\n")
                    .startsWith(QStringLiteral("a.ply: face 2 refers to vertex ")));
}

TEST_F(BadMesh, cutGltfIsRefused)
{
    Geometry shape;
    shape.AddLevel(tetrahedron());
    write({&shape}, path(QStringLiteral("good.glb")));
    const QByteArray whole = bytesOf(path(QStringLiteral("good.glb")));
    for (int length : {1, 11, 12, 20, 100, whole.size() / 2, whole.size() - 4})
        EXPECT_FALSE(meshError(QStringLiteral("cut.glb"), whole.left(length)).isEmpty()) << length;
}

TEST_F(BadMesh, formatThatIsNotWrittenNamesThoseThatAre)
{
    Geometry shape;
    shape.AddLevel(tetrahedron());
    for (const char *name : {"a.fbx", "a.txt", "a", ".obj.bak"}) {
        const QString file = QString::fromLatin1(name);
        EXPECT_EQ(
            writeError({&shape}, path(file)),
            file
                + QStringLiteral(": meshes are not written in this format; expected a name that "
                                 "ends in .obj, .ply, .stl, .glb or .gltf."));
    }
    EXPECT_TRUE(filesInFolder().isEmpty());
}

TEST_F(BadMesh, nothingToWriteMakesNoFile)
{
    const Geometry withoutLevel;
    Geometry withoutFaces;
    withoutFaces.AddLevel(new SubdivisionLevel);
    EXPECT_EQ(writeError({}, path(QStringLiteral("a.obj"))),
              QStringLiteral("a.obj: there are no faces to write."));
    EXPECT_EQ(writeError({&withoutLevel, &withoutFaces}, path(QStringLiteral("a.obj"))),
              QStringLiteral("a.obj: there are no faces to write."));
    EXPECT_TRUE(filesInFolder().isEmpty());
}

TEST_F(BadMesh, nonFinitePositionIsNotWritten)
{
    Geometry shape;
    shape.SetName(QStringLiteral("Body"));
    shape.AddLevel(tetrahedron(std::numeric_limits<float>::infinity()));
    EXPECT_TRUE(writeError({&shape}, path(QStringLiteral("a.obj")))
                    .startsWith(QStringLiteral("a.obj: vertex ")));
    EXPECT_TRUE(filesInFolder().isEmpty());
}

TEST_F(BadMesh, failedWritesLeaveTheOldFile)
{
    Geometry shape;
    shape.AddLevel(sphere(60, 60));
    for (const char *suffix : {"obj", "ply", "stl", "glb", "gltf"}) {
        const QString name = QStringLiteral("a.") + QString::fromLatin1(suffix);
        const QString old = file(name, "old");
        QString error;
        {
            const FileSizeLimit limit(5000);
            error = writeError({&shape}, old);
        }
        EXPECT_TRUE(error.startsWith(name + QStringLiteral(": it cannot be written: ")))
            << qPrintable(error);
        EXPECT_EQ(bytesOf(old), "old");
        EXPECT_TRUE(writeError({&shape}, old + QStringLiteral("/") + name)
                        .endsWith(QStringLiteral("is a file; expected a folder to write into.")));
        EXPECT_TRUE(writeError({&shape}, path(QStringLiteral("none/")) + name)
                        .endsWith(QStringLiteral("does not exist; expected one that does.")));
    }
    EXPECT_EQ(filesInFolder().size(), 5);
}
