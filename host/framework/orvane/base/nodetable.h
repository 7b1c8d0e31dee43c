// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QHash>

namespace orvane {

class Node;

//! The numbers of the scene's nodes. There is one scene, and so one table.
//! A number is never given twice: what refers to a node that left cannot find a stranger.
class ORVANE_EXPORT NodeTable
{
public:
    static NodeTable &Instance();

    //! The node of that number, or null. 0 is the null reference.
    Node *Find(int id) const { return m_nodes.value(id); }
    //! The highest number given so far.
    int LastID() const { return m_lastID; }

    //! The node is in the scene from now on; one that has a number already is found by it again.
    void Enter(Node *node);
    //! The node left the scene. It keeps its number.
    void Leave(Node *node);
    //! Gives the node, which has none, the next number.
    void Number(Node *node);
    //! Moves the node to another number; one below 1 or taken is refused and logged.
    void Renumber(Node *node, int id);
    //! Numbers up to this one count as given.
    void Reserve(int lastID);
    //! Numbers begin anew, for another scene. Only while the table is empty.
    void Restart();

private:
    NodeTable() = default;

    QHash<int, Node *> m_nodes;
    int m_lastID = 0;
};

} // namespace orvane
