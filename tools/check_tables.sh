#!/usr/bin/env bash
# Checks the program's tables: each control has its row and each value its page, and the files that are written
# from the tables say what they say.
#
# usage: check_tables.sh BIN
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1
tools/describe_program.sh check "$1" || exit 1
bin=$1 wrong=0
while read -r what file; do
    tools/describe_program.sh "$what" "$bin" | diff "$file" - || {
        echo "$file is old; write it with: tools/describe_program.sh $what >$file"
        wrong=1
    }
done <<'END'
settings docs/settings.md
values tools/diarykit/known_values.inc
widths tools/diarykit/font_widths.inc
END
exit $wrong
