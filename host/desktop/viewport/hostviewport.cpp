// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/hostviewport.h"

#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>

#include <utility>

namespace orvane {

HostViewPort::HostViewPort(std::function<void()> update)
    : m_update(std::move(update)), m_faults(this, QStringLiteral("RenderMeshFaults"))
{
    m_faults.Connect(&Kernel()->Preferences()->renderMeshFaults, true);
}

// A part of the view costs as much as all of it: every frame is drawn whole.
void HostViewPort::Redraw(RedrawType, float, float, float, float)
{
    m_update();
}

void HostViewPort::OnNodeEvent(const Attribute &attribute, NodeEventType type)
{
    ViewPort::OnNodeEvent(attribute, type);
    m_update();
}

} // namespace orvane
