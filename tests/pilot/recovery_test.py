#!/usr/bin/env python3
"""What is left of an edited note when the program dies.   usage: recovery_test.py LUMENOTE"""
import contextlib
import shutil
import unittest

from program import SandboxTest


LEFT = "Note retrouv\u00e9e apr\u00e8s un arr\u00eat"


class Recovery(SandboxTest):
    def setUp(self):
        super().setUp()
        (self.root / "c/n").mkdir(parents=True)

    def copies(self):
        return sorted(path.read_bytes() for path in self.root.glob("state/*/*.note"))

    def edit(self, note, text="x", wait=10000):
        program = self.start()
        program.open(note)
        program.type(text, wait)
        return program

    def test_the_copy_follows_the_note(self):
        for note, text in (("C:\\absent\\a.txt", "un"), ("abc", "")):
            self.edit(note, text, 60000).end()
            self.assertFalse((self.root / "state").exists())  # nothing was loaded, nothing edited
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

    def found(self, program=None):
        """The boxes that the next start, or a program that has started, shows."""
        program = program or self.start()
        program.open("autre")
        boxes = [text.split("\r\n") for text in program.boxes()]
        program.end()
        return boxes

    def test_the_next_start_makes_rescue_copies_and_tells_once(self):
        string = self.edit("\u00e9t\u00e9 ", "un")
        rtf = self.edit("C:\\n\\a.rtf", "deux")
        self.edit("C:\\n\\b.txt", "trois").kill()
        (self.root / "c/n/b.txt").write_bytes(b"trois")  # saved, but not told any more
        for program in (string, rtf):
            program.kill()
        [(cause, title, *paths)] = self.found()
        self.assertEqual((cause, title), (LEFT, "Copie de secours :"))
        self.assertEqual(sorted(paths), ["C:\\Documents\\Secours_TmpFlStr.txt",
                                         "C:\\Documents\\Secours_a.rtf"])
        copies = self.documents()
        self.assertEqual(copies["Secours_TmpFlStr.txt"], "un\u00e9t\u00e9 ".encode("cp1252"))
        self.assertIn(b"deux", copies["Secours_a.rtf"])
        self.assertEqual(self.found(), [])
        self.assertEqual((self.documents(), self.copies()), (copies, []))

    def send_out(self):
        """An editor whose note another program works on, and the work file."""
        program = self.start()
        program.tell('program "C:\\\\Program Files\\\\qjot\\\\qjot.exe"')
        program.open("C:\\n\\a.txt")
        program.do("click Co_Rtf.mnuPopQjot", "tick 1000", "started")
        return program, self.root / "c/Temp/Sava.txt"

    def finds_the_result(self):
        self.assertEqual(self.found(), [[LEFT, "Copie de secours :",
                                         "C:\\Documents\\Secours_Sava.txt"]])
        self.assertEqual(self.documents(), {"Secours_Sava.txt": b"retour"})
        self.assertEqual((self.found(), self.copies()), ([], []))

    def test_what_a_program_saves_for_a_dead_editor_is_found(self):
        program, work = self.send_out()
        program.kill()
        self.assertEqual(self.found(), [])
        program, work = self.send_out()
        program.kill()
        work.write_bytes(b"retour")
        self.finds_the_result()

    def test_a_result_that_finds_no_place_waits_for_another_start(self):
        program, work = self.send_out()
        program.do("click Co_Rtf.mnuPopQuitter", "forms")
        work.write_bytes(b"retour")
        with self.no_place():
            program.do("finish", "forms")
            program.end()
        self.finds_the_result()

    def test_two_starts_at_once_share_what_was_left(self):
        names = [f"C:\\n\\{letter}.txt" for letter in "abcdefgh"]
        dead = [self.edit(name) for name in names]
        living = self.edit("C:\\n\\z.txt", "z")
        for program in dead:
            program.kill()
        starts = [self.start() for _ in range(4)]
        for program in starts:
            program.tell("host pCouleurFen 0", 'host pStrOrchm "x"', "show", "boxes")
        boxes = [box for program in starts for box in program.answer()]
        told = [path for box in boxes for path in box["text"].split("\r\n")[2:]]
        self.assertEqual(sorted(told), [f"C:\\Documents\\Secours_{name[-5:]}" for name in names])
        self.assertEqual(len(self.documents()), len(names))
        self.assertEqual(self.copies(), [b"z"])
        living.kill()

    @contextlib.contextmanager
    def no_place(self):
        """Neither folder of rescue copies can be had."""
        places = [self.root / place for place in ("c/Documents", "state/rescue")]
        for place in places:
            shutil.rmtree(place, ignore_errors=True)
            place.write_text("in the way")
        yield
        for place in places:
            place.unlink()
        places[0].mkdir()

    def test_what_cannot_be_rescued_stays_for_another_start(self):
        self.edit("abc").kill()
        program = self.start()
        program.do("forms")
        with self.no_place():
            self.assertEqual(self.found(program), [])
            self.assertEqual(self.copies(), [b"xabc"])
        self.assertEqual(len(self.found()), 1)


if __name__ == "__main__":
    unittest.main()
