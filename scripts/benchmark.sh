#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what the benchmarks need, builds them in build/bench, runs them all and leaves the
# tables in build/bench/results, as text and as JSON. Nothing else should run meanwhile.
# QUILLMESH_MODELS may name a folder with the real meshes and nets; without it they are left out.
# usage: benchmark.sh [--quick]
# --quick: small sizes and few repetitions, to see that everything runs.
set -euo pipefail
cd "$(dirname "$0")/.."
STEP=starting
# shellcheck source=scripts/setup.sh
. scripts/setup.sh
trap 'say_what_failed' ERR

BENCH_PACKAGES="
libbenchmark-dev:the_benchmarks
libgeos++-dev:a_noder_and_polygonizer_to_compare_with
libcgal-dev:arrangements_to_compare_with
libboost-dev:an_R-tree_to_compare_with
"
quick=no
case "${1:-}" in
--quick) quick=yes ;;
"") ;;
*)
    echo "usage: benchmark.sh [--quick]"
    exit 2
    ;;
esac

setup_machine "$BUILD_PACKAGES $BENCH_PACKAGES" no

STEP="building (the log is build/bench.log)"
mkdir -p build
if ! { cmake -G Ninja -S . -B build/bench -DCMAKE_BUILD_TYPE=Release -DQUILLMESH_BENCH=ON \
           -DQUILLMESH_TESTS=OFF &&
       cmake --build build/bench --target stages memory peers artistscene readandbind; } \
       >build/bench.log 2>&1; then
    tail -n 40 build/bench.log
    exit 1
fi

results=build/bench/results
rm -rf "$results"
mkdir -p "$results"
export QT_QPA_PLATFORM=offscreen

# run PROGRAM [WORDS...]: shows the tables and keeps them.
run() {
    STEP="running $*"
    echo
    echo "== $*"
    "build/bench/bin/$1" "${@:2}" 2>"$results/$1.errors" | tee -a "$results/$1.txt"
}

turned=lattice30,lattice75
ordinary=lattice,$turned,chords,strokes,scribble
if [ "$quick" = yes ]; then
    run stages --sizes 2000,5000,10000 --json "$results/stages.json"
    run memory --sizes 10000 --json "$results/memory.json"
    run peers --sizes 2000 --pairs 3 --json "$results/peers.json"
else
    run stages --sizes 2000,10000,50000,200000,1000000 --json "$results/stages.json"
    run memory --sizes 10000,100000,1000000 --json "$results/memory.json"
    run peers --sizes 10000,50000 --peers geos,cgal,boost --pairs 7 --limit 120 \
        --json "$results/peers.json"
    run peers --sizes 1000000 --shapes "$ordinary" --peers geos,cgal,boost --pairs 3 --limit 300 \
        --json "$results/peers.json"
    run peers --sizes 50000 --shapes "$turned" --peers pinned --pairs 3 \
        --json "$results/peers.json"
fi
run artistscene
run readandbind
echo
echo "The tables are in $results."
