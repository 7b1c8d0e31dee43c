// SPDX-License-Identifier: MIT
#include "cli/legend.h"

#include "cli/shading.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace {

const double TextHeight = 0.0165; // of the picture's height
const double LeastText = 6.0;     // pixels
const double SideMargin = 0.03;   // of the picture's width
// In heights of the text:
const double SignWidth = 1.3;
const double SignGap = 0.5;
const double EntryGap = 1.8;
const double LineStep = 1.9;
const double LowerMargin = 1.5;

double textSize(const QSize &picture)
{
    return std::max(picture.height() * TextHeight, LeastText);
}

QFont fontOf(double pixels, bool bold)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(std::max(1, qRound(pixels)));
    font.setBold(bold);
    return font;
}

double widthOf(const QVector<LegendEntry> &entries, double size)
{
    const QFontMetricsF metrics(fontOf(size, false));
    double width = 0.0;
    for (const LegendEntry &entry : entries)
        width += (SignWidth + SignGap + EntryGap) * size + metrics.horizontalAdvance(entry.text);
    return width;
}

void drawSign(QPainter &painter, const LegendEntry &entry, const QRectF &box)
{
    const double middle = box.center().y();
    switch (entry.sign) {
    case LegendEntry::Face:
        painter.setPen(QPen(PictureColour::Edge, box.height() / 14.0));
        painter.setBrush(entry.colour);
        painter.drawRoundedRect(box, box.height() / 8.0, box.height() / 8.0);
        return;
    case LegendEntry::Line:
        painter.setPen(QPen(entry.colour, box.height() / 6.0, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(box.left(), middle), QPointF(box.right(), middle));
        return;
    case LegendEntry::Dot:
        painter.setPen(QPen(PictureColour::Edge, box.height() / 8.0));
        painter.setBrush(entry.colour);
        painter.drawEllipse(box.center(), box.height() * 0.25, box.height() * 0.25);
        return;
    }
}

} // namespace

QRectF frameBesideLegend(const QSize &picture)
{
    const double size = textSize(picture);
    const double side = picture.width() * SideMargin;
    const double below = std::min((2.0 * LineStep + LowerMargin) * size, picture.height() / 3.0);
    return QRectF(side, side, std::max(1.0, picture.width() - 2.0 * side),
                  std::max(1.0, picture.height() - side - below));
}

void drawLegend(QImage &picture, const QString &title, const QVector<LegendEntry> &entries)
{
    const double left = picture.width() * SideMargin;
    const double room = picture.width() - 2.0 * left;
    double size = textSize(picture.size());
    const double wanted = widthOf(entries, size);
    if (wanted > room)
        size *= room / wanted;

    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const double base = picture.height() - LowerMargin * size;
    painter.setPen(PictureColour::Text);
    painter.setFont(fontOf(size, true));
    painter.drawText(QPointF(left, entries.isEmpty() ? base : base - LineStep * size), title);
    painter.setFont(fontOf(size, false));
    double x = left;
    for (const LegendEntry &entry : entries) {
        drawSign(painter, entry, QRectF(x, base - 0.85 * size, SignWidth * size, size));
        x += (SignWidth + SignGap) * size;
        painter.setPen(PictureColour::Text);
        painter.drawText(QPointF(x, base), entry.text);
        x += QFontMetricsF(painter.font()).horizontalAdvance(entry.text) + EntryGap * size;
    }
}
