#!/usr/bin/env python3
"""Ctrl+P: the dialog in French, a PDF file of the note or of what is selected, Escape."""
import subprocess
import time

from rig import Notes, main


class Printing(Notes):
    def setUp(self):
        super().setUp()
        self.open(r"{\rtf1{\fonttbl{\f0 Arial;}}\f0\fs24 premier\par second\page fin}")

    def print_to(self, name, *choice):
        """Prints the note into a file of the home folder by keys alone."""
        self.keys(self.note, "ctrl+p")
        dialog = self.front("Imprimer")
        for key in choice:
            self.keys(dialog, key)
            time.sleep(0.5)  # the dialog grows
        self.keys(dialog, "alt+f", "ctrl+a")
        self.type(dialog, str(self.home / name))
        self.keys(dialog, "alt+i")
        self.wait(lambda: not self.window("Imprimer"), "the end of the dialog")
        self.front("Note 1")

    def text_of(self, name):
        path = self.home / name
        self.wait(path.exists, "the file")
        done = subprocess.run(["pdftotext", path, "-"], capture_output=True, text=True, check=True)
        return done.stdout.replace("/", " / ").split()

    def test_a_file_of_the_note(self):
        self.print_to("tout.pdf")
        self.assertEqual(self.text_of("tout.pdf"),
                         ["premier", "second", "1", "/", "2", "fin", "2", "/", "2"])
        self.type(self.note, "x")
        self.host.waits_for("text 1", lambda text: text.startswith("x"))

    def test_what_is_selected(self):
        self.keys(self.note, "ctrl+Home", "shift+End")
        self.print_to("choix.pdf", "alt+o", "alt+s")
        self.assertEqual(self.text_of("choix.pdf"), ["premier", "1", "/", "1"])

    def test_escape_and_a_file_that_cannot_be_written(self):
        before = self.host.ask("rtf 1")
        self.keys(self.note, "ctrl+p")
        self.keys(self.front("Imprimer"), "Escape")
        self.wait(lambda: not self.window("Imprimer"), "the end of the dialog")
        self.keys(self.note, "ctrl+p")
        dialog = self.front("Imprimer")
        self.keys(dialog, "alt+f", "ctrl+a")
        self.type(dialog, str(self.home))
        self.keys(dialog, "alt+i")
        self.wait(lambda: self.titles().count("Imprimer") == 2, "the dialog's refusal")
        self.keys(self.front("Imprimer"), "Return")
        self.wait(lambda: self.titles().count("Imprimer") == 1, "the end of the refusal")
        self.keys(dialog, "Escape")
        self.front("Note 1")
        self.assertEqual(self.host.ask("rtf 1"), before)


if __name__ == "__main__":
    main()
