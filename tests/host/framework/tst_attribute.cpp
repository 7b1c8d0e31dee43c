// SPDX-License-Identifier: MIT
#include <orvane/base/attribute.h>
#include <orvane/base/node.h>

#include <gtest/gtest.h>

#include <QScopedPointer>

#include <functional>

using orvane::Attribute;
using orvane::AttributeInstance;
using orvane::Node;
using orvane::NodeEventType;

namespace {

using IntAttribute = AttributeInstance<int>;

// Notes each event of its attributes, then answers it.
class Listener : public Node
{
public:
    void OnNodeEvent(const Attribute &attribute, NodeEventType type) override
    {
        events.append({attribute.ID(), type});
        if (answer)
            answer();
    }

    QVector<QPair<QString, NodeEventType>> events;
    std::function<void()> answer;
};

const QString Name = QStringLiteral("value");

} // namespace

class Following : public testing::Test
{
protected:
    int events(const Listener &listener, NodeEventType type) const
    {
        int count = 0;
        for (const auto &event : listener.events)
            count += event.second == type ? 1 : 0;
        return count;
    }
    int changes(const Listener &listener) const
    {
        return events(listener, orvane::NodeEventValueChanged);
    }

    Listener m_sourceNode;
    Listener m_node;
    Listener m_lastNode;
    IntAttribute m_source{&m_sourceNode, Name, 1};
    IntAttribute m_follower{&m_node, Name, 2};
    IntAttribute m_last{&m_lastNode, Name, 3};
};

TEST(Attribute, comparesItsEventTypesAsPlugInsDo)
{
    EXPECT_EQ(int(orvane::NodeEventValueChanged), 0);
}

TEST(Attribute, isListedByItsNodeForLife)
{
    Node node;
    IntAttribute first(&node, QStringLiteral("first"), 5);
    {
        const IntAttribute second(&node, QStringLiteral("second"));
        EXPECT_EQ(second.Value(), 0);
        ASSERT_EQ(node.Attributes().size(), 2);
        EXPECT_EQ(node.AttributeByID(QStringLiteral("second")), &second);
    }
    ASSERT_EQ(node.Attributes().size(), 1);
    EXPECT_EQ(node.AttributeByID(QStringLiteral("first")), &first);
    EXPECT_EQ(node.AttributeByID(QStringLiteral("second")), nullptr);
    EXPECT_EQ(first.Owner(), &node);
    EXPECT_EQ(first.Value(), 5);
}

TEST(Attribute, isVisibleUntilHidden)
{
    Node node;
    IntAttribute attribute(&node, Name);
    EXPECT_TRUE(attribute.IsVisible());
    attribute.SetVisible(false);
    EXPECT_FALSE(attribute.IsVisible());
}

TEST(Attribute, worksWithoutANode)
{
    IntAttribute source(nullptr, Name);
    IntAttribute follower(nullptr, Name);
    EXPECT_TRUE(follower.Connect(&source, false));
    source.SetValue(4);
    EXPECT_EQ(follower.Value(), 4);
    follower.Disconnect();
}

TEST_F(Following, takesEachNewValueAndTellsItsNode)
{
    ASSERT_TRUE(m_follower.Connect(&m_source, false));
    EXPECT_EQ(m_follower.Source(), &m_source);
    EXPECT_EQ(m_follower.Value(), 2) << "not asked to take the value now";
    EXPECT_EQ(changes(m_node), 0);
    m_source.SetValue(7);
    EXPECT_EQ(m_follower.Value(), 7);
    EXPECT_EQ(changes(m_node), 1);
    EXPECT_EQ(changes(m_sourceNode), 1);
}

TEST_F(Following, takesTheValueAtOnceWhenAsked)
{
    ASSERT_TRUE(m_follower.Connect(&m_source, true));
    EXPECT_EQ(m_follower.Value(), 1);
    EXPECT_EQ(changes(m_node), 1);
}

TEST_F(Following, isToldOfTheSameValueAgain)
{
    m_follower.Connect(&m_source, false);
    m_source.SetValue(7);
    m_source.SetValue(7);
    EXPECT_EQ(changes(m_node), 2);
    EXPECT_EQ(changes(m_sourceNode), 2);
}

TEST_F(Following, tellsTheNodeOfConnectionAndDisconnection)
{
    m_follower.Connect(&m_source, false);
    EXPECT_EQ(events(m_node, orvane::NodeEventConnected), 1);
    m_follower.Disconnect();
    EXPECT_EQ(events(m_node, orvane::NodeEventDisconnected), 1);
    m_follower.Disconnect();
    EXPECT_EQ(events(m_node, orvane::NodeEventDisconnected), 1) << "it followed nothing any more";
    EXPECT_TRUE(m_sourceNode.events.isEmpty());
}

TEST_F(Following, reachesFollowersOfFollowers)
{
    m_follower.Connect(&m_source, false);
    m_last.Connect(&m_follower, false);
    m_source.SetValue(9);
    EXPECT_EQ(m_last.Value(), 9);
    m_follower.SetValue(5);
    EXPECT_EQ(m_last.Value(), 5);
    EXPECT_EQ(m_source.Value(), 9) << "a value goes one way";
}

TEST_F(Following, stopsWithTheConnection)
{
    m_follower.Connect(&m_source, false);
    m_follower.Disconnect();
    m_source.SetValue(9);
    EXPECT_EQ(m_follower.Value(), 2);
    EXPECT_EQ(m_follower.Source(), nullptr);
}

TEST_F(Following, anotherSourceEndsTheFirst)
{
    m_last.Connect(&m_source, false);
    m_last.Connect(&m_follower, false);
    m_source.SetValue(9);
    EXPECT_EQ(m_last.Value(), 3);
    m_follower.SetValue(8);
    EXPECT_EQ(m_last.Value(), 8);
}

TEST_F(Following, inARingIsRefused)
{
    EXPECT_FALSE(m_source.Connect(&m_source, true));
    m_follower.Connect(&m_source, false);
    m_last.Connect(&m_follower, false);
    EXPECT_FALSE(m_source.Connect(&m_last, true));
    EXPECT_EQ(m_source.Source(), nullptr);
    EXPECT_TRUE(m_sourceNode.events.isEmpty());
    m_source.SetValue(6);
    EXPECT_EQ(m_last.Value(), 6);
}

TEST_F(Following, nothingIsRefusedAndChangesNothing)
{
    m_follower.Connect(&m_source, false);
    EXPECT_FALSE(m_follower.Connect(nullptr, true));
    EXPECT_EQ(m_follower.Source(), &m_source);
}

TEST_F(Following, ofAnotherTypeTakesNoValue)
{
    Listener textNode;
    AttributeInstance<QString> text(&textNode, Name, QStringLiteral("text"));
    EXPECT_TRUE(text.Connect(&m_source, true));
    m_source.SetValue(5);
    EXPECT_EQ(text.Value(), QStringLiteral("text"));
    EXPECT_EQ(changes(textNode), 0);
}

TEST_F(Following, mayBeEndedByAnAnswer)
{
    m_follower.Connect(&m_source, false);
    m_last.Connect(&m_source, false);
    m_node.answer = [this]() {
        m_last.Disconnect();
    };
    m_source.SetValue(5);
    EXPECT_EQ(m_follower.Value(), 5);
    EXPECT_EQ(m_last.Value(), 3);
}

TEST_F(Following, mayBeBegunByAnAnswer)
{
    m_follower.Connect(&m_source, false);
    m_node.answer = [this]() {
        if (!m_last.Source())
            m_last.Connect(&m_source, true);
    };
    m_source.SetValue(5);
    EXPECT_EQ(m_last.Value(), 5);
}

TEST_F(Following, mayLoseAFollowerToAnAnswer)
{
    Listener shortLivedNode;
    QScopedPointer<IntAttribute> shortLived(new IntAttribute(&shortLivedNode, Name));
    m_follower.Connect(&m_source, false);
    shortLived->Connect(&m_source, false);
    m_node.answer = [&shortLived]() {
        shortLived.reset();
    };
    m_source.SetValue(5);
    EXPECT_EQ(m_follower.Value(), 5);
    EXPECT_EQ(changes(shortLivedNode), 0);
}

TEST_F(Following, endsWhenTheSourceIsDestroyed)
{
    {
        IntAttribute source(&m_sourceNode, QStringLiteral("short-lived"));
        m_follower.Connect(&source, false);
    }
    EXPECT_EQ(m_follower.Source(), nullptr);
    m_follower.SetValue(3);
    EXPECT_EQ(m_follower.Value(), 3);
}

TEST_F(Following, endsWhenTheFollowerIsDestroyed)
{
    {
        IntAttribute follower(&m_node, QStringLiteral("short-lived"));
        follower.Connect(&m_source, false);
    }
    m_source.SetValue(3);
    EXPECT_EQ(changes(m_node), 0);
}

TEST_F(Following, givesTheValueSetByAnAnswerLast)
{
    m_follower.Connect(&m_source, false);
    m_sourceNode.answer = [this]() {
        if (m_source.Value() != 10)
            m_source.SetValue(10);
    };
    m_source.SetValue(5);
    EXPECT_EQ(m_follower.Value(), 10);
}
