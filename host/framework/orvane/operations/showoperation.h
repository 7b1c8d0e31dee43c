// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/operations/flagoperation.h>

namespace orvane {

//! Shows geometries and curves of the scene, or hides them.
class ORVANE_EXPORT ShowOperation : public FlagOperation
{
public:
    ShowOperation(const QVector<Node *> &nodes, bool show);
    //! To be filled by Serialize before it runs.
    ShowOperation() = default;

    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();

protected:
    bool Flag(Node &node) const override;
    void SetFlag(Node &node, bool on) const override;
};

} // namespace orvane
