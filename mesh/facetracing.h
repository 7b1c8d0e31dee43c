// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

#include <vector>

class DirectedEdges;
class MeshBuilder;

//! Traces the faces of one piece. A walk from an edge always takes the free edge just below the one
//! it came by, a left turn, neighbours being in counter-clockwise order; where it comes back to the
//! vertex that it left with at most maxEdges edges, and runs counter-clockwise, it made a face.
class FaceTracing
{
public:
    //! The builder has the positions and normals of the piece. Marks the edges in walks and faces.
    FaceTracing(DirectedEdges &edges, MeshBuilder &builder, int maxEdges);

    //! Tries the face that begins with an edge, and gives it to the builder.
    void traceFace(int edge);
    //! The walk alone: the vertices that it passed, or nothing where it makes no face or the edge
    //! belongs to one already. Good until the next walk. On nothing the marks that the walk set are
    //! cleared again, but for one case: see the source.
    const QVector<int> &walkFace(int edge);

private:
    // Edges at places in a row that a walk in progress passed.
    struct Stretch
    {
        int first;
        int last;
        int arrivalMark; // of the last edge; None while it has not been arrived along
    };

    bool walkFrom(int place);
    void pass(const Stretch &stretch);
    bool closeFace();
    bool giveUp();

    DirectedEdges &m_edges;
    MeshBuilder &m_builder;
    int m_maxEdges; // at least 1
    std::vector<Stretch> m_walk;
    QVector<int> m_face;
};

//! Does the face run counter-clockwise about the mean of its vertex normals?
//! face: vertex indices into builder. A zero normal or area answers false.
bool isInnerFace(const QVector<int> &face, const MeshBuilder &builder);
