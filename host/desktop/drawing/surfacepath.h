// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QVector>

namespace orvane {

class SurfaceLocator;

//! Lines along the surface through the places, which lie on it, in stretches of at most step
//! (scene units). Halfway places are put onto the surface again and again, so the way bends with
//! edges and creases. One line, cut in two where the surface offers no way across: there the
//! nearest surface leaps from one side to the other however often the stretch is halved.
QVector<QVector<Vector>> followSurface(const QVector<Vector> &places, float step,
                                       const SurfaceLocator &surface);

//! The same line with jitter evened out over about the width (scene units): each place becomes a
//! mean of its neighbours along the line, then goes onto the surface. Ends stay; a closed line,
//! whose last place is its first, has none. Places come out about step apart.
QVector<Vector> smoothedAlong(const QVector<Vector> &line, bool closed, float width, float step,
                              const SurfaceLocator &surface);

} // namespace orvane
