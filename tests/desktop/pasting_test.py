#!/usr/bin/env python3
"""Texts are pasted without their formats."""
from rig import Notes, main

LINK = r'{\rtf1{\field{\*\fldinst HYPERLINK "https://a.fr"}{\fldrslt un lien}}\b  gras\par}'


class Pasting(Notes):
    def test_without_formats_by_ctrl_shift_v(self):
        self.open(LINK, "autre")
        self.keys(self.note, "ctrl+a", "ctrl+Insert")
        other = self.show(2)
        self.keys(other, "ctrl+Home", "ctrl+shift+v")
        self.host.waits_for("text 2", "un lien grasautre")
        self.assertNotIn("HYPERLINK", self.host.ask("rtf 2"))
        self.keys(other, "ctrl+z", "shift+End", "shift+Delete", "shift+Insert", "shift+Insert")
        self.host.waits_for("text 2", "autreautre")


if __name__ == "__main__":
    main()
