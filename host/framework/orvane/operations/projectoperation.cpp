// SPDX-License-Identifier: MIT
#include <orvane/operations/projectoperation.h>

#include <orvane/base/classdesc.h>

namespace orvane {

ProjectOperation::ProjectOperation(const Geometry *geometry, const Geometry *source)
    : ReshapeOperation(geometry, source)
{}

std::vector<SurfacePlace> ProjectOperation::NewPlaces(const Mesh &mesh,
                                                      const SourceSurface &surface) const
{
    return placesOn(surface, mesh);
}

const ClassDesc *ProjectOperation::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *ProjectOperation::StaticClass()
{
    static const ClassDesc desc(Operation::StaticClass(), Operation::StaticClass(),
                                "ProjectOperation",
                                QT_TRANSLATE_NOOP("ProjectOperation", "Put onto Source"),
                                createInstances<ProjectOperation>, 0, 0);
    return &desc;
}

namespace {
const ClassDesc *const Registered = ProjectOperation::StaticClass();
} // namespace

} // namespace orvane
