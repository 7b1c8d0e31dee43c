// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QList>
#include <QVector>

//! Splits a simple polygon, given in its own plane, into triangles. Only x and y count.
class PolygonTessellator
{
public:
    PolygonTessellator() = default;
    PolygonTessellator(const PolygonTessellator &) = default;
    PolygonTessellator &operator=(const PolygonTessellator &) = default;
    virtual ~PolygonTessellator();

    //! Appends a corner and logs it: the log is the trace of what was tessellated.
    void addPoint(const orvane::Vector &p);

    //! Signed area in the x-y plane, square scene units; positive when counter-clockwise.
    //! z is ignored; fewer than three points give 0.  Shoelace formula.
    float area() const;

    //! Can the corner at v, between u and w, be clipped? u, v, w: places in order, the point
    //! numbers still in the polygon, of which the first n count.
    bool snip(int u, int v, int w, int n, const QVector<int> &order) const;

    //! Appends three point numbers per triangle, all counter-clockwise in the x-y plane:
    //! n - 2 triangles for a simple polygon of n points, fewer when it is degenerate or
    //! crosses itself.  Ear clipping; G. Meisters, "Polygons have ears", 1975.
    void process(QList<int> &result) const;

private:
    QVector<orvane::Vector> m_points;
};
