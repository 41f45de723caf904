#!/usr/bin/env python3
"""Two programs that edit one file.   usage: two_editors_test.py LUMENOTE"""
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOL = os.path.abspath(sys.argv.pop(1))


class Editor:
    """A program of its own; each command is done when `tell` returns."""

    def __init__(self, root):
        self.process = subprocess.Popen([TOOL, "pilot", "--root", root], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE)

    def tell(self, *commands):
        for command in commands:
            self.process.stdin.write(command.encode() + b"\n")
        self.process.stdin.write(b"forms\n")
        self.process.stdin.flush()
        return json.loads(self.process.stdout.readline())

    def boxes(self):
        self.process.stdin.write(b"boxes\n")
        self.process.stdin.flush()
        return [box["text"] for box in json.loads(self.process.stdout.readline())]

    def end(self):
        self.process.stdin.close()
        self.process.stdout.close()
        return self.process.wait(60)


class TwoEditors(unittest.TestCase):
    def setUp(self):
        self.temporary = tempfile.TemporaryDirectory()
        self.root = pathlib.Path(self.temporary.name)
        self.note = self.root / "c" / "n" / "a.txt"
        self.note.parent.mkdir(parents=True)
        self.note.write_bytes(b"avant")
        self.editors = [Editor(self.temporary.name) for _ in range(2)]
        for editor in self.editors:
            editor.tell("host pCouleurFen 0", "host pStrOrchm C:\\n\\a.txt", "show")

    def tearDown(self):
        for editor in self.editors:
            self.assertEqual(editor.end(), 0)
        self.temporary.cleanup()

    def copies(self):
        return sorted(path.read_bytes() for path in (self.root / "c" / "Documents").iterdir())

    def test_the_last_save_keeps_what_the_first_one_wrote(self):
        first, second = self.editors
        for editor, text in ((first, "un "), (second, "deux ")):
            editor.tell(f'type Co_Rtf.Bx_RTF "{text}"')
        first.tell("click Co_Rtf.mnuPopEnregistrer")
        self.assertEqual(first.boxes(), [])
        second.tell("answer Yes", "close Co_Rtf")
        self.assertIn("Fichier modifié par un autre programme\r\nCopie de secours :\r\n"
                      "C:\\Documents\\Secours_a.txt", second.boxes())
        self.assertEqual(self.note.read_bytes(), b"deux avant")
        self.assertEqual(self.copies(), [b"un avant"])
        first.tell('type Co_Rtf.Bx_RTF "trois "', "click Co_Rtf.mnuPopEnregistrer")
        self.assertEqual(len(first.boxes()), 1)
        self.assertEqual(self.note.read_bytes(), b"un trois avant")
        self.assertEqual(self.copies(), [b"deux avant", b"un avant"])

    def test_saves_at_the_same_moment_lose_nothing(self):
        rounds = 40
        for number in range(rounds):
            for editor, name in zip(self.editors, "AB"):
                editor.process.stdin.write(
                    f'type Co_Rtf.Bx_RTF "{name}{number} "\nclick Co_Rtf.mnuPopEnregistrer\n'.encode())
                editor.process.stdin.flush()
        for editor in self.editors:
            editor.tell()
        kept = self.copies() + [self.note.read_bytes()]
        for name in b"A", b"B":
            longest = max((state for state in kept if state.startswith(name)), key=len)
            self.assertIn(b"%s%d " % (name, rounds - 1), longest)


if __name__ == "__main__":
    unittest.main()
