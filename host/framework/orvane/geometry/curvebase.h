// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/node.h>

namespace orvane {

class Geometry;

//! What all kinds of curve have in common.
class ORVANE_EXPORT CurveBase : public Node
{
public:
    bool Closed() const { return m_closed; }
    bool Selected() const { return m_selected; }
    //! A hidden curve is neither drawn nor used by tools.
    bool IsHidden() const { return m_hidden; }
    //! The geometry the curve lies on, by its first point on a mesh; null when there is none.
    virtual orvane::Geometry *Geometry() const = 0;
    //! Can tools work with it: visible, and of at least two points?
    virtual bool IsUsable() const = 0;

    void SetClosed(bool closed) { m_closed = closed; }
    void SetSelected(bool selected) { m_selected = selected; }
    void SetHidden(bool hidden) { m_hidden = hidden; }

    void Serialize(Stream &stream) override;
    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();

private:
    bool m_closed = false;
    bool m_selected = false;
    bool m_hidden = false;
};

} // namespace orvane
