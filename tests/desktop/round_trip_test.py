#!/usr/bin/env python3
"""A note goes from the editor's real window to a program and back.

usage: round_trip_test.py MICROEDIT LUMENOTE    status 77 when the desktop cannot be had
"""
import os
import re
import shutil
import subprocess
import sys
import unittest

from rig import Desktop, main

MICROEDIT, LUMENOTE = map(os.path.abspath, (sys.argv.pop(1), sys.argv.pop(1)))
NOTE = rb"{\rtf1\ansi{\fonttbl{\f0 Arial;}}\f0\fs24 caf\'e9 \b gras\b0\par\qc fin\par}"


class RoundTrip(Desktop):
    def setUp(self):
        super().setUp()
        self.note = self.home / "note.rtf"
        self.note.write_bytes(NOTE)

    def link(self, program):
        subprocess.run([LUMENOTE, "link", "WinWord", program], env=self.env, check=True)

    def script(self, name, *lines):
        path = self.home / name
        path.write_text("\n".join(("#!/bin/sh", *lines, "")), encoding="utf-8")
        path.chmod(0o755)
        return str(path)

    def open_editor(self):
        self.editor = self.start(MICROEDIT, str(self.note))
        self.window_id = self.wait(lambda: self.window("MicroEditeur"), "the editor's window")

    def choose(self, *keys):
        """An entry of the note's context menu."""
        self.run_x("xdotool", "windowactivate", "--sync", self.window_id, "mousemove", "--window",
                   self.window_id, "150", "150", "click", "3")
        self.wait(lambda: self.popup("microedit"), "the context menu")
        self.run_x("xdotool", "key", "--delay", "40", *keys)

    def send_to_word(self):
        self.choose(*["Up"] * 7, "Right", "w")

    def work_file(self):
        return next(self.home.glob("lumenote-*/Savnote.rtf"), None)

    def word_runs(self):
        lines = subprocess.run(["ps", "-eo", "args"], capture_output=True, text=True).stdout
        return any(line.endswith(str(self.work_file())) for line in lines.splitlines())

    def text(self):
        done = subprocess.run([LUMENOTE, "text", str(self.note)], capture_output=True, check=True)
        return done.stdout.decode()

    def quit_editor(self):
        self.choose("q")
        question = self.wait(lambda: self.window("microedit"), "the question on saving")
        self.keys(question, "Return")
        self.assertEqual(self.editor.wait(timeout=60), 0, self.log())

    def edit_in_word(self):
        self.open_editor()
        self.send_to_word()
        word = self.wait(lambda: self.window("Savnote.rtf"), "the word processor")
        self.keys(word, "ctrl+End")
        self.type(word, " retour")
        self.wait(lambda: self.window("*Savnote.rtf"), "the edit")
        sent = self.work_file().stat().st_mtime_ns
        self.keys(word, "ctrl+s")
        self.wait(lambda: self.work_file().stat().st_mtime_ns != sent, "the saving")
        self.wait(lambda: not self.window("*Savnote.rtf"), "the end of the saving")
        self.assertNotIn("retour", self.text())
        self.keys(word, "ctrl+q")

    def check_return(self):
        """What came back is in the window with its formats: the editor goes on from it."""
        self.wait(lambda: "retour" in self.text(), "the edited note")
        self.wait(lambda: not self.work_file(), "the end of the exchange")
        self.choose("Escape")  # the note is loaded a tick later; a menu takes longer
        self.keys(self.window_id, "ctrl+Home")
        self.type(self.window_id, "tout ")
        self.quit_editor()
        self.assertEqual(self.text().rstrip("\n"), "tout café gras\nfin retour")
        saved = re.sub(rb"\{\\\*[^{}]*\}", b" ", self.note.read_bytes())
        self.assertRegex(saved, rb"(?s)\\b(?:\\[a-z]+\d*)* +gras\\(?:b0|plain).*\\qc\b.*fin retour")
        self.assertFalse(list(self.home.glob("lumenote-*")))

    def test_a_program_that_saves_and_ends(self):
        self.link(self.script("word", "sed -i 's/fin/fin retour/' \"$1\""))
        self.open_editor()
        self.send_to_word()
        self.check_return()

    def test_a_program_that_crashes_while_it_saves(self):
        self.link(self.script("word", """printf '{\\\\rtf1 caf' > "$1"; kill -9 $$"""))
        self.open_editor()
        self.send_to_word()
        box = self.wait(lambda: self.window("microedit"), "the message")
        self.keys(box, "Return")
        self.choose("q")
        self.assertEqual(self.editor.wait(timeout=60), 0, self.log())
        self.assertEqual(self.text(), "café gras\nfin\n")

    def test_an_editor_that_closes_first(self):
        self.link(self.script("word", f"while [ ! -e '{self.home}/go' ]; do sleep 0.05; done",
                              "sed -i 's/fin/fin retour/' \"$1\""))
        self.open_editor()
        self.send_to_word()
        self.wait(self.word_runs, "the program")
        self.choose("q")
        self.assertEqual(self.editor.wait(timeout=60), 0, self.log())
        (self.home / "go").touch()
        self.wait(lambda: b"retour" in self.work_file().read_bytes(), "the program's own copy")
        self.assertEqual(self.text(), "café gras\nfin\n")

    @unittest.skipUnless(shutil.which("abiword"), "abiword is not installed")
    def test_an_instance_that_runs_is_asked_to_close(self):
        other = self.home / "autre.rtf"
        other.write_bytes(NOTE)
        running = self.start("abiword", str(other))
        self.wait(lambda: self.window("autre.rtf"), "the running instance")
        self.link(shutil.which("abiword"))
        self.open_editor()
        self.send_to_word()
        self.assertEqual(running.wait(timeout=60), 0)  # by itself, not by a signal
        self.wait(lambda: self.window("Savnote.rtf"), "the word processor")

    @unittest.skipUnless(shutil.which("abiword"), "abiword is not installed")
    def test_an_instance_that_takes_the_file_over(self):
        pipe = self.home / "pipe"
        os.mkfifo(pipe)
        self.start("sh", "-c", f"read file < '{pipe}'; abiword \"$file\"; sleep 1000")
        self.link(self.script("word", f"printf '%s\\n' \"$1\" > '{pipe}'"))
        self.edit_in_word()
        self.check_return()

    @unittest.skipUnless(shutil.which("abiword"), "abiword is not installed")
    def test_a_word_processor(self):
        self.link(shutil.which("abiword"))
        self.edit_in_word()
        self.check_return()


if __name__ == "__main__":
    main()
