// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/attribute.h>
#include <orvane/kernel/viewport.h>

#include <functional>

namespace orvane {

//! The view of the desktop as the kernel and plug-ins see it.
class HostViewPort : public ViewPort
{
public:
    //! update: asks for a repaint before long; calls it also when a preference changes the view.
    explicit HostViewPort(std::function<void()> update);

    void Redraw(RedrawType type, float left, float top, float right, float bottom) override;
    void OnNodeEvent(const Attribute &attribute, NodeEventType type) override;

private:
    std::function<void()> m_update;
    AttributeInstance<bool> m_faults; // follows the preference
};

} // namespace orvane
