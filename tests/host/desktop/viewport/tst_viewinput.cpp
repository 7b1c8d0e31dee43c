// SPDX-License-Identifier: MIT
#include "tests/host/desktop/viewport/stillclient.h"
#include "tests/host/desktop/viewport/viewporttest.h"
#include "tests/support/shapes.h"

#include <QSignalSpy>
#include <QTabletEvent>
#include <QTest>
#include <QWheelEvent>

using namespace orvane;

namespace {

class ViewInput : public ViewportTest
{
protected:
    ViewInput()
    {
        addToScene(cube());
        lookAtAll();
        picture();
        view.SetClient(&client);
    }
    ~ViewInput() override { view.SetClient(nullptr); }

    void sendTablet(QEvent::Type type, const QPointF &pixel, Qt::MouseButton button,
                    Qt::MouseButtons buttons, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        QTabletEvent event(type, pixel, view.mapToGlobal(pixel.toPoint()), QTabletEvent::Stylus,
                           QTabletEvent::Pen, 0.6, 0, 0, 0.0, 0.0, 0, keys, 1, button, buttons);
        QCoreApplication::sendEvent(&view, &event);
        EXPECT_TRUE(event.isAccepted());
    }
    void sendWheel(int angle, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        const QPoint turn = keys & Qt::AltModifier ? QPoint(angle, 0) : QPoint(0, angle);
        QWheelEvent event(QPointF(200, 150), view.mapToGlobal(QPoint(200, 150)), QPoint(), turn,
                          Qt::NoButton, keys, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&view, &event);
    }
    void drag(Qt::MouseButton button, Qt::KeyboardModifiers keys)
    {
        QTest::mousePress(&view, button, keys, QPoint(200, 150));
        for (int x = 205; x <= 240; x += 5) {
            QMouseEvent move(QEvent::MouseMove, QPointF(x, 150), Qt::NoButton, button, keys);
            QCoreApplication::sendEvent(&view, &move);
        }
        QTest::mouseRelease(&view, button, keys, QPoint(240, 150));
    }
    QVector<PointerEvent::Kind> kinds() const
    {
        QVector<PointerEvent::Kind> result;
        for (const PointerEvent &event : client.events)
            result.append(event.kind);
        return result;
    }

    StillClient client;
};

} // namespace

TEST_F(ViewInput, aLeftDragReachesTheToolAndLeavesTheCamera)
{
    const Matrix before = view.Camera().ViewMatrix();
    drag(Qt::LeftButton, Qt::NoModifier);
    ASSERT_EQ(client.events.size(), 10);
    EXPECT_EQ(client.events.first().kind, PointerEvent::Press);
    EXPECT_EQ(client.events.first().button, Qt::LeftButton);
    EXPECT_EQ(client.events.first().pixel, QPointF(200, 150));
    EXPECT_EQ(client.events[3].buttons, Qt::LeftButton);
    EXPECT_EQ(client.events.last().kind, PointerEvent::Release);
    EXPECT_EQ(client.events.last().buttons, Qt::NoButton);
    EXPECT_EQ(view.Camera().ViewMatrix(), before);
}

TEST_F(ViewInput, navigationDoesNotReachTheTool)
{
    for (Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
        const Matrix before = view.Camera().ViewMatrix();
        drag(button, Qt::AltModifier);
        EXPECT_NE(view.Camera().ViewMatrix(), before);
        EXPECT_TRUE(client.events.isEmpty());
    }
    const Matrix before = view.Camera().ViewMatrix();
    sendWheel(120);
    EXPECT_NE(view.Camera().ViewMatrix(), before);
    EXPECT_TRUE(client.events.isEmpty());
}

TEST_F(ViewInput, theWheelZoomsWithAltToo)
{
    const Vector before = view.Camera().Eye();
    sendWheel(120, Qt::AltModifier);
    EXPECT_NE(view.Camera().Eye(), before);
}

TEST_F(ViewInput, aPenDrawsAsTheLeftButtonDoes)
{
    sendTablet(QEvent::TabletPress, {200, 150}, Qt::LeftButton, Qt::LeftButton);
    sendTablet(QEvent::TabletMove, {210.25, 150.5}, Qt::NoButton, Qt::LeftButton);
    sendTablet(QEvent::TabletRelease, {220, 150}, Qt::LeftButton, Qt::NoButton);
    const QVector<PointerEvent::Kind> wanted = {PointerEvent::Press, PointerEvent::Move,
                                                PointerEvent::Release};
    EXPECT_EQ(kinds(), wanted);
    EXPECT_EQ(client.events[0].button, Qt::LeftButton);
    EXPECT_EQ(client.events[1].pixel, QPointF(210.25, 150.5)) << "finer than pixels";
    EXPECT_EQ(client.events[1].buttons, Qt::LeftButton);
    EXPECT_EQ(client.events[2].buttons, Qt::NoButton);
}

TEST_F(ViewInput, aPenThatNamesNoButtonDrawsToo)
{
    sendTablet(QEvent::TabletPress, {200, 150}, Qt::NoButton, Qt::NoButton);
    ASSERT_EQ(client.events.size(), 1);
    EXPECT_EQ(client.events[0].button, Qt::LeftButton);
    EXPECT_EQ(client.events[0].buttons, Qt::LeftButton);
}

TEST_F(ViewInput, aPenWithAltOrbits)
{
    const Matrix before = view.Camera().ViewMatrix();
    sendTablet(QEvent::TabletPress, {200, 150}, Qt::LeftButton, Qt::LeftButton, Qt::AltModifier);
    sendTablet(QEvent::TabletMove, {240, 160}, Qt::NoButton, Qt::LeftButton, Qt::AltModifier);
    sendTablet(QEvent::TabletRelease, {240, 160}, Qt::LeftButton, Qt::NoButton, Qt::AltModifier);
    EXPECT_NE(view.Camera().ViewMatrix(), before);
    EXPECT_TRUE(client.events.isEmpty());
}

TEST_F(ViewInput, aDoubleClickIsTwoPresses)
{
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, QPoint(200, 150));
    QTest::mouseDClick(&view, Qt::LeftButton, Qt::NoModifier, QPoint(200, 150));
    int presses = 0;
    for (const PointerEvent &event : qAsConst(client.events))
        presses += event.kind == PointerEvent::Press;
    EXPECT_EQ(presses, 2);
}

TEST_F(ViewInput, inViewerStyleALeftDragBesideTheSurfaceOrbits)
{
    view.Navigation().SetPreset(NavigationPreset::Viewer);
    client.leftDrag = LeftDrag::OnSurface;
    const Matrix before = view.Camera().ViewMatrix();
    drag(Qt::LeftButton, Qt::NoModifier);
    EXPECT_EQ(client.events.size(), 10) << "it begins on the cube";
    EXPECT_EQ(view.Camera().ViewMatrix(), before);
    QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QMouseEvent move(QEvent::MouseMove, QPointF(60, 40), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &move);
    QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, QPoint(60, 40));
    EXPECT_EQ(client.events.size(), 10);
    EXPECT_NE(view.Camera().ViewMatrix(), before);
}

TEST_F(ViewInput, aModifierKeyTellsTheToolAtOnce)
{
    QTest::mouseMove(&view, QPoint(100, 100));
    QMouseEvent move(QEvent::MouseMove, QPointF(100, 100), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &move);
    view.setAttribute(Qt::WA_UnderMouse);
    client.events.clear();
    QTest::keyPress(&view, Qt::Key_Shift);
    ASSERT_EQ(client.events.size(), 1);
    EXPECT_EQ(client.events[0].kind, PointerEvent::Move);
    EXPECT_EQ(client.events[0].pixel, QPointF(100, 100));
    EXPECT_TRUE(client.events[0].modifiers & Qt::ShiftModifier);
}

TEST_F(ViewInput, theToolIsToldWhenThePointerOrTheFocusLeaves)
{
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&view, &leave);
    EXPECT_EQ(client.left, 1);
    QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, QPoint(200, 150));
    QCoreApplication::sendEvent(&view, &leave);
    EXPECT_EQ(client.left, 1) << "a stroke may wander out and come back";
    QFocusEvent focus(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&view, &focus);
    EXPECT_EQ(client.left, 2);
}

TEST_F(ViewInput, theCursorIsTheToolsUntilTheCameraMoves)
{
    EXPECT_EQ(view.cursor().shape(), Qt::CrossCursor);
    QTest::mousePress(&view, Qt::LeftButton, Qt::AltModifier, QPoint(200, 150));
    EXPECT_EQ(view.cursor().shape(), Qt::ClosedHandCursor);
    QTest::mouseRelease(&view, Qt::LeftButton, Qt::AltModifier, QPoint(200, 150));
    EXPECT_EQ(view.cursor().shape(), Qt::CrossCursor);
    view.SetClient(nullptr);
    EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(client.left, 1);
}

TEST_F(ViewInput, linesAndShapesOfTheToolAreDrawn)
{
    const QImage before = picture();
    // Before the cube, and inside it: the latter is seen only when it is on top.
    client.lines = {{{{-0.4f, 0.2f, 0.51f}, {0.4f, 0.2f, 0.51f}}, Qt::yellow, 3.0f, false, false},
                    {{{-0.4f, 0.0f, 0.0f}, {0.4f, 0.0f, 0.0f}}, Qt::green, 3.0f, true, false},
                    {{{-0.4f, -0.2f, 0.0f}, {0.4f, -0.2f, 0.0f}}, Qt::blue, 3.0f, false, false}};
    client.shapes = {{QPolygonF(QRectF(20, 20, 360, 260)), true, Qt::white}};
    const QImage image = picture();
    EXPECT_LT(difference(colourAt(image, {0.1f, 0.2f, 0.51f}), Qt::yellow), 30);
    EXPECT_LT(difference(colourAt(image, {0.1f, 0.0f, 0.0f}), Qt::green), 30);
    EXPECT_EQ(
        difference(colourAt(image, {0.1f, -0.2f, 0.0f}), colourAt(before, {0.1f, -0.2f, 0.0f})), 0);
    int white = 0;
    for (int y = 17; y < 23; ++y)
        white = std::max(white, image.pixelColor(100, y).lightness());
    EXPECT_GT(white, 180);
}

TEST_F(ViewInput, aFrameOnTheScreenIsTimed)
{
    QSignalSpy spy(&view, &ViewportWidget::frameRendered);
    view.update();
    ASSERT_TRUE(spy.count() > 0 || spy.wait(5000));
    EXPECT_GT(spy.first().first().toDouble(), 0.0);
}
