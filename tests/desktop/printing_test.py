#!/usr/bin/env python3
"""Ctrl+P: the dialog in French, a PDF file of the note or of what is selected, Escape."""
import subprocess

from rig import Notes, main, until


class Printing(Notes):
    def setUp(self):
        super().setUp()
        self.open(r"{\rtf1{\fonttbl{\f0 Arial;}}\f0\fs24 premier\par second\page fin}")

    def print_to(self, name, *choice):
        """Prints the note into a file of the home folder by keys alone."""
        self.keys(self.note, "ctrl+p")
        dialog = self.front("Imprimer")
        self.keys(dialog, *choice, "alt+f", "ctrl+a")
        self.type(dialog, str(self.home / name))
        self.keys(dialog, "Return")
        self.wait(lambda: not self.window("Imprimer"), "the end of the dialog")
        self.front("Note 1")

    def text_of(self, name):
        path = self.home / name
        self.wait(path.exists, "the file")
        done = subprocess.run(["pdftotext", path, "-"], capture_output=True, text=True, check=True)
        return done.stdout.split()

    def test_a_file_of_the_note(self):
        self.print_to("tout.pdf")
        self.assertEqual(self.text_of("tout.pdf"),
                         ["premier", "second", "1", "/", "2", "fin", "2", "/", "2"])
        self.type(self.note, "x")
        self.host.waits_for("text 1", lambda text: text.startswith("x"))

    def test_what_is_selected(self):
        self.keys(self.note, "ctrl+Home", "shift+End")
        self.print_to("choix.pdf", "alt+s")
        self.assertEqual(self.text_of("choix.pdf"), ["premier", "1", "/", "1"])

    def test_escape_and_a_file_that_cannot_be_written(self):
        before = self.host.ask("rtf 1")
        self.keys(self.note, "ctrl+p")
        self.keys(self.front("Imprimer"), "Escape")
        self.wait(lambda: not self.window("Imprimer"), "the end of the dialog")
        (self.home / "ro").mkdir()
        self.print_to_nowhere()
        self.assertEqual(self.host.ask("rtf 1"), before)

    def print_to_nowhere(self):
        self.keys(self.note, "ctrl+p")
        dialog = self.front("Imprimer")
        self.keys(dialog, "alt+f", "ctrl+a")
        self.type(dialog, "/proc/absent.pdf")
        self.keys(dialog, "Return")
        self.agree()


if __name__ == "__main__":
    main()
