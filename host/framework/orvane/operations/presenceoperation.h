// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/operation.h>
#include <orvane/kernel/noderecord.h>
#include <orvane/kernel/scene.h>

#include <QScopedPointer>

namespace orvane {

//! What adding and deleting share: nodes that are in the scene and out of it by turns. While they
//! are out they are kept as bytes, with their numbers and places.
class ORVANE_EXPORT PresenceOperation : public Operation
{
public:
    ~PresenceOperation() override;

    //! False when a node is missing, cannot be read, or is not valid: it could not come back.
    bool ExecuteAndInvert() override;
    //! A new node that has not been brought in yet is not written.
    void Serialize(Stream &stream) override;

protected:
    //! Concerns nodes of the class only.
    explicit PresenceOperation(const ClassDesc *kind);

    //! Brings this node in first. It must be of no scene, and is owned from now on until then.
    //! Null, or a node of a scene, is ignored.
    void BringInFirst(Node *newNode);
    //! Takes this node of the scene out first, after those that were named before it. Null, or one
    //! that was named already, is ignored.
    void TakeOutFirst(const Node *node);

private:
    struct Entry
    {
        int id = 0;        // while it is in the scene
        ScenePlace place;  // while it is out
        NodeRecord record; // while it is out
    };

    bool bringInNew();
    bool bringIn();
    bool takeOut();
    void serializeEntry(Stream &stream, Entry &entry);

    const ClassDesc *m_kind;
    bool m_present = false;   // are the nodes in the scene?
    QVector<Entry> m_entries; // in the order of taking out
    QScopedPointer<Node> m_newNode;
};

} // namespace orvane
