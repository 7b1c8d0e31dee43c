// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/kernel/viewport.h>

//! Counts the repaints it is asked for, and is the kernel's view for its life.
class CountingView : public orvane::ViewPort
{
public:
    CountingView();
    ~CountingView() override;

    void Redraw(orvane::RedrawType type, float left, float top, float right, float bottom) override;
    //! As a host does after each render.
    void render() { EndRenderEvent().Raise(); }

    int redraws = 0;
    int partialRedraws = 0; // of another type or another place than all of the view
};
