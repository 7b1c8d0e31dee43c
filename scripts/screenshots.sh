#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Writes pictures of the tool's windows, light and dark, for screens of ratio 1 and 2.
# usage: screenshots.sh BUILD FOLDER [RESOURCES]
set -euo pipefail
build=${1:?usage: screenshots.sh BUILD FOLDER [RESOURCES]}
folder=${2:?usage: screenshots.sh BUILD FOLDER [RESOURCES]}
resources=${3:-$build/share/orvane}
cmake --build "$build" --target makescreenshots resources
for scale in 1 2; do
    QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=$scale \
        "$build/bin/makescreenshots" "$folder" "$resources"
done
