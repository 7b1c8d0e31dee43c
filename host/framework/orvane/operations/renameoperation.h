// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/operations/nodeoperation.h>

namespace orvane {

//! Gives a geometry or curve of the scene another name.
class ORVANE_EXPORT RenameOperation : public NodeOperation
{
public:
    explicit RenameOperation(const Node *node = nullptr, const QString &name = QString());

    void Serialize(Stream &stream) override;
    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();

protected:
    bool Exchange(Node &node, bool first) override;

private:
    QString m_name; // what the node is to be called, or was
};

} // namespace orvane
