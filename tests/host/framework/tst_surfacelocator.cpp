// SPDX-License-Identifier: MIT
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/geometry/surfacelocator.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using orvane::Matrix;
using orvane::Mesh;
using orvane::SubdivisionLevel;
using orvane::SurfaceLocator;
using orvane::SurfacePoint;
using orvane::Topology;
using orvane::Vector;

namespace {

const float Far = std::numeric_limits<float>::max();

// Three doubles; the tests measure with more digits than the code they judge.
struct Place
{
    Place() = default;
    Place(double ax, double ay, double az) : x(ax), y(ay), z(az) {}
    Place(const Vector &v) : x(double(v.x)), y(double(v.y)), z(double(v.z)) {}

    double x = 0;
    double y = 0;
    double z = 0;
};

Place operator-(const Place &a, const Place &b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

Place operator+(const Place &a, const Place &b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

Place operator*(const Place &a, double s)
{
    return {a.x * s, a.y * s, a.z * s};
}

double dot(const Place &a, const Place &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Place cross(const Place &a, const Place &b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double length(const Place &a)
{
    return std::sqrt(dot(a, a));
}

struct Triangle
{
    Place corner[3];
    int face = 0;
};

double distanceToSegment(const Place &p, const Place &a, const Place &b)
{
    const double whole = dot(b - a, b - a);
    const double t = whole > 0 ? qBound(0.0, dot(p - a, b - a) / whole, 1.0) : 0.0;
    return length(a + (b - a) * t - p);
}

// The foot of the perpendicular when it is inside the three sides, else the nearest side.
double distanceToTriangle(const Place &p, const Triangle &triangle)
{
    const Place *c = triangle.corner;
    double best = std::numeric_limits<double>::infinity();
    for (int i = 0; i < 3; ++i)
        best = qMin(best, distanceToSegment(p, c[i], c[(i + 1) % 3]));
    const Place normal = cross(c[1] - c[0], c[2] - c[0]);
    const double area = length(normal);
    if (area == 0)
        return best;
    for (int i = 0; i < 3; ++i) {
        if (dot(cross(c[(i + 1) % 3] - c[i], p - c[i]), normal) < 0)
            return best;
    }
    return qMin(best, std::fabs(dot(p - c[0], normal)) / area);
}

// How far along the ray it meets the triangle; negative when it does not.
double meets(const Place &origin, const Place &direction, const Triangle &triangle)
{
    const Place *c = triangle.corner;
    double volume[3];
    for (int i = 0; i < 3; ++i)
        volume[i] = dot(direction, cross(c[i] - origin, c[(i + 1) % 3] - origin));
    const bool inside = (volume[0] > 0 && volume[1] > 0 && volume[2] > 0)
                        || (volume[0] < 0 && volume[1] < 0 && volume[2] < 0);
    if (!inside)
        return -1;
    const Place normal = cross(c[1] - c[0], c[2] - c[0]);
    return dot(c[0] - origin, normal) / dot(direction, normal);
}

QVector<Triangle> trianglesOf(const Mesh &mesh)
{
    QVector<Triangle> triangles;
    for (int face = 0; face < mesh.FaceCount(); ++face) {
        Place c[4];
        for (int i = 0; i < mesh.CornersPerFace(); ++i)
            c[i] = mesh.WorldVertexPosition(mesh.VertexIndex(face, i));
        triangles.append({{c[0], c[1], c[2]}, face});
        if (mesh.IsQuads())
            triangles.append({{c[0], c[2], c[3]}, face});
    }
    return triangles;
}

double distanceToAll(const Place &p, const QVector<Triangle> &triangles)
{
    double best = std::numeric_limits<double>::infinity();
    for (const Triangle &triangle : triangles)
        best = qMin(best, distanceToTriangle(p, triangle));
    return best;
}

double distanceToFace(const Place &p, const QVector<Triangle> &triangles, int face)
{
    double best = std::numeric_limits<double>::infinity();
    for (const Triangle &triangle : triangles) {
        if (triangle.face == face)
            best = qMin(best, distanceToTriangle(p, triangle));
    }
    return best;
}

double firstMeeting(const Place &origin, const Place &direction, const QVector<Triangle> &triangles)
{
    double first = -1;
    for (const Triangle &triangle : triangles) {
        const double t = meets(origin, direction, triangle);
        if (t >= 0 && (first < 0 || t < first))
            first = t;
    }
    return first;
}

double diagonalOf(const Mesh &mesh)
{
    orvane::AxisAlignedBoundingBox box;
    for (int v = 0; v < mesh.VertexCount(); ++v)
        box.Extend(mesh.WorldVertexPosition(v));
    return double(box.Diagonal());
}

} // namespace

class Locating : public SceneCleaner
{
protected:
    const Mesh &inScene(SubdivisionLevel *mesh, const Matrix &placement = Matrix())
    {
        addToScene(mesh, QStringLiteral("surface"), placement);
        return *mesh;
    }
    // The shapes that the random tests run on; odd rounds stand turned, scaled and moved.
    const Mesh &randomSurface(int round)
    {
        const Matrix placement = round % 2 ? randomPlacement(m_random) : Matrix();
        switch (round / 2 % 5) {
        case 0:
            return inScene(randomMesh(Topology::Triangles, 40, 60, m_random), placement);
        case 1:
            return inScene(randomMesh(Topology::Quads, 40, 60, m_random), placement);
        case 2:
            return inScene(bumpySheet(8, 6, m_random), placement);
        case 3:
            return inScene(sphere(10, 16), placement);
        default:
            return inScene(gridOfTriangles(9, 7), placement);
        }
    }

    std::mt19937 m_random{testSeed()};
};

TEST_F(Locating, findsTheClosestPointAsBruteForceDoes)
{
    for (int round = 0; round < 40; ++round) {
        SCOPED_TRACE(round);
        const Mesh &mesh = randomSurface(round);
        const SurfaceLocator locator(mesh);
        const QVector<Triangle> triangles = trianglesOf(mesh);
        const double diagonal = diagonalOf(mesh);
        for (int i = 0; i < 100; ++i) {
            const float reach = i % 10 == 0 ? 50.0f : 1.5f;
            const Vector place = mesh.WorldVertexPosition(0) + randomVector(m_random, reach);
            const SurfacePoint point = locator.ClosestPoint(place, Far);
            ASSERT_EQ(point.Mesh(), &mesh);
            const double tolerance = 1e-5 * diagonal + 1e-6 * length(place);
            EXPECT_NEAR(length(Place(point.WorldPosition()) - place),
                        distanceToAll(place, triangles), tolerance);
            EXPECT_LT(distanceToFace(point.WorldPosition(), triangles, point.FaceIndex()),
                      1e-5 * diagonal);
        }
    }
}

TEST_F(Locating, picksTheFirstFaceAlongARayAsBruteForceDoes)
{
    int hits = 0;
    for (int round = 0; round < 40; ++round) {
        SCOPED_TRACE(round);
        const Mesh &mesh = randomSurface(round);
        const SurfaceLocator locator(mesh);
        const QVector<Triangle> triangles = trianglesOf(mesh);
        const double diagonal = diagonalOf(mesh);
        for (int i = 0; i < 100; ++i) {
            const int aim = int(m_random() % unsigned(mesh.VertexCount()));
            const Vector origin = mesh.WorldVertexPosition(0) + randomVector(m_random, 5.0f);
            const Vector direction =
                mesh.WorldVertexPosition(aim) + randomVector(m_random, 0.5f) - origin;
            const double along = firstMeeting(origin, direction, triangles);
            const SurfacePoint point = locator.Pick(origin, direction);
            ASSERT_EQ(point.Mesh() != nullptr, along >= 0) << "ray " << i;
            if (along < 0)
                continue;
            ++hits;
            const Place expected = Place(origin) + Place(direction) * along;
            EXPECT_LT(length(Place(point.WorldPosition()) - expected), 1e-4 * diagonal) << i;
            EXPECT_LT(distanceToFace(point.WorldPosition(), triangles, point.FaceIndex()),
                      1e-5 * diagonal);
        }
    }
    EXPECT_GT(hits, 1000);
}

TEST_F(Locating, findsThePointOfAFaceThatAPlaceLiesOn)
{
    for (int round = 0; round < 20; ++round) {
        const Mesh &mesh = randomSurface(round);
        const SurfaceLocator locator(mesh);
        const float near = float(1e-5 * diagonalOf(mesh));
        for (int face = 0; face < mesh.FaceCount(); ++face) {
            const SurfacePoint on(mesh, face, 0.5f, 0.25f);
            const SurfacePoint found = locator.ClosestPoint(on.WorldPosition(), near);
            ASSERT_TRUE(found.IsOnValidFace()) << "round " << round << ", face " << face;
            EXPECT_LT((found.WorldPosition() - on.WorldPosition()).Length(), near);
        }
    }
}

TEST_F(Locating, takesTheLowestOfFacesThatAreEquallyClose)
{
    for (SubdivisionLevel *shape : {gridOfTriangles(12, 9), gridOfQuads(12, 9)}) {
        const Mesh &mesh = inScene(shape);
        const SurfaceLocator locator(mesh);
        QVector<int> lowest(mesh.VertexCount(), mesh.FaceCount());
        for (int i = 0; i < mesh.Corners().size(); ++i) {
            int &face = lowest[mesh.Corners()[i]];
            face = qMin(face, i / mesh.CornersPerFace());
        }
        for (int v = 0; v < mesh.VertexCount(); ++v) {
            for (const float height : {0.0f, 0.7f, -3.1f, randomBetween(m_random, -9, 9)}) {
                const Vector place = mesh.VertexPosition(v) + Vector(0, 0, height);
                EXPECT_EQ(locator.ClosestPoint(place, 10.0f).FaceIndex(), lowest[v])
                    << "vertex " << v << ", height " << height;
            }
        }
    }
}

TEST_F(Locating, findsTheFootOfAPerpendicularOnASliver)
{
    for (int i = 0; i < 300; ++i) {
        const Vector start = randomVector(m_random);
        const Vector along = randomVector(m_random);
        const Vector across = orvane::Normalized(along & randomVector(m_random));
        const Vector tip = start + along * 0.5f + across * 1e-3f;
        const SurfaceLocator locator(
            inScene(meshOf(Topology::Triangles, {start, start + along, tip}, {0, 1, 2})));
        const Vector above = start + along * 0.5f + across * 5e-4f;
        const Vector place = above + orvane::Normalized(along & across) * 2.0f;
        // From the corners as rounded, which tilts so narrow a face.
        const Place a = start;
        const Place normal = cross(Place(start + along) - a, Place(tip) - a);
        const double height = dot(Place(place) - a, normal) / dot(normal, normal);
        const Place foot = Place(place) - normal * height;
        const Vector found = locator.ClosestPoint(place, Far).WorldPosition();
        EXPECT_LT(length(Place(found) - foot), 1e-5) << "sliver " << i;
    }
}

TEST_F(Locating, isExactOnBothHalvesOfAQuad)
{
    const Mesh &mesh = inScene(singleQuad());
    const SurfaceLocator locator(mesh);
    for (const Vector &on : {Vector(0.75f, 0.25f, 0), Vector(0.25f, 0.75f, 0), Vector(0, 1, 0),
                             Vector(1, 1, 0), Vector(0.5f, 0.5f, 0)}) {
        const SurfacePoint closest = locator.ClosestPoint(on + Vector(0, 0, 2), 3.0f);
        EXPECT_EQ(closest.WorldPosition(), on);
        EXPECT_EQ(closest.U(), on.x);
        EXPECT_EQ(closest.V(), on.y);
    }
    const SurfacePoint picked = locator.Pick({0.25f, 0.75f, 5}, {0, 0, -1});
    EXPECT_NEAR(picked.U(), 0.25f, 1e-6f);
    EXPECT_NEAR(picked.V(), 0.75f, 1e-6f);
}

TEST_F(Locating, picksFromEitherSideAndOnlyForwards)
{
    const SurfaceLocator locator(inScene(singleQuad()));
    EXPECT_TRUE(locator.Pick({0.3f, 0.6f, 5}, {0, 0, -2}).IsOnValidFace());
    EXPECT_TRUE(locator.Pick({0.3f, 0.6f, -5}, {0, 0, 0.1f}).IsOnValidFace());
    EXPECT_EQ(locator.Pick({0.3f, 0.6f, 5}, {0, 0, 1}).Mesh(), nullptr);
    EXPECT_EQ(locator.Pick({3, 3, 5}, {0, 0, -1}).Mesh(), nullptr);
}

TEST_F(Locating, lookNoFartherThanTold)
{
    const SurfaceLocator locator(inScene(singleQuad()));
    EXPECT_TRUE(locator.ClosestPoint({0.5f, 0.5f, 2}, 2.0f).IsOnValidFace());
    EXPECT_EQ(locator.ClosestPoint({0.5f, 0.5f, 2}, 1.999f).Mesh(), nullptr);
    EXPECT_TRUE(locator.ClosestPoint({0.5f, 0.5f, 0}, 0.0f).IsOnValidFace());
    EXPECT_EQ(locator.ClosestPoint({0.5f, 0.5f, 0.001f}, 0.0f).Mesh(), nullptr);
    EXPECT_EQ(locator.ClosestPoint({0.5f, 0.5f, 0}, -1.0f).Mesh(), nullptr);
    EXPECT_TRUE(locator.ClosestPoint({0.5f, 0.5f, 1e6f}, Far).IsOnValidFace());
    EXPECT_TRUE(locator.ClosestPoint({0.5f, 0.5f, 2}, std::numeric_limits<float>::infinity())
                    .IsOnValidFace());
}

TEST_F(Locating, answersAPointBoundToNoneForAPlaceThatIsNotFinite)
{
    const SurfaceLocator locator(inScene(singleQuad()));
    const float nan = std::nanf("");
    const float infinity = std::numeric_limits<float>::infinity();
    for (const Vector &bad : {Vector(nan, 0, 0), Vector(0, infinity, 0), Vector(0, 0, -infinity)}) {
        EXPECT_EQ(locator.ClosestPoint(bad, Far).Mesh(), nullptr);
        EXPECT_EQ(locator.Pick(bad, {0, 0, 1}).Mesh(), nullptr);
        EXPECT_EQ(locator.Pick({0, 0, 1}, bad).Mesh(), nullptr);
    }
    EXPECT_EQ(locator.ClosestPoint({0, 0, 0}, nan).Mesh(), nullptr);
    EXPECT_EQ(locator.Pick({0.5f, 0.5f, 0}, {0, 0, 0}).Mesh(), nullptr) << "a ray of no direction";
}

TEST_F(Locating, findsNothingWhereThereIsNothing)
{
    const SurfaceLocator noFaces(inScene(new SubdivisionLevel));
    EXPECT_EQ(noFaces.ClosestPoint({0, 0, 0}, Far).Mesh(), nullptr);
    EXPECT_EQ(noFaces.Pick({0, 0, 1}, {0, 0, -1}).Mesh(), nullptr);

    auto *faceless = new SubdivisionLevel; // the scene's
    faceless->SetFaceCount(3);
    const SurfaceLocator noVertices(inScene(faceless));
    EXPECT_EQ(noVertices.ClosestPoint({0, 0, 0}, Far).Mesh(), nullptr);
    EXPECT_EQ(noVertices.Pick({0, 0, 1}, {0, 0, -1}).Mesh(), nullptr);
}

TEST_F(Locating, passesOverFacesThatAreNotFinite)
{
    SubdivisionLevel *mesh = gridOfQuads(2, 1);
    mesh->SetVertexPosition(0, {std::nanf(""), 0, 0});
    mesh->SetVertexPosition(3, {-std::numeric_limits<float>::infinity(), 0, 0});
    const SurfaceLocator locator(inScene(mesh));
    const SurfacePoint point = locator.ClosestPoint({0, 0.5f, 0}, Far);
    EXPECT_EQ(point.FaceIndex(), 1);
    EXPECT_EQ(point.WorldPosition(), Vector(1, 0.5f, 0));
    EXPECT_EQ(locator.Pick({1.5f, 0.5f, 1}, {0, 0, -1}).FaceIndex(), 1);
}

TEST_F(Locating, copesWithFacesWithoutArea)
{
    const Mesh &mesh = inScene(meshOf(Topology::Triangles, {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}},
                                      {0, 1, 2, 1, 1, 1, 0, 2, 0}));
    const SurfaceLocator locator(mesh);
    const SurfacePoint point = locator.ClosestPoint({1.75f, 1, 0}, Far);
    EXPECT_LT((point.WorldPosition() - Vector(1.75f, 0, 0)).Length(), 1e-5f);
}

TEST_F(Locating, findsTheClosestPointOfSliversFromAfar)
{
    QVector<Vector> positions;
    QVector<int> corners;
    for (int i = 0; i < 50; ++i) {
        const Vector start = randomVector(m_random);
        const Vector end = randomVector(m_random);
        positions << start << end << start * 0.4f + end * 0.6f + randomVector(m_random, 1e-5f);
        corners << 3 * i << 3 * i + 1 << 3 * i + 2;
    }
    const Mesh &mesh = inScene(meshOf(Topology::Triangles, positions, corners));
    const SurfaceLocator locator(mesh);
    const QVector<Triangle> triangles = trianglesOf(mesh);
    for (int i = 0; i < 500; ++i) {
        const Vector place = randomVector(m_random, i % 2 ? 2.0f : 30.0f);
        const SurfacePoint point = locator.ClosestPoint(place, Far);
        EXPECT_NEAR(length(Place(point.WorldPosition()) - place), distanceToAll(place, triangles),
                    1e-5 + 1e-6 * length(place));
    }
}

TEST_F(Locating, answersTheSameForTheSameQuestion)
{
    const Mesh &mesh = inScene(sphere(20, 30));
    const SurfaceLocator first(mesh);
    const SurfaceLocator second(mesh);
    for (int i = 0; i < 500; ++i) {
        const Vector place = randomVector(m_random, 2.0f);
        const SurfacePoint a = first.ClosestPoint(place, Far);
        const SurfacePoint b = second.ClosestPoint(place, Far);
        EXPECT_EQ(a.FaceIndex(), b.FaceIndex());
        EXPECT_EQ(a.WorldPosition(), b.WorldPosition());
    }
}

TEST_F(Locating, aMeshKeepsItsLocatorWhileItStaysTheSame)
{
    SubdivisionLevel *level = singleQuad();
    orvane::Geometry *geometry = addToScene(level);
    const SurfaceLocator *first = &level->Locator();
    EXPECT_EQ(&level->Locator(), first);
    level->RecomputeNormals(false);
    level->Update(true, 0);
    EXPECT_EQ(&level->Locator(), first) << "no place has changed";
    const Vector above(0.3f, 0.4f, 5.0f);
    EXPECT_FLOAT_EQ(level->Locator().ClosestPoint(above, 10.0f).WorldPosition().z, 0.0f);
    for (int v = 0; v < 4; ++v)
        level->SetVertexPosition(v, level->VertexPosition(v) + Vector(0, 0, 1));
    EXPECT_FLOAT_EQ(level->Locator().ClosestPoint(above, 10.0f).WorldPosition().z, 1.0f);
    geometry->Placement()->SetWorldMatrix(Matrix::Translation({0, 0, 2}));
    EXPECT_FLOAT_EQ(level->Locator().ClosestPoint(above, 10.0f).WorldPosition().z, 3.0f);
}
