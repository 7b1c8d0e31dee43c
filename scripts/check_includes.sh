#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Fails when a file includes what its folder may not: the arrows of docs/architecture.md.
# usage: check_includes.sh [ROOT]
set -euo pipefail
cd "${1:-$(dirname "$0")/..}"
failures=0

# forbid FOLDER PATTERN WHY [BUT]: no #include in the folder may match the extended expression, but
# for files whose path begins with BUT.
forbid() {
    local found
    [ -d "$1" ] || return 0
    found=$(grep -rnE "^ *#include +[<\"]$2" "$1" --include='*.h' --include='*.cpp' |
            grep -v "^${4:-nothing:}" || true)
    if [ -n "$found" ]; then
        printf '%s\n  %s\n' "$found" "$3"
        failures=$((failures + 1))
    fi
}

rooms='(graph|mesh|operation|ui|plugin|cli)/'
widgets='(Q(Widget|Dialog|Label|Application|PushButton|AbstractButton|.*Layout|ScrollArea|Frame|LineEdit|CheckBox|ComboBox|MessageBox|MainWindow)>|QtWidgets|orvane/widgets)'
gl='(GL/|Cg/|QOpenGL|QGL|qopengl)'

forbid host/framework/orvane/math '(Q|orvane/(base|geometry|kernel|operations|widgets))' 'math stands on the standard library alone'
forbid host/framework/orvane/base "(orvane/(geometry|kernel|operations|widgets)|$widgets|$gl)" 'base stands on math and Qt Core'
forbid host/framework/orvane/geometry "(orvane/(kernel|operations|widgets)|$widgets|$gl)" 'geometry stands on math, base and Qt Core'
forbid host/framework/orvane/kernel "(orvane/(operations|widgets)|$widgets|$gl)" 'kernel draws no widget and knows no operation but its own'
forbid host/framework/orvane/operations "($widgets|$gl|QtGui|Q(Image|Pixmap|Painter|Color|Font|Icon)>)" 'operations stand on kernel and Qt Core'
forbid host "$rooms" 'the host knows nothing of the plug-in and the command line'
forbid host/files "$widgets" 'files are read without widgets'
forbid host/meshchecker "($widgets|host/(files|cgmaterial|desktop)/)" 'the checker stands on the framework'
forbid host/cgmaterial "($widgets|GL/|Cg/cgGL|QOpenGL|QGL|qopengl|host/(files|meshchecker|desktop)/)" 'programs stand on the framework and Cg; who draws loads them'
desktop='host/desktop/'
forbid host/desktop/drawing "($widgets|$gl|host/(files|meshchecker)/|${desktop}(view|document|viewport|tools|window)/)" 'drawing stands on the framework'
forbid host/desktop/view "($widgets|$gl|host/files/|${desktop}(drawing|document|viewport|tools|window)/)" 'view stands on the framework and the checker'
forbid host/desktop/document "($widgets|$gl|${desktop}(drawing|view|viewport|tools|window)/)" 'a document knows no view'
forbid host/desktop/viewport "(host/files/|${desktop}(drawing|document|tools|window)/)" 'the viewport stands on view'
forbid host/desktop/tools "($widgets|$gl|host/files/|${desktop}(document|viewport|window)/)" 'tools stand on drawing and view'
forbid host/desktop/window "$gl" 'the viewport alone knows OpenGL'
forbid graph "((mesh|operation|plugin|ui|cli)/|host/|$widgets|$gl)" 'graph stands on the framework'
forbid mesh "((operation|plugin|cli)/|host/|$widgets|$gl)" 'mesh stands on graph'
forbid mesh 'ui/(validatem|[^v])' 'mesh calls one function of ui: validateNewMesh'
forbid mesh 'graph/(box|cross|curve|intersectionsearch|lanes|near|node(merge|store)|pieces|sampled|segment|sorted|face|point)' 'mesh knows nodes and walks, not the search'
forbid operation "((plugin|ui|cli)/|host/|$widgets|$gl)" 'operation stands on mesh and graph'
forbid ui "((graph|mesh|operation|plugin|cli)/|host/(files|cgmaterial|desktop)|$gl)" 'ui stands on the framework and the checker'
forbid plugin '((mesh|cli)/|host/(files|desktop))' 'plugin stands on operation, graph and ui'
forbid plugin "$gl" 'the overlay alone knows OpenGL' plugin/overlay
forbid cli '((plugin|ui|mesh)/|host/desktop)' 'the command line stands on public headers'

# Every file of the library folders names others from the root, never relative to itself.
found=$(grep -rnE '^ *#include +"\.' . --include='*.h' --include='*.cpp' --exclude-dir=build || true)
if [ -n "$found" ]; then
    printf '%s\n  paths start at the root\n' "$found"
    failures=$((failures + 1))
fi

if [ "$failures" -gt 0 ]; then
    echo "$failures rules broken."
    exit 1
fi
echo "Every include points the right way."
