// SPDX-License-Identifier: MIT
#include "cli/rasteriser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

using orvane::Vector;

namespace {

const int Width = 60;
const int Height = 48;
const QRgb White = qRgb(255, 255, 255);
const QRgb Black = qRgb(0, 0, 0);

QImage blank()
{
    QImage picture(Width, Height, QImage::Format_RGB32);
    picture.fill(White);
    return picture;
}

// Of one even colour, whatever the light.
Material plain(const QColor &colour)
{
    return {linearColour(colour), 0.0f};
}

ScreenPoint at(float x, float y, float depth = 10.0f)
{
    return {x, y, 1.0f / depth};
}

struct Corners
{
    Corners(const ScreenPoint &a, const ScreenPoint &b, const ScreenPoint &c)
        : list{{a, Vector(0, 0, 1)}, {b, Vector(0, 0, 1)}, {c, Vector(0, 0, 1)}}
    {}

    ShadedCorner list[3];
};

// Covers the whole picture at one depth; its front is to the eye, or its back.
Corners wall(float depth, Side side = Side::Front)
{
    const ScreenPoint a = at(-200, 200, depth);
    const ScreenPoint b = at(200, 200, depth);
    const ScreenPoint c = at(30, -400, depth);
    return side == Side::Front ? Corners(a, b, c) : Corners(a, c, b);
}

int darkness(const QImage &picture, int x, int y)
{
    return 255 - qGreen(picture.pixel(x, y));
}

} // namespace

TEST(Rasteriser, aSquareFillsItsPixelsAndNoOthers)
{
    QImage picture = blank();
    Rasteriser rows(picture, 0, Height);
    const ScreenPoint a = at(10, 40);
    const ScreenPoint b = at(50, 40);
    const ScreenPoint c = at(50, 8);
    const ScreenPoint d = at(10, 8);
    rows.drawFront(Corners(a, b, c).list, plain(Qt::red), Reach());
    rows.drawFront(Corners(a, c, d).list, plain(Qt::red), Reach());
    rows.copyTo(picture);
    for (int y = 0; y < Height; ++y) {
        for (int x = 0; x < Width; ++x) {
            const bool isInside = x >= 10 && x < 50 && y >= 8 && y < 40;
            ASSERT_EQ(picture.pixel(x, y), isInside ? qRgb(255, 0, 0) : White) << x << ", " << y;
        }
    }
}

TEST(Rasteriser, neighboursLeaveNoSeam)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> place(5.0f, 40.0f);
    for (int round = 0; round < 200; ++round) {
        QImage picture = blank();
        Rasteriser rows(picture, 0, Height);
        const ScreenPoint middle = at(place(random), place(random));
        const ScreenPoint corners[4] = {at(-1, 49), at(61, 49), at(61, -1), at(-1, -1)};
        for (int i = 0; i < 4; ++i) {
            const Corners triangle(corners[i], corners[(i + 1) % 4], middle);
            rows.drawFront(triangle.list, plain(Qt::black), Reach());
        }
        rows.copyTo(picture);
        QImage full = blank();
        full.fill(Black);
        ASSERT_EQ(picture, full) << round;
    }
}

TEST(Rasteriser, theNearerWinsWhateverTheOrder)
{
    for (bool nearFirst : {true, false}) {
        QImage picture = blank();
        Rasteriser rows(picture, 0, Height);
        const float depths[2] = {nearFirst ? 5.0f : 9.0f, nearFirst ? 9.0f : 5.0f};
        for (float depth : depths)
            rows.drawFront(wall(depth).list, plain(depth < 6.0f ? Qt::red : Qt::blue), Reach());
        rows.copyTo(picture);
        EXPECT_EQ(picture.pixel(30, 20), qRgb(255, 0, 0));
    }
}

TEST(Rasteriser, crossingTrianglesMeetWhereTheirDepthsDo)
{
    QImage picture = blank();
    Rasteriser rows(picture, 0, Height);
    rows.drawFront(wall(10.0f).list, plain(Qt::blue), Reach());
    // From depth 5 at the left border to 20 at the right: at depth 10 where 1/depth says so.
    const Corners tilted(at(0, 600, 5), at(60, 600, 20), at(0, -600, 5));
    rows.drawFront(tilted.list, plain(Qt::red), Reach());
    rows.copyTo(picture);
    const float meeting = 60.0f * (1.0f / 5.0f - 1.0f / 10.0f) / (1.0f / 5.0f - 1.0f / 20.0f);
    EXPECT_EQ(picture.pixel(2, 40), qRgb(255, 0, 0));
    EXPECT_EQ(picture.pixel(int(meeting) - 18, 40), qRgb(255, 0, 0));
    EXPECT_EQ(picture.pixel(int(meeting) + 2, 40), qRgb(0, 0, 255));
}

TEST(Rasteriser, slantedEdgesAreSmooth)
{
    QImage picture = blank();
    Rasteriser rows(picture, 0, Height);
    rows.drawFront(Corners(at(0, 45), at(60, 45), at(60, 25)).list, plain(Qt::black), Reach());
    rows.copyTo(picture);
    int between = 0;
    for (int x = 3; x < 57; ++x) {
        double covered = 0.0;
        for (int y = 0; y < Height; ++y) {
            const int dark = darkness(picture, x, y);
            covered += dark / 255.0;
            between += dark > 0 && dark < 255;
        }
        EXPECT_NEAR(covered, (x + 0.5) / 3.0, 0.2) << x;
    }
    EXPECT_GT(between, 40);
}

TEST(Rasteriser, theFrontReachesALittleBehindTheBackdrop)
{
    const Reach reach{1.0f, 3.0f, 0.1f, 0.0f};
    const struct
    {
        float depth;
        Side side;
        float exit; // where the backdrop's far side follows; 0: it does not
        bool isSeen;
    } rows[] = {
        {9.0f, Side::Front, 0.0f, true},   {10.9f, Side::Front, 0.0f, true},
        {12.9f, Side::Front, 0.0f, true},  {13.1f, Side::Front, 0.0f, false},
        {11.9f, Side::Front, 12.0f, true}, {12.1f, Side::Front, 12.0f, false},
        {10.9f, Side::Front, 10.5f, true}, {10.05f, Side::Back, 0.0f, true},
        {10.2f, Side::Back, 0.0f, false},  {10.2f, Side::Back, 10.3f, false},
    };
    for (const auto &row : rows) {
        QImage picture = blank();
        Rasteriser rasteriser(picture, 0, Height);
        rasteriser.drawBackdrop(wall(10.0f).list, plain(Qt::blue));
        if (row.exit > 0.0f)
            rasteriser.drawBackdrop(wall(row.exit, Side::Back).list, plain(Qt::green));
        rasteriser.drawFront(wall(row.depth, row.side).list, plain(Qt::red), reach);
        rasteriser.copyTo(picture);
        EXPECT_EQ(qRed(picture.pixel(30, 20)) > 100, row.isSeen) << row.depth << " " << row.exit;
        EXPECT_EQ(qGreen(picture.pixel(30, 20)), 0);
    }
}

TEST(Rasteriser, aLineIsAsWideAsAskedInEveryDirection)
{
    for (float width : {1.0f, 1.7f, 4.0f}) {
        for (int turn = 0; turn < 12; ++turn) {
            const float angle = turn * 0.5236f;
            const float dx = 18.0f * std::cos(angle);
            const float dy = 18.0f * std::sin(angle);
            QImage picture = blank();
            Rasteriser rows(picture, 0, Height);
            rows.drawLine(at(30 - dx, 24 - dy), at(30 + dx, 24 + dy), width, Black, Reach(),
                          Side::Front);
            rows.copyTo(picture);
            double area = 0.0;
            for (int y = 0; y < Height; ++y) {
                for (int x = 0; x < Width; ++x)
                    area += darkness(picture, x, y) / 255.0;
            }
            const double expected = 36.0 * width + 3.1416 * width * width / 4.0;
            EXPECT_NEAR(area, expected, 0.06 * expected) << width << " " << angle;
        }
    }
}

TEST(Rasteriser, aLineIsHiddenByWhatLiesInFrontOfIt)
{
    const Reach reach{0.5f, 0.5f, 0.5f, 0.5f};
    for (float depth : {9.0f, 10.3f, 11.0f}) {
        QImage picture = blank();
        Rasteriser rows(picture, 0, Height);
        rows.drawFront(wall(10.0f).list, plain(Qt::blue), Reach());
        rows.drawLine(at(5, 24.5f, depth), at(55, 24.5f, depth), 3.0f, Black, reach, Side::Front);
        rows.copyTo(picture);
        EXPECT_EQ(picture.pixel(30, 24), depth < 10.5f ? Black : qRgb(0, 0, 255)) << depth;
        EXPECT_EQ(picture.pixel(30, 30), qRgb(0, 0, 255));
    }
}

TEST(Rasteriser, aLineWithoutLengthIsADot)
{
    QImage picture = blank();
    Rasteriser rows(picture, 0, Height);
    rows.drawLine(at(30.5f, 20.5f), at(30.5f, 20.5f), 5.0f, Black, Reach(), Side::Front);
    rows.copyTo(picture);
    EXPECT_EQ(picture.pixel(30, 20), Black);
    EXPECT_EQ(picture.pixel(32, 20), picture.pixel(30, 22));
    EXPECT_EQ(picture.pixel(34, 20), White);
}

TEST(Rasteriser, rowsDrawnApartJoin)
{
    const auto draw = [](Rasteriser &rows) {
        rows.drawFront(Corners(at(2, 47), at(58, 30), at(20, 1)).list, plain(Qt::red), Reach());
        rows.drawLine(at(3, 3), at(55, 44, 9), 2.0f, Black, Reach(), Side::Front);
    };
    QImage whole = blank();
    Rasteriser all(whole, 0, Height);
    draw(all);
    all.copyTo(whole);
    QImage parts = blank();
    for (int row = 0; row < Height; row += 7) {
        Rasteriser some(parts, row, std::min(7, Height - row));
        draw(some);
        some.copyTo(parts);
    }
    EXPECT_EQ(parts, whole);
    EXPECT_NE(whole, blank());
}

TEST(Rasteriser, whatCannotBeDrawnLeavesThePictureAlone)
{
    QImage picture = blank();
    Rasteriser rows(picture, 0, Height);
    const ScreenPoint behind;
    rows.drawFront(Corners(at(0, 40), at(40, 40), behind).list, plain(Qt::red), Reach());
    rows.drawFront(Corners(at(5, 5), at(20, 20), at(35, 35)).list, plain(Qt::red), Reach());
    rows.drawBackdrop(Corners(at(5, 5), at(5, 5), at(5, 5)).list, plain(Qt::red));
    rows.drawLine(at(5, 5), behind, 3.0f, Black, Reach(), Side::Front);
    rows.drawLine(at(-900, 5), at(-100, 5), 3.0f, Black, Reach(), Side::Front);
    rows.copyTo(picture);
    EXPECT_EQ(picture, blank());
}
