// SPDX-License-Identifier: MIT
#include "host/desktop/window/statisticspanel.h"

#include "host/meshchecker/meshfigures.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace orvane {

namespace {

const int WidestName = 200; // pixels
const int KeptFigures = 2;  // meshes

const Geometry *shownGeometry()
{
    const Scene *scene = Kernel()->Scene();
    const QVector<Geometry *> geometries = scene->Geometries();
    for (const Geometry *geometry : geometries) {
        if (geometry->Selected())
            return geometry;
    }
    return scene->ActiveGeometry() ? scene->ActiveGeometry() : scene->DrawingSurface();
}

QString row(const QString &name, int value)
{
    return QStringLiteral("<tr><td>%1&nbsp;&nbsp;&nbsp;</td><td align=\"right\">%2</td></tr>")
        .arg(name.toHtmlEscaped(), QLocale().toString(value));
}

QString nameOfFaces(int corners)
{
    if (corners == 3)
        return StatisticsPanel::tr("Triangles");
    if (corners == 4)
        return StatisticsPanel::tr("Quads");
    return StatisticsPanel::tr("Faces of %1 corners").arg(corners);
}

QString richTextOf(const MeshFigures &figures)
{
    QString rows = row(StatisticsPanel::tr("Vertices"), figures.vertices)
                   + row(StatisticsPanel::tr("Faces"), figures.polygons);
    for (int corners = 0; corners < figures.polygonsByCorners.size(); ++corners) {
        if (figures.polygonsByCorners[corners] > 0)
            rows += row(nameOfFaces(corners), figures.polygonsByCorners[corners]);
    }
    rows += row(StatisticsPanel::tr("Open edges"), figures.openEdges);
    const QString faults = figures.faults.isEmpty() ? StatisticsPanel::tr("No faults")
                                                    : figures.FaultTexts().join(QLatin1Char('\n'));
    return QStringLiteral("<table>%1</table>%2")
        .arg(rows, faults.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")));
}

} // namespace

StatisticsPanel::StatisticsPanel(QWidget *parent) : QWidget(parent), m_text(new QLabel(this))
{
    setObjectName(QStringLiteral("statistics"));
    m_text->setObjectName(QStringLiteral("statisticsText"));
    m_text->setTextFormat(Qt::RichText);
    m_text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addStretch();
    Refresh();
}

void StatisticsPanel::Refresh()
{
    const Geometry *geometry = shownGeometry();
    const Mesh *mesh = geometry ? geometry->CurrentLevel() : nullptr;
    if (!mesh) {
        m_text->setText(tr("No mesh yet."));
        return;
    }
    const QString name = fontMetrics().elidedText(geometry->Name(), Qt::ElideRight, WidestName);
    m_text->setText(QStringLiteral("<b>%1</b>").arg(name.toHtmlEscaped()) + figuresFor(*mesh));
}

QString StatisticsPanel::Text() const
{
    return m_text->text();
}

bool StatisticsPanel::Measured::IsOf(const Mesh &mesh) const
{
    return mesh.Positions() == positions && mesh.Corners() == corners;
}

const QString &StatisticsPanel::figuresFor(const Mesh &mesh)
{
    for (int i = 0; i < m_measured.size(); ++i) {
        if (!m_measured[i].IsOf(mesh))
            continue;
        m_measured.move(i, m_measured.size() - 1);
        return m_measured.last().figures;
    }
    if (m_measured.size() == KeptFigures)
        m_measured.removeFirst();
    m_measured.append({mesh.Positions(), mesh.Corners(), richTextOf(figuresOf(&mesh))});
    return m_measured.last().figures;
}

} // namespace orvane
