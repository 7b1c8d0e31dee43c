// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/operation.h>

#include <QVector>

namespace orvane {

//! Sets a mark of geometries and curves and takes that back by turns. Nodes that have the mark as
//! it is to be, when it runs first, are left alone then and later.
class ORVANE_EXPORT FlagOperation : public Operation
{
public:
    //! False when a node is missing, and when the first execution would change nothing.
    bool ExecuteAndInvert() override;
    void Serialize(Stream &stream) override;

protected:
    FlagOperation() = default;

    virtual bool Flag(Node &node) const = 0;
    virtual void SetFlag(Node &node, bool on) const = 0;
    //! The first execution sets the node's mark so. A null node is ignored.
    void SetFirst(const Node *node, bool on);

private:
    bool find(const QVector<int> &ids, bool flag, QVector<Node *> &nodes) const;

    bool m_first = true;
    QVector<int> m_on;  // numbers of the nodes to get the mark
    QVector<int> m_off; // and of those to lose it
};

} // namespace orvane
