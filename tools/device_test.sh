#!/usr/bin/env bash
# Runs a program on a fresh device of its own: a clone of the Wine prefix, a display, a device folder that is
# the current drive.
#
# usage: device_test.sh NAME DPI WIDTHxHEIGHT PROGRAM ARGUMENTS...
set -eEuo pipefail
# Nearly all is done quietly; what failed shall be told nevertheless.
trap 'echo "error: $BASH_COMMAND failed (line $LINENO of $(basename "${BASH_SOURCE[0]}"))" >&2' ERR
ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$ROOT/tools/common.sh"
. "$ROOT/tools/wine.sh"

name=$1 dpi=$2 size=$3 program=$4
shift 4
BIN=$(dirname "$program")
device=$ROOT/build/stage/$name
rm -rf "$device" "${WINE_DIR:?}/$name"
furnish_device "$device" "$BIN" "$dpi"
start_display "$size"
start_session "$name" "$dpi" "$device"
set_screen "$device" "$size"
# No browser shall open while tests ask for help.
reg_add 'HKCU\Software\Wine\WineBrowser' Browsers REG_SZ true
trap 'end_session; end_display; rm -rf "${WINE_DIR:?}/$name" "$device"' EXIT
cd "$device"
# A program of another width than Wine's does not run and succeeds all the same.
output=$WINE_DIR/$name/output
wine "$program" "$@" </dev/null | tee "$output"
[ -s "$output" ] || fail "$program printed nothing"
