// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/meshroles.h"

#include "host/desktop/viewport/scenebounds.h"

#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

namespace orvane {

namespace {

const float BoxSlack = 0.03f; // fraction of the surface's diagonal

bool isWithin(const AxisAlignedBoundingBox &inner, const AxisAlignedBoundingBox &outer)
{
    return inner.minimum.x >= outer.minimum.x && inner.maximum.x <= outer.maximum.x
           && inner.minimum.y >= outer.minimum.y && inner.maximum.y <= outer.maximum.y
           && inner.minimum.z >= outer.minimum.z && inner.maximum.z <= outer.maximum.z;
}

bool liesOn(const Geometry &geometry, const Geometry &surface)
{
    if (&geometry == &surface || geometry.IsHidden()
        || geometry.Placement()->WorldMatrix() != surface.Placement()->WorldMatrix())
        return false;
    AxisAlignedBoundingBox box = boundsOf(surface);
    const AxisAlignedBoundingBox inner = boundsOf(geometry);
    if (box.IsEmpty() || inner.IsEmpty())
        return false;
    box.Grow(BoxSlack * box.Diagonal());
    return isWithin(inner, box);
}

} // namespace

MeshRole meshRole(const Geometry &geometry)
{
    const Geometry *surface = Kernel()->Scene()->DrawingSurface();
    const Geometry *active = Kernel()->Scene()->ActiveGeometry();
    if (!surface || !active || !liesOn(*active, *surface))
        return MeshRole::Plain;
    if (&geometry == surface)
        return MeshRole::Source;
    return liesOn(geometry, *surface) ? MeshRole::Over : MeshRole::Plain;
}

} // namespace orvane
