// SPDX-License-Identifier: MIT
#include "plugin/overlay.h"

#include "graph/graphwalk.h"
#include "graph/intersectionnode.h"
#include "plugin/overlayprograms.h"

#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/kernel/scenecamera.h>

#include <qopengl.h>

namespace {

const float DotSize = 10.0f;         // pixels
const float StrokeWidth = 4.0f;      // pixels
const float UsualLineWidth = 1.0f;   // pixels
const float StrokeOpacity = 0.3f;    // fraction
const float StrokePartOfEdge = 0.4f; // fraction: both ends of an edge stay apart
const OverlayColor DotColor = {0.0f, 0.0f, 1.0f, 1.0f};

// Of the i-th of n neighbours: red for the first, the later the nearer to white.
OverlayColor strokeColor(int i, int n)
{
    const float fading = n > 0 ? float(i) / float(n) : 0.0f;
    return {1.0f, fading, fading, StrokeOpacity};
}

// World to clip space.
orvane::Matrix viewMatrix()
{
    const orvane::SceneCamera *camera = orvane::Kernel()->Scene()->ActiveCamera();
    return camera ? camera->WorldToClip() : orvane::Matrix();
}

void enableBlending()
{
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
}

void addVertex(const orvane::Vector &position)
{
    glVertex3f(position.x, position.y, position.z);
}

void drawLine(const orvane::Vector &from, const orvane::Vector &to)
{
    glBegin(GL_LINES);
    addVertex(from);
    addVertex(to);
    glEnd();
}

//! Draws the parts of one graph, all as it is seen through the matrix.
class OverlayPainter
{
public:
    OverlayPainter(const OverlayPrograms &programs, const orvane::Matrix &matrix)
        : m_programs(programs), m_matrix(matrix)
    {}

    void drawStrokes(const IntersectionNode &node) const
    {
        const int count = node.neighbourCount();
        enableBlending();
        beginNode(strokeColor(0, count));
        glLineWidth(StrokeWidth);
        glDepthMask(GL_FALSE);
        for (int i = 0; i < count; ++i) {
            useColor(strokeColor(i, count));
            const orvane::Vector toNeighbour = node.neighbour(i)->position() - node.position();
            drawLine(node.position(), node.position() + toNeighbour * StrokePartOfEdge);
        }
    }

    void drawDot(const IntersectionNode &node) const
    {
        beginNode(DotColor);
        glEnable(GL_POINT_SMOOTH);
        glHint(GL_POINT_SMOOTH_HINT, GL_NICEST);
        enableBlending();
        glPointSize(DotSize);
        glDepthMask(GL_FALSE);
        glBegin(GL_POINTS);
        addVertex(node.position());
        glEnd();
        glDepthMask(GL_TRUE);
        glDisable(GL_BLEND);
        glDisable(GL_POINT_SMOOTH);
    }

private:
    void beginNode(const OverlayColor &color) const
    {
        if (m_programs.lines)
            setMatrix(m_programs, m_matrix);
        useColor(color);
    }

    // Without a program the fixed pipeline shows the colours.
    void useColor(const OverlayColor &color) const
    {
        if (m_programs.lines)
            setColor(m_programs, color);
        else
            glColor4f(color[0], color[1], color[2], color[3]);
    }

    const OverlayPrograms &m_programs;
    const orvane::Matrix &m_matrix;
};

} // namespace

void drawOverlay(const OverlayPrograms &programs, IntersectionNode *start)
{
    beginPrograms(programs);
    const orvane::Matrix matrix = viewMatrix();
    const OverlayPainter painter(programs, matrix);
    QVector<const IntersectionNode *> visited;
    walkGraph(start, [&painter, &visited](const IntersectionNode *node) {
        painter.drawStrokes(*node);
        visited.append(node);
    });
    for (const IntersectionNode *node : qAsConst(visited))
        painter.drawDot(*node);
    endPrograms();
    glLineWidth(UsualLineWidth);
}
