// SPDX-License-Identifier: MIT
#pragma once

#include <QPair>
#include <QSet>
#include <QVector>

//! The vertices whose removal takes a part of the graph apart.
//! J. Hopcroft, R. Tarjan, "Efficient algorithms for graph manipulation", 1973.
QSet<int> cutVertices(int vertexCount, const QVector<QPair<int, int>> &links);
