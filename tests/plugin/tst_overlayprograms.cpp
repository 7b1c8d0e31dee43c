// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "plugin/overlay.h"
#include "plugin/overlayprograms.h"
#include "plugin/quillmesh.h"
#include "tests/plugin/toolscene.h"
#include "tests/support/graphs.h"
#include "tests/support/recordingcg.h"
#include "tests/support/recordinggl.h"

#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/kernel/scenecamera.h>

#include <qopengl.h>

namespace {

const char *const Lines = "lines_fragment+vertex_shader";
const char *const Points = "points_fragment+vertex_shader";

RecordingGl &gl()
{
    return RecordingGl::instance();
}

RecordingCg &cg()
{
    return RecordingCg::instance();
}

std::string recorded()
{
    return gl().calls.join(QLatin1Char('\n')).toStdString();
}

int callsNamed(const char *name)
{
    int count = 0;
    for (const QString &call : qAsConst(gl().calls))
        count += call.section(QLatin1Char(' '), 0, 0) == QLatin1String(name);
    return count;
}

QString making(const char *fragmentEntry)
{
    return QStringLiteral("CreateFromFile Shaders/Curves/CurvesFragment.bin 7008 %1\n"
                          "CreateFromFile Shaders/Curves/CurvesVertex.bin 7007 vertex_shader\n"
                          "cgCombinePrograms 2 %1+vertex_shader\n"
                          "cgDestroyProgram vertex_shader\n"
                          "cgDestroyProgram %1\n"
                          "cgGLLoadProgram %1+vertex_shader\n"
                          "cgGetNamedParameter %1+vertex_shader modelViewProj\n"
                          "cgGetNamedParameter %1+vertex_shader diffuseColor\n")
        .arg(QLatin1String(fragmentEntry));
}

class ShiftedCamera : public orvane::SceneCamera
{
public:
    orvane::Matrix WorldToClip() const override
    {
        orvane::Matrix matrix;
        matrix.SetRow(3, {2, 3, 4});
        return matrix;
    }
};

QString call(const QString &name, std::initializer_list<int> arguments)
{
    QString text = name;
    for (int argument : arguments)
        text += QLatin1Char(' ') + QString::number(argument);
    return text + QLatin1Char('\n');
}

QString name(const char *text)
{
    return QLatin1String(text);
}

QString matrixCall()
{
    return QStringLiteral("cgSetParameterValuefc %1 modelViewProj"
                          " 1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1\n")
        .arg(name(Lines));
}

QString colorCall(const char *color)
{
    return QStringLiteral("cgSetParameterValuefc %1 diffuseColor %2\n")
        .arg(name(Lines), name(color));
}

QString blending()
{
    return call(name("Enable"), {GL_BLEND})
           + call(name("BlendFunc"), {GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA});
}

QString vertexCall(const char *place)
{
    return QStringLiteral("Vertex3f %1\n").arg(name(place));
}

QString strokesBegin()
{
    return blending() + matrixCall() + colorCall("1 0 0 0.3") + call(name("LineWidth"), {4})
           + call(name("DepthMask"), {0});
}

QString stroke(const char *color, const char *from, const char *to)
{
    return colorCall(color) + call(name("Begin"), {GL_LINES}) + vertexCall(from) + vertexCall(to)
           + QStringLiteral("End \n");
}

QString dot(const char *place)
{
    return matrixCall() + colorCall("0 0 1 1") + call(name("Enable"), {GL_POINT_SMOOTH})
           + call(name("Hint"), {GL_POINT_SMOOTH_HINT, GL_NICEST}) + blending()
           + call(name("PointSize"), {10}) + call(name("DepthMask"), {0})
           + call(name("Begin"), {GL_POINTS}) + vertexCall(place) + QStringLiteral("End \n")
           + call(name("DepthMask"), {1}) + call(name("Disable"), {GL_BLEND})
           + call(name("Disable"), {GL_POINT_SMOOTH});
}

class OverlayProgramsTest : public ToolScene
{
protected:
    OverlayProgramsTest()
    {
        drawCell(sheet, {2, 2, 0}, 2.0f);
        createMesh();
        gl().reset();
        cg().missing.clear();
    }

    ~OverlayProgramsTest() override
    {
        tool.reset();
        EXPECT_EQ(cg().livePrograms, 0);
        cg().missing.clear();
    }

    void render()
    {
        gl().reset();
        view.render();
        EXPECT_EQ(gl().mistakes, 0);
    }

    Sheet sheet;
};

} // namespace

TEST(OverlayCalls, aGraphOfThreeNodesIsDrawnInThisOrder)
{
    TestGraph path;
    path.add({0, 0, 0});
    path.add({10, 0, 0});
    path.add({10, 20, 0});
    path.link(0, 1);
    path.link(1, 2);
    OverlayPrograms programs;
    QObject owner;
    gl().reset();
    createPrograms(programs, &owner);
    EXPECT_EQ(recorded() + '\n',
              (making("lines_fragment") + making("points_fragment")).toStdString());

    gl().reset();
    drawOverlay(programs, path[0]);
    const QString expected =
        call(name("cgGLEnableProfile"), {7007}) + call(name("cgGLEnableProfile"), {7008})
        + QStringLiteral("cgGLBindProgram %1\n").arg(name(Lines)) + strokesBegin()
        + stroke("1 0 0 0.3", "0 0 0", "4 0 0") + strokesBegin()
        + stroke("1 0 0 0.3", "10 0 0", "6 0 0") + stroke("1 0.5 0.5 0.3", "10 0 0", "10 8 0")
        + strokesBegin() + stroke("1 0 0 0.3", "10 20 0", "10 12 0") + dot("0 0 0") + dot("10 0 0")
        + dot("10 20 0") + call(name("cgGLDisableProfile"), {7008})
        + call(name("cgGLUnbindProgram"), {7008}) + call(name("cgGLDisableProfile"), {7007})
        + call(name("cgGLUnbindProgram"), {7007}) + call(name("LineWidth"), {1});
    EXPECT_EQ(recorded() + '\n', expected.toStdString());
    EXPECT_EQ(gl().mistakes, 0);
    EXPECT_EQ(cg().enabledProfiles, 0);
    EXPECT_EQ(cg().boundProfiles, 0);
    destroyPrograms(programs);
    EXPECT_EQ(cg().livePrograms, 0);
}

TEST(OverlayCalls, theMatrixIsThatOfTheActiveCamera)
{
    const ShiftedCamera camera;
    orvane::Kernel()->Scene()->SetActiveCamera(&camera);
    TestGraph alone;
    alone.add({0, 0, 0});
    OverlayPrograms programs;
    QObject owner;
    createPrograms(programs, &owner);
    gl().reset();
    drawOverlay(programs, alone[0]);
    orvane::Kernel()->Scene()->SetActiveCamera(nullptr);
    const QStringList calls =
        gl().calls.filter(QStringLiteral(" modelViewProj 1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 1"));
    EXPECT_EQ(calls.size(), 2) << "once for the strokes, once for the dot";
    destroyPrograms(programs);
}

TEST(OverlayCalls, allSixFieldsAreNullAtFirstAndAfterDestroying)
{
    OverlayPrograms programs;
    QObject owner;
    const auto count = [&programs] {
        return bool(programs.lines) + bool(programs.points) + bool(programs.linesMatrix)
               + bool(programs.pointsMatrix) + bool(programs.linesColor)
               + bool(programs.pointsColor);
    };
    EXPECT_EQ(sizeof(programs), 6 * sizeof(void *));
    EXPECT_EQ(count(), 0);
    createPrograms(programs, &owner);
    EXPECT_EQ(count(), 6);
    destroyPrograms(programs);
    EXPECT_EQ(count(), 0);
}

TEST_F(OverlayProgramsTest, areMadeOnTheFirstDrawAndKept)
{
    render();
    EXPECT_TRUE(gl().isIdle());
    EXPECT_EQ(cg().livePrograms, 0);
    tool->renderIntersectionsCheckBox(2);
    render();
    EXPECT_EQ(callsNamed("CreateFromFile"), 4);
    EXPECT_EQ(cg().livePrograms, 2);
    for (int i = 0; i < 3; ++i) {
        render();
        EXPECT_EQ(callsNamed("CreateFromFile"), 0);
    }
    tool->renderIntersectionsCheckBox(0);
    render();
    EXPECT_TRUE(gl().isIdle());
    EXPECT_EQ(cg().livePrograms, 2) << "for the life of the tool node";
}

TEST_F(OverlayProgramsTest, onlyTheLinesProgramIsEverBound)
{
    tool->renderIntersectionsCheckBox(2);
    for (int i = 0; i < 2; ++i) {
        render();
        EXPECT_EQ(gl().calls.filter(QLatin1String("cgGLBindProgram")),
                  QStringList{QStringLiteral("cgGLBindProgram %1").arg(name(Lines))});
        EXPECT_EQ(gl().calls.filter(QLatin1String("cgSetParameter")).filter(name(Points)),
                  QStringList());
    }
    EXPECT_EQ(callsNamed("Color4f"), 0);
}

TEST_F(OverlayProgramsTest, withoutTheLinesProgramTheColoursAreTheFixedPipelines)
{
    cg().missing = QStringList{QStringLiteral("lines_fragment")};
    tool->renderIntersectionsCheckBox(2);
    render();
    EXPECT_EQ(callsNamed("cgGLBindProgram"), 0);
    EXPECT_EQ(callsNamed("cgSetParameterValuefc"), 0);
    EXPECT_EQ(callsNamed("cgGLEnableProfile"), 2);
    EXPECT_EQ(callsNamed("cgGLUnbindProgram"), 2);
    EXPECT_EQ(gl().dots().size(), 4);
    EXPECT_EQ(gl().strokes().size(), 8);
    EXPECT_GT(callsNamed("Color4f"), 0);
}

TEST_F(OverlayProgramsTest, bothAreMadeAnewWhileEitherIsMissing)
{
    cg().missing = QStringList{QStringLiteral("points_fragment")};
    tool->renderIntersectionsCheckBox(2);
    for (int i = 0; i < 3; ++i) {
        render();
        EXPECT_EQ(callsNamed("CreateFromFile"), 4);
        EXPECT_EQ(callsNamed("cgGLBindProgram"), 1) << "the lines program is there";
        EXPECT_EQ(cg().livePrograms, 1);
    }
    cg().missing.clear();
    render();
    EXPECT_EQ(callsNamed("CreateFromFile"), 4);
    EXPECT_EQ(cg().livePrograms, 2);
    render();
    EXPECT_EQ(callsNamed("CreateFromFile"), 0);
}

TEST_F(OverlayProgramsTest, oneMissingPartMakesNoProgram)
{
    cg().missing = QStringList{QStringLiteral("vertex_shader")};
    tool->renderIntersectionsCheckBox(2);
    render();
    EXPECT_EQ(callsNamed("cgCombinePrograms"), 0);
    EXPECT_EQ(cg().livePrograms, 0);
    EXPECT_EQ(gl().dots().size(), 4);
}

TEST_F(OverlayProgramsTest, anEmptyListMakesNone)
{
    orvane::Kernel()->NewScene();
    createMesh();
    tool->renderIntersectionsCheckBox(2);
    render();
    EXPECT_TRUE(gl().isIdle());
}
