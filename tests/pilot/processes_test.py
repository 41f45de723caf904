#!/usr/bin/env python3
"""Several programs at work on the same files.   usage: processes_test.py LUMENOTE"""
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOL = sys.argv.pop(1)


class Processes(unittest.TestCase):
    def test_pairs_stored_at_the_same_time_all_stay(self):
        writers, pairs = 3, 150
        with tempfile.TemporaryDirectory() as root:
            running = [self.start(root, self.learning(writer, pairs)) for writer in range(writers)]
            for process in running:
                self.assertEqual(process.wait(60), 0)
            lines = pathlib.Path(root, "c", "ListCorr.txt").read_bytes().split(b"\r\n")
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

    @staticmethod
    def start(root, script):
        process = subprocess.Popen([TOOL, "pilot", "--root", root], stdin=subprocess.PIPE,
                                   stdout=subprocess.DEVNULL)
        process.stdin.write("".join(script).encode())
        process.stdin.close()
        return process


if __name__ == "__main__":
    unittest.main()
