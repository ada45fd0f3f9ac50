#!/usr/bin/env python3
"""Writes the table of all values that the program keeps in the product key, from the code's own tables.

usage: settings_table.py ROOT [--check]

With --check nothing is written: fails when docs/settings.md is not what would be written, or when a value is
edited on no page and is none of those that are only read.
"""
import pathlib
import re
import sys

# Read by the program, or kept for the plug-in, and edited on no page.
ONLY_READ = re.compile(r"dbgTextOffset|clrAppt\w+|IconSetID")
HEADING = """# Settings

Every value of the key `HKEY_LOCAL_MACHINE\\Software\\Lum Software House\\Lum Diary`, as the program's tables have it.
Numbers are `REG_DWORD`, texts `REG_SZ`. A value that is missing is written with its default when it is first read.
This page is written by `tools/settings_table.py`.

| Value | Type | Default | Edited on |
|---|---|---|---|
"""


class Value:
    def __init__(self, name, kind, default, code_name):
        self.name, self.kind, self.default, self.code_name = name, kind, default, code_name
        self.pages = []


def catalogue(root):
    text = (root / "settings/catalogue.h").read_text()
    for code, name, default in re.findall(
            r'NumberSetting (\w+)\{\s*L"([^"]+)",\s*([^}]+)\};', text):
        yield Value(name, "number", default.strip(), f"settings::{code}\\b")
    for code, name, default in re.findall(r'TextSetting (\w+)\{L"([^"]+)", (?:L"([^"]*)"|nullptr)\};', text):
        yield Value(name, "text", default, f"settings::{code}\\b")
    # A setting whose default depends on the device.
    for code, body in re.findall(r"constexpr NumberSetting (\w+)\([^)]*\) \{(.*?)\n\}", text, re.DOTALL):
        for name in re.findall(r'L"([^"]+)"', body):
            yield Value(name, "number", "depends on the device", f"settings::{code}\\b")


def shared(root):
    text = (root / "settings/diary_settings.cpp").read_text()
    for member, name, default in re.findall(
            r'\{&CDiarySettings::(\w+), L"([^"]+)", ([^,}]+)', text):
        kind = "text" if default.startswith("L") else "number"
        yield Value(name, kind, default.strip('L"'), f"(?:CDiarySettings::|GetDiarySettings\\(\\)\\.){member}\\b")


def parts(root, file, seen):
    """The sources of a page: its own, and those of what it includes of pages/ and the keyboard layouts."""
    if file in seen or not file.exists():
        return ""
    seen.add(file)
    text = file.read_text()
    header = file.with_suffix(".h")
    names = re.findall(r'#include "((?:pages/|settings/keyboard_layouts)[^"]*)\.h"',
                       text + (header.read_text() if header.exists() else ""))
    return text + "".join(parts(root, (root / name).with_suffix(".cpp"), seen) for name in names)


def pages(root):
    """Pairs of a page's anchor and its sources."""
    for file in sorted((root / "pages").glob("*_page.cpp")):
        text = parts(root, file, set())
        for anchor in re.findall(r'IDD_\w+,\s*L"(\w+)"', file.read_text()):
            yield anchor, text
    # The titles are edited through what all pages of a sheet share.
    draft = {"calendar_titles": "appointmentPattern taskPattern contactPattern",
             "tasks_view_style": "taskPattern", "tasks_icons": "taskPattern"}
    for anchor, members in draft.items():
        yield anchor, " ".join(f"CDiarySettings::{member}" for member in members.split())


def main():
    root = pathlib.Path(sys.argv[1])
    values = {}
    for value in [*catalogue(root), *shared(root)]:
        # A value with two defaults is one value.
        known = values.setdefault(value.name, value)
        if known is not value:
            known.default += f" or {value.default}"
            known.code_name += f"|{value.code_name}"
    for anchor, text in pages(root):
        for value in values.values():
            if re.search(value.code_name, text) and anchor not in value.pages:
                value.pages.append(anchor)
    rows = []
    homeless = []
    for value in sorted(values.values(), key=lambda v: v.name.lower()):
        if not value.pages and not ONLY_READ.fullmatch(value.name):
            homeless.append(value.name)
        name = f"(tab){value.name}" if value.name.startswith("_") else value.name
        rows.append(f"| {name} | {value.kind} | {value.default} | {', '.join(value.pages) or 'no page'} |\n")
    table = HEADING + "".join(rows)
    target = root / "docs/settings.md"
    if "--check" not in sys.argv:
        target.write_text(table)
        return
    if not rows:
        sys.exit("no values found; the check would say nothing")
    if homeless:
        sys.exit("edited on no page: " + ", ".join(homeless))
    if not target.exists() or target.read_text() != table:
        sys.exit("docs/settings.md is old; run tools/settings_table.py")
    print(f"{len(rows)} values, each with its page")


if __name__ == "__main__":
    main()
