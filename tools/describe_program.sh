#!/usr/bin/env bash
# Prints the program's own tables: see tools/describe/describe.cpp. Needs describe.exe.
#
# usage: describe_program.sh settings | pages | check [BIN]
set -euo pipefail
ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$ROOT/tools/common.sh"
. "$ROOT/tools/wine.sh"
make_template
clone_prefix "$WINE_DIR/template-96" "$WINE_DIR/describe-$$"
export WINEPREFIX=$WINE_DIR/describe-$$
trap 'quietly wineserver -k; rm -rf "${WINEPREFIX:?}"' EXIT
cd "${2:-$ROOT/build/windows/bin}"
wine describe.exe "$1" </dev/null 2>/dev/null | tr -d '\r'
