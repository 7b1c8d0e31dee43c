// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/operations/reshapeoperation.h>

namespace orvane {

//! Smooths the mesh of a geometry along its source, as relaxedPlaces does.
class ORVANE_EXPORT RelaxOperation : public ReshapeOperation
{
public:
    //! steps: from 1 to 100; strength: from 0 to 1. What is beyond is brought into that range.
    explicit RelaxOperation(const Geometry *geometry = nullptr, const Geometry *source = nullptr,
                            int steps = 1, float strength = 1.0f);

    void Serialize(Stream &stream) override;
    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();

protected:
    std::vector<SurfacePlace> NewPlaces(const Mesh &mesh,
                                        const SourceSurface &surface) const override;

private:
    int m_steps;
    float m_strength;
};

} // namespace orvane
