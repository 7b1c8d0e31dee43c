// SPDX-License-Identifier: MIT
#include "tests/operation/agreement/polygonizer.h"

#include <QHash>

#include <geos_c.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace {

// One GEOS context for the process; what GEOS complains about becomes an exception.
class Context
{
public:
    Context() : m_handle(GEOS_init_r()) {}
    ~Context() { GEOS_finish_r(m_handle); }
    Context(const Context &) = delete;
    Context &operator=(const Context &) = delete;

    GEOSContextHandle_t handle() const { return m_handle; }

private:
    GEOSContextHandle_t m_handle;
};

GEOSContextHandle_t geos()
{
    static const Context context;
    return context.handle();
}

struct GeometryDeleter
{
    void operator()(GEOSGeometry *geometry) const { GEOSGeom_destroy_r(geos(), geometry); }
};

using GeometryPointer = std::unique_ptr<GEOSGeometry, GeometryDeleter>;

GeometryPointer checked(GEOSGeometry *geometry)
{
    if (!geometry)
        throw std::runtime_error("GEOS gave no geometry");
    return GeometryPointer(geometry);
}

GeometryPointer lineThrough(const orvane::Vector &a, const orvane::Vector &b)
{
    const double places[4] = {double(a.x), double(a.y), double(b.x), double(b.y)};
    return checked(GEOSGeom_createLineString_r(
        geos(), GEOSCoordSeq_copyFromBuffer_r(geos(), places, 2, 0, 0)));
}

GeometryPointer linesOf(const PlanarGraph &graph)
{
    std::vector<GEOSGeometry *> lines; // the collection's once it is made
    for (const QPair<int, int> &link : graph.links)
        lines.push_back(
            lineThrough(graph.positions[link.first], graph.positions[link.second]).release());
    return checked(GEOSGeom_createCollection_r(geos(), GEOS_MULTILINESTRING, lines.data(),
                                               unsigned(lines.size())));
}

using Place = QPair<double, double>;

Place placeOf(const orvane::Vector &position)
{
    return {double(position.x), double(position.y)};
}

// Finds nodes again by their coordinates, which GEOS passes on unchanged.
class VertexNumbers
{
public:
    explicit VertexNumbers(const PlanarGraph &graph)
    {
        for (int vertex = 0; vertex < graph.positions.size(); ++vertex)
            m_numbers.insert(placeOf(graph.positions[vertex]), vertex);
    }

    // The vertices along a line or ring, the closing repetition of the first left out.
    QVector<int> along(const GEOSGeometry *line) const
    {
        const GEOSCoordSequence *sequence = GEOSGeom_getCoordSeq_r(geos(), line);
        unsigned size = 0;
        GEOSCoordSeq_getSize_r(geos(), sequence, &size);
        QVector<int> vertices;
        for (unsigned i = 0; i < size; ++i) {
            Place place;
            GEOSCoordSeq_getXY_r(geos(), sequence, i, &place.first, &place.second);
            vertices.append(m_numbers.value(place, -1));
        }
        if (vertices.contains(-1))
            throw std::runtime_error("GEOS gave a place that is no node");
        if (vertices.size() > 1 && vertices.first() == vertices.last())
            vertices.removeLast();
        return vertices;
    }

    QSet<int> onAnyOf(const GEOSGeometry *lines) const
    {
        QSet<int> vertices;
        for (int i = 0; i < GEOSGetNumGeometries_r(geos(), lines); ++i) {
            for (int vertex : along(GEOSGetGeometryN_r(geos(), lines, i)))
                vertices.insert(vertex);
        }
        return vertices;
    }

private:
    QHash<Place, int> m_numbers;
};

QVector<int> ringOf(const GEOSGeometry *line, bool isHole, const VertexNumbers &numbers)
{
    QVector<int> ring = numbers.along(line);
    char isCounterClockwise = 0;
    GEOSCoordSeq_isCCW_r(geos(), GEOSGeom_getCoordSeq_r(geos(), line), &isCounterClockwise);
    if ((isCounterClockwise != 0) == isHole)
        std::reverse(ring.begin(), ring.end());
    return ring;
}

Shell shellOf(const GEOSGeometry *polygon, const VertexNumbers &numbers)
{
    Shell shell;
    shell.rings.append(ringOf(GEOSGetExteriorRing_r(geos(), polygon), false, numbers));
    for (int i = 0; i < GEOSGetNumInteriorRings_r(geos(), polygon); ++i)
        shell.rings.append(ringOf(GEOSGetInteriorRingN_r(geos(), polygon, i), true, numbers));
    return shell;
}

} // namespace

bool linksCross(const PlanarGraph &graph)
{
    return GEOSisSimple_r(geos(), linesOf(graph).get()) != 1;
}

Polygonization polygonize(const PlanarGraph &graph)
{
    const VertexNumbers numbers(graph);
    const GeometryPointer lines = linesOf(graph);
    GEOSGeometry *cutEdges = nullptr;
    GEOSGeometry *dangles = nullptr;
    GEOSGeometry *invalidRings = nullptr;
    const GeometryPointer polygons =
        checked(GEOSPolygonize_full_r(geos(), lines.get(), &cutEdges, &dangles, &invalidRings));
    Polygonization result;
    result.cutEdgeVertices = numbers.onAnyOf(checked(cutEdges).get());
    result.dangleVertices = numbers.onAnyOf(checked(dangles).get());
    result.invalidRings = GEOSGetNumGeometries_r(geos(), checked(invalidRings).get());
    for (int i = 0; i < GEOSGetNumGeometries_r(geos(), polygons.get()); ++i)
        result.shells.append(shellOf(GEOSGetGeometryN_r(geos(), polygons.get(), i), numbers));
    return result;
}
