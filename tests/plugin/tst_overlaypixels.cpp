// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "plugin/overlaylist.h"
#include "plugin/quillmesh.h"
#include "tests/plugin/overlayview.h"
#include "tests/support/logcatcher.h"
#include "tests/support/shapes.h"

#include <orvane/kernel/kernel.h>
#include <orvane/kernel/viewport.h>

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QOpenGLContext>
#include <QSignalSpy>
#include <QTest>

#include <qopengl.h>

#include <cmath>
#include <cstdio>

using orvane::Vector;

namespace {

const QColor Blue(0, 0, 255);
const int Slack = 4; // of 255: what rounding may cost

class OverlayPixels : public OverlayView
{
protected:
    // The colour of a stroke's middle, the i-th of n, is over what the view shows there.
    void expectStroke(const QImage &after, const QImage &before, const Vector &from,
                      const Vector &to, int i, int n)
    {
        for (float part : {0.2f, 0.3f, 0.35f}) {
            const QPoint pixel = pixelOf(along(from, to, part));
            const QColor wanted = strokeOver(before.pixelColor(pixel), i, n);
            EXPECT_LE(difference(after.pixelColor(pixel), wanted), Slack)
                << i << " of " << n << " at " << part << ": "
                << after.pixelColor(pixel).name().toStdString() << ", expected "
                << wanted.name().toStdString();
        }
    }

    void expectUnchanged(const QImage &after, const QImage &before, const Vector &place)
    {
        EXPECT_LE(difference(colourAt(after, place), colourAt(before, place)), 1);
    }

    void expectDot(const QImage &image, const Vector &place)
    {
        EXPECT_LE(difference(colourAt(image, place), Blue), 1);
    }
};

// The pixels of blue on the line through the place, each by how much of it is blue.
double blueWidth(const QImage &after, const QImage &before, const QPoint &centre,
                 const QPoint &step)
{
    double width = 0.0;
    for (int i = -12; i <= 12; ++i) {
        const QPoint pixel = centre + step * i;
        const int red = before.pixelColor(pixel).red();
        width += double(red - after.pixelColor(pixel).red()) / red;
    }
    return width;
}

// No two of them on one line of sight, at different depths.
TestGraph spatialStar()
{
    TestGraph graph;
    graph.add({0.0f, 0.0f, 0.0f});
    graph.add({3.0f, 0.5f, -1.0f});
    graph.add({-2.0f, 2.5f, 1.5f});
    graph.add({-1.5f, -2.5f, -2.0f});
    for (int leaf : {1, 2, 3})
        graph.link(0, leaf);
    return graph;
}

TestGraph edge()
{
    TestGraph graph;
    graph.add({0, 0, 0});
    graph.add({10, 2, 0});
    graph.link(0, 1);
    return graph;
}

} // namespace

TEST_F(OverlayPixels, aNodeWithThreeNeighboursGetsStrokesOfThreeColoursInTheirOrder)
{
    const TestGraph star = spatialStar();
    lookAt(star);
    const QImage before = without();
    const QImage after = with();
    for (int i = 0; i < 3; ++i) {
        const Vector leaf = star[0]->neighbour(i)->position();
        expectStroke(after, before, star[0]->position(), leaf, i, 3);
        expectStroke(after, before, leaf, star[0]->position(), 0, 1);
    }
}

TEST_F(OverlayPixels, anEdgeIsTwoStrokesOf40PercentWithAGapOf20PercentInTheMiddle)
{
    const TestGraph graph = edge();
    lookAt(graph);
    const QImage before = without();
    const QImage after = with();
    const Vector from = graph[0]->position();
    const Vector to = graph[1]->position();
    for (int percent = 5; percent <= 95; ++percent) {
        const QPoint pixel = pixelOf(along(from, to, float(percent) / 100.0f));
        const bool isGap = percent > 41 && percent < 59;
        const bool isEnd = std::abs(percent - 50) >= 9 && std::abs(percent - 50) <= 11;
        if (isEnd)
            continue; // an end falls somewhere in its pixel
        const QColor wanted =
            isGap ? before.pixelColor(pixel) : strokeOver(before.pixelColor(pixel), 0, 1);
        EXPECT_LE(difference(after.pixelColor(pixel), wanted), Slack) << percent;
    }
}

TEST_F(OverlayPixels, offNothingIsDrawnAndNoProgramIsMade)
{
    removePrograms();
    LogCatcher log;
    const TestGraph star = spatialStar();
    lookAt(star);
    const QImage first = without();
    OverlayList::instance().replace({});
    EXPECT_EQ(differentPixels(without(), first), 0);
    EXPECT_EQ(log.count(), 0) << "making a program without its file would be told";
}

TEST_F(OverlayPixels, aDotIsBlueRoundAndTenPixelsWide)
{
    TestGraph alone;
    alone.add({0.5f, 0.5f, 0.0f});
    addToScene(singleQuad());
    lookAtAll();
    show(alone);
    const QImage before = without();
    const QImage after = with();
    const QPoint centre = pixelOf(alone[0]->position());
    expectDot(after, alone[0]->position());
    EXPECT_NEAR(blueWidth(after, before, centre, {1, 0}), 10.0, 1.0);
    EXPECT_NEAR(blueWidth(after, before, centre, {0, 1}), 10.0, 1.0);
    EXPECT_NEAR(blueWidth(after, before, centre, {1, 1}), 10.0 * std::sqrt(0.5), 1.0)
        << "a square would have ten on its diagonal too";
}

TEST_F(OverlayPixels, aStrokeIsFourPixelsWide)
{
    TestGraph graph;
    graph.add({0, 0, 0});
    graph.add({10, 0, 0});
    graph.link(0, 1);
    lookAt(graph);
    const QImage before = without();
    const QImage after = with();
    const QPoint middle = pixelOf({2.0f, 0.0f, 0.0f});
    double width = 0.0;
    for (int y = -10; y <= 10; ++y) {
        const QPoint pixel = middle + QPoint(0, y);
        const QColor full = strokeOver(before.pixelColor(pixel), 0, 1);
        width += double(after.pixelColor(pixel).red() - before.pixelColor(pixel).red())
                 / (full.red() - before.pixelColor(pixel).red());
    }
    EXPECT_NEAR(width, 4.0, 0.3);
}

TEST_F(OverlayPixels, allIsSeenWhereItStandsFromEverySide)
{
    const TestGraph star = spatialStar();
    for (bool orthographic : {false, true}) {
        view.Camera().SetOrthographic(orthographic);
        for (double turn : {-0.4, 0.0, 0.3, 2.8}) { // no stroke is seen over another one
            lookAt(star, turn, 0.4);
            const QImage before = without();
            const QImage after = with();
            for (const IntersectionNode *node : star.nodes())
                expectDot(after, node->position());
            const Vector leaf = star[1]->position();
            expectStroke(after, before, star[0]->position(), leaf, 0, 3);
            expectUnchanged(after, before, along(star[0]->position(), leaf, 0.5f));
        }
    }
}

TEST_F(OverlayPixels, strokesAreSeenOverACurvedSurface)
{
    addToScene(sphere(24, 48));
    TestGraph graph;
    graph.add({0.0f, -0.5f, std::sqrt(0.75f)});
    graph.add({0.0f, 0.5f, std::sqrt(0.75f)});
    graph.link(0, 1);
    lookAtAll();
    show(graph);
    const QImage before = without();
    const QImage after = with();
    // The chord between them runs within the sphere.
    expectStroke(after, before, graph[0]->position(), graph[1]->position(), 0, 1);
    expectStroke(after, before, graph[1]->position(), graph[0]->position(), 0, 1);
}

TEST_F(OverlayPixels, theStateIsPutBackAfterDrawing)
{
    const TestGraph star = spatialStar();
    lookAt(star);
    StateAfter after;
    with();
    ASSERT_EQ(after.calls, 1);
    EXPECT_TRUE(after.isWritingDepth);
    EXPECT_FALSE(after.isBlending);
    EXPECT_FALSE(after.isSmoothingPoints);
    EXPECT_EQ(after.lineWidth, 1.0f);
    EXPECT_EQ(after.pointSize, 10.0f) << "it alone is left";
    EXPECT_EQ(after.program, 0);
    EXPECT_EQ(after.error, unsigned(GL_NO_ERROR));
}

TEST_F(OverlayPixels, theViewsOwnDrawingIsNotDisturbed)
{
    addToScene(cube());
    addCurve({{-1, 0, 0.6f}, {1, 0, 0.6f}});
    orvane::ViewOptions options = view.Options();
    options.showGrid = true;
    options.showGizmo = true;
    view.SetOptions(options);
    const TestGraph star = spatialStar();
    lookAt(star, 0.5, 0.3);
    const QImage before = without();
    EXPECT_GT(differentPixels(with(), before), 300);
    EXPECT_EQ(without(), before);
}

TEST_F(OverlayPixels, everyFrameIsTheSame)
{
    const TestGraph star = spatialStar();
    lookAt(star, 0.5, 0.3);
    const QImage first = with();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(picture(), first);
}

TEST_F(OverlayPixels, aViewThatMovesToAnotherWindowDrawsOn)
{
    const TestGraph star = spatialStar();
    lookAt(star);
    LogCatcher log;
    with();
    QWidget other;
    auto *layout = new QHBoxLayout(&other);
    layout->setContentsMargins(0, 0, 0, 0);
    QSignalSpy oldContext(view.context(), &QOpenGLContext::aboutToBeDestroyed);
    layout->addWidget(&view);
    other.resize(view.size());
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&other));
    view.show();
    const QImage before = without();
    EXPECT_EQ(oldContext.count(), 1);
    const QImage after = with();
    for (const IntersectionNode *node : star.nodes())
        expectDot(after, node->position());
    expectStroke(after, before, star[0]->position(), star[1]->position(), 0, 3);
    EXPECT_EQ(log.text().toStdString(), "");
    view.setParent(nullptr); // the fixture's again
}

TEST_F(OverlayPixels, aToolNodeCanGoWithoutItsContextAndAnotherOneDraws)
{
    const TestGraph star = spatialStar();
    lookAt(star);
    const QImage first = with();
    for (int i = 0; i < 5; ++i) {
        makeTool();
        EXPECT_EQ(with(), first);
    }
}

TEST_F(OverlayPixels, tenThousandNodesAreDrawnInAFrame)
{
    // Each inner node has eight neighbours: about 40,000 links.
    const int side = 100;
    TestGraph graph;
    for (int row = 0; row < side; ++row) {
        for (int column = 0; column < side; ++column)
            graph.add({float(column), float(row), 0.0f});
    }
    int links = 0;
    const auto link = [&graph, &links](int a, int row, int column) {
        if (row < 0 || row >= side || column < 0 || column >= side)
            return;
        graph.link(a, row * side + column);
        ++links;
    };
    for (int row = 0; row < side; ++row) {
        for (int column = 0; column < side; ++column) {
            const int node = row * side + column;
            link(node, row, column + 1);
            link(node, row + 1, column);
            link(node, row + 1, column + 1);
            link(node, row + 1, column - 1);
        }
    }
    lookAt(graph);
    QElapsedTimer timer;
    timer.start();
    without();
    const qint64 plain = timer.restart();
    with();
    const qint64 first = timer.restart();
    picture();
    const qint64 later = timer.elapsed();
    removePrograms();
    makeTool();
    with();
    timer.restart();
    picture();
    const qint64 fixed = timer.elapsed();
    std::printf(
        "%d nodes, %d links: %lld ms a frame without the overlay, %lld ms the first one with "
        "it, %lld ms a later one, %lld ms without programs\n",
        graph.count(), links, static_cast<long long>(plain), static_cast<long long>(first),
        static_cast<long long>(later), static_cast<long long>(fixed));
    EXPECT_GT(links, 39000);
    EXPECT_LT(later, 5000) << "linear in nodes and links";
}
