#!/usr/bin/env python3
"""Hosts without Qt of their own: in C, on GTK, in Python, and programs that start the editor as a filter.
Their user types in its window."""
import pathlib
import re
import subprocess
import sys
import unittest

from rig import MICROEDIT, Desktop, main

C_HOST, GTK_HOST, PYTHON_HOST, LIBRARY = sys.argv[1:5]
del sys.argv[1:5]
TITLE = "Orchis purpurea"


class Hosts(Desktop):
    def setUp(self):
        super().setUp()
        self.env["LD_LIBRARY_PATH"] = LIBRARY

    def output(self):
        return (self.home / "output").read_text(encoding="utf-8")

    def close_and_save(self, editor):
        self.ask_to_close(editor)
        self.keys(self.front("Lumenote"), "Return")  # yes

    def type_at_the_start(self, text):
        editor = self.front(TITLE)
        self.keys(editor, "ctrl+Home")
        self.type(editor, text)
        return editor

    def test_in_c_a_note_in_a_file_is_edited_and_its_path_comes_back(self):
        note = self.home / "orchis.rtf"
        note.write_bytes(rb"{\rtf1 note}")
        host = self.start(C_HOST, str(note), output="output")
        editor = self.type_at_the_start("ma ")
        self.keys(editor, "ctrl+s")
        self.wait(lambda: b"ma note" in note.read_bytes(), "the saved note")
        self.ask_to_close(editor)
        self.assertEqual(host.wait(timeout=60), 0, self.log())
        self.assertRegex(self.output(), r"^Z:\\.*\\orchis\.rtf\n$")

    def test_in_c_an_error_has_its_text(self):
        self.env["DISPLAY"] = ":999"
        host = self.start(C_HOST, str(self.home / "orchis.rtf"))
        self.assertEqual(host.wait(timeout=60), 1)
        self.assertIn("ShowMicroEdit : Pas d'écran", self.log())

    def test_in_python_the_note_itself_comes_back(self):
        if b"__asan_init" in pathlib.Path(C_HOST).read_bytes():
            self.skipTest("the interpreter has no sanitizer")
        host = self.start(sys.executable, PYTHON_HOST, output="output", stdin=subprocess.PIPE)
        host.stdin.write("chênes, 120 m".encode())
        host.stdin.close()
        self.close_and_save(self.type_at_the_start("Sous "))
        self.assertEqual(host.wait(timeout=60), 0, self.log())
        self.assertIn("Sous chênes, 120 m", self.output())

    def test_on_gtk_the_hosts_window_goes_on_beneath_the_editor(self):
        host = self.start(GTK_HOST)
        window = self.front("Herbier")
        before = self.picture(window, 0, 0, 300, 100)
        self.keys(window, "space")  # on its button
        editor = self.type_at_the_start("Ici ")
        owner = self.run_x("xprop", "-id", editor, "-notype", "WM_TRANSIENT_FOR")
        self.assertEqual(int(owner.split()[-1], 16), int(window, 16))
        self.close_and_save(editor)
        self.wait(lambda: not self.window(TITLE), "the end of the editor")
        self.wait(lambda: self.picture(window, 0, 0, 300, 100) != before, "the note in the host")
        self.ask_to_close(window)
        self.assertEqual(host.wait(timeout=60), 0, self.log())


class Filter(Desktop):
    """microedit between two programs."""

    def edit(self, note, *options, output="output"):
        self.filter = self.start(MICROEDIT, *options, "-", output=output, stdin=subprocess.PIPE)
        self.filter.stdin.write(note)
        self.filter.stdin.close()
        return self.front("MicroEditeur")

    def gives(self, status, note):
        self.assertEqual(self.filter.wait(timeout=60), status, self.log())
        self.assertEqual((self.home / "output").read_bytes(), note)
        self.assertEqual(list(self.home.glob("lumenote-*")), [])

    def test_a_changed_note_keeps_its_encoding(self):
        for name, note in (("utf-8", "chênes\net hêtres".encode()), ("cp1252", b"ch\xeanes\r\n")):
            with self.subTest(name):
                (self.home / "output").write_bytes(b"")
                editor = self.edit(note)
                self.type(editor, "Sous ")
                self.ask_to_close(editor)
                self.keys(self.front("microedit"), "Return")  # yes
                self.gives(0, b"Sous " + note.replace(b"\r\n", b"\n").replace(b"\n", b"\r\n"))

    def test_an_unchanged_note_goes_on_byte_for_byte(self):
        note = b"{\\rtf1 {\\*\\odd 1}ma\nnote}\r\n\0"
        self.ask_to_close(self.edit(note, "--readonly"))
        self.gives(3, note)

    def test_a_note_that_may_not_change_goes_on_unchanged(self):
        editor = self.edit(b"note", "--readonly")
        self.type(editor, "Sous ")
        self.ask_to_close(editor)
        self.keys(self.front("Attention"), "Return")
        self.gives(3, b"note")

    def test_a_deleted_note_gives_nothing(self):
        editor = self.edit(b"note")
        self.keys(editor, "Menu")
        self.wait(self.popup, "the menu")
        self.keys(editor, "Up", "Up", "Up", "Up", "Return")  # "Suppr. Document"
        self.keys(self.front("Attention"), "alt+o")  # yes
        self.gives(4, b"")

    def test_what_cannot_be_opened_is_told_in_a_line(self):
        for status, options, why in ((1, [str(self.home)], "n'est pas un fichier"),
                                     (1, ["--pdf", "a.pdf", "/"], "n'est pas un fichier"),
                                     (2, ["--colour", "rouge", "a.rtf"], "--colour"),
                                     (2, ["--rien", "a.rtf"], "--rien"), (2, [], "une note")):
            for display in (self.env["DISPLAY"], ":999"):
                with self.subTest(options, display=display):
                    done = subprocess.run([MICROEDIT, *options], env=self.env | {"DISPLAY": display},
                                          capture_output=True, text=True, timeout=60)
                    self.assertEqual(done.returncode, status)
                    self.assertRegex(done.stderr, rf"\Amicroedit : .*{why}.*\n\Z")

    def test_a_note_that_nobody_takes_is_kept(self):
        for output in ("/dev/full", "&-"):
            with self.subTest(output):
                filter = self.start("sh", "-c", f'printf note | "$0" - >{output}', MICROEDIT)
                self.ask_to_close(self.front("MicroEditeur"))
                self.assertEqual(filter.wait(timeout=60), 1)
                kept = re.findall(r"elle est dans (\S+)", self.log())[-1]
                self.assertEqual(pathlib.Path(kept).read_bytes(), b"note")
                pathlib.Path(kept).unlink()

    def test_an_input_that_cannot_be_read_opens_no_editor(self):
        for input in ("&-", str(self.home)):
            done = subprocess.run(["sh", "-c", f'exec "$0" - <{input}', MICROEDIT], env=self.env,
                                  capture_output=True, text=True, timeout=60)
            self.assertEqual((done.returncode, done.stdout, done.stderr),
                             (1, "", "microedit : Entrée standard illisible\n"))


if __name__ == "__main__":
    main()
