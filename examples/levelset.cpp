// SPDX-License-Identifier: MIT
#include "examples/levelset.h"

#include <map>
#include <utility>

using orvane::Vector;

namespace {

using Edge = std::pair<int, int>; // lower vertex first

Edge edgeOf(int a, int b)
{
    return a < b ? Edge(a, b) : Edge(b, a);
}

// The cut edges of the mesh; each triangle that is cut joins two of them.
class ZeroLine
{
public:
    ZeroLine(const TriangleMesh &mesh, const std::vector<float> &values)
        : m_mesh(mesh), m_values(values)
    {
        for (const auto &triangle : mesh.triangles)
            cut(triangle);
    }

    std::vector<Stroke> strokes()
    {
        std::vector<Stroke> result;
        for (const auto &entry : m_joined) {
            if (entry.second.size() == 1 && !m_taken.count(entry.first))
                result.push_back(follow(entry.first));
        }
        for (const auto &entry : m_joined) {
            if (!m_taken.count(entry.first))
                result.push_back(follow(entry.first));
        }
        return result;
    }

private:
    bool isAbove(int vertex) const { return m_values[size_t(vertex)] >= 0.0f; }

    void cut(const std::array<int, 3> &triangle)
    {
        std::vector<Edge> cuts;
        for (size_t c = 0; c < 3; ++c) {
            const int a = triangle[c];
            const int b = triangle[(c + 1) % 3];
            if (isAbove(a) != isAbove(b))
                cuts.push_back(edgeOf(a, b));
        }
        if (cuts.size() != 2)
            return;
        m_joined[cuts[0]].push_back(cuts[1]);
        m_joined[cuts[1]].push_back(cuts[0]);
    }

    Vector place(const Edge &edge) const
    {
        const float a = m_values[size_t(edge.first)];
        const float b = m_values[size_t(edge.second)];
        const Vector &p = m_mesh.positions[size_t(edge.first)];
        return p + (m_mesh.positions[size_t(edge.second)] - p) * (a / (a - b));
    }

    Stroke follow(Edge edge)
    {
        Stroke stroke;
        const Edge start = edge;
        bool onward = true;
        while (onward) {
            m_taken[edge] = true;
            stroke.points.push_back(place(edge));
            onward = false;
            for (const Edge &next : m_joined[edge]) {
                if (m_taken.count(next))
                    continue;
                edge = next;
                onward = true;
                break;
            }
        }
        const std::vector<Edge> &last = m_joined[edge];
        stroke.closed =
            stroke.points.size() > 2 && last.size() == 2 && (last[0] == start || last[1] == start);
        return stroke;
    }

    const TriangleMesh &m_mesh;
    const std::vector<float> &m_values; // by vertex
    std::map<Edge, std::vector<Edge>> m_joined;
    std::map<Edge, bool> m_taken;
};

} // namespace

std::vector<Stroke> traceZero(const TriangleMesh &mesh,
                              const std::function<float(const Vector &)> &function)
{
    std::vector<float> values;
    values.reserve(mesh.positions.size());
    for (const Vector &p : mesh.positions)
        values.push_back(function(p));
    return ZeroLine(mesh, values).strokes();
}
