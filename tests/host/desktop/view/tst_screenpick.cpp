// SPDX-License-Identifier: MIT
#include "host/desktop/view/screenpick.h"

#include "tests/host/desktop/view/scenecamera.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/geometry/surfacelocator.h>

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <cmath>
#include <iostream>
#include <memory>
#include <vector>

using orvane::Camera;
using orvane::CurveHit;
using orvane::CurvePoint;
using orvane::Inside;
using orvane::Matrix;
using orvane::Mesh;
using orvane::OrvaneCurve;
using orvane::ScreenPoint;
using orvane::SubdivisionLevel;
using orvane::SurfaceHit;
using orvane::SurfaceList;
using orvane::SurfaceLocator;
using orvane::Topology;
using orvane::Vector;

namespace {

using CurveList = QVector<const OrvaneCurve *>;

const auto Box = boxBetween({-1, -1, -1}, {1, 1, 1});
const int Samples = 400; // of a stretch

class ScreenPick : public SceneCleaner
{
protected:
    const OrvaneCurve *add(const QVector<Vector> &places)
    {
        m_owned.push_back(std::make_unique<OrvaneCurve>());
        for (const Vector &place : places)
            m_owned.back()->AppendPoint(CurvePoint(place));
        m_curves.append(m_owned.back().get());
        return m_curves.last();
    }

    void addRandomCurves(int count, std::mt19937 &random)
    {
        for (int i = 0; i < count; ++i) {
            QVector<Vector> places{randomVector(random, 0.8f)};
            for (int k = 0; k < 5; ++k)
                places.append(places.last() + randomVector(random, 0.3f));
            add(places);
        }
    }

    const SurfaceLocator *addSurface(SubdivisionLevel *mesh, const Matrix &placement = Matrix())
    {
        addToScene(mesh, QStringLiteral("Surface"), placement);
        m_meshes.push_back(mesh);
        m_locators.push_back(std::make_unique<SurfaceLocator>(*mesh));
        m_surfaces.append(m_locators.back().get());
        return m_surfaces.last();
    }

    // A ring of a sphere of radius 1 about the z axis.
    const OrvaneCurve *addRing(float z, float radius = 1.0f)
    {
        QVector<Vector> places;
        const float across = std::sqrt(1.0f - z * z) * radius;
        for (int i = 0; i <= 90; ++i)
            places.append({across * std::cos(float(i) * 0.0698132f),
                           across * std::sin(float(i) * 0.0698132f), z * radius});
        return add(places);
    }

    CurveList m_curves;
    SurfaceList m_surfaces;
    std::vector<SubdivisionLevel *> m_meshes;
    std::vector<std::unique_ptr<OrvaneCurve>> m_owned;
    std::vector<std::unique_ptr<SurfaceLocator>> m_locators;
};

class ScreenPickBoth : public ScreenPick, public testing::WithParamInterface<bool>
{};

Camera frontCamera(bool orthographic = false)
{
    Camera camera;
    camera.SetViewportSize(ViewSize);
    camera.SetSceneBounds(Box);
    camera.SetOrthographic(orthographic);
    camera.Frame(Box);
    return camera;
}

template <typename Visit>
void forEachSample(const OrvaneCurve &curve, Visit visit)
{
    for (int i = 0; i + 1 < curve.PointCount(); ++i) {
        const Vector a = curve.PointAt(i).position;
        const Vector b = curve.PointAt(i + 1).position;
        for (int k = 0; k <= Samples; ++k)
            visit(a + (b - a) * (float(k) / float(Samples)));
    }
}

// The smallest distance across plus a tenth of the depth, in pixels, of all samples in reach.
struct PlainHit
{
    const OrvaneCurve *curve = nullptr;
    double rank = HUGE_VAL;
    double closest = HUGE_VAL; // of all samples of all curves
};

double rankOf(const Camera &camera, double distance, double depth)
{
    return distance + 0.1 * depth / camera.PixelSize(camera.PivotDepth());
}

PlainHit plainCurveAt(const Camera &camera, const CurveList &curves, const QPointF &pixel,
                      double tolerance)
{
    PlainHit best;
    for (const OrvaneCurve *curve : curves) {
        // One place of each stretch has a say: the one closest to the pixel.
        for (int i = 0; i + 1 < curve->PointCount(); ++i) {
            OrvaneCurve stretch;
            stretch.AppendPoint(curve->PointAt(i));
            stretch.AppendPoint(curve->PointAt(i + 1));
            double distance = HUGE_VAL;
            double depth = 0.0;
            forEachSample(stretch, [&](const Vector &place) {
                const ScreenPoint screen = camera.Project(place);
                if (screen.seen && apart(screen.pixel, pixel) < distance) {
                    distance = apart(screen.pixel, pixel);
                    depth = screen.depth;
                }
            });
            best.closest = std::min(best.closest, distance);
            if (distance <= tolerance && rankOf(camera, distance, depth) < best.rank) {
                best.rank = rankOf(camera, distance, depth);
                best.curve = curve;
            }
        }
    }
    return best;
}

// T. Moeller and B. Trumbore, "Fast, Minimum Storage Ray/Triangle Intersection", 1997.
double plainHit(const Mesh &mesh, const orvane::ViewRay &ray)
{
    double nearest = HUGE_VAL;
    for (int face = 0; face < mesh.FaceCount(); ++face) {
        const Vector a = mesh.TriangleVertexPosition(face, 0);
        const Vector ab = mesh.TriangleVertexPosition(face, 1) - a;
        const Vector ac = mesh.TriangleVertexPosition(face, 2) - a;
        const Vector p = ray.direction & ac;
        const double determinant = double(Dot(ab, p));
        const Vector t = ray.origin - a;
        const Vector q = t & ab;
        const double u = double(Dot(t, p)) / determinant;
        const double v = double(Dot(ray.direction, q)) / determinant;
        const double distance = double(Dot(ac, q)) / determinant;
        if (u >= 0.0 && v >= 0.0 && u + v <= 1.0 && distance > 0.0)
            nearest = std::min(nearest, distance);
    }
    return nearest;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(ScreenPick, ScreenPickBoth, testing::Bool());

TEST_P(ScreenPickBoth, theNearestOfSeveralSurfacesIsHit)
{
    std::mt19937 random(testSeed());
    for (int i = 0; i < 3; ++i)
        addSurface(randomMesh(Topology::Triangles, 30, 12, random),
                   Matrix::Translation(randomVector(random, 0.5f)));
    int hits = 0;
    int differing = 0;
    for (int round = 0; round < 2000; ++round) {
        const Camera camera = cameraAt(boxBetween({-2, -2, -2}, {2, 2, 2}), GetParam(), random);
        const QPointF pixel = camera.Project(randomVector(random)).pixel;
        const auto ray = camera.RayThrough(pixel);
        int surface = -1;
        double nearest = HUGE_VAL;
        for (int i = 0; i < 3; ++i) {
            const double distance = plainHit(*m_meshes[size_t(i)], ray);
            if (distance < nearest) {
                nearest = distance;
                surface = i;
            }
        }
        const SurfaceHit hit = surfaceAt(camera, m_surfaces, pixel);
        if (hit.surface != surface) {
            ++differing; // a ray along the rim of a triangle
            continue;
        }
        if (!hit.IsHit())
            continue;
        ++hits;
        EXPECT_NEAR(double((hit.point.WorldPosition() - ray.origin).Length()), nearest, 1e-3);
        EXPECT_LE(apart(camera.Project(hit.point.WorldPosition()).pixel, pixel), 0.05);
        EXPECT_NEAR(hit.depth, camera.DepthOf(hit.point.WorldPosition()), 1e-9);
    }
    EXPECT_GT(hits, 300);
    EXPECT_LE(differing, 4);
}

TEST_P(ScreenPickBoth, theCurveIsTheOneThatManySamplesFind)
{
    std::mt19937 random(testSeed());
    addRandomCurves(12, random);
    const double tolerance = 12.0;
    int hits = 0;
    for (int round = 0; round < 150; ++round) {
        const Camera camera = cameraAt(Box, GetParam(), random);
        const QPointF pixel = camera.Project(randomVector(random, 0.6f)).pixel;
        const PlainHit plain = plainCurveAt(camera, m_curves, pixel, tolerance);
        const CurveHit hit = curveAt(camera, m_curves, pixel, tolerance);
        if (std::abs(plain.closest - tolerance) < 0.5)
            continue; // the samples are half a pixel apart at most
        ASSERT_EQ(hit.curve != nullptr, plain.curve != nullptr);
        if (!hit.curve)
            continue;
        ++hits;
        EXPECT_NEAR(rankOf(camera, hit.distance, hit.depth), plain.rank, 0.5);
        EXPECT_LE(hit.distance, tolerance);
        const Vector a = hit.curve->PointAt(hit.segment).position;
        const Vector b = hit.curve->PointAt(hit.segment + 1).position;
        EXPECT_LE((a + (b - a) * hit.fraction - hit.place).Length(), 1e-5f);
        EXPECT_NEAR(apart(camera.Project(hit.place).pixel, pixel), hit.distance, 0.01);
        EXPECT_NEAR(camera.DepthOf(hit.place), hit.depth, 1e-5);
    }
    EXPECT_GT(hits, 30);
}

TEST_P(ScreenPickBoth, theCurveInFrontWins)
{
    const Camera camera = frontCamera(GetParam());
    add({{-0.5f, 0.0f, -0.8f}, {0.5f, 0.0f, -0.8f}});
    const OrvaneCurve *front = add({{-0.5f, 0.005f, 0.8f}, {0.5f, 0.005f, 0.8f}});
    EXPECT_EQ(curveAt(camera, m_curves, {640.0, 360.0}, 10.0).curve, front);
}

TEST_P(ScreenPickBoth, ofCurvesSideBySideTheOneNearerToThePixelWins)
{
    const Camera camera = frontCamera(GetParam());
    const OrvaneCurve *upper = add({{-0.5f, 0.01f, 0.0f}, {0.5f, 0.01f, 0.0f}});
    const OrvaneCurve *lower = add({{-0.5f, -0.01f, 0.002f}, {0.5f, -0.01f, 0.002f}});
    EXPECT_EQ(curveAt(camera, m_curves, {640.0, 359.0}, 10.0).curve, upper);
    EXPECT_EQ(curveAt(camera, m_curves, {640.0, 361.0}, 10.0).curve, lower);
}

TEST_P(ScreenPickBoth, theToleranceIsInPixels)
{
    const Camera camera = frontCamera(GetParam());
    const Vector a = camera.PointAt({400.0, 300.0}, camera.PivotDepth());
    const Vector b = camera.PointAt({800.0, 300.0}, camera.PivotDepth());
    add({a, b});
    EXPECT_TRUE(curveAt(camera, m_curves, {600.0, 305.9}, 6.0).curve);
    EXPECT_FALSE(curveAt(camera, m_curves, {600.0, 306.1}, 6.0).curve);
    EXPECT_TRUE(curveAt(camera, m_curves, {394.1, 300.0}, 6.0).curve);
    EXPECT_FALSE(curveAt(camera, m_curves, {393.9, 300.0}, 6.0).curve);
}

TEST_F(ScreenPick, curvesWithoutUseAreNotPicked)
{
    const Camera camera = frontCamera();
    add({{-0.5f, 0.0f, 0.0f}, {0.5f, 0.0f, 0.0f}});
    m_owned.back()->SetHidden(true);
    add({{0.0f, 0.0f, 0.0f}});
    EXPECT_FALSE(curveAt(camera, m_curves, {640.0, 360.0}, 10.0).curve);
    EXPECT_TRUE(
        curvesInRectangle(camera, m_curves, QRectF(QPointF(), ViewSize), Inside::APart).isEmpty());
}

TEST_F(ScreenPick, aCurveThatPassesTheEyeIsPickedWhereItIsSeen)
{
    Camera camera = frontCamera();
    camera.Zoom(0.3); // the eye is inside the scene now
    const Vector eye = camera.Eye();
    const Vector before = camera.PointAt({900.0, 500.0}, camera.PivotDepth());
    const OrvaneCurve *curve = add({before, eye + Vector(0.1f, -0.1f, 0.5f)});
    EXPECT_EQ(curveAt(camera, m_curves, {900.0, 500.0}, 3.0).curve, curve);
    ASSERT_FALSE(camera.Project(curve->PointAt(1).position).seen);
    const Vector between = before + (curve->PointAt(1).position - before) * 0.3f;
    const CurveHit hit = curveAt(camera, m_curves, camera.Project(between).pixel, 3.0);
    ASSERT_EQ(hit.curve, curve);
    EXPECT_NEAR(hit.fraction, 0.3f, 1e-3f);
}

TEST_P(ScreenPickBoth, theSurfaceHidesCurvesBehindIt)
{
    std::mt19937 random(testSeed());
    addSurface(sphere(60, 90));
    const OrvaneCurve *front = addRing(0.5f);
    const OrvaneCurve *back = addRing(-0.5f);
    const Camera camera = frontCamera(GetParam());
    int fronts = 0;
    for (int round = 0; round < 500; ++round) {
        const auto places = m_curves[round % 2]->Points();
        const QPointF pixel = camera.Project(places[int(random() % 90)].position).pixel;
        const CurveHit hit = curveAt(camera, m_curves, pixel, 8.0, m_surfaces);
        EXPECT_NE(hit.curve, back);
        fronts += hit.curve == front;
    }
    EXPECT_GE(fronts, 250);
    // Seen through, the other one is found as well.
    const QPointF hidden = camera.Project(back->PointAt(20).position).pixel;
    EXPECT_EQ(curveAt(camera, {back}, hidden, 8.0).curve, back);
    EXPECT_FALSE(curveAt(camera, {back}, hidden, 8.0, m_surfaces).curve);
}

TEST_P(ScreenPickBoth, aLassoAgreesWithManySamples)
{
    std::mt19937 random(testSeed());
    addRandomCurves(20, random);
    int parts = 0;
    int wholes = 0;
    for (int round = 0; round < 60; ++round) {
        const Camera camera = cameraAt(Box, GetParam(), random);
        QPolygonF lasso;
        const QPointF middle = randomPixel(random);
        for (int i = 0; i < 12; ++i) {
            const double reach = double(randomBetween(random, 60.0f, 360.0f));
            lasso << middle + QPointF(std::cos(i * 0.5236), std::sin(i * 0.5236)) * reach;
        }
        const auto isInside = [&](const Vector &place) {
            const ScreenPoint screen = camera.Project(place);
            return screen.seen && lasso.containsPoint(screen.pixel, Qt::WindingFill);
        };
        const CurveList some = curvesInLasso(camera, m_curves, lasso, Inside::APart);
        const CurveList all = curvesInLasso(camera, m_curves, lasso, Inside::All);
        for (const OrvaneCurve *curve : qAsConst(m_curves)) {
            bool anyInside = false;
            forEachSample(*curve, [&](const Vector &place) { anyInside |= isInside(place); });
            bool allInside = true;
            for (const CurvePoint &point : curve->Points())
                allInside &= isInside(point.position);
            EXPECT_EQ(some.contains(curve), anyInside) << round;
            EXPECT_EQ(all.contains(curve), allInside) << round;
        }
        parts += some.size();
        wholes += all.size();
    }
    EXPECT_GT(parts, wholes);
    EXPECT_GT(wholes, 0);
}

TEST_F(ScreenPick, aLongStretchThroughTheRectangleIsPartlyInside)
{
    const Camera camera = frontCamera();
    const OrvaneCurve *curve = add({{-0.9f, 0.0f, 0.3f}, {0.9f, 0.0f, -0.3f}});
    const QRectF small(630.0, 350.0, 20.0, 20.0);
    EXPECT_EQ(curvesInRectangle(camera, m_curves, small, Inside::APart), CurveList{curve});
    EXPECT_TRUE(curvesInRectangle(camera, m_curves, small, Inside::All).isEmpty());
    const QRectF backwards(QPointF(650.0, 370.0), QPointF(630.0, 350.0));
    EXPECT_EQ(curvesInRectangle(camera, m_curves, backwards, Inside::APart), CurveList{curve});
    const QRectF beside(630.0, 380.0, 20.0, 20.0);
    EXPECT_TRUE(curvesInRectangle(camera, m_curves, beside, Inside::APart).isEmpty());
    EXPECT_TRUE(curvesInRectangle(camera, m_curves, QRectF(), Inside::APart).isEmpty());
}

TEST_P(ScreenPickBoth, hiddenPartsHaveNoSayInARectangle)
{
    addSurface(sphere(60, 90));
    const OrvaneCurve *front = addRing(0.5f);
    const OrvaneCurve *back = addRing(-0.5f);
    QVector<Vector> half; // over the top from the front to the back
    for (int i = 0; i <= 60; ++i)
        half.append({0.0f, std::sin(float(i) * 0.05236f), std::cos(float(i) * 0.05236f)});
    const OrvaneCurve *over = add(half);
    const Camera camera = frontCamera(GetParam());
    const QRectF whole(QPointF(), ViewSize);
    EXPECT_EQ(curvesInRectangle(camera, m_curves, whole, Inside::All, m_surfaces),
              (CurveList{front, over}));
    EXPECT_EQ(curvesInRectangle(camera, m_curves, whole, Inside::APart, m_surfaces),
              (CurveList{front, over}));
    EXPECT_EQ(curvesInRectangle(camera, m_curves, whole, Inside::All),
              (CurveList{front, back, over}));
}

TEST_F(ScreenPick, twoHundredCurvesAreSearchedInNoTime)
{
    std::mt19937 random(testSeed());
    addSurface(sphere(190, 190));
    for (int i = 0; i < 200; ++i) {
        QVector<Vector> places{Normalized(randomVector(random))};
        for (int k = 0; k < 100; ++k)
            places.append(Normalized(places.last() + randomVector(random, 0.03f)));
        add(places);
    }
    const Camera camera = frontCamera();
    QElapsedTimer timer;
    timer.start();
    int found = 0;
    for (int round = 0; round < 200; ++round)
        found += curveAt(camera, m_curves, randomPixel(random), 8.0, m_surfaces).curve != nullptr;
    const double pick = double(timer.nsecsElapsed()) / 1e6 / 200.0;
    timer.restart();
    int hits = 0;
    for (int round = 0; round < 20000; ++round)
        hits += surfaceAt(camera, m_surfaces, randomPixel(random)).IsHit();
    const double ray = double(timer.nsecsElapsed()) / 1e3 / 20000.0;
    timer.restart();
    const auto all =
        curvesInRectangle(camera, m_curves, QRectF(QPointF(), ViewSize), Inside::APart, m_surfaces);
    const double rectangle = double(timer.nsecsElapsed()) / 1e6;
    std::cout << "curve under the pointer " << pick << " ms, ray " << ray << " us over "
              << m_meshes[0]->FaceCount() << " faces, rectangle " << rectangle << " ms"
              << std::endl;
    EXPECT_GT(found, 0);
    EXPECT_GT(hits, 0);
    EXPECT_GT(all.size(), 50);
    EXPECT_LT(all.size(), 200);
}
