// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/operation.h>

namespace orvane {

//! Gives one node of the scene a new value, and its old one back, by turns.
class ORVANE_EXPORT NodeOperation : public Operation
{
public:
    //! False when the node is missing, when the value does not suit it, and when it has that value
    //! at the first execution.
    bool ExecuteAndInvert() override;
    //! The node's number; a derived class adds its value.
    void Serialize(Stream &stream) override;

protected:
    //! node: a geometry or curve of the scene, of the class.
    NodeOperation(const Node *node, const ClassDesc *kind);

    //! Gives the node the value that is kept here and keeps the one it had. False, and nothing is
    //! changed, when the value does not suit, and when the node has it already and first is true.
    virtual bool Exchange(Node &node, bool first) = 0;

private:
    const ClassDesc *m_kind;
    int m_id;
    bool m_first = true;
};

} // namespace orvane
