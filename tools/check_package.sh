#!/usr/bin/env bash
# Unpacks the archive for Windows as a stranger would, into a folder with characters that paths may have, starts it by
# the file that is there for it, and looks whether a setting is kept until the next start.
#
# usage: check_package.sh BIN
set -euo pipefail
ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$ROOT/tools/common.sh"
. "$ROOT/tools/wine.sh"
. "$ROOT/tools/shots.sh"
. "$ROOT/tools/package.sh"
BIN=$1

place=$ROOT/build/stage/package/"Größe & Übung (1)!"
rm -rf "$ROOT/build/stage/package" "${WINE_DIR:?}/package"
make_package "$ROOT/build/stage/package"
mkdir -p "$place"
(cd "$place" && cmake -E tar xf ../LumDiarySettings-*.zip)
unpacked=$(echo "$place"/LumDiarySettings-*)
BIN=$unpacked/program
SCREEN_SIZE=240x320

export WINEPREFIX=$WINE_DIR/package
clone_prefix "$WINE_DIR/template-96" "$WINEPREFIX"
start_display "$SCREEN_SIZE"
quietly wineserver -p
trap 'cat "$place/said" 2>/dev/null; end_session; end_display; rm -rf "${WINEPREFIX:?}" "$ROOT/build/stage/package"' EXIT
# Wine's subst makes no drive, so one is there as from an earlier start.
mkdir "$unpacked/device"
ln -s "$unpacked/device" "$WINEPREFIX/dosdevices/s:"
mkfifo "$place/keys"

# Starts it, does something in the program, and puts the device away by a key.
with_program() { # ARGUMENT TITLE COMMAND...
    (cd "$unpacked" && exec wine cmd /c LumDiary.cmd $1 <"$place/keys" >"$place/said" 2>&1) &
    local console=$!
    exec 3>"$place/keys"
    await_window "$2"
    "${@:3}"
    settle
    echo >&3
    exec 3>&-
    wait "$console" || fail "LumDiary.cmd failed"
    grep -q 'drive S:' "$place/said" || fail "It found another drive"
    [ ! -e "$(echo "$unpacked/device/"*.tmp)" ] || fail "It leaves files behind"
    if quietly wine "$BIN/device_send.exe" today; then fail "The Today screen stays"; fi
}

# Clicks the box that shows the tasks in the calendar.
click() {
    press c Return
    await_window 'Calendar options'
    press ctrl+Tab ctrl+Tab space Return
}

# The second click finds what the first one stored.
for expected in 0x0 0x1; do
    with_program '' 'Lum Diary Options' click
    value=$(product_values CalendarShowTasks)
    [[ $value == *REG_DWORD*$expected* ]] || fail "Instead of $expected the setting is: $value"
    echo "The setting is $expected, as it should be"
done
with_program de 'Lum Diary Optionen' true
cmp "$ROOT/shipped/help/LumDiary_de.htm" "$unpacked/device/Program Files/Lum Diary/LumDiary.htm"
with_program en 'Lum Diary Options' true
version=$(wine "$BIN/diarykit.exe" --version </dev/null | tr -d '\r')
[ "$unpacked" = "$place/LumDiarySettings-$version" ] || fail "The tool's version is ${version:-none}"
for license in "$unpacked"/licenses/*; do
    [ -s "$license" ] || fail "$license is empty"
done
