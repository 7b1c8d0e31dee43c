// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/operation.h>

#include <QVector>

namespace orvane {

//! Selects all geometry of the scene, or clears its selection. The curves' selection is their own
//! and stays, so that selected curves still count when a mesh is made from them.
class ORVANE_EXPORT SelectAllOperation : public Operation
{
public:
    explicit SelectAllOperation(bool select = true) : m_select(select) {}

    bool ExecuteAndInvert() override;
    void Serialize(Stream &stream) override;
    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();

private:
    bool m_select;
    bool m_done = false;
    QVector<int> m_selectedBefore; // node numbers
};

} // namespace orvane
