// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/navigation.h"

#include <orvane/math/vector.h>

#include <QColor>
#include <QCursor>
#include <QPolygonF>
#include <QVector>

namespace orvane {

//! A line over the scene, such as the stroke in hand.
struct ViewLine
{
    QVector<Vector> places; // world space
    QColor colour;
    float width = 2.0f; // pixels
    bool onTop = false; // also where the surface hides it
    bool dots = false;  // its places as dots, too
};

//! A shape over the view, such as a box of selection.
struct ViewShape
{
    QPolygonF outline; // pixels
    bool closed = false;
    QColor colour;
};

//! Who works in the view: it gets the events that navigation leaves and adds lines and shapes of
//! its own.
class ViewClient
{
public:
    virtual ~ViewClient() = default;

    virtual void Handle(const PointerEvent &event) = 0;
    //! The pointer left the view, or the window lost it: what is in hand is given up or kept.
    virtual void Leave() = 0;
    virtual LeftDrag UseOfLeftDrag() const = 0;
    virtual QCursor Cursor() const = 0;
    virtual QVector<ViewLine> Lines() const = 0;
    virtual QVector<ViewShape> Shapes() const = 0;
};

} // namespace orvane
