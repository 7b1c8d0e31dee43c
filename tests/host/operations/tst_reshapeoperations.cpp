// SPDX-License-Identifier: MIT
#include "tests/host/operations/samplescene.h"
#include "tests/support/logcatcher.h"
#include "tests/support/recordinginterface.h"
#include "tests/support/scenebytes.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/geometry/surfacelocator.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/operations/addoperations.h>
#include <orvane/operations/projectoperation.h>
#include <orvane/operations/relaxation.h>
#include <orvane/operations/relaxoperation.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

using orvane::Geometry;
using orvane::Matrix;
using orvane::Mesh;
using orvane::ProjectOperation;
using orvane::RelaxOperation;
using orvane::SubdivisionLevel;
using orvane::Topology;
using orvane::Vector;

namespace {

class Reshaping : public SampleScene
{
protected:
    Reshaping() { orvane::Kernel()->NewScene(); }

    // An uneven net of quads that wraps a ball of radius 1, poles open.
    SubdivisionLevel *net(float radius)
    {
        SubdivisionLevel *mesh = gridOfQuads(12, 6);
        for (int v = 0; v < mesh->VertexCount(); ++v) {
            const Vector p = mesh->VertexPosition(v) + randomVector(m_random, 0.25f);
            const float round = p.x * 0.45f;
            const float up = (p.y - 3) * 0.4f;
            mesh->SetVertexPosition(v, Vector(std::cos(round) * std::cos(up),
                                              std::sin(round) * std::cos(up), std::sin(up))
                                           * radius);
        }
        mesh->RecomputeNormals(false);
        mesh->Update(true, 0);
        return mesh;
    }

    void expectToldWhy(orvane::Operation &operation, const char *reason)
    {
        const LogCatcher logs;
        RecordingInterface interface;
        const QByteArray before = sceneBytes();
        EXPECT_FALSE(orvane::Kernel()->DoOperation(&operation, true, false));
        EXPECT_TRUE(sceneBytes() == before);
        EXPECT_FALSE(orvane::Kernel()->Undos().CanUndo());
        ASSERT_EQ(interface.messages.size(), 1);
        EXPECT_EQ(interface.messages[0].text,
                  QStringLiteral("Nothing was made: ") + QString::fromUtf8(reason));
    }

    static bool run(orvane::Operation &&operation)
    {
        return orvane::Kernel()->DoOperation(&operation, false, false);
    }

    // Bounds, edges and face normals are those of the positions as they are now.
    static void expectUpToDate(const Mesh &mesh)
    {
        const std::unique_ptr<SubdivisionLevel> anew(
            meshOf(mesh.Type(), mesh.Positions(), mesh.Corners()));
        EXPECT_EQ(mesh.Bounds().minimum, anew->Bounds().minimum);
        EXPECT_EQ(mesh.Bounds().maximum, anew->Bounds().maximum);
        EXPECT_EQ(mesh.Edges().size(), anew->Edges().size());
        for (int face = 0; face < mesh.FaceCount(); ++face)
            EXPECT_EQ(mesh.FaceNormal(face), anew->FaceNormal(face));
    }

    std::mt19937 m_random{testSeed()};
};

} // namespace

TEST_F(Reshaping, goesBackAndForthToTheBit)
{
    const Geometry *source = addToScene(sphere(30, 40));
    const Geometry *mesh = addToScene(net(1.2f));
    RelaxOperation relax(mesh, source, 5, 0.8f);
    expectDoUndoRedo(relax, "Smooth along Source");
    expectUpToDate(*mesh->CurrentLevel());
    ASSERT_TRUE(orvane::Kernel()->Undo());
    expectUpToDate(*mesh->CurrentLevel());
    ProjectOperation project(mesh, source);
    expectDoUndoRedo(project, "Put onto Source");
    expectUpToDate(*mesh->CurrentLevel());
    EXPECT_TRUE(mesh->CurrentLevel()->IsChanged());
}

TEST_F(Reshaping, whatItDoesIsWhatThePlainFunctionsSay)
{
    const Geometry *source = addToScene(sphere(30, 40));
    const Geometry *mesh = addToScene(net(1.2f));
    const auto places = relaxedPlaces(*mesh->CurrentLevel(),
                                      orvane::SourceSurface(*source->CurrentLevel()), 4, 0.5f);
    ASSERT_TRUE(run(RelaxOperation(mesh, source, 4, 0.5f)));
    for (size_t v = 0; v < places.size(); ++v)
        EXPECT_EQ(mesh->CurrentLevel()->VertexPosition(int(v)), places[v].position);
}

TEST_F(Reshaping, putsTurnedAndScaledMeshesOntoTurnedAndScaledSources)
{
    for (int i = 0; i < 40; ++i) {
        const Matrix placement = randomPlacement(m_random);
        const Geometry *source = addToScene(sphere(20, 30), QStringLiteral("Ball"), placement);
        const Matrix own = i % 2 ? placement : randomPlacement(m_random) * placement;
        const Geometry *mesh = addToScene(net(1.3f), QStringLiteral("Net"), own);
        if (i % 4 < 2)
            ASSERT_TRUE(run(ProjectOperation(mesh, source)));
        else
            ASSERT_TRUE(run(RelaxOperation(mesh, source, 3)));
        const Mesh &level = *mesh->CurrentLevel();
        const orvane::SurfaceLocator locator(*source->CurrentLevel());
        orvane::AxisAlignedBoundingBox box;
        for (int v = 0; v < source->CurrentLevel()->VertexCount(); ++v)
            box.Extend(source->CurrentLevel()->WorldVertexPosition(v));
        for (int v = 0; v < level.VertexCount(); ++v) {
            const Vector place = level.WorldVertexPosition(v);
            const auto closest = locator.ClosestPoint(place, 100.0f);
            EXPECT_LE((closest.WorldPosition() - place).Length(), 1e-5f * box.Diagonal());
        }
        expectUpToDate(level);
    }
}

TEST_F(Reshaping, normalsAreThoseOfTheSource)
{
    const Matrix placement = randomPlacement(m_random);
    const Geometry *source = addToScene(sphere(40, 60), QStringLiteral("Ball"), placement);
    const Geometry *mesh = addToScene(net(1.1f), QStringLiteral("Net"), placement);
    ASSERT_TRUE(run(ProjectOperation(mesh, source)));
    const Mesh &level = *mesh->CurrentLevel();
    const orvane::SurfaceLocator locator(*source->CurrentLevel());
    for (int v = 0; v < level.VertexCount(); ++v) {
        const Vector normal =
            locator.ClosestPoint(level.WorldVertexPosition(v), 1.0f).WorldNormal();
        EXPECT_LE((level.WorldVertexNormal(v) - normal).Length(), 1e-2f);
        EXPECT_NEAR(level.VertexNormal(v).Length(), 1.0f, 1e-5f);
    }
}

TEST_F(Reshaping, aMeshThatLooksInwardsGoesOnLookingInwards)
{
    const Geometry *source = addToScene(sphere(40, 60));
    const std::unique_ptr<SubdivisionLevel> outwards(net(1.1f));
    QVector<int> corners = outwards->Corners();
    std::reverse(corners.begin(), corners.end());
    const Geometry *mesh = addToScene(meshOf(Topology::Quads, outwards->Positions(), corners));
    ASSERT_TRUE(run(ProjectOperation(mesh, source)));
    const Mesh &level = *mesh->CurrentLevel();
    for (int v = 0; v < level.VertexCount(); ++v)
        EXPECT_LT(Dot(level.VertexNormal(v), level.VertexPosition(v)), -0.9f);
}

TEST_F(Reshaping, puttingOnTwiceIsNoSecondStep)
{
    const Geometry *source = addToScene(sphere(30, 40));
    const Geometry *mesh = addToScene(net(1.2f));
    ASSERT_TRUE(run(ProjectOperation(mesh, source)));
    orvane::Kernel()->Undos().Clear();
    ProjectOperation again(mesh, source);
    expectToldWhy(again, "every vertex is in its place already");
}

TEST_F(Reshaping, theUserIsToldWhatIsWrongWithTheSource)
{
    Geometry *source = addToScene(sphere(30, 40));
    const Geometry *mesh = addToScene(net(1.2f));
    RelaxOperation onNothing(mesh, nullptr);
    expectToldWhy(onNothing, "the source is no longer in the scene");
    RelaxOperation onItself(mesh, mesh);
    expectToldWhy(onItself, "a mesh cannot be its own source");
    RelaxOperation relax(mesh, source);
    ProjectOperation project(mesh, source);
    source->SetHidden(true);
    expectToldWhy(relax, "the source is hidden");
    source->SetHidden(false);
    orvane::Kernel()->Scene()->RemoveGeometry(source);
    expectToldWhy(project, "the source is no longer in the scene");
    delete source;
    auto *empty = new Geometry; // the scene's
    orvane::Kernel()->Scene()->AddGeometry(empty);
    ProjectOperation onNoLevel(mesh, empty);
    expectToldWhy(onNoLevel, "the source has no faces");
    empty->AddLevel(new SubdivisionLevel);
    expectToldWhy(onNoLevel, "the source has no faces");
}

TEST_F(Reshaping, theUserIsToldWhatIsWrongWithTheMesh)
{
    const Geometry *source = addToScene(sphere(30, 40));
    auto *empty = new Geometry; // the scene's
    orvane::Kernel()->Scene()->AddGeometry(empty);
    RelaxOperation ofNoLevel(empty, source);
    expectToldWhy(ofNoLevel, "the mesh has no vertices");
    empty->AddLevel(new SubdivisionLevel);
    expectToldWhy(ofNoLevel, "the mesh has no vertices");
    SubdivisionLevel *damaged = net(1.0f);
    damaged->SetVertexPosition(7, {0, std::numeric_limits<float>::quiet_NaN(), 0});
    ProjectOperation ofDamaged(addToScene(damaged), source);
    expectToldWhy(ofDamaged, "the mesh is damaged");
}

TEST_F(Reshaping, undoAndRedoNeedNoSource)
{
    Geometry *source = addToScene(sphere(30, 40));
    const Geometry *mesh = addToScene(net(1.2f));
    const QVector<Vector> before = mesh->CurrentLevel()->Positions();
    ASSERT_TRUE(run(RelaxOperation(mesh, source, 2)));
    const QVector<Vector> after = mesh->CurrentLevel()->Positions();
    orvane::Kernel()->Scene()->RemoveGeometry(source);
    delete source;
    ASSERT_TRUE(orvane::Kernel()->Undo());
    EXPECT_EQ(mesh->CurrentLevel()->Positions(), before);
    ASSERT_TRUE(orvane::Kernel()->Redo());
    EXPECT_EQ(mesh->CurrentLevel()->Positions(), after);
}

TEST_F(Reshaping, aMeshThatWentAndCameBackIsFoundByItsNumber)
{
    const Geometry *source = addToScene(sphere(30, 40));
    auto *mesh = new Geometry;
    mesh->AddLevel(net(1.2f));
    QVector<QByteArray> scenes{sceneBytes()};
    ASSERT_TRUE(run(orvane::AddGeometryOperation(mesh)));
    scenes.append(sceneBytes());
    for (int i = 0; i < 5; ++i) {
        ASSERT_TRUE(run(RelaxOperation(mesh, source, 1 + i)));
        scenes.append(sceneBytes());
    }
    for (int round = 0; round < 3; ++round) {
        for (int i = scenes.size() - 2; i >= 0; --i) {
            ASSERT_TRUE(orvane::Kernel()->Undo());
            ASSERT_TRUE(sceneBytes() == scenes[i]);
        }
        for (int i = 1; i < scenes.size(); ++i) {
            ASSERT_TRUE(orvane::Kernel()->Redo());
            ASSERT_TRUE(sceneBytes() == scenes[i]);
        }
    }
}

TEST_F(Reshaping, onlyTheCurrentLevelIsReshaped)
{
    const Geometry *source = addToScene(sphere(30, 40));
    Geometry *mesh = addToScene(net(1.2f));
    mesh->AddLevel(net(1.3f));
    mesh->SetCurrentLevel(0);
    const QVector<Vector> other = mesh->Level(1)->Positions();
    const QVector<Vector> before = mesh->Level(0)->Positions();
    ASSERT_TRUE(run(ProjectOperation(mesh, source)));
    EXPECT_NE(mesh->Level(0)->Positions(), before);
    EXPECT_EQ(mesh->Level(1)->Positions(), other);
    mesh->SetCurrentLevel(1); // the step is still about level 0
    ASSERT_TRUE(orvane::Kernel()->Undo());
    EXPECT_EQ(mesh->Level(0)->Positions(), before);
    EXPECT_EQ(mesh->Level(1)->Positions(), other);
}

TEST_F(Reshaping, aMeshThatLostVerticesSinceIsLeftAlone)
{
    const LogCatcher logs;
    const Geometry *source = addToScene(sphere(30, 40));
    const Geometry *mesh = addToScene(net(1.2f));
    ASSERT_TRUE(run(ProjectOperation(mesh, source)));
    mesh->CurrentLevel()->SetFaceCount(0);
    mesh->CurrentLevel()->SetVertexCount(5);
    const QByteArray before = sceneBytes();
    EXPECT_FALSE(orvane::Kernel()->Undo());
    EXPECT_TRUE(sceneBytes() == before);
    EXPECT_GE(logs.count(), 1);
}

TEST_F(Reshaping, stepsAndStrengthAreBroughtIntoRange)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const Geometry *source = addToScene(sphere(30, 40));
    const Geometry *mesh = addToScene(net(1.2f));
    const auto positionsAfter = [&](int steps, float strength) {
        EXPECT_TRUE(run(RelaxOperation(mesh, source, steps, strength)));
        const QVector<Vector> positions = mesh->CurrentLevel()->Positions();
        EXPECT_TRUE(orvane::Kernel()->Undo());
        return positions;
    };
    EXPECT_EQ(positionsAfter(-3, 1.0f), positionsAfter(1, 1.0f));
    EXPECT_EQ(positionsAfter(100000000, 1.0f), positionsAfter(100, 1.0f));
    EXPECT_EQ(positionsAfter(2, 7.0f), positionsAfter(2, 1.0f));
    EXPECT_EQ(positionsAfter(2, nan), positionsAfter(2, 0.0f));
    EXPECT_EQ(positionsAfter(2, -1.0f), positionsAfter(2, 0.0f));
    EXPECT_NE(positionsAfter(2, 1.0f), positionsAfter(2, 0.0f));
}

TEST_F(Reshaping, severalFoldedIntoOneStepAreUndoneTogether)
{
    const Geometry *source = addToScene(sphere(30, 40));
    const Geometry *mesh = addToScene(net(1.2f));
    const QByteArray before = sceneBytes();
    for (int i = 0; i < 6; ++i) {
        RelaxOperation operation(mesh, source, 1, 0.5f);
        ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, i > 0));
    }
    const QByteArray after = sceneBytes();
    EXPECT_EQ(orvane::Kernel()->Undos().StepCount(), 1);
    ASSERT_TRUE(orvane::Kernel()->Undo());
    EXPECT_TRUE(sceneBytes() == before);
    ASSERT_TRUE(orvane::Kernel()->Redo());
    EXPECT_TRUE(sceneBytes() == after);
}

TEST_F(Reshaping, verticesFarOutLeaveNoNormalThatIsNotFinite)
{
    const float huge = std::numeric_limits<float>::max();
    const Geometry *source = addToScene(sphere(8, 8));
    SubdivisionLevel *level = net(1.2f);
    level->SetVertexPosition(3, {huge, huge, -huge});
    level->SetVertexPosition(4, {1e25f, 0, 0});
    const Geometry *mesh = addToScene(level);
    const QByteArray before = sceneBytes();
    ASSERT_TRUE(run(RelaxOperation(mesh, source, 2)));
    EXPECT_TRUE(mesh->CheckValidity());
    ASSERT_TRUE(orvane::Kernel()->Undo());
    EXPECT_TRUE(sceneBytes() == before);
    ASSERT_TRUE(orvane::Kernel()->Redo());
    EXPECT_TRUE(mesh->CheckValidity());
}

TEST_F(Reshaping, aSourceWithoutAreaGivesTheMeshItsOwnNormals)
{
    const Geometry *needle = addToScene(
        meshOf(Topology::Triangles, {{-9, 0, 0.5f}, {0, 0, 0.5f}, {9, 0, 0.5f}}, {0, 1, 2}));
    SubdivisionLevel *flat = gridOfQuads(2, 2);
    const Geometry *mesh = addToScene(flat, QStringLiteral("Flat"), Matrix::Translation({0, 0, 1}));
    ASSERT_TRUE(run(ProjectOperation(mesh, needle)));
    EXPECT_TRUE(mesh->CheckValidity());
    for (int v = 0; v < flat->VertexCount(); ++v)
        EXPECT_EQ(flat->VertexNormal(v), Vector()); // all on one line: no area, no normal
}

TEST_F(Reshaping, whereNormalsAreBeyondNumbersThereAreNone)
{
    const float tiny = 1e-20f;
    const Geometry *needle =
        addToScene(meshOf(Topology::Triangles, {{-9, -9, -9}, {0, 0, 0}, {9, 9, 9}}, {0, 1, 2}));
    SubdivisionLevel *level = gridOfQuads(2, 2);
    for (int v = 0; v < level->VertexCount(); ++v)
        level->SetVertexPosition(v, level->VertexPosition(v) / tiny); // squares are no floats
    const Geometry *mesh =
        addToScene(level, QStringLiteral("Vast"), Matrix::Scaling({tiny, tiny, tiny}));
    const QByteArray before = sceneBytes();
    ASSERT_TRUE(run(ProjectOperation(mesh, needle)));
    EXPECT_TRUE(mesh->CheckValidity());
    ASSERT_TRUE(orvane::Kernel()->Undo());
    EXPECT_TRUE(sceneBytes() == before);
    ASSERT_TRUE(orvane::Kernel()->Redo());
}
