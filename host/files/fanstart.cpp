// SPDX-License-Identifier: MIT
#include "host/files/fanstart.h"

#include "host/files/polygonmesh.h"

#include <algorithm>

namespace orvane {

namespace {

// One polygon of the mesh.
class Fan
{
public:
    Fan(const QVector<Vector> &positions, const int *corners, int count)
        : m_positions(positions), m_corners(corners), m_count(count)
    {
        for (int i = 2; i < count; ++i)
            m_area += triangle(0, i - 1, i); // the sum is the same from every corner
    }

    // Do all triangles of the fan about a corner look where the polygon looks?
    bool coversFrom(int start) const
    {
        for (int i = 2; i < m_count; ++i) {
            const Vector area = triangle(start, (start + i - 1) % m_count, (start + i) % m_count);
            if (Dot(area, m_area) < 0.0f)
                return false;
        }
        return true;
    }

private:
    // Twice the area, along the normal.
    Vector triangle(int a, int b, int c) const
    {
        return (place(b) - place(a)) & (place(c) - place(a));
    }
    Vector place(int corner) const { return m_positions[m_corners[corner]]; }

    const QVector<Vector> &m_positions;
    const int *m_corners;
    int m_count;
    Vector m_area;
};

} // namespace

void startAtFanCorners(PolygonMesh *mesh)
{
    PolygonList &polygons = mesh->polygons;
    for (int p = 0; p < polygonCount(*mesh); ++p) {
        const int first = polygons.firstCorner[p];
        const int count = polygons.firstCorner[p + 1] - first;
        if (count < 4)
            continue;
        const Fan fan(mesh->positions, polygons.corners.constData() + first, count);
        int start = 0;
        while (start < count && !fan.coversFrom(start))
            ++start;
        if (start == 0 || start == count)
            continue;
        const auto turn = [first, count, start](QVector<int> &values) {
            const auto begin = values.begin() + first;
            std::rotate(begin, begin + start, begin + count);
        };
        turn(polygons.corners);
        turn(polygons.uvCorners);
    }
}

} // namespace orvane
