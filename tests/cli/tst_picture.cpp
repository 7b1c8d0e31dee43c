// SPDX-License-Identifier: MIT
#include "cli/picture.h"
#include "cli/picturescene.h"
#include "cli/shading.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <QPoint>
#include <QScopedPointer>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

using orvane::Vector;

namespace {

using MeshPointer = QScopedPointer<orvane::SubdivisionLevel>;

const QSize Small(400, 300);
const int LegendHeight = 35; // of a small picture, generously
const int DarkestFace = 80;  // lightness: edges are darker
const float NotANumber = std::numeric_limits<float>::quiet_NaN();
const float Infinite = std::numeric_limits<float>::infinity();

bool hasHueOf(const QColor &pixel, const QColor &colour)
{
    const auto parts = std::minmax({pixel.red(), pixel.green(), pixel.blue()});
    const int turn = std::abs(pixel.hslHue() - colour.hslHue());
    return parts.second - parts.first > 40 && std::min(turn, 360 - turn) < 12;
}

bool isFace(const QColor &pixel, CornerClass corners)
{
    return hasHueOf(pixel, cornerColour(corners));
}

int countAboveLegend(const QImage &picture, const QColor &colour)
{
    int count = 0;
    for (int y = 0; y < picture.height() - LegendHeight; ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += hasHueOf(picture.pixelColor(x, y), colour);
    }
    return count;
}

int countFace(const QImage &picture, CornerClass corners)
{
    return countAboveLegend(picture, cornerColour(corners));
}

// A small picture that knows where points of the scene landed.
struct Shown
{
    explicit Shown(const PictureContent &content)
        : picture(renderPicture(content, Small)), camera(goodCamera(PictureScene(content), Small))
    {}

    QPoint pixel(const Vector &point) const
    {
        const ScreenPoint screen = camera.project(point);
        return QPoint(int(screen.x), int(screen.y));
    }
    QColor at(const Vector &point) const { return picture.pixelColor(pixel(point)); }

    QImage picture;
    Camera camera;
};

PictureContent newMesh(const orvane::Mesh *mesh)
{
    PictureContent content;
    content.meshes.append(mesh);
    return content;
}

// A round polygon of many corners that faces along z.
orvane::SubdivisionLevel *disc(float radius, float z, bool facesUp)
{
    const int corners = 8;
    orvane::SubdivisionLevel *mesh = polygonOfFakes(corners);
    for (int i = 0; i < corners; ++i) {
        const Vector p = mesh->VertexPosition(i) * radius;
        mesh->SetVertexPosition(i, {p.x, facesUp ? p.y : -p.y, z});
    }
    return mesh;
}

// A stroke across the side of a cube of side 2 that faces along z.
void drawAcross(orvane::OrvaneCurve &curve, float z)
{
    for (int i = 0; i <= 20; ++i)
        curve.AppendPoint(orvane::CurvePoint(Vector(-0.6f + 0.06f * i, 0.1f, z)));
}

} // namespace

TEST(Picture, aFaceHasTheColourOfItsCorners)
{
    const QVector<QPair<int, CornerClass>> rows{
        {3, Triangle}, {4, Quad}, {5, Pentagon}, {6, ManyCorners}, {12, ManyCorners}};
    for (const auto &row : rows) {
        const MeshPointer mesh(polygonOfFakes(row.first));
        const QImage picture = renderPicture(newMesh(mesh.data()), Small);
        EXPECT_GT(countFace(picture, row.second), 15000) << row.first << " corners";
        for (int other = 0; other < CornerClassCount; ++other) {
            const bool isShown = countFace(picture, CornerClass(other)) > 0;
            EXPECT_EQ(isShown, other == row.second) << row.first << " corners";
        }
    }
}

TEST(Picture, aFaceFillsItsOutlineAndNoMore)
{
    const MeshPointer mesh(singleQuad(2.0f));
    const Shown shown(newMesh(mesh.data()));
    const QRect beside = QRect(QPoint(), Small).adjusted(0, 0, 0, -LegendHeight);
    for (float x = -0.45f; x < 2.5f; x += 0.1f) {
        for (float y = -0.45f; y < 2.5f; y += 0.1f) {
            if (!beside.contains(shown.pixel({x, y, 0.0f})))
                continue;
            const bool isInside = x > 0.0f && x < 2.0f && y > 0.0f && y < 2.0f;
            EXPECT_EQ(isFace(shown.at({x, y, 0.0f}), Quad), isInside) << x << ", " << y;
        }
    }
}

TEST(Picture, edgesBetweenFakeTrianglesAreNotDrawn)
{
    const MeshPointer mesh(polygonOfFakes(6));
    const Shown shown(newMesh(mesh.data()));
    const Vector from = mesh->VertexPosition(0);
    for (int corner : {2, 3, 4}) {
        const Vector to = mesh->VertexPosition(corner);
        for (float t = 0.1f; t < 0.9f; t += 0.02f) {
            const QColor pixel = shown.at(from + (to - from) * t);
            EXPECT_TRUE(isFace(pixel, ManyCorners)) << corner << " " << t;
            EXPECT_GT(pixel.lightness(), DarkestFace) << corner << " " << t;
        }
    }
    const Vector side = (from + mesh->VertexPosition(1)) / 2.0f;
    EXPECT_LT(shown.at(side).lightness(), DarkestFace);
}

TEST(Picture, theNearerFaceHidesTheFartherInEitherOrder)
{
    const MeshPointer far(gridOfQuads(4, 4));
    const MeshPointer near(disc(0.5f, 0.5f, true));
    for (int vertex = 0; vertex < near->VertexCount(); ++vertex)
        near->SetVertexPosition(vertex, near->VertexPosition(vertex) + Vector(2.0f, 2.0f, 0.0f));
    PictureContent content = newMesh(far.data());
    content.meshes.append(near.data());
    const QColor middle = Shown(content).at({2.1f, 2.1f, 0.5f});
    EXPECT_TRUE(isFace(middle, ManyCorners));
    std::reverse(content.meshes.begin(), content.meshes.end());
    EXPECT_EQ(Shown(content).at({2.1f, 2.1f, 0.5f}), middle);
}

TEST(Picture, newFacesJustBelowTheSourceAreSeenWhole)
{
    const MeshPointer source(cube(2.0f));
    const MeshPointer face(disc(0.6f, 0.95f, true));
    PictureContent content = newMesh(face.data());
    content.source = source.data();
    const Shown shown(content);
    for (float x : {-0.4f, 0.0f, 0.4f}) {
        for (float y : {-0.3f, 0.05f, 0.3f})
            EXPECT_TRUE(isFace(shown.at({x, y, 0.95f}), ManyCorners)) << x << ", " << y;
    }
}

TEST(Picture, newFacesDeepInsideTheSourceAreHidden)
{
    const MeshPointer source(cube(2.0f));
    const MeshPointer face(disc(0.5f, 0.0f, true));
    PictureContent content = newMesh(face.data());
    content.source = source.data();
    EXPECT_EQ(countFace(renderPicture(content, Small), ManyCorners), 0);
}

TEST(Picture, newFacesOnTheFarSideOfTheSourceAreHidden)
{
    const MeshPointer source(cube(2.0f));
    const MeshPointer front(cube(1.99f));
    const MeshPointer back(disc(0.3f, -1.01f, false));
    PictureContent content = newMesh(front.data());
    content.meshes.append(back.data());
    content.source = source.data();
    const QImage picture = renderPicture(content, Small);
    EXPECT_GT(countFace(picture, Quad), 5000);
    EXPECT_EQ(countFace(picture, ManyCorners), 0);
}

TEST(Picture, theFarSideDoesNotShowThroughAThinWall)
{
    // One thirtieth of the diagonal thick: less than a new face may lie below its source.
    const MeshPointer source(cube(2.0f));
    for (int vertex = 0; vertex < source->VertexCount(); ++vertex) {
        const Vector p = source->VertexPosition(vertex);
        source->SetVertexPosition(vertex, {p.x, p.y, p.z * 0.05f});
    }
    const MeshPointer front(disc(0.9f, 0.05f, true));
    const MeshPointer back(gridOfQuads(1, 1));
    back->SetQuadIndex(0, 1, 2); // turned about to face away
    back->SetQuadIndex(0, 2, 3);
    back->SetQuadIndex(0, 3, 1);
    for (int vertex = 0; vertex < back->VertexCount(); ++vertex) {
        const Vector p = back->VertexPosition(vertex);
        back->SetVertexPosition(vertex, {p.x * 1.8f - 0.9f, p.y * 1.8f - 0.9f, -0.05f});
    }
    PictureContent content = newMesh(front.data());
    content.meshes.append(back.data());
    content.source = source.data();
    const QImage picture = renderPicture(content, Small);
    EXPECT_GT(countFace(picture, ManyCorners), 5000);
    EXPECT_LT(countFace(picture, Quad), 20);
}

TEST(Picture, newFacesThatCutThroughAThinWallAreSeen)
{
    const MeshPointer source(cube(2.0f));
    for (int vertex = 0; vertex < source->VertexCount(); ++vertex) {
        const Vector p = source->VertexPosition(vertex);
        source->SetVertexPosition(vertex, {p.x, p.y, p.z * 0.02f});
    }
    const MeshPointer face(disc(0.8f, -0.03f, true));
    PictureContent content = newMesh(face.data());
    content.source = source.data();
    EXPECT_TRUE(isFace(Shown(content).at({0.1f, 0.2f, -0.03f}), ManyCorners));
}

TEST(Picture, curvesShowOnTheSourceAndNotBehindIt)
{
    const MeshPointer source(cube(2.0f));
    for (bool isInFront : {true, false}) {
        orvane::OrvaneCurve curve;
        drawAcross(curve, isInFront ? 1.0f : -1.0f);
        PictureContent content;
        content.source = source.data();
        content.curves.append(&curve);
        const int seen = countAboveLegend(renderPicture(content, Small), PictureColour::Curve);
        if (isInFront)
            EXPECT_GT(seen, 50);
        else
            EXPECT_EQ(seen, 0);
    }
}

TEST(Picture, curvesShowOverNewFacesThatRiseAboveThem)
{
    const MeshPointer source(cube(2.0f));
    const MeshPointer raised(disc(0.9f, 1.15f, true));
    orvane::OrvaneCurve curve;
    drawAcross(curve, 1.0f);
    PictureContent content = newMesh(raised.data());
    content.source = source.data();
    content.curves.append(&curve);
    EXPECT_GT(countAboveLegend(renderPicture(content, Small), PictureColour::Curve), 50);
}

TEST(Picture, hiddenCurvesAndMissingPartsAreLeftOut)
{
    const MeshPointer source(cube(2.0f));
    orvane::OrvaneCurve hidden;
    drawAcross(hidden, 1.0f);
    hidden.SetHidden(true);
    PictureContent plain;
    plain.source = source.data();
    PictureContent content = plain;
    content.curves = {nullptr, &hidden};
    content.meshes = {nullptr};
    EXPECT_EQ(renderPicture(content, Small), renderPicture(plain, Small));
}

TEST(Picture, aCrossingIsALightDotWithADarkRim)
{
    const MeshPointer source(cube(2.0f));
    PictureContent content;
    content.source = source.data();
    content.crossings.append(Vector(0.1f, 0.2f, 1.0f));
    const QSize size(1600, 1200);
    const QImage picture = renderPicture(content, size);
    const ScreenPoint at = goodCamera(PictureScene(content), size).project(content.crossings[0]);
    EXPECT_GT(picture.pixelColor(int(at.x), int(at.y)).lightness(), 235);
    EXPECT_LT(picture.pixelColor(int(at.x - 2.1f), int(at.y)).lightness(), 110);
    EXPECT_GT(picture.pixelColor(int(at.x - 5.0f), int(at.y)).lightness(), 110);
}

TEST(Picture, theSameContentGivesTheSameBytes)
{
    const MeshPointer source(sphere(20, 30));
    const MeshPointer mesh(sphere(8, 12));
    PictureContent content = newMesh(mesh.data());
    content.source = source.data();
    const QImage first = renderPicture(content, Small);
    EXPECT_EQ(renderPicture(content, Small), first);
    EXPECT_NE(renderPicture(PictureContent(), Small), first);
}

TEST(Picture, withNothingToShowThereIsBackgroundAndLegend)
{
    const QImage picture = renderPicture(PictureContent(), Small);
    ASSERT_EQ(picture.size(), Small);
    int textRows = 0;
    for (int y = 0; y < picture.height(); ++y) {
        bool isEven = true;
        for (int x = 1; x < picture.width(); ++x)
            isEven = isEven && picture.pixel(x, y) == picture.pixel(0, y);
        EXPECT_TRUE(isEven || y >= picture.height() - LegendHeight) << y;
        textRows += !isEven;
    }
    EXPECT_GE(textRows, 4);
    EXPECT_GT(picture.pixelColor(0, 0).lightness(), picture.pixelColor(0, 299).lightness());
}

TEST(Picture, whatIsNotFiniteIsLeftOut)
{
    const MeshPointer broken(singleQuad());
    for (float bad : {NotANumber, Infinite, -Infinite, 1e30f}) {
        broken->SetVertexPosition(2, {bad, 1.0f, 0.0f});
        orvane::OrvaneCurve curve;
        curve.AppendPoint(orvane::CurvePoint(Vector(0.0f, bad, 0.0f)));
        PictureContent content = newMesh(broken.data());
        content.source = broken.data();
        content.curves.append(&curve);
        content.crossings.append(Vector(0.0f, 0.0f, bad));
        EXPECT_EQ(renderPicture(content, Small), renderPicture(PictureContent(), Small)) << bad;
    }
}

TEST(Picture, soundFacesShowBesideBrokenOnes)
{
    const MeshPointer mesh(gridOfQuads(2, 2));
    mesh->SetVertexPosition(0, {NotANumber, 0.0f, 0.0f});
    const Shown shown(newMesh(mesh.data()));
    EXPECT_FALSE(isFace(shown.at({0.6f, 0.6f, 0.0f}), Quad));
    for (const Vector &middle : {Vector(1.6f, 0.6f, 0), Vector(0.6f, 1.6f, 0)})
        EXPECT_TRUE(isFace(shown.at(middle), Quad));
}

TEST(Picture, facesWithoutExtentAreHarmless)
{
    const MeshPointer mesh(gridOfQuads(2, 2));
    for (int vertex = 0; vertex < mesh->VertexCount(); ++vertex)
        mesh->SetVertexPosition(vertex, {3.0f, 4.0f, 5.0f});
    EXPECT_EQ(renderPicture(newMesh(mesh.data()), Small).size(), Small);
}

TEST(Picture, everySizeIsHeldTo)
{
    const MeshPointer mesh(cube());
    const PictureContent content = newMesh(mesh.data());
    for (const QSize &size : {QSize(1, 1), QSize(7, 300), QSize(640, 11), QSize(1600, 1200)})
        EXPECT_EQ(renderPicture(content, size).size(), size);
    EXPECT_TRUE(renderPicture(content, QSize(0, 100)).isNull());
    EXPECT_TRUE(renderPicture(content, QSize(-5, -5)).isNull());
}
