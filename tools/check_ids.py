#!/usr/bin/env python3
"""Checks the resource ids: no two of a kind alike, each within its range, each used one defined.

usage: check_ids.py ROOT
"""
import pathlib
import re
import sys

LAST_DIALOG = 30720  # the language file's template looks no further
FRAMEWORK_STRINGS = range(57344, 65000)  # and skips these


def main():
    root = pathlib.Path(sys.argv[1])
    defines = re.findall(r"^#define (ID\w+) (\d+)$", (root / "resources/ids.h").read_text(), re.MULTILINE)
    errors, seen = [], {}
    for name, number in defines:
        number = int(number)
        kind = name.split("_")[0]
        other = seen.setdefault((kind, number), name)
        if other != name:
            errors.append(f"{name} and {other} are both {number}")
        if kind == "IDD" and number > LAST_DIALOG:
            errors.append(f"{name} lies beyond the last dialog id")
        if kind == "IDS" and number in FRAMEWORK_STRINGS:
            errors.append(f"{name} lies among the framework's strings")
    known = {name for name, _ in defines}
    for folder in ("app", "settings", "appearance", "pages", "controls", "base", "resources", "tests"):
        for file in (root / folder).rglob("*"):
            if file.suffix not in (".cpp", ".h", ".rc"):
                continue
            for name in set(re.findall(r"\bID[CDSM]_[A-Z0-9_]+\b", file.read_text())) - known:
                if name not in ("IDC_ARROW", "IDC_WAIT"):
                    errors.append(f"{file.relative_to(root)} uses {name}, which is not defined")
    print("\n".join(errors) or f"{len(known)} ids are in order")
    sys.exit(1 if errors or not known else 0)


if __name__ == "__main__":
    main()
