#!/usr/bin/env python3
"""Checks that the program knows no processor: clang compiles its own sources for ARM, as most devices have it, with
the headers of the 32-bit mingw-w64. There are no libraries to link them to.

usage: check_arm.py BUILD

BUILD is the folder of a configured 32-bit build.
"""
import json
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

FOLDERS = ("app", "appearance", "base", "controls", "pages", "settings", "pocketpc/layouts")
WARNINGS = ["-Wall", "-Wextra", "-Werror", "-Wno-missing-field-initializers"]


def header_folders(compiler):
    """Where the compiler looks for headers, but for its own, of which clang has others."""
    command = [compiler, "-E", "-v", "-x", "c++", "/dev/null"]
    text = subprocess.run(command, check=True, capture_output=True, text=True).stderr
    folders = re.search(r"#include <\.\.\.> search starts here:\n(.*?)End of search list", text, re.DOTALL)[1].split()
    return [folder for folder in folders if not re.search(r"/lib/gcc/[^/]+/[^/]+/include(-fixed)?$", folder)]


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    root = pathlib.Path(__file__).resolve().parent.parent
    folders = tuple(f"{root}/{folder}/" for folder in FOLDERS)
    options, sources, compiler = [], {}, None
    for entry in json.loads((build / "compile_commands.json").read_text()):
        file = pathlib.Path(entry["file"])
        if file.suffix != ".cpp" or not str(file).startswith(folders):
            continue
        compiler, *words = shlex.split(entry["command"])
        precompiled = None
        for word, following in zip(words, [*words[1:], ""]):
            if word == "-include":
                precompiled = following
            option = [word, following] if word == "-isystem" else [word]
            if re.match("-D|-I|-std|-isystem", word) and option not in options:
                options.append(option)
        sources.setdefault(precompiled, []).append(file)
    if not sources:
        sys.exit(f"{build} compiles nothing of the program")
    command = ["clang++", "--target=armv7-windows-gnu", "-nostdinc++", *WARNINGS, *sum(options, [])]
    for folder in header_folders(compiler):
        command += ["-isystem", folder]
    failed = False
    with tempfile.TemporaryDirectory() as folder:
        for header, files in sources.items():
            use = []
            if header:
                outer = pathlib.Path(folder, "headers.h")
                outer.write_text(f'#include "{header}"\n')
                use = ["-include-pch", f"{outer}.pch"]
                subprocess.run([*command, "-x", "c++-header", outer, "-o", use[1]], check=True)
            failed |= subprocess.run([*command, *use, "-fsyntax-only", *files]).returncode != 0
    print(f"{sum(map(len, sources.values()))} sources compiled for ARM")
    sys.exit(failed)


if __name__ == "__main__":
    main()
