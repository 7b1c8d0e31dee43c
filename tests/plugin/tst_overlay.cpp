// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "operation/manualretopooperation.h"
#include "plugin/overlay.h"
#include "plugin/overlaylist.h"
#include "plugin/overlayprograms.h"
#include "plugin/quillmesh.h"
#include "tests/plugin/toolscene.h"
#include "tests/support/graphs.h"
#include "tests/support/recordinggl.h"
#include "ui/manualretopodialog.h"

#include <orvane/kernel/kernel.h>

#include <QCheckBox>

#include <qopengl.h>

#include <algorithm>

namespace {

const float Third = 1.0f / 3.0f;
using Color = RecordingGl::Color;
using orvane::Vector;

RecordingGl &gl()
{
    return RecordingGl::instance();
}

// Without programs, as when their files are missing.
void draw(IntersectionNode *start)
{
    gl().reset();
    drawOverlay(OverlayPrograms(), start);
    EXPECT_EQ(gl().mistakes, 0);
    EXPECT_FALSE(gl().isBetweenBeginAndEnd);
}

// Two nodes, ten units apart.
TestGraph edgeGraph()
{
    TestGraph graph;
    graph.add({0, 0, 0});
    graph.add({10, 0, 0});
    graph.link(0, 1);
    return graph;
}

QList<Color> colorsOf(const QList<RecordingGl::Primitive> &primitives)
{
    QList<Color> colors;
    for (const RecordingGl::Primitive &primitive : primitives)
        colors.append(primitive.state.color);
    return colors;
}

QString call(const char *name, std::initializer_list<double> arguments)
{
    QString text = QLatin1String(name);
    for (double argument : arguments)
        text += QLatin1Char(' ') + QString::number(argument);
    return text;
}

// Cg's own are known by their names.
QStringList glCalls()
{
    QStringList calls = gl().calls;
    calls.erase(
        std::remove_if(calls.begin(), calls.end(),
                       [](const QString &text) { return text.startsWith(QLatin1String("cg")); }),
        calls.end());
    return calls;
}

// The overlay of the tool node, switched on and off through its dialog in test mode.
class ToolOverlay : public ToolScene
{
protected:
    ToolOverlay()
    {
        orvane::Kernel()->SetTestMode(true);
        makeTool();
        drawCell(sheet, {2, 2, 0}, 2.0f);
        gl().reset();
    }

    void setRenderIntersections(bool on)
    {
        auto *box = dialog()->findChild<QCheckBox *>(QStringLiteral("renderIntersections"));
        ASSERT_NE(box, nullptr);
        box->setChecked(on);
    }

    // What one render adds.
    void render()
    {
        gl().reset();
        view.render();
    }

    Sheet sheet;
};

} // namespace

TEST(Overlay, aNodesStrokesFadeFromRedInTheOrderOfItsNeighbours)
{
    const TestGraph star = starGraph(3);
    draw(star[0]);
    const QList<RecordingGl::Primitive> strokes = gl().strokes();
    ASSERT_EQ(strokes.size(), 6);
    EXPECT_EQ(colorsOf(strokes.mid(0, 3)),
              (QList<Color>{{1.0f, 0.0f, 0.0f, 0.3f},
                            {1.0f, Third, Third, 0.3f},
                            {1.0f, 2.0f * Third, 2.0f * Third, 0.3f}}));
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(strokes[i].vertices,
                  (QList<Vector>{star[0]->position(), star[i + 1]->position() * 0.4f}));
    for (const Color &color : colorsOf(strokes.mid(3)))
        EXPECT_EQ(color, (Color{1.0f, 0.0f, 0.0f, 0.3f})) << "a leaf's only neighbour is its first";
}

TEST(Overlay, anEdgeIsTwoStrokesOf40PercentWithAGapOf20PercentInTheMiddle)
{
    const TestGraph edge = edgeGraph();
    draw(edge[0]);
    const QList<RecordingGl::Primitive> strokes = gl().strokes();
    ASSERT_EQ(strokes.size(), 2);
    EXPECT_EQ(strokes[0].vertices, (QList<Vector>{{0, 0, 0}, {4, 0, 0}}));
    EXPECT_EQ(strokes[1].vertices, (QList<Vector>{{10, 0, 0}, {6, 0, 0}}));
}

TEST(Overlay, everyNodeIsABlueDotOfTenPixels)
{
    const TestGraph square = squareGraph();
    draw(square[2]);
    const QList<RecordingGl::Primitive> dots = gl().dots();
    ASSERT_EQ(dots.size(), 4);
    for (const RecordingGl::Primitive &dot : dots) {
        EXPECT_EQ(dot.state.color, (Color{0.0f, 0.0f, 1.0f, 1.0f}));
        EXPECT_EQ(dot.state.pointSize, 10.0f);
        EXPECT_TRUE(dot.state.isSmoothingPoints);
        EXPECT_EQ(dot.state.pointSmoothHint, unsigned(GL_NICEST));
        EXPECT_EQ(dot.vertices.size(), 1);
    }
    for (IntersectionNode *node : square.nodes()) {
        EXPECT_EQ(std::count_if(dots.begin(), dots.end(),
                                [node](const RecordingGl::Primitive &dot) {
                                    return dot.vertices.first() == node->position();
                                }),
                  1);
    }
}

TEST(Overlay, strokesAreFourPixelsWideAndAllIsBlendedAndWritesNoDepth)
{
    const TestGraph grid = gridGraph(3, 3);
    draw(grid[5]);
    EXPECT_EQ(gl().primitives.size(), 48 + 16);
    for (const RecordingGl::Primitive &stroke : gl().strokes())
        EXPECT_EQ(stroke.state.lineWidth, 4.0f);
    for (const RecordingGl::Primitive &primitive : qAsConst(gl().primitives)) {
        EXPECT_TRUE(primitive.state.isBlending);
        EXPECT_EQ(primitive.state.blendSource, unsigned(GL_SRC_ALPHA));
        EXPECT_EQ(primitive.state.blendDestination, unsigned(GL_ONE_MINUS_SRC_ALPHA));
        EXPECT_FALSE(primitive.state.isWritingDepth);
    }
}

TEST(Overlay, theStateIsPutBackAfterDrawing)
{
    const TestGraph square = squareGraph();
    draw(square[0]);
    EXPECT_EQ(gl().state.lineWidth, 1.0f);
    EXPECT_FALSE(gl().state.isBlending);
    EXPECT_FALSE(gl().state.isSmoothingPoints);
    EXPECT_TRUE(gl().state.isWritingDepth);
}

TEST(Overlay, strokesComeBeforeDotsAndEveryCallHasItsPlace)
{
    const TestGraph edge = edgeGraph();
    draw(edge[0]);
    const auto stroke = [](double from, double to) {
        return QStringList{call("Enable", {GL_BLEND}),
                           call("BlendFunc", {GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA}),
                           call("Color4f", {1, 0, 0, 0.3}),
                           call("LineWidth", {4}),
                           call("DepthMask", {0}),
                           call("Color4f", {1, 0, 0, 0.3}),
                           call("Begin", {GL_LINES}),
                           call("Vertex3f", {from, 0, 0}),
                           call("Vertex3f", {to, 0, 0}),
                           call("End ", {})};
    };
    const auto dot = [](double at) {
        return QStringList{call("Color4f", {0, 0, 1, 1}),
                           call("Enable", {GL_POINT_SMOOTH}),
                           call("Hint", {GL_POINT_SMOOTH_HINT, GL_NICEST}),
                           call("Enable", {GL_BLEND}),
                           call("BlendFunc", {GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA}),
                           call("PointSize", {10}),
                           call("DepthMask", {0}),
                           call("Begin", {GL_POINTS}),
                           call("Vertex3f", {at, 0, 0}),
                           call("End ", {}),
                           call("DepthMask", {1}),
                           call("Disable", {GL_BLEND}),
                           call("Disable", {GL_POINT_SMOOTH})};
    };
    const QStringList expected =
        stroke(0, 4) + stroke(10, 6) + dot(0) + dot(10) + QStringList{call("LineWidth", {1})};
    EXPECT_EQ(glCalls().join(QLatin1Char('\n')).toStdString(),
              expected.join(QLatin1Char('\n')).toStdString());
}

TEST(Overlay, aNodeAloneIsADotAndNothingIsNothing)
{
    TestGraph alone;
    alone.add({1, 2, 3});
    draw(alone[0]);
    EXPECT_TRUE(gl().strokes().isEmpty());
    EXPECT_EQ(gl().dots().size(), 1);
    draw(nullptr);
    EXPECT_TRUE(gl().primitives.isEmpty());
}

TEST(Overlay, aLargeGraphIsDrawnOnceThrough)
{
    const TestGraph grid = gridGraph(120, 80);
    draw(grid[0]);
    EXPECT_EQ(gl().dots().size(), 121 * 81);
    EXPECT_EQ(gl().strokes().size(), 2 * (120 * 81 + 121 * 80));
}

TEST_F(ToolOverlay, whileItIsOnEveryRenderDrawsTheGraphOfTheLastOperation)
{
    createMesh();
    setRenderIntersections(true);
    for (int i = 0; i < 3; ++i) {
        render();
        EXPECT_EQ(gl().dots().size(), 4);
        EXPECT_EQ(gl().strokes().size(), 8);
        EXPECT_EQ(gl().mistakes, 0);
    }
}

TEST_F(ToolOverlay, closingTheDialogStopsIt)
{
    createMesh();
    setRenderIntersections(true);
    press("close");
    render();
    EXPECT_TRUE(gl().isIdle());
}

TEST_F(ToolOverlay, uncheckingStopsItAndOffItDrawsNothing)
{
    createMesh();
    render();
    EXPECT_TRUE(gl().isIdle());
    setRenderIntersections(true);
    render();
    EXPECT_FALSE(gl().isIdle());
    setRenderIntersections(false);
    render();
    EXPECT_TRUE(gl().isIdle());
}

TEST_F(ToolOverlay, everyStateButZeroIsOn)
{
    createMesh();
    for (int state : {1, 2, -1, 0}) {
        tool->renderIntersectionsCheckBox(state);
        render();
        EXPECT_EQ(gl().isIdle(), state == 0) << state;
    }
}

TEST_F(ToolOverlay, switchingItOnRepaintsTheView)
{
    setRenderIntersections(true);
    EXPECT_EQ(view.redraws, 1);
}

TEST_F(ToolOverlay, everyPieceIsDrawnInTheOrderOfTheList)
{
    drawCell(sheet, {6, 6, 0}, 2.0f);
    createMesh();
    setRenderIntersections(true);
    render();
    EXPECT_EQ(gl().dots().size(), 8);
    const QList<IntersectionNode *> starts = OverlayList::instance().nodes();
    ASSERT_EQ(starts.size(), 2);
    EXPECT_EQ(gl().dots()[0].vertices.first(), starts[0]->position());
    EXPECT_EQ(gl().dots()[4].vertices.first(), starts[1]->position());
}

TEST_F(ToolOverlay, theNextOperationReplacesTheGraphAndAReplayDoesSoToo)
{
    setRenderIntersections(true);
    createMesh();
    drawCell(sheet, {6, 6, 0}, 2.0f);
    render();
    EXPECT_EQ(gl().dots().size(), 4);
    replay(QStringLiteral("manualretopo 5 0.3 0.05 35 0"));
    render();
    EXPECT_EQ(gl().dots().size(), 8);
    orvane::Kernel()->NewScene();
    createMesh();
    render();
    EXPECT_TRUE(gl().isIdle()) << "an operation without a crossing leaves an empty list";
}

TEST_F(ToolOverlay, undoAndOperationsOfOthersLeaveTheGraphToBeDrawn)
{
    setRenderIntersections(true);
    createMesh();
    const QList<orvane::OrvaneCurve *> other = drawCell(sheet, {6, 6, 0}, 2.0f);
    ASSERT_TRUE(orvane::Kernel()->Undo());
    for (int i = 0; i < 3; ++i) {
        const auto operation = operationOn(other);
        ASSERT_TRUE(operation->ExecuteAndInvert());
        ASSERT_TRUE(operation->ExecuteAndInvert());
    }
    render();
    ASSERT_EQ(gl().dots().size(), 4);
    for (const RecordingGl::Primitive &dot : gl().dots())
        EXPECT_LT(dot.vertices.first().x, 5.0f) << "still the first cell";
}

TEST_F(ToolOverlay, otherGatesDrawNothing)
{
    createMesh();
    setRenderIntersections(true);
    orvane::Node stranger;
    const orvane::EventGate gate(&stranger, QString());
    gl().reset();
    tool->OnEvent(gate);
    EXPECT_TRUE(gl().isIdle());
    tool->OnEvent(static_cast<const orvane::EventGate &>(*tool->AttributeByID(QString())));
    EXPECT_FALSE(gl().isIdle());
}
