#!/usr/bin/env python3
"""Several programs at work on the same files.   usage: processes_test.py LUMENOTE"""
import unittest

from program import SandboxTest


class Pairs(SandboxTest):
    def test_pairs_stored_at_the_same_time_all_stay(self):
        writers, pairs = 3, 150
        running = [self.start() for _ in range(writers)]
        for writer, program in enumerate(running):
            program.tell(*self.learning(writer, pairs))
        for program in running:
            self.assertEqual(program.end(), 0)
        lines = (self.root / "c/ListCorr.txt").read_bytes().split(b"\r\n")
        wanted = {f"m{writer}=:=m{writer}.{pair}".encode()
                  for writer in range(writers) for pair in range(pairs)}
        self.assertEqual((set(lines), len(lines)), (wanted | {b""}, len(wanted) + 1))

    @staticmethod
    def learning(writer, pairs):
        note = f"C:\\n\\{writer}.rtf"
        yield f'file {note} "{{\\\\rtf1 m{writer}}}"\nhost pChmAppli C:\\a.exe\n'
        yield f"host pCouleurFen 0\nhost pStrOrchm {note}\nshow\nselect Co_Rtf.Bx_RTF 0 2\n"
        for pair in range(pairs):
            yield ("click Co_Rtf.mnuPopOcrApprendre\nselect Co_Apprendre.Bx_Saisircorr 2 0\n"
                   f'type Co_Apprendre.Bx_Saisircorr ".{pair}"\nclick Co_Apprendre.Bt_Enregistrer\n')


class TwoEditors(SandboxTest):
    def setUp(self):
        super().setUp()
        self.note = self.root / "c/n/a.txt"
        self.note.parent.mkdir(parents=True)
        self.note.write_bytes(b"avant")
        self.editors = [self.start(), self.start()]
        for editor in self.editors:
            editor.open("C:\\n\\a.txt")

    def tearDown(self):
        for editor in self.editors:
            self.assertEqual(editor.end(), 0)

    def copies(self):
        return sorted(self.documents().values())

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
                editor.tell(f'type Co_Rtf.Bx_RTF "{name}{number} "', "click Co_Rtf.mnuPopEnregistrer")
        for editor in self.editors:
            editor.do("forms")
        kept = self.copies() + [self.note.read_bytes()]
        for name in b"A", b"B":
            longest = max((state for state in kept if state.startswith(name)), key=len)
            self.assertIn(b"%s%d " % (name, rounds - 1), longest)


if __name__ == "__main__":
    unittest.main()
