// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/tools/toolcontext.h"

#include <QHash>

namespace orvane {

class ViewportWidget;

//! What the curve tools are given by the main window.
class DesktopToolContext : public ToolContext
{
public:
    //! Both outlive it.
    DesktopToolContext(ViewportWidget *viewport, const ToolSettings *settings)
        : m_viewport(viewport), m_settings(settings)
    {}

    const Camera &ViewCamera() const override;
    const ToolSettings &Settings() const override { return *m_settings; }
    const SurfaceLocator *Locator(const Geometry &geometry) override;
    SurfaceList VisibleSurfaces() override;

    QCursor ToolCursor(const QString &tool) override;
    void Repaint() override;
    void ShowMessage(const QString &text) override;

private:
    ViewportWidget *m_viewport;
    const ToolSettings *m_settings;
    QHash<QString, QCursor> m_cursors; // by tool: views ask with every move of the pointer
};

} // namespace orvane
