// SPDX-License-Identifier: MIT
#include "cli/goodangle.h"

#include <orvane/math/axisalignedboundingbox.h>

#include <algorithm>
#include <cmath>

using orvane::Vector;

namespace {

const int GridSize = 128;                  // cells a side of the little picture that is counted
const int MostTriangles = 150000;          // looked at in a surface; more are skipped evenly
const float HiderSlack = 0.03f * GridSize; // cells that a surface may lie behind what hides it
const float LeastCosine = 0.1f;
const float LeastDiagonal = 1e-30f; // scene units; a smaller scene cannot be scaled to the grid
const int Turns = 16;               // views round the upright axis
const double FrontLiking = 0.25;    // most things are sculpted facing +z
const double DiagonalLiking = 0.08;
const double Pi = 3.14159265358979323846;

// Elevations in degrees, and how well people like them.
const struct
{
    double degrees;
    double liking;
} Elevations[] = {{22.0, 1.0},  {12.0, 0.97}, {34.0, 0.97},
                  {50.0, 0.86}, {70.0, 0.72}, {-15.0, 0.75}};

// What one view shows, counted in a little picture without perspective.
class ViewCount
{
public:
    ViewCount(const Vector &direction, const orvane::AxisAlignedBoundingBox &bounds);

    void add(const Surface &surface, bool counts);
    double visible() const;

private:
    struct Cell
    {
        float back = -HUGE_VALF; // towards the eye, cells
        float weight = 0.0f;
    };

    void addTriangle(const Vector *p, bool counts);
    void offer(int x, int y, float back, float weight);

    Vector m_right;
    Vector m_up;
    Vector m_back;
    Vector m_middle;
    float m_scale;
    QVector<Cell> m_cells;
};

ViewCount::ViewCount(const Vector &direction, const orvane::AxisAlignedBoundingBox &bounds)
    : m_right(Normalized(Vector(0.0f, 1.0f, 0.0f) & direction)),
      m_up(direction & m_right),
      m_back(direction),
      m_middle(bounds.Center()),
      m_scale(GridSize / bounds.Diagonal()),
      m_cells(GridSize * GridSize)
{}

void ViewCount::add(const Surface &surface, bool counts)
{
    QVector<Vector> places;
    places.reserve(surface.positions.size());
    for (const Vector &position : surface.positions) {
        const Vector p = (position - m_middle) * m_scale;
        places.append(
            {Dot(p, m_right) + GridSize / 2, Dot(p, m_up) + GridSize / 2, Dot(p, m_back)});
    }
    const int step = 1 + surface.triangles.size() / MostTriangles;
    for (int i = 0; i < surface.triangles.size(); i += step) {
        const int *vertex = surface.triangles[i].vertex;
        const Vector corners[3] = {places[vertex[0]], places[vertex[1]], places[vertex[2]]};
        addTriangle(corners, counts);
    }
}

void ViewCount::addTriangle(const Vector *p, bool counts)
{
    const Vector area = (p[1] - p[0]) & (p[2] - p[0]);
    const float length = area.Length();
    if (!(length > 0.0f))
        return;
    // Between the area that is seen and the area that it has: the first alone gives flat side
    // views, the second alone grazing ones.
    const float cosine = std::abs(area.z) / length;
    const float weight = counts ? 1.0f / std::sqrt(std::max(cosine, LeastCosine)) : 0.0f;
    const float slack = counts ? 0.0f : HiderSlack;
    const int left = int(std::min({p[0].x, p[1].x, p[2].x}));
    const int right = int(std::max({p[0].x, p[1].x, p[2].x}));
    const int low = int(std::min({p[0].y, p[1].y, p[2].y}));
    const int high = int(std::max({p[0].y, p[1].y, p[2].y}));
    if (left == right && low == high)
        return offer(left, low, p[0].z - slack, weight);
    for (int y = low; y <= high; ++y) {
        for (int x = left; x <= right; ++x) {
            const Vector q(x + 0.5f, y + 0.5f, 0.0f);
            const float u = ((p[1] - q) & (p[2] - q)).z / area.z;
            const float v = ((p[2] - q) & (p[0] - q)).z / area.z;
            if (u >= 0.0f && v >= 0.0f && u + v <= 1.0f)
                offer(x, y, p[0].z * u + p[1].z * v + p[2].z * (1.0f - u - v) - slack, weight);
        }
    }
}

void ViewCount::offer(int x, int y, float back, float weight)
{
    if (x < 0 || y < 0 || x >= GridSize || y >= GridSize)
        return;
    Cell &cell = m_cells[y * GridSize + x];
    if (back > cell.back)
        cell = {back, weight};
}

double ViewCount::visible() const
{
    double sum = 0.0;
    for (const Cell &cell : m_cells)
        sum += cell.weight;
    return sum;
}

void extend(orvane::AxisAlignedBoundingBox &bounds, const QVector<Surface> &surfaces)
{
    for (const Surface &surface : surfaces) {
        for (int vertex : surface.polygons.corners)
            bounds.Extend(surface.positions[vertex]);
    }
}

Vector directionAt(double elevation, double angle)
{
    return {float(std::sin(angle) * std::cos(elevation)), float(std::sin(elevation)),
            float(std::cos(angle) * std::cos(elevation))};
}

} // namespace

Vector goodAngle(const QVector<Surface> &surfaces, const QVector<Surface> &hiders)
{
    orvane::AxisAlignedBoundingBox bounds;
    extend(bounds, surfaces);
    extend(bounds, hiders);
    Vector best;
    double bestScore = -1.0;
    for (const auto &elevation : Elevations) {
        for (int turn = 0; turn < Turns; ++turn) {
            const double angle = turn * 2.0 * Pi / Turns;
            const Vector direction = directionAt(elevation.degrees * Pi / 180.0, angle);
            double score = elevation.liking * (1.0 + FrontLiking * std::cos(angle))
                           * (1.0 + DiagonalLiking * std::abs(std::sin(2.0 * angle)));
            if (bounds.Diagonal() > LeastDiagonal) {
                ViewCount view(direction, bounds);
                for (const Surface &hider : hiders)
                    view.add(hider, false);
                for (const Surface &surface : surfaces)
                    view.add(surface, true);
                score *= view.visible();
            }
            if (score > bestScore) {
                bestScore = score;
                best = direction;
            }
        }
    }
    return best;
}
