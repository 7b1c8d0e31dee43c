// SPDX-License-Identifier: MIT
#include "cli/legend.h"

#include <gtest/gtest.h>

namespace {

QImage blank(const QSize &size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    return picture;
}

// The smallest rectangle that holds all that is not white.
QRect inkOf(const QImage &picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != qRgb(255, 255, 255))
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

QVector<LegendEntry> entries(int count, const QString &text)
{
    return QVector<LegendEntry>(count, {LegendEntry::Face, Qt::red, text});
}

} // namespace

TEST(Legend, staysBelowTheFrame)
{
    for (const QSize &size : {QSize(1600, 1200), QSize(800, 600), QSize(500, 900)}) {
        QImage picture = blank(size);
        drawLegend(picture, QStringLiteral("12 new faces"), entries(3, QStringLiteral("quads 5")));
        const QRect ink = inkOf(picture);
        EXPECT_GE(ink.top(), frameBesideLegend(size).bottom());
        EXPECT_LT(ink.bottom(), size.height() - 1);
        EXPECT_GT(ink.left(), 0);
    }
}

TEST(Legend, manyEntriesStillFitTheWidth)
{
    const QSize size(600, 450);
    QImage picture = blank(size);
    drawLegend(picture, QStringLiteral("Title"), entries(9, QStringLiteral("source mesh 1234567")));
    const QRect ink = inkOf(picture);
    EXPECT_GT(ink.width(), 400);
    EXPECT_LE(ink.right(), frameBesideLegend(size).right());
}

TEST(Legend, eachEntryHasItsColour)
{
    QImage picture = blank(QSize(800, 600));
    const QVector<LegendEntry> shown{{LegendEntry::Face, QColor(200, 0, 0), QStringLiteral("a")},
                                     {LegendEntry::Line, QColor(0, 200, 0), QStringLiteral("b")},
                                     {LegendEntry::Dot, QColor(0, 0, 200), QStringLiteral("c")}};
    drawLegend(picture, QString(), shown);
    int found[3] = {};
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            for (int i = 0; i < shown.size(); ++i)
                found[i] += picture.pixelColor(x, y) == shown[i].colour;
        }
    }
    EXPECT_GT(found[0], 20);
    EXPECT_GT(found[1], 4);
    EXPECT_GT(found[2], 4);
}
