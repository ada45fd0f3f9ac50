#!/usr/bin/env bash
# Runs a command that needs Wine but no device and no display, with a prefix of its own.
#
# usage: with_wine.sh COMMAND...
set -euo pipefail
ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$ROOT/tools/common.sh"
. "$ROOT/tools/wine.sh"
make_template >&2
clone_prefix "$WINE_DIR/template-96" "$WINE_DIR/with-$$"
export WINEPREFIX=$WINE_DIR/with-$$
trap 'quietly wineserver -k; rm -rf "${WINEPREFIX:?}"' EXIT
quietly wineserver -p
"$@" </dev/null
