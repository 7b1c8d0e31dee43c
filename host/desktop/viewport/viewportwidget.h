// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/camera.h"
#include "host/desktop/view/navigation.h"
#include "host/desktop/viewport/hostviewport.h"
#include "host/desktop/viewport/viewoptions.h"

#include <QElapsedTimer>
#include <QOpenGLWidget>

#include <functional>
#include <memory>

class QLabel;

namespace orvane {

class OrvaneCurve;
class SceneRenderer;
class ViewClient;

//! The 3-D view of the kernel's scene, and the kernel's view as long as it lives. Pointer events
//! go to the navigation first, what it leaves to the client.
class ViewportWidget : public QOpenGLWidget
{
    Q_OBJECT

public:
    explicit ViewportWidget(QWidget *parent = nullptr);
    ~ViewportWidget() override;

    //! Answers the curve to be highlighted, or null; asked at every frame.
    using Highlight = std::function<const OrvaneCurve *()>;

    //! The format it needs; a program may make it the default before its first window.
    static QSurfaceFormat Format();

    //! Ask for a repaint with update() after changing the camera.
    orvane::Camera &Camera() { return m_camera; }
    orvane::Navigation &Navigation() { return m_navigation; }
    const ViewOptions &Options() const { return m_options; }
    //! How many arrays went to the graphics card since the program began.
    static int UploadCount();

    //! The tool in hand; not owned, may be null. The client before is told to leave.
    void SetClient(ViewClient *client);
    //! Without one, no curve is highlighted.
    void SetHighlight(Highlight highlight);
    void SetOptions(const ViewOptions &options);
    void SetHudText(const QString &text);

public slots:
    //! The selected curves and geometries; without any the active geometry, or else all.
    void FrameSelection();
    //! All that is shown.
    void FrameAll();
    void Look(orvane::StandardView view);
    void ToggleOrthographic();

signals:
    //! A frame is on the screen; from the begin of drawing to there.
    void frameRendered(double milliseconds);

protected:
    void initializeGL() override;
    void paintGL() override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void tabletEvent(QTabletEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    std::optional<Vector> surfacePlaceAt(const QPointF &pixel);
    void dropGraphics();
    void frame(const AxisAlignedBoundingBox &bounds);
    void handle(const PointerEvent &event);
    void handleModifiers(QKeyEvent *event);
    void giveUpDrag();
    void showCursor();

    HostViewPort m_viewPort;
    orvane::Camera m_camera;
    orvane::Navigation m_navigation;
    ViewOptions m_options;
    ViewClient *m_client = nullptr;
    Highlight m_highlight;
    PointerEvent m_lastEvent; // for what keys change between two moves of the pointer
    std::unique_ptr<SceneRenderer> m_renderer;
    QLabel *m_hud; // owned by the widget
    QElapsedTimer m_frameTime;
};

} // namespace orvane
