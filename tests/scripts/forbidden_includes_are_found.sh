#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The include check fails for each kind of arrow that points up, and only for those.
# usage: forbidden_includes_are_found.sh CHECK_SCRIPT
set -euo pipefail
check=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

try() { # FOLDER INCLUDE pass|fail [FILE]
    rm -rf "${work:?}"/*
    mkdir -p "$work/$1"
    echo "#include $2" >"$work/$1/${4:-file}.cpp"
    if "$check" "$work" >/dev/null; then result=pass; else result=fail; fi
    if [ "$result" != "$3" ]; then
        echo "$1 including $2: expected $3, was $result"
        exit 1
    fi
}

try graph '"mesh/meshbuilder.h"' fail
try graph '<QDialog>' fail
try graph '"graph/intersectionnode.h"' pass
try mesh '"ui/validatenewmesh.h"' pass
try mesh '"ui/validatemeshfeedbackmdialog.h"' fail
try mesh '"operation/runreport.h"' fail
try mesh '"graph/intersectionsearch.h"' fail
try operation '"ui/validatenewmesh.h"' fail
try operation '"mesh/buildmesh.h"' pass
try ui '"graph/intersectionnode.h"' fail
try plugin '<qopengl.h>' fail
try plugin '<qopengl.h>' pass overlay
try plugin '<Cg/cgGL.h>' fail
try plugin '<Cg/cgGL.h>' pass overlay
try plugin '"host/cgmaterial/cgprogram.h"' pass
try cli '"plugin/quillmesh.h"' fail
try cli '"host/files/meshfile.h"' pass
try host/files '<QLabel>' fail
try host/framework/orvane/math '<QVector>' fail
try host/framework/orvane/geometry '<orvane/kernel/kernel.h>' fail
try host/framework/orvane/kernel '<QDialog>' fail
try host/framework/orvane/kernel '<orvane/operations/renameoperation.h>' fail
try host/framework/orvane/operations '<orvane/kernel/scene.h>' pass
try host/framework/orvane/operations '<QDialog>' fail
try host/meshchecker '"graph/pieces.h"' fail
try host/cgmaterial '<Cg/cg.h>' pass
try host/cgmaterial '<Cg/cgGL.h>' fail
try host/cgmaterial '<QOpenGLContext>' fail
echo "Every forbidden include was found."
