// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/viewportwidget.h"

#include "host/desktop/view/shownsurfaces.h"
#include "host/desktop/view/viewclient.h"
#include "host/desktop/viewport/cardarray.h"
#include "host/desktop/viewport/frame.h"
#include "host/desktop/viewport/pointerevents.h"
#include "host/desktop/viewport/scenebounds.h"
#include "host/desktop/viewport/scenerenderer.h"

#include <orvane/base/log.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QLabel>
#include <QMouseEvent>
#include <QOpenGLContext>

#include <utility>

namespace orvane {

namespace {

const int HudMargin = 10; // pixels

QCursor cursorOf(CameraMove move)
{
    switch (move) {
    case CameraMove::Orbit:
        return Qt::ClosedHandCursor;
    case CameraMove::Pan:
        return Qt::SizeAllCursor;
    case CameraMove::Zoom:
        break;
    }
    return Qt::SizeVerCursor;
}

bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt
           || key == Qt::Key_Meta;
}

// What plug-ins draw with: the fixed pipeline as it is by default, but for the matrices, and
// without multisampling, which some drivers smooth no points with.
void loadFixedPipeline(const Frame &frame)
{
    QOpenGLFunctions_2_1 &gl = frame.gl;
    gl.glUseProgram(0);
    gl.glMatrixMode(GL_PROJECTION);
    gl.glLoadMatrixf(frame.camera.ProjectionMatrix().Data());
    gl.glMatrixMode(GL_MODELVIEW);
    gl.glLoadMatrixf(frame.camera.ViewMatrix().Data());
    gl.glDisable(GL_DEPTH_TEST);
    gl.glDisable(GL_MULTISAMPLE);
    gl.glLineWidth(1.0f);
    gl.glPointSize(1.0f);
    gl.glColor4f(1.0f, 1.0f, 1.0f, 1.0f);
}

QLabel *makeHud(QWidget *parent)
{
    auto *label = new QLabel(parent); // owned by the parent
    label->setObjectName(QStringLiteral("viewHud"));
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->setStyleSheet(QStringLiteral("color: #e8eaed; background: rgba(20, 22, 26, 170);"
                                        "padding: 3px 8px; border-radius: 4px;"));
    label->move(HudMargin, HudMargin);
    label->hide();
    return label;
}

} // namespace

ViewportWidget::ViewportWidget(QWidget *parent)
    : QOpenGLWidget(parent),
      m_viewPort([this] { update(); }),
      m_navigation(m_camera, [this](const QPointF &pixel) { return surfacePlaceAt(pixel); }),
      m_hud(makeHud(this))
{
    setFormat(Format());
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setTabletTracking(true);
    Kernel()->SetViewPort(&m_viewPort);
    Kernel()->Scene()->SetActiveCamera(&m_camera);
    connect(this, &QOpenGLWidget::frameSwapped, this, [this] {
        if (m_frameTime.isValid())
            emit frameRendered(double(m_frameTime.nsecsElapsed()) * 1e-6);
        m_frameTime.invalidate();
    });
}

ViewportWidget::~ViewportWidget()
{
    if (context())
        context()->disconnect(this);
    dropGraphics();
    if (Kernel()->ViewPort() == &m_viewPort)
        Kernel()->SetViewPort(nullptr);
    if (Kernel()->Scene()->ActiveCamera() == &m_camera)
        Kernel()->Scene()->SetActiveCamera(nullptr);
}

QSurfaceFormat ViewportWidget::Format()
{
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(2, 1);
    format.setDepthBufferSize(24);
    format.setSamples(4);
    return format;
}

int ViewportWidget::UploadCount()
{
    return CardArray::UploadCount();
}

void ViewportWidget::SetClient(ViewClient *client)
{
    if (client == m_client)
        return;
    if (m_client)
        m_client->Leave();
    m_client = client;
    showCursor();
    update();
}

void ViewportWidget::SetHighlight(Highlight highlight)
{
    m_highlight = std::move(highlight);
    update();
}

void ViewportWidget::SetOptions(const ViewOptions &options)
{
    m_options = options;
    m_hud->setVisible(m_options.showHud && !m_hud->text().isEmpty());
    update();
}

void ViewportWidget::SetHudText(const QString &text)
{
    m_hud->setText(text);
    m_hud->adjustSize();
    m_hud->setVisible(m_options.showHud && !text.isEmpty());
}

void ViewportWidget::FrameSelection()
{
    frame(selectionBounds());
}

void ViewportWidget::FrameAll()
{
    frame(shownBounds());
}

void ViewportWidget::Look(StandardView view)
{
    m_camera.LookFrom(view);
    update();
}

void ViewportWidget::ToggleOrthographic()
{
    m_camera.SetOrthographic(!m_camera.IsOrthographic());
    update();
}

void ViewportWidget::initializeGL()
{
    // Docks and reparenting take the context away and bring another.
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &ViewportWidget::dropGraphics,
            Qt::UniqueConnection);
    m_renderer = std::make_unique<SceneRenderer>();
}

void ViewportWidget::dropGraphics()
{
    if (!m_renderer)
        return;
    makeCurrent();
    m_renderer.reset();
    doneCurrent();
}

void ViewportWidget::paintGL()
{
    m_frameTime.start();
    auto *gl = context()->versionFunctions<QOpenGLFunctions_2_1>();
    if (!gl || !m_renderer) {
        log(QStringLiteral("The view needs OpenGL 2.1 with its compatibility functions."));
        return;
    }
    const AxisAlignedBoundingBox scene = shownBounds();
    m_camera.SetSceneBounds(scene);
    const OrvaneCurve *highlighted = m_highlight ? m_highlight() : nullptr;
    const Frame frame{*gl, m_camera, m_options, float(devicePixelRatioF())};
    m_renderer->Draw(frame, scene, highlighted, m_client);
    gl->glPushAttrib(GL_ALL_ATTRIB_BITS);
    loadFixedPipeline(frame);
    m_viewPort.EndRenderEvent().Raise();
    gl->glPopAttrib();
    gl->glUseProgram(0);
    gl->glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
}

void ViewportWidget::resizeEvent(QResizeEvent *event)
{
    m_camera.SetViewportSize(size());
    QOpenGLWidget::resizeEvent(event);
}

void ViewportWidget::mousePressEvent(QMouseEvent *event)
{
    handle(pointerEvent(*event));
}

void ViewportWidget::mouseMoveEvent(QMouseEvent *event)
{
    handle(pointerEvent(*event));
}

void ViewportWidget::mouseReleaseEvent(QMouseEvent *event)
{
    handle(pointerEvent(*event));
}

void ViewportWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    handle(pointerEvent(*event));
}

void ViewportWidget::wheelEvent(QWheelEvent *event)
{
    handle(pointerEvent(*event));
    event->accept();
}

// Accepted, or the same would come once more as a mouse event.
void ViewportWidget::tabletEvent(QTabletEvent *event)
{
    handle(pointerEvent(*event));
    event->accept();
}

void ViewportWidget::keyPressEvent(QKeyEvent *event)
{
    handleModifiers(event);
    QOpenGLWidget::keyPressEvent(event);
}

void ViewportWidget::keyReleaseEvent(QKeyEvent *event)
{
    handleModifiers(event);
    QOpenGLWidget::keyReleaseEvent(event);
}

void ViewportWidget::focusOutEvent(QFocusEvent *event)
{
    giveUpDrag();
    QOpenGLWidget::focusOutEvent(event);
}

void ViewportWidget::leaveEvent(QEvent *event)
{
    // A pen's stroke may wander out and come back.
    if (m_lastEvent.buttons == Qt::NoButton)
        giveUpDrag();
    QOpenGLWidget::leaveEvent(event);
}

std::optional<Vector> ViewportWidget::surfacePlaceAt(const QPointF &pixel)
{
    const SurfaceHit hit = surfaceAt(m_camera, shownSurfaces(), pixel);
    if (!hit.IsHit())
        return std::nullopt;
    return hit.point.WorldPosition();
}

void ViewportWidget::frame(const AxisAlignedBoundingBox &bounds)
{
    m_camera.SetSceneBounds(shownBounds());
    m_camera.Frame(bounds);
    update();
}

void ViewportWidget::handle(const PointerEvent &event)
{
    m_lastEvent = event;
    m_navigation.SetLeftDrag(m_client ? m_client->UseOfLeftDrag() : LeftDrag::Unused);
    if (m_navigation.Handle(event))
        update();
    else if (m_client) {
        m_client->Handle(event);
        update();
    }
    showCursor();
}

// A key that the tool heeds works at once, not with the next move of the pointer.
void ViewportWidget::handleModifiers(QKeyEvent *event)
{
    if (!isModifier(event->key()) || event->isAutoRepeat() || !underMouse())
        return;
    PointerEvent move = m_lastEvent;
    move.kind = PointerEvent::Move;
    move.button = Qt::NoButton;
    move.notches = 0.0;
    move.modifiers = event->modifiers();
    handle(move);
}

void ViewportWidget::giveUpDrag()
{
    m_lastEvent.buttons = Qt::NoButton;
    m_navigation.Cancel();
    if (m_client)
        m_client->Leave();
    showCursor();
    update();
}

void ViewportWidget::showCursor()
{
    if (const std::optional<CameraMove> move = m_navigation.Dragging())
        setCursor(cursorOf(*move));
    else
        setCursor(m_client ? m_client->Cursor() : QCursor(Qt::ArrowCursor));
}

} // namespace orvane
