// SPDX-License-Identifier: MIT
#include "host/desktop/view/surfacecache.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/geometry/surfacelocator.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <algorithm>

namespace orvane {

// Shares its arrays with the mesh: one that changes gets new arrays while we hold the old ones.
struct SurfaceCache::Entry
{
    explicit Entry(const Geometry &source)
        : geometry(&source),
          mesh(source.CurrentLevel()),
          positions(mesh->Positions()),
          corners(mesh->Corners()),
          placement(source.Placement()->WorldMatrix()),
          locator(*mesh)
    {}

    bool IsOf(const Geometry &source) const
    {
        const Mesh *level = source.CurrentLevel();
        return level == mesh && level->Positions().constData() == positions.constData()
               && level->Positions().size() == positions.size()
               && level->Corners().constData() == corners.constData()
               && level->Corners().size() == corners.size()
               && source.Placement()->WorldMatrix() == placement;
    }

    const Geometry *geometry;
    const Mesh *mesh;
    QVector<Vector> positions;
    QVector<int> corners;
    Matrix placement;
    SurfaceLocator locator;
};

SurfaceCache::SurfaceCache() = default;
SurfaceCache::~SurfaceCache() = default;

const SurfaceLocator *SurfaceCache::LocatorOf(const Geometry *geometry)
{
    const QVector<Geometry *> geometries = Kernel()->Scene()->Geometries();
    dropOthers(geometries);
    if (std::find(geometries.begin(), geometries.end(), geometry) == geometries.end())
        return nullptr;
    return locatorOf(geometry);
}

QVector<Geometry *> SurfaceCache::VisibleGeometries() const
{
    QVector<Geometry *> result;
    const QVector<Geometry *> geometries = Kernel()->Scene()->Geometries();
    std::copy_if(geometries.begin(), geometries.end(), std::back_inserter(result),
                 [](const Geometry *g) { return !g->IsHidden() && g->CurrentLevel(); });
    return result;
}

SurfaceList SurfaceCache::Visible()
{
    dropOthers(Kernel()->Scene()->Geometries());
    SurfaceList result;
    const QVector<Geometry *> geometries = VisibleGeometries();
    for (const Geometry *geometry : geometries)
        result.append(locatorOf(geometry));
    return result;
}

void SurfaceCache::dropOthers(const QVector<Geometry *> &geometries)
{
    const auto left = [&geometries](const std::unique_ptr<Entry> &entry) {
        return std::find(geometries.begin(), geometries.end(), entry->geometry) == geometries.end();
    };
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), left), m_entries.end());
}

const SurfaceLocator *SurfaceCache::locatorOf(const Geometry *geometry)
{
    const auto known =
        std::find_if(m_entries.begin(), m_entries.end(),
                     [geometry](const auto &entry) { return entry->geometry == geometry; });
    if (known != m_entries.end() && geometry->CurrentLevel() && (*known)->IsOf(*geometry))
        return &(*known)->locator;
    if (known != m_entries.end())
        m_entries.erase(known);
    if (!geometry->CurrentLevel())
        return nullptr;
    m_entries.push_back(std::make_unique<Entry>(*geometry));
    ++m_builds;
    return &m_entries.back()->locator;
}

} // namespace orvane
