// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

class QPainter;
class QPointF;

//! A photo of the screen has no pointer in it: draws one of that shape with its hot spot there.
void drawPointer(QPainter &painter, const QPointF &place, Qt::CursorShape shape);
