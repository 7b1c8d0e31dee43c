#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs the build, builds a small tool against the installed package, and runs it.
# usage: installed_package_builds_a_tool.sh BUILD_DIR CONSUMER_DIR
set -euo pipefail
build=$1
consumer=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cmake --install "$build" --prefix "$work/installed" >/dev/null
cmake -S "$consumer" -B "$work/tool" -G Ninja -DCMAKE_PREFIX_PATH="$work/installed" >/dev/null
cmake --build "$work/tool" >/dev/null
"$work/tool/tool"
"$work/installed/bin/quillmesh" --version
