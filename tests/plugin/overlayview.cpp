// SPDX-License-Identifier: MIT
#include "tests/plugin/overlayview.h"

#include "graph/intersectionnode.h"
#include "plugin/overlaylist.h"
#include "plugin/quillmesh.h"
#include "tests/support/shapes.h"
#include "ui/manualretopodialog.h"

#include <orvane/kernel/kernel.h>
#include <orvane/kernel/language.h>
#include <orvane/kernel/viewport.h>
#include <orvane/math/axisalignedboundingbox.h>

#include <QDir>
#include <QFile>

#include <qopengl.h>

#include <cmath>

using orvane::Vector;

namespace {

const GLenum CurrentProgram = 0x8B8D; // GL_CURRENT_PROGRAM, which old headers have not

const char *const ProgramFiles[] = {"CurvesVertex", "CurvesFragment"};

int mixed(int over, int under, double opacity)
{
    return int(std::lround(opacity * over + (1.0 - opacity) * under));
}

} // namespace

StateAfter::StateAfter() : gate(this, QStringLiteral("After"))
{
    gate.Connect(&orvane::Kernel()->ViewPort()->EndRenderEvent(), false);
}

void StateAfter::OnEvent(const orvane::EventGate &)
{
    ++calls;
    GLboolean depthMask = GL_FALSE;
    glGetBooleanv(GL_DEPTH_WRITEMASK, &depthMask);
    isWritingDepth = depthMask == GL_TRUE;
    isBlending = glIsEnabled(GL_BLEND) == GL_TRUE;
    isSmoothingPoints = glIsEnabled(GL_POINT_SMOOTH) == GL_TRUE;
    glGetFloatv(GL_LINE_WIDTH, &lineWidth);
    glGetFloatv(GL_POINT_SIZE, &pointSize);
    glGetIntegerv(CurrentProgram, &program);
    error = glGetError();
}

OverlayView::OverlayView()
{
    restorePrograms();
    makeTool();
}

OverlayView::~OverlayView()
{
    OverlayList::instance().replace({});
}

bool OverlayView::hasCg()
{
    return !QStringLiteral(QUILLMESH_PROGRAMS).isEmpty();
}

QString OverlayView::programFile(const char *name)
{
    return orvane::resourceFolder()
           + QStringLiteral("/Shaders/Curves/%1.bin").arg(QLatin1String(name));
}

void OverlayView::removePrograms()
{
    for (const char *name : ProgramFiles)
        QFile::remove(programFile(name));
}

void OverlayView::restorePrograms()
{
    removePrograms();
    QDir().mkpath(orvane::resourceFolder() + QStringLiteral("/Shaders/Curves"));
    for (const char *name : ProgramFiles) {
        const QString source =
            QStringLiteral(QUILLMESH_PROGRAMS "/%1.bin").arg(QLatin1String(name));
        EXPECT_TRUE(!hasCg() || QFile::copy(source, programFile(name))) << source.toStdString();
    }
}

void OverlayView::makeTool()
{
    tool.reset();
    delete window.MainWindow()->findChild<ManualRetopoDialog *>();
    tool = std::make_unique<Quillmesh>();
}

void OverlayView::show(const TestGraph &graph)
{
    OverlayList::instance().replace({graph[0]});
}

void OverlayView::switchOverlay(bool on)
{
    tool->renderIntersectionsCheckBox(on ? 2 : 0);
}

void OverlayView::lookAt(const TestGraph &graph, double right, double up)
{
    orvane::AxisAlignedBoundingBox box;
    for (const IntersectionNode *node : graph.nodes())
        box.Extend(node->position());
    view.Look(orvane::StandardView::Front);
    view.Camera().Orbit(right, up);
    view.Camera().SetSceneBounds(box);
    view.Camera().Frame(box);
    show(graph);
}

QImage OverlayView::without()
{
    switchOverlay(false);
    return picture();
}

QImage OverlayView::with()
{
    switchOverlay(true);
    return picture();
}

QColor blended(const QColor &over, const QColor &under, double opacity)
{
    return QColor(mixed(over.red(), under.red(), opacity),
                  mixed(over.green(), under.green(), opacity),
                  mixed(over.blue(), under.blue(), opacity));
}

QColor strokeOver(const QColor &under, int i, int n)
{
    const double fading = double(i) / n;
    return blended(QColor::fromRgbF(1.0, fading, fading), under, 0.3);
}

Vector along(const Vector &from, const Vector &to, float part)
{
    return from + (to - from) * part;
}
