// SPDX-License-Identifier: MIT
#pragma once

#include "cli/camera.h"
#include "cli/picturescene.h"
#include "cli/rasteriser.h"

//! Draws a scene as a camera sees it, a few rows at a time.
class ScenePainter
{
public:
    //! The scene is to live as long. lineScale: pixels a line gets for each it has usually;
    //! diagonal: of what is seen, in scene units.
    ScenePainter(const PictureScene &scene, const Camera &camera, float lineScale, float diagonal);

    void paint(QImage &picture) const;

private:
    struct Stroke
    {
        ScreenPoint a;
        ScreenPoint b;
        Side side;
    };

    // A surface as the camera turns it.
    struct View
    {
        const Surface *surface;
        QVector<ScreenPoint> places; // by vertex
    };

    View viewOf(const Surface &surface) const;
    void addEdges(const View &view);
    void addCurves();
    void addCrossings();
    void drawRows(Rasteriser &rows) const;
    template <typename Draw>
    void forEachTriangle(const View &view, const Rasteriser &rows, Draw draw) const;
    void drawMesh(Rasteriser &rows, const View &view) const;
    void drawStrokes(Rasteriser &rows, const QVector<Stroke> &strokes, float width, QRgb colour,
                     const Reach &reach) const;

    const PictureScene &m_scene;
    const Camera m_camera;
    float m_lineScale;
    float m_diagonal;
    QVector<View> m_source;
    QVector<View> m_meshes;
    QVector<Stroke> m_edges;
    QVector<Stroke> m_curves;
    QVector<Stroke> m_crossings; // of no length
};
