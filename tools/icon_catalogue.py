#!/usr/bin/env python3
"""Writes the icon catalogue "icons.dat" from a list of groups.

usage: icon_catalogue.py GROUPS OUTPUT FOLDER...

GROUPS is a UTF-8 text: a group's title in brackets on a line of its own, below it the names of the group's
bitmaps without ".bmp", one a line. Lines that are empty or begin with "#" do not count. Each FOLDER holds the
bitmaps; several may hold the same icons at different sizes. Every bitmap must be listed, and each listed name
must be there in every folder. docs/icons.md describes the file.
"""
import hashlib
import pathlib
import struct
import sys


def read_groups(path):
    """Pairs of title and names, in order."""
    groups = []
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        line = line.strip()
        if not line or line.startswith("#"):
            continue
        if line.startswith("[") and line.endswith("]"):
            groups.append((line[1:-1], []))
        elif groups:
            groups[-1][1].append(line)
        else:
            sys.exit(f"{path}:{number}: {line} stands before the first group")
    return groups


def pack(groups):
    """The file, from pairs of title and digests."""
    data = bytearray(struct.pack("<i", len(groups)))
    for title, _ in groups:
        data += title.encode("utf-16-le") + b"\0\0"
        data += b"\0" * (len(data) % 4)
    for _, digests in groups:
        data += struct.pack("<i", len(digests)) + b"".join(digests)
    return bytes(data)


def main():
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    groups = read_groups(pathlib.Path(sys.argv[1]))
    listed = [name for _, names in groups for name in names]
    errors = [f"{name} is listed twice" for name in sorted({n for n in listed if listed.count(n) > 1})]
    digests = {name: [] for name in listed}
    for folder in map(pathlib.Path, sys.argv[3:]):
        there = {file.stem: file for file in folder.glob("*.bmp")}
        errors += [f"{folder} has no {name}.bmp" for name in sorted(set(listed) - set(there))]
        errors += [f"{there[name]} is in no group" for name in sorted(set(there) - set(listed))]
        for name in digests.keys() & there.keys():
            digests[name].append(hashlib.md5(there[name].read_bytes()).digest())
    if errors:
        sys.exit("\n".join(errors))
    catalogue = [(title, [d for name in names for d in digests[name]]) for title, names in groups]
    pathlib.Path(sys.argv[2]).write_bytes(pack(catalogue))


if __name__ == "__main__":
    try:
        main()
    except OSError as error:
        sys.exit(f"{error.filename}: {error.strerror}")
