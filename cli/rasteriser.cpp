// SPDX-License-Identifier: MIT
#include "cli/rasteriser.h"

#include <algorithm>
#include <cmath>
#include <limits>

using orvane::Vector;

namespace {

const int Samples = 3;         // along each side of a pixel
const double EdgeSlack = 1e-9; // barycentric; closes the seam between neighbours
const double LeastArea = 1e-9; // square samples; below, a triangle is nothing but an edge
const float BackShade = 0.72f; // of the colour of a side that is seen from behind
const float Nowhere = std::numeric_limits<float>::infinity();

QRgb mixed(QRgb below, QRgb above, float share)
{
    const int a = int(share * 256.0f);
    const auto mix = [a](int from, int to) {
        return from + ((to - from) * a) / 256;
    };
    return qRgb(mix(qRed(below), qRed(above)), mix(qGreen(below), qGreen(above)),
                mix(qBlue(below), qBlue(above)));
}

// The columns, of a row of samples, whose middles lie between two places.
struct Columns
{
    Columns(double from, double to, int width)
        : first(int(std::ceil(std::max(from - 0.5, 0.0)))),
          last(int(std::floor(std::min(to - 0.5, width - 1.0))))
    {}

    int first;
    int last;
};

// A thick line in samples, and how much of a sample it covers.
class ThickLine
{
public:
    ThickLine(const ScreenPoint &a, const ScreenPoint &b, float width)
        : m_x(double(a.x) * Samples),
          m_y(double(a.y) * Samples),
          m_dx((double(b.x) - a.x) * Samples),
          m_dy((double(b.y) - a.y) * Samples),
          m_length(std::hypot(m_dx, m_dy)),
          m_radius(width * Samples / 2.0 + 0.5)
    {}

    double top() const { return m_y + std::min(m_dy, 0.0) - m_radius; }
    double bottom() const { return m_y + std::max(m_dy, 0.0) + m_radius; }

    // A slanted line meets a row in few columns, though its box is wide.
    Columns columnsAt(double y, int width) const
    {
        double from = m_x + std::min(m_dx, 0.0) - m_radius;
        double to = m_x + std::max(m_dx, 0.0) + m_radius;
        if (std::abs(m_dy) > 0.0) {
            const double middle = m_x + (y - m_y) * m_dx / m_dy;
            const double half = m_radius * m_length / std::abs(m_dy);
            from = std::max(from, middle - half);
            to = std::min(to, middle + half);
        }
        return {from, to, width};
    }

    // Fraction along the line of the point closest to the sample.
    double along(double x, double y) const
    {
        if (!(m_length > 0.0))
            return 0.0;
        const double t = ((x - m_x) * m_dx + (y - m_y) * m_dy) / (m_length * m_length);
        return std::min(std::max(t, 0.0), 1.0);
    }

    float cover(double x, double y, double t) const
    {
        const double distance = std::hypot(m_x + t * m_dx - x, m_y + t * m_dy - y);
        return float(std::min(std::max(m_radius - distance, 0.0), 1.0));
    }

private:
    double m_x;
    double m_y;
    double m_dx;
    double m_dy;
    double m_length;
    double m_radius;
};

} // namespace

struct Rasteriser::Span
{
    int row; // of the picture
    Columns columns;
};

// What of a triangle is linear over the picture: the shares of its corners.
class Rasteriser::Plane
{
public:
    Plane(const ShadedCorner (&corners)[3], const Material &surface)
        : material(surface), m_corners(corners)
    {
        for (int i = 0; i < 3; ++i) {
            x[i] = double(corners[i].at.x) * Samples;
            y[i] = double(corners[i].at.y) * Samples;
        }
        const double area = (x[1] - x[0]) * (y[2] - y[0]) - (x[2] - x[0]) * (y[1] - y[0]);
        isValid = std::abs(area) > LeastArea;
        side = area < 0.0 ? Side::Front : Side::Back; // rows count downwards
        if (side == Side::Back)
            material.colour *= BackShade;
        for (int i = 0; i < 3; ++i) {
            const int j = (i + 1) % 3;
            const int k = (i + 2) % 3;
            stepX[i] = (y[j] - y[k]) / area;
            m_stepY[i] = (x[k] - x[j]) / area;
        }
    }

    double share(int corner, double atX, double atY) const
    {
        const int other = (corner + 1) % 3;
        return (atX - x[other]) * stepX[corner] + (atY - y[other]) * m_stepY[corner];
    }

    Columns columnsAt(double atY, int width) const
    {
        double from = std::min({x[0], x[1], x[2]});
        double to = std::max({x[0], x[1], x[2]});
        const double start = from;
        for (int i = 0; i < 3; ++i) {
            const double value = share(i, start, atY) + EdgeSlack;
            if (stepX[i] > 0.0)
                from = std::max(from, start - value / stepX[i]);
            else if (stepX[i] < 0.0)
                to = std::min(to, start - value / stepX[i]);
            else if (value < 0.0)
                to = from - 1.0;
        }
        return {from, to, width};
    }

    float inverseDepth(const double *shares) const
    {
        return float(shares[0] * m_corners[0].at.inverseDepth
                     + shares[1] * m_corners[1].at.inverseDepth
                     + shares[2] * m_corners[2].at.inverseDepth);
    }

    QRgb colour(const double *shares) const
    {
        Vector normal = m_corners[0].normal * float(shares[0]);
        normal += m_corners[1].normal * float(shares[1]);
        normal += m_corners[2].normal * float(shares[2]);
        return litColour(side == Side::Front ? normal : -normal, material);
    }

    double x[3]; // samples
    double y[3];
    double stepX[3]; // change of each share from column to column
    bool isValid;
    Side side;
    Material material;

private:
    const ShadedCorner (&m_corners)[3];
    double m_stepY[3];
};

Rasteriser::Rasteriser(const QImage &picture, int firstRow, int rows)
    : m_width(picture.width() * Samples),
      m_firstRow(firstRow * Samples),
      m_rows(rows * Samples),
      m_colours(m_width * m_rows),
      m_backdrop{QVector<float>(m_width * m_rows, Nowhere),
                 QVector<float>(m_width * m_rows, Nowhere)},
      m_front(m_width * m_rows, Nowhere)
{
    for (int row = 0; row < m_rows; ++row) {
        const QRgb *line =
            reinterpret_cast<const QRgb *>(picture.constScanLine(firstRow + row / Samples));
        for (int column = 0; column < m_width; ++column)
            m_colours[row * m_width + column] = line[column / Samples];
    }
}

void Rasteriser::drawBackdrop(const ShadedCorner (&corners)[3], const Material &material)
{
    fillTriangle(corners, material, Layer::Backdrop, Reach());
}

void Rasteriser::drawFront(const ShadedCorner (&corners)[3], const Material &material,
                           const Reach &reach)
{
    fillTriangle(corners, material, Layer::Front, reach);
}

void Rasteriser::fillTriangle(const ShadedCorner (&corners)[3], const Material &material,
                              Layer layer, const Reach &reach)
{
    if (!corners[0].at.isSeen() || !corners[1].at.isSeen() || !corners[2].at.isSeen())
        return;
    const Plane plane(corners, material);
    if (!plane.isValid)
        return;
    const double top = std::min({plane.y[0], plane.y[1], plane.y[2]});
    const double bottom = std::max({plane.y[0], plane.y[1], plane.y[2]});
    const int firstRow = int(std::ceil(std::max(top - 0.5, double(m_firstRow))));
    const int lastRow = int(std::floor(std::min(bottom - 0.5, m_firstRow + m_rows - 1.0)));
    for (int row = firstRow; row <= lastRow; ++row)
        fillSpan({row, plane.columnsAt(row + 0.5, m_width)}, plane, layer, reach);
}

void Rasteriser::fillSpan(const Span &span, const Plane &plane, Layer layer, const Reach &reach)
{
    double shares[3];
    for (int i = 0; i < 3; ++i)
        shares[i] = plane.share(i, span.columns.first + 0.5, span.row + 0.5);
    int sample = (span.row - m_firstRow) * m_width + span.columns.first;
    for (int column = span.columns.first; column <= span.columns.last; ++column, ++sample) {
        const float depth = 1.0f / plane.inverseDepth(shares);
        float &nearest = m_backdrop[int(plane.side)][sample];
        if (layer == Layer::Backdrop && depth < nearest) {
            nearest = depth;
            if (depth < m_backdrop[1 - int(plane.side)][sample])
                m_colours[sample] = plane.colour(shares);
        } else if (layer == Layer::Front && !isHidden(sample, depth, reach, plane.side)) {
            m_front[sample] = depth;
            m_colours[sample] = plane.colour(shares);
        }
        for (int i = 0; i < 3; ++i)
            shares[i] += plane.stepX[i];
    }
}

bool Rasteriser::isHidden(int sample, float depth, const Reach &reach, Side side) const
{
    if (depth > m_front[sample] + reach.front)
        return true;
    const float same = m_backdrop[int(side)][sample];
    const float other = m_backdrop[1 - int(side)][sample];
    if (other < same)
        return depth > other + reach.otherSide;
    return depth > same + reach.sameSide && depth > std::min(same + reach.inside, other);
}

void Rasteriser::drawLine(const ScreenPoint &a, const ScreenPoint &b, float width, QRgb colour,
                          const Reach &reach, Side side)
{
    if (!a.isSeen() || !b.isSeen())
        return;
    const ThickLine line(a, b, width);
    const int firstRow = int(std::ceil(std::max(line.top() - 0.5, double(m_firstRow))));
    const int lastRow = int(std::floor(std::min(line.bottom() - 0.5, m_firstRow + m_rows - 1.0)));
    for (int row = firstRow; row <= lastRow; ++row) {
        const Columns columns = line.columnsAt(row + 0.5, m_width);
        for (int column = columns.first; column <= columns.last; ++column) {
            const double t = line.along(column + 0.5, row + 0.5);
            const float cover = line.cover(column + 0.5, row + 0.5, t);
            const float depth =
                1.0f / float(a.inverseDepth + t * (b.inverseDepth - a.inverseDepth));
            const int sample = (row - m_firstRow) * m_width + column;
            if (cover > 0.0f && !isHidden(sample, depth, reach, side))
                m_colours[sample] = mixed(m_colours[sample], colour, cover);
        }
    }
}

bool Rasteriser::touches(float top, float bottom) const
{
    return bottom * Samples >= m_firstRow && top * Samples <= m_firstRow + m_rows;
}

void Rasteriser::copyTo(QImage &picture) const
{
    for (int y = 0; y < m_rows / Samples; ++y) {
        QRgb *line = reinterpret_cast<QRgb *>(picture.scanLine(m_firstRow / Samples + y));
        for (int x = 0; x < picture.width(); ++x) {
            int red = 0;
            int green = 0;
            int blue = 0;
            for (int i = 0; i < Samples * Samples; ++i) {
                const int row = y * Samples + i / Samples;
                const QRgb sample = m_colours[row * m_width + x * Samples + i % Samples];
                red += qRed(sample);
                green += qGreen(sample);
                blue += qBlue(sample);
            }
            const int half = Samples * Samples / 2;
            line[x] = qRgb((red + half) / (Samples * Samples), (green + half) / (Samples * Samples),
                           (blue + half) / (Samples * Samples));
        }
    }
}
