#!/usr/bin/env bash
# Prints the program's own tables: see tools/describe/describe.cpp. Needs build/windows/bin/describe.exe.
#
# usage: describe_program.sh settings | values | widths | pages | check
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
tools/with_wine.sh wine build/windows/bin/describe.exe "$@" 2>/dev/null | tr -d '\r'
