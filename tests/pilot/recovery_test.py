#!/usr/bin/env python3
"""What is left of an edited note when the program dies.   usage: recovery_test.py LUMENOTE"""
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOL = os.path.abspath(sys.argv.pop(1))


class Program:
    """A script that is carried out line by line."""

    def __init__(self, root):
        self.process = subprocess.Popen([TOOL, "pilot", "--root", root], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, text=True, encoding="utf-8")

    def do(self, *lines):
        """The answer to the last line, which has one."""
        self.process.stdin.write("".join(line + "\n" for line in lines))
        self.process.stdin.flush()
        return json.loads(self.process.stdout.readline())

    def open(self, note):
        return self.do("host pCouleurFen \"0\"", "host pStrOrchm " + json.dumps(note), "show",
                       "get Session.Dirty")

    def type(self, text, wait=10000):
        return self.do("type Co_Rtf.Bx_RTF " + json.dumps(text), f"tick {wait}",
                       "get Co_Rtf.Bx_RTF.Text")

    def kill(self):
        self.process.kill()
        self.end()

    def end(self):
        self.process.stdin.close()
        self.process.stdout.close()
        self.process.wait(60)


class Recovery(unittest.TestCase):
    def setUp(self):
        self.temporary = tempfile.TemporaryDirectory()
        self.addCleanup(self.temporary.cleanup)
        self.root = pathlib.Path(self.temporary.name)

    def start(self):
        program = Program(str(self.root))
        self.addCleanup(program.kill)
        return program

    def copies(self):
        return sorted(path.read_bytes() for path in self.root.glob("state/*/*.note"))

    def edit(self, note, text="x", wait=10000):
        program = self.start()
        program.open(note)
        program.type(text, wait)
        return program

    def test_the_copy_follows_the_note(self):
        program = self.edit("C:\\n\\a.txt", "un")
        self.assertEqual(self.copies(), [])  # the file could not be made, nothing was loaded
        program.kill()
        (self.root / "c/n").mkdir()
        program = self.edit("C:\\n\\a.txt", "un", wait=4000)
        self.assertEqual(self.copies(), [])
        program.type("", wait=6000)
        self.assertEqual(self.copies(), [b"un"])
        [copy] = self.root.glob("state/*/*.note")
        self.assertEqual((copy.stat().st_mode & 0o777, copy.parent.stat().st_mode & 0o777),
                         (0o600, 0o700))
        program.type(" deux \u2640")
        self.assertEqual(self.copies(), ["\ufeffun deux \u2640".encode()])
        program.do("click Co_Rtf.mnuPopEnregistrer", "get Session.Dirty")
        self.assertEqual(self.copies(), [])
        program.type(" trois")
        self.assertEqual(len(self.copies()), 1)
        program.do("answer No", "close Co_Rtf", "forms")
        self.assertEqual(self.copies(), [])

    def test_nothing_is_written_of_an_unedited_note(self):
        program = self.edit("abc", "", 60000)
        program.do("click Co_Rtf.mnuPopQuitter", "forms")
        self.assertFalse((self.root / "state").exists())
        program.end()


if __name__ == "__main__":
    unittest.main()
