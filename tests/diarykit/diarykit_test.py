#!/usr/bin/env python3
"""Runs diarykit on files made here, sound and broken ones, and compares what it says and does.

usage: diarykit_test.py COMMAND...    the tool, natively or through Wine
"""
import os
import subprocess
import sys
import tempfile
import unittest

TOOL = []


def utf16(text):
    return b"\xff\xfe" + text.encode("utf-16-le", "surrogatepass")


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


class LanguagePseudo(KitTest):
    def test_texts_are_longer_and_keep_what_is_filled_in(self):
        template = "$$$$$$$$ NEW FILE $$$$$$$\r\nVersion|\r\n%s: &Add %d%% to %1|\r\n8|\r\nA\\nB\\\\\\|cdefghijk|x\r\n"
        expected = ("$$$$$$$$ NEW FILE $$$$$$$|\r\nVersion|[Véršîöňé]\r\n%s: &Add %d%% to %1|[%s: &Aďď %d%% ťö %1 éöûäý]\r\n"
                    "8|\r\nA\\nB\\\\\\|cdefghijk|[Ä\\nB\\\\\\|čďéfğhîjk éöû]\r\n")
        self.assertEqual(self.run_kit("language", "pseudo", self.put("t", utf16(template))), (0, utf16(expected)))
        long = "x" * 2000
        self.assertEqual(self.run_kit("language", "pseudo", self.put("t", utf16(long + "|\n"))),
                         (0, utf16(long + "|\r\n")))
        self.assertEqual(self.run_kit("language", "pseudo", self.put("t", b"Version|\r\n"))[0], 2)


if __name__ == "__main__":
    TOOL = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
