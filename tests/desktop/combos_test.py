#!/usr/bin/env python3
"""The combos and spinners of the paragraph dialog choose when something is chosen, and only then.

usage: combos_test.py NOTES_HOST    status 77 when the desktop cannot be had
"""
import os
import sys

from rig import Desktop, Host, main, until

NOTES_HOST = os.path.abspath(sys.argv.pop(1))
FORMAT_ZONE = (342, 241)  # below the note, to the right: opens the dialog
APPLY, APPLY_ARROW, SAVE = (120, 28), (167, 28), (290, 28)
LEFT_INDENT, SPINNER = (120, 75), (159, 72)
LEFT, CENTRE = (40, 166), (40, 182)  # "Gauche", "Centre"


class Combos(Desktop):
    def setUp(self):
        super().setUp()
        self.host = Host(self, NOTES_HOST, r"{\rtf1{\fonttbl{\f0 Arial;}}\f0\fs24 un\par deux\par}")
        self.host.ask("show 1")
        self.note = self.front("Note 1")
        self.mouse(self.note, FORMAT_ZONE, "click 1")
        self.dialog = self.front("Format Paragraphe")
        self.host.waits_for("selected 1", "un")

    def click(self, *points):
        for point in points:
            self.mouse(self.dialog, point, "click 1")

    def take(self, point, name):
        """Clicks until the control has the keyboard; a window manager in haste gives it to nobody."""

        def taken():
            self.click(point)
            return until(lambda: self.host.ask("focus 1") == name, 3)

        self.wait(taken, name)

    def format_after(self, button, mark):
        """The note's source once a click has set this alignment."""
        self.activate(self.dialog)
        self.click(button)
        self.host.waits_for("rtf 1", mark)
        return self.host.ask("rtf 1")

    def test_nothing_but_a_choice_applies_a_style(self):
        centred = self.format_after(CENTRE, lambda source: "\\qc" in source)
        left = self.format_after(LEFT, lambda source: "\\qc" not in source)
        self.click(APPLY, SAVE, APPLY, LEFT_INDENT, SAVE)
        self.keys(self.dialog, "Return", "Tab", "Tab")
        for combo, name in ((APPLY, "cboSetStyleReg"), (SAVE, "CboSaveStyleReg")):
            self.take(combo, name)
            self.run_x("xdotool", "key", "ctrl+a")
            self.type(self.dialog, "Para 2")
            self.keys(self.dialog, "Return", "Tab")
            for wheel in ("click 4", "click 5"):
                self.mouse(self.dialog, combo, wheel, wheel, "click 1", wheel, wheel)
                self.mouse(self.dialog, SPINNER, wheel, wheel)
        self.click(LEFT_INDENT)
        self.assertEqual(self.format_after(CENTRE, lambda source: "\\qc" in source), centred)
        self.assertEqual(self.format_after(LEFT, lambda source: "\\qc" not in source), left)
        self.assertIsNone(self.window("Attention"))
        self.assertIsNone(self.window("notes_host"))

    def drop_down(self, *keys):
        self.activate(self.dialog)
        if keys:
            self.take(APPLY, "cboSetStyleReg")
            self.run_x("xdotool", "key", *keys)
        else:
            self.click(APPLY_ARROW)
        self.wait(self.popup, "the list")

    def test_a_choice_from_the_list_applies_a_style(self):
        centred = self.format_after(CENTRE, lambda source: "\\qc" in source)
        self.drop_down("Down")
        self.run_x("xdotool", "key", "Down", "Down", "Escape")
        self.wait(lambda: not self.popup(), "the list's end")
        self.assertEqual(self.host.ask("rtf 1"), centred)
        self.drop_down("Down")
        self.run_x("xdotool", "key", "Down", "Return")
        self.host.waits_for("rtf 1", lambda source: "\\qc" not in source)
        self.format_after(CENTRE, lambda source: "\\qc" in source)
        self.drop_down()
        self.mouse(self.dialog, (APPLY[0], APPLY[1] + 22), "click 1")
        self.host.waits_for("rtf 1", lambda source: "\\qc" not in source)


if __name__ == "__main__":
    main()
