// SPDX-License-Identifier: MIT
#include <orvane/geometry/surfacelocator.h>

#include <orvane/geometry/mesh.h>

#include <embree3/rtcore.h>

#include <limits>

namespace orvane {

struct SurfaceLocator::Scene
{
    ~Scene()
    {
        if (scene)
            rtcReleaseScene(scene);
        if (device)
            rtcReleaseDevice(device);
    }

    RTCDevice device = nullptr;
    RTCScene scene = nullptr;
    const float *places = nullptr; // three a vertex, in world space; owned by the scene
};

namespace {

const float RadiusSlack = 1e-6f; // fraction of the largest coordinate in play

// A place on a triangle: p0 + s (p1 - p0) + t (p2 - p0).
struct TrianglePlace
{
    float s = 0.0f;
    float t = 0.0f;
};

float fraction(double part, double whole)
{
    return whole > 0.0 ? float(part / whole) : 0.0f;
}

// Doubles, because what decides the region is a difference of products: over a narrow triangle
// floats would lose it.
struct Step
{
    Step(const Vector &from, const Vector &to)
        : x(double(to.x) - double(from.x)),
          y(double(to.y) - double(from.y)),
          z(double(to.z) - double(from.z))
    {}

    double x;
    double y;
    double z;
};

double dot(const Step &a, const Step &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

// C. Ericson, "Real-Time Collision Detection", 2005, section 5.1.5: the regions of a triangle.
TrianglePlace closestOnTriangle(const Vector &p, const Vector &a, const Vector &b, const Vector &c)
{
    const Step ab(a, b);
    const Step ac(a, c);
    const double d1 = dot(ab, Step(a, p));
    const double d2 = dot(ac, Step(a, p));
    if (d1 <= 0.0 && d2 <= 0.0)
        return {0.0f, 0.0f};
    const double d3 = dot(ab, Step(b, p));
    const double d4 = dot(ac, Step(b, p));
    if (d3 >= 0.0 && d4 <= d3)
        return {1.0f, 0.0f};
    const double vc = d1 * d4 - d3 * d2;
    if (vc <= 0.0 && d1 >= 0.0 && d3 <= 0.0)
        return {fraction(d1, d1 - d3), 0.0f};
    const double d5 = dot(ab, Step(c, p));
    const double d6 = dot(ac, Step(c, p));
    if (d6 >= 0.0 && d5 <= d6)
        return {0.0f, 1.0f};
    const double vb = d5 * d2 - d1 * d6;
    if (vb <= 0.0 && d2 >= 0.0 && d6 <= 0.0)
        return {0.0f, fraction(d2, d2 - d6)};
    const double va = d3 * d6 - d5 * d4;
    if (va <= 0.0 && d4 >= d3 && d5 >= d6) {
        const float w = fraction(d4 - d3, (d4 - d3) + (d5 - d6));
        return {1.0f - w, w};
    }
    const double sum = va + vb + vc;
    return {fraction(vb, sum), fraction(vc, sum)};
}

// Embree sees a quad as the triangles 0-1-2 and 0-2-3: primitive 2f and 2f + 1 of face f.
SurfacePoint surfacePointOf(const Mesh &mesh, int primitive, const TrianglePlace &place)
{
    if (!mesh.IsQuads())
        return {mesh, primitive, place.s, place.t};
    if (primitive % 2 == 0)
        return {mesh, primitive / 2, place.s + place.t, place.t};
    return {mesh, primitive / 2, place.s, place.s + place.t};
}

struct Search
{
    const Mesh *mesh;
    const float *places;
    Vector place;
    float distanceSquared;
    int primitive = -1;
    TrianglePlace found;
};

void cornersOf(const Mesh &mesh, int primitive, int (&vertex)[3])
{
    const bool quads = mesh.IsQuads();
    const int *corner = mesh.Corners().constData() + (quads ? primitive / 2 * 4 : primitive * 3);
    const int second = quads && primitive % 2 == 1 ? 2 : 1;
    vertex[0] = corner[0];
    vertex[1] = corner[second];
    vertex[2] = corner[second + 1];
}

Vector placeOf(const float *places, int vertex)
{
    const float *place = places + 3 * qint64(vertex);
    return {place[0], place[1], place[2]};
}

bool visitPrimitive(RTCPointQueryFunctionArguments *arguments)
{
    Search &search = *static_cast<Search *>(arguments->userPtr);
    const int primitive = int(arguments->primID);
    int vertex[3];
    cornersOf(*search.mesh, primitive, vertex);
    const Vector a = placeOf(search.places, vertex[0]);
    const Vector b = placeOf(search.places, vertex[1]);
    const Vector c = placeOf(search.places, vertex[2]);
    const TrianglePlace place = closestOnTriangle(search.place, a, b, c);
    const Vector offset = a + (b - a) * place.s + (c - a) * place.t - search.place;
    const float distanceSquared = offset.LengthSquared();
    const bool closer = distanceSquared < search.distanceSquared;
    const bool tie = distanceSquared == search.distanceSquared
                     && (search.primitive < 0 || primitive < search.primitive);
    if (!closer && !tie)
        return false;
    search.distanceSquared = distanceSquared;
    search.primitive = primitive;
    search.found = place;
    // An equally close face must not be hidden by rounding: which one is found first depends on
    // the processor.
    const float distance = std::sqrt(distanceSquared);
    arguments->query->radius = distance + (distance + search.place.Length()) * RadiusSlack;
    return true;
}

// The places of the vertices as Embree has them.
const float *addFaces(RTCGeometry geometry, const Mesh &mesh)
{
    auto *position = static_cast<float *>(
        rtcSetNewGeometryBuffer(geometry, RTC_BUFFER_TYPE_VERTEX, 0, RTC_FORMAT_FLOAT3,
                                3 * sizeof(float), size_t(mesh.VertexCount())));
    Q_CHECK_PTR(position);
    for (int v = 0; v < mesh.VertexCount(); ++v) {
        const Vector world = mesh.WorldVertexPosition(v);
        position[3 * v] = world.x;
        position[3 * v + 1] = world.y;
        position[3 * v + 2] = world.z;
    }
    const int triangles = mesh.FaceCount() * (mesh.CornersPerFace() - 2);
    auto *index = static_cast<unsigned *>(
        rtcSetNewGeometryBuffer(geometry, RTC_BUFFER_TYPE_INDEX, 0, RTC_FORMAT_UINT3,
                                3 * sizeof(unsigned), size_t(triangles)));
    Q_CHECK_PTR(index);
    for (int primitive = 0; primitive < triangles; ++primitive) {
        int vertex[3];
        cornersOf(mesh, primitive, vertex);
        for (int i = 0; i < 3; ++i)
            index[3 * primitive + i] = unsigned(vertex[i]);
    }
    return position;
}

} // namespace

SurfaceLocator::SurfaceLocator(const Mesh &mesh) : m_mesh(mesh), m_scene(new Scene)
{
    m_scene->device = rtcNewDevice(nullptr);
    Q_CHECK_PTR(m_scene->device); // where there is a processor, memory is what lacks
    m_scene->scene = rtcNewScene(m_scene->device);
    rtcSetSceneFlags(m_scene->scene, RTC_SCENE_FLAG_ROBUST);
    if (mesh.FaceCount() > 0) {
        RTCGeometry geometry = rtcNewGeometry(m_scene->device, RTC_GEOMETRY_TYPE_TRIANGLE);
        m_scene->places = addFaces(geometry, mesh);
        rtcCommitGeometry(geometry);
        rtcAttachGeometry(m_scene->scene, geometry);
        rtcReleaseGeometry(geometry);
    }
    rtcCommitScene(m_scene->scene);
    // Half a scene would answer that there is no surface where there is one.
    if (rtcGetDeviceError(m_scene->device) != RTC_ERROR_NONE)
        qBadAlloc();
}

SurfaceLocator::~SurfaceLocator() = default;

SurfacePoint SurfaceLocator::ClosestPoint(const Vector &place, float maxDistance) const
{
    if (!place.IsFinite() || !(maxDistance >= 0.0f))
        return {};
    // A rounding of the radius must not hide the face that a point lies on exactly.
    const float radius = std::nextafter(maxDistance, std::numeric_limits<float>::max());
    Search search{&m_mesh, m_scene->places, place, radius * radius, -1, {}};
    RTCPointQuery query;
    query.x = place.x;
    query.y = place.y;
    query.z = place.z;
    query.time = 0.0f;
    query.radius = radius;
    RTCPointQueryContext context;
    rtcInitPointQueryContext(&context);
    rtcPointQuery(m_scene->scene, &query, &context, visitPrimitive, &search);
    return search.primitive < 0 ? SurfacePoint()
                                : surfacePointOf(m_mesh, search.primitive, search.found);
}

SurfacePoint SurfaceLocator::Pick(const Vector &origin, const Vector &direction) const
{
    if (!origin.IsFinite() || !direction.IsFinite())
        return {};
    RTCRayHit hit = {};
    hit.ray.org_x = origin.x;
    hit.ray.org_y = origin.y;
    hit.ray.org_z = origin.z;
    hit.ray.dir_x = direction.x;
    hit.ray.dir_y = direction.y;
    hit.ray.dir_z = direction.z;
    hit.ray.tfar = std::numeric_limits<float>::infinity();
    hit.ray.mask = ~0u;
    hit.hit.geomID = RTC_INVALID_GEOMETRY_ID;
    RTCIntersectContext context;
    rtcInitIntersectContext(&context);
    rtcIntersect1(m_scene->scene, &context, &hit);
    if (hit.hit.geomID == RTC_INVALID_GEOMETRY_ID)
        return {};
    return surfacePointOf(m_mesh, int(hit.hit.primID), {hit.hit.u, hit.hit.v});
}

} // namespace orvane
