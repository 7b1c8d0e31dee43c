// SPDX-License-Identifier: MIT
#pragma once

#include "cli/surface.h"

//! From which side to look, of length 1: of a few dozen upright views the one that shows most
//! of the surfaces. What hides counts for nothing itself but hides surfaces well behind it.
//! Views from slightly above, three quarters round and with +z in front are preferred a little.
//! The same input gives the same answer; without surfaces it is such a preferred view.
orvane::Vector goodAngle(const QVector<Surface> &surfaces, const QVector<Surface> &hiders);
