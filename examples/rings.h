// SPDX-License-Identifier: MIT
#pragma once

#include "examples/levelset.h"

#include <string>
#include <vector>

//! A feature of the face with loops round it: an ellipse seen along an axis, and laid on the head.
struct Ring
{
    //! Distance from the centre, 1 on the outer loop; far more than 1 on the other side.
    float reach(const orvane::Vector &p) const;
    //! The surface point seen at an angle (radians, from right to up) and a reach.
    orvane::Vector place(float angle, float reach) const;
    float angleOf(const orvane::Vector &p) const;
    //! A closed loop of constant reach.
    Stroke loop(float reach) const;

    std::string name;
    orvane::Vector centre;
    orvane::Vector right;
    orvane::Vector up;
    orvane::Vector out;       // towards who looks at it
    float radiusRight = 0.0f; // of the outer loop, scene units
    float radiusUp = 0.0f;
    std::vector<float> loops; // reach of each, the outer one first
};

//! The parts of a stroke outside every ring. Where a stroke meets a ring, the part goes on straight
//! towards the ring's centre, a little past the innermost loop; every third one stops just short
//! of a lone loop instead, as a hurried hand does.
std::vector<Stroke> bentAtRings(const Stroke &stroke, const std::vector<Ring> &rings);
