#!/usr/bin/env bash
# Checks that clang-format would change nothing.
cd "$(dirname "${BASH_SOURCE[0]}")/.." &&
    find app settings appearance pages controls base pocketpc tests tools \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 clang-format --dry-run -Werror
