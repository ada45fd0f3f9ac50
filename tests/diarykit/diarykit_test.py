#!/usr/bin/env python3
"""Runs diarykit on files made here, sound and broken ones, and compares what it says and does.

usage: diarykit_test.py COMMAND...    the tool, natively or through Wine

DIARY_LIBRARY names the program's DiaryRes.Dll where that is built.
"""
import base64
import hashlib
import json
import os
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
import zipfile
import zlib

TOOL = []
LIBRARY = os.environ.get("DIARY_LIBRARY")


def utf16(text):
    return b"\xff\xfe" + text.encode("utf-16-le", "surrogatepass")


PRODUCT = "\\Software\\Lum Software House\\Lum Diary"


def counted(text):
    data = text.encode("utf-16-le")
    return struct.pack("<I", len(data)) + data


def value(name, data):
    """A record: of a number, a text, or bytes."""
    kind = {int: 4, str: 1, bytes: 3}[type(data)]
    stored = {int: lambda: struct.pack("<I", data), str: lambda: counted(data),
              bytes: lambda: struct.pack("<I", len(data)) + data if data else b""}[type(data)]()
    return struct.pack("<I", 4) + counted(name) + struct.pack("<I", kind) + stored


def key(name, *records):
    return struct.pack("<I", 2) + counted(name) + b"".join(records) + struct.pack("<I", 3)


def dias(*records, root=0x80000002, path=PRODUCT):
    return struct.pack("<II", 0, root) + counted(path) + key("", *records) + struct.pack("<I", 1)


class KitTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def put(self, name, data):
        with open(os.path.join(self.folder, name), "wb") as file:
            file.write(data)
        return name

    def get(self, name):
        with open(os.path.join(self.folder, name), "rb") as file:
            return file.read()

    def run_kit(self, *arguments):
        """The exit code and the bytes of the output."""
        result = self.run_once(*arguments)
        # Beside other tests Wine has once answered 1 without a word where it should have started the tool. What
        # the tool itself answers, it answers again.
        return self.run_once(*arguments) if "wine" in TOOL[0] and result == (1, b"") else result

    def run_once(self, *arguments):
        # Not a pipe, which Wine's services would keep open.
        with tempfile.TemporaryFile() as output:
            code = subprocess.run([*TOOL, *arguments], cwd=self.folder, stdout=output, stderr=subprocess.DEVNULL,
                                  timeout=60).returncode
            output.seek(0)
            return code, output.read()

    def check(self, code, lines, *arguments):
        self.assertEqual((code, lines), (lambda done: (done[0], done[1].decode().splitlines()))(
            self.run_kit(*arguments)), arguments)


class Use(KitTest):
    def test_wrong_use_is_two_and_help_is_fine(self):
        for code, *arguments in ((2,), (2, "language"), (2, "sing"), (2, "language", "pseudo"),
                                 (2, "language", "pseudo", "none.txt"), (2, "language", "pseudo", "."),
                                 (0, "--help"), (0, "language", "pseudo", "--help")):
            self.assertEqual(self.run_kit(*arguments)[0], code, arguments)

    def test_names_may_have_any_letters(self):
        name = self.put("přehled Ωψ.txt", utf16("Up|\r\n"))
        self.assertEqual(self.run_kit("language", "pseudo", name, "-o", "из.txt")[0], 0)
        self.assertEqual(self.get("из.txt"), utf16("Up|[Ûp]\r\n"))


FULL = "HKEY_LOCAL_MACHINE" + PRODUCT


class Settings(KitTest):
    EVERYTHING = (value("CalendarPeriod", 7), value("App_SubjectStyle", 3), value("SkinName", "Ω \"a\\b\"\n𝄞"),
                  key("Filters", value("HiddenFolders", "")), key("Layouts", value("Mine", "labc(abc)")),
                  key("MailFilters", value("none", b""), value("", bytes(range(60)))))

    def test_show_tells_what_is_known(self):
        self.put("a.dias", dias(*self.EVERYTHING, value("Mystery", b"\x01\xfe")))
        self.check(0, [
            FULL,
            '  CalendarPeriod = 7  ["7"; "Days shown"; on calendar_common; default 7]',
            '  App_SubjectStyle = 3  ["Before the subject"; "Time"; on calendar_titles; default 3]',
            '  SkinName = "Ω "a\\b"\\n𝄞"  ["Skin"; on general_skins; default "NewStyle"]',
            "  Mystery = 2 bytes 01 FE",
            FULL + "\\Filters", '  HiddenFolders = ""  ["Folders to show"; on notes_filter; default ""]',
            FULL + "\\Layouts", '  Mine = "labc(abc)"',
            FULL + "\\MailFilters", "  none = 0 bytes",
            "   = 60 bytes " + " ".join(f"{byte:02X}" for byte in range(60)),
        ], "settings", "show", "a.dias")
        self.put("cut.dias", dias(*self.EVERYTHING)[:200])
        code, text = self.run_kit("settings", "show", "--json", "cut.dias")
        shown = json.loads(text)
        self.assertEqual((code, shown["whole"], shown["values"][0]), (1, False, {
            "key": FULL, "name": "CalendarPeriod", "type": "number", "value": 7, "default": "7",
            "pages": ["calendar_common"], "label": "Days shown", "shown": "7"}))

    def test_check_finds_what_is_odd(self):
        sound = dias(*self.EVERYTHING[:-1], value("Notes_layouts", "Latin"), value("calendarperiod", 90))
        elsewhere = "writes outside the diary's own key: "
        for data, *findings in (
                (sound,), (dias(key("Lum Diary", value("OneClick", 0)), path="Software\\Lum Software House"),),
                (sound[:-4], "cannot be read to its end"), (b"", "cannot be read to its end"),
                (dias(value("x", 1), path="\\Software"), elsewhere + "HKEY_LOCAL_MACHINE\\Software with 1 values"),
                (dias(key("Run"), root=0x80000001),
                 elsewhere + "HKEY_CURRENT_USER" + PRODUCT + " with 0 values",
                 elsewhere + "HKEY_CURRENT_USER" + PRODUCT + "\\Run with 0 values"),
                (dias(value("Odd", 1), key("Old", value("a", 1))),
                 "the program has no value Odd", 'the program has no key "Old"'),
                (dias(value("OneClick", 9), value("AllTabsInShell", 2), value("CalendarPeriod", "7")),
                 "OneClick is 9, which the list on its page does not have (page general_group_style)",
                 "AllTabsInShell is 2, but stands for a check box, which stores 0 or 1 (page general_tabs)",
                 "CalendarPeriod is of the type text, not number"),
                (dias(key("Layouts", value("Bad", "labc()")), key("MailFilters", value("Bad", b"\1")),
                      key("IconSets", value("6", "x")), key("Colors", value("Work", ""))),
                 'Layouts\\Bad is no keyboard layout: "labc()"', "MailFilters\\Bad is no filter of mail folders",
                 "the program has no value IconSets\\6", "Colors\\Work is of the type text, not number")):
            self.put("a.dias", data)
            self.check(1 if findings else 0, ["a.dias: " + finding for finding in findings], "settings", "check", "a.dias")

    def test_diff_compares_whatever_the_order(self):
        self.put("a", dias(value("A", 1), value("B", "x"), key("K", value("C", b"\1"))))
        self.put("b", dias(key("k", value("c", b"\1")), value("b", 5), value("D", 0), value("a", 1)))
        self.check(1, [f'-{FULL}\\B = "x"', f"+{FULL}\\B = 5", f"+{FULL}\\D = 0"], "settings", "diff", "a", "b")
        self.check(0, [], "settings", "diff", "a", "a")

    def test_reg_files_carry_everything_both_ways(self):
        self.put("a.dias", dias(*self.EVERYTHING))
        device = "HKEY_CURRENT_USER\\Software\\PocketPC Devices\\Default"
        for under in ([], ["--under", device]):
            self.assertEqual(self.run_kit("settings", "to-reg", "a.dias", "-o", "a.reg", *under)[0], 0)
            self.assertEqual(self.run_kit("settings", "from-reg", "a.reg", *under), (0, self.get("a.dias")))
        self.assertEqual(self.run_kit("settings", "from-reg", "a.reg")[1][4:8], b"\1\0\0\x80")
        text = self.get("a.reg").decode("utf-16")
        for part in ("Windows Registry Editor Version 5.00\r\n\r\n[" + device + "\\" + FULL + "]\r\n",
                     '"CalendarPeriod"=dword:00000007\r\n', '"none"=hex:\r\n', "@=hex:00,01", ",17,\\\r\n  18,",
                     '"SkinName"=hex(1):a9,03,20,00'):
            self.assertIn(part, text)

    def test_reg_files_of_others(self):
        head = "Windows Registry Editor Version 5.00\r\n"
        self.put("a.reg", ("REGEDIT4\n; a comment\n[HKEY_LOCAL_MACHINE\\A\\B\\D]\n \"n\" = dword:Ff\n"
                           "[hkey_local_machine\\a\\C]\n\"é\\\"\"=hex(3):0a,\\ \n b\n\"t\"=\"x\ny\"\n").encode())
        self.assertEqual(self.run_kit("settings", "from-reg", "a.reg"), (0, dias(
            key("B", key("D", value("n", 255))), key("C", value('é"', b"\x0a\x0b"), value("t", "x\ny")), path="\\A")))
        deepest = "REGEDIT4\n[HKEY_USERS\\z]\n[HKEY_USERS" + "\\d" * 64
        self.put("a.reg", (deepest + "]\n").encode())
        self.assertEqual(self.run_kit("settings", "from-reg", "a.reg", "-o", "a.dias")[0], 0)
        self.assertEqual(self.run_kit("settings", "to-reg", "a.dias", "-o", "b.reg")[0], 0)
        self.put("a.reg", (deepest + "\\d]\n").encode())
        self.check(1, ["a.reg:3: deeper than a registry nests keys"], "settings", "from-reg", "a.reg")
        for text, line, fault in (
                ("[x]\n", 1, 'does not begin with "Windows Registry Editor Version 5.00"'),
                (head, 2, "names no key"), (head + '"a"="b"\n', 2, "stands before the first key"),
                (head + "[HKLM\\x]\n", 2, "does not begin with the name of a root key"),
                (head + "[HKEY_USERS\\x\n", 2, "a key's name ends with ]"),
                (head + "[-HKEY_USERS\\x]\n", 2, "a settings file cannot delete keys"),
                (head + "[HKEY_USERS]\n[HKEY_CURRENT_USER]\n", 3, "a settings file has one root key"),
                (head + '[HKEY_USERS]\n"a"=-\n', 3, "a settings file cannot delete values"),
                (head + '[HKEY_USERS]\n"a"=hex(7):00,00\n', 3, "a settings file cannot hold this type"),
                (head + '[HKEY_USERS]\n"a"=hex:0,100\n', 3, "hex: wants bytes of two digits, with commas between"),
                (head + '[HKEY_USERS]\n"a"=dword:\n', 3, "dword: wants up to eight digits"),
                (head + '[HKEY_USERS]\n"a\n', 3, "a name without an end")):
            self.put("a.reg", text.encode())
            self.check(1, [f"a.reg:{line}: {fault}"], "settings", "from-reg", "a.reg")
        self.put("a.dias", dias(root=7))
        self.check(1, ["a.dias: has keys whose names a .reg file cannot hold"], "settings", "to-reg", "a.dias")


class Language(KitTest):
    TEMPLATE = utf16("$$$$$$$$ NEW FILE $$$$$$$\r\nUp|\r\n8|\r\n%s has no %s|\r\nA\\nB|\r\nC\\|D|\r\n")

    def test_check_says_line_by_line_what_is_wrong(self):
        self.put("t", self.TEMPLATE)
        good = "Up|Auf\r\n8|\r\n%s has no %s|In %s fehlt %s\r\nA\\nB|a\\nb\r\nC\\|D|c\\|d\r\n"
        differ = " and its translation differ in what begins with % or in \\n"
        for text, *findings in (
                (good,), (good + "$$$$$$$$ GONE $$$$$$$|\r\nOld|Alt\r\n",),
                (good.replace("Auf", ""), ':1: "Up" has no translation'),
                (good.replace("Auf", "Auf|x"), ":1: more than one bar; a bar in a text is written \\|"),
                (good + "Up|Hoch\nOld|Alt\n", ':6: "Up" stands in line 1 already, which counts',
                 ':7: the program has no text "Old"'),
                (good.replace("In %s fehlt %s", "%s%d"), ':3: "%s has no %s"' + differ),
                (good.replace("a\\nb", "ab"), ':4: "A\\nB"' + differ),
                (good.replace("Auf", "A" * 4100), ":1: longer than 4094 characters"),
                (good.replace("Up|Auf\r\n", ""), ': "Up" is missing')):
            self.put("de", utf16(text))
            self.check(1 if findings else 0, ["de" + finding for finding in findings] +
                       [f"4 texts, {len(findings)} wrong"], "language", "check", "t", "de")
        self.put("de", good.encode())
        self.check(1, ["de: not UTF-16 with a byte-order mark", "4 texts, 1 wrong"], "language", "check", "t", "de")
        self.put("de", utf16(good) + b"\0\0x\0")
        self.check(1, ["de: a NUL ends it early; what follows is not read", "4 texts, 1 wrong"],
                   "language", "check", "t", "de")
        self.assertEqual(self.run_kit("language", "check", "t", "t")[0], 1)
        self.assertEqual(self.run_kit("language", "check", self.put("e", utf16("8|\n")), "t")[0], 2)

    def test_update_keeps_adds_and_marks(self):
        self.put("t", self.TEMPLATE)
        self.put("de", utf16("Up|Auf\r\nOld|Alt\r\nC\\|D|c\\|d|\r\nUp|Hoch\r\nNever|\r\n8|\r\n"))
        updated = utf16("Up|Auf\r\n8|\r\n%s has no %s|\r\nA\\nB|\r\nC\\|D|c\\|d\r\n"
                        "$$$$$$$$ GONE $$$$$$$|\r\nOld|Alt\r\n")
        self.assertEqual(self.run_kit("language", "update", "de", "t"), (0, updated))
        self.assertEqual(self.run_kit("language", "update", self.put("n", updated), "t"), (0, updated))
        self.put("t", utf16("Old|\r\n"))
        self.assertEqual(self.run_kit("language", "update", "n", "t")[1].decode("utf-16").splitlines()[0], "Old|Alt")

    @unittest.skipUnless(LIBRARY, "needs DiaryRes.Dll")
    def test_check_knows_where_texts_are_shown_and_what_fits(self):
        texts = ("Overdue tasks", "Move up", "Tap:", "Week of January 1", "On due date", "About", "Export...",
                 "Sets up the diary on your Today screen: what its tabs show, and how they look.")
        self.put("t", utf16("".join(text + "|\r\n" for text in texts)))

        def checked(*translations):
            self.put("l", utf16("".join(f"{a}|{b}\r\n" for a, b in zip(texts, translations))))
            return self.run_kit("language", "check", "--library", LIBRARY, "t", "l")[1].decode().splitlines()

        self.assertEqual(checked(*texts), ["8 texts, 0 wrong"])
        found = checked("i" * 70, "M" * 8, "Double-clic:", "Semaine du premier janvier", "À l’échéance de la tâche", "M" * 99,
                        "M" * 99, "mot " * 45)
        places = ("check box on page calendar_tasks", "button on page general_tabs", "label on page messages_common",
                  "list entry on page calendar_common", "list entry on page calendar_tasks")
        self.assertEqual(len(found), 7)
        for number, (line, place) in enumerate(zip(found, places), 1):
            self.assertRegex(line, rf"^l:{number}: .* does not fit its {place}, by \d+ pixels? at (96|192) dpi$")
        self.assertRegex(found[5], r"^l:8: .* does not fit its label on dialog \"About\", by 17 pixels at 96")
        shown = 'l:1: "Overdue tasks": check box on page calendar_tasks'
        self.check(0, [shown, shown + " on wide screens"], "language", "check", "--library", LIBRARY,
                   "t", "l", "--line", "1")
        self.assertEqual(self.run_kit("language", "check", "--library", "t", "t", "l")[0], 2)


class LanguagePseudo(KitTest):
    def test_texts_are_longer_and_keep_what_is_filled_in(self):
        template = "$$$$$$$$ NEW FILE $$$$$$$\r\nVersion|\r\n%s: &Add %d%% to %1|\r\n&%d|\r\n8|\r\nA\\nB\\\\\\|cdefghijk|x\r\n"
        expected = ("$$$$$$$$ NEW FILE $$$$$$$|\r\nVersion|[Véršîöňé]\r\n%s: &Add %d%% to %1|[%s: &Aďď %d%% ťö %1 éöûäý]\r\n"
                    "&%d|[&%d]\r\n"
                    "8|\r\nA\\nB\\\\\\|cdefghijk|[Ä\\nB\\\\\\|čďéfğhîjk éöû]\r\n")
        self.assertEqual(self.run_kit("language", "pseudo", self.put("t", utf16(template))), (0, utf16(expected)))
        long = "x" * 2000
        self.assertEqual(self.run_kit("language", "pseudo", self.put("t", utf16(long + "|\n"))),
                         (0, utf16(long + "|\r\n")))
        self.assertEqual(self.run_kit("language", "pseudo", self.put("t", b"Version|\r\n"))[0], 2)


def bitmap(width, height, pixel, bits=24):
    """A bitmap file; `pixel` gives the colour of each place, from the top, as blue, green, red."""
    rows = b"".join(b"".join(bytes(pixel(x, y)) for x in range(width)).ljust(-(-width * bits // 32) * 4, b"\0")
                    for y in reversed(range(height)))
    return struct.pack("<2sIIIIiiHHIIIIII", b"BM", 54 + len(rows), 0, 54, 40, width, height, 1, bits, 0, 0, 0, 0, 0, 0) + rows


def strip(pieces, size):
    """Pieces of a size, the left half of each column 0 opaque and blue, the rest see-through."""
    def pixel(x, y):
        if y % (size + 1) == size:
            return 255, 0, 255
        return (250, 0, 0) if x < size else (255,) * 3 if x == size else (0,) * 3
    return bitmap(2 * size, pieces * (size + 1), pixel)


class Artwork(KitTest):
    FILES = {"icons.bmp": strip(40, 3), "scrollbar.bmp": strip(4, 2),
             "tab_icons_16.bmp": bitmap(96, 16, lambda x, y: (255, 0, 255) if x < 16 else (0, 0, 9))}
    SIZES = ["  icons.bmp: 40 of 3 x 3", "  scrollbar.bmp: 4 of 2 x 2", "  tab_icons_16.bmp: 6 of 16 x 16"]

    def skin(self, changes):
        """The skin as an archive and as a folder."""
        files = {name: data for name, data in {**self.FILES, **changes}.items() if data is not None}
        with zipfile.ZipFile(os.path.join(self.folder, "a.zip"), "w", zipfile.ZIP_DEFLATED) as archive:
            for name, data in files.items():
                archive.writestr(name, data)
        shutil.rmtree(os.path.join(self.folder, "a"), ignore_errors=True)
        os.mkdir(os.path.join(self.folder, "a"))
        for name, data in files.items():
            self.put(f"a/{name}", data)
        return "a.zip", "a"

    def test_skin_check_tells_what_the_program_does(self):
        refused = "screens of 96 dpi: not taken, the skin there was before stays"
        for changes, first, gone, *faults in (
                ({}, "screens of 96 dpi: taken", None),
                ({"scrollbar.bmp": None}, refused, 1, "scrollbar.bmp (96 dpi): missing"),
                ({"icons.bmp": b"BM" * 60}, refused, 0, "icons.bmp (96 dpi): no whole, uncompressed 24-bit bitmap"),
                ({"tab_icons_16.bmp": bitmap(95, 16, lambda x, y: (0, 0, 0))}, refused, 2,
                 "tab_icons_16.bmp (96 dpi): 5 pieces, at least 6 are needed"),
                ({"icons.bmp": strip(39, 3)}, refused, 0, "icons.bmp (96 dpi): 39 pieces, at least 40 are needed"),
                ({"scrollbar.bmp": bitmap(2, 5, lambda x, y: (255, 0, 255))}, "screens of 96 dpi: taken", 1,
                 *(f"scrollbar.bmp (96 dpi): piece {n}, is empty".replace(",", f", {part},", 1) for n, part in
                   enumerate(("button up", "button down", "thumb", "track"), 1)))):
            for path in self.skin(changes):
                code, text = self.run_kit("skin", "check", "--dpi", "96", path)
                lines = text.decode().splitlines()
                sizes = [line for i, line in enumerate(self.SIZES) if i != gone]
                self.assertEqual((code, lines[0], [line for line in lines if line in self.SIZES],
                                  [line for line in lines if line.startswith(path)]),
                                 (1 if faults else 0, first, sizes, [f"{path}: {fault}" for fault in faults]))
        report = json.loads(self.run_kit("skin", "check", "--json", "a")[1])
        self.assertEqual([(screen["dpi"], screen["taken"]) for screen in report], [(96, True), (192, False)])
        self.assertEqual(self.run_kit("skin", "check", self.put("x.zip", b"PK"))[0], 2)

    def test_skin_sheet_holds_every_piece_as_it_is_drawn(self):
        for path in self.skin({}):
            self.assertEqual(self.run_kit("skin", "sheet", path, "s.html")[0], 0)
            page = self.get("s.html").decode()
            self.assertNotRegex(page.replace("data:image/png;base64,", ""), r"src=\"(?!i)|https?:|url\(")
            self.assertEqual(page.count("<figure>"), 50)
            for caption in ("1 appointment", "40 collapsed group", "4 track", "6 special events"):
                self.assertEqual(page.count(f"<figcaption>{caption}</figcaption>"), 1)
            pictures = [base64.b64decode(data) for data in re.findall(r"base64,([^\"]+)", page)]
            self.assertEqual(len(pictures), 100)
            pixels = zlib.decompress(pictures[0][41:-16])
            self.assertEqual((pictures[0][16:24], pixels),
                             (struct.pack(">II", 3, 3), (b"\0\0\0\xfa\xff" + b"\0\0\xfa\0" * 2) * 3))
            # The first tab icon is all magenta, the second is not.
            self.assertEqual([zlib.decompress(pictures[i][41:-16])[4] for i in (88, 90)], [0, 255])

    def test_icons_are_measured_and_grouped(self):
        sound = bitmap(15, 15, lambda x, y: (x, y, 0))
        digests = hashlib.md5(sound).digest() + hashlib.md5(b"x").digest()
        catalogue = struct.pack("<i", 2) + "Work".encode("utf-16-le") + b"\0" * 4 + "Öl".encode("utf-16-le") + b"\0" * 4
        catalogue += struct.pack("<i", 0) + struct.pack("<i", 2) + digests
        self.put("icons.dat", catalogue)
        self.check(0, ["Work (0)", "Öl (2)"], "icons", "list", "icons.dat")
        self.check(1, ["cut: cut or contradicts itself, so that the program has no groups"],
                   "icons", "list", self.put("cut", catalogue[:-1]))
        os.mkdir(os.path.join(self.folder, "i"))
        self.put("i/a.bmp", sound)
        self.put("i/b.BMP", bitmap(30, 30, lambda x, y: (1, 1, 1)))
        self.put("i/.c.bmp", b"")
        self.put("i/note.txt", b"")
        icons = [f"i{os.sep}a.bmp: 15 x 15, Öl", f"i{os.sep}b.BMP: 30 x 30, Other Icons"]

        def checked(*arguments):
            code, text = self.run_kit("icons", "check", "i", *arguments)
            return code, [line.replace("\\", os.sep) for line in text.decode().splitlines()]
        self.assertEqual(checked("icons.dat"), (0, icons))
        self.put("i/d.bmp", sound[:-1])
        self.put("i/e.bmp", bitmap(31, 2, lambda x, y: (1, 1, 1)))
        masks = struct.pack("<III", 0x7C00, 0x3E0, 0x3F)
        self.put("i/f.bmp", struct.pack("<2sIIIIiiHHI", b"BM", 70, 0, 66, 40, 1, 1, 1, 16, 3) + bytes(20) + masks + bytes(4))
        self.assertEqual(checked("icons.dat"), (1, icons + [
            f"i{os.sep}d.bmp: no whole, uncompressed bitmap; it is passed over",
            f"i{os.sep}e.bmp: 31 x 2 pixels, more than 30; it is passed over on screens of 96 dpi",
            f"i{os.sep}f.bmp: its color masks are empty, overlap or have gaps; it is passed over"]))
        self.assertEqual(checked("--dpi", "192")[1][2], f"i{os.sep}e.bmp: 31 x 2, Other Icons")
        self.assertEqual(self.run_kit("icons", "check", "icons.dat")[0], 2)

    def test_layouts_are_read_line_by_line(self):
        self.put("l", "# mine\r\nMine=labc(abcà) dé(dé)\r\n\nIvrit=rש(ש)\n".encode())
        self.check(0, ["Mine: abc dé", "Ivrit, right to left: ש"], "layout", "check", "l")
        self.put("l", utf16("A=labc (abc)\nB=labc()\nC\nD,=l" + "a(a)" * 32 + "\nE="))
        length = "empty, or longer than 127 characters"
        self.check(1, ["l:1: a space elsewhere than behind a )", 'l:2: a group that is not "letters(matches)"',
                       'l:3: no line "name=layout"', "l:4: a name that is empty or has a comma", "l:4: " + length,
                       "l:5: " + length], "layout", "check", "l")


if __name__ == "__main__":
    TOOL = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
