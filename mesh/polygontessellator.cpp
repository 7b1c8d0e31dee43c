// SPDX-License-Identifier: MIT
#include "mesh/polygontessellator.h"

#include <orvane/kernel/kernel.h>

#include <QString>

#include <charconv>
#include <cmath>

using orvane::Vector;

namespace {

const double EarMinimumCross = 1e-10; // twice the area of an ear, square scene units
const int LogDigits = 6;
const int LongestNumber = 16; // characters, and what parts two numbers

// Twice the signed area of the triangle a, b, p: 0 and above when p is left of a-b or on it.
float cross(const Vector &a, const Vector &b, const Vector &p)
{
    return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
}

char *writeNumber(char *text, float value)
{
    // No sign of a zero, and none of what is no number.
    const double number = std::isnan(value) ? std::fabs(double(value)) : double(value) + 0.0;
    return std::to_chars(text, text + LongestNumber, number, std::chars_format::general, LogDigits)
        .ptr;
}

} // namespace

PolygonTessellator::~PolygonTessellator() = default;

void PolygonTessellator::addPoint(const Vector &p)
{
    m_points.append(p);
    // A mesh may log a million of them.
    char line[3 * LongestNumber];
    char *end = writeNumber(line, p.x);
    for (float coordinate : {p.y, p.z}) {
        *end++ = ',';
        *end++ = ' ';
        end = writeNumber(end, coordinate);
    }
    orvane::Kernel()->Log(
        QStringLiteral("  Adding point: %1\n").arg(QLatin1String(line, int(end - line))));
}

float PolygonTessellator::area() const
{
    float sum = 0.0f;
    for (int i = 0; i < m_points.size(); ++i) {
        const Vector &p = m_points[i];
        const Vector &q = m_points[i == 0 ? m_points.size() - 1 : i - 1];
        sum += q.x * p.y - p.x * q.y;
    }
    return sum * 0.5f;
}

bool PolygonTessellator::snip(int u, int v, int w, int n, const QVector<int> &order) const
{
    const Vector &a = m_points[order[u]];
    const Vector &b = m_points[order[v]];
    const Vector &c = m_points[order[w]];
    const float turn = (b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y);
    if (double(turn) < EarMinimumCross)
        return false;
    const Vector *points = m_points.constData();
    const int *numbers = order.constData();
    for (int i = 0; i < n; ++i) {
        if (i == u || i == v || i == w)
            continue;
        const Vector &p = points[numbers[i]];
        if (cross(b, c, p) >= 0.0f && cross(c, a, p) >= 0.0f && cross(a, b, p) >= 0.0f)
            return false;
    }
    return true;
}

void PolygonTessellator::process(QList<int> &result) const
{
    const int count = m_points.size();
    if (count < 3)
        return;
    QVector<int> order(count);
    const bool counterClockwise = area() > 0.0f;
    for (int i = 0; i < count; ++i)
        order[i] = counterClockwise ? i : count - 1 - i;

    int n = count;
    int tries = 2 * n; // a polygon that is not simple has no ear left at some point
    int v = n - 1;
    while (n > 2 && tries > 0) {
        --tries;
        const int u = v >= n ? 0 : v;
        v = u + 1 >= n ? 0 : u + 1;
        const int w = v + 1 >= n ? 0 : v + 1;
        if (!snip(u, v, w, n, order))
            continue;
        result << order[u] << order[v] << order[w];
        order.remove(v);
        --n;
        tries = 2 * n;
    }
}
