// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/eventgate.h>
#include <orvane/base/node.h>

namespace orvane {

enum RedrawType {
    RedrawAll, //!< the whole view
};

//! The 3-D view, as far as the framework and plug-ins ask for it. This base draws nothing.
class ORVANE_EXPORT ViewPort : public Node
{
public:
    ViewPort() : m_endRender(this, QStringLiteral("EndRenderEvent")) {}

    //! Asks for a repaint; the numbers bound the part of the view, 0 to 0 for all of it.
    virtual void Redraw(RedrawType type, float left, float top, float right, float bottom);

    //! Raised after each render, with the view's context current and the depth test off.
    EventGate &EndRenderEvent() { return m_endRender; }

private:
    EventGate m_endRender;
};

} // namespace orvane
