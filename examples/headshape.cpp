// SPDX-License-Identifier: MIT
#include "examples/headshape.h"

#include "examples/sdf.h"

using orvane::Vector;

namespace headshape {

namespace {

const Vector EyeCentre(0.315f, 0.0f, 0.535f);
const float EyeRadius = 0.145f;
const Vector EarCentre(0.695f, -0.10f, -0.1f);

float skull(const Vector &p)
{
    const Vector q = sdf::mirrored(p);
    float d = sdf::ellipsoid(p - Vector(0.0f, 0.40f, -0.16f), {0.74f, 0.74f, 0.92f});
    const float front = sdf::ellipsoid(p - Vector(0.0f, 0.33f, 0.28f), {0.60f, 0.55f, 0.48f});
    d = sdf::join(d, front, 0.25f);
    const float temple = sdf::ellipsoid(q - Vector(0.82f, 0.12f, 0.52f), {0.18f, 0.30f, 0.30f});
    return sdf::carve(d, temple, 0.25f);
}

float jawAndCheeks(const Vector &p)
{
    const Vector q = sdf::mirrored(p);
    float d = sdf::ellipsoid(p - Vector(0.0f, -0.28f, 0.22f), {0.56f, 0.62f, 0.50f});
    const float muzzle = sdf::ellipsoid(p - Vector(0.0f, -0.62f, 0.42f), {0.32f, 0.36f, 0.36f});
    d = sdf::join(d, muzzle, 0.2f);
    const float jaw = sdf::rod(q, {0.47f, -0.52f, 0.0f}, {0.10f, -0.95f, 0.56f}, 0.13f, 0.11f);
    d = sdf::join(d, jaw, 0.22f);
    const float chin = sdf::ellipsoid(p - Vector(0.0f, -0.97f, 0.66f), {0.17f, 0.12f, 0.11f});
    d = sdf::join(d, chin, 0.14f);
    const float cheekBone =
        sdf::rod(q, {0.37f, -0.25f, 0.53f}, {0.60f, -0.12f, 0.15f}, 0.13f, 0.09f);
    return sdf::join(d, cheekBone, 0.22f);
}

float neck(const Vector &p)
{
    const Vector q = sdf::mirrored(p);
    float d = sdf::rod(p, {0.0f, -0.4f, -0.25f}, {0.0f, -2.0f, -0.34f}, 0.42f, 0.42f);
    const float shoulder = sdf::rod(q, {0.2f, -1.75f, -0.42f}, {1.1f, -2.2f, -0.42f}, 0.3f, 0.3f);
    d = sdf::join(d, shoulder, 0.4f);
    const float muscle = sdf::rod(q, {0.52f, -0.45f, -0.25f}, {0.09f, -1.75f, 0.10f}, 0.09f, 0.07f);
    return sdf::join(d, muscle, 0.14f);
}

float browAndSockets(float d, const Vector &q)
{
    const float socket = sdf::ellipsoid(q - Vector(0.315f, -0.01f, 0.78f), {0.19f, 0.115f, 0.14f});
    d = sdf::carve(d, socket, 0.16f);
    const float brow = sdf::rod(q, {0.15f, 0.155f, 0.68f}, {0.45f, 0.17f, 0.53f}, 0.055f, 0.04f);
    return sdf::join(d, brow, 0.14f);
}

// The lid is a ball round the eye, open in a wedge whose hinge runs from corner to corner.
float eye(float d, const Vector &q)
{
    Vector local = sdf::yawed(q - EyeCentre, -0.22f);
    local = sdf::rolled(local, -0.08f);
    const float ball = sdf::sphere(local, EyeRadius);
    const Vector hinged(local.x, local.y, local.z - 0.035f);
    const float below = hinged.y * 0.87f - hinged.z * 0.47f;
    const float above = -hinged.y * 0.95f - hinged.z * 0.30f;
    const float wedge = sdf::common(below, above, 0.01f);
    float lid = sdf::sphere(local, EyeRadius + 0.032f);
    lid = sdf::carve(lid, wedge, 0.02f);
    d = sdf::carve(d, sdf::common(wedge, sdf::sphere(local, EyeRadius + 0.05f), 0.03f), 0.03f);
    d = sdf::join(d, lid, 0.05f);
    const float iris = sdf::sphere(local - Vector(0.0f, 0.0f, EyeRadius + 0.03f), 0.055f);
    return sdf::join(d, sdf::carve(ball, iris, 0.015f), 0.012f);
}

float nose(float d, const Vector &p, const Vector &q)
{
    const float bridge = sdf::rod(p, {0.0f, 0.09f, 0.70f}, {0.0f, -0.33f, 0.90f}, 0.06f, 0.078f);
    d = sdf::join(d, bridge, 0.16f);
    const float tip = sdf::ellipsoid(p - Vector(0.0f, -0.37f, 0.935f), {0.088f, 0.078f, 0.085f});
    d = sdf::join(d, tip, 0.09f);
    const float wing = sdf::ellipsoid(q - Vector(0.095f, -0.40f, 0.84f), {0.065f, 0.062f, 0.095f});
    d = sdf::join(d, wing, 0.085f);
    const float nostril = sdf::ellipsoid(q - Vector(0.062f, -0.46f, 0.87f), {0.03f, 0.04f, 0.045f});
    return sdf::carve(d, nostril, 0.03f);
}

float mouth(float d, const Vector &p, const Vector &q)
{
    const float upper = sdf::rod(q, {0.0f, -0.606f, 0.815f}, {0.21f, -0.66f, 0.70f}, 0.05f, 0.02f);
    d = sdf::join(d, upper, 0.07f);
    const float lower = sdf::rod(q, {0.0f, -0.708f, 0.80f}, {0.19f, -0.668f, 0.70f}, 0.05f, 0.02f);
    d = sdf::join(d, lower, 0.07f);
    const float philtrum = sdf::rod(p, {0.0f, -0.47f, 0.90f}, {0.0f, -0.56f, 0.90f}, 0.03f, 0.04f);
    d = sdf::carve(d, philtrum, 0.08f);
    const float parting =
        sdf::rod(q, {0.0f, -0.652f, 0.86f}, {0.25f, -0.665f, 0.70f}, 0.012f, 0.012f);
    return sdf::carve(d, parting, 0.03f);
}

float ear(const Vector &q)
{
    Vector local = sdf::pitched(q - EarCentre, 0.18f);
    local = sdf::yawed(local, -0.42f);
    const float squeeze = 1.0f + 0.35f * local.y;
    const Vector egg(local.x, local.y, local.z / squeeze);
    float d = sdf::ellipsoid(egg, {0.06f, 0.27f, 0.18f});
    const float dish = sdf::ellipsoid(egg - Vector(0.09f, 0.03f, 0.0f), {0.085f, 0.24f, 0.13f});
    d = sdf::carve(d, dish, 0.05f);
    const float concha =
        sdf::ellipsoid(local - Vector(0.06f, -0.05f, 0.03f), {0.09f, 0.11f, 0.085f});
    d = sdf::carve(d, concha, 0.04f);
    const float tragus =
        sdf::ellipsoid(local - Vector(-0.01f, -0.06f, 0.14f), {0.05f, 0.055f, 0.04f});
    return sdf::join(d, tragus, 0.04f);
}

} // namespace

float distance(const Vector &p)
{
    const Vector q = sdf::mirrored(p);
    float d = sdf::join(skull(p), jawAndCheeks(p), 0.2f);
    d = sdf::join(d, neck(p), 0.16f);
    if (p.z > 0.2f && p.y > -1.0f && p.y < 0.6f) {
        d = browAndSockets(d, q);
        d = nose(d, p, q);
        d = mouth(d, p, q);
        d = eye(d, q);
    }
    if ((q - EarCentre).Length() < 0.6f)
        d = sdf::join(d, ear(q), 0.10f);
    return sdf::common(d, NeckCut - p.y, 0.03f);
}

Vector normal(const Vector &p)
{
    const float e = 0.0015f;
    const Vector a(e, -e, -e);
    const Vector b(-e, -e, e);
    const Vector c(-e, e, -e);
    const Vector d(e, e, e);
    return Normalized(a * distance(p + a) + b * distance(p + b) + c * distance(p + c)
                      + d * distance(p + d));
}

Vector onSurface(Vector p)
{
    for (int step = 0; step < 12; ++step) {
        const float d = distance(p);
        if (std::abs(d) < 1e-6f)
            break;
        p -= normal(p) * d;
    }
    return p;
}

Vector castRay(const Vector &from, const Vector &direction)
{
    const Vector unit = Normalized(direction);
    float travelled = 0.0f;
    for (int step = 0; step < 300 && travelled < 8.0f; ++step) {
        const Vector p = from + unit * travelled;
        const float d = distance(p);
        if (d < 1e-5f)
            return onSurface(p);
        travelled += 0.7f * d;
    }
    return from;
}

} // namespace headshape
