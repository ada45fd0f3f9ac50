#!/usr/bin/env python3
"""Renders drawings as the pictures that Windows knows. Needs rsvg-convert.

usage: pictures.py icon DRAWING OUTPUT SIZE...
       pictures.py bitmap DRAWING OUTPUT ZOOM
       pictures.py icon_set FOLDER OUTPUT ZOOM

An icon holds the drawing at each size. An icon set is a bitmap of each drawing in the folder, with hard edges
on the green that is not painted; the folder OUTPUT then has no other bitmaps.
"""
import pathlib
import struct
import subprocess
import sys
import zlib

GREEN = (0, 255, 0)


def render(drawing, *options):
    """Rows of (red, green, blue, opacity) of an SVG file's bytes."""
    result = subprocess.run(["rsvg-convert", "-f", "png", *options], input=drawing, capture_output=True)
    if result.returncode:
        sys.exit(f"A drawing could not be rendered: {result.stderr.decode()}")
    return read_png(result.stdout)


def read_png(data):
    """Rows of (red, green, blue, opacity), of the two kinds of PNG that rsvg-convert writes: without opacity
    when all is opaque."""
    position, packed = 8, b""
    while position < len(data):
        length, kind = struct.unpack_from(">I4s", data, position)
        chunk = data[position + 8:position + 8 + length]
        if kind == b"IHDR":
            width, height, depth, color, _, _, interlaced = struct.unpack(">IIBBBBB", chunk)
            channels = {2: 3, 6: 4}[color]
            assert (depth, interlaced) == (8, 0)
        elif kind == b"IDAT":
            packed += chunk
        position += length + 12
    raw, stride, rows = zlib.decompress(packed), channels * width, []
    above = bytes(stride)
    for y in range(height):
        kind = raw[y * (stride + 1)]
        row = bytearray(raw[y * (stride + 1) + 1:(y + 1) * (stride + 1)])
        for i in range(stride):
            left = i - channels
            a, b, c = (row[left], above[i], above[left]) if left >= 0 else (0, above[i], 0)
            nearest = min((abs(b - c), 0, a), (abs(a - c), 1, b), (abs(a + b - 2 * c), 2, c))[2]
            row[i] = (row[i] + (0, a, b, (a + b) // 2, nearest)[kind]) & 255
        rows.append([(*row[i:i + 3], row[i + 3] if channels == 4 else 255) for i in range(0, stride, channels)])
        above = row
    return rows


def dib_header(width, height, bits, size):
    return struct.pack("<IiiHHIIiiII", 40, width, height, 1, bits, 0, size, 0, 0, 0, 0)


def padded_rows(rows):
    """Rows of bytes as bitmaps keep them: from the bottom up, each of whole double words."""
    return b"".join(row + bytes(-len(row) % 4) for row in map(bytes, reversed(rows)))


def bitmap(rows):
    """A 24-bit bitmap file of rows of (red, green, blue)."""
    pixels = padded_rows([[v for r, g, b in row for v in (b, g, r)] for row in rows])
    return struct.pack("<2sIHHI", b"BM", 54 + len(pixels), 0, 0, 54) + \
        dib_header(len(rows[0]), len(rows), 24, len(pixels)) + pixels


def icon(pictures):
    """An icon file, of rows of (red, green, blue, opacity) for each size."""
    entries, images = b"", b""
    for rows in pictures:
        size = len(rows)
        pixels = padded_rows([[v for r, g, b, opacity in row for v in (b, g, r, opacity)] for row in rows])
        # Systems that know no opacity paint where the mask is clear.
        mask = padded_rows([int("".join("01"[pixel[3] < 128] for pixel in row).ljust(-size % 8 + size, "0"), 2)
                            .to_bytes((size + 7) // 8, "big") for row in rows])
        image = dib_header(size, 2 * size, 32, len(pixels)) + pixels + mask
        entries += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(image),
                               6 + 16 * len(pictures) + len(images))
        images += image
    return struct.pack("<HHH", 0, 1, len(pictures)) + entries + images


def hard_edged(rows):
    return [[pixel[:3] if pixel[3] >= 128 else GREEN for pixel in row] for row in rows]


def main():
    match sys.argv[1:]:
        case ["icon", drawing, output, *sizes] if sizes:
            data = pathlib.Path(drawing).read_bytes()
            pathlib.Path(output).write_bytes(icon([render(data, "-w", size, "-h", size) for size in sizes]))
        case ["bitmap", drawing, output, zoom]:
            rows = render(pathlib.Path(drawing).read_bytes(), "-z", zoom)
            pathlib.Path(output).write_bytes(bitmap([[pixel[:3] for pixel in row] for row in rows]))
        case ["icon_set", folder, output, zoom]:
            drawings = sorted(pathlib.Path(folder).glob("*.svg"))
            if not drawings:
                sys.exit(f"{folder} has no drawings, which end in .svg")
            pathlib.Path(output).mkdir(parents=True, exist_ok=True)
            for old in pathlib.Path(output).glob("*.bmp"):
                old.unlink()
            for drawing in drawings:
                rows = hard_edged(render(drawing.read_bytes(), "-z", zoom))
                (pathlib.Path(output) / f"{drawing.stem}.bmp").write_bytes(bitmap(rows))
        case _:
            sys.exit(__doc__)


if __name__ == "__main__":
    try:
        main()
    except OSError as error:
        sys.exit(f"{error.filename}: {error.strerror}")
