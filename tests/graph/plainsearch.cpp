// SPDX-License-Identifier: MIT
#include "tests/graph/plainsearch.h"

#include "graph/curvesampling.h"
#include "graph/segmentcrossing.h"

#include <orvane/geometry/mesh.h>
#include <orvane/geometry/orvanecurve.h>

#include <utility>

using orvane::AxisAlignedBoundingBox;
using orvane::CurvePoint;
using orvane::OrvaneCurve;
using orvane::Vector;

namespace {

struct Entry
{
    float parameter;
    int node;
};

class PlainSearch
{
public:
    PlainSearch(const QList<OrvaneCurve *> &curves, float distance, float overrun)
        : m_curves(curves), m_distance(distance)
    {
        for (OrvaneCurve *curve : curves) {
            QList<CurvePoint> samples;
            if (curve)
                sampleCurve(*curve, samples, overrun);
            m_samples.append(samples);
            m_records.append(QList<Entry>());
        }
    }

    void findSelf()
    {
        for (int k = 0; k < m_samples.size(); ++k) {
            for (int i = 0; i + 1 < m_samples[k].size(); ++i) {
                for (int j = i + 2; j + 1 < m_samples[k].size(); ++j)
                    testPair(k, i, k, j);
            }
        }
    }

    void findCross()
    {
        for (int k = 0; k < m_samples.size(); ++k) {
            for (int i = 0; i + 1 < m_samples[k].size(); ++i) {
                for (int l = k + 1; l < m_samples.size(); ++l)
                    testCurve(k, i, l);
            }
        }
    }

    QVector<PlainNode> linked()
    {
        for (int k = 0; k < m_records.size(); ++k) {
            const QList<Entry> &record = m_records[k];
            for (int i = 0; i + 1 < record.size(); ++i)
                link(record[i].node, record[i + 1].node);
            if (m_curves[k] && m_curves[k]->Closed() && record.size() > 1)
                link(record.last().node, record.first().node);
        }
        return m_nodes;
    }

private:
    AxisAlignedBoundingBox grownBox(int curve, int first, int last) const
    {
        AxisAlignedBoundingBox box;
        for (int i = first; i <= last; ++i)
            box.Extend(samplePosition(m_samples[curve][i]));
        const Vector step(m_distance, m_distance, m_distance);
        box.minimum = box.minimum - step;
        box.maximum = box.maximum + step;
        return box;
    }

    void testCurve(int k, int i, int l)
    {
        if (!boxesOverlap(grownBox(l, 0, m_samples[l].size() - 1), grownBox(k, i, i + 1)))
            return;
        for (int j = 0; j + 1 < m_samples[l].size(); ++j)
            testPair(k, i, l, j);
    }

    void testPair(int k, int i, int l, int j)
    {
        if (!boxesOverlap(grownBox(k, i, i + 1), grownBox(l, j, j + 1)))
            return;
        const QList<CurvePoint> ends = {m_samples[k][i], m_samples[k][i + 1], m_samples[l][j],
                                        m_samples[l][j + 1]};
        PlainNode node;
        float ta = 0.0f;
        float tb = 0.0f;
        if (!segmentsCross(samplePosition(ends[0]), samplePosition(ends[1]),
                           samplePosition(ends[2]), samplePosition(ends[3]), node.position, ta, tb))
            return;
        for (const CurvePoint &end : ends) {
            const orvane::Mesh *mesh = end.surfacePoint.Mesh();
            if (mesh && end.surfacePoint.FaceIndex() < mesh->FaceCount())
                node.normal += end.surfacePoint.WorldNormal();
        }
        if (node.normal.LengthSquared() > 1e-5f)
            node.normal.Normalize();
        node.curves.append(m_curves[k]);
        if (m_curves[l] != m_curves[k])
            node.curves.append(m_curves[l]);
        m_nodes.append(node);
        insert(k, float(i) + ta);
        insert(l, float(j) + tb);
    }

    void insert(int curve, float parameter)
    {
        QList<Entry> &record = m_records[curve];
        int place = 0;
        while (place < record.size() && !(record[place].parameter > parameter))
            ++place;
        record.insert(place, {parameter, m_nodes.size() - 1});
    }

    void link(int a, int b)
    {
        if (a == b || m_nodes[a].links.contains(b))
            return;
        m_nodes[a].links.append(b);
        m_nodes[b].links.append(a);
    }

    QList<OrvaneCurve *> m_curves;
    float m_distance;
    QList<QList<CurvePoint>> m_samples;
    QList<QList<Entry>> m_records;
    QVector<PlainNode> m_nodes;
};

} // namespace

QVector<PlainNode> plainSearch(const QList<OrvaneCurve *> &curves, float distance, float overrun,
                               bool useSelfIntersections)
{
    PlainSearch search(curves, distance, overrun);
    if (useSelfIntersections)
        search.findSelf();
    search.findCross();
    return search.linked();
}
