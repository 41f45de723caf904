#!/usr/bin/env python3
"""Whether the editor stands above the other windows, and keeps itself there.

usage: order_test.py NOTES_HOST DROP_TARGET    status 77 when the desktop cannot be had
"""
import os
import sys

from rig import Desktop, Host, main

NOTES_HOST, OTHER = map(os.path.abspath, (sys.argv.pop(1), sys.argv.pop(1)))


class Order(Desktop):
    def setUp(self):
        super().setUp()
        self.host = Host(self, NOTES_HOST, "un")
        self.host.ask("show 1")
        self.note = self.front("Note 1")

    def context_menu(self):
        self.mouse(self.note, (150, 150), "click 3")
        self.wait(self.popup, "the menu")

    def choose(self, *keys):
        self.run_x("xdotool", "key", "--delay", "40", *keys)
        self.wait(lambda: not self.popup(), "the end of the menu")

    def is_above(self):
        return "ABOVE" in self.run_x("xprop", "-id", self.note, "_NET_WM_STATE")

    def test_only_windows_in_sight_count(self):
        self.start(OTHER, "move", "top")
        other = self.wait(lambda: self.window("Cible"), "the other program")
        self.context_menu()
        self.assertEqual(self.host.ask("ontop 1"), "no")
        self.choose("Escape")
        self.run_x("xdotool", "windowminimize", "--sync", other)
        self.context_menu()
        self.assertEqual(self.host.ask("ontop 1"), "yes")

    def test_the_entry_toggles_flag_and_state(self):
        self.start(OTHER, "move", "top")
        self.wait(lambda: self.window("Cible"), "the other program")
        for now, above in (("no", True), ("yes", False)):
            self.context_menu()
            self.assertEqual(self.host.ask("ontop 1"), now)
            self.choose("Up", "Up", "Return")
            self.wait(lambda: self.is_above() == above, "the window's state")


if __name__ == "__main__":
    main()
