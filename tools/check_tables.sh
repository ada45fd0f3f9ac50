#!/usr/bin/env bash
# Checks the program's tables: each control has its row and each value its page, and docs/settings.md says what
# they say.
#
# usage: check_tables.sh BIN
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1
tools/describe_program.sh check "$1" || exit 1
tools/describe_program.sh settings "$1" | diff docs/settings.md - || {
    echo 'docs/settings.md is old; write it with: tools/describe_program.sh settings'
    exit 1
}
