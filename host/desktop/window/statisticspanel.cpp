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
        m_name.clear();
        m_text->setText(tr("No mesh yet."));
    } else if (!isCurrent(geometry->Name(), *mesh)) {
        show(geometry->Name(), *mesh);
    }
}

QString StatisticsPanel::Text() const
{
    return m_text->text();
}

bool StatisticsPanel::isCurrent(const QString &name, const Mesh &mesh) const
{
    return !m_name.isNull() && name == m_name && mesh.Positions() == m_positions
           && mesh.Corners() == m_corners;
}

void StatisticsPanel::show(const QString &name, const Mesh &mesh)
{
    m_name = name;
    m_positions = mesh.Positions();
    m_corners = mesh.Corners();
    const MeshFigures figures = figuresOf(&mesh);
    QString rows = row(tr("Vertices"), figures.vertices) + row(tr("Faces"), figures.polygons);
    for (int corners = 0; corners < figures.polygonsByCorners.size(); ++corners) {
        if (figures.polygonsByCorners[corners] > 0)
            rows += row(nameOfFaces(corners), figures.polygonsByCorners[corners]);
    }
    rows += row(tr("Open edges"), figures.openEdges);
    const QString faults =
        figures.faults.isEmpty() ? tr("No faults") : figures.FaultTexts().join(QLatin1Char('\n'));
    const QString shownName = fontMetrics().elidedText(name, Qt::ElideRight, WidestName);
    m_text->setText(
        QStringLiteral("<b>%1</b><table>%2</table>%3")
            .arg(shownName.toHtmlEscaped(), rows,
                 faults.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"))));
}

} // namespace orvane
