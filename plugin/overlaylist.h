// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class IntersectionNode;
class NodeStore;

//! The start nodes that the overlay is drawn from. While they are listed here, their graphs are
//! kept, whatever other operations generate.
class OverlayList
{
public:
    OverlayList();
    ~OverlayList();
    OverlayList(const OverlayList &) = delete;
    OverlayList &operator=(const OverlayList &) = delete;

    //! The one of the process: the graphs of the latest creation.
    static OverlayList &instance();

    const QList<IntersectionNode *> &nodes() const { return m_nodes; }
    //! Takes the place of the old list, which lets its graphs go. The same list again is ignored.
    void replace(const QList<IntersectionNode *> &nodes);

private:
    NodeStore &m_store; // made first, so that it is there when the list lets go at exit
    QList<IntersectionNode *> m_nodes;
};
