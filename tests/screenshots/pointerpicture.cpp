// SPDX-License-Identifier: MIT
#include "tests/screenshots/pointerpicture.h"

#include <QPainter>
#include <QPainterPath>

namespace {

const double Rim = 1.2; // pixels
const QColor Ink(20, 22, 26);

QPainterPath arrow()
{
    QPainterPath path;
    path.addPolygon(QPolygonF() << QPointF(0, 0) << QPointF(0, 17) << QPointF(4.2, 13.2)
                                << QPointF(6.9, 19.4) << QPointF(9.7, 18.2) << QPointF(7.1, 12.2)
                                << QPointF(12.4, 12));
    path.closeSubpath();
    return path;
}

QPainterPath cross()
{
    QPainterPath path;
    path.addRect(-9, -0.9, 18, 1.8);
    path.addRect(-0.9, -9, 1.8, 18);
    return path.simplified();
}

// A fist from above: four knuckles and a thumb.
QPainterPath fist()
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRoundedRect(-6.5, -3, 14, 12, 5, 5);
    for (int finger = 0; finger < 4; ++finger)
        path.addRoundedRect(-6.5 + 3.5 * finger, -6 + (finger % 3 ? 0.0 : 1.2), 3.5, 9, 1.7, 1.7);
    path.addRoundedRect(-9, -0.5, 5, 6.5, 2.2, 2.2);
    return path.simplified();
}

} // namespace

void drawPointer(QPainter &painter, const QPointF &place, Qt::CursorShape shape)
{
    const bool isFist = shape == Qt::ClosedHandCursor || shape == Qt::OpenHandCursor;
    const QPainterPath path = shape == Qt::CrossCursor ? cross() : isFist ? fist() : arrow();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place);
    const QColor fill = shape == Qt::CrossCursor ? Ink : QColor(Qt::white);
    const QColor rim = shape == Qt::CrossCursor ? QColor(Qt::white) : Ink;
    painter.strokePath(path, QPen(rim, 2.0 * Rim, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(path, fill);
    painter.restore();
}
