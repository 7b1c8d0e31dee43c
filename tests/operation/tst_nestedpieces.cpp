// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "operation/manualretopooperation.h"
#include "operation/nestedpieces.h"
#include "operation/runreport.h"
#include "tests/operation/operationscene.h"

#include <cmath>
#include <limits>

using orvane::Vector;

namespace {

class NestedPieces : public OperationScene
{
protected:
    // For each piece, in order of building, the one in a face of which it lies; -1 for none.
    QVector<int> nesting(const Sheet &sheet) { return nesting(sheet.curves()); }
    QVector<int> nesting(const QList<orvane::OrvaneCurve *> &curves)
    {
        operation = operationOn(curves);
        EXPECT_TRUE(operation->ExecuteAndInvert());
        QVector<int> result;
        for (const PieceReport &piece : lastRunReport().pieces)
            result.append(piece.inFaceOfPiece);
        return result;
    }

    std::unique_ptr<ManualRetopoOperation> operation;
};

} // namespace

TEST_F(NestedPieces, aPieceInsideAFaceOfAnotherNamesIt)
{
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 6.0f);
    drawCell(sheet, {4, 4, 0}, 1.0f);
    EXPECT_EQ(nesting(sheet), (QVector<int>{-1, 0}));
}

TEST_F(NestedPieces, theOrderOfTheCurvesDoesNotMatter)
{
    Sheet sheet;
    drawCell(sheet, {4, 4, 0}, 1.0f);
    drawCell(sheet, {2, 2, 0}, 6.0f);
    EXPECT_EQ(nesting(sheet), (QVector<int>{1, -1}));
}

TEST_F(NestedPieces, piecesSideBySideAreNotNested)
{
    Sheet sheet(20);
    drawCell(sheet, {2, 2, 0}, 4.0f);
    drawCell(sheet, {12, 2, 0}, 4.0f);
    drawCell(sheet, {2, 12, 0}, 4.0f);
    EXPECT_EQ(nesting(sheet), (QVector<int>{-1, -1, -1}));
}

TEST_F(NestedPieces, aPieceThatMadeNoMeshIsNamedAsWell)
{
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 6.0f);
    sheet.straight({4, 4.5f, 0}, {5, 4.5f, 0});
    sheet.straight({4.5f, 4, 0}, {4.5f, 5, 0});
    EXPECT_EQ(nesting(sheet), (QVector<int>{-1, 0}));
    EXPECT_EQ(lastRunReport().pieces[1].outcome, PieceReport::NoFace);
}

TEST_F(NestedPieces, aPieceInANotchOfAFaceIsOutsideIt)
{
    Sheet sheet(12);
    // An L of six corners, and a small cell in its notch.
    sheet.straight({1, 2, 0}, {11, 2, 0});
    sheet.straight({2, 1, 0}, {2, 11, 0});
    sheet.straight({1.5f, 10, 0}, {5.5f, 10, 0});
    sheet.straight({5, 4.5f, 0}, {5, 10.5f, 0});
    sheet.straight({4.5f, 5, 0}, {10.5f, 5, 0});
    sheet.straight({10, 1, 0}, {10, 5.5f, 0});
    drawCell(sheet, {7, 7, 0}, 1.0f);
    drawCell(sheet, {3, 3, 0}, 1.0f);
    ManualRetopoOperation wide(sheet.curves(), 6, 0.1f, 0.05f, 0.0f, false);
    ASSERT_TRUE(wide.ExecuteAndInvert());
    const RunReport &report = lastRunReport();
    ASSERT_EQ(report.pieces.size(), 3);
    EXPECT_EQ(report.pieces[1].inFaceOfPiece, -1);
    EXPECT_EQ(report.pieces[2].inFaceOfPiece, 0);
}

TEST_F(NestedPieces, aPieceFarAboveAFaceDoesNotLieInIt)
{
    Sheet low;
    Sheet high(10, orvane::Matrix::Translation({0, 0, 6}));
    drawCell(low, {2, 2, 0}, 6.0f);
    drawCell(high, {4, 4, 0}, 1.0f);
    EXPECT_EQ(nesting(low.curves() + high.curves()), (QVector<int>{-1, -1}));
}

TEST_F(NestedPieces, aPieceInAFaceOfManyCornersIsFoundThoughTheFaceWasSplit)
{
    Sheet sheet(20);
    const Vector center(10, 10, 0);
    sheet.circle(center, 7.0f, 120);
    for (int i = 0; i < 12; ++i) {
        const float angle = 0.05f + 6.2831853f * float(i) / 12.0f;
        const Vector out(std::cos(angle), std::sin(angle), 0.0f);
        sheet.straight(center + out * 6.5f, center + out * 7.5f);
    }
    drawCell(sheet, {8, 8, 0}, 4.0f);
    ManualRetopoOperation wide(sheet.curves(), 12, 0.1f, 0.05f, 0.0f, false);
    ASSERT_TRUE(wide.ExecuteAndInvert());
    ASSERT_EQ(lastRunReport().pieces.size(), 2);
    EXPECT_EQ(lastRunReport().pieces[0].facesByCorners, (QVector<int>{0, 0, 0, 10}));
    EXPECT_EQ(lastRunReport().pieces[1].inFaceOfPiece, 0);
}

TEST_F(NestedPieces, aPieceOverSeveralFacesLiesInNone)
{
    Sheet low(20);
    Sheet high(20, orvane::Matrix::Translation({0, 0, 0.5f}));
    low.grid(4, 4, 3.0f);
    high.grid(2, 2, 3.0f);
    EXPECT_EQ(nesting(low.curves() + high.curves()), (QVector<int>{-1, -1}));
}

TEST_F(NestedPieces, ofSeveralFacesAroundItThePieceBuiltLastIsNamed)
{
    Sheet sheet(24);
    drawCell(sheet, {4, 4, 0}, 15.0f);
    drawCell(sheet, {7, 7, 0}, 8.0f);
    drawCell(sheet, {10, 10, 0}, 2.0f);
    EXPECT_EQ(nesting(sheet), (QVector<int>{-1, 0, 1}));
}

TEST_F(NestedPieces, manyPiecesInManyFacesFindTheirOwn)
{
    Sheet sheet(40);
    sheet.grid(6, 6, 5.0f); // cells of 5, from 5 to 35
    for (int i = 0; i < 36; ++i)
        drawCell(sheet, {7.0f + 5.0f * float(i % 6), 7.0f + 5.0f * float(i / 6), 0}, 1.0f);
    QVector<int> expected(37, 0);
    expected[0] = -1;
    EXPECT_EQ(nesting(sheet), expected);
}

TEST_F(NestedPieces, aSeedWithoutAFinitePlaceAndASinglePieceAreLeftAlone)
{
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 6.0f);
    drawCell(sheet, {4, 4, 0}, 1.0f);
    nesting(sheet);
    RunReport report = lastRunReport();
    for (PieceReport &piece : report.pieces)
        piece.inFaceOfPiece = -1;
    IntersectionNode nowhere;
    nowhere.position() = {std::numeric_limits<float>::quiet_NaN(), 4, 0};
    const QList<IntersectionNode *> seeds = {operation->Subgraphs().first(), &nowhere};
    noteNestedPieces(report, seeds, operation->AddGeometry());
    EXPECT_EQ(report.pieces[1].inFaceOfPiece, -1);
    noteNestedPieces(report, seeds.mid(0, 1), {});
    EXPECT_EQ(report.pieces[0].inFaceOfPiece, -1);
}
