// SPDX-License-Identifier: MIT
#include "operation/facecells.h"

#include "graph/graphwalk.h"

#include <orvane/geometry/mesh.h>

#include <QHash>
#include <QPair>

namespace {

using Side = QPair<int, int>; // vertex numbers, the lower first

QVector<const IntersectionNode *> nodesByNumber(IntersectionNode *seed, int count)
{
    QVector<const IntersectionNode *> nodes(count, nullptr);
    walkGraph(seed, [&](const IntersectionNode *node) {
        if (node->vertexIndex >= 0 && node->vertexIndex < count)
            nodes[node->vertexIndex] = node;
    });
    return nodes;
}

// Which polygons are one, as a forest: each points to another of its cell, or to itself.
class Cells
{
public:
    explicit Cells(int polygons) : m_parent(polygons)
    {
        for (int i = 0; i < polygons; ++i)
            m_parent[i] = i;
    }

    int rootOf(int polygon)
    {
        while (m_parent[polygon] != polygon) {
            m_parent[polygon] = m_parent[m_parent[polygon]];
            polygon = m_parent[polygon];
        }
        return polygon;
    }
    void join(int a, int b) { m_parent[rootOf(a)] = rootOf(b); }

    QVector<int> numbers()
    {
        QHash<int, int> numberOf; // by root
        QVector<int> result;
        for (int i = 0; i < m_parent.size(); ++i) {
            const int root = rootOf(i);
            if (!numberOf.contains(root))
                numberOf.insert(root, numberOf.size());
            result.append(numberOf[root]);
        }
        return result;
    }

private:
    QVector<int> m_parent;
};

} // namespace

QVector<int> cellsOfPolygons(const orvane::Mesh &mesh, IntersectionNode *seed)
{
    const orvane::PolygonList &polygons = mesh.Polygons();
    const QVector<const IntersectionNode *> nodes = nodesByNumber(seed, mesh.VertexCount());
    QHash<Side, int> openSides; // no links; the polygon on the one side, until the other is met
    Cells cells(polygons.Count());
    for (int polygon = 0; polygon < polygons.Count(); ++polygon) {
        const int count = polygons.CornerCount(polygon);
        for (int i = 0; i < count; ++i) {
            const int a = polygons.Corners(polygon)[i];
            const int b = polygons.Corners(polygon)[i + 1 == count ? 0 : i + 1];
            if (!nodes[a] || nodes[a]->hasNeighbour(nodes[b]))
                continue;
            const Side side(qMin(a, b), qMax(a, b));
            if (openSides.contains(side))
                cells.join(polygon, openSides.take(side));
            else
                openSides.insert(side, polygon);
        }
    }
    return cells.numbers();
}
