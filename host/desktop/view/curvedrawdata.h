// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/curvepoint.h>

#include <QColor>
#include <QVector>

namespace orvane {

class OrvaneCurve;

//! How a curve is shown, in the order in which they are drawn: what stands out comes last.
enum class CurveLook { Normal, Selected, Hovered };

QColor curveColour(CurveLook look);
//! In pixels.
float curveWidth(CurveLook look);

//! One curve in the array of positions, a line from point to point.
struct CurveStrip
{
    const OrvaneCurve *curve = nullptr;
    int first = 0;
    int count = 0; // at least 2
    CurveLook look = CurveLook::Normal;
};

//! The lines of the visible curves of a scene in one array, in world space. The points are where
//! the curves have them, on the surface: the renderer draws them with depth test (less or equal)
//! after the surface, with Camera::ProjectionMatrix(CurveLift) in place of the plain projection.
//! So a line wins against the faces it lies on, by the same few pixels at any distance, and is
//! still hidden by what is really before it; polygon offset does not act on lines.
class CurveDrawData
{
public:
    enum Part {
        PositionsPart = 0x1, //!< upload the positions anew
        StripsPart = 0x2     //!< draw anew; nothing to upload
    };

    //! A closed curve's strip comes back to its first point.
    const QVector<Vector> &Positions() const { return m_positions; }
    //! Ascending by look, then in the order of the curves. Hidden curves and those of fewer than
    //! two points are left out.
    const QVector<CurveStrip> &Strips() const { return m_strips; }

    //! Brings the arrays in line with the curves. hovered: the one under the pointer, or null.
    //! Answers the parts that differ from before, or-ed. Costs a look at each curve, not at its
    //! points, while those stay the same.
    int Update(const QVector<const OrvaneCurve *> &curves, const OrvaneCurve *hovered);

private:
    struct Source
    {
        bool operator==(const Source &other) const;

        const OrvaneCurve *curve;
        QVector<CurvePoint> points; // shared with the curve
        bool closed;
    };

    void rebuild();
    QVector<CurveStrip> stripsInOrder(const OrvaneCurve *hovered) const;

    QVector<Source> m_sources; // what is in the array, in this order
    QVector<int> m_firstOf;    // by source, and the end
    QVector<Vector> m_positions;
    QVector<CurveStrip> m_strips;
};

const double CurveLift = 3.0; // pixels, for Camera::ProjectionMatrix

} // namespace orvane
