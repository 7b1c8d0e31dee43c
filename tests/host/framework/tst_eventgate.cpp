// SPDX-License-Identifier: MIT
#include "tests/support/scenecleaner.h"

#include <orvane/base/attribute.h>
#include <orvane/base/eventgate.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/viewport.h>

#include <gtest/gtest.h>

#include <QScopedPointer>
#include <QStringList>

#include <functional>

using orvane::EventGate;
using orvane::Node;

namespace {

// Notes the gates it hears of, in an order shared with others.
class Listener : public Node
{
public:
    explicit Listener(QStringList &heard) : m_heard(heard) {}

    void OnEvent(const EventGate &gate) override
    {
        EXPECT_EQ(gate.Owner(), this);
        m_heard.append(gate.ID());
        if (answer)
            answer();
    }
    void OnNodeEvent(const orvane::Attribute &, orvane::NodeEventType type) override
    {
        EXPECT_NE(type, orvane::NodeEventValueChanged) << "a gate has no value";
    }

    std::function<void()> answer;

private:
    QStringList &m_heard;
};

} // namespace

class Gates : public SceneCleaner
{
protected:
    QStringList m_heard;
    Listener m_node{m_heard};
    EventGate m_source{&m_node, QStringLiteral("source")};
    EventGate m_first{&m_node, QStringLiteral("first")};
    EventGate m_second{&m_node, QStringLiteral("second")};
};

TEST_F(Gates, tellTheirOwnNodeWhenRaised)
{
    m_source.Raise();
    EXPECT_EQ(m_heard, QStringList(QStringLiteral("source")));
}

TEST_F(Gates, raiseTheirFollowersInOrderOfConnection)
{
    m_second.Connect(&m_source, false);
    m_first.Connect(&m_source, false);
    m_source.Raise();
    EXPECT_EQ(m_heard.join(QLatin1Char(' ')), QStringLiteral("source second first"));
}

TEST_F(Gates, passAnEventThroughAChain)
{
    m_first.Connect(&m_source, true);
    m_second.Connect(&m_first, true);
    EXPECT_TRUE(m_heard.isEmpty()) << "a gate has no value to take";
    m_source.Raise();
    EXPECT_EQ(m_heard.join(QLatin1Char(' ')), QStringLiteral("source first second"));
}

TEST_F(Gates, areNotRaisedByTheirFollowers)
{
    m_first.Connect(&m_source, false);
    m_first.Raise();
    EXPECT_EQ(m_heard, QStringList(QStringLiteral("first")));
}

TEST_F(Gates, refuseARing)
{
    m_first.Connect(&m_source, false);
    EXPECT_FALSE(m_source.Connect(&m_first, false));
    m_source.Raise();
    EXPECT_EQ(m_heard.size(), 2);
}

TEST_F(Gates, leaveFollowersThatAreNoGatesAlone)
{
    orvane::AttributeInstance<int> number(&m_node, QStringLiteral("number"), 4);
    number.Connect(&m_source, true);
    m_source.Raise();
    EXPECT_EQ(m_heard, QStringList(QStringLiteral("source")));
    EXPECT_EQ(number.Value(), 4);
}

TEST_F(Gates, mayBeDisconnectedByAnAnswer)
{
    Listener first(m_heard);
    EventGate gate(&first, QStringLiteral("answering"));
    gate.Connect(&m_source, false);
    m_second.Connect(&m_source, false);
    first.answer = [this]() {
        m_second.Disconnect();
    };
    m_source.Raise();
    EXPECT_EQ(m_heard.join(QLatin1Char(' ')), QStringLiteral("source answering"));
}

TEST_F(Gates, mayBeDestroyedByAnAnswer)
{
    Listener first(m_heard);
    EventGate gate(&first, QStringLiteral("answering"));
    gate.Connect(&m_source, false);
    QScopedPointer<EventGate> gone(new EventGate(&m_node, QStringLiteral("gone")));
    gone->Connect(&m_source, false);
    first.answer = [&gone]() {
        gone.reset();
    };
    m_source.Raise();
    EXPECT_EQ(m_heard.join(QLatin1Char(' ')), QStringLiteral("source answering"));
}

TEST_F(Gates, ofANodeHearTheEndOfEachRender)
{
    m_first.Connect(&orvane::Kernel()->ViewPort()->EndRenderEvent(), false);
    orvane::Kernel()->ViewPort()->EndRenderEvent().Raise();
    orvane::Kernel()->ViewPort()->EndRenderEvent().Raise();
    EXPECT_EQ(m_heard.size(), 2);
}
