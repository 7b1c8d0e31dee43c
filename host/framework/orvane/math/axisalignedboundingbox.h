// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <limits>

namespace orvane {

//! The smallest box with sides along the axes that holds what was put into it.
//! Starts empty: minimum +infinity, maximum -infinity.
class AxisAlignedBoundingBox
{
public:
    bool IsEmpty() const { return !(minimum.x <= maximum.x); }
    Vector Center() const { return (minimum + maximum) * 0.5f; }
    Vector Size() const { return maximum - minimum; }
    //! Length of the diagonal, in scene units; 0 for an empty box.
    float Diagonal() const { return IsEmpty() ? 0.0f : Size().Length(); }

    //! Widens the box to hold the point. A coordinate that is not a number changes nothing.
    void Extend(const Vector &p)
    {
        extendAxis(minimum.x, maximum.x, p.x);
        extendAxis(minimum.y, maximum.y, p.y);
        extendAxis(minimum.z, maximum.z, p.z);
    }

    //! Moves every side outwards by the distance (inwards when negative), in scene units.
    void Grow(float distance)
    {
        const Vector step(distance, distance, distance);
        minimum -= step;
        maximum += step;
    }

    Vector minimum{Infinity, Infinity, Infinity};
    Vector maximum{-Infinity, -Infinity, -Infinity};

private:
    static constexpr float Infinity = std::numeric_limits<float>::infinity();

    static void extendAxis(float &low, float &high, float value)
    {
        if (value < low)
            low = value;
        if (value > high)
            high = value;
    }
};

} // namespace orvane
