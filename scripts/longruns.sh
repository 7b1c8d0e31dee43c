#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs whole what ./test runs a tenth of: random histories, recorded commands, damaged and killed
# scene files, killed desktops; and random events on the whole window for half an hour. Each prints
# its seed; QUILLMESH_SEED=n repeats one.
# usage: longruns.sh [BUILD_FOLDER]
set -euo pipefail
cd "${1:-$(dirname "$0")/../build/release}"
export QT_QPA_PLATFORM=offscreen

# run PROGRAM VARIABLE TIMES
run() {
    echo
    echo "== $1, $3 times"
    env "$2=$3" "bin/$1" --gtest_brief=1
}

run tst_mixedhistories QUILLMESH_HISTORIES 200
run tst_commandreplay QUILLMESH_COMMANDS 1000
run tst_scenedamage QUILLMESH_DAMAGES 2000
run tst_scenekill QUILLMESH_KILLS 200
run tst_recoverykill QUILLMESH_RECOVERIES 100

echo
echo "== tst_soak, 1800 seconds"
QT_QPA_PLATFORM=xcb LIBGL_ALWAYS_SOFTWARE=1 ASAN_OPTIONS=detect_leaks=0 QUILLMESH_SOAK=1800 \
    xvfb-run -a -s "-screen 0 1600x1000x24" bin/tst_soak --gtest_brief=1
