#!/usr/bin/env bash
# Checks every file of shipped/translations/ against the texts of the program, which it starts to write them down.
#
# usage: check_translations.sh BIN
set -euo pipefail
ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$ROOT/tools/common.sh"
. "$ROOT/tools/wine.sh"
. "$ROOT/tools/shots.sh"
BIN=$1

open_stage translations 96 240x320
start_program "$STAGE"
await_window 'Lum Diary Options'
close_program
template=$WINE_DIR/translations.txt
mv "$STAGE/Program Files/Lum Diary/LumDiary_en.txt" "$template"
close_stage
wrong=0
for file in "$ROOT"/shipped/translations/*.txt; do
    "$ROOT/tools/with_wine.sh" wine "$BIN/diarykit.exe" language check --library "$BIN/DiaryRes.Dll" \
        "$template" "$file" || wrong=1
done
exit $wrong
