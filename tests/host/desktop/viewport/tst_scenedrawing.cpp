// SPDX-License-Identifier: MIT
#include "host/desktop/view/curvedrawdata.h"
#include "host/desktop/viewport/viewportwidget.h"
#include "tests/host/desktop/viewport/viewporttest.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>
#include <orvane/kernel/scene.h>

#include <QLabel>
#include <QMainWindow>
#include <QTest>

using namespace orvane;

namespace {

class SceneDrawing : public ViewportTest
{};

// Three triangles along one edge: that edge has too many faces.
SubdivisionLevel *threeWings()
{
    return meshOf(Topology::Triangles, {{0, -1, 0}, {0, 1, 0}, {1, 0, 0}, {-1, 0, 0}, {0, 0, 1}},
                  {0, 2, 1, 0, 1, 3, 0, 1, 4});
}

bool isRed(const QColor &colour)
{
    return colour.red() > 200 && colour.green() < 110 && colour.blue() < 110;
}

bool isCurveColour(const QColor &colour)
{
    return difference(colour, curveColour(CurveLook::Normal)) < 60;
}

// Blue, and no edge.
bool isNewFace(const QColor &colour)
{
    return colour.blue() > colour.red() + 15 && colour.lightness() > 60;
}

const int MostBlended = 100; // pixels, half covered by a rim

// The middle of the rim in the first quarter, and the point behind it.
const Vector NearOnRing(0.0f, -1.0f, 0.0f);
const Vector FarOnRing(0.0f, 1.0f, 0.0f);

} // namespace

TEST_F(SceneDrawing, aMeshIsSeenWhereItStandsAndNowhereElse)
{
    const QImage empty = picture();
    addToScene(singleQuad(), QStringLiteral("Quad"));
    lookAtAll();
    const QImage image = picture();
    EXPECT_GT(difference(colourAt(image, {0.5f, 0.5f, 0}), colourAt(empty, {0.5f, 0.5f, 0})), 60);
    EXPECT_EQ(difference(colourAt(image, {1.1f, 0.5f, 0}), colourAt(empty, {1.1f, 0.5f, 0})), 0);
}

TEST_F(SceneDrawing, aHiddenMeshLeavesNoPixel)
{
    const QImage empty = picture();
    Geometry *geometry = addToScene(cube());
    lookAtAll();
    EXPECT_GT(differentPixels(picture(), empty), 5000);
    geometry->SetHidden(true);
    EXPECT_EQ(differentPixels(picture(), empty), 0);
}

TEST_F(SceneDrawing, aHiddenCurveLeavesNoPixel)
{
    const QImage empty = picture();
    OrvaneCurve *curve = addCurve({{-1, 0, 0}, {1, 0, 0}});
    lookAtAll();
    EXPECT_TRUE(isCurveColour(colourAt(picture(), {0.3f, 0, 0})));
    curve->SetHidden(true);
    EXPECT_EQ(differentPixels(picture(), empty), 0);
}

TEST_F(SceneDrawing, aMeshThatMovesAsAWholeIsSeenAtItsNewPlace)
{
    const QImage empty = picture();
    Geometry *geometry = addToScene(singleQuad());
    lookAtAll();
    geometry->Placement()->SetWorldMatrix(Matrix::Translation(Vector(1.0f, 0, 0)));
    const QImage image = picture();
    EXPECT_EQ(difference(colourAt(image, {0.5f, 0.5f, 0}), colourAt(empty, {0.5f, 0.5f, 0})), 0);
    EXPECT_GT(difference(colourAt(image, {1.2f, 0.5f, 0}), colourAt(empty, {1.2f, 0.5f, 0})), 60);
}

TEST_F(SceneDrawing, theWireframeHasNoEdgeInsideAPolygon)
{
    addToScene(polygonOfFakes(6));
    lookAtAll();
    const QImage plain = picture();
    setOption(&orvane::ViewOptions::wireframe, true);
    const QImage wired = picture();
    const QVector<Vector> corners = circle(1.0f, 0.0f, 6);
    for (int i = 0; i < 6; ++i) {
        // A hair inside: the outer half of the line lies over the background.
        const Vector onEdge = (corners[i] + corners[(i + 1) % 6]) * 0.499f;
        EXPECT_GT(difference(colourAt(wired, onEdge), colourAt(plain, onEdge)), 20) << i;
    }
    for (int i = 2; i < 5; ++i) {
        const Vector onFan = (corners[0] + corners[i]) * 0.5f;
        EXPECT_EQ(difference(colourAt(wired, onFan), colourAt(plain, onFan)), 0) << i;
    }
}

TEST_F(SceneDrawing, aQuadHasNoDiagonalInTheWireframe)
{
    addToScene(singleQuad(2.0f));
    lookAtAll();
    const QImage plain = picture();
    setOption(&orvane::ViewOptions::wireframe, true);
    const QImage wired = picture();
    for (float t = 0.1f; t < 0.95f; t += 0.1f) {
        const Vector rising(2.0f * t, 2.0f * t, 0.0f);
        const Vector falling(2.0f * t, 2.0f - 2.0f * t, 0.0f);
        EXPECT_EQ(difference(colourAt(wired, rising), colourAt(plain, rising)), 0);
        EXPECT_EQ(difference(colourAt(wired, falling), colourAt(plain, falling)), 0);
    }
    EXPECT_GT(differentPixels(wired, plain), 400);
}

TEST_F(SceneDrawing, aCurveOnASphereIsSeenInFrontAndHiddenBehind)
{
    addToScene(sphere(48, 96), QStringLiteral("Ball"), Matrix());
    addCurve(circle(1.0f, 0.0f, 96), true);
    view.Look(StandardView::Bottom);
    view.Camera().Orbit(0.0, 0.4);
    view.FrameAll();
    const bool nearIsInFront = view.Camera().DepthOf(NearOnRing) < view.Camera().DepthOf(FarOnRing);
    const Vector front = nearIsInFront ? NearOnRing : FarOnRing;
    for (bool orthographic : {false, true}) {
        view.Camera().SetOrthographic(orthographic);
        const QImage image = picture();
        EXPECT_TRUE(isCurveColour(colourAt(image, front)));
        EXPECT_FALSE(isCurveColour(colourAt(image, front * -1.0f)));
    }
}

TEST_F(SceneDrawing, aCurveOnASphereIsUnbrokenFromNearAndFar)
{
    addToScene(sphere(48, 96));
    addCurve(circle(1.0f, 0.0f, 96), true);
    view.Look(StandardView::Front);
    view.Look(StandardView::Top);
    view.Camera().Orbit(0.0, -0.5);
    view.FrameAll();
    const Vector toEye = view.Camera().BackAxis();
    for (double zoom : {1.0, 0.5, 4.0}) {
        view.Camera().Zoom(zoom);
        const QImage image = picture();
        int seen = 0;
        const QVector<Vector> places = circle(1.0f, 0.0f, 96);
        for (const Vector &place : places) {
            const QPoint pixel = pixelOf(place);
            if (Dot(place, toEye) < 0.5f || !image.rect().adjusted(2, 2, -2, -2).contains(pixel))
                continue;
            ++seen;
            EXPECT_TRUE(isCurveColour(image.pixelColor(pixel)))
                << "at " << place.x << " " << place.y << " zoom " << zoom;
        }
        EXPECT_GT(seen, 5);
    }
}

TEST_F(SceneDrawing, xRayShowsACurveBehindTheSurfaceFaintly)
{
    addToScene(cube(2.0f));
    addCurve({{-1, 0, -1.5f}, {1, 0, -1.5f}});
    lookAtAll();
    const QImage opaque = picture();
    EXPECT_FALSE(isCurveColour(colourAt(opaque, {0.2f, 0, -1.5f})));
    setOption(&orvane::ViewOptions::xRay, true);
    const QImage image = picture();
    const QColor behind = colourAt(image, {0.2f, 0, -1.5f});
    const QColor beside = colourAt(image, {0.2f, 0.2f, -1.5f});
    EXPECT_GT(difference(behind, beside), 25);
    EXPECT_TRUE(isNearer(behind, curveColour(CurveLook::Normal), QColor(196, 188, 178)));
    EXPECT_GT(difference(colourAt(opaque, {0, 0.5f, 1}), colourAt(image, {0, 0.5f, 1})), 40);
}

TEST_F(SceneDrawing, selectedAndHoveredCurvesStandOut)
{
    OrvaneCurve *curve = addCurve({{-1, 0, 0}, {1, 0, 0}});
    lookAtAll();
    curve->SetSelected(true);
    EXPECT_LT(difference(colourAt(picture(), {0.3f, 0, 0}), curveColour(CurveLook::Selected)), 40);
    view.SetHighlight([curve] { return curve; });
    EXPECT_LT(difference(colourAt(picture(), {0.3f, 0, 0}), curveColour(CurveLook::Hovered)), 40);
}

TEST_F(SceneDrawing, pointsOfCurvesAreDrawnOnlyWhenAskedFor)
{
    addCurve({{-1, 0, 0}, {0, 0, 0}, {1, 0, 0}});
    lookAtAll();
    const QPoint aside = pixelOf({0, 0, 0}) + QPoint(0, -2);
    const QColor without = picture().pixelColor(aside);
    setOption(&orvane::ViewOptions::curvePoints, true);
    EXPECT_GT(difference(picture().pixelColor(aside), without), 60);
}

TEST_F(SceneDrawing, theGridLiesOnTheGroundBehindTheMesh)
{
    addToScene(cube(2.0f));
    lookAtAll(0.0, 0.5);
    view.Camera().Zoom(1.8);
    const QImage without = picture();
    setOption(&orvane::ViewOptions::showGrid, true);
    const QImage with = picture();
    // The axes of the ground, a bit away from the cube; the ground is at its bottom.
    EXPECT_GT(difference(colourAt(with, {1.6f, -1, 0}), colourAt(without, {1.6f, -1, 0})), 20);
    EXPECT_GT(difference(colourAt(with, {0, -1, 1.7f}), colourAt(without, {0, -1, 1.7f})), 20);
    EXPECT_EQ(difference(colourAt(with, {0, 0, 1}), colourAt(without, {0, 0, 1})), 0);
    EXPECT_EQ(difference(colourAt(with, {0, 1, 0}), colourAt(without, {0, 1, 0})), 0);
}

TEST_F(SceneDrawing, theAxesStandInTheUpperRightCorner)
{
    lookAtAll();
    const QImage without = picture();
    setOption(&orvane::ViewOptions::showGizmo, true);
    const QImage with = picture();
    const QPoint middle(view.width() - 62, 62);
    const QColor right = with.pixelColor(middle + QPoint(20, 0));
    const QColor above = with.pixelColor(middle + QPoint(0, -20));
    EXPECT_GT(right.red(), right.green() + 60) << "x points to the right";
    EXPECT_GT(above.green(), above.red() + 30) << "y points up";
    view.Look(StandardView::Right);
    const QColor turned = picture().pixelColor(middle + QPoint(-20, 0));
    EXPECT_GT(turned.blue(), turned.red() + 60) << "from the right, z points to the left";
    EXPECT_EQ(differentPixels(without.copy(0, 150, 400, 150), with.copy(0, 150, 400, 150)), 0);
}

TEST_F(SceneDrawing, faultsAreRedWhileThePreferenceIsOn)
{
    addToScene(threeWings());
    lookAtAll(0.3, 0.2);
    EXPECT_FALSE(isRed(colourAt(picture(), {0, 0.3f, 0})));
    Kernel()->Preferences()->renderMeshFaults.SetValue(true);
    EXPECT_TRUE(isRed(colourAt(picture(), {0, 0.3f, 0})));
    Kernel()->Preferences()->renderMeshFaults.SetValue(false);
    EXPECT_FALSE(isRed(colourAt(picture(), {0, 0.3f, 0})));
}

TEST_F(SceneDrawing, aFaultThatIsMendedIsNoLongerDrawn)
{
    SubdivisionLevel *mesh = threeWings();
    addToScene(mesh);
    lookAtAll(0.3, 0.2);
    Kernel()->Preferences()->renderMeshFaults.SetValue(true);
    EXPECT_TRUE(isRed(colourAt(picture(), {0, 0.3f, 0})));
    mesh->SetFaceCount(2);
    mesh->RecomputeNormals(false);
    mesh->Update(true, 0);
    EXPECT_FALSE(isRed(colourAt(picture(), {0, 0.3f, 0})));
}

TEST_F(SceneDrawing, aNewMeshStandsOutAndItsSourceStepsBack)
{
    addToScene(sphere(64, 128), QStringLiteral("Source"));
    lookAtAll();
    const Vector beside(-0.5f, 0.5f, 0.7071f);
    const QColor before = colourAt(picture(), beside);
    // A coarse quad on the front of the ball: its middle runs below the surface.
    const float a = 0.25f;
    const float z = std::sqrt(1.0f - 2.0f * a * a);
    Geometry *mesh = addToScene(
        meshOf(Topology::Quads, {{-a, -a, z}, {a, -a, z}, {a, a, z}, {-a, a, z}}, {0, 1, 2, 3}),
        QStringLiteral("New"));
    Kernel()->Scene()->SetActiveGeometry(mesh);
    const QImage image = picture();
    EXPECT_LT(colourAt(image, beside).lightness(), before.lightness() - 25);
    const QColor face = colourAt(image, {0.1f, 0.05f, z});
    EXPECT_GT(face.blue(), face.red() + 15) << "the face is before its source";
    const QColor edge = colourAt(image, {a, 0.0f, z});
    EXPECT_LT(edge.lightness(), face.lightness() - 60);
    setOption(&orvane::ViewOptions::dimSource, false);
    EXPECT_LT(difference(colourAt(picture(), beside), before), 3);
}

TEST_F(SceneDrawing, aRoundSourceDoesNotPokeThroughACoarseMeshOnIt)
{
    Geometry *source = addToScene(sphere(64, 128), QStringLiteral("Source"));
    Geometry *mesh = addToScene(sphere(8, 16), QStringLiteral("New"));
    Kernel()->Scene()->SetActiveGeometry(mesh);
    lookAtAll(0.4, 0.3);
    const QImage both = picture();
    source->SetHidden(true);
    const QImage alone = picture();
    int faces = 0;
    int poking = 0;
    for (int y = 0; y < alone.height(); ++y) {
        for (int x = 0; x < alone.width(); ++x) {
            if (!isNewFace(alone.pixelColor(x, y)))
                continue;
            ++faces;
            poking += isNewFace(both.pixelColor(x, y)) ? 0 : 1;
        }
    }
    EXPECT_GT(faces, 10000);
    EXPECT_LT(poking, MostBlended);
}

TEST_F(SceneDrawing, aSelectedMeshIsTinted)
{
    Geometry *geometry = addToScene(singleQuad());
    lookAtAll();
    const QColor before = colourAt(picture(), {0.5f, 0.5f, 0});
    geometry->SetSelected(true);
    const QColor after = colourAt(picture(), {0.5f, 0.5f, 0});
    EXPECT_GT(after.red() - after.blue(), before.red() - before.blue() + 30);
}

TEST_F(SceneDrawing, anotherModelBesideTheFirstIsNoNewMesh)
{
    addToScene(sphere(32, 64), QStringLiteral("First"));
    Geometry *second =
        addToScene(cube(), QStringLiteral("Second"), Matrix::Translation(Vector(3.0f, 0, 0)));
    lookAtAll();
    const QImage before = picture();
    Kernel()->Scene()->SetActiveGeometry(second);
    EXPECT_EQ(differentPixels(picture(), before), 0);
}

TEST_F(SceneDrawing, theSurfaceLooksAnotherWayInEachShading)
{
    addToScene(sphere(6, 8));
    lookAtAll(0.3, 0.3);
    const QImage smooth = picture();
    setOption(&orvane::ViewOptions::shading, Shading::Flat);
    const QImage flat = picture();
    setOption(&orvane::ViewOptions::shading, Shading::Matcap);
    const QImage matcap = picture();
    EXPECT_GT(differentPixels(smooth, flat), 3000);
    EXPECT_GT(differentPixels(smooth, matcap), 10000);
    EXPECT_GT(differentPixels(flat, matcap), 10000);
}

TEST_F(SceneDrawing, aPolygonOfFakesIsOneFaceInFlatShading)
{
    addToScene(polygonOfFakes(6));
    lookAtAll(0.2, 0.2);
    setOption(&orvane::ViewOptions::shading, Shading::Flat);
    const QImage image = picture();
    EXPECT_LT(difference(colourAt(image, {0.4f, 0.3f, 0}), colourAt(image, {-0.4f, -0.3f, 0})), 3);
}

TEST_F(SceneDrawing, theInnerSideIsDarkerAlsoWhereThePlacementMirrors)
{
    Geometry *geometry = addToScene(singleQuad());
    lookAtAll();
    const int outer = colourAt(picture(), {0.5f, 0.5f, 0}).lightness();
    geometry->Placement()->SetWorldMatrix(Matrix::Scaling(Vector(-1, 1, 1))
                                          * Matrix::Translation(Vector(1, 0, 0)));
    EXPECT_NEAR(colourAt(picture(), {0.5f, 0.5f, 0}).lightness(), outer, 3);
    geometry->Placement()->SetWorldMatrix(Matrix());
    view.Look(StandardView::Back);
    const int inner = colourAt(picture(), {0.5f, 0.5f, 0}).lightness();
    EXPECT_LT(inner, outer - 20);
    EXPECT_GT(inner, 25) << "it is lit, too";
}

TEST_F(SceneDrawing, theHeadsUpLineCanBeHidden)
{
    const auto *label = view.findChild<QLabel *>(QStringLiteral("viewHud"));
    ASSERT_TRUE(label);
    EXPECT_FALSE(label->isVisible());
    view.SetHudText(QStringLiteral("head.obj"));
    EXPECT_TRUE(label->isVisible());
    setOption(&orvane::ViewOptions::showHud, false);
    EXPECT_FALSE(label->isVisible());
}

TEST_F(SceneDrawing, theViewStillDrawsInsideAnotherWindow)
{
    addToScene(singleQuad());
    lookAtAll();
    const QColor before = colourAt(picture(), {0.5f, 0.5f, 0});
    {
        QMainWindow window;
        view.setParent(&window);
        view.setGeometry(0, 0, 400, 300);
        window.resize(400, 300);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        view.show();
        lookAtAll();
        EXPECT_LT(difference(colourAt(picture(), {0.5f, 0.5f, 0}), before), 3);
        view.setParent(nullptr);
    }
    view.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
    lookAtAll();
    EXPECT_LT(difference(colourAt(picture(), {0.5f, 0.5f, 0}), before), 3);
}

TEST_F(SceneDrawing, thePictureIsOpaqueEverywhere)
{
    addToScene(cube());
    setOption(&orvane::ViewOptions::xRay, true);
    setOption(&orvane::ViewOptions::showGrid, true);
    setOption(&orvane::ViewOptions::showGizmo, true);
    lookAtAll(0.4, 0.4);
    const QImage image = picture().convertToFormat(QImage::Format_ARGB32);
    int seeThrough = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            seeThrough += qAlpha(image.pixel(x, y)) != 255;
    }
    EXPECT_EQ(seeThrough, 0);
}

TEST_F(SceneDrawing, framingTheSelectionShowsItLarge)
{
    addToScene(cube(10.0f));
    Geometry *small =
        addToScene(cube(), QStringLiteral("Small"), Matrix::Translation(Vector(20, 0, 0)));
    lookAtAll();
    EXPECT_FALSE(view.rect().contains(pixelOf({-50, 0, 0})));
    small->SetSelected(true);
    view.FrameSelection();
    const QPoint middle = pixelOf({20, 0, 0});
    EXPECT_LT((middle - view.rect().center()).manhattanLength(), 4);
    EXPECT_GT(pixelOf({20.5f, 0, 0.5f}).x() - middle.x(), 80);
    view.ToggleOrthographic();
    EXPECT_TRUE(view.Camera().IsOrthographic());
}
