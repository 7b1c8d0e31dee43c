// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/subdivisionlevel.h>

#include <memory>

using MeshPointer = std::unique_ptr<orvane::SubdivisionLevel>;

//! A mesh of triangles and fake ones, a fan for each polygon of three or more vertex numbers.
//! Update has not been called on it.
MeshPointer polygonMesh(const QVector<orvane::Vector> &positions,
                        const QVector<QVector<int>> &polygons);

//! n triangles all around vertex 0, the vertices 1 to n about it on a circle.
MeshPointer wheel(int n);

//! The places of one kind of fault, as MeshFault::FirstPlace writes them; empty for none.
QStringList placesOf(int bit, const orvane::Mesh &mesh);
