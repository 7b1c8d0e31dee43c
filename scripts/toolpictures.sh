#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Photographs the desktop at work: docs/pictures/tools for the user guide, and the three steps of
# the help in resources. To be run when the look of the desktop has changed, and to be looked at.
# Needs xvfb-run and pngquant.
# usage: toolpictures.sh BUILD [PICTURE...]
set -euo pipefail
build=$(realpath "${1:?usage: toolpictures.sh BUILD [PICTURE...]}")
shift
root=$(realpath "$(dirname "$0")/..")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cmake --build "$build" --target maketoolpictures
QT_SCALE_FACTOR=2 LIBGL_ALWAYS_SOFTWARE=1 xvfb-run -a -s "-screen 0 2400x1600x24" \
    "$build/bin/maketoolpictures" "$folder" "$build/share/orvane" "$build/plugins" "$@"
find "$folder" -name '*.png' -exec pngquant --force --ext .png --strip --speed 1 --quality 80-98 {} +
mkdir -p "$root/docs/pictures/tools"
find "$folder" -maxdepth 1 -name '*.png' -exec mv {} "$root/docs/pictures/tools" \;
find "$folder/steps" -name '*.png' -exec mv {} "$root/resources/Icons/tooltips" \;
