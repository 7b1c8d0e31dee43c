// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

namespace orvane {

//! A point or direction of the view in doubles: close to a surface, a pixel is smaller than the
//! steps between floats.
struct DoubleVector
{
    DoubleVector() = default;
    DoubleVector(double ax, double ay, double az) : x(ax), y(ay), z(az) {}
    explicit DoubleVector(const Vector &v) : x(double(v.x)), y(double(v.y)), z(double(v.z)) {}

    Vector Rounded() const { return {float(x), float(y), float(z)}; }

    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

inline DoubleVector operator+(const DoubleVector &a, const DoubleVector &b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline DoubleVector operator-(const DoubleVector &a, const DoubleVector &b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline DoubleVector operator*(const DoubleVector &a, double s)
{
    return {a.x * s, a.y * s, a.z * s};
}
inline double Dot(const DoubleVector &a, const DoubleVector &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

} // namespace orvane
