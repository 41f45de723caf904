#!/usr/bin/env python3
"""The editor window as it is seen: what says that the note is saved, the strips that a click uses."""
from rig import Notes, main

UPPER, LOWER, CORNER = (40, 20), (200, 241), (6, 242)  # of the strips; the lower left end of the frame
SIGN = (345, 253)  # at the end of the status bar
TEXT = (150, 150)


class Editor(Notes):
    def setUp(self):
        super().setUp()
        self.path = self.home / "note.rtf"
        self.path.write_text(r"{\rtf1 un deux\par}")
        self.open("Z:" + str(self.path).replace("/", "\\"))

    def tip_shown(self, point):
        self.mouse(self.note, TEXT, "sleep 0.4", point, "sleep 0.4", (point[0] + 3, point[1]))
        self.wait(self.tooltip, "the tooltip")

    def test_the_sign_follows_the_first_edit_and_the_save(self):
        sign = lambda: self.picture(self.note, SIGN[0] - 8, SIGN[1] - 8, 16, 16)
        saved = self.settled(sign)
        self.type(self.note, "x")
        self.wait(lambda: sign() != saved, "the sign of an edit")
        self.host.waits_for("sign 1", "Modifié")
        edited = self.settled(sign)
        self.keys(self.note, "ctrl+s")
        self.host.waits_for("sign 1", "Enregistré")
        self.wait(lambda: sign() != edited, "the sign of the save")
        self.tip_shown(SIGN)

    def test_the_strips_light_up_and_take_clicks_at_the_frames_edge(self):
        for strip in (UPPER, LOWER):
            part = lambda: self.picture(self.note, strip[0] - 10, strip[1] - 1, 20, 2)
            self.mouse(self.note, TEXT)
            dark = self.settled(part)
            self.tip_shown(strip)
            self.assertNotEqual(part(), dark)
            self.mouse(self.note, TEXT)
            self.wait(lambda: part() == dark, "the strip's old look")
        for state in ("shown", "hidden"):
            self.mouse(self.note, CORNER, "click 1")
            self.host.waits_for("bar 1", state)


if __name__ == "__main__":
    main()
