// SPDX-License-Identifier: MIT
#include "host/desktop/tools/tool.h"

#include "host/desktop/tools/toolcontext.h"

namespace orvane {

void Tool::Handle(const PointerEvent &event)
{
    m_inside = true;
    if (event.kind == PointerEvent::Press) {
        press(event);
        return;
    }
    if (event.kind == PointerEvent::Move) {
        if (m_busy)
            drag(event);
        m_pixel = event.pixel;
        if (m_busy || hover())
            context().Repaint();
        return;
    }
    if (event.kind == PointerEvent::Release && event.button == Qt::LeftButton && m_busy) {
        drag(event);
        m_pixel = event.pixel;
        end();
    }
}

void Tool::press(const PointerEvent &event)
{
    if (event.button == Qt::RightButton) {
        Cancel();
        return;
    }
    if (event.button != Qt::LeftButton || m_busy)
        return;
    m_pixel = event.pixel;
    m_busy = begin(event);
    context().Repaint();
}

void Tool::Leave()
{
    m_inside = false;
    if (m_busy)
        end();
    hover();
    context().Repaint();
}

QCursor Tool::Cursor() const
{
    return context().ToolCursor(Description().id);
}

void Tool::Cancel()
{
    if (!m_busy)
        return;
    m_busy = false;
    forget();
    hover();
    context().Repaint();
}

void Tool::Finish()
{
    if (m_busy) {
        end();
        return;
    }
    workOnSelection();
    context().Repaint();
}

void Tool::end()
{
    // What asks meanwhile finds no gesture: a change of the scene may repaint.
    m_busy = false;
    complete();
    forget();
    hover();
    context().Repaint();
}

} // namespace orvane
