// SPDX-License-Identifier: MIT
#include "tests/cli/batchrun.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class Batch : public BatchTest
{
protected:
    Batch() { writePlane(); }

    QJsonObject report(const QString &curves, const QStringList &more = {}) const
    {
        const BatchResult result = build(curves, QStringList(QStringLiteral("--json")) + more);
        return QJsonDocument::fromJson(result.output.toUtf8()).object();
    }

    // Two quads at opposite corners of a crossing, which share nothing but its vertex.
    void writeBowtie() const
    {
        writeStrokes(QStringLiteral("bowtie.json"), {{1.1, 5.1, 9.2, 5.1},
                                                     {5.2, 1.1, 5.2, 9.3},
                                                     {1.2, 2.1, 5.5, 2.1},
                                                     {2.2, 1.2, 2.2, 5.5},
                                                     {4.8, 8.1, 9.1, 8.1},
                                                     {8.2, 4.7, 8.2, 9.1}});
    }
};

QString key(const char *name)
{
    return QString::fromUtf8(name);
}

} // namespace

TEST_F(Batch, aNetOfThreeByThreeStrokesMakesFourQuads)
{
    writeNet();
    const BatchResult result = build(QStringLiteral("net.json"));
    EXPECT_EQ(result.exitCode, 0) << qPrintable(result.errors);
    EXPECT_TRUE(result.output.contains(QStringLiteral("4: 4 quads"))) << qPrintable(result.output);
    EXPECT_TRUE(result.errors.isEmpty()) << qPrintable(result.errors);
    const QByteArray mesh = read(QStringLiteral("out.obj"));
    EXPECT_EQ(mesh.count("\nv "), 9);
    EXPECT_EQ(mesh.count("\nf "), 4);
    EXPECT_TRUE(mesh.contains("plane-Retopo"));
}

TEST_F(Batch, theReportForMachinesHasEveryFigure)
{
    writeNet();
    const QJsonObject json = report(QStringLiteral("net.json"));
    EXPECT_EQ(json[key("crossings")].toInt(), 9);
    EXPECT_EQ(json[key("merged")].toInt(), 0);
    EXPECT_EQ(json[key("curves")].toInt(), 6);
    EXPECT_EQ(json[key("points")].toInt(), 12);
    EXPECT_EQ(json[key("pointsBound")].toInt(), 12);
    EXPECT_EQ(json[key("averageEdgeLength")].toDouble(), 1.0);
    EXPECT_EQ(json[key("faces")].toObject()[key("4")].toInt(), 4);
    EXPECT_EQ(json[key("pieces")].toArray().size(), 1);
    EXPECT_EQ(json[key("meshes")].toArray().size(), 1);
    EXPECT_EQ(json[key("written")].toArray(), QJsonArray{QStringLiteral("out.obj")});
    for (const char *stage : {"measure", "sample", "self", "cross", "link", "merge", "pieces",
                              "order", "build", "read mesh", "read curves", "bind", "write"})
        EXPECT_TRUE(json[key("seconds")].toObject().contains(key(stage))) << stage;
    EXPECT_FALSE(json.contains(key("failure")));
}

TEST_F(Batch, theSameInputTwiceGivesTheSameBytes)
{
    writeNet();
    const QStringList extras{QStringLiteral("--dump"),    QStringLiteral("d.json"),
                             QStringLiteral("--picture"), QStringLiteral("p.png"),
                             QStringLiteral("--size"),    QStringLiteral("320x240")};
    QList<QByteArray> first;
    for (int round = 0; round < 2; ++round) {
        ASSERT_EQ(build(QStringLiteral("net.json"), extras).exitCode, 0);
        const QList<QByteArray> bytes{read(QStringLiteral("out.obj")),
                                      read(QStringLiteral("d.json")),
                                      read(QStringLiteral("p.png"))};
        if (round == 0)
            first = bytes;
        else
            EXPECT_EQ(bytes, first);
    }
    EXPECT_EQ(QImage(path(QStringLiteral("p.png"))).size(), QSize(320, 240));
}

TEST_F(Batch, aRunThatMakesNothingSaysWhyAndDoesNotExitZero)
{
    writeStrokes(QStringLiteral("apart.json"), {{1, 1, 9, 1.5}, {1, 3, 9, 3.5}});
    const BatchResult apart = build(QStringLiteral("apart.json"));
    EXPECT_EQ(apart.exitCode, 1);
    EXPECT_TRUE(apart.output.contains(QStringLiteral("No mesh was made: no two curves cross")))
        << qPrintable(apart.output);

    writeStrokes(QStringLiteral("cross.json"), {{1, 1.2, 9, 8.7}, {1, 8.9, 9, 1.3}});
    const BatchResult cross = build(QStringLiteral("cross.json"));
    EXPECT_EQ(cross.exitCode, 1);
    EXPECT_TRUE(cross.output.contains(QStringLiteral("piece 0 (1 crossing,")))
        << qPrintable(cross.output);
    EXPECT_FALSE(exists(QStringLiteral("out.obj")));
}

TEST_F(Batch, cellsOverTheLimitAreCountedAsSuch)
{
    writeNet();
    const BatchResult result =
        build(QStringLiteral("net.json"), {QStringLiteral("--max-edges"), QStringLiteral("3")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.output.contains(QStringLiteral("4: 4 with more edges than the limit")))
        << qPrintable(result.output);
    EXPECT_TRUE(result.output.contains(QStringLiteral("has at most 3 edges")))
        << qPrintable(result.output);
}

TEST_F(Batch, dumpAndPictureShowWhyNothingWasMade)
{
    writeStrokes(QStringLiteral("cross.json"), {{1, 1.2, 9, 8.7}, {1, 8.9, 9, 1.3}});
    const BatchResult result =
        build(QStringLiteral("cross.json"), {QStringLiteral("--dump"), QStringLiteral("d.json"),
                                             QStringLiteral("--picture"), QStringLiteral("p.png")});
    EXPECT_EQ(result.exitCode, 1);
    const QJsonObject dump = QJsonDocument::fromJson(read(QStringLiteral("d.json"))).object();
    EXPECT_EQ(dump[key("pieces")].toArray().size(), 1);
    EXPECT_TRUE(dump[key("meshes")].toArray().isEmpty());
    EXPECT_EQ(QImage(path(QStringLiteral("p.png"))).size(), QSize(1600, 1200));
}

TEST_F(Batch, aLoopInsideACellIsWarnedOf)
{
    const auto square = [](double low, double high) {
        return QVector<QVector<double>>{{low, low + 0.3, high, low + 0.3},
                                        {low, high - 0.3, high, high - 0.3},
                                        {low + 0.31, low, low + 0.31, high},
                                        {high - 0.31, low, high - 0.31, high}};
    };
    writeStrokes(QStringLiteral("nested.json"), square(1, 9) + square(4, 6));
    const BatchResult result = build(QStringLiteral("nested.json"));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.output.contains(QStringLiteral("lies inside a face of piece 0")))
        << qPrintable(result.output);
    EXPECT_TRUE(result.output.contains(QStringLiteral("its mesh lies over that face")));
    const QVector<QVector<double>> cross{{4, 5.1, 6, 5.1}, {5.1, 4, 5.1, 6}};
    writeStrokes(QStringLiteral("cross.json"), square(1, 9) + cross);
    const QString bare = build(QStringLiteral("cross.json")).output;
    EXPECT_TRUE(bare.contains(QStringLiteral("lies inside a face of piece 0"))) << qPrintable(bare);
    EXPECT_FALSE(bare.contains(QStringLiteral("its mesh"))) << qPrintable(bare);
    writeStrokes(QStringLiteral("beside.json"), square(1, 4) + square(5, 9));
    EXPECT_FALSE(build(QStringLiteral("beside.json")).output.contains(QStringLiteral("warning")));
}

TEST_F(Batch, crossingsOnACurvePointAreNamed)
{
    writeStrokes(QStringLiteral("exact.json"), {{1, 5, 5, 5, 9, 5}, {5, 1, 5, 9}});
    const BatchResult result = build(QStringLiteral("exact.json"));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.output.contains(QStringLiteral("\"curve 1\" and \"curve 2\" at 5 5 0")))
        << qPrintable(result.output);
}

TEST_F(Batch, aCurveThatCrossesNothingIsNamed)
{
    writeNet();
    EXPECT_FALSE(build(QStringLiteral("net.json")).output.contains(QStringLiteral("warning")));
    QByteArray curves = read(QStringLiteral("net.json"));
    curves.replace("\"curves\": [",
                   "\"curves\": [{\"name\": \"lonely\", \"points\": [[3, 3, 0], [3.5, 3.6, 0]]},");
    write(QStringLiteral("lonely.json"), curves);
    const BatchResult result = build(QStringLiteral("lonely.json"));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.output.contains(QStringLiteral("1 curve without a crossing: \"lonely\"")))
        << qPrintable(result.output);
    const QJsonArray idle =
        report(QStringLiteral("lonely.json"))[key("curvesWithoutCrossing")].toArray();
    ASSERT_EQ(idle.size(), 1);
    EXPECT_EQ(idle[0].toObject()[key("index")].toInt(), 0);
}

TEST_F(Batch, facesLeftOutInReadingAreSaidAndAreAFault)
{
    write(QStringLiteral("plane.obj"), read(QStringLiteral("plane.obj")) + "f 1 1 2 2\n");
    const BatchResult check = run({QStringLiteral("check"), QStringLiteral("plane.obj")});
    EXPECT_EQ(check.exitCode, 4);
    EXPECT_TRUE(check.output.contains(QStringLiteral("fault bits 0x20000")));
    EXPECT_TRUE(check.output.contains(QStringLiteral("1 face of fewer than three different")));
    writeNet();
    EXPECT_TRUE(build(QStringLiteral("net.json"))
                    .output.contains(QStringLiteral("1 face of fewer than three different")));
}

TEST_F(Batch, curvesOffTheMeshAreReportedToMachinesToo)
{
    write(QStringLiteral("far.json"),
          "{\"curves\": [{\"points\": [[0, 0, 90], [1, 1, 90], [2, 1, 90]]}]}");
    const BatchResult result = build(QStringLiteral("far.json"), {QStringLiteral("--json")});
    EXPECT_EQ(result.exitCode, 1);
    const QJsonObject json = QJsonDocument::fromJson(result.output.toUtf8()).object();
    EXPECT_TRUE(json[key("failure")].toString().contains(QStringLiteral("none of its 3 points")));
    EXPECT_EQ(json[key("pointsBound")].toInt(), 0);
}

TEST_F(Batch, faultsAreAcceptedLoudlyOrCostTheMesh)
{
    writeBowtie();
    const BatchResult accepted = build(QStringLiteral("bowtie.json"));
    EXPECT_EQ(accepted.exitCode, 0) << qPrintable(accepted.output);
    EXPECT_TRUE(accepted.output.contains(QStringLiteral("FAULTS"))) << qPrintable(accepted.output);
    EXPECT_TRUE(accepted.errors.startsWith(QStringLiteral("WARNING: accepted a mesh with faults")))
        << qPrintable(accepted.errors);
    EXPECT_TRUE(exists(QStringLiteral("out.obj")));

    ASSERT_TRUE(QFile::remove(path(QStringLiteral("out.obj"))));
    const BatchResult discarded = build(QStringLiteral("bowtie.json"),
                                        {QStringLiteral("--on-faults"), QStringLiteral("discard")});
    EXPECT_EQ(discarded.exitCode, 4) << qPrintable(discarded.output);
    EXPECT_TRUE(discarded.output.contains(QStringLiteral("discarded for its faults")));
    EXPECT_FALSE(exists(QStringLiteral("out.obj")));
}

TEST_F(Batch, checkSaysWhatBuildAccepted)
{
    writeNet();
    ASSERT_EQ(build(QStringLiteral("net.json")).exitCode, 0);
    const BatchResult clean = run({QStringLiteral("check"), QStringLiteral("out.obj")});
    EXPECT_EQ(clean.exitCode, 0);
    EXPECT_TRUE(clean.output.contains(QStringLiteral("fault bits 0x00000")));

    writeBowtie();
    ASSERT_EQ(build(QStringLiteral("bowtie.json")).exitCode, 0);
    const BatchResult faulty = run({QStringLiteral("check"), QStringLiteral("out.obj")});
    EXPECT_EQ(faulty.exitCode, 4);
    EXPECT_TRUE(faulty.output.contains(QStringLiteral("vertex")));
    EXPECT_FALSE(faulty.output.contains(QStringLiteral("0x00000")));
}

TEST_F(Batch, selfIntersectionsCountOnlyWhenAskedFor)
{
    const QVector<double> eight{1.1, 1.2, 8.3, 8.4, 8.6, 1.3, 1.4, 8.7};
    writeStrokes(QStringLiteral("eight.json"), {eight});
    EXPECT_EQ(report(QStringLiteral("eight.json"))[key("crossings")].toInt(), 0);
    EXPECT_EQ(report(QStringLiteral("eight.json"),
                     {QStringLiteral("--self-intersections")})[key("crossings")]
                  .toInt(),
              1);
}

TEST_F(Batch, theOverrunClosesAStrokeThatStopsShort)
{
    writeStrokes(QStringLiteral("short.json"), {{1, 2.1, 9, 2.1},
                                                {1, 7.3, 9, 7.3},
                                                {2.2, 1, 2.2, 9},
                                                {7.4, 3, 7.4, 7.1},
                                                {6.0, 1.0, 6.0, 9.0}});
    // The stroke at 7.4 reaches neither neighbour but with its overrun both.
    EXPECT_EQ(report(QStringLiteral("short.json"))[key("crossings")].toInt(), 6);
    EXPECT_EQ(report(QStringLiteral("short.json"),
                     {QStringLiteral("--overrun"), QStringLiteral("0")})[key("crossings")]
                  .toInt(),
              4);
}

TEST_F(Batch, pictureDrawsAMeshAlone)
{
    const BatchResult result =
        run({QStringLiteral("picture"), QStringLiteral("plane.obj"), QStringLiteral("-o"),
             QStringLiteral("p.png"), QStringLiteral("--size"), QStringLiteral("200x100")});
    EXPECT_EQ(result.exitCode, 0) << qPrintable(result.errors);
    EXPECT_EQ(QImage(path(QStringLiteral("p.png"))).size(), QSize(200, 100));
}

TEST_F(Batch, severalRunsShareAFolder)
{
    writeNet();
    for (int i = 0; i < 3; ++i)
        ASSERT_EQ(build(QStringLiteral("net.json")).exitCode, 0);
    EXPECT_EQ(files(), (QStringList{QStringLiteral("net.json"), QStringLiteral("out.obj"),
                                    QStringLiteral("plane.obj")}));
}

TEST_F(Batch, versionAndHelpAnswer)
{
    EXPECT_TRUE(run({QStringLiteral("--version")}).output.startsWith(QStringLiteral("quillmesh ")));
    const BatchResult help = run({QStringLiteral("--help")});
    EXPECT_EQ(help.exitCode, 0);
    for (const char *command : {"build", "check", "picture"})
        EXPECT_TRUE(help.output.contains(key(command))) << command;
}
