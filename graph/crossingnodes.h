// SPDX-License-Identifier: MIT
#pragma once

#include "graph/crossingsearch.h"
#include "graph/nodeblock.h"

#include <QList>

//! A node for each crossing of the search, in its order, with the two curves and the surface
//! normal there. Nodes that follow each other along a curve are linked, round a closed one too.
NodeBlock nodesOfCrossings(const CrossingSearch &search, const QList<orvane::OrvaneCurve *> &curves,
                           SampledCurves &sampled);

//! Makes a sum of normals one of length 1, unless it is about zero and has no direction.
void normalizeUnlessZero(orvane::Vector &sum);
