#!/usr/bin/env python3
"""Takes the pictures of docs/images from the real windows; needs imagemagick and
hunspell-fr.

usage: tools/pictures.py BUILD      BUILD holds hosts/microedit/microedit, as build/test and build/run do
"""
import pathlib
import re
import shutil
import sys

TOP = pathlib.Path(__file__).resolve().parent.parent
HOSTS = pathlib.Path(sys.argv[1]).resolve() / "hosts"
MICROEDIT, HERBIER = str(HOSTS / "microedit/microedit"), str(HOSTS / "herbier/herbier")
sys.argv[1:] = [MICROEDIT]
sys.path.insert(0, str(TOP / "tests/desktop"))
from rig import Desktop, main  # noqa: E402


class Pictures(Desktop):
    def setUp(self):
        super().setUp()
        note = self.home / "c/Notes/orchis.rtf"
        note.parent.mkdir(parents=True)
        shutil.copy(TOP / "docs/exemple.rtf", note)
        self.start(MICROEDIT, "--title", "Orchis purpurea Huds.", "--frame", "Remarques", note)
        self.note = self.front("Orchis")
        self.run_x("xdotool", "windowsize", "--sync", self.note, "560", "400")
        self.keys(self.note, "ctrl+Home")

    def take(self, name, window):
        """A window with its frame and what is shown over it, once the window manager's signs are gone."""
        self.run_x("sleep", "2")
        extents = self.run_x("xprop", "-id", window, "-notype", "_NET_FRAME_EXTENTS").partition("=")[2]
        left, right, top, bottom = map(int, extents.split(","))
        client = self.run_x("xwininfo", "-id", window)
        x, y, width, height = (int(re.search(name + r":\s+(\d+)", client)[1])
                               for name in ("left X", "left Y", "Width", "Height"))
        part = f"{width + left + right}x{height + top + bottom}+{x - left}+{y - top}"
        self.run_x("import", "-window", "root", "-crop", part, "+repage", "-strip",
                   str(TOP / f"docs/images/{name}.png"))

    def test_herbarium(self):
        self.ask_to_close(self.note)
        self.start(HERBIER)
        window = self.front("Herbier")
        self.keys(window, "ctrl+f")
        self.type(window, "orchid")
        self.keys(window, "Return")
        self.front("Cephalanthera")
        self.take("herbier", window)

    def in_bar(self, *keys):
        self.keys(self.note, "F10", *keys)

    def test_editor(self):
        self.take("editeur", self.note)

    def test_menus(self):
        self.keys(self.note, "ctrl+shift+Right", "ctrl+shift+Right")
        self.in_bar("Down")
        self.take("menus", self.note)

    def test_paragraph(self):
        self.in_bar("Right", "Down", "Down", "Return")
        self.take("paragraphe", self.front("Format Paragraphe"))

    def test_find(self):
        self.keys(self.note, "ctrl+f")
        dialog = self.front("Trouver")
        self.type(dialog, "labelle")
        self.keys(dialog, "alt+r")
        self.take("trouver", dialog)

    def test_spelling(self):
        self.keys(self.note, "ctrl+Home", "Down", "Down", "Home", "ctrl+Right", "ctrl+shift+Right")
        self.type(self.note, "rebuste ")
        self.keys(self.note, "ctrl+Left", "ctrl+period")
        self.wait(self.popup, "the popup")
        self.take("orthographe", self.note)

    def test_symbols(self):
        self.in_bar("Down", "Down", "Down", "Return")
        dialog = self.front("symboles")
        self.mouse(dialog, (150, 150))
        self.take("symboles", dialog)

    def test_learn(self):
        word = ("ctrl+Home", "ctrl+shift+Right", "shift+Left")
        self.keys(self.note, *word)
        self.type(self.note, "Orcbis")
        self.keys(self.note, *word, "shift+F10", *["Up"] * 6, "Right", "a")
        dialog = self.front("Apprentissage")
        self.type(dialog, "Orchis")
        self.take("apprendre", dialog)


if __name__ == "__main__":
    main()
