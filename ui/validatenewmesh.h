// SPDX-License-Identifier: MIT
#pragma once

namespace orvane {
class Mesh;
}

//! Is the mesh to be kept? True without a word when it has no faults; otherwise the user decides
//! in a modal dialog, and closing it in any way but "Accept" answers false. Accepting switches
//! the preference "Render Mesh Faults" on. The mesh itself is not touched.
bool validateNewMesh(orvane::Mesh *mesh);
