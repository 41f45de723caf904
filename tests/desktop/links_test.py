#!/usr/bin/env python3
"""Links are opened with the user's own mouse and keys."""
import os

from rig import Notes, main

WORD = (17, 38)  # inside the first word of a note
LINK = r'{\rtf1{\field{\*\fldinst HYPERLINK "%s"}{\fldrslt un lien}}\b  gras\par}'


class Links(Notes):
    def setUp(self):
        super().setUp()
        opener = self.home / "bin" / "xdg-open"
        opener.parent.mkdir()
        opener.write_text(f'#!/bin/sh\necho "$1" >> "{self.home}/opened"\n')
        opener.chmod(0o755)
        self.env["PATH"] = f'{opener.parent}:{os.environ["PATH"]}'
        self.opened = self.home / "opened"

    def follow(self, *acts):
        self.run_x("xdotool", "keydown", "ctrl")
        self.mouse(self.note, *acts)
        self.run_x("xdotool", "keyup", "ctrl")

    def test_open_by_a_click_with_ctrl_or_a_key(self):
        self.open(LINK % "https://a.fr/b?c=1&d", "autre")
        self.follow(WORD, "click 1")
        self.wait(self.opened.exists, "the target")
        self.keys(self.note, "ctrl+End", "ctrl+Return", "ctrl+Home", "ctrl+Return")
        self.wait(lambda: self.opened.read_text() == "https://a.fr/b?c=1&d\n" * 2, "both targets")
        self.assertEqual(self.host.ask("undo 1"), "0")

    def test_show_their_target_but_open_no_commands(self):
        self.open(LINK % "notes.sh", "autre")
        self.follow(WORD, "click 1")
        self.mouse(self.note, (200, 100), "sleep 0.4", (17, 36), "sleep 0.4", WORD)
        self.wait(self.tooltip, "the tooltip")
        self.assertFalse(self.opened.exists())

    def test_lead_to_bookmarks_of_the_note(self):
        self.open(r'{\rtf1{\field{\*\fldinst HYPERLINK \\l "ici"}{\fldrslt un lien}}\par '
                  r'une {\*\bkmkstart ici}cible{\*\bkmkend ici}}')
        self.follow(WORD, "click 1")
        self.keys(self.note, "x")
        self.host.waits_for("text 1", r"un lien\nune xcible")
        self.assertFalse(self.opened.exists())


if __name__ == "__main__":
    main()
