// SPDX-License-Identifier: MIT
#include "bench/support/buildclock.h"

#include "host/meshchecker/meshchecker.h"
#include "mesh/holes.h"
#include "ui/validatenewmesh.h"

// The linker leads calls of countHoles here (--wrap in the build file) and the second name to the
// real one. Both names are the compiler's for that function: a change of its parameters is an
// error when linking, and both are to be changed then.
HoleCounts wrappedCountHoles(const DirectedEdges &edges, const MeshBuilder &builder,
                             int maxEdges) asm("__wrap_" BENCH_COUNT_HOLES);
HoleCounts realCountHoles(const DirectedEdges &edges, const MeshBuilder &builder,
                          int maxEdges) asm("__real_" BENCH_COUNT_HOLES);

HoleCounts wrappedCountHoles(const DirectedEdges &edges, const MeshBuilder &builder, int maxEdges)
{
    BuildClock::instance().startHoles();
    const HoleCounts holes = realCountHoles(edges, builder, maxEdges);
    BuildClock::instance().endHoles();
    return holes;
}

// Instead of the one that asks the user: every mesh is kept.
bool validateNewMesh(orvane::Mesh *mesh)
{
    ProcessorClock clock;
    const orvane::MeshChecker checker;
    const int faults = checker.Validate(mesh);
    BuildClock::instance().noteCheck(clock.lap(), faults);
    return true;
}

BuildClock &BuildClock::instance()
{
    static BuildClock clock;
    return clock;
}

void BuildClock::startPiece()
{
    m_checkOfPiece = 0.0;
    m_clock.lap();
}

void BuildClock::startHoles()
{
    m_trace += m_clock.lap();
}

void BuildClock::endHoles()
{
    m_holes += m_clock.lap();
}

void BuildClock::endPiece()
{
    m_build += m_clock.lap() - m_checkOfPiece;
    m_check += m_checkOfPiece;
}

void BuildClock::noteCheck(double seconds, int faults)
{
    m_checkOfPiece += seconds;
    m_faults += faults != 0;
}
