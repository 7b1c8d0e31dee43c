// SPDX-License-Identifier: MIT
#include "host/meshchecker/meshchecker.h"
#include "tests/host/meshchecker/polygonmesh.h"
#include "tests/support/shapes.h"

#include <QSet>

#include <gtest/gtest.h>

#include <cmath>

using orvane::MeshChecker;
using orvane::MeshFault;
using orvane::Topology;
using orvane::Vector;

namespace {

int faultsOf(const MeshPointer &mesh)
{
    return MeshChecker().Validate(mesh.get());
}

const Vector FarAway(1e6f, 0, 0);

// Many kinds of fault at once.
MeshPointer meshOfManyFaults()
{
    QVector<Vector> positions = wheel(17)->Positions();
    QVector<QVector<int>> polygons;
    for (int i = 0; i < 17; ++i)
        polygons.append({0, 1 + i, 1 + (i + 1) % 17});
    // Two faces of the same vertices, and one more that makes their edges non-manifold.
    positions << Vector(5, 0, 0) << Vector(6, 0, 0) << Vector(5, 1, 0) << Vector(5, 0, 1);
    polygons << QVector<int>{18, 19, 20} << QVector<int>{20, 19, 18} << QVector<int>{18, 19, 21};
    // A repeated corner, and three on a line.
    positions << Vector(9, 0, 0) << Vector(10, 0, 0) << Vector(12, 0, 0);
    polygons << QVector<int>{22, 23, 23} << QVector<int>{22, 23, 24};
    return polygonMesh(positions, polygons);
}

} // namespace

TEST(MeshChecker, nullHasNoFault)
{
    EXPECT_EQ(MeshChecker().Validate(nullptr), 0);
    EXPECT_TRUE(MeshChecker().Find(nullptr).isEmpty());
}

TEST(MeshChecker, cleanMeshesHaveNoFault)
{
    EXPECT_EQ(faultsOf(MeshPointer(gridOfQuads(7, 5))), 0);
    EXPECT_EQ(faultsOf(MeshPointer(gridOfTriangles(7, 5))), 0);
    EXPECT_EQ(faultsOf(MeshPointer(tetrahedron())), 0);
    EXPECT_EQ(faultsOf(MeshPointer(cube())), 0);
    EXPECT_EQ(faultsOf(MeshPointer(sphere(8, 12))), 0);
    EXPECT_EQ(faultsOf(MeshPointer(polygonOfFakes(7))), 0);
    EXPECT_EQ(faultsOf(MeshPointer(singleTriangle())), 0);
}

TEST(MeshChecker, meshesWithoutFacesHaveNoFault)
{
    EXPECT_EQ(faultsOf(polygonMesh({}, {})), 0);
    EXPECT_EQ(faultsOf(polygonMesh({{1, 2, 3}, {1, 2, 3}}, {})), 0);
}

TEST(MeshChecker, verticesOfNoFaceAreNoFault)
{
    EXPECT_EQ(
        faultsOf(polygonMesh({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 0}, FarAway}, {{0, 1, 2}})),
        0);
}

TEST(MeshChecker, aHoleAloneIsNoFault)
{
    MeshPointer mesh(sphere(6, 8));
    mesh->SetFaceCount(mesh->FaceCount() - 3);
    EXPECT_EQ(faultsOf(mesh), 0);
}

TEST(MeshChecker, positionsThatAreNotFiniteAreNoFault)
{
    for (float value : {NAN, INFINITY, -INFINITY}) {
        MeshPointer mesh(sphere(6, 8));
        mesh->SetVertexPosition(3, {value, 0, 0});
        mesh->SetVertexPosition(5, {0, value, value});
        EXPECT_EQ(faultsOf(mesh), 0) << value;
        for (int v = 0; v < mesh->VertexCount(); ++v)
            mesh->SetVertexPosition(v, {value, value, value});
        EXPECT_EQ(faultsOf(mesh), 0) << value;
    }
}

TEST(MeshChecker, cornersWhoseVertexIsGoneAreLeftOut)
{
    MeshPointer mesh(gridOfQuads(2, 1)); // vertices 0 1 2 / 3 4 5
    mesh->SetVertexCount(5);
    EXPECT_EQ(faultsOf(mesh), 0); // a square and a triangle
    mesh->SetVertexCount(2);
    EXPECT_EQ(faultsOf(mesh), MeshChecker::TwoSidedFace | MeshChecker::DegenerateFace);
    mesh->SetVertexCount(0);
    EXPECT_EQ(faultsOf(mesh), MeshChecker::DegenerateFace);
}

TEST(MeshChecker, facesCountOnceTheyAreSetWithoutAnUpdate)
{
    MeshPointer mesh(gridOfQuads(2, 1));
    ASSERT_EQ(faultsOf(mesh), 0);
    mesh->SetQuadIndex(1, 2, 1);
    EXPECT_NE(faultsOf(mesh), 0);
}

TEST(MeshChecker, validateIsAllThatFindFinds)
{
    const MeshPointer mesh = meshOfManyFaults();
    int bits = 0;
    const QVector<MeshFault> found = MeshChecker().Find(mesh.get());
    for (const MeshFault &fault : found) {
        EXPECT_FALSE(bits & fault.bit) << "twice: " << fault.bit;
        EXPECT_GT(fault.Count(), 0);
        bits |= fault.bit;
    }
    EXPECT_EQ(faultsOf(mesh), bits);
    EXPECT_EQ(bits, 0xb0305);
}

TEST(MeshChecker, kindsComeInTheOrderPeopleSeeThem)
{
    const MeshPointer mesh = meshOfManyFaults();
    QVector<int> bits;
    const QVector<MeshFault> found = MeshChecker().Find(mesh.get());
    for (const MeshFault &fault : found)
        bits.append(fault.bit);
    EXPECT_EQ(bits, (QVector<int>{0x00001, 0x10000, 0x20000, 0x00004, 0x00100, 0x00200, 0x80000}));
}

TEST(MeshChecker, bitsAreTheHostsOwn)
{
    EXPECT_EQ(MeshChecker::HighValence, 0x00001);
    EXPECT_EQ(MeshChecker::BoundaryValence, 0x00002);
    EXPECT_EQ(MeshChecker::InteriorValenceTwo, 0x00004);
    EXPECT_EQ(MeshChecker::VertexSplice, 0x00008);
    EXPECT_EQ(MeshChecker::ZeroLengthEdge, 0x00100);
    EXPECT_EQ(MeshChecker::LaminaFaces, 0x00200);
    EXPECT_EQ(MeshChecker::UVCrossing, 0x00400);
    EXPECT_EQ(MeshChecker::MissingUVs, 0x00800);
    EXPECT_EQ(MeshChecker::NonManifoldEdge, 0x10000);
    EXPECT_EQ(MeshChecker::TwoSidedFace, 0x20000);
    EXPECT_EQ(MeshChecker::TooManySides, 0x40000);
    EXPECT_EQ(MeshChecker::DegenerateFace, 0x80000);
}

TEST(MeshFault, everyKindHasANameOfItsOwn)
{
    QSet<QString> names;
    for (int bit :
         {0x1, 0x2, 0x4, 0x8, 0x100, 0x200, 0x400, 0x800, 0x10000, 0x20000, 0x40000, 0x80000}) {
        MeshFault fault;
        fault.bit = bit;
        EXPECT_FALSE(fault.Name().isEmpty()) << bit;
        names.insert(fault.Name());
    }
    EXPECT_EQ(names.size(), 12);
}

TEST(MeshFault, saysWhereItIsFirst)
{
    MeshFault fault;
    EXPECT_EQ(fault.FirstPlace(), QString());
    fault.vertices = {12, 15};
    EXPECT_EQ(fault.FirstPlace(), QStringLiteral("vertex 12"));
    EXPECT_EQ(fault.Count(), 2);
    fault.vertices.clear();
    fault.edges = {{3, 7, 4}};
    EXPECT_EQ(fault.FirstPlace(), QStringLiteral("edge 3-7"));
    fault.edges.clear();
    fault.polygons = {{5, 7}};
    EXPECT_EQ(fault.FirstPlace(), QStringLiteral("polygon 5 (mesh face 7)"));
}

TEST(MeshFault, placesCountPolygonsAndNameTheirFirstMeshFace)
{
    const MeshPointer mesh = polygonMesh({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {2, 0, 0}},
                                         {{0, 1, 2, 3}, {0, 1, 4}});
    const QVector<MeshFault> found = MeshChecker().Find(mesh.get());
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0].bit, MeshChecker::DegenerateFace);
    EXPECT_EQ(found[0].FirstPlace(), QStringLiteral("polygon 1 (mesh face 2)"));
}
