// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QList>
#include <QVector>

namespace orvane {
class OrvaneCurve;
}

//! A node as the plain search found it; links are numbers of nodes.
struct PlainNode
{
    orvane::Vector position;
    orvane::Vector normal;
    QList<orvane::OrvaneCurve *> curves;
    QVector<int> links;
};

//! The search written down once more as its rule reads, all pairs of segments and nothing clever:
//! what the real one is held against.
QVector<PlainNode> plainSearch(const QList<orvane::OrvaneCurve *> &curves, float distance,
                               float overrun, bool useSelfIntersections);
