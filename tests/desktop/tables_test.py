#!/usr/bin/env python3
"""Tables in a note: seen at several scales, written in with the mouse and keys of a user."""
from rig import Notes, main

RED = (0xE0, 0x1B, 0x24)
LINES = "".join(rf"\clbrdr{side}\brdrs\brdrw15\brdrcf1" for side in "tlbr")
ROW = rf"\trowd{LINES}\cellx2400{LINES}\cellx4800\pard\intbl"
NESTED = (r"\itap2 x\nestcell y\nestcell{\*\nesttableprops\trowd\cellx900\cellx1800\nestrow}"
          r"\pard\intbl ")
NOTE = (r"{\rtf1{\colortbl;\red224\green27\blue36;}" + ROW +
        r" a\par b\par c\cell d\par " + NESTED + r"e\cell\row" + ROW + r" f\cell g\cell\row\pard h}")


class Tables(Notes):
    def note_text(self):
        return self.host.ask("text 1")

    def size(self):
        shown = self.run_x("xdotool", "getwindowgeometry", "--shell", self.note)
        return {key: int(value) for key, value in (line.split("=") for line in shown.split())}

    def red_places(self):
        """The x and y of the pixels that have the colour of the table's lines."""
        size = self.size()
        pixels = self.picture(self.note, 0, 0, size["WIDTH"], size["HEIGHT"])
        wanted = bytes((RED[2], RED[1], RED[0]))
        width = size["WIDTH"]
        return [(i // 4 % width, i // 4 // width) for i in range(0, len(pixels), 4)
                if pixels[i:i + 3] == wanted]

    def lines(self, places, axis):
        """Where lines of more than half of the table's extent are, across the other axis."""
        found = {}
        for place in places:
            found[place[axis]] = found.get(place[axis], 0) + 1
        across = {place[1 - axis] for place in places}
        return sorted(at for at, count in found.items() if count * 2 > len(across))

    def test_lines_are_on_pixels_at_every_scale(self):
        for scale in (1, 1.5):
            self.env["QT_SCALE_FACTOR"] = str(scale)
            self.open(NOTE)
            places = self.settled(self.red_places)
            upright = self.lines(places, 0)
            level = self.lines(places, 1)
            thick = [sum(1 for at in upright if abs(at - first) < 5) for first in upright[:1]]
            self.assertEqual(len(upright), 3 * thick[0], upright)
            self.assertEqual(len(level), 3 * thick[0], level)
            self.host.tell("quit")
            self.ends("ended")

    def test_is_written_in_with_mouse_and_keys(self):
        self.open(NOTE)
        places = self.settled(self.red_places)
        left, top = min(x for x, _ in places), min(y for _, y in places)
        steps = [((left + 80, top + 28), "B", "a|bB|c\td|x\ty|e"),  # second paragraph of the cell
                 (["Return"], "n", "a|bB|n|c\td|x\ty|e"),
                 (["Home", "BackSpace"], "", "a|bBn|c\td|x\ty|e"),
                 (["Down", "End", "Delete"], "C", "a|bBn|cC\td|x\ty|e"),
                 (["Tab"], "D", "a|bBn|cC\tDd|x\ty|e"),
                 (["BackSpace", "BackSpace", "Down", "Home"], "X", "a|bBn|cC\td|Xx\ty|e"),
                 (["Tab", "End"], "Y", "a|bBn|cC\td|Xx\tyY|e"),
                 (["Down"], "E", "a|bBn|cC\td|Xx\tyY|eE")]
        for act, typed, text in steps:
            if isinstance(act, tuple):
                self.mouse(self.note, act, "click 1")
            else:
                self.keys(self.note, *act)
            if typed:
                self.type(self.note, typed)
            self.wait(lambda text=text: self.note_text().replace("\\n", "|").startswith(text),
                      f"{text!r}")

    def test_a_selection_over_cells_leaves_them(self):
        self.open(NOTE)
        places = self.settled(self.red_places)
        left, top = min(x for x, _ in places), min(y for _, y in places)
        self.mouse(self.note, (left + 80, top + 28), "mousedown 1", (left + 120, top + 20),
                   (left + 260, top + 8), "mouseup 1")
        for key, text in (("Delete", "a|b\t|x\ty|e|f"), ("ctrl+z", "a|b|c\td|x\ty|e|f"),
                          ("z", "a|bz\t|x\ty|e|f")):
            self.keys(self.note, key)
            self.wait(lambda text=text: self.note_text().replace("\\n", "|").startswith(text), text)
        self.assertEqual(self.lines(self.settled(self.red_places), 0), self.lines(places, 0))


if __name__ == "__main__":
    main()
