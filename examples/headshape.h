// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

//! The sculpted head: a bust with its crown at y = 1.15, chin at y = -1.1 and the neck cut at
//! y = NeckCut. The face looks along +z; left and right are mirrored about x = 0.
namespace headshape {

const float NeckCut = -1.75f; // scene units
const float HeadSize = 2.9f;  // height from neck cut to crown, scene units

//! Signed distance to the surface, scene units, negative inside; right to first order near
//! the surface only.
float distance(const orvane::Vector &p);

//! Unit direction out of the surface; at a point off the surface, of the distance's growth.
orvane::Vector normal(const orvane::Vector &p);

//! The surface point that steps along the normal lead to. From within about a tenth of the
//! head it lands on the surface to a few millionths; from far away it may stop elsewhere.
orvane::Vector onSurface(orvane::Vector p);

//! Where a ray first meets the surface, coming from outside; from itself when it never does.
orvane::Vector castRay(const orvane::Vector &from, const orvane::Vector &direction);

} // namespace headshape
