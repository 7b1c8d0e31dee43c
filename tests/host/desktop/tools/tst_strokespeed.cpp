// SPDX-License-Identifier: MIT
// A stroke is there when the hand lifts. Times are those that this process worked: other programs
// that use the processors do not count.
#include "tests/host/desktop/tools/toolstest.h"
#include "tests/support/models.h"
#include "tests/support/shapes.h"
#include "tests/support/timelimit.h"

#include "host/files/meshfile.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/geometry/surfacelocator.h>

#include <embree3/rtcore.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <iostream>
#include <limits>

using namespace orvane;

namespace {

const int Events = 2000; // of the mouse, in one stroke
const int Strokes = 9;
const int Rays = 100000;
const double ReadyLimit = 50.0; // milliseconds after the release
const double PickLimit = 0.1;   // milliseconds

// Milliseconds that this process has worked since the program began.
double worked()
{
    return 1000.0 * double(std::clock()) / CLOCKS_PER_SEC;
}

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.value(values.size() / 2);
}

// The mesh in a scene of the ray caster's own, without anything of ours about it.
class BareRays
{
public:
    explicit BareRays(const Mesh &mesh) : m_device(rtcNewDevice(nullptr))
    {
        m_scene = rtcNewScene(m_device);
        rtcSetSceneFlags(m_scene, RTC_SCENE_FLAG_ROBUST);
        RTCGeometry geometry = rtcNewGeometry(m_device, RTC_GEOMETRY_TYPE_TRIANGLE);
        auto *places = static_cast<float *>(
            rtcSetNewGeometryBuffer(geometry, RTC_BUFFER_TYPE_VERTEX, 0, RTC_FORMAT_FLOAT3,
                                    3 * sizeof(float), size_t(mesh.VertexCount())));
        for (int v = 0; v < mesh.VertexCount(); ++v) {
            const Vector place = mesh.WorldVertexPosition(v);
            *places++ = place.x;
            *places++ = place.y;
            *places++ = place.z;
        }
        auto *corners = static_cast<unsigned *>(
            rtcSetNewGeometryBuffer(geometry, RTC_BUFFER_TYPE_INDEX, 0, RTC_FORMAT_UINT3,
                                    3 * sizeof(unsigned), size_t(mesh.FaceCount())));
        for (int i = 0; i < 3 * mesh.FaceCount(); ++i)
            *corners++ = unsigned(mesh.VertexIndex(i / 3, i % 3));
        rtcCommitGeometry(geometry);
        rtcAttachGeometry(m_scene, geometry);
        rtcReleaseGeometry(geometry);
        rtcCommitScene(m_scene);
    }
    ~BareRays()
    {
        rtcReleaseScene(m_scene);
        rtcReleaseDevice(m_device);
    }
    BareRays(const BareRays &) = delete;
    BareRays &operator=(const BareRays &) = delete;

    bool meets(const ViewRay &ray) const
    {
        RTCRayHit hit = {};
        hit.ray.org_x = ray.origin.x;
        hit.ray.org_y = ray.origin.y;
        hit.ray.org_z = ray.origin.z;
        hit.ray.dir_x = ray.direction.x;
        hit.ray.dir_y = ray.direction.y;
        hit.ray.dir_z = ray.direction.z;
        hit.ray.tfar = std::numeric_limits<float>::infinity();
        hit.ray.mask = ~0u;
        hit.hit.geomID = RTC_INVALID_GEOMETRY_ID;
        RTCIntersectContext context;
        rtcInitIntersectContext(&context);
        rtcIntersect1(m_scene, &context, &hit);
        return hit.hit.geomID != RTC_INVALID_GEOMETRY_ID;
    }

private:
    RTCDevice m_device;
    RTCScene m_scene;
};

class StrokeSpeed : public ToolsTest, public testing::WithParamInterface<const char *>
{
protected:
    // False when the model is not at hand.
    bool showModel()
    {
        if (QLatin1String(GetParam()) == QLatin1String("sphere")) {
            m_geometry = show(sphere(188, 188)); // 70,312 triangles
            return true;
        }
        const QString path = modelFile(QString::fromLatin1(GetParam()));
        if (path.isEmpty())
            return false;
        QString error;
        const QScopedPointer<Geometry> read(readMesh(path, &error));
        EXPECT_TRUE(read) << qPrintable(error);
        if (!read)
            return false;
        const Mesh &model = *read->CurrentLevel();
        QVector<Vector> places;
        for (int v = 0; v < model.VertexCount(); ++v)
            places.append(model.VertexPosition(v));
        QVector<int> corners;
        for (int i = 0; i < 3 * model.FaceCount(); ++i)
            corners.append(model.VertexIndex(i / 3, i % 3));
        m_geometry = show(meshOf(Topology::Triangles, places, corners));
        return true;
    }

    const Mesh &mesh() const { return *m_geometry->CurrentLevel(); }

    // A spiral about the middle of the view, each time about another place.
    static QVector<QPointF> spiral(int round)
    {
        const QPointF middle(640.0 + 6.0 * (round % 5 - 2), 380.0 + 6.0 * (round / 5 - 1));
        QVector<QPointF> way;
        for (int i = 0; i < Events; ++i) {
            const double angle = i * 0.02 + round;
            way.append(middle
                       + QPointF(std::cos(angle), std::sin(angle)) * (30.0 + round + i * 0.08));
        }
        return way;
    }

    Geometry *m_geometry = nullptr;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Meshes, StrokeSpeed, testing::Values("sphere", "bunny.obj"));

TEST_P(StrokeSpeed, aStrokeIsReadySoonAfterTheReleaseAndAPickIsNoWait)
{
    if (!showModel())
        GTEST_SKIP() << "The folder of real models is not at hand.";
    ASSERT_GT(mesh().FaceCount(), 69000);

    std::mt19937 random(testSeed());
    QVector<ViewRay> rays;
    QVector<QPointF> pixels;
    for (int i = 0; i < Rays; ++i) {
        pixels.append({double(randomBetween(random, 340.0f, 940.0f)),
                       double(randomBetween(random, 60.0f, 660.0f))});
        rays.append(context.camera.RayThrough(pixels.last()));
    }
    const BareRays bare(mesh());
    const SurfaceLocator *locator = context.Locator(*m_geometry);
    ASSERT_NE(locator, nullptr);
    int bareHits = 0;
    double start = worked();
    for (const ViewRay &ray : rays)
        bareHits += bare.meets(ray);
    const double bareRay = (worked() - start) / Rays;
    int hits = 0;
    start = worked();
    for (const ViewRay &ray : rays)
        hits += locator->Pick(ray.origin, ray.direction).FaceIndex() >= 0;
    const double ourRay = (worked() - start) / Rays;
    int seen = 0;
    start = worked();
    for (const QPointF &pixel : pixels)
        seen += surfaceAt(context.camera, context.VisibleSurfaces(), pixel).IsHit();
    const double pick = (worked() - start) / Rays;
    EXPECT_EQ(hits, bareHits);
    EXPECT_EQ(seen, bareHits);
    EXPECT_GT(hits, Rays / 10);

    take("draw");
    QVector<double> ready;
    QVector<double> adding;
    for (int round = 0; round < Strokes; ++round) {
        const QVector<QPointF> way = spiral(round);
        press(way.first());
        start = worked();
        for (const QPointF &pixel : way)
            moveTo(pixel);
        adding.append(worked() - start);
        start = worked();
        release(way.last());
        ready.append(worked() - start);
    }
    ASSERT_GE(curves().size(), Strokes);
    std::cout << GetParam() << ", " << mesh().FaceCount() << " triangles: a bare ray "
              << 1000.0 * bareRay << " us; the locator's " << 1000.0 * ourRay << " us ("
              << ourRay / bareRay << " of it); a pick in the view " << 1000.0 * pick << " us ("
              << pick / bareRay << " of it)\n"
              << Strokes << " strokes of " << Events << " events: an event "
              << 1000.0 * median(adding) / Events << " us, ready " << median(ready)
              << " ms after the release (median; worst "
              << *std::max_element(ready.cbegin(), ready.cend()) << " ms), as "
              << qRound(median(ready) / bareRay) << " bare rays" << std::endl;
    EXPECT_LT(median(ready), double(timeLimit(qint64(ReadyLimit))));
    EXPECT_LT(pick, PickLimit * double(timeLimit(1)));
    for (const OrvaneCurve *curve : curves())
        expectEven(*curve);
    expectSound();
}
