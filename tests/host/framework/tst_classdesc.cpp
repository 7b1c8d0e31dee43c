// SPDX-License-Identifier: MIT
#include "tests/support/logcatcher.h"

#include <orvane/base/classdesc.h>
#include <orvane/base/node.h>
#include <orvane/base/operation.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>

#include <gtest/gtest.h>

using orvane::ClassDesc;
using orvane::Node;

namespace {

int initialised = 0; // how many objects of class Counted were

class Counted : public Node
{
public:
    void Initialize() override { ++initialised; }
};

const ClassDesc *byName(const char *name)
{
    return ClassDesc::ByName(QString::fromLatin1(name));
}

} // namespace

TEST(ClassDesc, isFoundByNameWhileItLives)
{
    {
        const ClassDesc desc(Node::StaticClass(), Node::StaticClass(), "ShortLived", "Shown",
                             orvane::createInstances<Node>, 3, 4);
        EXPECT_EQ(byName("ShortLived"), &desc);
        EXPECT_EQ(desc.Name(), QStringLiteral("ShortLived"));
        EXPECT_EQ(desc.DisplayName(), QStringLiteral("Shown"));
        EXPECT_EQ(desc.Parent(), Node::StaticClass());
        EXPECT_EQ(desc.Category(), Node::StaticClass());
        EXPECT_EQ(desc.Version(), 3);
        EXPECT_EQ(desc.Flags(), 4);
    }
    EXPECT_EQ(byName("ShortLived"), nullptr);
}

TEST(ClassDesc, ofATakenNameIsRefusedAndLogged)
{
    const ClassDesc first(Node::StaticClass(), Node::StaticClass(), "Twin", "Twin", nullptr, 0, 0);
    {
        LogCatcher log;
        const ClassDesc second(Node::StaticClass(), Node::StaticClass(), "Twin", "Twin", nullptr, 0,
                               0);
        EXPECT_EQ(log.count(), 1);
        EXPECT_TRUE(log.text().contains(QStringLiteral("Twin")));
        EXPECT_EQ(byName("Twin"), &first);
    }
    EXPECT_EQ(byName("Twin"), &first) << "the refused one must not take the first with it";
}

TEST(ClassDesc, knowsItsAncestors)
{
    const ClassDesc *level = orvane::SubdivisionLevel::StaticClass();
    EXPECT_TRUE(level->IsA(level));
    EXPECT_TRUE(level->IsA(orvane::Mesh::StaticClass()));
    EXPECT_TRUE(level->IsA(Node::StaticClass()));
    EXPECT_FALSE(level->IsA(orvane::Geometry::StaticClass()));
    EXPECT_FALSE(Node::StaticClass()->IsA(level));
    EXPECT_FALSE(level->IsA(nullptr));
}

TEST(ClassDesc, makesOneInitialisedObjectForZeroOrOne)
{
    const ClassDesc desc(Node::StaticClass(), Node::StaticClass(), "Counted", "Counted",
                         orvane::createInstances<Counted>, 0, 0);
    for (const unsigned count : {0u, 1u}) {
        initialised = 0;
        const Node *object = desc.Create(count);
        EXPECT_EQ(initialised, 1);
        delete object;
    }
    initialised = 0;
    delete desc.Create();
    EXPECT_EQ(initialised, 1);
}

TEST(ClassDesc, makesAnArrayOfInitialisedObjectsForMore)
{
    const ClassDesc desc(Node::StaticClass(), Node::StaticClass(), "Counted", "Counted",
                         orvane::createInstances<Counted>, 0, 0);
    initialised = 0;
    auto *objects = static_cast<Counted *>(desc.Create(5));
    EXPECT_EQ(initialised, 5);
    EXPECT_NE(dynamic_cast<Counted *>(&objects[4]), nullptr);
    delete[] objects;
}

TEST(ClassDesc, ofAnAbstractClassMakesNothing)
{
    EXPECT_EQ(orvane::Operation::StaticClass()->Create(), nullptr);
    EXPECT_EQ(orvane::CurveBase::StaticClass()->Create(3), nullptr);
}

TEST(ClassDesc, ofTheFrameworkAreKnownFromTheStart)
{
    for (const char *name :
         {"Geometry", "Placement", "SubdivisionLevel", "OrvaneCurve", "SelectAllOperation"}) {
        const ClassDesc *desc = byName(name);
        ASSERT_NE(desc, nullptr) << name;
        const QScopedPointer<Node> object(orvane::Kernel()->CreateClassInstance(desc));
        ASSERT_NE(object, nullptr) << name;
        EXPECT_EQ(object->RuntimeClass(), desc) << name;
    }
}

TEST(ClassDesc, thatIsNullMakesNothing)
{
    EXPECT_EQ(orvane::Kernel()->CreateClassInstance(nullptr), nullptr);
}
