// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/scenecleaner.h"

#include "host/desktop/drawing/curveshape.h"
#include "host/desktop/tools/toolbox.h"
#include "host/desktop/tools/toolcontext.h"
#include "host/desktop/view/camera.h"
#include "host/desktop/view/shownsurfaces.h"

#include <orvane/math/matrix.h>

#include <QStringList>

#include <functional>

namespace orvane {
class SubdivisionLevel;
} // namespace orvane

//! A window without a window: 1280 by 720 pixels, seen from the front.
class FakeContext : public orvane::ToolContext
{
public:
    const orvane::Camera &ViewCamera() const override { return camera; }
    const orvane::ToolSettings &Settings() const override { return settings; }
    const orvane::SurfaceLocator *Locator(const orvane::Geometry &geometry) override
    {
        return orvane::locatorOf(&geometry);
    }
    orvane::SurfaceList VisibleSurfaces() override { return orvane::shownSurfaces(); }
    QCursor ToolCursor(const QString &) override { return Qt::CrossCursor; }
    void Repaint() override { ++repaints; }
    void ShowMessage(const QString &text) override { messages.append(text); }

    orvane::Camera camera;
    orvane::ToolSettings settings;
    int repaints = 0;
    QStringList messages;
};

//! The tools, over a scene, driven by what the pointer does.
class ToolsTest : public SceneCleaner
{
protected:
    ToolsTest();

    //! Puts the shape into the scene and into view; it is what is drawn on when it is the first.
    orvane::Geometry *show(orvane::SubdivisionLevel *shape, const orvane::Matrix &placement = {});
    orvane::Tool &take(const char *id);

    //! Where a place is seen.
    QPointF at(const orvane::Vector &place) const;
    //! Pixels along a circle on the screen, about so many pixels apart.
    static QVector<QPointF> circle(const QPointF &center, double radius, double step = 4.0);
    static QVector<QPointF> line(const QPointF &from, const QPointF &to, int events = 60);

    void press(const QPointF &pixel, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void moveTo(const QPointF &pixel, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void release(const QPointF &pixel, Qt::MouseButton button = Qt::LeftButton,
                 Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void drag(const QVector<QPointF> &way, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void click(const QPointF &pixel, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    //! Draws with the drawing tool and takes the tool before in hand again.
    orvane::OrvaneCurve *draw(const QVector<QPointF> &way);

    static QVector<orvane::OrvaneCurve *> curves();
    static orvane::OrvaneCurve *curve(int index) { return curves().value(index); }
    static void select(const QVector<int> &indices);
    static QVector<int> selected();
    static int stepCount();

    //! Runs it and expects one undo step of it, that undo and redo go to and fro between the very
    //! bytes before and after it, and a sound scene.
    void expectOneStep(const std::function<void()> &gesture);
    void expectNoTrace(const std::function<void()> &gesture);
    //! Every curve on its surface, well closed, and touching no other.
    void expectSound() const;
    void expectEven(const orvane::OrvaneCurve &curve) const;

    FakeContext context;
    orvane::ToolBox box{context};
};
