// SPDX-License-Identifier: MIT
#include "host/desktop/view/shownsurfaces.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <algorithm>

namespace orvane {

const SurfaceLocator *locatorOf(const Geometry *geometry)
{
    const QVector<Geometry *> geometries = Kernel()->Scene()->Geometries();
    if (std::find(geometries.begin(), geometries.end(), geometry) == geometries.end())
        return nullptr;
    return geometry->CurrentLevel() ? &geometry->CurrentLevel()->Locator() : nullptr;
}

QVector<Geometry *> shownGeometries()
{
    QVector<Geometry *> result;
    const QVector<Geometry *> geometries = Kernel()->Scene()->Geometries();
    std::copy_if(geometries.begin(), geometries.end(), std::back_inserter(result),
                 [](const Geometry *g) { return !g->IsHidden() && g->CurrentLevel(); });
    return result;
}

SurfaceList shownSurfaces()
{
    SurfaceList result;
    const QVector<Geometry *> geometries = shownGeometries();
    for (const Geometry *geometry : geometries)
        result.append(&geometry->CurrentLevel()->Locator());
    return result;
}

} // namespace orvane
