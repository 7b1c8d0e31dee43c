// SPDX-License-Identifier: MIT
#pragma once

struct PlanarGraph;

//! Why the faces of a graph cannot be compared.
enum class Flaw {
    None,
    LinksCross, //!< away from a node: merging and straightening do that
    NodesCoincide,
    LinksOverlap, //!< two lead from one node in the same direction, to the precision of a float
};

Flaw flawOf(const PlanarGraph &graph);
