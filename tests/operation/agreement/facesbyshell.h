// SPDX-License-Identifier: MIT
#pragma once

#include "tests/operation/agreement/polygonizer.h"

#include <QHash>

//! Sorts the polygons of a mesh by the shell that each lies in, as its sides along links tell:
//! on the left of each side of a link lies one shell or none. Polygons that meet along anything
//! but a link are parts of one face, which was split into triangles.
class FacesByShell
{
public:
    //! polygons: vertex numbers of the graph, counter-clockwise.
    FacesByShell(const PlanarGraph &graph, const QVector<Shell> &shells,
                 const QVector<QVector<int>> &polygons);

    //! Of the polygons in a shell, added up.
    double area(int shell) const { return m_area[shell]; }
    //! Polygons of faces that lie in no shell or in several.
    const QVector<int> &strays() const { return m_strays; }

private:
    void findSides(const PlanarGraph &graph, const QVector<Shell> &shells);
    void joinParts();
    int faceOf(int polygon) const;
    bool isLink(int a, int b) const { return m_shellLeftOf.contains({a, b}); }
    bool isSliverPart(const QVector<int> &polygon, const PlanarGraph &graph) const;

    const QVector<QVector<int>> &m_polygons;
    QHash<QPair<int, int>, int> m_shellLeftOf; // by side of a link
    QVector<int> m_joinedTo;                   // by polygon: one of the same face; itself at last
    QVector<double> m_area;                    // by shell
    QVector<int> m_strays;
};
