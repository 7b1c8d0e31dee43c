// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QRectF>
#include <QString>
#include <QVector>

//! A line of the legend: a sign in a colour, and what it stands for.
struct LegendEntry
{
    enum Sign { Face, Line, Dot };

    Sign sign;
    QColor colour;
    QString text;
};

//! The part of a picture that the legend leaves to the rest, in pixels.
QRectF frameBesideLegend(const QSize &picture);

//! Draws a title and the entries along the lower edge, as large as suits the picture.
void drawLegend(QImage &picture, const QString &title, const QVector<LegendEntry> &entries);
