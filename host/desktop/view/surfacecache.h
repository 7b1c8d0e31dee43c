// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/screenpick.h"

#include <memory>
#include <vector>

namespace orvane {

class Geometry;

//! Finds places on the surfaces of the kernel's scene: a locator for each geometry, kept until its
//! shown level, the shape of that or its placement changes, or until it leaves the scene. Answers
//! are good until the scene changes: ask anew at every event. While all stays the same, asking
//! costs a look at each geometry.
class SurfaceCache
{
public:
    SurfaceCache();
    ~SurfaceCache();
    SurfaceCache(const SurfaceCache &) = delete;
    SurfaceCache &operator=(const SurfaceCache &) = delete;

    //! Null for a geometry that is not in the scene or has no level; hidden ones have a locator.
    const SurfaceLocator *LocatorOf(const Geometry *geometry);
    //! The geometries that are shown and have a surface, in the order of the scene.
    QVector<Geometry *> VisibleGeometries() const;
    //! Their locators, in the same order.
    SurfaceList Visible();
    //! How many locators were made so far.
    int BuildCount() const { return m_builds; }

private:
    struct Entry;

    void dropOthers(const QVector<Geometry *> &geometries);
    const SurfaceLocator *locatorOf(const Geometry *geometry);

    std::vector<std::unique_ptr<Entry>> m_entries; // in no order
    int m_builds = 0;
};

} // namespace orvane
