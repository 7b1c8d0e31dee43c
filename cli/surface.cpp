// SPDX-License-Identifier: MIT
#include "cli/surface.h"

#include <orvane/geometry/mesh.h>

#include <algorithm>
#include <cmath>
#include <limits>

using orvane::PolygonList;
using orvane::Vector;

namespace {

const float FarthestCoordinate = 1e9f; // scene units; its fourth power still fits a float
const float CreaseCosine = 0.64f;      // faces at more than 50 degrees are not smoothed together
const int MostFanStarts = 12;          // corners tried; a larger polygon is drawn from its first

class SurfaceBuilder
{
public:
    explicit SurfaceBuilder(const orvane::Mesh &mesh);

    Surface build(SurfaceLook look);

private:
    void keepDrawablePolygons(const PolygonList &all);
    void findPolygonNormals();
    void addFan(int polygon);
    double worstFanTurn(int polygon, int start) const;
    void smoothCorners();
    void gatherPolygonsAroundVertices();
    Vector corner(int polygon, int index) const;

    Surface m_surface;
    QVector<Vector> m_areas;    // by polygon: its normal, as long as twice its area
    QVector<int> m_around;      // polygons, vertex after vertex
    QVector<int> m_firstAround; // by vertex, and the end: where its polygons begin
};

SurfaceBuilder::SurfaceBuilder(const orvane::Mesh &mesh)
{
    m_surface.positions.reserve(mesh.VertexCount());
    for (int vertex = 0; vertex < mesh.VertexCount(); ++vertex)
        m_surface.positions.append(mesh.WorldVertexPosition(vertex));
    keepDrawablePolygons(polygonsOf(mesh));
}

Surface SurfaceBuilder::build(SurfaceLook look)
{
    findPolygonNormals();
    for (int polygon = 0; polygon < m_surface.polygons.Count(); ++polygon)
        addFan(polygon);
    if (look == SurfaceLook::Smooth)
        smoothCorners();
    return m_surface;
}

void SurfaceBuilder::keepDrawablePolygons(const PolygonList &all)
{
    const QVector<Vector> &positions = m_surface.positions;
    const auto canDraw = [&positions](int vertex) {
        return vertex >= 0 && vertex < positions.size() && isDrawable(positions[vertex]);
    };
    PolygonList &kept = m_surface.polygons;
    for (int polygon = 0; polygon < all.Count(); ++polygon) {
        const int *first = all.Corners(polygon);
        const int *last = first + all.CornerCount(polygon);
        if (!std::all_of(first, last, canDraw))
            continue;
        kept.firstFace.append(all.firstFace[polygon]);
        kept.firstCorner.append(kept.corners.size());
        for (const int *vertex = first; vertex != last; ++vertex)
            kept.corners.append(*vertex);
    }
    kept.firstCorner.append(kept.corners.size());
}

Vector SurfaceBuilder::corner(int polygon, int index) const
{
    const PolygonList &polygons = m_surface.polygons;
    return m_surface.positions[polygons.Corners(polygon)[index % polygons.CornerCount(polygon)]];
}

void SurfaceBuilder::findPolygonNormals()
{
    m_surface.normals.fill(Vector(), m_surface.positions.size());
    for (int polygon = 0; polygon < m_surface.polygons.Count(); ++polygon) {
        const Vector origin = corner(polygon, 0);
        const int count = m_surface.polygons.CornerCount(polygon);
        Vector area;
        for (int i = 1; i + 1 < count; ++i)
            area += (corner(polygon, i) - origin) & (corner(polygon, i + 1) - origin);
        m_areas.append(area);
        for (int i = 0; i < count; ++i)
            m_surface.normals[m_surface.polygons.Corners(polygon)[i]] += area;
    }
    for (Vector &normal : m_surface.normals)
        normal.Normalize();
}

// The least turn of a fan's triangles along the polygon's normal: negative when one folds over.
double SurfaceBuilder::worstFanTurn(int polygon, int start) const
{
    const Vector origin = corner(polygon, start);
    double worst = std::numeric_limits<double>::infinity();
    for (int i = 1; i + 1 < m_surface.polygons.CornerCount(polygon); ++i) {
        const Vector area =
            (corner(polygon, start + i) - origin) & (corner(polygon, start + i + 1) - origin);
        worst = std::min(worst, double(Dot(area, m_areas[polygon])));
    }
    return worst;
}

// From the corner that sees the others best: so concave polygons of few corners come out right.
void SurfaceBuilder::addFan(int polygon)
{
    const int count = m_surface.polygons.CornerCount(polygon);
    int best = 0;
    if (count > 3 && count <= MostFanStarts) {
        double bestTurn = worstFanTurn(polygon, 0);
        for (int start = 1; start < count; ++start) {
            const double turn = worstFanTurn(polygon, start);
            if (turn > bestTurn) {
                bestTurn = turn;
                best = start;
            }
        }
    }
    const int *corners = m_surface.polygons.Corners(polygon);
    const Vector normal = Normalized(m_areas[polygon]);
    for (int i = 1; i + 1 < count; ++i) {
        m_surface.triangles.append(
            {{corners[best], corners[(best + i) % count], corners[(best + i + 1) % count]},
             {normal, normal, normal},
             polygon});
    }
}

void SurfaceBuilder::gatherPolygonsAroundVertices()
{
    const PolygonList &polygons = m_surface.polygons;
    m_firstAround.fill(0, m_surface.positions.size() + 1);
    for (int vertex : polygons.corners)
        ++m_firstAround[vertex + 1];
    for (int vertex = 0; vertex < m_surface.positions.size(); ++vertex)
        m_firstAround[vertex + 1] += m_firstAround[vertex];
    m_around.resize(polygons.corners.size());
    QVector<int> next = m_firstAround;
    for (int polygon = 0; polygon < polygons.Count(); ++polygon) {
        for (int i = 0; i < polygons.CornerCount(polygon); ++i)
            m_around[next[polygons.Corners(polygon)[i]]++] = polygon;
    }
}

// Each corner takes the mean normal of the polygons round its vertex that lie much as its own.
void SurfaceBuilder::smoothCorners()
{
    gatherPolygonsAroundVertices();
    QVector<Vector> facing = m_areas;
    for (Vector &normal : facing)
        normal.Normalize();
    const auto smoothed = [this, &facing](int vertex, const Vector &own) {
        Vector sum;
        for (int i = m_firstAround[vertex]; i < m_firstAround[vertex + 1]; ++i) {
            if (Dot(facing[m_around[i]], own) > CreaseCosine)
                sum += m_areas[m_around[i]];
        }
        return Normalized(sum);
    };
    for (SurfaceTriangle &triangle : m_surface.triangles) {
        for (int i = 0; i < 3; ++i)
            triangle.normal[i] = smoothed(triangle.vertex[i], facing[triangle.polygon]);
    }
}

} // namespace

bool isDrawable(const Vector &point)
{
    return std::abs(point.x) < FarthestCoordinate && std::abs(point.y) < FarthestCoordinate
           && std::abs(point.z) < FarthestCoordinate;
}

Surface surfaceOf(const orvane::Mesh &mesh, SurfaceLook look)
{
    return SurfaceBuilder(mesh).build(look);
}
