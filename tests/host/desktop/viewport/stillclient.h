// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/viewclient.h"

//! A tool that notes what reaches it and shows what it was given.
class StillClient : public orvane::ViewClient
{
public:
    void Handle(const orvane::PointerEvent &event) override { events.append(event); }
    void Leave() override { ++left; }
    orvane::LeftDrag UseOfLeftDrag() const override { return leftDrag; }
    QCursor Cursor() const override { return Qt::CrossCursor; }
    QVector<orvane::ViewLine> Lines() const override { return lines; }
    QVector<orvane::ViewShape> Shapes() const override { return shapes; }

    QVector<orvane::PointerEvent> events;
    int left = 0;
    orvane::LeftDrag leftDrag = orvane::LeftDrag::Anywhere;
    QVector<orvane::ViewLine> lines;
    QVector<orvane::ViewShape> shapes;
};
