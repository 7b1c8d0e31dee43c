// SPDX-License-Identifier: MIT
#include "plugin/overlay.h"

#include "graph/graphwalk.h"
#include "graph/intersectionnode.h"

#include <orvane/math/vector.h>

#include <qopengl.h>

namespace {

const float DotSize = 10.0f;         // pixels
const float StrokeWidth = 4.0f;      // pixels
const float UsualLineWidth = 1.0f;   // pixels
const float StrokeOpacity = 0.3f;    // fraction
const float StrokePartOfEdge = 0.4f; // fraction: both ends of an edge stay apart

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

void drawStrokes(const IntersectionNode &node)
{
    enableBlending();
    glLineWidth(StrokeWidth);
    glDepthMask(GL_FALSE);
    const int count = node.neighbourCount();
    for (int i = 0; i < count; ++i) {
        const float fading = float(i) / float(count);
        glColor4f(1.0f, fading, fading, StrokeOpacity);
        const orvane::Vector toNeighbour = node.neighbour(i)->position() - node.position();
        drawLine(node.position(), node.position() + toNeighbour * StrokePartOfEdge);
    }
}

void drawDot(const IntersectionNode &node)
{
    glColor4f(0.0f, 0.0f, 1.0f, 1.0f);
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

} // namespace

void drawOverlay(IntersectionNode *start)
{
    QVector<const IntersectionNode *> visited;
    walkGraph(start, 0, [&visited](const IntersectionNode *node) {
        drawStrokes(*node);
        visited.append(node);
    });
    for (const IntersectionNode *node : qAsConst(visited))
        drawDot(*node);
    glLineWidth(UsualLineWidth);
}
