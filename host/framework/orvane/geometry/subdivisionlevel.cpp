// SPDX-License-Identifier: MIT
#include <orvane/geometry/subdivisionlevel.h>

#include <orvane/base/classdesc.h>

namespace orvane {

const ClassDesc *SubdivisionLevel::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *SubdivisionLevel::StaticClass()
{
    static const ClassDesc desc(Mesh::StaticClass(), Mesh::StaticClass(), "SubdivisionLevel",
                                "Subdivision Level", createInstances<SubdivisionLevel>, 0, 0);
    return &desc;
}

namespace {
const ClassDesc *const Registered = SubdivisionLevel::StaticClass();
} // namespace

} // namespace orvane
