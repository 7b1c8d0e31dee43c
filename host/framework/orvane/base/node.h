// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QString>
#include <QVector>

class QWidget;

namespace orvane {

class Attribute;
class ClassDesc;
class EventGate;
class NodeTable;
class Stream;

enum NodeEventType {
    NodeEventValueChanged, //!< the attribute has a new value, or was set to the same one again
    NodeEventConnected,    //!< the attribute follows another one now
    NodeEventDisconnected, //!< the attribute follows nothing any more
};

//! What the host keeps, names, saves and connects: the base of geometry, curves, operations, tools.
//! Plug-ins are built against this table of virtual functions: its order never changes.
class ORVANE_EXPORT Node
{
public:
    Node();
    Node(const QString &stringID, const QString &displayName);
    //! Copies the names. A copy has no ID and no attributes of its own yet.
    Node(const Node &other);
    Node &operator=(const Node &other);
    virtual ~Node();

    //! Called once by the factory, when the object is whole.
    virtual void Initialize();
    //! One of this node's attributes changed.
    virtual void OnNodeEvent(const Attribute &attribute, NodeEventType type);
    //! A gate that one of this node's gates follows was raised; gate is this node's own.
    virtual void OnEvent(const EventGate &gate);
    virtual QString Name() const;
    virtual void SetName(const QString &name);
    virtual QString StringID() const;
    virtual void SetStringID(const QString &stringID);
    virtual QString DisplayName() const;
    virtual void SetDisplayName(const QString &name);
    virtual QString HelpID() const;
    virtual void SetHelpID(const QString &helpID);
    //! A window to edit the node in, owned by the parent; null when it has none.
    virtual QWidget *CreatePropertiesWindow(QWidget *parent);
    //! Writes the node to the stream, or reads it, as the stream stands.
    virtual void Serialize(Stream &stream);
    //! Is the node fit for use?
    virtual bool CheckValidity() const;
    //! Makes target equal to this, but for the ID. False when the classes differ.
    virtual bool CopyTo(Node *target) const;
    //! A copy owned by the caller; null for a class that cannot be created.
    virtual Node *Duplicate() const;
    virtual const ClassDesc *RuntimeClass() const;

    static const ClassDesc *StaticClass();

    //! The number by which a scene finds the node, 1 or more; 0 for a node that never was in one.
    //! It is given at the first asking, so that a node which redo numbers itself takes no number
    //! of its own. A node that leaves keeps it.
    int ID() const;
    bool IsInScene() const { return m_inScene; }
    //! Renumbers the node. A number below 1, or that another node of the scene has, is refused
    //! and logged.
    void SetID(int id);

    const QVector<Attribute *> &Attributes() const { return m_attributes; }
    //! The attribute of that identifier, or null.
    Attribute *AttributeByID(const QString &id) const;

private:
    friend class Attribute;
    friend class NodeTable;

    QString m_name;
    QString m_stringID;
    QString m_displayName;
    QString m_helpID;
    QVector<Attribute *> m_attributes; // each enters and leaves the list by itself
    mutable int m_id = 0;
    bool m_inScene = false;
};

} // namespace orvane
