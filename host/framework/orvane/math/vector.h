// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

namespace orvane {

//! A point or a direction in space: three 32-bit floats.
class Vector
{
public:
    constexpr Vector() = default;
    constexpr Vector(float ax, float ay, float az) : x(ax), y(ay), z(az) {}

    //! Squared length, in square units; single precision throughout.
    constexpr float LengthSquared() const { return x * x + y * y + z * z; }
    float Length() const { return std::sqrt(LengthSquared()); }
    bool IsFinite() const { return std::isfinite(x) && std::isfinite(y) && std::isfinite(z); }

    //! Scales to length 1, in place. A zero vector stays zero.
    Vector &Normalize()
    {
        const float length = Length();
        if (length > 0.0f)
            *this /= length;
        return *this;
    }

    constexpr Vector &operator+=(const Vector &v)
    {
        x += v.x;
        y += v.y;
        z += v.z;
        return *this;
    }
    constexpr Vector &operator-=(const Vector &v)
    {
        x -= v.x;
        y -= v.y;
        z -= v.z;
        return *this;
    }
    constexpr Vector &operator*=(float s)
    {
        x *= s;
        y *= s;
        z *= s;
        return *this;
    }
    constexpr Vector &operator/=(float s)
    {
        x /= s;
        y /= s;
        z /= s;
        return *this;
    }

    float x = 0.0f;
    float y = 0.0f;
    float z = 0.0f;
};

constexpr Vector operator+(Vector a, const Vector &b)
{
    return a += b;
}
constexpr Vector operator-(Vector a, const Vector &b)
{
    return a -= b;
}
constexpr Vector operator-(const Vector &a)
{
    return {-a.x, -a.y, -a.z};
}
constexpr Vector operator*(Vector a, float s)
{
    return a *= s;
}
constexpr Vector operator/(Vector a, float s)
{
    return a /= s;
}
constexpr bool operator==(const Vector &a, const Vector &b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}
constexpr bool operator!=(const Vector &a, const Vector &b)
{
    return !(a == b);
}

//! Right-handed cross product.
constexpr Vector operator&(const Vector &a, const Vector &b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

constexpr float Dot(const Vector &a, const Vector &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

//! A copy of length 1; a zero vector stays zero.
inline Vector Normalized(Vector v)
{
    return v.Normalize();
}

} // namespace orvane
