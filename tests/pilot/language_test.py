#!/usr/bin/env python3
"""The script language itself: what lines print, what a run returns.

usage: language_test.py LUMENOTE
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

TOOL = sys.argv.pop(1)
OPEN = 'host pCouleurFen 0\nhost pStrOrchm "abc"\n'


def run(script, *options):
    """Standard output's lines, exit status, standard error."""
    done = subprocess.run([TOOL, "pilot", *options], capture_output=True, timeout=60,
                          input=script.encode(errors="surrogateescape"))
    return done.stdout.decode().splitlines(), done.returncode, done.stderr.decode()


class Language(unittest.TestCase):
    def lines(self, script, *wanted, status=0):
        out, code, err = run(script)
        self.assertEqual((out, code), (list(wanted), status), err)

    def test_arguments(self):
        for source, answer in [
            ("mot", '"mot"'), ('"deux mots"', '"deux mots"'), ("a#b", '"a#b"'),
            ('"a # b"  # comment', '"a # b"'), ("a\t# comment", '"a"'), ("12.50", '"12.50"'),
            (r'"\u00e9\r\n\"\\"', r'"é\r\n\"\\"'), ("C:\\x\\y", r'"C:\\x\\y"'), ("été", '"été"'),
            (r'"\ud83d\ude00\ud800"', r'"😀\ud800"'),
        ]:
            self.lines("host pStrOrchm " + source + "\nhost pStrOrchm\n", answer)
        self.lines("\ufeff# comment\n\n  \t\n   clip   \r\n", '{"text":null,"rtf":null}')
        self.lines("")

    def test_not_understood(self):
        wrong = ["foo", "get", "get Co_Rtf", "get Nulle.Caption", "get Session.Rien", "clip a b", "clip 5",
                 "host pRien x", "host pNomAppli", 'host pNomAppli "a', 'host pNomAppli "a"b',
                 "host pNomAppli null", "show 1.5", "show 9999999999", "tick -1", "answer",
                 "answer Cancel", "set Session.Note x", "expect", "expect {", "expect 1 2", "expect mot",
                 "expect-like (", "expect-kept rien", "readonly C:\\x oui", "mouse Co_Rtf.Bx_RTF up 3 0 0",
                 "mouse Co_Rtf.Bx_RTF up 1 x 0", "key Co_Rtf.Bx_RTF Rien", "select Co_Rtf.Bx_RTF -1 0",
                 'file C:\\x "\u0416"', "screen-fonts Arial", "bytes C:\\x 0", "bytes C:\\x 0g",
                 "link C:\\x C:\\y soft", "printer-fonts -1", "printer-fonts", "resize Co_Rtf -1 0",
                 "resize Co_Rtf 1e300 0", "get Co_Rtf.Rien.Text", "get Co_Rtf.Bx_RTF.Rien",
                 "get Co_Rtf.Bx_RTF(1).Text", "get Co_Rtf.Caption x", "set Co_Rtf.Bx_RTF.CanUndo true",
                 "click Co_Rtf.Timer1", "type Co_Rtf.Lb_Format x", "select Co_Rtf.Fr_Notes 0 1",
                 "open Co_Rtf.Bx_RTF", "close Co_Rtf.Bx_RTF", "get Co_Rtf.Bar_Etat.Panels(x)",
                 "get Co_Rtf.Bar_Etat.Panels(99999999999)", 'clip "\udcff"', "\udcff"]
        out, code, _ = run(OPEN + "show\n" + "\n".join(wrong) + "\n")
        self.assertEqual((len(out), code), (len(wrong), 2))
        for line, answer in zip(wrong, out):
            self.assertTrue(answer.startswith('{"error":"pilot","description":"'), (line, answer))

    def test_what_is_understood_but_cannot_be_done(self):
        missing, disabled = ('{"error":"pilot","description":"%s"}' % what
                             for what in ("not loaded", "disabled"))
        self.lines("click Co_Rtf.mnuPopCut\nget Co_Symbols.Columns\n", missing, missing)
        self.lines(OPEN + "show\nset Co_Rtf.Bx_RTF.Enabled false\ntype Co_Rtf.Bx_RTF x\n"
                   "set Co_Rtf.Bx_RTF.Enabled true\nset Co_Rtf.Fr_Notes.Visible false\n"
                   "click Co_Rtf.Bx_RTF\nget Co_Rtf.Bx_RTF.Text\n", disabled, disabled, '"abc"')

    def test_expectations(self):
        clip = '{"text":"a","rtf":null}'
        self.lines('clip "a"\nclip\nexpect {"rtf":null,"text":"a"}\nexpect-has {"text":"a"}\n'
                   'expect-like ^."text":"."\nkeep k\nclip\nexpect-kept k\n', clip, clip,
                   "4 passed, 0 failed")
        wrong = ['expect {"text":"a"}', 'expect-has {"text":null}', 'expect-has {"x":null}',
                 "expect-like ^b", "expect-has []", "expect 1"]
        out, code, err = run('clip "a"\nclip\n' + "  \n".join(wrong) + "\ntick 1\nexpect null\n")
        self.assertEqual((out, code), ([clip, "0 passed, 7 failed"], 1))
        for number, line in enumerate(wrong, 3):
            self.assertIn(f"line {number}: {line}", err)
        self.assertIn(clip, err)
        self.lines("host pStrOrchm 1e2\nhost pStrOrchm\nexpect 100\nfoo\n", '"1e2"',
                   '{"error":"pilot","description":"unknown verb foo"}', "0 passed, 1 failed", status=2)
        self.lines(OPEN + 'show\nforms\nexpect-has [{"visible":true}]\nexpect-has [{},{}]\n',
                   '[{"name":"Co_Rtf","caption":"","visible":true,"modal":false}]',
                   "1 passed, 1 failed", status=1)

    def test_patterns_see_characters(self):
        note = 'host pStrOrchm "{}"\nhost pStrOrchm\nexpect-like {}\n'
        for text, pattern in [("é", '^"[é]"$'), ("😀", '^"."$'), ("aa", r"(a)\1"), ("x y", 'x y"$'),
                              ("a#b", "#b # ?|#b"), ("1", r'^"\d"$'), ("x" * 300000 + "y", 'x*y"$')]:
            self.assertEqual(run(note.format(text, pattern))[1], 0, pattern)

    def test_an_answer_waits_for_a_box_that_has_its_button(self):
        out, code, _ = run(OPEN + 'file C:\\n\\faux.rtf "x"\nhost pStrOrchm C:\\n\\faux.rtf\n'
                           'answer No\nshow\nhost pStrOrchm "a"\nshow\ntype Co_Rtf.Bx_RTF b\n'
                           'close Co_Rtf\nboxes\nexpect-has [{"buttons":"OK","answer":"OK"},'
                           '{"buttons":"YesNo","answer":"No"}]\n')
        self.assertEqual((out[-1], code), ("1 passed, 0 failed", 0))

    def test_a_script_may_end_anywhere_but_for_answers_left_over(self):
        for end, status in [("", 0), ("show\n", 0), ("show 1\n", 0), ("answer Yes\n", 1),
                            ("show 1\ntype Co_Rtf.Bx_RTF x\nanswer No\n", 0),
                            ("show 1\ntype Co_Rtf.Bx_RTF x\nanswer No No\n", 1)]:
            out, code, err = run(OPEN + end)
            self.assertEqual((out, code, "left over" in err), ([], status, status == 1), end)


class Machine(unittest.TestCase):
    def test_files(self):
        lines, answers = zip(*[
            (r'file C:\a\b\c.txt "l\u0027\u00e9t\u00e9 \u20ac\r\n"', None), ("ls C:\\a\\b\\", '["c.txt"]'),
            ('cat "C:/a/b/c.txt"', r'''"l'été €\r\n"'''), (r'file "C:\\a\\Z y.txt" ""', None),
            (r"file C:\a\é.txt x", None), (r"readonly C:\a\é.txt true", None), (r"file C:\a\é.txt y", 75),
            (r"ls C:\a", '["Z y.txt","b","é.txt"]'), (r'cat "C:\\a\\Z y.txt"', '""'),
            (r"cat C:\a\é.txt", '"x"'), (r"cat C:\a\rien.txt", "null"), (r"cat C:\a", "null"),
            (r"cat C:\..\..\etc\passwd", "null"), (r"cat Z:\etc\passwd", "null"),
            (r"bytes C:\b 00fF80", None), (r"cat C:\b", r'"\u0000ÿ€"'), (r"hex C:\b", '"00ff80"'),
            (r"bytes C:\b EFBBBFe299800d", None), (r"cat C:\b", r'"♀\r"'), (r"bytes C:\b e29980", None),
            (r"cat C:\b", '"â™€"'), (r"bytes C:\b efbbbf2aff", None), (r"cat C:\b", '"*\ufffd"'),
            (r"bytes C:\b 1e5a", None), (r"hex C:\b", '"1e5a"'), (r'bytes C:\b ""', None),
            (r"hex C:\b", '""'), (r"hex C:\c", "null"), (r"link C:\c C:\rien hard", 53),
            (r"link C:\b C:\b symbolic", 75), (r"link C:\x\b C:\b symbolic", 76), (r"rm C:\a", None),
            (r"rm C:\a", 53), (r"ls C:\a", 76), (r"touch C:\a.txt", 53), (r"readonly C:\a.txt true", 53)])
        out = [re.sub(r'\{"error":(\d+),.*', r"\1", line) for line in run("\n".join(lines) + "\n")[0]]
        self.assertEqual(out, [str(answer) for answer in answers if answer is not None])

    def test_a_root_is_kept(self):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder) / "bac"
            run(r'file C:\n\a.txt "été"' '\n' r'setting Appli "Sec tion" Clé "vale\r\nur"' '\n'
                'registry SOFTWARE\\Word "" C:\\w.exe\nclip "a"\n', "--root", str(root))
            self.assertTrue({"c", "settings.ini", "registry.ini"} <= set(os.listdir(root)))
            note = root / "c/n/a.txt"
            before = note.stat().st_mtime_ns
            out, _, _ = run('cat C:\\n\\a.txt\nsetting Appli "Sec tion" Clé\nsetting Appli x Clé\n'
                            'registry software\\WORD ""\nregistry software\\WORD x\nclip\n'
                            'readonly C:\\n\\a.txt true\ntouch C:\\n\\a.txt\n', "--root", str(root))
            self.assertEqual(out, ['"été"', r'"vale\r\nur"', "null", r'"C:\\w.exe"', "null",
                                   '{"text":null,"rtf":null}'])
            self.assertEqual(note.stat().st_mtime_ns - before, 10 * 10**9)

    def test_a_fresh_sandbox_is_removed(self):
        with tempfile.TemporaryDirectory() as folder:
            done = subprocess.run([TOOL, "pilot"], input=b"file C:\\a.txt x\nreadonly C:\\a.txt true\n",
                                  env={"TMPDIR": folder}, capture_output=True)
            self.assertEqual(done.returncode, 0, done.stderr)
            self.assertEqual(list(pathlib.Path(folder).iterdir()), [])


if __name__ == "__main__":
    unittest.main()
