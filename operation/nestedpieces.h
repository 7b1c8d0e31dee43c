// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QVector>

class IntersectionNode;
struct RunReport;

namespace orvane {
class Geometry;
}

//! Marks the pieces of the report that lie whole inside a face of another piece: people draw a
//! loop in a cell and expect a hole, but get a second mesh over the first.
//! Of several such pieces the one built last is named.
//! seeds: one a piece. geometries: what the built ones among them made, in the same order.
void noteNestedPieces(RunReport &report, const QList<IntersectionNode *> &seeds,
                      const QVector<orvane::Geometry *> &geometries);
