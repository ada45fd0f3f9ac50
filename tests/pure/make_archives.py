#!/usr/bin/env python3
"""Makes the archives that tests open: make_archives.py FOLDER"""
import io
import os
import pathlib
import struct
import subprocess
import sys
import zipfile

CONTENT = bytes(i * 7 % 251 for i in range(30000))
LARGEST = 16 * 1024 * 1024


def archive(*members, method=zipfile.ZIP_DEFLATED, comment=b""):
    data = io.BytesIO()
    with zipfile.ZipFile(data, "w", method) as target:
        target.comment = comment
        for name, content in members:
            target.writestr(name, content)
    return data.getvalue()


def info_zip(*options):
    pathlib.Path("icons.bmp").write_bytes(CONTENT)
    subprocess.run(["zip", "-q", *options, "made.zip", "icons.bmp"], check=True)
    data = pathlib.Path("made.zip").read_bytes()
    os.remove("made.zip")
    return data


def in_directory(data, place, form, number):
    data = bytearray(data)
    struct.pack_into(form, data, data.index(b"PK\1\2") + place, number)
    return bytes(data)


def claiming(size):  # of its member
    return in_directory(plain, 24, "<I", size)


os.makedirs(sys.argv[1], exist_ok=True)
os.chdir(sys.argv[1])
plain = archive(("icons.bmp", CONTENT))
for name, data in {
    "stored": archive(("icons.bmp", CONTENT), method=zipfile.ZIP_STORED),
    "deflated": info_zip("-9"),
    "data_descriptor": info_zip("-fd"),
    "zip64": info_zip("-fz"),
    "encrypted": info_zip("-P", "secret"),
    "comment": archive(("icons.bmp", CONTENT), comment=b"A skin for the diary. " * 50),
    "folders": archive(("a/", b""), ("a/icons.bmp", b"other"), ("icons.bmp", CONTENT)),
    "other_names": archive(("ICONS.BMP", CONTENT), ("../icons.bmp", CONTENT)),
    "bzip2": archive(("icons.bmp", CONTENT), method=zipfile.ZIP_BZIP2),
    "largest": archive(("icons.bmp", bytes(LARGEST))),
    "too_large": archive(("icons.bmp", bytes(LARGEST + 1))),
    "claims_more": claiming(1000000),
    "claims_less": claiming(100),
    "wrong_sum": in_directory(plain, 16, "<I", 1),
    "wrong_extra": in_directory(info_zip(), 46 + len("icons.bmp") + 2, "<H", 400),  # beyond its end
    "cut": plain[:len(plain) // 2],
}.items():
    pathlib.Path(f"{name}.zip").write_bytes(data)
