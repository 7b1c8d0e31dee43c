// SPDX-License-Identifier: MIT
#include "tests/operation/agreement/planarity.h"
#include "tests/operation/agreement/planarscenes.h"
#include "tests/operation/agreement/ring.h"
#include "tests/operation/agreement/scenebuild.h"
#include "tests/operation/agreement/scenefile.h"
#include "tests/operation/agreement/tally.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <QTemporaryDir>

#include <iostream>
#include <random>

namespace {

const int Scenes = 300;
const int MostDraws = 300; // of one scene
const int HighLimit = 1000000;
const double LeastCompared = 0.8;   // fraction of all shells
const double MostTurnedOver = 1e-3; // fraction of all shells

Flaw flawOf(const QVector<ScenePiece> &pieces)
{
    for (const ScenePiece &piece : pieces) {
        const Flaw flaw = flawOf(piece.graph);
        if (flaw != Flaw::None)
            return flaw;
    }
    return Flaw::None;
}

// Strokes end in deep notches, and many an outer boundary turns like a face for it: then only the
// limit keeps it from being one. With a dangle or cut edge, out and back, any may do so.
int highLimit(const QVector<JudgedShells> &pieces)
{
    const int outAndBack = 2;
    int limit = HighLimit;
    for (const JudgedShells &piece : pieces) {
        for (const QVector<int> &outline : piece.outlines) {
            if (turnsOver(outline, piece.graph.positions))
                limit = qMin(limit, outline.size() - 1);
            if (piece.unclearVertex.contains(true))
                limit = qMin(limit, outline.size() + outAndBack - 1);
        }
    }
    return limit;
}

class PolygonizerAgreement : public SceneCleaner
{
protected:
    PolygonizerAgreement() { m_folder.setAutoRemove(false); }
    ~PolygonizerAgreement() override { m_folder.setAutoRemove(!HasFailure()); }

    // Draws until links meet at nodes only, and builds with the lowest face limit.
    PlanarScene drawPlanarScene(int number, unsigned seed, QVector<ScenePiece> &pieces);
    void compareScene(int number, unsigned seed);
    FaceComparison comparePieces(const QVector<JudgedShells> &judged,
                                 const QVector<ScenePiece> &built, const QString &name, int limit);

    Tally m_tally;

private:
    QTemporaryDir m_folder;
};

PlanarScene PolygonizerAgreement::drawPlanarScene(int number, unsigned seed,
                                                  QVector<ScenePiece> &pieces)
{
    std::seed_seq seeds{seed, unsigned(number)};
    std::mt19937 random(seeds);
    PlanarScene scene;
    Flaw flaw = Flaw::LinksCross;
    for (int draw = 0; draw < MostDraws && flaw != Flaw::None; ++draw) {
        scene = randomScene(number, random);
        pieces = buildScene(scene, 3);
        flaw = flawOf(pieces);
        if (flaw != Flaw::None)
            m_tally.addRedrawn(scene.kind, flaw);
    }
    EXPECT_EQ(flaw, Flaw::None) << "scene " << number << " never came out planar";
    m_tally.addScene(scene.kind);
    return scene;
}

void PolygonizerAgreement::compareScene(int number, unsigned seed)
{
    QVector<ScenePiece> pieces;
    const PlanarScene scene = drawPlanarScene(number, seed, pieces);
    QVector<JudgedShells> judged;
    for (const ScenePiece &piece : qAsConst(pieces)) {
        judged.append(judgedShells(piece.graph));
        m_tally.addPiece(scene.kind, judged.last());
    }
    const QVector<QPair<QString, int>> limits = {{QStringLiteral("3"), 3},
                                                 {QStringLiteral("4"), 4},
                                                 {QStringLiteral("5"), 5},
                                                 {QStringLiteral("high"), highLimit(judged)}};
    for (const QPair<QString, int> &limit : limits) {
        const FaceComparison faces =
            comparePieces(judged, buildScene(scene, limit.second), limit.first, limit.second);
        if (faces.mismatches.isEmpty())
            continue;
        const QString path = m_folder.filePath(QStringLiteral("scene-%1").arg(number));
        ADD_FAILURE() << "scene " << number << ", " << scene.kind.toStdString() << ":\n"
                      << faces.mismatches.join(QLatin1Char('\n')).toStdString()
                      << "\nbuild it again with\n"
                      << saveScene(scene, path, limit.second).toStdString();
    }
}

FaceComparison PolygonizerAgreement::comparePieces(const QVector<JudgedShells> &judged,
                                                   const QVector<ScenePiece> &built,
                                                   const QString &name, int limit)
{
    FaceComparison all;
    EXPECT_EQ(built.size(), judged.size());
    for (int i = 0; i < qMin(built.size(), judged.size()); ++i) {
        EXPECT_EQ(built[i].graph.positions, judged[i].graph.positions);
        EXPECT_EQ(built[i].graph.links, judged[i].graph.links);
        const FaceComparison faces = compareFaces(judged[i], built[i].polygons, limit);
        m_tally.addFaces(name, limit, faces);
        all.mismatches += faces.mismatches;
    }
    return all;
}

TEST_F(PolygonizerAgreement, facesAreTheShellsOfAnIndependentLibrary)
{
    const unsigned seed = testSeed();
    for (int number = 0; number < Scenes; ++number)
        compareScene(number, seed);
    std::cout << m_tally;
    EXPECT_EQ(m_tally.mismatches(), 0);
    EXPECT_EQ(m_tally.invalidRings(), 0);
    EXPECT_GE(double(m_tally.compared()), LeastCompared * double(m_tally.shells()));
    EXPECT_LE(double(m_tally.turnedOver()), MostTurnedOver * double(m_tally.shells()));
}

} // namespace
