#!/usr/bin/env python3
"""A note's file among the acts of the user's own mouse: what closes, changes or deletes it.

usage: files_test.py NOTES_HOST    status 77 when the desktop cannot be had
"""
import os
import sys

from rig import Desktop, Host, main

NOTES_HOST = os.path.abspath(sys.argv.pop(1))


class Files(Desktop):
    def setUp(self):
        super().setUp()
        self.folder = self.home / "c" / "notes"
        self.folder.mkdir(parents=True)
        self.note = self.folder / "note.txt"
        self.note.write_text("un")
        self.host = Host(self, NOTES_HOST, "C:\\notes\\note.txt")
        self.host.ask("show 1")
        self.editor = self.front("Note 1")

    def edit(self):
        self.type(self.editor, "x")
        self.host.waits_for("text 1", "xun")

    def choose(self, *keys):
        """An entry of the note's context menu."""
        self.mouse(self.editor, (150, 120), "click 3")
        self.wait(self.popup, "the context menu")
        self.run_x("xdotool", "key", "--delay", "40", *keys)

    def agree(self, title="notes_host"):
        self.keys(self.front(title), "Return")
        self.wait(lambda: not self.window(title), "the end of the box")

    def click_close_box(self):
        """Of the title bar, at its right end."""
        sides = self.run_x("xprop", "-id", self.editor, "-notype", "_NET_FRAME_EXTENTS")
        top = int(sides.split(",")[2])
        size = dict(line.split("=") for line in self.run_x(
            "xdotool", "getwindowgeometry", "--shell", self.editor).split())
        self.mouse(self.editor, (int(size["WIDTH"]) - top // 2, -top // 2), "click 1")

    def test_a_close_box_is_refused_while_the_note_has_no_place(self):
        self.edit()
        self.leave_no_place(self.folder)
        self.click_close_box()
        self.agree()
        self.host.waits_for("text 1", "xun")
        self.assertEqual(self.window("Note 1"), self.editor)
        self.folder.mkdir()
        self.click_close_box()
        self.agree()
        self.wait(lambda: not self.window("Note 1"), "the closing")
        self.assertEqual(self.note.read_text(), "xun")

    def test_what_another_program_wrote_is_kept_before_a_save(self):
        (self.home / "Documents").mkdir()
        self.edit()
        self.note.write_text("leur")
        self.choose("e")
        self.agree()
        self.assertEqual(self.note.read_text(), "xun")
        self.assertEqual((self.home / "Documents" / "Secours_note.txt").read_text(), "leur")

    def test_a_deleted_document_does_not_come_back(self):
        self.edit()
        self.choose(*["Up"] * 4, "Return")
        self.agree("Attention")
        self.wait(lambda: not self.window("Note 1"), "the closing")
        self.assertEqual(self.host.ask("read 1"), "")
        self.host.ask("show 1")
        self.editor = self.front("Note 1")
        self.host.waits_for("text 1", "")
        self.assertEqual(list(self.folder.iterdir()), [])


if __name__ == "__main__":
    main()
