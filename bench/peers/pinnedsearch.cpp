// SPDX-License-Identifier: MIT
#include "bench/peers/pinnedsearch.h"

#include "bench/support/processorclock.h"

#include <algorithm>
#include <cmath>
#include <limits>

using orvane::Vector;

namespace {

const float BoxSnap = 5e-5f;                // scene units
const double Degree = 0.017453292519943295; // radians
const float Infinity = std::numeric_limits<float>::infinity();

struct Box
{
    void extend(const Vector &p)
    {
        minimum = {std::min(minimum.x, p.x), std::min(minimum.y, p.y), std::min(minimum.z, p.z)};
        maximum = {std::max(maximum.x, p.x), std::max(maximum.y, p.y), std::max(maximum.z, p.z)};
    }
    void grow(float distance)
    {
        minimum -= Vector(distance, distance, distance);
        maximum += Vector(distance, distance, distance);
    }

    Vector minimum{Infinity, Infinity, Infinity};
    Vector maximum{-Infinity, -Infinity, -Infinity};
};

float snapped(float coordinate)
{
    return std::fabs(coordinate) < BoxSnap ? 0.0f : coordinate;
}

bool reaches(float low, float high)
{
    return snapped(low) <= snapped(high);
}

bool overlap(const Box &a, const Box &b)
{
    return reaches(a.minimum.x, b.maximum.x) && reaches(b.minimum.x, a.maximum.x)
           && reaches(a.minimum.y, b.maximum.y) && reaches(b.minimum.y, a.maximum.y)
           && reaches(a.minimum.z, b.maximum.z) && reaches(b.minimum.z, a.maximum.z);
}

Box segmentBox(const Vector *ends, float distance)
{
    Box box;
    box.extend(ends[0]);
    box.extend(ends[1]);
    box.grow(distance);
    return box;
}

double parallelEpsilon()
{
    const double sine = std::sin(1e-5 * Degree);
    return sine * sine;
}

float fractionAlong(const Vector &point, const Vector &p0, const Vector &p1)
{
    const Vector d = p1 - p0;
    return double(d.Length()) < 1e-12 ? 0.0f : Dot(point - p0, d) / d.LengthSquared();
}

// Where line b comes closest to line a; false for parallel ones.
bool closestOnLine(const Vector &pa, const Vector &da, const Vector &pb, const Vector &db,
                   Vector &point)
{
    static const double Epsilon = parallelEpsilon();
    const Vector c = da & db;
    if (Epsilon > double(c.LengthSquared()))
        return false;
    const Vector n = Normalized(c & da);
    const float den = Dot(n, db);
    point = pb;
    if (Epsilon <= double(std::fabs(den)))
        point = pb + db * (-(Dot(n, pb) - Dot(n, pa)) / den);
    return true;
}

bool cross(const Vector *a, const Vector *b, float &ta, float &tb, Vector &place)
{
    Box box;
    for (const Vector *p : {a, a + 1, b, b + 1})
        box.extend(*p);
    const Vector center = (box.minimum + box.maximum) * 0.5f;
    const float half = 0.5f * (box.maximum - box.minimum).Length();
    const float scale = 1.0f / half;
    const Vector a0 = (a[0] - center) * scale;
    const Vector a1 = (a[1] - center) * scale;
    const Vector b0 = (b[0] - center) * scale;
    const Vector b1 = (b[1] - center) * scale;
    Vector x;
    if (!closestOnLine(a0, Normalized(a1 - a0), b0, Normalized(b1 - b0), x))
        return false;
    ta = fractionAlong(x, a0, a1);
    tb = fractionAlong(x, b0, b1);
    if (!(0.0f < ta && ta < 1.0f && 0.0f < tb && tb < 1.0f))
        return false;
    place = x * half + center;
    return true;
}

struct Entry
{
    float parameter;
    int crossing;
};

class Search
{
public:
    Search(const Polylines &lines, float distance)
        : m_lines(lines), m_distance(distance), m_boxes(lines.size()), m_records(lines.size())
    {
        for (size_t k = 0; k < lines.size(); ++k) {
            for (const Vector &sample : lines[k])
                m_boxes[k].extend(sample);
            m_boxes[k].grow(distance);
        }
    }

    void findSelf()
    {
        for (size_t k = 0; k < m_lines.size(); ++k) {
            for (size_t i = 0; i + 1 < m_lines[k].size(); ++i)
                testAgainst(k, i, k, i + 2);
        }
    }

    void findCross()
    {
        for (size_t k = 0; k < m_lines.size(); ++k) {
            for (size_t i = 0; i + 1 < m_lines[k].size(); ++i) {
                const Box box = segmentBox(&m_lines[k][i], m_distance);
                for (size_t l = k + 1; l < m_lines.size(); ++l) {
                    if (overlap(m_boxes[l], box))
                        testAgainst(k, i, l, 0);
                }
            }
        }
    }

    qint64 count() const { return qint64(m_places.size()); }

private:
    // Segment i of curve k against those of curve l from the first on.
    void testAgainst(size_t k, size_t i, size_t l, size_t first)
    {
        const Box box = segmentBox(&m_lines[k][i], m_distance);
        for (size_t j = first; j + 1 < m_lines[l].size(); ++j) {
            float ta = 0.0f;
            float tb = 0.0f;
            Vector place;
            if (!overlap(box, segmentBox(&m_lines[l][j], m_distance))
                || !cross(&m_lines[k][i], &m_lines[l][j], ta, tb, place))
                continue;
            m_places.push_back(place);
            insert(k, float(i) + ta);
            insert(l, float(j) + tb);
        }
    }

    void insert(size_t curve, float parameter)
    {
        std::vector<Entry> &record = m_records[curve];
        const auto place = std::upper_bound(
            record.begin(), record.end(), parameter,
            [](float value, const Entry &entry) { return value < entry.parameter; });
        record.insert(place, {parameter, int(m_places.size()) - 1});
    }

    const Polylines &m_lines;
    float m_distance;
    std::vector<Box> m_boxes; // by curve, grown
    std::vector<std::vector<Entry>> m_records;
    std::vector<Vector> m_places;
};

} // namespace

PeerRun runPinnedSearch(const Polylines &lines, float distance, bool useSelfIntersections)
{
    ProcessorClock clock;
    Search search(lines, distance);
    if (useSelfIntersections)
        search.findSelf();
    search.findCross();
    return {clock.lap(), search.count(), -1};
}
