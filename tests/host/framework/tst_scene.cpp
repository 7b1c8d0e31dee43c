// SPDX-License-Identifier: MIT
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/base/nodetable.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <gtest/gtest.h>

#include <QScopedPointer>

using orvane::Geometry;
using orvane::NodeTable;
using orvane::OrvaneCurve;
using orvane::Scene;
using orvane::Topology;

namespace {

// Counts itself, so that a test sees who is destroyed.
class CountedCurve : public OrvaneCurve
{
public:
    CountedCurve() { ++alive; }
    ~CountedCurve() override { --alive; }

    static int alive;
};

int CountedCurve::alive = 0;

} // namespace

class InTheScene : public SceneCleaner
{
protected:
    Scene *m_scene = orvane::Kernel()->Scene();
};

TEST_F(InTheScene, nodesStandInTheOrderTheyCame)
{
    Geometry *first = addToScene(singleTriangle());
    auto *curve = new OrvaneCurve; // the scene's
    m_scene->AddCurve(curve);
    Geometry *second = addToScene(singleQuad());
    EXPECT_EQ(m_scene->NodeCount(), 3);
    EXPECT_EQ(m_scene->NodeAt(0), first);
    EXPECT_EQ(m_scene->NodeAt(1), curve);
    EXPECT_EQ(m_scene->NodeAt(2), second);
    EXPECT_EQ(m_scene->NodeAt(3), nullptr);
    EXPECT_EQ(m_scene->NodeAt(-1), nullptr);
    EXPECT_EQ(m_scene->Geometries(), QVector<Geometry *>({first, second}));
    EXPECT_TRUE(m_scene->Contains(curve));
}

TEST_F(InTheScene, nothingIsTwiceAndNullIsNotAtAll)
{
    Geometry *geometry = addToScene(singleTriangle());
    auto *curve = new OrvaneCurve; // the scene's
    m_scene->AddCurve(curve);
    m_scene->AddGeometry(geometry);
    m_scene->AddCurve(curve);
    m_scene->AddGeometry(nullptr);
    m_scene->AddCurve(nullptr);
    m_scene->RemoveGeometry(nullptr);
    m_scene->RemoveCurve(nullptr);
    EXPECT_EQ(m_scene->NodeCount(), 2);
    EXPECT_FALSE(m_scene->Contains(nullptr));
}

TEST_F(InTheScene, whatIsRemovedGoesBackToTheCallerUnharmed)
{
    const QScopedPointer<Geometry> geometry(addToScene(singleTriangle()));
    const int ids[] = {geometry->ID(), geometry->Placement()->ID(), geometry->CurrentLevel()->ID()};
    m_scene->RemoveGeometry(geometry.data());
    EXPECT_EQ(m_scene->NodeCount(), 0);
    EXPECT_EQ(geometry->CurrentLevel()->FaceCount(), 1);
    for (const int id : ids)
        EXPECT_EQ(NodeTable::Instance().Find(id), nullptr);
    m_scene->RemoveGeometry(geometry.data());

    m_scene->AddGeometry(geometry.data());
    EXPECT_EQ(NodeTable::Instance().Find(ids[0]), geometry.data());
    EXPECT_EQ(NodeTable::Instance().Find(ids[1]), geometry->Placement());
    EXPECT_EQ(NodeTable::Instance().Find(ids[2]), geometry->CurrentLevel());
    m_scene->RemoveGeometry(geometry.data());
}

TEST_F(InTheScene, nodesAreDestroyedWithIt)
{
    auto *taken = new CountedCurve; // the test's, once removed
    m_scene->AddCurve(taken);
    m_scene->AddCurve(new CountedCurve);
    m_scene->AddCurve(new CountedCurve);
    m_scene->RemoveCurve(taken);
    EXPECT_EQ(CountedCurve::alive, 3);
    m_scene->Clear();
    EXPECT_EQ(CountedCurve::alive, 1);
    EXPECT_EQ(m_scene->NodeCount(), 0);
    delete taken;

    {
        Scene shortLived;
        shortLived.AddCurve(new CountedCurve);
        EXPECT_EQ(CountedCurve::alive, 1);
    }
    EXPECT_EQ(CountedCurve::alive, 0);
}

TEST_F(InTheScene, noGeometryIsActiveAtFirst)
{
    EXPECT_EQ(m_scene->ActiveGeometry(), nullptr);
    addToScene(singleTriangle());
    EXPECT_EQ(m_scene->ActiveGeometry(), nullptr);
}

TEST_F(InTheScene, theGeometryActiveBeforeIsActiveAgainWhenOneLeaves)
{
    Geometry *first = addToScene(singleTriangle());
    Geometry *second = addToScene(singleTriangle());
    Geometry *third = addToScene(singleTriangle());
    for (Geometry *geometry : {first, second, third, second})
        m_scene->SetActiveGeometry(geometry);
    EXPECT_EQ(m_scene->ActiveGeometry(), second);
    const QScopedPointer<Geometry> gone(second);
    m_scene->RemoveGeometry(second);
    EXPECT_EQ(m_scene->ActiveGeometry(), third);
    const QScopedPointer<Geometry> goneToo(first);
    m_scene->RemoveGeometry(first);
    EXPECT_EQ(m_scene->ActiveGeometry(), third);
    const QScopedPointer<Geometry> goneAtLast(third);
    m_scene->RemoveGeometry(third);
    EXPECT_EQ(m_scene->ActiveGeometry(), nullptr);
}

TEST_F(InTheScene, aGeometryThatIsElsewhereIsNotMadeActive)
{
    Geometry *inside = addToScene(singleTriangle());
    Geometry outside;
    m_scene->SetActiveGeometry(inside);
    m_scene->SetActiveGeometry(&outside);
    m_scene->SetActiveGeometry(nullptr);
    EXPECT_EQ(m_scene->ActiveGeometry(), inside);
}

TEST_F(InTheScene, aCurveIsNeverTheActiveOne)
{
    Geometry *geometry = addToScene(singleTriangle());
    m_scene->SetActiveGeometry(geometry);
    auto *curve = new OrvaneCurve; // the scene's
    ASSERT_TRUE(m_scene->Restore(curve, {1, 1}));
    EXPECT_EQ(m_scene->ActiveGeometry(), geometry);
    EXPECT_EQ(m_scene->PlaceOf(curve).activeRank, -1);
}

TEST_F(InTheScene, nothingIsActiveAfterItIsCleared)
{
    m_scene->SetActiveGeometry(addToScene(singleTriangle()));
    m_scene->Clear();
    EXPECT_EQ(m_scene->ActiveGeometry(), nullptr);
    EXPECT_TRUE(m_scene->Geometries().isEmpty());
}

TEST_F(InTheScene, aMeshIsMadeOfTheKindAskedForAndLeftToTheCaller)
{
    const QScopedPointer<orvane::Mesh> quads(m_scene->CreateMesh(Topology::Quads));
    const QScopedPointer<orvane::Mesh> triangles(m_scene->CreateMesh(Topology::Triangles));
    EXPECT_TRUE(quads->IsQuads());
    EXPECT_FALSE(triangles->IsQuads());
    EXPECT_NE(dynamic_cast<orvane::SubdivisionLevel *>(quads.data()), nullptr);
    EXPECT_EQ(m_scene->NodeCount(), 0);
    EXPECT_EQ(quads->ID(), 0);
    EXPECT_EQ(quads->Holder(), nullptr);
}

TEST_F(InTheScene, aChangeIsNotedAndForgottenWhenSaved)
{
    EXPECT_FALSE(m_scene->IsChanged());
    m_scene->SetChanged(true);
    EXPECT_TRUE(m_scene->IsChanged());
    m_scene->SetChanged(false);
    EXPECT_FALSE(m_scene->IsChanged());
}

TEST_F(InTheScene, aNodeComesBackToThePlaceItHad)
{
    Scene *scene = orvane::Kernel()->Scene();
    Geometry *a = addToScene(cube());
    Geometry *b = addToScene(cube());
    Geometry *c = addToScene(cube());
    for (Geometry *geometry : {b, a, c})
        scene->SetActiveGeometry(geometry);
    for (Geometry *geometry : {a, b, c}) {
        const QVector<Geometry *> order = scene->Geometries();
        const QVector<Geometry *> active = scene->ActiveHistory();
        const int id = geometry->ID();
        const orvane::ScenePlace place = scene->PlaceOf(geometry);
        scene->Remove(geometry);
        EXPECT_FALSE(scene->Contains(geometry));
        EXPECT_TRUE(scene->Restore(geometry, place));
        EXPECT_EQ(scene->Geometries(), order);
        EXPECT_EQ(scene->ActiveHistory(), active);
        EXPECT_EQ(geometry->ID(), id);
    }
}

TEST_F(InTheScene, aPlaceOutOfRangeIsTheEnd)
{
    Scene *scene = orvane::Kernel()->Scene();
    addToScene(cube());
    auto *geometry = new Geometry;
    orvane::ScenePlace place;
    place.index = 7;
    place.activeRank = 9;
    EXPECT_TRUE(scene->Restore(geometry, place));
    EXPECT_EQ(scene->PlaceOf(geometry).index, 1);
    EXPECT_EQ(scene->ActiveGeometry(), geometry);
}

TEST_F(InTheScene, onlyGeometriesAndCurvesAreTakenAndOnlyOnce)
{
    Scene *scene = orvane::Kernel()->Scene();
    orvane::Node node;
    EXPECT_FALSE(scene->Restore(&node, {}));
    EXPECT_FALSE(scene->Restore(nullptr, {}));
    EXPECT_FALSE(scene->Restore(addToScene(cube()), {}));
    EXPECT_EQ(scene->NodeCount(), 1);
    EXPECT_EQ(scene->PlaceOf(&node).index, -1);
}

TEST_F(InTheScene, curvesAreDrawnOnTheFirstGeometryUnlessAnotherIsChosen)
{
    Scene *scene = orvane::Kernel()->Scene();
    EXPECT_EQ(scene->DrawingSurface(), nullptr);
    Geometry *first = addToScene(cube());
    Geometry *second = addToScene(cube());
    EXPECT_EQ(scene->DrawingSurface(), first);
    scene->SetDrawingSurface(second);
    EXPECT_EQ(scene->DrawingSurface(), second);
    const orvane::ScenePlace place = scene->PlaceOf(second);
    scene->Remove(second);
    EXPECT_EQ(scene->DrawingSurface(), first);
    scene->Restore(second, place);
    EXPECT_EQ(scene->DrawingSurface(), second) << "undo brought it back";
    scene->SetDrawingSurface(nullptr);
    EXPECT_EQ(scene->DrawingSurface(), first);
}
