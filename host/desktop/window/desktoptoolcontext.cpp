// SPDX-License-Identifier: MIT
#include "host/desktop/window/desktoptoolcontext.h"

#include "host/desktop/view/shownsurfaces.h"
#include "host/desktop/viewport/viewportwidget.h"

#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/widgets/picture.h>

namespace orvane {

namespace {

const int MessageTime = 3000; // milliseconds
const int HotSpot = 9;        // of a cursor's picture, pixels from its upper left corner

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

QCursor DesktopToolContext::ToolCursor(const QString &tool)
{
    const auto found = m_cursors.constFind(tool);
    if (found != m_cursors.cend())
        return *found;
    const QPixmap picture = loadPicture(QStringLiteral("Icons/desktop/cursors/%1.png").arg(tool),
                                        m_viewport->devicePixelRatioF());
    const QCursor cursor =
        picture.isNull() ? QCursor(Qt::CrossCursor) : QCursor(picture, HotSpot, HotSpot);
    return *m_cursors.insert(tool, cursor);
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
