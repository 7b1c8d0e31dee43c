// SPDX-License-Identifier: MIT
#include "tests/host/files/filetest.h"
#include "tests/support/models.h"
#include "tests/support/shapes.h"

#include "host/files/curvebinding.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

using namespace orvane;

namespace {

const float Unlimited = 1e6f; // scene units

class CurveBindingTest : public FileTest
{
protected:
    //! In the scene, which owns it.
    OrvaneCurve *curve(const PlaceList &places, bool closed = false)
    {
        auto *made = new OrvaneCurve;
        made->SetClosed(closed);
        for (const Vector &place : places)
            made->AppendPoint(CurvePoint(place));
        if (closed && places.size() > 1)
            made->AppendPoint(CurvePoint(made->ClosingPosition()));
        Kernel()->Scene()->AddCurve(made);
        return made;
    }
};

struct Place
{
    double x, y, z;
};

Place operator-(const Place &a, const Place &b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

Place along(const Place &a, const Place &b, double t)
{
    return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t, a.z + (b.z - a.z) * t};
}

double dot(const Place &a, const Place &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

double distanceToSegment(const Place &p, const Place &a, const Place &b)
{
    const Place ab = b - a;
    const double length = dot(ab, ab);
    const double t = length > 0 ? std::clamp(dot(p - a, ab) / length, 0.0, 1.0) : 0.0;
    const Place offset = p - along(a, b, t);
    return std::sqrt(dot(offset, offset));
}

// To the plane where the foot lies inside the triangle, else to the nearest side: nothing of how
// the locator does it.
double distanceToTriangle(const Place &p, const Place &a, const Place &b, const Place &c)
{
    double best = std::min(
        {distanceToSegment(p, a, b), distanceToSegment(p, b, c), distanceToSegment(p, c, a)});
    const Place u = b - a;
    const Place v = c - a;
    const Place n = {u.y * v.z - u.z * v.y, u.z * v.x - u.x * v.z, u.x * v.y - u.y * v.x};
    const double area = dot(n, n);
    if (area == 0)
        return best;
    const Place w = p - a;
    const Place wv = {w.y * v.z - w.z * v.y, w.z * v.x - w.x * v.z, w.x * v.y - w.y * v.x};
    const Place uw = {u.y * w.z - u.z * w.y, u.z * w.x - u.x * w.z, u.x * w.y - u.y * w.x};
    const double s = dot(wv, n) / area;
    const double t = dot(uw, n) / area;
    if (s >= 0 && t >= 0 && s + t <= 1)
        best = std::min(best, std::abs(dot(w, n)) / std::sqrt(area));
    return best;
}

Place placeOf(const Vector &v)
{
    return {v.x, v.y, v.z};
}

double distanceToMesh(const Vector &point, const Mesh &mesh)
{
    double best = std::numeric_limits<double>::infinity();
    for (int face = 0; face < mesh.FaceCount(); ++face) {
        const auto corner = [&](int i) {
            return placeOf(mesh.WorldVertexPosition(mesh.VertexIndex(face, i)));
        };
        for (int i = 2; i < mesh.CornersPerFace(); ++i)
            best = std::min(
                best, distanceToTriangle(placeOf(point), corner(0), corner(i - 1), corner(i)));
    }
    return best;
}

} // namespace

TEST_F(CurveBindingTest, manyCurvesAreBoundAsEachAlone)
{
    std::mt19937 random(testSeed());
    const Mesh &sheet = *addToScene(bumpySheet(40, 40, random))->CurrentLevel();
    QVector<OrvaneCurve *> together;
    QVector<OrvaneCurve *> alone;
    for (int i = 0; i < 300; ++i) {
        PlaceList places;
        for (int n = int(random() % 60); n >= 0; --n)
            places.append({randomBetween(random, -5, 45), randomBetween(random, -5, 45),
                           randomBetween(random, -5, 5)});
        const bool closed = random() % 3 == 0;
        together.append(curve(places, closed));
        alone.append(curve(places, closed));
    }
    const CurveBinding binding = bindCurves(together, sheet, 3.0f);
    CurveBinding sum;
    for (OrvaneCurve *one : qAsConst(alone)) {
        const CurveBinding part = bindCurves({one}, sheet, 3.0f);
        sum.points += part.points;
        sum.bound += part.bound;
        sum.greatestDistance = std::max(sum.greatestDistance, part.greatestDistance);
    }
    EXPECT_EQ(binding.points, sum.points);
    EXPECT_EQ(binding.bound, sum.bound);
    EXPECT_GT(binding.bound, 1000);
    EXPECT_GT(binding.points - binding.bound, 1000);
    EXPECT_EQ(binding.greatestDistance, sum.greatestDistance);
    for (int i = 0; i < together.size(); ++i) {
        ASSERT_EQ(together[i]->PointCount(), alone[i]->PointCount());
        for (int p = 0; p < alone[i]->PointCount(); ++p) {
            const CurvePoint &point = together[i]->Points()[p];
            const CurvePoint &wanted = alone[i]->Points()[p];
            EXPECT_EQ(point.position, wanted.position);
            EXPECT_EQ(point.surfacePoint.FaceIndex(), wanted.surfacePoint.FaceIndex());
            EXPECT_EQ(point.surfacePoint.U(), wanted.surfacePoint.U());
            EXPECT_EQ(point.surfacePoint.V(), wanted.surfacePoint.V());
            EXPECT_EQ(point.surfacePoint.Mesh(), wanted.surfacePoint.Mesh());
        }
    }
}

TEST_F(CurveBindingTest, pointMovesOntoTheMeshAndKnowsItsFace)
{
    const Mesh &mesh = *addToScene(gridOfQuads(3, 2))->CurrentLevel();
    OrvaneCurve *drawn = curve({Vector(1.25f, 0.5f, 0.1f)});
    const CurveBinding binding = bindCurves({drawn}, mesh, 0.2f);
    EXPECT_EQ(binding.points, 1);
    EXPECT_EQ(binding.bound, 1);
    EXPECT_FLOAT_EQ(binding.greatestDistance, 0.1f);
    const CurvePoint point = drawn->PointAt(0);
    EXPECT_EQ(point.surfacePoint.Mesh(), &mesh);
    EXPECT_EQ(point.surfacePoint.FaceIndex(), 1);
    EXPECT_EQ(point.position, Vector(1.25f, 0.5f, 0.0f));
    EXPECT_EQ(point.surfacePoint.WorldPosition(), point.position);
    EXPECT_EQ(point.surfacePoint.WorldNormal(), Vector(0, 0, 1));
}

TEST_F(CurveBindingTest, fartherPointStaysAndIsBoundToNoFace)
{
    const Mesh &mesh = *addToScene(gridOfQuads(3, 2))->CurrentLevel();
    OrvaneCurve *drawn = curve({Vector(1, 1, 0.1f), Vector(1, 1, 0.3f), Vector(9, 9, 9)});
    const CurveBinding binding = bindCurves({drawn}, mesh, 0.2f);
    EXPECT_EQ(binding.points, 3);
    EXPECT_EQ(binding.bound, 1);
    EXPECT_FLOAT_EQ(binding.greatestDistance, 0.1f);
    EXPECT_TRUE(drawn->PointAt(0).surfacePoint.IsOnValidFace());
    EXPECT_FALSE(drawn->PointAt(1).surfacePoint.IsOnValidFace());
    EXPECT_EQ(drawn->PointAt(1).position, Vector(1, 1, 0.3f));
    EXPECT_EQ(drawn->PointAt(2).position, Vector(9, 9, 9));
}

TEST_F(CurveBindingTest, pointAtExactlyTheGreatestDistanceIsBound)
{
    const Mesh &mesh = *addToScene(gridOfQuads(2, 2))->CurrentLevel();
    EXPECT_EQ(bindCurves({curve({Vector(1, 1, 0.5f)})}, mesh, 0.5f).bound, 1);
    EXPECT_EQ(bindCurves({curve({Vector(1, 1, 0)})}, mesh, 0.0f).bound, 1);
}

TEST_F(CurveBindingTest, nothingToBindIsNoTrouble)
{
    const Mesh &mesh = *addToScene(gridOfQuads(2, 2))->CurrentLevel();
    const Mesh &empty = *addToScene(new SubdivisionLevel)->CurrentLevel();
    EXPECT_EQ(bindCurves({}, mesh, 1.0f).points, 0);
    EXPECT_EQ(bindCurves({curve({}), curve({}, true)}, mesh, 1.0f).points, 0);
    const CurveBinding binding = bindCurves({curve({Vector(1, 1, 0)})}, empty, Unlimited);
    EXPECT_EQ(binding.points, 1);
    EXPECT_EQ(binding.bound, 0);
    EXPECT_EQ(binding.greatestDistance, 0.0f);
}

TEST_F(CurveBindingTest, closestPointsAgreeWithTryingEveryFace)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 12; ++round) {
        SubdivisionLevel *shape = round % 3 == 0 ? bumpySheet(7, 6, random)
                                  : round % 3 == 1
                                      ? sphere(9, 12)
                                      : randomMesh(Topology::Triangles, 40, 60, random);
        const Mesh &mesh =
            *addToScene(shape, QStringLiteral("Shape"), randomPlacement(random))->CurrentLevel();
        PlaceList places;
        for (int i = 0; i < 100; ++i)
            places.append(mesh.WorldVertexPosition(i % mesh.VertexCount())
                          + randomVector(random, 0.5f));
        OrvaneCurve *drawn = curve(places);
        bindCurves({drawn}, mesh, Unlimited);
        for (int i = 0; i < places.size(); ++i) {
            const CurvePoint point = drawn->PointAt(i);
            ASSERT_TRUE(point.surfacePoint.IsOnValidFace());
            EXPECT_NEAR((point.position - places[i]).Length(), distanceToMesh(places[i], mesh),
                        2e-5);
            EXPECT_NEAR(distanceToMesh(point.position, mesh), 0.0, 2e-5);
        }
    }
}

TEST_F(CurveBindingTest, theLimitCutsWhereTryingEveryFaceDoes)
{
    std::mt19937 random(testSeed());
    const Mesh &mesh = *addToScene(sphere(9, 12))->CurrentLevel();
    PlaceList places;
    int near = 0;
    for (int i = 0; i < 500; ++i) {
        const Vector place = randomVector(random, 1.5f);
        const double distance = distanceToMesh(place, mesh);
        if (std::abs(distance - 0.3) < 1e-4)
            continue;
        places.append(place);
        near += distance < 0.3;
    }
    ASSERT_GT(near, 50);
    const CurveBinding binding = bindCurves({curve(places)}, mesh, 0.3f);
    EXPECT_EQ(binding.points, places.size());
    EXPECT_EQ(binding.bound, near);
    EXPECT_LE(binding.greatestDistance, 0.3f);
    EXPECT_GT(binding.greatestDistance, 0.2f);
}

TEST_F(CurveBindingTest, closingPointFollowsTheBoundPointsAndIsNotCounted)
{
    const Mesh &mesh = *addToScene(gridOfQuads(4, 4))->CurrentLevel();
    OrvaneCurve *drawn = curve({Vector(1, 1, 0.1f), Vector(3, 1, 0.1f), Vector(3, 3, 0.1f)}, true);
    const CurveBinding binding = bindCurves({drawn}, mesh, 0.5f);
    EXPECT_EQ(binding.points, 3);
    EXPECT_EQ(binding.bound, 3);
    ASSERT_EQ(drawn->PointCount(), 4);
    EXPECT_EQ(drawn->DrawnPointCount(), 3);
    const CurvePoint closing = drawn->PointAt(3);
    EXPECT_TRUE(closing.surfacePoint.IsOnValidFace());
    EXPECT_NEAR(closing.position.x, 1.002f, 1e-6f);
    EXPECT_NEAR(closing.position.y, 1.002f, 1e-6f);
    EXPECT_EQ(closing.position.z, 0.0f);
}

TEST_F(CurveBindingTest, closedCurveOfOnePointStaysOne)
{
    const Mesh &mesh = *addToScene(gridOfQuads(4, 4))->CurrentLevel();
    OrvaneCurve *drawn = curve({Vector(1, 1, 0.1f)}, true);
    EXPECT_EQ(bindCurves({drawn}, mesh, 0.5f).points, 1);
    EXPECT_EQ(drawn->PointCount(), 1);
}

TEST_F(CurveBindingTest, closingPointNeverMeetsTheFirst)
{
    std::mt19937 random(testSeed());
    const Mesh &mesh =
        *addToScene(cube(2.0f), QStringLiteral("Cube"), Matrix::Translation({1000, -1000, 1000}))
             ->CurrentLevel();
    int atCorner = 0;
    for (int round = 0; round < 300; ++round) {
        PlaceList places;
        // Beyond a corner of the cube, so that many places round it have the corner as closest.
        places.append(Vector(1001, -999, 1001) + Vector(0.1f, 0.1f, 0.1f));
        for (int i = 0; i < 2 + round % 3; ++i)
            places.append(Vector(1001, -999, 1001) + randomVector(random, round % 2 ? 2.0f : 0.3f));
        OrvaneCurve *drawn = curve(places, true);
        bindCurves({drawn}, mesh, Unlimited);
        const Vector first = drawn->PointAt(0).position;
        const Vector last = drawn->PointAt(drawn->DrawnPointCount() - 1).position;
        atCorner += first == Vector(1001, -999, 1001);
        if (last == first)
            continue;
        const Vector closing = drawn->PointAt(drawn->PointCount() - 1).position;
        EXPECT_NE(closing, first);
        EXPECT_LT((closing - first).Length(), 0.6f * (last - first).Length() + 1e-4f);
    }
    EXPECT_EQ(atCorner, 300);
}

TEST_F(CurveBindingTest, closingPointOfAShortStretchFarOutIsFartherFromTheFirst)
{
    std::mt19937 random(testSeed());
    const Mesh &mesh =
        *addToScene(sphere(9, 12), QStringLiteral("Ball"), Matrix::Translation({1000, -1000, 1000}))
             ->CurrentLevel();
    for (int round = 0; round < 300; ++round) {
        // A thousandth of the stretch is less than floats tell apart here.
        const Vector start = Vector(1000, -1000, 1000) + Normalized(randomVector(random));
        OrvaneCurve *drawn = curve(
            {start, start + randomVector(random, 0.1f), start + randomVector(random, 0.01f)}, true);
        ASSERT_EQ(bindCurves({drawn}, mesh, 1.0f).bound, 3);
        const CurvePoint closing = drawn->PointAt(3);
        EXPECT_TRUE(closing.surfacePoint.IsOnValidFace());
        EXPECT_NE(closing.position, drawn->PointAt(0).position);
        EXPECT_LT((closing.position - drawn->PointAt(0).position).Length(), 0.02f);
    }
}

TEST_F(CurveBindingTest, closingPointWhoseClosestIsTheFirstStaysWhereItIs)
{
    const Mesh &mesh = *addToScene(cube(2.0f))->CurrentLevel();
    // The last point stays outside, beyond the corner that the first one is on.
    OrvaneCurve *drawn = curve({Vector(1, 1, 1), Vector(0, 0, 1), Vector(1.3f, 1.3f, 1.3f)}, true);
    EXPECT_EQ(bindCurves({drawn}, mesh, 0.2f).bound, 2);
    const CurvePoint closing = drawn->PointAt(3);
    EXPECT_FALSE(closing.surfacePoint.IsOnValidFace());
    EXPECT_NEAR(closing.position.x, 1.0003f, 1e-6f);
}

TEST_F(CurveBindingTest, closingPointOfPointsOffTheMeshStaysOffToo)
{
    const Mesh &mesh = *addToScene(gridOfQuads(4, 4))->CurrentLevel();
    OrvaneCurve *drawn = curve({Vector(1, 1, 5), Vector(3, 1, 5), Vector(3, 3, 5)}, true);
    EXPECT_EQ(bindCurves({drawn}, mesh, 0.5f).bound, 0);
    EXPECT_FALSE(drawn->PointAt(3).surfacePoint.IsOnValidFace());
    EXPECT_EQ(drawn->PointAt(3).position.z, 5.0f);
}

TEST_F(CurveBindingTest, bindingAgainChangesNothing)
{
    std::mt19937 random(testSeed());
    const Mesh &mesh = *addToScene(gridOfQuads(4, 4))->CurrentLevel();
    PlaceList places;
    for (int i = 0; i < 50; ++i)
        places.append(Vector(2, 2, 0) + randomVector(random, 1.5f));
    OrvaneCurve *drawn = curve(places, true);
    bindCurves({drawn}, mesh, Unlimited);
    const QVector<CurvePoint> once = drawn->Points();
    EXPECT_LT(bindCurves({drawn}, mesh, Unlimited).greatestDistance, 1e-6f);
    ASSERT_EQ(drawn->PointCount(), once.size());
    for (int i = 0; i < once.size(); ++i)
        EXPECT_LT((drawn->PointAt(i).position - once[i].position).Length(), 1e-6f);
}

TEST_F(CurveBindingTest, realNetsLieOnTheirModels)
{
    const char *pairs[][2] = {{"spot_quads.obj", "spot_net.json"},
                              {"spot_triangles.obj", "spot_strokes.json"},
                              {"bunny.obj", "bunny_net.json"},
                              {"fandisk.obj", "fandisk_net.json"}};
    for (const auto &pair : pairs) {
        const QString model = modelFile(QString::fromLatin1(pair[0]));
        const QString net = modelFile(QString::fromLatin1(pair[1]));
        if (model.isEmpty() || net.isEmpty())
            GTEST_SKIP() << "The folder of real models is not at hand.";
        Geometry *source = mesh(model);
        Kernel()->Scene()->AddGeometry(source);
        const Mesh &level = *source->CurrentLevel();
        const QVector<OrvaneCurve *> drawn = curves(net);
        const CurveBinding binding = bindCurves(drawn, level, 0.02f * level.Bounds().Diagonal());
        EXPECT_GT(binding.points, 1000) << pair[1];
        EXPECT_EQ(binding.bound, binding.points) << pair[1];
        EXPECT_LT(binding.greatestDistance, 0.01f * level.Bounds().Diagonal()) << pair[1];
        Kernel()->Scene()->RemoveGeometry(source);
    }
}
