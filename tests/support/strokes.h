// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/curvepoint.h>
#include <orvane/math/matrix.h>

#include <QList>
#include <QString>
#include <QVector>

namespace orvane {
class Geometry;
class OrvaneCurve;
class SubdivisionLevel;
} // namespace orvane

//! A flat square of unit quads in the kernel's scene, from (0, 0, 0) to (size, size, 0) in its own
//! frame and facing +z, and the strokes drawn on it. The scene owns the sheet and the curves.
//! Places are given in the sheet's frame; z lifts a point off the sheet, which stays bound to the
//! face below it. A place beside the sheet makes a point that is bound to no mesh.
class Sheet
{
public:
    explicit Sheet(int size = 10, const orvane::Matrix &placement = orvane::Matrix(),
                   const QString &name = QStringLiteral("Sheet"));

    orvane::Geometry *geometry() const { return m_geometry; }
    orvane::SubdivisionLevel *mesh() const;
    //! Every curve drawn so far, in order.
    const QList<orvane::OrvaneCurve *> &curves() const { return m_curves; }

    orvane::CurvePoint point(const orvane::Vector &place) const;

    //! An open curve through the places.
    orvane::OrvaneCurve *stroke(const QVector<orvane::Vector> &places);
    //! A closed one, with its closing point added.
    orvane::OrvaneCurve *loop(const QVector<orvane::Vector> &places);
    //! Points evenly spaced, both ends included.
    orvane::OrvaneCurve *straight(const orvane::Vector &from, const orvane::Vector &to,
                                  int points = 2);
    //! The same, swung to both sides by a sine of the amplitude, so many full waves long.
    orvane::OrvaneCurve *wavy(const orvane::Vector &from, const orvane::Vector &to, int points,
                              float amplitude, float waves = 1.0f);
    //! Closed, counter-clockwise, starting at the angle (radians).
    orvane::OrvaneCurve *circle(const orvane::Vector &center, float radius, int points,
                                float startAngle = 0.1f);
    //! Open; crosses itself once, near the center, and between its points when points is odd.
    orvane::OrvaneCurve *figureEight(const orvane::Vector &center, float radius, int points);
    //! Horizontal and vertical strokes over the middle of the sheet, overshooting the outermost
    //! crossings by half a step: columns x rows cells.
    void grid(int columns, int rows, float step = 1.0f);

private:
    orvane::OrvaneCurve *add(const QVector<orvane::Vector> &places, bool closed);

    orvane::Geometry *m_geometry;
    int m_size;
    QList<orvane::OrvaneCurve *> m_curves;
};
