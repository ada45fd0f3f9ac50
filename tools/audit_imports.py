#!/usr/bin/env python3
"""Checks that the program could run on a device: every function it imports is one of the device's.

usage: audit_imports.py DEVICE_FUNCTIONS PROGRAM EMPTY_PROGRAM STAND_INS...

DEVICE_FUNCTIONS lists "library function" a line, or "library @ordinal", of what the program uses of the
device. What EMPTY_PROGRAM imports is the C++ run-time's and does not count. A function that comes from one
of the STAND_INS must be listed for that library, and the stand-in must export nothing else; any other is
the desktop's own, whose libraries are divided otherwise, and must be listed for some library. The desktop's
64-bit ...LongPtr functions count as ...Long.
"""
import pathlib
import re
import subprocess
import sys


def dump(path):
    command = ["x86_64-w64-mingw32-objdump", "-p", path]
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def imports(path):
    """Pairs of library and function, in lower case and as it stands."""
    result = set()
    library = None
    for line in dump(path).splitlines():
        if match := re.match(r"\s+DLL Name: (\S+)", line):
            library = match[1].lower().removesuffix(".dll")
        elif library and (match := re.match(r"\s+[0-9a-f]+\s+(\d+)\s+([A-Za-z_?<]\S*)", line)):
            result.add((library, f"@{match[1]}" if match[2] == "<none>" else match[2]))
    return result


def exports(path):
    table = dump(path).partition("[Ordinal/Name Pointer] Table")[2]
    return set(re.findall(r"^\s+\[\s*\d+\].*?(\S+)$", table, re.MULTILINE))


def main():
    functions, program, empty, *stand_ins = sys.argv[1:]
    allowed = {
        tuple(line.split())
        for line in pathlib.Path(functions).read_text().splitlines()
        if line and not line.startswith("#")
    }
    names = {name for _, name in allowed}
    stand_in_names = {pathlib.Path(path).stem.lower(): path for path in stand_ins}
    own = imports(program) - imports(empty)
    if not own:
        sys.exit("no imports found; the audit would say nothing")
    errors = []
    for library, name in sorted(own):
        device_name = re.sub(r"LongPtr([AW]?)$", r"Long\1", name)
        known = (library, device_name) in allowed if library in stand_in_names else device_name in names
        if not known:
            errors.append(f"the program imports {name} of {library}")
    for library, path in stand_in_names.items():
        exported = exports(path)
        if not exported:
            errors.append(f"no exports of {library} found")
        for name in sorted(exported):
            if (library, name) not in allowed:
                errors.append(f"the stand-in {library} exports {name}")
    for error in errors:
        print(f"{error}, which is not in {functions}")
    print(f"{len(own)} imports of the program checked")
    sys.exit(1 if errors else 0)


if __name__ == "__main__":
    main()
