// SPDX-License-Identifier: MIT
#pragma once

#include "examples/levelset.h"

float lengthOf(const Stroke &stroke);

//! The stroke as a hand draws it: points about spacing apart (scene units), wavering slightly along
//! the surface, each on the surface. seed: another hand. The ends stay where they are.
Stroke handDrawn(const Stroke &stroke, float spacing, int seed);
