// SPDX-License-Identifier: MIT
#pragma once

#include "bench/peers/peerrun.h"
#include "bench/support/stages.h"

#include <QString>
#include <QStringList>

#include <functional>

//! One input as the comparisons see it.
struct PeerInput
{
    QString shape;
    bool isPlanar = true;
    Polylines lines;
    Links links;           // of the graph that the stages make of it
    float distance = 0.0f; // intersection distance, scene units
    BenchSettings settings;
    int segments = 0;
};

//! One peer: what it is held against and how much faster the stages are to be.
struct Comparison
{
    QString name;
    Stage first; // of ours, what is compared
    Stage last;
    std::function<PeerRun(const PeerInput &)> run;
    std::function<double(const PeerInput &)> bar; // times as fast as the peer; 0: none is set
    bool planarOnly;
};

//! The peers that were found when this was built, and the pinned search.
const std::vector<Comparison> &comparisons();
//! Names of those that were not, with the package that brings each.
QStringList missingPeers();
