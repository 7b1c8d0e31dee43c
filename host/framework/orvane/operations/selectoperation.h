// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/operations/flagoperation.h>

namespace orvane {

//! Selects geometries and curves of the scene, and nothing else of it.
class ORVANE_EXPORT SelectOperation : public FlagOperation
{
public:
    //! selected: what is selected afterwards; a node that is not in the scene is ignored.
    explicit SelectOperation(const QVector<Node *> &selected);
    //! To be filled by Serialize before it runs.
    SelectOperation() = default;

    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();

protected:
    bool Flag(Node &node) const override;
    void SetFlag(Node &node, bool on) const override;
};

} // namespace orvane
