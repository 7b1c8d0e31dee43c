// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/mesh.h>

//! Mean edge length of a face, in scene units, single precision; the face exists.
inline float meanEdgeLength(const orvane::Mesh &mesh, int face)
{
    const float third = 0.333333f; // not 1/3: recorded commands must repeat to the same mesh
    if (mesh.IsQuads()) {
        const orvane::Vector q0 = mesh.QuadVertexPosition(face, 0);
        const orvane::Vector q1 = mesh.QuadVertexPosition(face, 1);
        const orvane::Vector q2 = mesh.QuadVertexPosition(face, 2);
        const orvane::Vector q3 = mesh.QuadVertexPosition(face, 3);
        return ((q1 - q0).Length() + (q2 - q1).Length() + (q3 - q2).Length() + (q0 - q3).Length())
               * 0.25f;
    }
    const orvane::Vector t0 = mesh.TriangleVertexPosition(face, 0);
    const orvane::Vector t1 = mesh.TriangleVertexPosition(face, 1);
    const orvane::Vector t2 = mesh.TriangleVertexPosition(face, 2);
    return ((t1 - t0).Length() + (t2 - t1).Length() + (t0 - t2).Length()) * third;
}
