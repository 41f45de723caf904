#!/usr/bin/env python3
"""The paragraph dialog, its combos and boxes among the other windows: what chooses, whose turn it is."""
from rig import Notes, main, until

DIALOG_GROUND = (345, 300)  # where no control is
APPLY, APPLY_ARROW, SAVE, SAVE_ARROW = (120, 28), (167, 28), (290, 28), (342, 28)
LEFT_INDENT, SPINNER = (120, 75), (159, 72)
LEFT, CENTRE = (40, 166), (40, 182)  # "Gauche", "Centre"
END_OF_FIRST_LINE = (200, 38)  # of the note


class Dialogs(Notes):
    def setUp(self):
        super().setUp()
        self.open(r"{\rtf1{\fonttbl{\f0 Arial;}}\f0\fs24 un\par deux\par}")
        self.dialog = self.paragraph_dialog()
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

    def format_after(self, button):
        """The note's source once a click has set this alignment."""
        self.activate(self.dialog)
        self.click(button)
        self.host.waits_for("rtf 1", lambda source: ("\\qc" in source) == (button == CENTRE))
        return self.host.ask("rtf 1")

    def test_nothing_but_a_choice_applies_a_style(self):
        centred, left = self.format_after(CENTRE), self.format_after(LEFT)
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
        self.assertEqual((self.format_after(CENTRE), self.format_after(LEFT)), (centred, left))
        self.assertIsNone(self.window("Attention"))
        self.assertIsNone(self.window("notes_host"))

    def test_a_choice_from_the_list_applies_a_style(self):
        centred = self.format_after(CENTRE)
        for keys in (["Down", "Down", "Escape"], ["Down", "Return"]):
            self.take(APPLY, "cboSetStyleReg")
            self.run_x("xdotool", "key", "Down")
            self.wait(self.popup, "the list")
            self.run_x("xdotool", "key", *keys)
            self.wait(lambda: not self.popup(), "the list's end")
            self.assertEqual(self.host.ask("rtf 1") == centred, "Escape" in keys)
        self.format_after(CENTRE)
        self.click(APPLY_ARROW)
        self.wait(self.popup, "the list")
        self.click((APPLY[0], APPLY[1] + 22))
        self.host.waits_for("rtf 1", lambda source: "\\qc" not in source)

    def test_a_box_belongs_to_the_dialog_that_asks(self):
        for entry, title, answer in (("Home", "notes_host", "Escape"), ("End", "Attention", "Return")):
            self.activate(self.dialog)
            self.click(SAVE_ARROW)
            self.wait(self.popup, "the list")
            self.run_x("xdotool", "key", entry, "Return")
            box = self.front(title)
            owner = self.run_x("xprop", "-id", box, "-notype", "WM_TRANSIENT_FOR")
            self.assertEqual(int(owner.split()[-1], 16), int(self.dialog, 16))
            self.keys(box, answer)
            self.wait(lambda: self.active() == "Format Paragraphe - Style", "the dialog's turn")
            self.run_x("xdotool", "key", "Tab", "z", "Tab")
        self.keys(self.note, "ctrl+End")
        self.type(self.note, "!")
        self.host.waits_for("text 1", "un\\ndeux!")

    def test_windows_that_change_quickly_are_all_activated(self):
        self.keys(self.note, "ctrl+f")
        self.front("Trouver")
        for _ in range(5):
            self.mouse(self.note, END_OF_FIRST_LINE, "click 1")
            self.host.waits_for("selected 1", "")
            self.keys(self.note, "ctrl+f")
            self.click(DIALOG_GROUND)
            self.host.waits_for("selected 1", "un")


if __name__ == "__main__":
    main()
