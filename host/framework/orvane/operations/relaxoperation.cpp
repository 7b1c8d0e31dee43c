// SPDX-License-Identifier: MIT
#include <orvane/operations/relaxoperation.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/stream.h>
#include <orvane/operations/relaxation.h>

namespace orvane {

namespace {

const int MaximumSteps = 100; // count: damaged bytes must not keep the host busy for hours

} // namespace

RelaxOperation::RelaxOperation(const Geometry *geometry, const Geometry *source, int steps,
                               float strength)
    : ReshapeOperation(geometry, source), m_steps(steps), m_strength(strength)
{}

std::vector<SurfacePlace> RelaxOperation::NewPlaces(const Mesh &mesh,
                                                    const SourceSurface &surface) const
{
    const float strength = m_strength > 0.0f ? qMin(m_strength, 1.0f) : 0.0f; // no number: 0
    return relaxedPlaces(mesh, surface, qBound(1, m_steps, MaximumSteps), strength);
}

void RelaxOperation::Serialize(Stream &stream)
{
    ReshapeOperation::Serialize(stream);
    stream.Transfer(m_steps);
    stream.Transfer(m_strength);
}

const ClassDesc *RelaxOperation::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *RelaxOperation::StaticClass()
{
    static const ClassDesc desc(Operation::StaticClass(), Operation::StaticClass(),
                                "RelaxOperation",
                                QT_TRANSLATE_NOOP("RelaxOperation", "Smooth along Source"),
                                createInstances<RelaxOperation>, 0, 0);
    return &desc;
}

namespace {
const ClassDesc *const Registered = RelaxOperation::StaticClass();
} // namespace

} // namespace orvane
