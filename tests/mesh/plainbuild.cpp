// SPDX-License-Identifier: MIT
#include "tests/mesh/plainbuild.h"

#include "graph/intersectionnode.h"
#include "mesh/directededges.h"
#include "mesh/facetracing.h"
#include "tests/mesh/plainpiece.h"

#include <QPair>
#include <QSet>
#include <QtAlgorithms>

#include <cmath>

using orvane::Vector;

namespace {

using Record = QPair<float, int>;

Vector normalFor(const IntersectionNode &node)
{
    const Vector n = node.normal;
    if (n.x * n.x + n.y * n.y + n.z * n.z != 0.0f)
        return n;
    Vector sum;
    for (int i = 0; i <= node.neighbourCount() - 2; ++i) {
        const Vector a = node.neighbour(i)->position() - node.position();
        const Vector b = node.neighbour(i + 1)->position() - node.position();
        const float cosine = (b.x * a.x + b.y * a.y + b.z * a.z) / (a.Length() * b.Length());
        sum = sum + (a & b) * std::acos(cosine);
    }
    sum.Normalize();
    return sum;
}

Vector towards(const IntersectionNode &node, int neighbour)
{
    Vector d = node.neighbour(neighbour)->position() - node.position();
    d.Normalize();
    return d;
}

bool isLess(const Record &a, const Record &b)
{
    return a.first < b.first;
}

#if defined(__GNUC__)
#    pragma GCC diagnostic push
#    pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#endif
void plainSort(IntersectionNode &node)
{
    if (node.neighbourCount() < 2)
        return;
    const Vector w = normalFor(node);
    Vector r = w & towards(node, 0);
    r.Normalize();
    QList<Record> records;
    for (int i = 0; i < node.neighbourCount(); ++i) {
        const Vector d = towards(node, i);
        const Vector c = r & d;
        const float y = w.x * c.x + w.y * c.y + w.z * c.z;
        const float x = d.x * r.x + d.y * r.y + d.z * r.z;
        float angle = std::atan2(y, x);
        if (angle < 0.0f)
            angle += 6.2831855f;
        records.append({angle, i});
    }
    qSort(records.begin(), records.end(), isLess);
    QList<IntersectionNode *> sorted;
    for (const Record &record : qAsConst(records))
        sorted.append(node.neighbour(record.second));
    for (int i = 0; i < sorted.size(); ++i)
        node.neighbours[i] = sorted[i];
}
#if defined(__GNUC__)
#    pragma GCC diagnostic pop
#endif

template <typename Visitor>
void plainWalk(IntersectionNode *start, int minimumDegree, Visitor visit)
{
    QList<IntersectionNode *> stack = {start};
    QSet<IntersectionNode *> visited;
    while (!stack.isEmpty()) {
        IntersectionNode *node = stack.takeLast();
        if (visited.contains(node) || node->neighbourCount() < minimumDegree)
            continue;
        visited.insert(node);
        visit(node);
        for (int i = 0; i < node->neighbourCount(); ++i)
            stack.append(node->neighbour(i));
    }
}

} // namespace

void plainOrder(IntersectionNode *start)
{
    plainWalk(start, 0, [](IntersectionNode *node) { plainSort(*node); });
}

MeshBuilder plainBuild(IntersectionNode *start, int maxEdges)
{
    QVector<IntersectionNode *> nodes;
    plainWalk(start, 0, [&](IntersectionNode *node) { nodes.append(node); });
    DirectedEdges edges(plainPiece(nodes));
    MeshBuilder builder;
    builder.positions = edges.graph().positions;
    builder.normals = edges.graph().normals;
    FaceTracing tracing(edges, builder, maxEdges);
    plainWalk(start, 2, [&](const IntersectionNode *node) {
        for (int i = 0; i < node->neighbourCount(); ++i)
            tracing.traceFace(edges.graph().begin(node->vertexIndex) + i);
    });
    edges.writeMarks();
    return builder;
}
