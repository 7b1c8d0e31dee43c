// SPDX-License-Identifier: MIT
#pragma once

#include "graph/intersectionnode.h"

//! Numbers from 0 up that one pass over the graph writes on its nodes, so that it knows where it
//! has been without a set. A node bears one number at a time: of two passes over the same nodes
//! only the later one finds its own, so none may start inside another.
class NodeMarks
{
public:
    //! numbers: how many different ones the pass uses.
    explicit NodeMarks(int numbers = 1) : m_first(IntersectionNode::takeMarks(quint64(numbers))) {}

    bool has(const IntersectionNode *node) const { return node->m_mark >= m_first; }
    //! -1 for none.
    int of(const IntersectionNode *node) const
    {
        return has(node) ? int(node->m_mark - m_first) : -1;
    }
    void set(IntersectionNode *node, int number = 0) { node->m_mark = m_first + quint64(number); }

private:
    quint64 m_first;
};
