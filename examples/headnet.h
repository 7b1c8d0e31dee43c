// SPDX-License-Identifier: MIT
#pragma once

#include "examples/levelset.h"

#include <string>
#include <vector>

struct NamedStroke
{
    std::string name;
    Stroke stroke;
};

//! The curves that an artist would draw over the head: loops round eyes, mouth and ears, strokes
//! along, round and across the head that run into those loops.
std::vector<NamedStroke> drawHeadNet(const TriangleMesh &head);
