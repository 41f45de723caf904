#!/usr/bin/env python3
"""Pictures in a note: seen on the screen, pasted and dropped from other programs."""
import pathlib
import struct
import zlib

from rig import DROP_TARGET, Host, Notes, main

JPEG = pathlib.Path(__file__).parent.parent / "data" / "red.jpg"  # 16 x 8, at 100 dots per inch
BLUE, RED = (0x1A, 0x5F, 0xB4), (0xE0, 0x1B, 0x24)
NOTE = r"{\rtf1 avant {\pict\pngblip\picwgoal1500\pichgoal900 %s} apr\'e8s {\pict\wmetafile8 00}\par}"


def png(width, height, colour):
    """An image of one colour."""
    def chunk(name, data):
        return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))
    rows = (b"\0" + bytes(colour) * width) * height
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


class Pictures(Notes):
    def count(self, colour, slack=0):
        """How many pixels of the note have the colour."""
        size = self.run_x("xdotool", "getwindowgeometry", "--shell", self.note)
        size = dict(line.split("=") for line in size.split())
        pixels = self.picture(self.note, 0, 0, int(size["WIDTH"]), int(size["HEIGHT"]))
        near = [bytes(max(0, min(255, channel + by)) for by in range(-slack, slack + 1))
                for channel in colour]
        planes = (pixels[2::4], pixels[1::4], pixels[0::4])
        return sum(all(value in some for value, some in zip(point, near)) for point in zip(*planes))

    def sees(self, colour, pixels, slack=0):
        self.wait(lambda: abs(self.count(colour, slack) - pixels) < pixels / 20 + 4, "the picture")

    def other_program(self):
        """Offers the JPEG on the clipboard, and drags its file."""
        self.start(DROP_TARGET, "offer", str(JPEG))
        return self.wait(lambda: self.window("Cible"), "the other program")

    def test_is_seen_at_every_scale(self):
        for number, scale in enumerate((1, 1.5)):
            self.env["QT_SCALE_FACTOR"] = str(scale)
            self.open(NOTE % png(40, 24, BLUE).hex())
            self.sees(BLUE, 100 * 60 * scale * scale)
            self.keys(self.note, "ctrl+Home", *["Right"] * 6, "shift+Right")
            self.wait(lambda: self.count(BLUE) == 0, "the tint of the selection")
            self.host.tell("quit")
            self.ends("ended")

    def test_pastes_and_keeps_a_jpeg_as_it_is(self):
        self.open("un")
        self.other_program()
        self.keys(self.note, "ctrl+End", "ctrl+v")
        kept = r"\jpegblip\picwgoal230\pichgoal115\n" + JPEG.read_bytes().hex()
        self.host.waits_for("rtf 1", lambda source: kept in source)
        self.sees(RED, 15 * 8, slack=8)
        self.assertEqual(self.host.ask("undo 1"), "5")
        self.keys(self.note, "ctrl+z")
        self.host.waits_for("text 1", "un")
        self.assertEqual(self.host.ask("undo 1"), "0")

    def test_is_dragged_into_another_program_as_an_image(self):
        image = JPEG.read_bytes()
        self.open(r"{\rtf1 {\pict\jpegblip\picwgoal1500\pichgoal900 %s}\par}" % image.hex())
        self.sees(RED, 100 * 60, slack=8)
        self.keys(self.note, "ctrl+Home", "shift+Right")
        self.host.waits_for("selected 1", "\uFFFC")
        other = Host(self, DROP_TARGET, "copy")
        target = self.wait(lambda: self.window("Cible"), "the other program")
        self.keys(self.note, "shift")  # in front again
        self.drag_to((40, 50), target, 100, lambda: other.lines().count("over") >= 3)
        size = " %d" % len(image)
        self.wait(lambda: any(line.endswith(size) for line in other.lines()), "the image")

    def test_drops_a_file(self):
        self.open("un")
        other = self.other_program()
        self.mouse(other, (50, 50), "mousedown 1", (60, 60), (70, 70))
        self.mouse(self.note, *[(x, 38) for x in range(100, 130, 3)])
        self.mouse(self.note, "mouseup 1")
        self.host.waits_for("text 1", lambda text: "\uFFFC" in text)
        self.assertEqual(self.host.ask("undo 1"), "3")
        self.keys(self.note, "End")  # what was dropped is selected
        self.sees(RED, 15 * 8, slack=8)


if __name__ == "__main__":
    main()
