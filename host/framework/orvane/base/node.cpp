// SPDX-License-Identifier: MIT
#include <orvane/base/node.h>

#include <orvane/base/attribute.h>
#include <orvane/base/classdesc.h>
#include <orvane/base/nodetable.h>
#include <orvane/base/stream.h>

#include <QBuffer>

namespace orvane {

Node::Node() = default;

Node::Node(const QString &stringID, const QString &displayName)
    : m_stringID(stringID), m_displayName(displayName)
{}

Node::Node(const Node &other)
    : m_name(other.m_name),
      m_stringID(other.m_stringID),
      m_displayName(other.m_displayName),
      m_helpID(other.m_helpID)
{}

Node &Node::operator=(const Node &other)
{
    m_name = other.m_name;
    m_stringID = other.m_stringID;
    m_displayName = other.m_displayName;
    m_helpID = other.m_helpID;
    return *this;
}

Node::~Node()
{
    if (m_inScene)
        NodeTable::Instance().Leave(this);
}

void Node::Initialize() {}

void Node::OnNodeEvent(const Attribute &, NodeEventType) {}

void Node::OnEvent(const EventGate &) {}

QString Node::Name() const
{
    return m_name;
}

void Node::SetName(const QString &name)
{
    m_name = name;
}

QString Node::StringID() const
{
    return m_stringID;
}

void Node::SetStringID(const QString &stringID)
{
    m_stringID = stringID;
}

QString Node::DisplayName() const
{
    return m_displayName;
}

void Node::SetDisplayName(const QString &name)
{
    m_displayName = name;
}

QString Node::HelpID() const
{
    return m_helpID;
}

void Node::SetHelpID(const QString &helpID)
{
    m_helpID = helpID;
}

QWidget *Node::CreatePropertiesWindow(QWidget *)
{
    return nullptr;
}

void Node::Serialize(Stream &stream)
{
    stream.Transfer(m_name);
    stream.Transfer(m_stringID);
    stream.Transfer(m_displayName);
    stream.Transfer(m_helpID);
}

bool Node::CheckValidity() const
{
    return true;
}

// A node knows how to write and read itself, so copying needs no second description of it.
bool Node::CopyTo(Node *target) const
{
    if (!target || target->RuntimeClass() != RuntimeClass())
        return false;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    Stream writer(&buffer, Stream::Writing);
    const_cast<Node *>(this)->Serialize(writer); // a writing stream leaves the node as it is
    buffer.close();
    buffer.open(QIODevice::ReadOnly);
    Stream reader(&buffer, Stream::Reading);
    target->Serialize(reader);
    return reader.IsOk();
}

Node *Node::Duplicate() const
{
    Node *copy = RuntimeClass()->Create();
    if (copy && !CopyTo(copy)) {
        delete copy;
        return nullptr;
    }
    return copy;
}

const ClassDesc *Node::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *Node::StaticClass()
{
    static const ClassDesc desc(nullptr, nullptr, "Node", "Node", nullptr, 0, 0);
    return &desc;
}

int Node::ID() const
{
    if (m_inScene && m_id == 0)
        NodeTable::Instance().Number(const_cast<Node *>(this));
    return m_id;
}

void Node::SetID(int id)
{
    NodeTable::Instance().Renumber(this, id);
}

Attribute *Node::AttributeByID(const QString &id) const
{
    for (Attribute *attribute : m_attributes) {
        if (attribute->ID() == id)
            return attribute;
    }
    return nullptr;
}

} // namespace orvane
