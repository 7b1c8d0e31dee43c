// SPDX-License-Identifier: MIT
#include "cli/scenepainter.h"

#include <algorithm>
#include <limits>

using orvane::Vector;

namespace {

const int RowsAtOnce = 48; // pixels: the samples of a few rows stay in the processor's cache

// Fractions of the diagonal. New faces are flatter than what they lie on and cut below it, deep
// where that is round; yet through a thin wall the far side must not show.
const float FaceReach = 0.03f;
const float InsideReach = 0.1f;
const float ThinWall = 0.005f;
const float EdgeLift = 0.004f;
const float CurveLift = 0.003f;
const float CurveLiftOverMesh = 0.02f;

const float EdgeWidth = 1.7f; // pixels, these too, at the usual size
const float CurveWidth = 1.7f;
const float DotWidth = 3.0f;
const float DotRim = 1.2f;

const float EdgeOnCosine = -0.2f; // an edge on the outline belongs to the side that is seen
const float DimmedContrast = 0.62f;
const float FaceContrast = 0.8f; // colours are to be told apart in the shade too

} // namespace

ScenePainter::ScenePainter(const PictureScene &scene, const Camera &camera, float lineScale,
                           float diagonal)
    : m_scene(scene), m_camera(camera), m_lineScale(lineScale), m_diagonal(diagonal)
{
    for (const Surface &surface : m_scene.source)
        m_source.append(viewOf(surface));
    for (const Surface &surface : m_scene.meshes) {
        m_meshes.append(viewOf(surface));
        addEdges(m_meshes.last());
    }
    addCurves();
    addCrossings();
}

ScenePainter::View ScenePainter::viewOf(const Surface &surface) const
{
    View view{&surface, {}};
    view.places.reserve(surface.positions.size());
    for (const Vector &position : surface.positions)
        view.places.append(m_camera.project(position));
    return view;
}

void ScenePainter::addEdges(const View &view)
{
    const Surface &surface = *view.surface;
    for (const orvane::MeshEdge &edge : edgesOf(surface.polygons, surface.positions.size())) {
        const Vector normal = Normalized(surface.normals[edge.a] + surface.normals[edge.b]);
        const float facing = m_camera.facing(surface.positions[edge.a], normal);
        const Side side = facing > EdgeOnCosine ? Side::Front : Side::Back;
        m_edges.append({view.places[edge.a], view.places[edge.b], side});
    }
}

void ScenePainter::addCurves()
{
    for (const QVector<Vector> &points : m_scene.strokes) {
        ScreenPoint last = m_camera.project(points.first());
        for (const Vector &point : points) {
            const ScreenPoint next = m_camera.project(point);
            m_curves.append({last, next, Side::Front});
            last = next;
        }
    }
}

void ScenePainter::addCrossings()
{
    for (const Vector &crossing : m_scene.crossings) {
        const ScreenPoint place = m_camera.project(crossing);
        m_crossings.append({place, place, Side::Front});
    }
}

void ScenePainter::paint(QImage &picture) const
{
    for (int row = 0; row < picture.height(); row += RowsAtOnce) {
        Rasteriser rows(picture, row, std::min(RowsAtOnce, picture.height() - row));
        drawRows(rows);
        rows.copyTo(picture);
    }
}

void ScenePainter::drawRows(Rasteriser &rows) const
{
    const bool isDimmed = !m_meshes.isEmpty();
    const Material clay{linearColour(isDimmed ? PictureColour::DimmedClay : PictureColour::Clay),
                        isDimmed ? DimmedContrast : 1.0f};
    for (const View &view : m_source) {
        forEachTriangle(view, rows, [&](const ShadedCorner(&corners)[3], int) {
            rows.drawBackdrop(corners, clay);
        });
    }
    for (const View &view : m_meshes)
        drawMesh(rows, view);

    const float edgeReach = (FaceReach + EdgeLift) * m_diagonal;
    drawStrokes(
        rows, m_edges, EdgeWidth, PictureColour::Edge.rgb(),
        {edgeReach, InsideReach * m_diagonal, ThinWall * m_diagonal, EdgeLift * m_diagonal});
    // Curves lie on the source: where there is one, it alone may hide them, not the new faces
    // that rise above it here and there.
    const float lift = CurveLift * m_diagonal;
    const float liftOverMesh = m_source.isEmpty() ? CurveLiftOverMesh * m_diagonal
                                                  : std::numeric_limits<float>::infinity();
    const Reach onSource{lift, lift, lift, liftOverMesh};
    drawStrokes(rows, m_curves, CurveWidth, PictureColour::Curve.rgb(), onSource);
    drawStrokes(rows, m_crossings, DotWidth + 2.0f * DotRim, PictureColour::Edge.rgb(), onSource);
    drawStrokes(rows, m_crossings, DotWidth, PictureColour::Crossing.rgb(), onSource);
}

template <typename Draw>
void ScenePainter::forEachTriangle(const View &view, const Rasteriser &rows, Draw draw) const
{
    for (const SurfaceTriangle &triangle : view.surface->triangles) {
        const ScreenPoint &a = view.places[triangle.vertex[0]];
        const ScreenPoint &b = view.places[triangle.vertex[1]];
        const ScreenPoint &c = view.places[triangle.vertex[2]];
        if (!rows.touches(std::min({a.y, b.y, c.y}), std::max({a.y, b.y, c.y})))
            continue;
        const ShadedCorner corners[3] = {{a, m_camera.turned(triangle.normal[0])},
                                         {b, m_camera.turned(triangle.normal[1])},
                                         {c, m_camera.turned(triangle.normal[2])}};
        draw(corners, triangle.polygon);
    }
}

void ScenePainter::drawMesh(Rasteriser &rows, const View &view) const
{
    Material materials[CornerClassCount];
    for (int i = 0; i < CornerClassCount; ++i)
        materials[i] = {linearColour(cornerColour(CornerClass(i))), FaceContrast};
    const Reach reach{FaceReach * m_diagonal, InsideReach * m_diagonal, ThinWall * m_diagonal,
                      0.0f};
    forEachTriangle(view, rows, [&](const ShadedCorner(&corners)[3], int polygon) {
        const int count = view.surface->polygons.CornerCount(polygon);
        rows.drawFront(corners, materials[cornerClass(count)], reach);
    });
}

void ScenePainter::drawStrokes(Rasteriser &rows, const QVector<Stroke> &strokes, float width,
                               QRgb colour, const Reach &reach) const
{
    const float scaled = width * m_lineScale;
    for (const Stroke &stroke : strokes) {
        const float top = std::min(stroke.a.y, stroke.b.y) - scaled;
        if (rows.touches(top, std::max(stroke.a.y, stroke.b.y) + scaled))
            rows.drawLine(stroke.a, stroke.b, scaled, colour, reach, stroke.side);
    }
}
