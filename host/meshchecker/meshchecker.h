// SPDX-License-Identifier: MIT
#pragma once

#include "host/meshchecker/export.h"

#include <orvane/geometry/polygons.h>

#include <QString>
#include <QVector>

namespace orvane {

class Mesh;

//! Where a face of the mesh is at fault.
struct FaultyPolygon
{
    int polygon = 0;  // as polygonsOf numbers them
    int meshFace = 0; // the first mesh face of the polygon
};

//! One kind of fault and every place that has it, ascending. Only one of the lists is in use.
struct MESHCHECKER_EXPORT MeshFault
{
    int Count() const { return vertices.size() + edges.size() + polygons.size(); }
    //! The kind of one place, for people: "zero-length edge".
    QString Name() const;
    //! "vertex 12", "edge 3-7" or "polygon 5 (mesh face 7)"; empty without a place.
    QString FirstPlace() const;
    //! "zero-length edge: 3, the first is edge 3-7", in the user's language.
    QString Text() const;

    int bit = 0;
    QVector<int> vertices;
    QVector<MeshEdge> edges; // from a vertex to itself where a corner is repeated
    QVector<FaultyPolygon> polygons;
};

//! Finds what would trouble a mesh later on. Faces are its polygons: a triangle and the fake ones
//! after it are one. Edges join consecutive corners that differ; a boundary edge has one polygon
//! side along it. No Update of the mesh is needed. Vertices of no face are no fault and have no
//! say; nor is a hole, or a position that is not finite.
//! Takes time linear in the mesh, but for sorting around a vertex of very many edges.
class MESHCHECKER_EXPORT MeshChecker
{
public:
    enum Fault {
        HighValence = 0x00001,        //!< a vertex of more than 16 edges
        BoundaryValence = 0x00002,    //!< a vertex of more than two boundary edges
        InteriorValenceTwo = 0x00004, //!< a vertex of two edges, neither on the boundary
        VertexSplice = 0x00008,       //!< not all corners at a vertex are joined through its edges
        ZeroLengthEdge = 0x00100,     //!< length at most a millionth of the diagonal of the faces,
                                      //!< or a corner repeated right away
        LaminaFaces = 0x00200,        //!< faces with the same set of vertices, in any order
        UVCrossing = 0x00400,         //!< more than 1e-6 beyond every single tile
        MissingUVs = 0x00800,         //!< a corner without UV while others have one
        NonManifoldEdge = 0x10000,    //!< more than two polygon sides along an edge
        TwoSidedFace = 0x20000,       //!< only two vertices, however often repeated
        TooManySides = 0x40000,       //!< more than 16 edges round a face
        DegenerateFace = 0x80000      //!< no wider than a zero-length edge is long, and so without
                                      //!< a normal; two-sided faces are told apart
    };

    //! The faults of the mesh, or-ed together; 0 for none and for null.
    int Validate(const Mesh *mesh) const;
    //! The kinds of fault that the mesh has, in the order in which they are shown to people.
    QVector<MeshFault> Find(const Mesh *mesh) const;
};

} // namespace orvane
