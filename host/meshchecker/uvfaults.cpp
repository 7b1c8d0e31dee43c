// SPDX-License-Identifier: MIT
#include "host/meshchecker/uvfaults.h"

#include "host/meshchecker/facefaults.h"
#include "host/meshchecker/meshshape.h"

#include <orvane/geometry/mesh.h>
#include <orvane/math/axisalignedboundingbox.h>

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

const double TileTolerance = 1e-6; // in tiles

bool isUV(const Mesh &mesh, int uv)
{
    return uv >= 0 && uv < mesh.UVCount();
}

// The highest tile that still starts at or below low reaches farthest up.
bool leavesTile(double low, double high)
{
    return high > std::floor(low + TileTolerance) + 1.0 + TileTolerance;
}

bool crossesTiles(const MeshShape &shape, int polygon)
{
    AxisAlignedBoundingBox box; // z is of no use here
    for (int i = 0; i < shape.polygons.CornerCount(polygon); ++i) {
        const int uv = shape.polygons.uvCorners[shape.polygons.firstCorner[polygon] + i];
        if (!isUV(shape.mesh, uv))
            continue;
        const UV coordinate = shape.mesh.TextureCoordinate(uv);
        box.Extend(Vector(coordinate.u, coordinate.v, 0.0f));
    }
    return leavesTile(box.minimum.x, box.maximum.x) || leavesTile(box.minimum.y, box.maximum.y);
}

bool lacksUV(const MeshShape &shape, int polygon)
{
    const auto begin = shape.polygons.uvCorners.cbegin();
    return !std::all_of(begin + shape.polygons.firstCorner[polygon],
                        begin + shape.polygons.firstCorner[polygon + 1],
                        [&shape](int uv) { return isUV(shape.mesh, uv); });
}

} // namespace

MeshFault uvCrossings(const MeshShape &shape)
{
    if (!shape.mesh.HasUVs())
        return {};
    return faultyPolygons(MeshChecker::UVCrossing, shape.polygons,
                          [&shape](int p) { return crossesTiles(shape, p); });
}

MeshFault missingUVs(const MeshShape &shape)
{
    const QVector<int> &uvs = shape.polygons.uvCorners;
    const bool hasAny =
        std::any_of(uvs.cbegin(), uvs.cend(), [&shape](int uv) { return isUV(shape.mesh, uv); });
    if (!hasAny)
        return {};
    return faultyPolygons(MeshChecker::MissingUVs, shape.polygons,
                          [&shape](int p) { return lacksUV(shape, p); });
}

} // namespace orvane
