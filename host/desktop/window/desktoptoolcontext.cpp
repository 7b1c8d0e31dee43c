// SPDX-License-Identifier: MIT
#include "host/desktop/window/desktoptoolcontext.h"

#include "host/desktop/view/shownsurfaces.h"
#include "host/desktop/viewport/viewportwidget.h"

#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>

namespace orvane {

namespace {

const int MessageTime = 3000; // milliseconds

} // namespace

const Camera &DesktopToolContext::ViewCamera() const
{
    return m_viewport->Camera();
}

const SurfaceLocator *DesktopToolContext::Locator(const Geometry &geometry)
{
    return locatorOf(&geometry);
}

SurfaceList DesktopToolContext::VisibleSurfaces()
{
    return shownSurfaces();
}

void DesktopToolContext::Repaint()
{
    m_viewport->update();
}

void DesktopToolContext::ShowMessage(const QString &text)
{
    Kernel()->Interface()->HUDMessageShow(text, 0, MessageTime);
}

} // namespace orvane
