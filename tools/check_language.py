#!/usr/bin/env python3
"""Checks a language file against the template that the program writes, and says line by line what is wrong.

usage: check_language.py TEMPLATE FILE

Wrong are a text that has no translation, one that the program does not have, one that stands twice, a line that
is too long, a second bar, and a translation with other placeholders (%s, %d, or any % before
a letter) or line breaks than its text.
Texts without letters need none. A text that stays as it is, such as a name, is its own translation.
"""
import collections
import re
import sys

LONGEST_LINE = 4094


def split(line):
    """The fields of a line: up to a bar, but not one behind a backslash."""
    fields = [""]
    for part in re.findall(r"\\.|.", line):
        if part == "|":
            fields.append("")
        else:
            fields[-1] += part
    return fields


def read(path):
    """Triples of line number, line and its fields."""
    with open(path, "rb") as file:
        data = file.read()
    if not data.startswith(b"\xff\xfe"):
        sys.exit(f"{path}: not UTF-16 with a byte-order mark")
    entries = []
    for number, line in enumerate(re.split(r"\r\n|\r|\n", data[2:].decode("utf-16-le")), 1):
        entries.append((number, line, split(line)))
    return entries


def placeholders(text):
    """In their order, which is that of what is put in, and the number of line breaks."""
    return re.findall(r"%[A-Za-z]", text.replace("%%", "")), text.count("\\n")


def main():
    template_path, path = sys.argv[1:]
    known = {fields[0] for _, line, fields in read(template_path)
             if re.search(r"[^\W\d_]", line) and not line.startswith("$$$$")}
    if not known:
        sys.exit("the template is empty; the check would say nothing")
    errors = []
    seen = collections.defaultdict(list)
    for number, line, fields in read(path):
        if not line or line.startswith("$$$$"):
            continue
        text, translation = fields[0], fields[1] if len(fields) > 1 else ""
        seen[text].append(number)
        if len(line) > LONGEST_LINE:
            errors.append((number, f"longer than {LONGEST_LINE} characters"))
        if len(fields) > 2:
            errors.append((number, "more than one bar; a bar in a text is written \\|"))
        if text not in known:
            errors.append((number, f'the program has no text "{text}"'))
        elif not translation:
            errors.append((number, f'"{text}" has no translation'))
        elif placeholders(text) != placeholders(translation):
            errors.append((number, f'"{text}" and its translation differ in what begins with % or in \\n'))
        if len(seen[text]) > 1:
            errors.append((number, f'"{text}" stands in line {seen[text][0]} already'))
    for text in sorted(known - seen.keys()):
        errors.append((0, f'"{text}" is missing'))
    for number, error in errors:
        print(f"{path}:{number}: {error}" if number else f"{path}: {error}")
    print(f"{len(known)} texts, {len(errors)} wrong")
    sys.exit(1 if errors else 0)


if __name__ == "__main__":
    main()
