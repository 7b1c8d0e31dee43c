// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QStringList>
#include <QVector>

#include <map>

//! The rules of the mesh checker written down a second time, as directly as they are said and at
//! any cost: every polygon is held against every other. Texture coordinates aside.
//! Positions must be whole numbers, so that lengths and areas are zero exactly or not at all.
class PlainChecker
{
public:
    PlainChecker(const QVector<orvane::Vector> &positions, const QVector<QVector<int>> &polygons);

    //! By bit, every faulty place as the checker words it; a kind without a place has no entry.
    std::map<int, QStringList> faults() const;

private:
    using Edge = std::pair<int, int>; // the lower vertex first

    static QVector<int> withoutRepetitions(QVector<int> polygon);
    QVector<Edge> sidesOf(int polygon) const;
    QVector<Edge> edgesAt(int vertex, bool onlyBoundary) const;
    int fansAt(int vertex) const;
    bool isDegenerate(int polygon) const;
    void judgeVertices(std::map<int, QStringList> &faults) const;
    void judgeEdges(std::map<int, QStringList> &faults) const;
    void judgePolygons(std::map<int, QStringList> &faults) const;

    QVector<orvane::Vector> m_positions;
    QVector<QVector<int>> m_polygons;   // as they are
    QVector<QVector<int>> m_boundaries; // parallel; no corner twice in a row
    QVector<int> m_firstFaces;          // parallel
    std::map<Edge, int> m_sides;        // how often each edge is the side of a polygon
};
