// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/mesh.h>

namespace orvane {

//! A mesh that a geometry can list as one of its levels.
class ORVANE_EXPORT SubdivisionLevel : public Mesh
{
public:
    explicit SubdivisionLevel(FaceType type = Triangles) : Mesh(type) {}

    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();
};

} // namespace orvane
