#!/usr/bin/env python3
"""Compiles the fixed items of a dialog's lists into its dialog-initialisation resource (type 240).

usage: dialog_init.py IDS_H LIST OUTPUT

LIST is UTF-8 text. Ids are looked up in IDS_H; what follows "#" at a line's start is a comment.

    IDC_NAME combo          (or: IDC_NAME list)
        an item
        another item

A record is the control's id (16 bits), the message that adds the item (16 bits), the size of the data
(32 bits) and the data, UTF-16 text with its terminator; id 0 ends the file.
"""
import pathlib
import re
import struct
import sys

# The messages as resource compilers have written them since 16-bit Windows.
MESSAGES = {"combo": 0x0403, "list": 0x0401}


def read_ids(path):
    return {
        match[1]: int(match[2])
        for match in re.finditer(r"^#define (IDC_\w+) (\d+)$", path.read_text(), re.MULTILINE)
    }


def compile_list(path, ids):
    def fail(text):
        sys.exit(f"{path}:{number}: {text}")

    records = []
    control = None
    for number, data in enumerate(path.read_bytes().splitlines(), 1):
        try:
            line = data.decode("utf-8")
        except UnicodeDecodeError:
            fail("not UTF-8")
        if not line.strip() or line.startswith("#"):
            continue
        if line[0].isspace():
            if control is None:
                fail("an item before any list")
            text = line.strip().encode("utf-16-le") + b"\0\0"
            records.append(struct.pack("<HHI", ids[control], MESSAGES[kind], len(text)) + text)
            continue
        control, _, kind = line.strip().partition(" ")
        if control not in ids:
            fail(f"unknown id {control}")
        if kind not in MESSAGES:
            fail(f"expected one of {', '.join(MESSAGES)} behind {control}")
    return b"".join(records) + struct.pack("<H", 0)


def main():
    ids_h, source, output = map(pathlib.Path, sys.argv[1:])
    output.write_bytes(compile_list(source, read_ids(ids_h)))


if __name__ == "__main__":
    main()
