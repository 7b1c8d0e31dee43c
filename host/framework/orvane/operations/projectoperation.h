// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/operations/reshapeoperation.h>

namespace orvane {

//! Puts every vertex of the mesh of a geometry onto its source, where that is closest.
class ORVANE_EXPORT ProjectOperation : public ReshapeOperation
{
public:
    explicit ProjectOperation(const Geometry *geometry = nullptr, const Geometry *source = nullptr);

    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();

protected:
    std::vector<SurfacePlace> NewPlaces(const Mesh &mesh,
                                        const SourceSurface &surface) const override;
};

} // namespace orvane
