// SPDX-License-Identifier: MIT
#include "tests/support/logcatcher.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/base/classdesc.h>
#include <orvane/base/node.h>
#include <orvane/base/nodetable.h>
#include <orvane/base/operation.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>

using orvane::Geometry;
using orvane::Node;
using orvane::NodeTable;
using orvane::Operation;
using orvane::OrvaneCurve;

namespace {

orvane::Scene *scene()
{
    return orvane::Kernel()->Scene();
}

OrvaneCurve *curveInScene()
{
    auto *curve = new OrvaneCurve; // the scene's
    scene()->AddCurve(curve);
    return curve;
}

int numberAfterTheHighest()
{
    curveInScene()->SetID(std::numeric_limits<int>::max());
    return curveInScene()->ID();
}

#if defined(__x86_64__) && !defined(_WIN32)
// In the Itanium C++ ABI a pointer to a virtual function holds its offset in the table, plus one.
template <typename Function>
int slotOf(Function function)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof(function) == sizeof(words), "not the layout of a member pointer");
    std::memcpy(words, &function, sizeof(words));
    EXPECT_EQ(words[0] % std::ptrdiff_t(sizeof(void *)), 1) << "not virtual";
    return int(words[0] / std::ptrdiff_t(sizeof(void *)));
}
#endif

} // namespace

class NodeID : public SceneCleaner
{};

#if defined(__x86_64__) && !defined(_WIN32)
TEST(Node, keepsTheOrderOfItsVirtualFunctions)
{
    // The destructor comes first and takes two places.
    EXPECT_EQ(slotOf(&Node::Initialize), 2);
    EXPECT_EQ(slotOf(&Node::OnNodeEvent), 3);
    EXPECT_EQ(slotOf(&Node::OnEvent), 4);
    EXPECT_EQ(slotOf(&Node::Name), 5);
    EXPECT_EQ(slotOf(&Node::SetName), 6);
    EXPECT_EQ(slotOf(&Node::StringID), 7);
    EXPECT_EQ(slotOf(&Node::SetStringID), 8);
    EXPECT_EQ(slotOf(&Node::DisplayName), 9);
    EXPECT_EQ(slotOf(&Node::SetDisplayName), 10);
    EXPECT_EQ(slotOf(&Node::HelpID), 11);
    EXPECT_EQ(slotOf(&Node::SetHelpID), 12);
    EXPECT_EQ(slotOf(&Node::CreatePropertiesWindow), 13);
    EXPECT_EQ(slotOf(&Node::Serialize), 14);
    EXPECT_EQ(slotOf(&Node::CheckValidity), 15);
    EXPECT_EQ(slotOf(&Node::CopyTo), 16);
    EXPECT_EQ(slotOf(&Node::Duplicate), 17);
    EXPECT_EQ(slotOf(&Node::RuntimeClass), 18);
    EXPECT_EQ(slotOf(&Operation::ExecuteAndInvert), 19);
}
#endif

TEST(Node, takesItsNamesFromTheConstructor)
{
    const Node node(QStringLiteral("id"), QStringLiteral("Shown"));
    EXPECT_EQ(node.StringID(), QStringLiteral("id"));
    EXPECT_EQ(node.DisplayName(), QStringLiteral("Shown"));
    EXPECT_TRUE(node.Name().isEmpty());
    EXPECT_TRUE(node.HelpID().isEmpty());
}

TEST(Node, isFitForUseAndHasNoWindowUnlessAClassSaysOtherwise)
{
    Node node;
    EXPECT_TRUE(node.CheckValidity());
    EXPECT_EQ(node.CreatePropertiesWindow(nullptr), nullptr);
}

TEST(Node, givesItsNamesToACopyButNotItsNumber)
{
    Node node(QStringLiteral("id"), QStringLiteral("Shown"));
    node.SetName(QStringLiteral("name"));
    node.SetHelpID(QStringLiteral("help"));
    node.SetID(7);
    const Node copy(node);
    EXPECT_EQ(copy.Name(), QStringLiteral("name"));
    EXPECT_EQ(copy.StringID(), QStringLiteral("id"));
    EXPECT_EQ(copy.DisplayName(), QStringLiteral("Shown"));
    EXPECT_EQ(copy.HelpID(), QStringLiteral("help"));
    EXPECT_EQ(copy.ID(), 0);
}

TEST(Node, keepsItsNumberWhenItIsAssignedTo)
{
    Node one;
    one.SetID(1);
    Node two;
    two.SetID(2);
    two.SetName(QStringLiteral("two"));
    one = two;
    EXPECT_EQ(one.Name(), QStringLiteral("two"));
    EXPECT_EQ(one.ID(), 1);
}

TEST(Node, copiesOntoANodeOfItsClassOnly)
{
    OrvaneCurve source;
    source.SetName(QStringLiteral("stroke"));
    source.SetClosed(true);
    source.AppendPoint(orvane::CurvePoint(orvane::Vector(1, 2, 3)));
    OrvaneCurve target;
    EXPECT_TRUE(source.CopyTo(&target));
    EXPECT_EQ(target.Name(), QStringLiteral("stroke"));
    EXPECT_TRUE(target.Closed());
    ASSERT_EQ(target.PointCount(), 1);
    EXPECT_EQ(target.PointAt(0).position, orvane::Vector(1, 2, 3));

    Geometry other;
    EXPECT_FALSE(source.CopyTo(&other));
    EXPECT_FALSE(source.CopyTo(nullptr));
    EXPECT_TRUE(other.Name().isEmpty());
}

TEST(Node, isDuplicatedThroughItsClass)
{
    OrvaneCurve source;
    source.SetName(QStringLiteral("stroke"));
    const QScopedPointer<Node> copy(source.Duplicate());
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->RuntimeClass(), OrvaneCurve::StaticClass());
    EXPECT_EQ(copy->Name(), QStringLiteral("stroke"));
    EXPECT_EQ(Node().Duplicate(), nullptr) << "nothing can be made of the abstract class";
}

TEST_F(NodeID, isZeroForANodeThatNeverWasInAScene)
{
    EXPECT_EQ(Node().ID(), 0);
}

TEST_F(NodeID, isGivenAtTheFirstAsking)
{
    const int before = NodeTable::Instance().LastID();
    const OrvaneCurve *silent = curveInScene();
    const OrvaneCurve *asked = curveInScene();
    EXPECT_EQ(NodeTable::Instance().LastID(), before);
    EXPECT_EQ(asked->ID(), before + 1);
    EXPECT_EQ(asked->ID(), before + 1);
    EXPECT_EQ(silent->ID(), before + 2);
}

TEST_F(NodeID, findsTheNode)
{
    OrvaneCurve *curve = curveInScene();
    EXPECT_EQ(NodeTable::Instance().Find(curve->ID()), curve);
    EXPECT_EQ(NodeTable::Instance().Find(0), nullptr);
    EXPECT_EQ(NodeTable::Instance().Find(-1), nullptr);
}

TEST_F(NodeID, isNeverGivenTwice)
{
    OrvaneCurve *first = curveInScene();
    const int id = first->ID();
    scene()->RemoveCurve(first);
    delete first;
    EXPECT_EQ(NodeTable::Instance().Find(id), nullptr);
    EXPECT_GT(curveInScene()->ID(), id);
}

TEST_F(NodeID, canBeSetToANumberThatIsFree)
{
    OrvaneCurve *curve = curveInScene();
    const int old = curve->ID();
    curve->SetID(old + 1000);
    EXPECT_EQ(curve->ID(), old + 1000);
    EXPECT_EQ(NodeTable::Instance().Find(old + 1000), curve);
    EXPECT_EQ(NodeTable::Instance().Find(old), nullptr);
    EXPECT_EQ(curveInScene()->ID(), old + 1001) << "numbers up to the highest count as given";
}

TEST_F(NodeID, setBeforeTheFirstAskingTakesNoNumberOfItsOwn)
{
    const int id = curveInScene()->ID() + 5;
    curveInScene()->SetID(id);
    EXPECT_EQ(NodeTable::Instance().LastID(), id);
}

TEST_F(NodeID, ofAnotherNodeIsRefusedAndLogged)
{
    OrvaneCurve *one = curveInScene();
    OrvaneCurve *two = curveInScene();
    const int id = two->ID();
    LogCatcher log;
    two->SetID(one->ID());
    EXPECT_EQ(two->ID(), id);
    EXPECT_EQ(NodeTable::Instance().Find(one->ID()), one);
    EXPECT_EQ(log.count(), 1);
}

TEST_F(NodeID, belowOneIsRefusedAndLogged)
{
    OrvaneCurve *inside = curveInScene();
    const int id = inside->ID();
    Node outside;
    LogCatcher log;
    inside->SetID(0);
    inside->SetID(-3);
    outside.SetID(-3);
    EXPECT_EQ(inside->ID(), id);
    EXPECT_EQ(outside.ID(), 0);
    EXPECT_EQ(log.count(), 3);
}

TEST_F(NodeID, setToItselfChangesNothing)
{
    OrvaneCurve *curve = curveInScene();
    LogCatcher log;
    curve->SetID(curve->ID());
    EXPECT_EQ(NodeTable::Instance().Find(curve->ID()), curve);
    EXPECT_EQ(log.count(), 0);
}

TEST_F(NodeID, staysWithANodeThatLeavesAndComesBack)
{
    OrvaneCurve *curve = curveInScene();
    const int id = curve->ID();
    scene()->RemoveCurve(curve);
    EXPECT_EQ(curve->ID(), id);
    EXPECT_FALSE(curve->IsInScene());
    EXPECT_EQ(NodeTable::Instance().Find(id), nullptr);
    scene()->AddCurve(curve);
    EXPECT_EQ(curve->ID(), id);
    EXPECT_TRUE(curve->IsInScene());
    EXPECT_EQ(NodeTable::Instance().Find(id), curve);
}

TEST_F(NodeID, isANewOneWhenTheOldOneWasTakenMeanwhile)
{
    OrvaneCurve *curve = curveInScene();
    const int id = curve->ID();
    scene()->RemoveCurve(curve);
    OrvaneCurve *heir = curveInScene();
    heir->SetID(id);
    scene()->AddCurve(curve);
    EXPECT_EQ(NodeTable::Instance().Find(id), heir);
    EXPECT_NE(curve->ID(), id);
    EXPECT_EQ(NodeTable::Instance().Find(curve->ID()), curve);
}

TEST_F(NodeID, setOutsideTheSceneCountsOnceTheNodeIsIn)
{
    const int id = NodeTable::Instance().LastID() + 50;
    auto *curve = new OrvaneCurve; // the scene's
    curve->SetID(id);
    EXPECT_EQ(NodeTable::Instance().Find(id), nullptr);
    scene()->AddCurve(curve);
    EXPECT_EQ(NodeTable::Instance().Find(id), curve);
}

TEST_F(NodeID, ofANodeThatIsDestroyedFindsNothing)
{
    OrvaneCurve *curve = curveInScene();
    const int id = curve->ID();
    scene()->Clear();
    EXPECT_EQ(NodeTable::Instance().Find(id), nullptr);
}

TEST_F(NodeID, isGivenToEachPartOfAGeometry)
{
    Geometry *geometry = addToScene(singleTriangle());
    EXPECT_NE(geometry->ID(), 0);
    EXPECT_NE(geometry->Placement()->ID(), 0);
    EXPECT_NE(geometry->CurrentLevel()->ID(), 0);
    EXPECT_NE(geometry->Placement()->ID(), geometry->ID());
    EXPECT_NE(geometry->CurrentLevel()->ID(), geometry->ID());
}

TEST_F(NodeID, isGivenToALevelThatComesLater)
{
    Geometry *geometry = addToScene(singleTriangle());
    orvane::SubdivisionLevel *later = singleQuad();
    geometry->AddLevel(later);
    ASSERT_NE(later->ID(), 0);
    EXPECT_EQ(NodeTable::Instance().Find(later->ID()), later);
    const int id = later->ID();
    scene()->RemoveGeometry(geometry);
    EXPECT_EQ(NodeTable::Instance().Find(id), nullptr);
    delete geometry;
}

// In a process of its own: the highest number stays given for as long as a process lives.
TEST_F(NodeID, runsOutWithoutOverflow)
{
    EXPECT_EXIT(std::_Exit(numberAfterTheHighest()), testing::ExitedWithCode(0), "");
}
