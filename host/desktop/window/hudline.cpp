// SPDX-License-Identifier: MIT
#include "host/desktop/window/hudline.h"

#include "host/desktop/document/document.h"
#include "host/desktop/tools/toolbox.h"
#include "host/desktop/viewport/viewportwidget.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QLocale>

#include <algorithm>

namespace orvane {

namespace {

const int ShownEvery = 500;       // milliseconds; faster numbers cannot be read
const double NewFrameShare = 0.2; // of the latest frame in the evened-out time

int shownFaces()
{
    int faces = 0;
    const QVector<Geometry *> geometries = Kernel()->Scene()->Geometries();
    for (const Geometry *geometry : geometries) {
        if (!geometry->IsHidden() && geometry->CurrentLevel())
            faces += geometry->CurrentLevel()->Polygons().Count();
    }
    return faces;
}

} // namespace

HudLine::HudLine(ViewportWidget *viewport, const Document *document, const ToolBox *tools)
    : QObject(viewport), m_viewport(viewport), m_document(document), m_tools(tools)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { m_viewport->SetHudText(Text()); });
    connect(viewport, &ViewportWidget::frameRendered, this, &HudLine::noteFrame);
    Refresh();
}

QString HudLine::Text() const
{
    QStringList parts{m_document->Title(), tr("%1 faces").arg(QLocale().toString(m_faces)),
                      m_tools->InHand()->Description().text};
    // Test mode shows the same on every run.
    if (m_frame > 0.0 && !Kernel()->IsTestModeOn())
        parts.append(tr("%1 frames/s").arg(std::max(1, qRound(1000.0 / m_frame))));
    parts.removeAll(QString());
    return parts.join(QStringLiteral("   \u00b7   "));
}

void HudLine::Refresh()
{
    m_faces = shownFaces();
    m_viewport->SetHudText(Text());
}

// Showing the text may draw a frame again; while nothing else does, that one does not count.
void HudLine::noteFrame(double milliseconds)
{
    m_frame = m_frame > 0.0 ? m_frame + NewFrameShare * (milliseconds - m_frame) : milliseconds;
    if (!m_timer.isActive() && m_viewport->Options().showHud)
        m_timer.start(ShownEvery);
}

} // namespace orvane
