// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/node.h>

#include <QString>
#include <QVector>

namespace orvane {

//! A named value of a node that others can follow. Belongs to its node for life.
class ORVANE_EXPORT Attribute
{
public:
    Attribute(Node *owner, const QString &id);
    virtual ~Attribute();
    Attribute(const Attribute &) = delete;
    Attribute &operator=(const Attribute &) = delete;

    Node *Owner() const { return m_owner; }
    const QString &ID() const { return m_id; }
    //! Is it shown to the user in property windows?
    bool IsVisible() const { return m_visible; }
    //! The attribute this one follows, or null.
    Attribute *Source() const { return m_source; }

    void SetVisible(bool visible) { m_visible = visible; }
    //! Follows source from now on: each time source is set, this one takes its value and the
    //! owner is told. takeValueNow: also take it at once. False, and nothing changes, for null,
    //! for itself, or when source already follows this one.
    bool Connect(Attribute *source, bool takeValueNow);
    void Disconnect();

protected:
    //! Tells the owner, then everything that follows.
    void NotifyChanged();
    //! Copies the value of source where the types agree. False where they do not.
    virtual bool TakeValue(const Attribute &source) = 0;
    const QVector<Attribute *> &Followers() const { return m_followers; }

private:
    Node *m_owner;
    QString m_id;
    Attribute *m_source = nullptr;
    QVector<Attribute *> m_followers;
    bool m_visible = true;
};

//! An attribute with a value of type T.
template <typename T>
class ORVANE_EXPORT AttributeInstance : public Attribute
{
public:
    AttributeInstance(Node *owner, const QString &id, const T &value = T())
        : Attribute(owner, id), m_value(value)
    {}

    const T &Value() const { return m_value; }

    //! Sets the value and tells owner and followers, also when the value is the same.
    void SetValue(const T &value)
    {
        m_value = value;
        NotifyChanged();
    }

protected:
    bool TakeValue(const Attribute &source) override
    {
        const auto *typed = dynamic_cast<const AttributeInstance<T> *>(&source);
        if (!typed)
            return false;
        m_value = typed->m_value;
        return true;
    }

private:
    T m_value;
};

} // namespace orvane
