// SPDX-License-Identifier: MIT
#include <orvane/base/operation.h>

#include <orvane/base/classdesc.h>

namespace orvane {

const ClassDesc *Operation::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *Operation::StaticClass()
{
    static const ClassDesc desc(Node::StaticClass(), Node::StaticClass(), "Operation", "Operation",
                                nullptr, 0, 0);
    return &desc;
}

} // namespace orvane
