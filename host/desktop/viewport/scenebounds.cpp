// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/scenebounds.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

namespace orvane {

namespace {

// accept(node) for the geometries and curves that are shown.
template <typename Accept>
AxisAlignedBoundingBox boundsOfShown(Accept accept)
{
    AxisAlignedBoundingBox box;
    const Scene &scene = *Kernel()->Scene();
    for (int i = 0; i < scene.NodeCount(); ++i) {
        const Node *node = scene.NodeAt(i);
        const auto *geometry = dynamic_cast<const Geometry *>(node);
        if (geometry && !geometry->IsHidden() && accept(*geometry))
            box = joined(box, boundsOf(*geometry));
        const auto *curve = dynamic_cast<const OrvaneCurve *>(node);
        if (curve && !curve->IsHidden() && accept(*curve))
            box = joined(box, boundsOf(*curve));
    }
    return box;
}

} // namespace

AxisAlignedBoundingBox boundsOf(const Geometry &geometry)
{
    const Mesh *mesh = geometry.CurrentLevel();
    if (!mesh || mesh->Bounds().IsEmpty())
        return {};
    if (geometry.Placement()->IsIdentity())
        return mesh->Bounds();
    AxisAlignedBoundingBox box;
    const Vector ends[] = {mesh->Bounds().minimum, mesh->Bounds().maximum};
    for (int corner = 0; corner < 8; ++corner) {
        const Vector place(ends[corner & 1].x, ends[(corner >> 1) & 1].y, ends[corner >> 2].z);
        box.Extend(geometry.Placement()->ToWorld(place));
    }
    return box;
}

AxisAlignedBoundingBox boundsOf(const OrvaneCurve &curve)
{
    AxisAlignedBoundingBox box;
    for (const CurvePoint &point : curve.Points())
        box.Extend(point.position);
    return box;
}

AxisAlignedBoundingBox shownBounds()
{
    return boundsOfShown([](const auto &) { return true; });
}

AxisAlignedBoundingBox selectionBounds()
{
    const AxisAlignedBoundingBox selected =
        boundsOfShown([](const auto &node) { return node.Selected(); });
    if (!selected.IsEmpty())
        return selected;
    const Geometry *active = Kernel()->Scene()->ActiveGeometry();
    const bool isShown = active && !active->IsHidden();
    const AxisAlignedBoundingBox box = isShown ? boundsOf(*active) : AxisAlignedBoundingBox();
    return box.IsEmpty() ? shownBounds() : box;
}

AxisAlignedBoundingBox joined(AxisAlignedBoundingBox a, const AxisAlignedBoundingBox &b)
{
    if (b.IsEmpty())
        return a;
    a.Extend(b.minimum);
    a.Extend(b.maximum);
    return a;
}

} // namespace orvane
