#!/usr/bin/env python3
"""Makes a skin from drawings.

usage: make_skin.py SKIN OUTPUT

SKIN is a folder with style.svg, which says what the drawings' classes look like, and, where the skin has
drawings of its own, icons.svg and scroll_bar.svg; without them it takes those of shipped/skins/shapes. OUTPUT is the
skin: an archive when it ends in .zip, else a folder. See docs/skins.md. Needs rsvg-convert.
"""
import pathlib
import re
import sys
import xml.etree.ElementTree as xml
import zipfile

import pictures

ROOT = pathlib.Path(__file__).resolve().parent.parent
SVG = "{http://www.w3.org/2000/svg}"
SCROLL_BAR_PARTS = ["up", "down", "thumb", "track"]
TAB_DRAWINGS = ["today", "task_done", "contact", "note", "message_unread", "birthday"]
# The artwork for screens below 144 dots per inch, and from there on.
SCALES = {1: ("icons.bmp", "scrollbar.bmp"), 2: ("icons_vga.bmp", "scrollbar_vga.bmp")}
# In pixels, on screens of 96, 128 and 192 dots per inch.
TAB_ICON_SIZES = [16, 21, 32]
MAGENTA = (255, 0, 255)


def icon_names():
    """The drawings of the item icon strip, in the program's own order."""
    header = (ROOT / "appearance/skins/item_icons.h").read_text()
    listed = re.search(r"enum class ItemIcon \{(.*?)\};", header, re.DOTALL)[1]
    names = re.findall(r"^\s*k(\w+),", listed, re.MULTILINE)
    return [re.sub(r"(?<=.)([A-Z])", r"_\1", name).lower() for name in names]


def read_drawings(path):
    try:
        return xml.parse(path).getroot()
    except xml.ParseError as error:
        sys.exit(f"{path}: {error}")


class Sheet:
    """The drawings of an SVG file, by name."""

    def __init__(self, skin, name):
        path = skin / name if (skin / name).exists() else ROOT / "shipped/skins/shapes" / name
        root = read_drawings(path)
        self.path = path
        try:
            self.width, self.height = int(root.get("data-width")), int(root.get("data-height"))
        except (TypeError, ValueError):
            sys.exit(f"{path}: data-width and data-height of the <svg> must say how large a drawing is")
        self.drawings = {group.get("id"): group for group in root.findall(f"{SVG}g")}
        self.style = list(read_drawings(skin / "style.svg"))

    def render(self, names, scale, gap):
        """The drawings one above the other, `gap` rows apart: rows of (red, green, blue, opacity), and
        the height of each drawing."""
        heights, y = [], 0
        picture = xml.Element(f"{SVG}svg")
        picture.extend(self.style)
        for name in names:
            if name not in self.drawings:
                sys.exit(f"{self.path} has no drawing \"{name}\"")
            drawing = self.drawings[name]
            height = int(drawing.get("data-height", self.height))
            shown_height = round(height * scale)
            cell = xml.SubElement(picture, f"{SVG}svg", x="0", y=str(y), width=str(round(self.width * scale)),
                                  height=str(shown_height), viewBox=f"0 0 {self.width} {height}")
            xml.SubElement(cell, f"{SVG}g").extend(drawing)
            heights.append(shown_height)
            y += shown_height + gap
        picture.set("width", str(round(self.width * scale)))
        picture.set("height", str(y))
        return pictures.render(xml.tostring(picture)), heights


def strip(sheet, names, scale):
    """Colours at the left, opacity at the right, and a magenta row behind each piece."""
    rows, heights = sheet.render(names, scale, 1)
    result, y = [], 0
    for height in heights:
        for row in rows[y:y + height]:
            colors = [pixel[:3] if pixel[3] else (255, 255, 255) for pixel in row]
            result.append(colors + [(pixel[3],) * 3 for pixel in row])
        result.append([MAGENTA] * (2 * len(rows[0])))
        y += height + 1
    return pictures.bitmap(result)


def tab_icons(sheet, size):
    """Squares side by side; magenta is transparent."""
    rows, _ = sheet.render(TAB_DRAWINGS, size / sheet.width, 0)
    squares = [rows[i * size:(i + 1) * size] for i in range(len(TAB_DRAWINGS))]
    return pictures.bitmap([[pixel[:3] if pixel[3] >= 128 else MAGENTA for square in squares for pixel in square[y]]
                   for y in range(size)])


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    skin, output = map(pathlib.Path, sys.argv[1:])
    icons, scroll_bar = Sheet(skin, "icons.svg"), Sheet(skin, "scroll_bar.svg")
    files = {}
    for scale, (icon_file, scroll_bar_file) in SCALES.items():
        files[icon_file] = strip(icons, icon_names(), scale)
        files[scroll_bar_file] = strip(scroll_bar, SCROLL_BAR_PARTS, scale)
    for size in TAB_ICON_SIZES:
        files[f"tab_icons_{size}.bmp"] = tab_icons(icons, size)
    if output.suffix != ".zip":
        output.mkdir(parents=True, exist_ok=True)
        for name, data in files.items():
            (output / name).write_bytes(data)
        return
    output.parent.mkdir(parents=True, exist_ok=True)
    with zipfile.ZipFile(output, "w", zipfile.ZIP_DEFLATED) as archive:
        for name, data in files.items():  # Without the time, so that the same skin is the same file.
            member = zipfile.ZipInfo(name)
            member.compress_type = zipfile.ZIP_DEFLATED
            archive.writestr(member, data)


if __name__ == "__main__":
    try:
        main()
    except OSError as error:
        sys.exit(f"{error.filename}: {error.strerror}")
