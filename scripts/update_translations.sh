#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Brings resources/Translations up to date with the texts of the sources: new ones come in as
# unfinished, those that are gone leave. The files hold no line numbers, so that they change only
# when a text does.
# usage: update_translations.sh [FOLDER]   (LUPDATE names the program when it is not on the path)
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
folder=$(realpath "${1:-$here/resources/Translations}")
cd "$here"

# update FILE SOURCES...
update() {
    local file=$1 language
    shift
    language=${file##*/}
    language=${language#*_}
    "${LUPDATE:-lupdate}" -silent -no-obsolete -locations none -source-language en \
        -target-language "${language%.ts}" -I . -I host/framework "$@" -ts "$file"
}

shopt -s nullglob
for file in "$folder"/orvane_*.ts; do
    update "$file" host
done
for file in "$folder"/quillmesh_*.ts; do
    case $file in
        # English names what has no text of its own: the operation, in the Edit menu.
        */quillmesh_en.ts) update "$file" operation/manualretopooperation.cpp ;;
        *) update "$file" graph mesh operation plugin ui ;;
    esac
done
