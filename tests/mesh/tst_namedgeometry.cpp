// SPDX-License-Identifier: MIT
#include "operation/manualretopooperation.h"
#include "tests/support/dialoganswer.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"
#include "tests/support/strokes.h"

#include <orvane/base/nodetable.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QScopedPointer>

using orvane::OrvaneCurve;

namespace {

// A sheet of 10 x 10 quads that curves can lie on and no geometry holds.
class LooseMesh
{
public:
    LooseMesh() : m_mesh(gridOfQuads(10, 10))
    {
        orvane::NodeTable::Instance().Enter(m_mesh.data());
    }
    ~LooseMesh() { orvane::NodeTable::Instance().Leave(m_mesh.data()); }
    LooseMesh(const LooseMesh &) = delete;
    LooseMesh &operator=(const LooseMesh &) = delete;

    // Binds the curve's points to the same faces of this mesh.
    void take(OrvaneCurve *curve) const
    {
        QVector<orvane::CurvePoint> points;
        for (const orvane::CurvePoint &point : curve->Points()) {
            const orvane::SurfacePoint &from = point.surfacePoint;
            points.append(orvane::CurvePoint(
                orvane::SurfacePoint(*m_mesh, from.FaceIndex(), from.U(), from.V())));
        }
        curve->SetPoints(points);
    }

private:
    QScopedPointer<orvane::SubdivisionLevel> m_mesh;
};

class NamedGeometry : public SceneCleaner
{
protected:
    // Four strokes that cross in a square of side 2.
    static void drawSquare(Sheet &sheet)
    {
        sheet.straight({3.3f, 4.1f, 0}, {6.9f, 4.1f, 0});
        sheet.straight({3.3f, 6.1f, 0}, {6.9f, 6.1f, 0});
        sheet.straight({4.1f, 3.3f, 0}, {4.1f, 6.9f, 0});
        sheet.straight({6.1f, 3.3f, 0}, {6.1f, 6.9f, 0});
    }

    static ManualRetopoOperation operationOn(const Sheet &sheet, int maxEdges)
    {
        return {sheet.curves(), maxEdges, 0.1f, 0.05f, 0.0f, false};
    }

    static orvane::Scene *scene() { return orvane::Kernel()->Scene(); }

    DialogAnswer answer{QStringLiteral("accept")};
};

} // namespace

TEST_F(NamedGeometry, theSameSquareWithAtMostThreeEdgesGivesNoGeometry)
{
    Sheet sheet;
    drawSquare(sheet);
    scene()->SetActiveGeometry(sheet.geometry());
    ManualRetopoOperation tooStrict = operationOn(sheet, 3);
    EXPECT_FALSE(tooStrict.ExecuteAndInvert());
    EXPECT_TRUE(tooStrict.AddGeometry().isEmpty());
    EXPECT_EQ(scene()->Geometries(), QVector<orvane::Geometry *>{sheet.geometry()});
    EXPECT_EQ(scene()->ActiveGeometry(), sheet.geometry());
    EXPECT_EQ(answer.count(), 0) << "there is no mesh to have faults";

    ManualRetopoOperation operation = operationOn(sheet, 4);
    ASSERT_TRUE(operation.ExecuteAndInvert());
    ASSERT_EQ(operation.AddGeometry().size(), 1);
    const orvane::Geometry *geometry = operation.AddGeometry().first();
    EXPECT_EQ(geometry->CurrentLevel()->FaceCount(), 1);
    EXPECT_TRUE(geometry->CurrentLevel()->IsQuads());
}

TEST_F(NamedGeometry, onASourceNamedBodyTheNewGeometryIsBodyRetopo)
{
    const orvane::Matrix placement =
        orvane::Matrix::Scaling({2, 2, 2}) * orvane::Matrix::Translation({5, -3, 1});
    Sheet sheet(10, placement, QStringLiteral("Body"));
    drawSquare(sheet);
    ManualRetopoOperation operation = operationOn(sheet, 4);
    ASSERT_TRUE(operation.ExecuteAndInvert());
    ASSERT_EQ(operation.AddGeometry().size(), 1);
    orvane::Geometry *geometry = operation.AddGeometry().first();
    EXPECT_EQ(geometry->Name(), QStringLiteral("Body-Retopo"));
    EXPECT_EQ(geometry->Placement()->WorldMatrix(), placement);
    EXPECT_TRUE(scene()->Contains(geometry));
    EXPECT_EQ(scene()->ActiveGeometry(), geometry);
}

TEST_F(NamedGeometry, withoutASourceTheNewGeometryIsManualRetopo)
{
    Sheet sheet(10, orvane::Matrix(), QStringLiteral("Body"));
    drawSquare(sheet);
    const LooseMesh loose;
    for (OrvaneCurve *curve : sheet.curves())
        loose.take(curve);
    ASSERT_EQ(sheet.curves().first()->Geometry(), nullptr);
    ManualRetopoOperation operation = operationOn(sheet, 4);
    ASSERT_TRUE(operation.ExecuteAndInvert());
    ASSERT_EQ(operation.AddGeometry().size(), 1);
    orvane::Geometry *geometry = operation.AddGeometry().first();
    EXPECT_EQ(geometry->Name(), QStringLiteral("manual-Retopo"));
    EXPECT_TRUE(geometry->Placement()->IsIdentity());
    EXPECT_TRUE(scene()->Contains(geometry));
    EXPECT_EQ(scene()->ActiveGeometry(), geometry);
}

TEST_F(NamedGeometry, aPercentSignInTheSourcesNameStays)
{
    Sheet sheet(10, orvane::Matrix(), QStringLiteral("100%1 wool"));
    drawSquare(sheet);
    ManualRetopoOperation operation = operationOn(sheet, 4);
    ASSERT_TRUE(operation.ExecuteAndInvert());
    EXPECT_EQ(operation.AddGeometry().first()->Name(), QStringLiteral("100%1 wool-Retopo"));
}
