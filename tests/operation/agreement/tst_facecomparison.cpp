// SPDX-License-Identifier: MIT
// The judge is judged: graphs whose shells are known, and meshes broken on purpose.
#include "tests/operation/agreement/facecomparison.h"
#include "tests/operation/agreement/planarity.h"
#include "tests/operation/agreement/planarscenes.h"
#include "tests/operation/agreement/scenebuild.h"
#include "tests/operation/agreement/scenefile.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

using Polygons = QVector<QVector<int>>;

namespace {

// A square of side 4 about a square of side 2 about the point (2, 2), numbered counter-clockwise
// from below left, the outer one first; and a place to the left.
QVector<orvane::Vector> nestedSquares()
{
    return {{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0}, {1, 1, 0},
            {3, 1, 0}, {3, 3, 0}, {1, 3, 0}, {-2, 0, 0}};
}

QVector<LeftOut> causesOf(const QVector<QPair<int, int>> &links)
{
    return judgedShells({nestedSquares(), links}).leftOut;
}

TEST(JudgedShells, aPlainRingIsCompared)
{
    EXPECT_EQ(causesOf({{0, 1}, {1, 2}, {2, 3}, {0, 3}}), QVector<LeftOut>{LeftOut::No});
}

TEST(JudgedShells, ringsBesideEachOtherAreCompared)
{
    EXPECT_EQ(causesOf({{0, 1}, {1, 2}, {2, 3}, {0, 3}, {0, 2}}),
              (QVector<LeftOut>{LeftOut::No, LeftOut::No}));
}

TEST(JudgedShells, aDangleLeavesItsShellOut)
{
    EXPECT_EQ(causesOf({{0, 1}, {1, 2}, {2, 3}, {0, 3}, {0, 8}}),
              QVector<LeftOut>{LeftOut::Dangle});
    EXPECT_EQ(causesOf({{0, 1}, {1, 2}, {2, 3}, {0, 3}, {0, 4}}),
              QVector<LeftOut>{LeftOut::Dangle});
}

TEST(JudgedShells, aCutEdgeLeavesTheShellsAtItsEndsOut)
{
    // The triangle touches it outside of the inner square, which is a hole of the outer one.
    QVector<LeftOut> causes =
        causesOf({{0, 1}, {1, 2}, {2, 3}, {0, 3}, {0, 4}, {4, 5}, {5, 6}, {6, 7}, {4, 7}});
    std::sort(causes.begin(), causes.end());
    EXPECT_EQ(causes, (QVector<LeftOut>{LeftOut::HasHoles, LeftOut::CutEdge}));
}

TEST(JudgedShells, aSharedCornerLeavesBothShellsOut)
{
    EXPECT_EQ(causesOf({{0, 1}, {1, 4}, {0, 4}, {4, 6}, {6, 7}, {4, 7}}),
              (QVector<LeftOut>{LeftOut::CutVertex, LeftOut::CutVertex}));
}

TEST(JudgedShells, aStarTurnsOver)
{
    PlanarGraph star;
    for (int i = 0; i < 10; ++i) {
        const double angle = 0.6283185 * i;
        const double radius = i % 2 == 0 ? 1.0 : 0.38;
        star.positions.append(
            {float(radius * std::cos(angle)), float(radius * std::sin(angle)), 0});
        star.links.append({qMin(i, (i + 1) % 10), qMax(i, (i + 1) % 10)});
    }
    EXPECT_EQ(judgedShells(star).leftOut, QVector<LeftOut>{LeftOut::TurnsOver});
}

TEST(Planarity, findsLinksThatCross)
{
    EXPECT_EQ(flawOf({nestedSquares(), {{0, 2}, {1, 3}}}), Flaw::LinksCross);
    EXPECT_EQ(flawOf({{{0, 0, 0}, {2, 0, 0}, {1, 0, 0}, {1, 1, 0}}, {{0, 1}, {2, 3}}}),
              Flaw::LinksCross);
    EXPECT_EQ(flawOf({nestedSquares(), {{0, 1}, {1, 2}, {0, 2}}}), Flaw::None);
}

TEST(Planarity, findsLinksAndNodesOnOneAnother)
{
    EXPECT_EQ(flawOf({{{0, 0, 0}, {0, 0, 0}, {1, 0, 0}}, {{0, 2}}}), Flaw::NodesCoincide);
    EXPECT_EQ(flawOf({{{0, 0, 0}, {40, 0, 0}, {20, 1e-5f, 0}}, {{0, 1}, {0, 2}}}),
              Flaw::LinksOverlap);
}

TEST(FaceComparison, twoShellsInOneFaceAreNoticed)
{
    const JudgedShells shells =
        judgedShells({nestedSquares(), {{0, 1}, {1, 2}, {2, 3}, {0, 3}, {0, 2}}});
    EXPECT_EQ(compareFaces(shells, {{0, 1, 2}, {0, 2, 3}}, 4).mismatches.size(), 0);
    EXPECT_GT(compareFaces(shells, {{0, 1, 2, 3}}, 4).mismatches.size(), 0);
}

TEST(FaceComparison, aFaceInPartsNeedsAllOfThem)
{
    const JudgedShells shells = judgedShells({nestedSquares(), {{0, 1}, {1, 2}, {2, 3}, {0, 3}}});
    EXPECT_EQ(compareFaces(shells, {{0, 1, 2}, {0, 2, 3}}, 4).mismatches.size(), 0);
    EXPECT_EQ(compareFaces(shells, {{0, 1, 2}}, 4).mismatches.size(), 1);
}

// A scene of some hundred shells, all of them compared, built with a limit that some are over.
class FaceComparisonTeeth : public SceneCleaner
{
protected:
    FaceComparisonTeeth()
    {
        std::mt19937 random(testSeed());
        while (m_shells.shells.size() < 100
               || m_shells.leftOut.count(LeftOut::No) < m_shells.shells.size()) {
            m_scene = randomScene(1, random);
            const ScenePiece piece = buildScene(m_scene, Limit).value(0);
            if (flawOf(piece.graph) == Flaw::None)
                m_shells = judgedShells(piece.graph);
            m_polygons = piece.polygons;
        }
    }

    int mismatches(const Polygons &polygons, int limit = Limit) const
    {
        return compareFaces(m_shells, polygons, limit).mismatches.size();
    }
    // A shell of so many corners at least.
    QVector<int> shellOf(int corners) const
    {
        for (const Shell &shell : m_shells.shells) {
            if (shell.rings.first().size() >= corners)
                return shell.rings.first();
        }
        return {};
    }

    static const int Limit = 4;
    PlanarScene m_scene;
    JudgedShells m_shells;
    Polygons m_polygons;
};

TEST_F(FaceComparisonTeeth, anUntouchedMeshAgrees)
{
    EXPECT_GT(m_polygons.size(), 50);
    EXPECT_LT(m_polygons.size(), m_shells.shells.size());
    EXPECT_EQ(mismatches(m_polygons), 0);
}

TEST_F(FaceComparisonTeeth, eachDroppedFaceIsMissed)
{
    for (int i = 0; i < m_polygons.size(); ++i) {
        Polygons polygons = m_polygons;
        polygons.removeAt(i);
        EXPECT_EQ(mismatches(polygons), 1) << "face " << i;
    }
}

TEST_F(FaceComparisonTeeth, aFaceOverTheLimitIsNoticed)
{
    ASSERT_FALSE(shellOf(Limit + 1).isEmpty());
    EXPECT_EQ(mismatches(m_polygons + Polygons{shellOf(Limit + 1)}), 1);
}

TEST_F(FaceComparisonTeeth, aRepeatedFaceIsNoticed)
{
    EXPECT_EQ(mismatches(m_polygons + Polygons{m_polygons.last()}), 1);
}

TEST_F(FaceComparisonTeeth, theOuterBoundaryAsAFaceIsNoticed)
{
    ASSERT_EQ(m_shells.outlines.size(), 1);
    QVector<int> outline = m_shells.outlines.first();
    EXPECT_GT(mismatches(m_polygons + Polygons{outline}), 0);
    std::reverse(outline.begin(), outline.end());
    EXPECT_GT(mismatches(m_polygons + Polygons{outline}), 0);
}

TEST_F(FaceComparisonTeeth, aTurnedFaceIsNoticed)
{
    std::reverse(m_polygons[0].begin(), m_polygons[0].end());
    EXPECT_GT(mismatches(m_polygons), 0);
}

TEST_F(FaceComparisonTeeth, anotherLimitDisagrees)
{
    EXPECT_GT(mismatches(m_polygons, Limit - 1), 0);
    EXPECT_GT(mismatches(m_polygons, Limit + 1), 0);
}

TEST_F(FaceComparisonTeeth, aSavedSceneIsTheSameScene)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("scene"));
    EXPECT_TRUE(saveScene(m_scene, path, Limit).contains(path + QStringLiteral(".json")));
    QFile file(path + QStringLiteral(".json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonArray curves =
        QJsonDocument::fromJson(file.readAll()).object()[QStringLiteral("curves")].toArray();
    ASSERT_EQ(curves.size(), m_scene.strokes.size());
    for (int i = 0; i < curves.size(); ++i) {
        const QJsonArray points = curves[i].toObject()[QStringLiteral("points")].toArray();
        ASSERT_EQ(points.size(), m_scene.strokes[i].places.size());
        for (int p = 0; p < points.size(); ++p)
            EXPECT_EQ(float(points[p].toArray()[0].toDouble()), m_scene.strokes[i].places[p].x);
    }
}

} // namespace
