#!/usr/bin/env bash
# Prints the program's own tables: see tools/describe/describe.cpp. Needs describe.exe.
#
# usage: describe_program.sh settings | values | widths | pages | check [BIN]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
tools/with_wine.sh wine "${2:-build/windows/bin}/describe.exe" "$1" 2>/dev/null | tr -d '\r'
