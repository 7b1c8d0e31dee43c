// SPDX-License-Identifier: MIT
#pragma once

#include "bench/support/processorclock.h"

//! Splits the time that building the meshes takes. Building is one call; its clock marks come from
//! functions on its way that the linker puts a stopwatch around.
class BuildClock
{
public:
    static BuildClock &instance();

    void reset() { *this = BuildClock(); }
    void startPiece();
    void endPiece();
    void startHoles();
    void endHoles();
    void noteCheck(double seconds, int faults);

    double traceSeconds() const { return m_trace; }
    double holesSeconds() const { return m_holes; }
    double buildSeconds() const { return m_build; }
    double checkSeconds() const { return m_check; }
    int faults() const { return m_faults; } // meshes with any

private:
    ProcessorClock m_clock;
    double m_trace = 0.0;
    double m_holes = 0.0;
    double m_build = 0.0;
    double m_check = 0.0;
    double m_checkOfPiece = 0.0;
    int m_faults = 0;
};
