// SPDX-License-Identifier: MIT
#include "tests/host/desktop/viewport/viewporttest.h"
#include "tests/support/shapes.h"

#include <orvane/base/eventgate.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/kernel/viewport.h>

#include <QTest>
#include <qopengl.h>

#include <cstring>

using namespace orvane;

namespace {

const GLenum Multisample = 0x809D; // GL_MULTISAMPLE, which old headers have not

// What a plug-in does: follows the event and draws with the fixed pipeline.
class Overlay : public Node
{
public:
    Overlay() : gate(this, QStringLiteral("Draw"))
    {
        gate.Connect(&Kernel()->ViewPort()->EndRenderEvent(), false);
    }

    void OnEvent(const EventGate &) override
    {
        ++calls;
        depthTest = glIsEnabled(GL_DEPTH_TEST);
        multisample = glIsEnabled(Multisample);
        glGetFloatv(GL_PROJECTION_MATRIX, projection);
        glGetFloatv(GL_MODELVIEW_MATRIX, modelView);
        GLint number = -1;
        glGetIntegerv(GL_CURRENT_PROGRAM, &number);
        program = number;
        glGetIntegerv(GL_ARRAY_BUFFER_BINDING, &buffer);
        error = glGetError();
        glColor4f(1.0f, 0.0f, 1.0f, 1.0f);
        glBegin(GL_TRIANGLES);
        glVertex3f(0.2f, 0.2f, -0.2f);
        glVertex3f(0.8f, 0.2f, -0.2f);
        glVertex3f(0.2f, 0.8f, -0.2f);
        glEnd();
        if (leavesAMess) {
            glEnable(GL_DEPTH_TEST);
            glDepthFunc(GL_NEVER);
            glEnable(GL_BLEND);
            glLineWidth(7.0f);
            glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
        }
    }

    EventGate gate;
    int calls = 0;
    bool leavesAMess = false;
    GLboolean depthTest = GL_TRUE;
    GLboolean multisample = GL_TRUE;
    float projection[16] = {};
    float modelView[16] = {};
    GLint program = -1;
    GLint buffer = -1;
    GLenum error = GL_INVALID_ENUM;
};

class EndRender : public ViewportTest
{};

bool isSame(const float (&a)[16], const Matrix &b)
{
    return std::memcmp(a, b.Data(), sizeof(a)) == 0;
}

} // namespace

TEST_F(EndRender, theEventIsRaisedOnceAFrame)
{
    Overlay overlay;
    picture();
    EXPECT_EQ(overlay.calls, 1);
    picture();
    picture();
    EXPECT_EQ(overlay.calls, 3);
}

TEST_F(EndRender, theFixedPipelineSeesTheCameraAndNoDepthTest)
{
    addToScene(cube());
    lookAtAll(0.5, 0.3);
    Overlay overlay;
    for (bool orthographic : {false, true}) {
        view.Camera().SetOrthographic(orthographic);
        picture();
        EXPECT_FALSE(overlay.depthTest);
        EXPECT_TRUE(isSame(overlay.projection, view.Camera().ProjectionMatrix()));
        EXPECT_TRUE(isSame(overlay.modelView, view.Camera().ViewMatrix()));
        EXPECT_FALSE(overlay.multisample) << "points are to be smoothed";
        EXPECT_EQ(overlay.program, 0);
        EXPECT_EQ(overlay.buffer, 0);
        EXPECT_EQ(overlay.error, GLenum(GL_NO_ERROR)) << "of the frame before it";
    }
}

TEST_F(EndRender, theScenesActiveCameraIsTheViews)
{
    addToScene(cube());
    lookAtAll(0.5, 0.3);
    const SceneCamera *camera = Kernel()->Scene()->ActiveCamera();
    ASSERT_EQ(camera, &view.Camera());
    const Matrix product = view.Camera().ViewMatrix() * view.Camera().ProjectionMatrix();
    EXPECT_EQ(std::memcmp(camera->WorldToClip().Data(), product.Data(), 16 * sizeof(float)), 0);
    {
        ViewportWidget other;
        EXPECT_EQ(Kernel()->Scene()->ActiveCamera(), &other.Camera());
    }
    EXPECT_EQ(Kernel()->Scene()->ActiveCamera(), nullptr);
}

TEST_F(EndRender, whatAFollowerDrawsIsSeenWhereItStandsAndOverSurfaces)
{
    addToScene(singleQuad());
    lookAtAll();
    Overlay overlay;
    const QImage image = picture();
    EXPECT_EQ(colourAt(image, {0.3f, 0.3f, -0.2f}), QColor(255, 0, 255));
    EXPECT_NE(colourAt(image, {0.7f, 0.7f, 0.0f}), QColor(255, 0, 255));
}

TEST_F(EndRender, aFollowerThatLeavesAMessSpoilsNoLaterFrame)
{
    addToScene(cube());
    addCurve({{-1, 0, 0.6f}, {1, 0, 0.6f}});
    setOption(&orvane::ViewOptions::showGrid, true);
    lookAtAll(0.5, 0.3);
    Overlay overlay;
    const QImage before = picture();
    overlay.leavesAMess = true;
    picture();
    EXPECT_EQ(differentPixels(picture(), before), 0);
}

TEST_F(EndRender, theKernelAsksForARepaintThroughItsView)
{
    Overlay overlay;
    picture();
    const int calls = overlay.calls;
    Kernel()->ViewPort()->Redraw(RedrawAll, 0, 0, 0, 0);
    for (int i = 0; i < 100 && overlay.calls == calls; ++i)
        QTest::qWait(10);
    EXPECT_EQ(overlay.calls, calls + 1);
}

TEST_F(EndRender, theKernelHasNoViewOfTheDesktopOnceTheWidgetIsGone)
{
    {
        ViewportWidget other;
        EXPECT_NE(dynamic_cast<HostViewPort *>(Kernel()->ViewPort()), nullptr);
    }
    EXPECT_EQ(dynamic_cast<HostViewPort *>(Kernel()->ViewPort()), nullptr);
}
