// SPDX-License-Identifier: MIT
#pragma once

#include <array>

//! What the fault dialog shows for one kind of fault.
struct MeshFaultRow
{
    int bit;
    const char *icon; // relative path of a picture
    const char *text; // rich text, to be translated in the context of the dialog
};

//! Every kind of fault that is explained to the user, in the order of display.
const std::array<MeshFaultRow, 12> &meshFaultRows();
