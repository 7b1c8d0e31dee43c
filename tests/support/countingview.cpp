// SPDX-License-Identifier: MIT
#include "tests/support/countingview.h"

#include <orvane/kernel/kernel.h>

CountingView::CountingView()
{
    orvane::Kernel()->SetViewPort(this);
}

CountingView::~CountingView()
{
    orvane::Kernel()->SetViewPort(nullptr);
}

void CountingView::Redraw(orvane::RedrawType type, float left, float top, float right, float bottom)
{
    ++redraws;
    if (int(type) != 0 || left != 0.0f || top != 0.0f || right != 0.0f || bottom != 0.0f)
        ++partialRedraws;
}
