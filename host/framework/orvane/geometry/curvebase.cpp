// SPDX-License-Identifier: MIT
#include <orvane/geometry/curvebase.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/stream.h>

namespace orvane {

void CurveBase::Serialize(Stream &stream)
{
    Node::Serialize(stream);
    char flags = char((m_closed ? 1 : 0) | (m_selected ? 2 : 0) | (m_hidden ? 4 : 0));
    stream.Transfer(flags);
    m_closed = flags & 1;
    m_selected = flags & 2;
    m_hidden = flags & 4;
}

const ClassDesc *CurveBase::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *CurveBase::StaticClass()
{
    static const ClassDesc desc(Node::StaticClass(), Node::StaticClass(), "CurveBase", "Curve",
                                nullptr, 0, 0);
    return &desc;
}

} // namespace orvane
