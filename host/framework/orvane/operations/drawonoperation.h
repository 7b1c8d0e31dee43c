// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/operation.h>

namespace orvane {

class Geometry;

//! Chooses the geometry that curve tools draw on.
class ORVANE_EXPORT DrawOnOperation : public Operation
{
public:
    explicit DrawOnOperation(const Geometry *geometry = nullptr);

    //! False at the first execution when the geometry is missing or is drawn on already, and later
    //! when another choice was made in the meantime.
    bool ExecuteAndInvert() override;
    void Serialize(Stream &stream) override;
    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();

private:
    int m_next;       // number of the geometry to choose; 0 leaves the choice to the scene
    int m_chosen = 0; // the choice that the next execution takes back
    bool m_first = true;
};

} // namespace orvane
