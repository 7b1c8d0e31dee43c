// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/viewclient.h"
#include "host/desktop/viewport/cardarray.h"
#include "host/desktop/viewport/plainshaders.h"

namespace orvane {

struct Frame;

//! Draws what the tool in hand shows: its lines in the scene, its shapes over the view.
class ClientRenderer
{
public:
    void DrawLines(const Frame &frame, const QVector<ViewLine> &lines);
    void DrawShapes(const Frame &frame, const QVector<ViewShape> &shapes);

private:
    void drawLine(const Frame &frame, const ViewLine &line, int first);

    QVector<Vector> m_linePlaces; // as they are on the card
    QVector<Vector> m_shapePlaces;
    CardArray m_lines;
    CardArray m_shapes;
    PlainShader m_plain;
    DotShader m_dots;
};

} // namespace orvane
