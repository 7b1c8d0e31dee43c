// SPDX-License-Identifier: MIT
#pragma once

#include "graph/intersectionnode.h"
#include "graph/pointoncurve.h"

#include <QList>
#include <QVector>

//! What a search noticed beside the crossings, and how long it took.
struct SearchNotes
{
    QVector<PointOnCurve> pointsOnCurves; // in the order they were met
    double sampleSeconds = 0.0;
    double selfSeconds = 0.0;
    double crossSeconds = 0.0;
    double linkSeconds = 0.0;
};

//! Finds where the curves cross each other, and with useSelfIntersections themselves, appends a
//! node for each crossing and links those that follow each other along a curve.
//! intersectionDistance (scene units): how far each box of a segment is grown on every side.
//! overrun: by what fraction of its end segment an open curve is lengthened.
//! The nodes belong to the node store's current run. Null curves keep their place and count
//! nowhere. An empty list does nothing at all.
void findIntersections(const QList<orvane::OrvaneCurve *> &curves, QList<IntersectionNode *> &nodes,
                       float intersectionDistance, float overrun, bool useSelfIntersections,
                       SearchNotes *notes = nullptr);

//! Sum of the surface normals at those of four samples that lie on a valid face; of length 1
//! unless it is about zero.
orvane::Vector crossingNormal(const orvane::CurvePoint &p, const orvane::CurvePoint &q,
                              const orvane::CurvePoint &r, const orvane::CurvePoint &s);
