// SPDX-License-Identifier: MIT
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"
#include "tests/ui/faultdialog.h"
#include "ui/validatenewmesh.h"

#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>

#include <QDialog>

#include <memory>
#include <new>

using orvane::SubdivisionLevel;
using orvane::Vector;

namespace {

using MeshPointer = std::unique_ptr<SubdivisionLevel>;
using BoolAttribute = orvane::AttributeInstance<bool>;

orvane::Preferences *preferences()
{
    return orvane::Kernel()->Preferences();
}

// The host without "Render Mesh Faults", for as long as this lives.
class WithoutPreference
{
public:
    WithoutPreference() : m_id(preferences()->renderMeshFaults.ID())
    {
        preferences()->renderMeshFaults.~BoolAttribute();
    }
    ~WithoutPreference()
    {
        new (&preferences()->renderMeshFaults) BoolAttribute(preferences(), m_id, false);
    }
    WithoutPreference(const WithoutPreference &) = delete;
    WithoutPreference &operator=(const WithoutPreference &) = delete;

    const QString &id() const { return m_id; }

private:
    QString m_id;
};

MeshPointer triangles(const QVector<Vector> &positions, const QVector<int> &corners)
{
    return MeshPointer(meshOf(orvane::Topology::Triangles, positions, corners));
}

// A wheel of 17 spokes; its last vertices are a flat triangle of their own.
MeshPointer wheelAndFlatTriangle()
{
    const int spokes = 17;
    QVector<Vector> positions = MeshPointer(polygonOfFakes(spokes))->Positions();
    positions << Vector(0, 0, 0) << Vector(2, 0, 0) << Vector(3, 0, 0) << Vector(4, 0, 0);
    QVector<int> corners = {spokes + 1, spokes + 2, spokes + 3};
    for (int i = 0; i < spokes; ++i)
        corners << spokes << i << (i + 1) % spokes;
    return triangles(positions, corners);
}

// Three tetrahedra: one shares an edge with the first, the other a vertex.
MeshPointer tetrahedraJoinedBadly()
{
    QVector<int> corners;
    for (const QVector<int> &t : {QVector<int>{0, 1, 2, 3}, {0, 1, 4, 5}, {3, 6, 7, 8}})
        corners << t[0] << t[2] << t[1] << t[0] << t[1] << t[3] << t[0] << t[3] << t[2] << t[1]
                << t[2] << t[3];
    return triangles({{0, 0, 0},
                      {0, 0, 1},
                      {1, 0, 0},
                      {1, 1, 0},
                      {-1, 0, 0},
                      {-1, -1, 0},
                      {2, 1, 0},
                      {2, 2, 0},
                      {2, 2, 1}},
                     corners);
}

// The titles that the dialog shows for the mesh, which accepting it then keeps.
QStringList titlesOnTheWay(const MeshPointer &mesh)
{
    QStringList titles;
    const DialogVisitor visitor([&titles](QDialog &dialog) {
        titles = rowTitles(dialog);
        clickAccept(dialog);
    });
    EXPECT_TRUE(validateNewMesh(mesh.get()));
    EXPECT_TRUE(visitor.hasVisited());
    return titles;
}

class KeptMesh : public SceneCleaner
{
protected:
    KeptMesh() { preferences()->renderMeshFaults.SetValue(false); }
    ~KeptMesh() override { preferences()->renderMeshFaults.SetValue(false); }
};

} // namespace

TEST_F(KeptMesh, withHighValenceAndADegenerateFaceShowsTwoRows)
{
    EXPECT_EQ(
        titlesOnTheWay(wheelAndFlatTriangle()),
        (QStringList{QStringLiteral("High-valence vertex"), QStringLiteral("Degenerated Face")}));
}

TEST_F(KeptMesh, withATShapeAndAVertexSpliceShowsTheTShapeFirst)
{
    EXPECT_EQ(titlesOnTheWay(tetrahedraJoinedBadly()),
              (QStringList{QStringLiteral("Non-manifold (T-shape)"),
                           QStringLiteral("Non-manifold (vertex splice)")}));
}

TEST_F(KeptMesh, isKeptWhereThePreferenceIsMissing)
{
    const MeshPointer mesh(polygonOfFakes(17));
    {
        const WithoutPreference without;
        ASSERT_EQ(preferences()->AttributeByID(without.id()), nullptr);
        const DialogVisitor visitor(clickAccept);
        EXPECT_TRUE(validateNewMesh(mesh.get()));
        EXPECT_TRUE(visitor.hasVisited());
    }
    EXPECT_FALSE(preferences()->renderMeshFaults.Value());
}

TEST_F(KeptMesh, leavesAPreferenceThatIsNoBooleanAlone)
{
    const MeshPointer mesh(polygonOfFakes(17));
    const WithoutPreference without;
    const orvane::AttributeInstance<int> number(preferences(), without.id(), 0);
    ASSERT_EQ(preferences()->AttributeByID(without.id()), &number);
    const DialogVisitor visitor(clickAccept);
    EXPECT_TRUE(validateNewMesh(mesh.get()));
    EXPECT_TRUE(visitor.hasVisited());
    EXPECT_EQ(number.Value(), 0);
}
