// SPDX-License-Identifier: MIT
#include "tests/host/files/filetest.h"
#include "tests/support/models.h"
#include "tests/support/shapes.h"

#include "host/files/curvefile.h"

#include <orvane/geometry/orvanecurve.h>

#include <QDir>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

using namespace orvane;

namespace {

const char Shape[] =
    "expected {\"curves\": [{\"name\", \"closed\", \"points\": [[x, y, z], ...]}]}.";

class CurveFile : public FileTest
{
protected:
    QVector<OrvaneCurve *> fromJson(const QByteArray &text)
    {
        return curves(file(QStringLiteral("curves.json"), text));
    }
    QVector<OrvaneCurve *> fromObj(const QByteArray &text)
    {
        return curves(file(QStringLiteral("curves.obj"), text));
    }
    QString jsonError(const QByteArray &text)
    {
        return curveError(QStringLiteral("curves.json"), text);
    }
    QString objError(const QByteArray &text)
    {
        return curveError(QStringLiteral("curves.obj"), text);
    }
    //! About the points of a curve named "eye", the second of its file.
    QString pointsError(const QByteArray &points)
    {
        return jsonError("{\"curves\": [{\"points\": []}, {\"name\": \"eye\", \"points\": " + points
                         + "}]}");
    }

    QString writeError(const QVector<const OrvaneCurve *> &curves, const QString &path)
    {
        QString error;
        EXPECT_FALSE(writeCurves(curves, path, &error));
        return error;
    }
};

PlaceList drawnPlaces(const OrvaneCurve &curve)
{
    PlaceList places;
    for (int i = 0; i < curve.DrawnPointCount(); ++i)
        places.append(curve.PointAt(i).position);
    return places;
}

QVector<const OrvaneCurve *> constant(const QVector<OrvaneCurve *> &curves)
{
    return {curves.cbegin(), curves.cend()};
}

} // namespace

TEST_F(CurveFile, jsonGivesNamesPointsAndClosing)
{
    const QVector<OrvaneCurve *> read = fromJson(
        R"({"version": 1, "curves": [{"name": "m\u00fctze", "points": [[0, 1.5, -2e-1]], "hue": []},
            {"closed": true, "points": [[0, 0, 0], [10, 0, 0], [10, 10, 0]]}, {"points": []}]})");
    ASSERT_EQ(read.size(), 3);
    EXPECT_EQ(read[0]->Name(), QString::fromUtf8("m\xc3\xbctze"));
    EXPECT_FALSE(read[0]->Closed());
    EXPECT_EQ(drawnPlaces(*read[0]), PlaceList({Vector(0, 1.5f, -0.2f)}));
    EXPECT_EQ(read[1]->Name(), QStringLiteral("curve 2"));
    EXPECT_TRUE(read[1]->Closed());
    EXPECT_EQ(read[1]->DrawnPointCount(), 3);
    ASSERT_EQ(read[1]->PointCount(), 4);
    EXPECT_EQ(read[1]->PointAt(3).position, Vector(10, 10, 0) * 0.001f);
    EXPECT_EQ(read[2]->PointCount(), 0);
    EXPECT_FALSE(read[0]->PointAt(0).surfacePoint.Mesh());
}

TEST_F(CurveFile, closedCurveDrawnOntoItsFirstPointLosesTheRepetition)
{
    const QVector<OrvaneCurve *> read =
        fromJson(R"({"curves": [{"closed": true, "points": [[0,0,0],[1,0,0],[1,1,0],[0,0,0]]}]})");
    EXPECT_EQ(drawnPlaces(*read[0]),
              PlaceList({Vector(0, 0, 0), Vector(1, 0, 0), Vector(1, 1, 0)}));
}

TEST_F(CurveFile, closedCurveOfOnePlaceHasNoClosingPoint)
{
    const QVector<OrvaneCurve *> read = fromJson(
        R"({"curves": [{"closed": true, "points": [[1,2,3],[1,2,3]]},
                         {"closed": true, "points": []}]})");
    EXPECT_EQ(read[0]->PointCount(), 1);
    EXPECT_EQ(read[1]->PointCount(), 0);
}

TEST_F(CurveFile, closingPointIsOffTheFirstPointFarFromTheOrigin)
{
    const QVector<OrvaneCurve *> read = fromJson(
        R"({"curves": [{"closed": true, "points": [[1000000,0,0],[1000000,1,0],[1000001,0,0]]}]})");
    const Vector closing = read[0]->PointAt(3).position;
    EXPECT_GT(closing.x, 1000000.0f);
    EXPECT_LT(closing.x, 1000001.0f);
}

TEST_F(CurveFile, objPolylinesAreCurves)
{
    const QVector<OrvaneCurve *> read =
        fromObj("v 0 0 0\no first curve\nl 1 2/7 -1\ng\nv 1 0 0\nv 1 1 0\n"
                "l 3 2 1 3\nf 1 2 3\ng ring\nl 2 2\nl 1\n");
    ASSERT_EQ(read.size(), 4);
    EXPECT_EQ(read[0]->Name(), QStringLiteral("first curve"));
    EXPECT_TRUE(read[0]->Closed()); // in that line vertex -1 is vertex 1
    EXPECT_EQ(drawnPlaces(*read[0]), PlaceList({Vector(0, 0, 0), Vector(1, 0, 0)}));
    EXPECT_EQ(read[1]->Name(), QStringLiteral("curve 2"));
    EXPECT_TRUE(read[1]->Closed());
    EXPECT_EQ(drawnPlaces(*read[1]),
              PlaceList({Vector(1, 1, 0), Vector(1, 0, 0), Vector(0, 0, 0)}));
    EXPECT_EQ(read[1]->PointCount(), 4);
    EXPECT_TRUE(read[2]->Closed());
    EXPECT_EQ(read[2]->PointCount(), 1);
    EXPECT_EQ(read[3]->PointCount(), 1);
}

TEST_F(CurveFile, everyFormatGivesBackWhatWasDrawn)
{
    std::mt19937 random(testSeed());
    QVector<OrvaneCurve *> drawn;
    for (int i = 0; i < 50; ++i) {
        auto *curve = new OrvaneCurve;
        curve->SetName(QStringLiteral("curve \"%1\" \u00e4").arg(i));
        for (int p = 0; p <= i; ++p) {
            const float scale = std::pow(10.0f, randomBetween(random, -9.0f, 9.0f));
            curve->AppendPoint(CurvePoint(randomVector(random, scale)));
        }
        curve->SetClosed(i % 2 == 0);
        if (curve->Closed() && i > 0)
            curve->AppendPoint(CurvePoint(curve->ClosingPosition()));
        drawn.append(curve);
    }
    for (const char *name : {"a.json", "a.obj", "A.JSON"}) {
        QString error;
        const QString written = path(QString::fromLatin1(name));
        ASSERT_TRUE(writeCurves(constant(drawn), written, &error)) << qPrintable(error);
        const QVector<OrvaneCurve *> read = curves(written);
        ASSERT_EQ(read.size(), drawn.size());
        for (int i = 0; i < drawn.size(); ++i) {
            EXPECT_EQ(read[i]->Name(), drawn[i]->Name());
            EXPECT_EQ(read[i]->Closed(), drawn[i]->Closed());
            EXPECT_EQ(drawnPlaces(*read[i]), drawnPlaces(*drawn[i])) << name << " " << i;
            EXPECT_EQ(read[i]->PointCount(), drawn[i]->PointCount());
        }
    }
    qDeleteAll(drawn);
}

TEST_F(CurveFile, jsonIsWrittenOneCurveALineInShortNumbers)
{
    OrvaneCurve curve;
    curve.SetName(QStringLiteral("c"));
    curve.AppendPoint(CurvePoint(Vector(0.1f, 2.0f, -1e-9f)));
    OrvaneCurve none;
    QString error;
    ASSERT_TRUE(writeCurves({&curve, &none}, path(QStringLiteral("a.json")), &error));
    EXPECT_EQ(bytesOf(path(QStringLiteral("a.json"))),
              "{\"curves\": [\n"
              "{\"closed\":false,\"name\":\"c\",\"points\":[[0.100000001,2,-9.99999972e-10]]},\n"
              "{\"closed\":false,\"name\":\"\",\"points\":[]}\n]}\n");
}

TEST_F(CurveFile, smallestAndLargestFloatsSurvive)
{
    using Limits = std::numeric_limits<float>;
    OrvaneCurve curve;
    curve.AppendPoint(CurvePoint(Vector(Limits::denorm_min(), -1e-40f, Limits::min())));
    curve.AppendPoint(CurvePoint(Vector(Limits::max(), Limits::lowest(), 16777217.0f)));
    for (const char *name : {"a.json", "a.obj"}) {
        QString error;
        ASSERT_TRUE(writeCurves({&curve}, path(QString::fromLatin1(name)), &error));
        EXPECT_EQ(drawnPlaces(*curves(path(QString::fromLatin1(name)))[0]), drawnPlaces(curve));
    }
}

TEST_F(CurveFile, curveOfNoPointsHasNoPlaceInObj)
{
    OrvaneCurve none;
    OrvaneCurve one;
    one.AppendPoint(CurvePoint(Vector(1, 2, 3)));
    QString error;
    ASSERT_TRUE(writeCurves({&none, &one}, path(QStringLiteral("a.obj")), &error));
    EXPECT_EQ(curves(path(QStringLiteral("a.obj"))).size(), 1);
}

TEST_F(CurveFile, realNetsAreRead)
{
    for (const char *net :
         {"spot_net.json", "spot_strokes.json", "bunny_net.json", "fandisk_net.json"}) {
        const QString model = modelFile(QString::fromLatin1(net));
        if (model.isEmpty())
            GTEST_SKIP() << "The folder of real models is not at hand.";
        const QVector<OrvaneCurve *> read = curves(model);
        const int closed = int(std::count_if(
            read.cbegin(), read.cend(), [](const OrvaneCurve *curve) { return curve->Closed(); }));
        EXPECT_EQ(closed, bytesOf(model).count("\"closed\": true")) << net;
        EXPECT_EQ(read.size(), bytesOf(model).count("\"points\""));
        for (const OrvaneCurve *curve : read)
            EXPECT_TRUE(curve->IsUsable());
    }
}

TEST_F(CurveFile, missingAndEmptyFilesAreNamed)
{
    EXPECT_EQ(curveError(path(QStringLiteral("no.json"))),
              QStringLiteral("no.json: no such file."));
    EXPECT_EQ(jsonError(QByteArray()), QStringLiteral("curves.json: the file is empty."));
    EXPECT_EQ(objError(QByteArray()), QStringLiteral("curves.obj: the file is empty."));
}

TEST_F(CurveFile, whatIsNotJsonIsNamedByLineAndColumn)
{
    const QString error = jsonError("{\"curves\":\n  [nonsense]}");
    EXPECT_TRUE(error.startsWith(QStringLiteral("curves.json: line 2, column ")))
        << qPrintable(error);
    EXPECT_TRUE(error.endsWith(QString::fromLatin1(Shape))) << qPrintable(error);
    EXPECT_TRUE(
        jsonError("Dear reader").startsWith(QStringLiteral("curves.json: line 1, column ")));
    EXPECT_TRUE(
        jsonError("{\"curves\": [").startsWith(QStringLiteral("curves.json: line 1, column ")));
    EXPECT_TRUE(
        pointsError("[[NaN, 0, 0]]").startsWith(QStringLiteral("curves.json: line 1, column ")));
    EXPECT_FALSE(jsonError(QByteArray(100000, '[')).isEmpty());
}

TEST_F(CurveFile, wrongShapesAreNamedByTheirPlace)
{
    const QString shape = QString::fromLatin1(Shape);
    for (const char *text : {"[]", "{}", "{\"curves\": {}}", "{\"curves\": 3}"}) {
        EXPECT_EQ(jsonError(text),
                  QStringLiteral("curves.json: there is no list named \"curves\"; ") + shape)
            << text;
    }
    EXPECT_EQ(
        jsonError("{\"curves\": []}"),
        QStringLiteral("curves.json: the list of curves is empty; expected at least one curve."));
    EXPECT_EQ(jsonError("{\"curves\": [3]}"),
              QStringLiteral("curves.json: curve 1: it is no object; ") + shape);
    EXPECT_EQ(jsonError("{\"curves\": [{\"points\": []}, {\"name\": \"eye\"}]}"),
              QStringLiteral("curves.json: curve 2 (\"eye\"): \"points\" is no list; ") + shape);
    EXPECT_EQ(
        jsonError("{\"curves\": [{\"name\": 3, \"points\": []}]}"),
        QStringLiteral("curves.json: curve 1: \"name\" is no text; expected text in quotes."));
    EXPECT_EQ(
        jsonError("{\"curves\": [{\"name\": \"eye\", \"closed\": 1, \"points\": []}]}"),
        QStringLiteral("curves.json: curve 1 (\"eye\"): \"closed\" is neither true nor false; "
                       "expected one of them."));
}

TEST_F(CurveFile, pointThatIsNoListOfThreeIsNamed)
{
    for (const char *points :
         {"[[1,2,3], [1,2]]", "[[1,2,3], [1,2,3,4]]", "[[1,2,3], 5]", "[[1,2,3], {}]"}) {
        EXPECT_EQ(pointsError(points),
                  QStringLiteral("curves.json: curve 2 (\"eye\"), point 2: it is no list of three; "
                                 "expected [x, y, z]."));
    }
}

TEST_F(CurveFile, coordinateThatIsNoNumberIsNamed)
{
    for (const char *points : {"[[1,\"2\",3]]", "[[null,2,3]]", "[[1,2,[3]]]"}) {
        EXPECT_EQ(
            pointsError(points),
            QStringLiteral("curves.json: curve 2 (\"eye\"), point 1: a coordinate is no number; "
                           "expected three finite numbers."));
    }
}

TEST_F(CurveFile, coordinateBeyondAFloatIsNotFinite)
{
    EXPECT_EQ(
        pointsError("[[1,2,3],[0,1e300,0]]"),
        QStringLiteral("curves.json: curve 2 (\"eye\"), point 2: a coordinate is not a finite "
                       "number; expected three finite numbers."));
    EXPECT_TRUE(pointsError("[[0,-1e999,0]]").startsWith(QStringLiteral("curves.json: ")));
}

TEST_F(CurveFile, objErrorsNameTheLine)
{
    EXPECT_EQ(objError("v 0 0 0\nl 1 1 5\n"),
              QStringLiteral(
                  "curves.obj: line 2: curve 1 refers to vertex 5, but the file has 1 vertices."));
    EXPECT_EQ(objError("v 0 0 0\nl 1 -2\n"),
              QStringLiteral(
                  "curves.obj: line 2: curve 1 refers to vertex -2, but only 1 come before it."));
    EXPECT_EQ(objError("v 0 0 0\nl 1 x\n"),
              QStringLiteral(
                  "curves.obj: line 2: curve 1 has \"x\" in the place of the number of a vertex."));
    EXPECT_EQ(
        objError("v 0 0 inf\nl 1 1\n"),
        QStringLiteral("curves.obj: line 1: vertex 1: expected three finite numbers after \"v\"."));
    EXPECT_EQ(
        objError("Dear reader\n"),
        QStringLiteral("curves.obj: the file has no polylines; expected at least one \"l\" line."));
}

TEST_F(CurveFile, whatCannotBeWrittenIsSaid)
{
    OrvaneCurve curve;
    curve.SetName(QStringLiteral("eye"));
    curve.AppendPoint(CurvePoint(Vector(0, std::numeric_limits<float>::infinity(), 0)));
    EXPECT_EQ(writeError({&curve}, path(QStringLiteral("a.json"))),
              QStringLiteral("a.json: point 1 of curve \"eye\" is at no finite place."));
    EXPECT_EQ(writeError({}, path(QStringLiteral("a.json"))),
              QStringLiteral("a.json: there are no curves to write."));
    EXPECT_EQ(
        writeError({&curve}, path(QStringLiteral("a.txt"))),
        QStringLiteral("a.txt: curves are not written in this format; expected a name that ends in "
                       ".json or .obj."));
    EXPECT_TRUE(filesInFolder().isEmpty());
}

TEST_F(CurveFile, failedWriteLeavesTheOldFile)
{
    OrvaneCurve curve;
    for (int i = 0; i < 10000; ++i)
        curve.AppendPoint(CurvePoint(Vector(float(i), 0, 0)));
    for (const char *name : {"a.json", "a.obj"}) {
        const QString old = file(QString::fromLatin1(name), "old");
        QString error;
        {
            const FileSizeLimit limit(5000);
            error = writeError({&curve}, old);
        }
        EXPECT_TRUE(error.contains(QStringLiteral(": it cannot be written: ")))
            << qPrintable(error);
        EXPECT_EQ(bytesOf(old), "old");
    }
    EXPECT_EQ(filesInFolder().size(), 2);
}
