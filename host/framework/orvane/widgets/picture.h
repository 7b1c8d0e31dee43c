// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QPixmap>

namespace orvane {

//! The picture of that file for a screen of that ratio: above 1 the one named "...@2x" beside it,
//! when there is one. Null when there is no such picture.
ORVANE_EXPORT QPixmap loadPicture(const QString &path, qreal devicePixelRatio);

} // namespace orvane
