// SPDX-License-Identifier: MIT
#pragma once

#include "tests/host/desktop/viewport/viewporttest.h"
#include "tests/support/graphs.h"
#include "tests/support/hostwindow.h"

#include <orvane/base/eventgate.h>
#include <orvane/base/node.h>

#include <memory>

class Quillmesh;

//! Comes after the overlay and looks at what it leaves of OpenGL's state.
class StateAfter : public orvane::Node
{
public:
    StateAfter();

    void OnEvent(const orvane::EventGate &gate) override;

    orvane::EventGate gate;
    int calls = 0;
    bool isWritingDepth = false;
    bool isBlending = true;
    bool isSmoothingPoints = true;
    float lineWidth = 0.0f;
    float pointSize = 0.0f;
    int program = -1;
    unsigned error = 1;
};

//! The desktop's view with a tool node whose overlay draws a graph of the test. The program runs
//! beside resources of its own, so that it may spoil the files of shader programs.
class OverlayView : public ViewportTest
{
protected:
    OverlayView();
    ~OverlayView() override;

    static bool hasCg();
    //! The file of shader programs of that name, of the test's resources.
    static QString programFile(const char *name);
    static void removePrograms();
    static void restorePrograms();

    //! A tool node that has made no programs yet, with the overlay off.
    void makeTool();
    void show(const TestGraph &graph);
    void switchOverlay(bool on);
    //! Looks at the graph from a little aside, over a grid of squares.
    void lookAt(const TestGraph &graph, double right = 0.0, double up = 0.0);

    //! The view without the overlay, and with it.
    QImage without();
    QImage with();

    HostWindow window;
    std::unique_ptr<Quillmesh> tool;
};

//! What a colour over another one gives, for an opacity from 0 to 1.
QColor blended(const QColor &over, const QColor &under, double opacity);
//! The colour of the stroke to the i-th of n neighbours over another colour.
QColor strokeOver(const QColor &under, int i, int n);
//! So far along the way from one place to another.
orvane::Vector along(const orvane::Vector &from, const orvane::Vector &to, float part);
