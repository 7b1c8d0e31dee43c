// SPDX-License-Identifier: MIT
#include "operation/facecells.h"
#include "operation/manualretopooperation.h"
#include "operation/runreport.h"
#include "tests/operation/operationscene.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <cmath>

using orvane::Vector;

namespace {

class FaceCells : public OperationScene
{
protected:
    // Of the first mesh made, faces of up to 40 edges allowed.
    QVector<int> cellsOf(const Sheet &sheet)
    {
        ManualRetopoOperation operation(sheet.curves(), 40, 0.1f, 0.05f, 0.0f, false);
        if (!operation.ExecuteAndInvert())
            return {};
        return cellsOfPolygons(*operation.AddGeometry().first()->CurrentLevel(),
                               operation.Subgraphs().first());
    }
};

} // namespace

TEST_F(FaceCells, facesThatStayedWholeAreCellsOfTheirOwn)
{
    Sheet sheet;
    sheet.grid(3, 2);
    EXPECT_EQ(cellsOf(sheet), (QVector<int>{0, 1, 2, 3, 4, 5}));
}

TEST_F(FaceCells, theTrianglesOfAFaceThatWasSplitAreOneCell)
{
    Sheet sheet;
    sheet.circle({5, 5, 0}, 3.0f, 120);
    for (int i = 0; i < 12; ++i) {
        const float angle = 0.05f + 6.2831853f * float(i) / 12.0f;
        const Vector out(std::cos(angle), std::sin(angle), 0.0f);
        sheet.straight(Vector(5, 5, 0) + out * 2.5f, Vector(5, 5, 0) + out * 3.5f);
    }
    EXPECT_EQ(cellsOf(sheet), QVector<int>(10, 0)) << "twelve corners, ten triangles";
}

TEST_F(FaceCells, splitAndWholeCellsBesideEachOtherStayApart)
{
    Sheet sheet(12);
    // An L of six corners with a square beside it.
    sheet.straight({1, 2, 0}, {11, 2, 0});
    sheet.straight({2, 1, 0}, {2, 11, 0});
    sheet.straight({1.5f, 10, 0}, {10.5f, 10, 0});
    sheet.straight({5, 4.5f, 0}, {5, 10.5f, 0});
    sheet.straight({4.5f, 5, 0}, {10.5f, 5, 0});
    sheet.straight({10, 1, 0}, {10, 10.5f, 0});
    const QVector<int> cells = cellsOf(sheet);
    ASSERT_EQ(cells.size(), 5);
    EXPECT_EQ(cells.count(0) + cells.count(1), 5);
    EXPECT_EQ(qMax(cells.count(0), cells.count(1)), 4);
}
