// SPDX-License-Identifier: MIT
#include "tests/cli/batchrun.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

QString key(const char *name)
{
    return QString::fromUtf8(name);
}

class Dump : public BatchTest
{
protected:
    // The dump of a run over the net of three by three strokes, or over other curves.
    QJsonObject dump(const QString &curves = QStringLiteral("net.json"),
                     const QStringList &more = {}) const
    {
        writePlane();
        const BatchResult result =
            build(curves, QStringList{QStringLiteral("--dump"), QStringLiteral("d.json")} + more);
        EXPECT_EQ(result.exitCode, 0) << qPrintable(result.errors + result.output);
        return QJsonDocument::fromJson(read(QStringLiteral("d.json"))).object();
    }

    static QJsonArray nodesOf(const QJsonObject &dump)
    {
        return dump[key("pieces")].toArray()[0].toObject()[key("nodes")].toArray();
    }

    static double angleTo(const QJsonObject &from, const QJsonObject &to)
    {
        const QJsonArray a = from[key("position")].toArray();
        const QJsonArray b = to[key("position")].toArray();
        return std::atan2(b[1].toDouble() - a[1].toDouble(), b[0].toDouble() - a[0].toDouble());
    }
};

} // namespace

TEST_F(Dump, parametersAreInTheOperationsUnits)
{
    writeNet();
    const QJsonObject parameters =
        dump(QStringLiteral("net.json"),
             {QStringLiteral("--merge"), QStringLiteral("10"), QStringLiteral("--overrun"),
              QStringLiteral("20")})[key("parameters")]
            .toObject();
    EXPECT_EQ(parameters[key("maximumEdges")].toInt(), 5);
    EXPECT_EQ(parameters[key("mergeDistance")].toDouble(), 0.100000001);
    EXPECT_EQ(parameters[key("intersectionTolerance")].toDouble(), 0.0500000007);
    EXPECT_EQ(parameters[key("overrunTolerance")].toDouble(), 0.200000003);
    EXPECT_FALSE(parameters[key("useSelfIntersections")].toBool());
}

TEST_F(Dump, curvePointsAreStoredBeforeAnyOverrun)
{
    writeNet();
    const QJsonObject json = dump();
    const QJsonArray curves = json[key("curves")].toArray();
    ASSERT_EQ(curves.size(), 6);
    EXPECT_EQ(curves[0].toObject()[key("name")].toString(), QStringLiteral("curve 1"));
    const QJsonObject first = curves[0].toObject()[key("points")].toArray()[0].toObject();
    EXPECT_NEAR(first[key("position")].toArray()[0].toDouble(), 1.05, 1e-6);
    EXPECT_TRUE(first[key("onFace")].toBool());
    EXPECT_EQ(first[key("normal")].toArray(), (QJsonArray{0, 0, 1}));
    EXPECT_EQ(first[key("faceEdgeMean")].toDouble(), 1.0);
}

TEST_F(Dump, averageEdgeLengthIsTheMeanOverThePoints)
{
    writeNet();
    const QJsonObject json = dump();
    double sum = 0.0;
    int count = 0;
    for (const QJsonValue &curve : json[key("curves")].toArray()) {
        for (const QJsonValue &point : curve.toObject()[key("points")].toArray()) {
            sum += point.toObject()[key("faceEdgeMean")].toDouble();
            ++count;
        }
    }
    EXPECT_NEAR(json[key("averageEdgeLength")].toDouble(), sum / count, 1e-7);
}

TEST_F(Dump, nodesAreLinkedBothWaysAndRunCounterClockwise)
{
    writeNet();
    const QJsonArray nodes = nodesOf(dump());
    ASSERT_EQ(nodes.size(), 9);
    for (int i = 0; i < nodes.size(); ++i) {
        const QJsonObject node = nodes[i].toObject();
        EXPECT_EQ(node[key("vertexIndex")].toInt(), i);
        EXPECT_EQ(node[key("curves")].toArray().size(), 2);
        const QJsonArray neighbours = node[key("neighbours")].toArray();
        double turned = 0.0;
        for (int n = 0; n < neighbours.size(); ++n) {
            const QJsonObject other = nodes[neighbours[n].toInt()].toObject();
            EXPECT_TRUE(other[key("neighbours")].toArray().contains(i));
            const QJsonObject next =
                nodes[neighbours[(n + 1) % neighbours.size()].toInt()].toObject();
            turned += std::fmod(angleTo(node, next) - angleTo(node, other) + 4 * M_PI, 2 * M_PI);
        }
        EXPECT_NEAR(turned, 2 * M_PI, 1e-6) << "node " << i; // once round, never back
    }
}

TEST_F(Dump, meshesAreThoseOfTheFile)
{
    writeNet();
    const QJsonObject json = dump();
    const QJsonArray meshes = json[key("meshes")].toArray();
    ASSERT_EQ(meshes.size(), 1);
    const QJsonObject mesh = meshes[0].toObject();
    EXPECT_EQ(mesh[key("name")].toString(), QStringLiteral("plane-Retopo"));
    EXPECT_EQ(mesh[key("piece")].toInt(), 0);
    EXPECT_EQ(mesh[key("kind")].toString(), QStringLiteral("quads"));
    EXPECT_EQ(mesh[key("positions")].toArray().size(), 9);
    EXPECT_EQ(mesh[key("normals")].toArray().size(), 9);
    EXPECT_EQ(mesh[key("meshFaces")].toArray().size(), 4);
    EXPECT_EQ(mesh[key("fake")].toArray(), (QJsonArray{false, false, false, false}));
    const QJsonArray nodes = nodesOf(json);
    for (int i = 0; i < nodes.size(); ++i)
        EXPECT_EQ(nodes[i].toObject()[key("position")], mesh[key("positions")].toArray()[i]);
}

TEST_F(Dump, aMixedMeshMarksItsFakeTriangles)
{
    writeStrokes(QStringLiteral("mixed.json"), {{1, 2.1, 9, 2.1},
                                                {1, 5.3, 9, 5.3},
                                                {2.2, 1, 2.2, 9},
                                                {5.4, 1, 5.4, 9},
                                                {5.0, 0.9, 9.1, 6.1}});
    const QJsonObject mesh = dump(QStringLiteral("mixed.json"),
                                  {QStringLiteral("--merge"), QStringLiteral("1")})[key("meshes")]
                                 .toArray()[0]
                                 .toObject();
    EXPECT_EQ(mesh[key("kind")].toString(), QStringLiteral("mixed"));
    const QJsonArray fake = mesh[key("fake")].toArray();
    EXPECT_FALSE(fake[0].toBool());
    EXPECT_TRUE(fake.contains(true));
}

TEST_F(Dump, aClosedCurveHasItsClosingPoint)
{
    writePlane();
    writeStrokes(
        QStringLiteral("loops.json"),
        {{2.1, 2.2, 7.3, 2.4, 7.1, 7.2, 2.3, 7.1}, {4.1, 4.2, 9.3, 4.4, 9.1, 9.2, 4.3, 9.1}}, true);
    const BatchResult result =
        build(QStringLiteral("loops.json"), {QStringLiteral("--dump"), QStringLiteral("d.json")});
    const QJsonObject json = QJsonDocument::fromJson(read(QStringLiteral("d.json"))).object();
    const QJsonObject curve = json[key("curves")].toArray()[0].toObject();
    EXPECT_TRUE(curve[key("closed")].toBool());
    const QJsonArray points = curve[key("points")].toArray();
    ASSERT_EQ(points.size(), 5) << qPrintable(result.output);
    const auto x = [&points](int i) {
        return points[i].toObject()[key("position")].toArray()[0].toDouble();
    };
    EXPECT_NEAR(x(4), x(0) + 0.001 * (x(3) - x(0)), 1e-5);
    EXPECT_NE(x(4), x(0));
}
