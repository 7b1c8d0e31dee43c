// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QString>
#include <QVector>

namespace orvane {

//! What a curve file says about one curve. The closing point is not among the points.
struct CurveData
{
    QString name; // empty where the file gives none
    bool closed = false;
    QVector<Vector> points;
};

} // namespace orvane
