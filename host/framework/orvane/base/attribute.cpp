// SPDX-License-Identifier: MIT
#include <orvane/base/attribute.h>

namespace orvane {

Attribute::Attribute(Node *owner, const QString &id) : m_owner(owner), m_id(id)
{
    if (m_owner)
        m_owner->m_attributes.append(this);
}

Attribute::~Attribute()
{
    if (m_source)
        m_source->m_followers.removeOne(this);
    for (Attribute *follower : qAsConst(m_followers))
        follower->m_source = nullptr;
    if (m_owner)
        m_owner->m_attributes.removeOne(this);
}

bool Attribute::Connect(Attribute *source, bool takeValueNow)
{
    // A ring of followers would notify for ever.
    for (const Attribute *a = source; a; a = a->m_source) {
        if (a == this)
            return false;
    }
    if (!source)
        return false;
    Disconnect();
    m_source = source;
    source->m_followers.append(this);
    if (m_owner)
        m_owner->OnNodeEvent(*this, NodeEventConnected);
    if (takeValueNow && TakeValue(*source))
        NotifyChanged();
    return true;
}

void Attribute::Disconnect()
{
    if (!m_source)
        return;
    m_source->m_followers.removeOne(this);
    m_source = nullptr;
    if (m_owner)
        m_owner->OnNodeEvent(*this, NodeEventDisconnected);
}

void Attribute::NotifyChanged()
{
    if (m_owner)
        m_owner->OnNodeEvent(*this, NodeEventValueChanged);
    const QVector<Attribute *> followers = m_followers; // an answer may disconnect or destroy one
    for (Attribute *follower : followers) {
        if (m_followers.contains(follower) && follower->TakeValue(*this))
            follower->NotifyChanged();
    }
}

} // namespace orvane
