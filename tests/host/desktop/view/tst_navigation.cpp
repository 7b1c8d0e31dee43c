// SPDX-License-Identifier: MIT
#include "host/desktop/view/navigation.h"

#include "tests/host/desktop/view/scenecamera.h"
#include "tests/support/shapes.h"

#include <QRectF>

#include <gtest/gtest.h>

#include <cmath>

using orvane::Camera;
using orvane::CameraMove;
using orvane::LeftDrag;
using orvane::Matrix;
using orvane::Navigation;
using orvane::NavigationPreset;
using orvane::PointerEvent;
using orvane::Vector;

namespace {

const QPointF OnModel(600.0, 400.0);
const QPointF BesideModel(30.0, 40.0);

PointerEvent press(const QPointF &pixel, Qt::MouseButton button,
                   Qt::KeyboardModifiers keys = Qt::NoModifier,
                   Qt::MouseButtons held = Qt::NoButton)
{
    return {PointerEvent::Press, pixel, button, held | button, keys, 0.0};
}

PointerEvent moved(const QPointF &pixel, Qt::MouseButtons held,
                   Qt::KeyboardModifiers keys = Qt::NoModifier)
{
    return {PointerEvent::Move, pixel, Qt::NoButton, held, keys, 0.0};
}

PointerEvent release(const QPointF &pixel, Qt::MouseButton button,
                     Qt::MouseButtons held = Qt::NoButton)
{
    return {PointerEvent::Release, pixel, button, held, Qt::NoModifier, 0.0};
}

PointerEvent wheel(const QPointF &pixel, double notches, Qt::MouseButtons held = Qt::NoButton)
{
    return {PointerEvent::Wheel, pixel, Qt::NoButton, held, Qt::NoModifier, notches};
}

// A square of side 3 in the plane z = 1 is the model.
class Navigating : public testing::Test
{
protected:
    Navigating() : m_navigation(m_camera, [this](const QPointF &pixel) { return pick(pixel); })
    {
        m_camera.SetViewportSize(ViewSize);
        m_camera.SetSceneBounds(boxBetween({-2, -2, -2}, {2, 2, 2}));
        frame();
    }

    void frame()
    {
        m_camera.LookFrom(orvane::StandardView::Front);
        m_camera.Orbit(0.3, 0.2);
        m_camera.Frame(boxBetween({-2, -2, -2}, {2, 2, 2}));
    }

    std::optional<Vector> pick(const QPointF &pixel)
    {
        ++m_picks;
        const orvane::ViewRay ray = m_camera.RayThrough(pixel);
        const float way = (1.0f - ray.origin.z) / ray.direction.z;
        const Vector hit = ray.origin + ray.direction * way;
        if (!(way > 0.0f && std::abs(hit.x) <= 1.5f && std::abs(hit.y) <= 1.5f))
            return std::nullopt;
        return hit;
    }

    bool isStill(const std::function<void()> &act)
    {
        const Matrix before = m_camera.ViewMatrix();
        act();
        return m_camera.ViewMatrix() == before;
    }

    // What a drag of that button is for: a move, or none when the tool gets all of it.
    std::optional<CameraMove> moveOf(Qt::MouseButton button, Qt::KeyboardModifiers keys,
                                     const QPointF &pixel)
    {
        frame();
        const Matrix before = m_camera.ViewMatrix();
        const bool taken = m_navigation.Handle(press(pixel, button, keys));
        const std::optional<CameraMove> move = m_navigation.Dragging();
        EXPECT_EQ(taken, move.has_value());
        EXPECT_EQ(m_navigation.Handle(moved(pixel + QPointF(30, 20), button, keys)), taken);
        EXPECT_EQ(m_camera.ViewMatrix() == before, !taken);
        EXPECT_EQ(m_navigation.Handle(release(pixel, button)), taken);
        EXPECT_FALSE(m_navigation.Dragging());
        return move;
    }

    Camera m_camera;
    Navigation m_navigation;
    int m_picks = 0;
};

} // namespace

TEST_F(Navigating, eachPresetHasItsDrags)
{
    struct Row
    {
        NavigationPreset preset;
        Qt::MouseButton button;
        Qt::KeyboardModifiers keys;
        std::optional<CameraMove> move;
    };
    const auto none = std::nullopt;
    const Row rows[] = {
        {NavigationPreset::AltDrag, Qt::LeftButton, Qt::AltModifier, CameraMove::Orbit},
        {NavigationPreset::AltDrag, Qt::MiddleButton, Qt::AltModifier, CameraMove::Pan},
        {NavigationPreset::AltDrag, Qt::RightButton, Qt::AltModifier, CameraMove::Zoom},
        {NavigationPreset::AltDrag, Qt::LeftButton, Qt::NoModifier, none},
        {NavigationPreset::AltDrag, Qt::MiddleButton, Qt::NoModifier, none},
        {NavigationPreset::AltDrag, Qt::RightButton, Qt::NoModifier, none},
        {NavigationPreset::AltDrag, Qt::LeftButton, Qt::ShiftModifier, none},
        {NavigationPreset::AltDrag, Qt::LeftButton, Qt::AltModifier | Qt::ShiftModifier, none},
        {NavigationPreset::MiddleDrag, Qt::MiddleButton, Qt::NoModifier, CameraMove::Orbit},
        {NavigationPreset::MiddleDrag, Qt::MiddleButton, Qt::ShiftModifier, CameraMove::Pan},
        {NavigationPreset::MiddleDrag, Qt::MiddleButton, Qt::ControlModifier, CameraMove::Zoom},
        {NavigationPreset::MiddleDrag, Qt::MiddleButton, Qt::AltModifier, none},
        {NavigationPreset::MiddleDrag, Qt::LeftButton, Qt::NoModifier, none},
        {NavigationPreset::MiddleDrag, Qt::LeftButton, Qt::AltModifier, none},
        {NavigationPreset::MiddleDrag, Qt::RightButton, Qt::NoModifier, none},
        {NavigationPreset::Viewer, Qt::LeftButton, Qt::NoModifier, CameraMove::Orbit},
        {NavigationPreset::Viewer, Qt::LeftButton, Qt::AltModifier, CameraMove::Orbit},
        {NavigationPreset::Viewer, Qt::LeftButton, Qt::KeypadModifier, CameraMove::Orbit},
        {NavigationPreset::Viewer, Qt::MiddleButton, Qt::NoModifier, CameraMove::Pan},
        {NavigationPreset::Viewer, Qt::LeftButton, Qt::ShiftModifier, none},
        {NavigationPreset::Viewer, Qt::RightButton, Qt::NoModifier, none}};
    for (const Row &row : rows) {
        m_navigation.SetPreset(row.preset);
        for (const QPointF &pixel : {OnModel, BesideModel})
            EXPECT_EQ(moveOf(row.button, row.keys, pixel), row.move)
                << int(row.preset) << ' ' << int(row.button) << ' ' << int(row.keys);
    }
}

TEST_F(Navigating, inTheViewerPresetALeftDragOnTheSurfaceDraws)
{
    struct Row
    {
        LeftDrag use;
        bool orbitsOnModel, orbitsBeside;
    };
    const Row rows[] = {{LeftDrag::Unused, true, true},
                        {LeftDrag::OnSurface, false, true},
                        {LeftDrag::Anywhere, false, false}};
    m_navigation.SetPreset(NavigationPreset::Viewer);
    for (const Row &row : rows) {
        m_navigation.SetLeftDrag(row.use);
        EXPECT_EQ(moveOf(Qt::LeftButton, Qt::NoModifier, OnModel).has_value(), row.orbitsOnModel);
        EXPECT_EQ(moveOf(Qt::LeftButton, Qt::NoModifier, BesideModel).has_value(),
                  row.orbitsBeside);
        EXPECT_TRUE(moveOf(Qt::LeftButton, Qt::AltModifier, OnModel).has_value());
    }
}

TEST_F(Navigating, theListedDragsAreTheOnesThatWork)
{
    for (const auto preset :
         {NavigationPreset::AltDrag, NavigationPreset::MiddleDrag, NavigationPreset::Viewer}) {
        m_navigation.SetPreset(preset);
        const auto bindings = orvane::navigationBindings(preset);
        EXPECT_EQ(bindings.size(), 3);
        for (const auto &binding : bindings)
            EXPECT_EQ(moveOf(binding.button, binding.modifiers, OnModel), binding.move);
    }
}

TEST_F(Navigating, aDragKeepsItsMoveWhenKeysChange)
{
    EXPECT_TRUE(m_navigation.Handle(press(OnModel, Qt::LeftButton, Qt::AltModifier)));
    EXPECT_FALSE(isStill([&] {
        EXPECT_TRUE(m_navigation.Handle(moved({620, 420}, Qt::LeftButton)));
    }));
    EXPECT_EQ(m_navigation.Dragging(), CameraMove::Orbit);
    EXPECT_TRUE(m_navigation.Handle(release({620, 420}, Qt::LeftButton)));
    EXPECT_FALSE(m_navigation.Handle(moved({640, 420}, Qt::NoButton)));
}

TEST_F(Navigating, aStrokeIsNeverDisturbed)
{
    for (const auto preset :
         {NavigationPreset::AltDrag, NavigationPreset::MiddleDrag, NavigationPreset::Viewer}) {
        m_navigation.SetPreset(preset);
        m_navigation.SetLeftDrag(LeftDrag::OnSurface);
        EXPECT_TRUE(isStill([&] {
            const Qt::MouseButtons held = Qt::LeftButton;
            EXPECT_FALSE(m_navigation.Handle(press(OnModel, Qt::LeftButton)));
            EXPECT_FALSE(m_navigation.Handle(moved(BesideModel, held, Qt::AltModifier)));
            EXPECT_FALSE(m_navigation.Handle(press(OnModel, Qt::MiddleButton, {}, held)));
            EXPECT_FALSE(m_navigation.Handle(moved(BesideModel, held | Qt::MiddleButton)));
            EXPECT_FALSE(m_navigation.Handle(wheel(OnModel, 1.0, held | Qt::MiddleButton)));
            EXPECT_FALSE(m_navigation.Handle(release(OnModel, Qt::MiddleButton, held)));
            EXPECT_FALSE(
                m_navigation.Handle(press(OnModel, Qt::RightButton, Qt::AltModifier, held)));
            EXPECT_FALSE(m_navigation.Handle(release(OnModel, Qt::RightButton, held)));
            EXPECT_FALSE(m_navigation.Handle(release(OnModel, Qt::LeftButton)));
        })) << int(preset);
    }
}

TEST_F(Navigating, noStrokeBeginsInsideADrag)
{
    m_navigation.SetPreset(NavigationPreset::MiddleDrag);
    const Qt::MouseButtons both = Qt::MiddleButton | Qt::LeftButton;
    EXPECT_TRUE(m_navigation.Handle(press(OnModel, Qt::MiddleButton)));
    EXPECT_TRUE(m_navigation.Handle(press(OnModel, Qt::LeftButton, {}, Qt::MiddleButton)));
    EXPECT_TRUE(m_navigation.Handle(moved({620, 400}, both)));
    EXPECT_TRUE(m_navigation.Handle(wheel(OnModel, 1.0, both)));
    EXPECT_TRUE(m_navigation.Handle(release(OnModel, Qt::MiddleButton, Qt::LeftButton)));
    // The left button is still down, but no tool ever saw it go down.
    EXPECT_TRUE(isStill([&] {
        EXPECT_TRUE(m_navigation.Handle(moved({700, 400}, Qt::LeftButton)));
    }));
    EXPECT_TRUE(m_navigation.Handle(release(OnModel, Qt::LeftButton)));
    EXPECT_FALSE(m_navigation.Handle(press(OnModel, Qt::LeftButton)));
}

TEST_F(Navigating, aLostReleaseEndsTheDrag)
{
    m_navigation.SetPreset(NavigationPreset::Viewer);
    EXPECT_TRUE(m_navigation.Handle(press(BesideModel, Qt::LeftButton)));
    EXPECT_TRUE(isStill([&] { EXPECT_FALSE(m_navigation.Handle(moved(OnModel, Qt::NoButton))); }));
    EXPECT_FALSE(m_navigation.Dragging());
    EXPECT_TRUE(m_navigation.Handle(press(BesideModel, Qt::LeftButton)));
    m_navigation.Cancel();
    EXPECT_FALSE(m_navigation.Dragging());
    // The next press is judged afresh, though the last release never came.
    m_navigation.SetLeftDrag(LeftDrag::Anywhere);
    EXPECT_FALSE(m_navigation.Handle(press(OnModel, Qt::LeftButton)));
    EXPECT_FALSE(m_navigation.Handle(release(OnModel, Qt::LeftButton)));
}

TEST_F(Navigating, theWheelZoomsToWhatIsUnderThePointer)
{
    std::mt19937 random(testSeed());
    for (const auto preset :
         {NavigationPreset::AltDrag, NavigationPreset::MiddleDrag, NavigationPreset::Viewer}) {
        m_navigation.SetPreset(preset);
        for (int round = 0; round < 100; ++round) {
            frame();
            const QPointF pixel = randomPixel(random);
            const std::optional<Vector> hit = pick(pixel);
            const Vector held = hit ? *hit : m_camera.PointAt(pixel, m_camera.PivotDepth());
            const double depth = m_camera.DepthOf(held);
            EXPECT_TRUE(m_navigation.Handle(wheel(pixel, 1.0)));
            EXPECT_LE(apart(m_camera.Project(held).pixel, pixel), 0.01);
            EXPECT_NEAR(m_camera.DepthOf(held), 0.85 * depth, 1e-5);
            if (!hit)
                continue; // the model has come nearer and may be under the pointer now
            EXPECT_TRUE(m_navigation.Handle(wheel(pixel, -1.0)));
            EXPECT_LE(apart(m_camera.Project(held).pixel, pixel), 0.01);
            EXPECT_NEAR(m_camera.DepthOf(held), depth, 1e-4);
        }
    }
    EXPECT_FALSE(m_navigation.Handle(wheel(OnModel, 0.0)));
}

TEST_F(Navigating, orbitingTurnsAboutThePointUnderThePointer)
{
    const Vector held = *pick(OnModel);
    m_navigation.Handle(press(OnModel, Qt::LeftButton, Qt::AltModifier));
    const Vector back = m_camera.BackAxis();
    m_navigation.Handle(moved({700, 450}, Qt::LeftButton, Qt::AltModifier));
    EXPECT_LE(apart(m_camera.Project(held).pixel, OnModel), 0.01);
    EXPECT_LT(Dot(m_camera.BackAxis(), back), 0.9f);
    // To the right: the eye went to the left; down: it went up.
    EXPECT_LT(Dot(m_camera.BackAxis(), back & Vector(0, -1, 0)), 0.0f);
    EXPECT_GT(m_camera.BackAxis().y, back.y);
}

TEST_F(Navigating, orbitingBesideTheModelTurnsAboutWhatIsInView)
{
    m_navigation.SetPreset(NavigationPreset::Viewer);
    m_navigation.Handle(press(BesideModel, Qt::LeftButton));
    EXPECT_LE(m_camera.Pivot().Length(), 1e-6f); // the pivot is seen: it stays
    m_navigation.Handle(release(BesideModel, Qt::LeftButton));
    m_camera.Pan({5000.0, 0.0});
    m_navigation.Handle(press(BesideModel, Qt::LeftButton));
    EXPECT_LE(apart(m_camera.Project(m_camera.Pivot()).pixel, {640.0, 360.0}), 0.01);
}

TEST_F(Navigating, panningHoldsThePointUnderThePointer)
{
    for (const QPointF &start : {OnModel, BesideModel}) {
        const std::optional<Vector> hit = pick(start);
        const Vector held = hit ? *hit : m_camera.PointAt(start, m_camera.PivotDepth());
        m_navigation.Handle(press(start, Qt::MiddleButton, Qt::AltModifier));
        QPointF pixel = start;
        for (int i = 0; i < 10; ++i) {
            pixel += QPointF(13.0, -7.0);
            m_navigation.Handle(moved(pixel, Qt::MiddleButton, Qt::AltModifier));
            EXPECT_LE(apart(m_camera.Project(held).pixel, pixel), 0.01);
        }
        m_navigation.Handle(release(pixel, Qt::MiddleButton));
    }
}

TEST_F(Navigating, aZoomDragToTheRightAndUpComesNearer)
{
    const Vector held = *pick(OnModel);
    const double depth = m_camera.DepthOf(held);
    m_navigation.Handle(press(OnModel, Qt::RightButton, Qt::AltModifier));
    m_navigation.Handle(moved(OnModel + QPointF(50, 0), Qt::RightButton, Qt::AltModifier));
    const double nearer = m_camera.DepthOf(held);
    EXPECT_LT(nearer, depth);
    m_navigation.Handle(moved(OnModel + QPointF(50, -50), Qt::RightButton, Qt::AltModifier));
    EXPECT_LT(m_camera.DepthOf(held), nearer);
    m_navigation.Handle(moved(OnModel, Qt::RightButton, Qt::AltModifier));
    EXPECT_NEAR(m_camera.DepthOf(held), depth, 1e-5);
    EXPECT_LE(apart(m_camera.Project(held).pixel, OnModel), 0.01);
}

TEST_F(Navigating, movesDoNotPick)
{
    m_navigation.Handle(press(OnModel, Qt::LeftButton, Qt::AltModifier));
    const int picks = m_picks;
    EXPECT_GE(picks, 1);
    for (int i = 0; i < 20; ++i)
        m_navigation.Handle(moved(OnModel + QPointF(i, i), Qt::LeftButton, Qt::AltModifier));
    m_navigation.Handle(release(OnModel, Qt::LeftButton));
    EXPECT_EQ(m_picks, picks);
}

// Every button belongs to one side from its press to its release, whatever happens between.
TEST_F(Navigating, randomEventsNeverSplitAButtonBetweenTwoSides)
{
    std::mt19937 random(testSeed());
    const Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton};
    const Qt::KeyboardModifiers keys[] = {Qt::NoModifier, Qt::AltModifier, Qt::ShiftModifier,
                                          Qt::ControlModifier};
    Qt::MouseButtons held;
    Qt::MouseButtons ofTool;
    int drags = 0;
    int strokes = 0;
    for (int step = 0; step < 20000; ++step) {
        if (held == Qt::NoButton && random() % 10 == 0) {
            m_navigation.SetPreset(NavigationPreset(random() % 3));
            m_navigation.SetLeftDrag(LeftDrag(random() % 3));
            frame();
        }
        const Qt::MouseButton button = buttons[random() % 3];
        const QPointF pixel = randomPixel(random);
        const Matrix before = m_camera.ViewMatrix();
        if (random() % 2) {
            const bool taken = m_navigation.Handle(
                random() % 4 ? moved(pixel, held, keys[random() % 4]) : wheel(pixel, 1.0, held));
            if (ofTool & held) {
                ASSERT_FALSE(taken) << step;
            }
        } else if (held & button) {
            held &= ~Qt::MouseButtons(button);
            const bool taken = m_navigation.Handle(release(pixel, button, held));
            ASSERT_EQ(taken, !(ofTool & button)) << step;
            ofTool &= ~Qt::MouseButtons(button);
        } else {
            const bool taken = m_navigation.Handle(press(pixel, button, keys[random() % 4], held));
            if (!taken)
                ofTool |= button;
            held |= button;
            ++(taken ? drags : strokes);
        }
        if (ofTool & held) {
            ASSERT_EQ(m_camera.ViewMatrix(), before) << step;
        }
    }
    EXPECT_GT(drags, 100);
    EXPECT_GT(strokes, 100);
}
