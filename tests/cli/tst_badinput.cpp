// SPDX-License-Identifier: MIT
#include "tests/cli/batchrun.h"

#include <QFile>
#include <QFileInfo>

namespace {

// Bytes of a file, or none for a file that is missing.
struct BadFile
{
    const char *test;  // name of the case
    const char *bytes; // null: no such file
    int exitCode;
    const char *place; // what the sentence must name beside the file
};

void PrintTo(const BadFile &bad, std::ostream *stream)
{
    *stream << bad.test;
}

std::string nameOf(const testing::TestParamInfo<BadFile> &info)
{
    return info.param.test;
}

class BadInput : public BatchTest
{
protected:
    // One sentence on the error stream, nothing written, nothing left over.
    void expectRefusal(const BatchResult &result, int exitCode, const char *file,
                       const char *place) const
    {
        EXPECT_EQ(result.exitCode, exitCode) << qPrintable(result.errors);
        EXPECT_EQ(result.errors.count(QLatin1Char('\n')), 1) << qPrintable(result.errors);
        EXPECT_TRUE(result.errors.contains(QString::fromUtf8(file))) << qPrintable(result.errors);
        EXPECT_TRUE(result.errors.contains(QString::fromUtf8(place))) << qPrintable(result.errors);
        EXPECT_TRUE(result.output.isEmpty()) << qPrintable(result.output);
        EXPECT_FALSE(exists(QStringLiteral("out.obj")));
    }
};

class BadMesh : public BadInput, public testing::WithParamInterface<BadFile>
{};

class BadCurves : public BadInput, public testing::WithParamInterface<BadFile>
{};

const char Triangle[] = "v 0 0 0\nv 1 0 0\nv 0 1 0\n";

} // namespace

TEST_P(BadMesh, isRefusedInOneSentence)
{
    writeNet();
    if (GetParam().bytes)
        write(QStringLiteral("plane.obj"), GetParam().bytes);
    const QStringList before = files();
    expectRefusal(build(QStringLiteral("net.json")), GetParam().exitCode, "plane.obj",
                  GetParam().place);
    EXPECT_EQ(files(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Batch, BadMesh,
    testing::Values(
        BadFile{"missing", nullptr, 3, "no such file"}, BadFile{"empty", "", 3, "empty"},
        BadFile{"notAMesh", "\x7f\x45\x4c\x46 this is no mesh\n", 3, ""},
        BadFile{"withoutFaces", Triangle, 3, "no faces"},
        BadFile{"nanPosition", "v 0 0 0\nv 1 nan 0\nv 0 1 0\nf 1 2 3\n", 3, "line 2"},
        BadFile{"infinitePosition", "v 0 0 0\nv 1 0 0\nv 0 1e999 0\nf 1 2 3\n", 3, "line 3"},
        BadFile{"indexOutOfRange", "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 9\n", 3, "line 4"},
        BadFile{"negativeIndexOutOfRange", "v 0 0 0\nv 1 0 0\nv 0 1 0\nf -1 -2 -9\n", 3, "line 4"},
        BadFile{"indexZero", "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 0 1 2\n", 3, "line 4"},
        BadFile{"flatFacesOnly", "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 1\n", 3, "corners"}),
    nameOf);

TEST_P(BadCurves, areRefusedInOneSentence)
{
    writePlane();
    if (GetParam().bytes)
        write(QStringLiteral("bad.json"), GetParam().bytes);
    const QStringList before = files();
    expectRefusal(build(QStringLiteral("bad.json")), GetParam().exitCode, "bad.json",
                  GetParam().place);
    EXPECT_EQ(files(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Batch, BadCurves,
    testing::Values(
        BadFile{"missing", nullptr, 3, "no such file"}, BadFile{"empty", "", 3, "empty"},
        BadFile{"notJson", "these are no curves", 3, "line 1"},
        BadFile{"cutOff", "{\"curves\": [{\"points\": [[0, 0, 0], [1, ", 3, ""},
        BadFile{"wrongShape", "[1, 2, 3]", 3, "curves"},
        BadFile{"noCurves", "{\"curves\": []}", 3, ""},
        BadFile{"curvesOfWrongType", "{\"curves\": 5}", 3, "curves"},
        BadFile{"curveOfWrongType", "{\"curves\": [{\"points\": []}, 7]}", 3, "curve 2"},
        BadFile{"pointOfTwo", "{\"curves\": [{\"points\": [[0, 0, 0], [1, 2]]}]}", 3, "point 2"},
        BadFile{"pointOfText", "{\"curves\": [{\"name\": \"eye\", \"points\": [[0, \"x\", 0]]}]}",
                3, "eye"},
        BadFile{"tooLargeForAFloat", "{\"curves\": [{\"points\": [[0, 1e300, 0]]}]}", 3, "point 1"},
        BadFile{"notFinite", "{\"curves\": [{\"points\": [[0, 1e999, 0]]}]}", 3, ""},
        BadFile{"closedOfWrongType",
                "{\"curves\": [{\"closed\": \"yes\", \"points\": [[0, 0, 0]]}]}", 3, "closed"},
        BadFile{"farFromTheMesh",
                "{\"curves\": [{\"points\": [[0, 0, 90], [1, 1, 90], [2, 1, 90]]}]}", 1,
                "none of its 3 points"}),
    nameOf);

TEST_F(BadInput, outputInAFolderThatDoesNotExistIsRefused)
{
    writePlane();
    writeNet();
    const BatchResult result =
        run({QStringLiteral("build"), QStringLiteral("plane.obj"), QStringLiteral("net.json"),
             QStringLiteral("-o"), QStringLiteral("nowhere/out.obj")});
    expectRefusal(result, 3, "nowhere/out.obj", "does not exist");
}

TEST_F(BadInput, outputBelowAFileIsRefused)
{
    writePlane();
    writeNet();
    const BatchResult result =
        run({QStringLiteral("build"), QStringLiteral("plane.obj"), QStringLiteral("net.json"),
             QStringLiteral("-o"), QStringLiteral("net.json/out.obj")});
    expectRefusal(result, 3, "out.obj", "net.json is a file");
}

TEST_F(BadInput, outputOfAnUnknownKindIsRefusedBeforeTheWork)
{
    const BatchResult result =
        run({QStringLiteral("build"), QStringLiteral("missing.obj"), QStringLiteral("missing.json"),
             QStringLiteral("-o"), QStringLiteral("out.xyz")});
    expectRefusal(result, 3, "out.xyz", ".obj");
}

TEST_F(BadInput, pictureOfAnotherKindIsRefused)
{
    writePlane();
    writeNet();
    expectRefusal(
        build(QStringLiteral("net.json"), {QStringLiteral("--picture"), QStringLiteral("p.jpg")}),
        3, "p.jpg", ".png");
}

TEST_F(BadInput, outputOverAnInputOrAnotherOutputIsRefused)
{
    writePlane();
    writeNet();
    const QByteArray plane = read(QStringLiteral("plane.obj"));
    const QByteArray net = read(QStringLiteral("net.json"));
    const QStringList words{QStringLiteral("build"), QStringLiteral("plane.obj"),
                            QStringLiteral("net.json"), QStringLiteral("-o")};
    expectRefusal(run(words + QStringList{QStringLiteral("./plane.obj")}), 3, "plane.obj",
                  "another name");
    EXPECT_EQ(read(QStringLiteral("plane.obj")), plane);
    const QString dump = QStringLiteral("--dump");
    expectRefusal(build(QStringLiteral("net.json"), {dump, QStringLiteral("net.json")}), 3,
                  "net.json", "another name");
    EXPECT_EQ(read(QStringLiteral("net.json")), net);
    expectRefusal(build(QStringLiteral("net.json"), {dump, path(QStringLiteral("out.obj"))}), 3,
                  "out.obj", "another name");
    ASSERT_TRUE(QFile::link(path(QStringLiteral("plane.obj")), path(QStringLiteral("link.obj"))));
    expectRefusal(run(words + QStringList{QStringLiteral("link.obj")}), 3, "link.obj",
                  "another name");
    EXPECT_EQ(read(QStringLiteral("plane.obj")), plane);
}

TEST_F(BadInput, aReportThatCannotBeWrittenIsFileTrouble)
{
    const QFileInfo full(QStringLiteral("/dev/full"));
    if (!full.exists())
        GTEST_SKIP() << "this machine has no /dev/full";
    writePlane();
    writeNet();
    const BatchResult result =
        runInto(full.filePath(),
                {QStringLiteral("build"), QStringLiteral("plane.obj"), QStringLiteral("net.json"),
                 QStringLiteral("-o"), QStringLiteral("out.obj")});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_TRUE(result.errors.contains(QStringLiteral("report"))) << qPrintable(result.errors);
    EXPECT_TRUE(exists(QStringLiteral("out.obj")));
}

TEST_F(BadInput, aPlatformThatDoesNotExistIsSaid)
{
    const BatchResult result = run({QStringLiteral("-platform"), QStringLiteral("nowhere")});
    EXPECT_NE(result.exitCode, 0);
    EXPECT_TRUE(result.errors.contains(QStringLiteral("platform"))) << qPrintable(result.errors);
}

TEST_F(BadInput, aFullDiskLeavesTheOldFileWhole)
{
    writePlane();
    QVector<QVector<double>> strokes;
    for (int i = 0; i < 20; ++i) {
        const double at = 1.11 + 0.4 * i;
        strokes.append({0.53, at, 9.47, at});
        strokes.append({at, 0.57, at, 9.43});
    }
    writeStrokes(QStringLiteral("dense.json"), strokes); // an output of some 20 KiB
    write(QStringLiteral("out.obj"), "an older mesh\n");
    const QStringList before = files();
    const BatchResult result = runWithFileLimit(
        4, {QStringLiteral("build"), QStringLiteral("plane.obj"), QStringLiteral("dense.json"),
            QStringLiteral("-o"), QStringLiteral("out.obj")});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_TRUE(result.errors.contains(QStringLiteral("out.obj"))) << qPrintable(result.errors);
    EXPECT_TRUE(result.errors.contains(QStringLiteral("too large"))) << qPrintable(result.errors);
    EXPECT_EQ(read(QStringLiteral("out.obj")), "an older mesh\n");
    EXPECT_EQ(files(), before);
}

TEST_F(BadInput, unknownCommandsAndMissingOnesAreWrongUsage)
{
    EXPECT_EQ(run({}).exitCode, 2);
    EXPECT_EQ(run({QStringLiteral("bild")}).exitCode, 2);
    EXPECT_TRUE(run({QStringLiteral("bild")}).errors.contains(QStringLiteral("\"bild\"")));
    EXPECT_EQ(build(QStringLiteral("net.json"), {QStringLiteral("--merge"), QStringLiteral("x")})
                  .exitCode,
              2);
}

TEST_F(BadInput, checkAndPictureNameTheirFilesToo)
{
    write(QStringLiteral("bad.obj"), "v 0 0 0\nf 1 2 3\n");
    expectRefusal(run({QStringLiteral("check"), QStringLiteral("bad.obj")}), 3, "bad.obj",
                  "line 2");
    expectRefusal(run({QStringLiteral("picture"), QStringLiteral("bad.obj"), QStringLiteral("-o"),
                       QStringLiteral("p.png")}),
                  3, "bad.obj", "line 2");
    EXPECT_FALSE(exists(QStringLiteral("p.png")));
}
