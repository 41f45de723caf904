#!/usr/bin/env python3
"""Every window at the keyboard and in its place: what Tab reaches, in which order, and where they open."""
from rig import Notes, main

SYMBOLS = ["F10", "Down", "Down", "Return"]
LEARN = ["Menu", "Up", "Up", "Up", "Up", "Right", "a"]
INDENTS = ["Bx_IndentGauche", "UD_LeftIndent", "Bx_IndentDroite", "UD_RightIndent", "Bx_HangingIndent",
           "UD_HangingIndent"]
WALKS = {  # by the part of a title: how it opens, and what Tab reaches
    "Trouver": (["ctrl+f"], ["cboFind", "chkWholeWord", "chkMatchCase", "cmdFind", "cmdCancel", "cmdReplace"]),
    "symboles": (SYMBOLS, ["cboFonts", "picHolder", "VScroll1", "txtInsert", "cmdInsert", "cmdCopy", "cmdClose"]),
    "Apprentissage": (LEARN, ["Bx_Saisircorr", "Bt_Valider", "Bt_Enregistrer", "Bt_Quitter", "Bx_TextErroné"]),
    "Format": (None, ["cboSetStyleReg", "CboSaveStyleReg", *INDENTS, "Bx_AvantPara", "UD_SpaceBefore",
                      "Bx_AprèsPara", "UD_SpaceAfter", "Bx_RightMargin", "UD_RightMargin",
                      *(f"opnAlign({i})" for i in range(3)), *(f"opnInter({i})" for i in range(4)),
                      "Bx_LineSpacing", "UD_LineSpacing", "Bx_FontName", "Bx_FontSize", "Bt_Rafraichir"]),
}


class Windows(Notes):
    def setUp(self):
        super().setUp()
        self.open(r"{\rtf1 un deux\par}")
        self.keys(self.note, "ctrl+Home", "ctrl+shift+Right")

    def window_opened(self, title, keys):
        if keys is None:
            return self.paragraph_dialog()
        self.keys(self.note, *keys)
        return self.front(title)

    def place(self, window):
        """Left, top, width and height on the screen, without decorations."""
        told = self.run_x("xdotool", "getwindowgeometry", "--shell", window)
        return [int(line.split("=")[1]) for line in told.splitlines()[1:5]]

    def test_tab_reaches_every_control_in_the_order_in_which_they_lie(self):
        for title, (keys, controls) in WALKS.items():
            with self.subTest(window=title):
                window = self.window_opened(title, keys)
                for control in [*controls, controls[0]]:
                    self.host.waits_for("focus 1", control)
                    self.run_x("xdotool", "key", "Tab")
                hints = self.run_x("xprop", "-id", window, "WM_NORMAL_HINTS")
                sizes = [line.split(":")[1] for line in hints.splitlines() if "mum size" in line]
                self.assertEqual(len(sizes), 2)
                self.assertEqual(*sizes, "the user cannot resize it")
                self.assertIn("Icon", self.run_x("xprop", "-id", window, "_NET_WM_ICON"))
                self.run_x("xdotool", "key", "Escape")
                self.wait(lambda: not self.window(title), "the end of the window")

    def test_the_find_dialog_opens_over_the_note_and_uncovers_what_it_finds(self):
        dialog = self.window_opened("Trouver", ["ctrl+f"])
        self.keys(dialog, "ctrl+a")
        self.type(dialog, "deux")
        self.keys(dialog, "Return")
        self.host.waits_for("selected 1", "deux")
        left, top, width, height = self.place(dialog)
        note_left, note_top, note_width, _ = self.place(self.note)
        self.assertLess(abs(left + width / 2 - note_left - note_width / 2), 20)
        line = note_top + 31  # the middle of the first line
        self.assertFalse(top <= line <= top + height)


if __name__ == "__main__":
    main()
