#!/usr/bin/env python3
"""Turns the bitmaps of a gallery into PNG files and writes the page that shows them.

usage: gallery.py FOLDER

FOLDER holds LANGUAGE/SCREEN/NAME.bmp, as tools/walk writes them. FOLDER/index.html shows them by page, screen and
language, side by side, in any browser and without a server.
"""
import html
import json
import pathlib
import struct
import sys
import zlib

PAGE = """<!DOCTYPE html>
<html lang="en"><meta charset="utf-8"><title>Every page</title>
<style>
body { font: 14px sans-serif; margin: 16px; background: #f4f4f4 }
nav { position: sticky; top: 0; background: #f4f4f4; padding: 8px 0; border-bottom: 1px solid #bbb }
label { margin-right: 12px }
h2 { margin: 24px 0 4px }
figure { display: inline-block; vertical-align: top; margin: 6px 12px 6px 0 }
img { border: 1px solid #888; background: white; display: block }
figcaption { color: #444; padding-top: 2px }
</style>
<h1>Every page</h1>
<nav>
<label>Page <select id="name"></select></label>
<label>Screen <select id="screen"></select></label>
<label>Language <select id="language"></select></label>
<span id="count"></span>
</nav>
<main></main>
<script>
const pictures = PICTURES;
const main = document.querySelector("main");
const choosers = ["name", "screen", "language"];
for (const key of choosers) {
  const chooser = document.getElementById(key);
  chooser.append(new Option("all", ""));
  for (const value of [...new Set(pictures.map(p => p[key]))]) chooser.append(new Option(value));
  chooser.onchange = show;
}
document.getElementById("screen").value = pictures.some(p => p.screen == "240x320") ? "240x320" : "";
function show() {
  main.textContent = "";
  const wanted = choosers.map(key => [key, document.getElementById(key).value]);
  const chosen = pictures.filter(p => wanted.every(([key, value]) => !value || p[key] == value));
  document.getElementById("count").textContent = chosen.length + " pictures";
  let heading = "";
  for (const picture of chosen) {
    if (picture.name != heading) {
      heading = picture.name;
      main.append(Object.assign(document.createElement("h2"), {textContent: heading}));
    }
    const figure = document.createElement("figure");
    const image = new Image();
    image.loading = "lazy";
    image.src = picture.file;
    const caption = document.createElement("figcaption");
    caption.textContent = picture.screen + ", " + picture.language;
    figure.append(image, caption);
    main.append(figure);
  }
}
show();
</script>
</html>
"""


def png(bitmap):
    """The bytes of a PNG file with the pixels of a 32-bit bitmap file whose rows run from the bottom up."""
    start, = struct.unpack_from("<I", bitmap, 10)
    width, height = struct.unpack_from("<ii", bitmap, 18)
    rows = bytearray()
    for y in range(height - 1, -1, -1):
        row = bitmap[start + 4 * width * y:start + 4 * width * (y + 1)]
        colors = bytearray(3 * width)
        colors[0::3], colors[1::3], colors[2::3] = row[2::4], row[1::4], row[0::4]
        rows += b"\0" + colors

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) + \
        chunk(b"IDAT", zlib.compress(bytes(rows), 6)) + chunk(b"IEND", b"")


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    folder = pathlib.Path(sys.argv[1])
    pictures = []
    for bitmap in sorted(folder.glob("*/*/*.bmp")):
        picture = bitmap.with_suffix(".png")
        picture.write_bytes(png(bitmap.read_bytes()))
        bitmap.unlink()
        language, screen, _ = picture.relative_to(folder).parts
        pictures.append({"name": picture.stem, "screen": screen, "language": language,
                         "file": html.escape(picture.relative_to(folder).as_posix())})
    if not pictures:
        sys.exit(f"{folder} holds no pictures")
    order = ["en"]
    pictures.sort(key=lambda p: (p["name"], p["language"] not in order, p["language"],
                                 [int(side) for side in p["screen"].split("x")]))
    (folder / "index.html").write_text(PAGE.replace("PICTURES", json.dumps(pictures)), encoding="utf-8")


if __name__ == "__main__":
    main()
