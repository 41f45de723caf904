#!/usr/bin/env python3
"""Message boxes: what answers them, whose they are, where the keyboard is afterwards.

usage: boxes_test.py NOTES_HOST    status 77 when the desktop cannot be had
"""
import os
import sys

from rig import Desktop, Host, main

NOTES_HOST = os.path.abspath(sys.argv.pop(1))
SAVE_COMBO_ARROW = (342, 28)  # "Sauver Style" of the paragraph dialog
FORMAT_ZONE = (342, 241)  # below the note, to the right: opens that dialog


class Boxes(Desktop):
    def open(self, note):
        self.host = Host(self, NOTES_HOST, note)
        self.host.ask("show 1")
        self.note = self.front("Note 1")

    def box(self, title="notes_host"):
        return self.front(title)

    def test_a_question_has_no_escape(self):
        (self.home / "c").mkdir()
        path = self.home / "c" / "note.txt"
        path.write_text("un", encoding="ascii")
        self.open("C:\\note.txt")
        self.type(self.note, "x")
        self.host.waits_for("text 1", "xun")
        self.host.tell("read 1")
        box = self.box()
        self.keys(box, "Escape")
        self.ask_to_close(box)
        self.keys(box, "alt+F4")
        self.keys(box, "Return")
        self.wait(lambda: "C:\\note.txt" in self.host.lines(), "the note")
        self.assertEqual(path.read_bytes(), b"xun")

    def test_a_box_belongs_to_the_dialog_that_asks(self):
        self.open("un\r\ndeux")
        self.mouse(self.note, FORMAT_ZONE, "click 1")
        dialog = self.front("Format Paragraphe")
        self.host.waits_for("selected 1", "un")
        for entry, title in (("Home", "notes_host"), ("End", "Attention")):
            with self.subTest(title):
                self.activate(dialog)
                self.mouse(dialog, SAVE_COMBO_ARROW, "click 1")
                self.wait(self.popup, "the list")
                self.run_x("xdotool", "key", entry, "Return")
                box = self.box(title)
                owner = self.run_x("xprop", "-id", box, "-notype", "WM_TRANSIENT_FOR")
                self.assertEqual(int(owner.split()[-1], 16), int(dialog, 16))
                self.keys(box, "Escape" if title == "notes_host" else "Return")
                self.wait(lambda: self.active() == "Format Paragraphe - Style", "the dialog's turn")
                self.run_x("xdotool", "key", "Tab", "z", "Tab")
        self.keys(self.note, "ctrl+End")
        self.type(self.note, "!")
        self.host.waits_for("text 1", "un\\ndeux!")


if __name__ == "__main__":
    main()
