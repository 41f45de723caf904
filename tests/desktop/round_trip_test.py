#!/usr/bin/env python3
"""A note goes from the editor's real window to a program and back."""
import os
import re
import shutil
import subprocess
import unittest

from rig import LUMENOTE, MICROEDIT, Desktop, main

NOTE = rb"{\rtf1\ansi{\fonttbl{\f0 Arial;}}\f0\fs24 caf\'e9 \b gras\b0\par\qc fin\par}"


class Exchange(Desktop):
    def setUp(self):
        super().setUp()
        self.note = self.home / "note.rtf"
        self.note.write_bytes(NOTE)

    def link(self, program):
        subprocess.run([LUMENOTE, "link", "WinWord", program], env=self.env, check=True)

    def link_script(self, *lines):
        path = self.home / "word"
        path.write_text("\n".join(("#!/bin/sh", *lines, "")), encoding="utf-8")
        path.chmod(0o755)
        self.link(str(path))

    def send_to_word(self):
        self.editor = self.start(MICROEDIT, str(self.note))
        self.window_id = self.wait(lambda: self.window("MicroEditeur"), "the editor's window")
        self.choose(self.window_id, *["Up"] * 7, "Right", "w")

    def work_file(self):
        return next(self.home.glob("lumenote-*/Savnote.rtf"), None)

    def word_runs(self):
        lines = subprocess.run(["ps", "-eo", "args"], capture_output=True, text=True).stdout
        return any(line.endswith(str(self.work_file())) for line in lines.splitlines())

    def text(self):
        done = subprocess.run([LUMENOTE, "text", str(self.note)], capture_output=True, check=True)
        return done.stdout.decode()

    def quit_editor(self, question=False):
        self.choose(self.window_id, "q")
        if question:
            self.keys(self.wait(lambda: self.window("microedit"), "the box"), "Return")
        self.assertEqual(self.editor.wait(timeout=60), 0, self.log())

    def edit_in_word(self):
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
        self.choose(self.window_id, "Escape")  # the note is loaded a tick later; a menu takes longer
        self.keys(self.window_id, "ctrl+Home")
        self.type(self.window_id, "tout ")
        self.quit_editor(question=True)
        self.assertEqual(self.text().rstrip("\n"), "tout café gras\nfin retour")
        saved = re.sub(rb"\{\\\*[^{}]*\}", b" ", self.note.read_bytes())
        self.assertRegex(saved, rb"(?s)\\b(?:\\[a-z]+\d*)* +gras\\(?:b0|plain).*\\qc\b.*fin retour")
        self.assertFalse(list(self.home.glob("lumenote-*")))


class Programs(Exchange):
    def test_a_program_that_saves_and_ends(self):
        self.link_script("sed -i 's/fin/fin retour/' \"$1\"")
        self.send_to_word()
        self.check_return()

    def test_an_editor_that_closes_first(self):
        self.link_script(f"while [ ! -e '{self.home}/go' ]; do sleep 0.05; done",
                         "sed -i 's/fin/fin retour/' \"$1\"")
        self.send_to_word()
        self.wait(self.word_runs, "the program")
        self.quit_editor()
        (self.home / "go").touch()
        self.wait(lambda: b"retour" in self.work_file().read_bytes(), "the program's own copy")
        self.assertEqual(self.text(), "café gras\nfin\n")


@unittest.skipUnless(shutil.which("abiword"), "abiword is not installed")
class WordProcessors(Exchange):
    def test_an_instance_that_runs_is_asked_to_close(self):
        other = self.home / "autre.rtf"
        other.write_bytes(NOTE)
        running = self.start("abiword", str(other))
        self.wait(lambda: self.window("autre.rtf"), "the running instance")
        self.link(shutil.which("abiword"))
        self.send_to_word()
        self.assertEqual(running.wait(timeout=60), 0)  # by itself, not by a signal
        self.wait(lambda: self.window("Savnote.rtf"), "the word processor")

    def test_an_instance_that_takes_the_file_over(self):
        pipe = self.home / "pipe"
        os.mkfifo(pipe)
        self.start("sh", "-c", f"read file < '{pipe}'; abiword \"$file\"; sleep 1000")
        self.link_script(f"printf '%s\\n' \"$1\" > '{pipe}'")
        self.edit_in_word()
        self.check_return()

    def test_a_word_processor(self):
        self.link(shutil.which("abiword"))
        self.edit_in_word()
        self.check_return()


if __name__ == "__main__":
    main()
