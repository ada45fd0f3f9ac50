#!/usr/bin/env python3
"""Makes the archives that skin_test.cpp opens, most as zip programs write them.

usage: make_archives.py FOLDER
"""
import io
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


def info_zip(folder, *options):
    (folder / "icons.bmp").write_bytes(CONTENT)
    subprocess.run(["zip", "-q", *options, "made.zip", "icons.bmp"], cwd=folder, check=True)
    data = (folder / "made.zip").read_bytes()
    (folder / "made.zip").unlink()
    (folder / "icons.bmp").unlink()
    return data


def claiming(size):
    """An archive whose directory claims another size of its member."""
    data = bytearray(archive(("icons.bmp", CONTENT)))
    struct.pack_into("<I", data, data.index(b"PK\1\2") + 24, size)
    return bytes(data)


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    plain = archive(("icons.bmp", CONTENT))
    archives = {
        "stored": archive(("icons.bmp", CONTENT), method=zipfile.ZIP_STORED),
        "deflated": info_zip(folder, "-9"),
        "data_descriptor": info_zip(folder, "-fd"),
        "zip64": info_zip(folder, "-fz"),
        "encrypted": info_zip(folder, "-P", "secret"),
        "comment": archive(("icons.bmp", CONTENT), comment=b"A skin for the diary. " * 50),
        "folders": archive(("a/", b""), ("a/icons.bmp", b"other"), ("icons.bmp", CONTENT)),
        "prefixed": b"MZ" * 500 + plain,
        "other_case": archive(("ICONS.BMP", CONTENT)),
        "above": archive(("../icons.bmp", CONTENT)),
        "bzip2": archive(("icons.bmp", CONTENT), method=zipfile.ZIP_BZIP2),
        "largest": archive(("icons.bmp", bytes(LARGEST))),
        "too_large": archive(("icons.bmp", bytes(LARGEST + 1))),
        "claims_more": claiming(1000000),
        "claims_less": claiming(100),
        "claims_4_gib": claiming(0xFFFFFFFE),
        "no_member": archive(),
        "cut": plain[:len(plain) // 2],
        "nothing": b"",
    }
    for name, data in archives.items():
        (folder / f"{name}.zip").write_bytes(data)


if __name__ == "__main__":
    main()
