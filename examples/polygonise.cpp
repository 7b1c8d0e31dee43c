// SPDX-License-Identifier: MIT
#include "examples/polygonise.h"

#include "examples/headshape.h"

using orvane::Vector;

namespace {

const Vector Low(-1.45f, -1.85f, -1.35f); // a corner of a box round the head, scene units
const Vector High(1.45f, 1.30f, 1.25f);   // the opposite corner
const int SmoothingRounds = 3;

class SurfaceNet
{
public:
    explicit SurfaceNet(float cellSize)
        : m_cell(cellSize),
          m_count{int((High.x - Low.x) / cellSize), int((High.y - Low.y) / cellSize),
                  int((High.z - Low.z) / cellSize)}
    {}

    TriangleMesh mesh()
    {
        measureCorners();
        placeVertices();
        joinFaces();
        for (int round = 0; round < SmoothingRounds; ++round)
            smooth();
        return m_mesh;
    }

private:
    // Corner or cell (i, j, k) of the grid.
    int slot(int i, int j, int k) const
    {
        return (k * (m_count[1] + 1) + j) * (m_count[0] + 1) + i;
    }
    int slot(const std::array<int, 3> &at) const { return slot(at[0], at[1], at[2]); }

    Vector corner(int i, int j, int k) const
    {
        return Low + Vector(float(i), float(j), float(k)) * m_cell;
    }

    template <typename Visit>
    void forEachCorner(Visit visit) const
    {
        for (int k = 0; k <= m_count[2]; ++k) {
            for (int j = 0; j <= m_count[1]; ++j) {
                for (int i = 0; i <= m_count[0]; ++i)
                    visit(i, j, k);
            }
        }
    }

    void measureCorners()
    {
        m_distance.resize(size_t(slot(m_count[0], m_count[1], m_count[2])) + 1);
        forEachCorner([this](int i, int j, int k) {
            m_distance[size_t(slot(i, j, k))] = headshape::distance(corner(i, j, k));
        });
    }

    bool isInside(int s) const { return m_distance[size_t(s)] < 0.0f; }

    // One vertex for each cell that the surface passes through.
    void placeVertices()
    {
        m_vertex.assign(m_distance.size(), -1);
        forEachCorner([this](int i, int j, int k) {
            if (i == m_count[0] || j == m_count[1] || k == m_count[2])
                return;
            int inside = 0;
            for (int c = 0; c < 8; ++c)
                inside += isInside(slot(i + (c & 1), j + (c >> 1 & 1), k + (c >> 2)));
            if (inside == 0 || inside == 8)
                return;
            const Vector middle = corner(i, j, k) + Vector(0.5f, 0.5f, 0.5f) * m_cell;
            m_vertex[size_t(slot(i, j, k))] = int(m_mesh.positions.size());
            m_mesh.positions.push_back(headshape::onSurface(middle));
        });
    }

    // Each grid edge that the surface cuts is shared by four cells: a quad, split in two.
    void joinFaces()
    {
        forEachCorner([this](int i, int j, int k) {
            const std::array<int, 3> at{i, j, k};
            for (int axis = 0; axis < 3; ++axis) {
                const int u = (axis + 1) % 3;
                const int v = (axis + 2) % 3;
                if (at[size_t(axis)] < m_count[size_t(axis)] && at[size_t(u)] > 0
                    && at[size_t(v)] > 0)
                    joinAroundEdge(at, axis, u, v);
            }
        });
    }

    void joinAroundEdge(const std::array<int, 3> &at, int axis, int u, int v)
    {
        std::array<int, 3> end = at;
        ++end[size_t(axis)];
        const bool startInside = isInside(slot(at));
        if (startInside == isInside(slot(end)))
            return;
        std::array<int, 4> quad;
        const int steps[4][2] = {{-1, -1}, {0, -1}, {0, 0}, {-1, 0}};
        for (int c = 0; c < 4; ++c) {
            std::array<int, 3> cell = at;
            cell[size_t(u)] += steps[c][0];
            cell[size_t(v)] += steps[c][1];
            quad[size_t(c)] = m_vertex[size_t(slot(cell))];
        }
        if (!startInside)
            std::swap(quad[1], quad[3]);
        m_mesh.triangles.push_back({quad[0], quad[1], quad[2]});
        m_mesh.triangles.push_back({quad[0], quad[2], quad[3]});
    }

    // Towards the mean of the neighbours, then back onto the surface: evens out the spacing.
    void smooth()
    {
        std::vector<Vector> sum(m_mesh.positions.size());
        std::vector<float> weight(m_mesh.positions.size(), 0.0f);
        for (const auto &triangle : m_mesh.triangles) {
            for (int c = 0; c < 3; ++c) {
                const auto vertex = size_t(triangle[size_t(c)]);
                for (int step : {1, 2}) {
                    sum[vertex] += m_mesh.positions[size_t(triangle[size_t((c + step) % 3)])];
                    weight[vertex] += 1.0f;
                }
            }
        }
        for (size_t i = 0; i < sum.size(); ++i) {
            if (weight[i] > 0.0f)
                m_mesh.positions[i] =
                    headshape::onSurface(m_mesh.positions[i] * 0.5f + sum[i] * (0.5f / weight[i]));
        }
    }

    float m_cell;
    std::array<int, 3> m_count; // cells along each axis
    std::vector<float> m_distance;
    std::vector<int> m_vertex; // by cell; -1 where the surface is elsewhere
    TriangleMesh m_mesh;
};

} // namespace

TriangleMesh polygoniseHead(float cellSize)
{
    return SurfaceNet(cellSize).mesh();
}
