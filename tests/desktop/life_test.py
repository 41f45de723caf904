#!/usr/bin/env python3
"""Several windows in one program: which is active, and how they all end.

usage: life_test.py NOTES_HOST    status 77 when the desktop cannot be had
"""
import os
import sys

from rig import Desktop, Host, main

NOTES_HOST = os.path.abspath(sys.argv.pop(1))
FORMAT_ZONE = (342, 241)  # below the note, to the right: opens the paragraph dialog
DIALOG_GROUND = (345, 300)  # of that dialog, where no control is
END_OF_FIRST_LINE = (200, 38)


class Life(Desktop):
    def show(self, *notes):
        self.host = Host(self, NOTES_HOST, *notes)
        for number in range(1, len(notes) + 1):
            self.host.ask(f"show {number}")
        self.front(f"Note {len(notes)}")
        self.note = self.window("Note 1")

    def test_quitting_ends_a_wait(self):
        self.show("un", "deux")
        self.host.tell("wait 1")
        self.host.tell("quit")
        self.assertEqual(self.host.process.wait(timeout=60), 0)
        self.assertEqual(self.host.lines()[-3:], ["ok", "ok", "ended"])

    def test_quitting_waits_for_an_open_question(self):
        self.show("un", "deux")
        self.type(self.note, "x")
        self.host.waits_for("text 1", "xun")
        self.host.tell("read 1")
        box = self.front("notes_host")
        self.host.ask("quit")
        self.keys(box, "Return")
        self.assertEqual(self.host.process.wait(timeout=60), 0)
        self.assertEqual(self.host.lines()[-2:], ["xun", "ended"])

    def test_quitting_asks_for_every_note(self):
        self.show("un", "deux")
        for number in (1, 2):
            self.type(self.window(f"Note {number}"), "x")
        self.host.waits_for("text 2", "xdeux")
        self.host.tell("quit")
        for left in (1, 0):
            box = self.front("notes_host")
            self.keys(box, "Return")
            self.wait(lambda: sum("Note" in title for title in self.titles()) <= left, "the closing")
        self.assertEqual(self.host.process.wait(timeout=60), 0)

    def test_windows_that_change_quickly_are_all_activated(self):
        self.show("un deux\r\ntrois quatre")
        self.mouse(self.note, FORMAT_ZONE, "click 1")
        dialog = self.front("Format Paragraphe")
        self.keys(self.note, "ctrl+f")
        self.front("Trouver")
        for _ in range(5):
            self.mouse(self.note, END_OF_FIRST_LINE, "click 1")
            self.host.waits_for("selected 1", "")
            self.keys(self.note, "ctrl+f")
            self.run_x("xdotool", "mousemove", "--window", dialog, *map(str, DIALOG_GROUND),
                       "click", "1")
            self.host.waits_for("selected 1", "un deux")


if __name__ == "__main__":
    main()
