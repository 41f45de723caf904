#!/usr/bin/env python3
"""Misspelt words: the wave under them, what its popup offers. The dictionary is the test's own."""
from rig import Notes, main, until

WIDTH, HEIGHT, TOP = 340, 60, 30  # of the part of a note that shows its text
TEXT = "une rebuste plante"
SECOND_WORD = ("ctrl+Home", "ctrl+Right")


class Spelling(Notes):
    def setUp(self):
        super().setUp()
        (self.home / "fr_FR.aff").write_text("SET UTF-8\nTRY oeu\n")
        (self.home / "fr_FR.dic").write_text("4\nune\nrobuste\nplante\ndeux\n")
        self.env["DICPATH"] = str(self.home)
        self.open(r"{\rtf1\fs40 une rebuste plante \i Rebusta\par}")

    def red(self):
        """The points of the note that are red."""
        pixels = self.picture(self.note, 0, TOP, WIDTH, HEIGHT)
        return [(i % WIDTH, TOP + i // WIDTH) for i in range(WIDTH * HEIGHT)
                if pixels[4 * i + 2] > 200 and pixels[4 * i + 1] < 140]

    def text_is(self, words):
        self.host.waits_for("text 1", words + " Rebusta")

    def popup_of(self, *keys):
        """Opens the popup at the second word and presses keys in it."""
        self.keys(self.note, *SECOND_WORD, "ctrl+period")
        self.wait(self.popup, "the popup")
        self.run_x("xdotool", "key", "--delay", "60", *keys)
        self.wait(lambda: not self.popup(), "the popup's end")

    def test_a_click_on_the_wave_mends_the_word(self):
        wave = self.wait(self.red, "the wave")
        self.assertGreater(max(wave)[0] - min(wave)[0], 40)
        self.mouse(self.note, (wave[0][0] + 10, wave[0][1] - 12), "click 1")
        self.assertIsNone(until(self.popup, 1))
        self.mouse(self.note, wave[len(wave) // 2], "sleep 0.5", "click 1")
        self.wait(self.popup, "the popup")
        self.run_x("xdotool", "key", "--delay", "60", "Down", "Return")
        self.text_is("une robuste plante")
        self.wait(lambda: not self.red(), "the wave's end")
        self.keys(self.note, "ctrl+z")
        self.text_is(TEXT)
        self.wait(self.red, "the wave")

    def test_a_word_is_marked_once_it_is_written(self):
        wave = len(self.wait(self.red, "the wave"))
        self.keys(self.note, "ctrl+Home")
        self.type(self.note, "dexu ")
        self.wait(lambda: len(self.red()) > wave, "another wave")
        self.keys(self.note, "ctrl+Home", "ctrl+Delete")
        self.wait(lambda: len(self.red()) == wave, "its end")

    def test_the_popup_learns_and_adds_and_opens_the_menu(self):
        self.wait(self.red, "the wave")
        self.popup_of("a", "Return")
        self.text_is("une robuste plante")
        self.assertEqual((self.home / "ListCorr.txt").read_text(), "rebuste=:=robuste\n")
        self.keys(self.note, "ctrl+z")
        self.text_is(TEXT)
        self.popup_of("m", "r")  # "Rétablir" of the note's menu
        self.text_is("une robuste plante")
        self.keys(self.note, "ctrl+z")
        self.popup_of("d")
        self.text_is(TEXT)
        self.wait(lambda: not self.red(), "the wave's end")


if __name__ == "__main__":
    main()
