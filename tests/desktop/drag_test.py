#!/usr/bin/env python3
"""Text is dragged out of a note, into other programs and other notes."""
from rig import DROP_TARGET, Host, Notes, main

TEXT = "un deux trois"
WORD = (17, 38)  # inside the first word of a note


class Drag(Notes):
    def setUp(self):
        super().setUp()
        self.open(TEXT, "autre")
        self.select_word()

    def select_word(self):
        self.keys(self.note, "ctrl+Home", "shift+Right", "shift+Right")
        self.host.waits_for("selected 1", "un")

    def drag_out(self, manner):
        other = Host(self, DROP_TARGET, manner)
        target = self.wait(lambda: self.window("Cible"), "the other program")
        self.keys(self.note, "shift")  # in front again
        asked = 1 if manner == "refuse" else 3  # who has refused is not asked again
        self.drag_to(WORD, target, 100, lambda: other.lines().count("over") >= asked)
        return other

    def dropped(self, other):
        return [line for line in other.lines() if line.startswith("/")]

    def test_a_move_to_another_program(self):
        other = self.drag_out("move")
        self.host.waits_for("text 1", " deux trois")
        self.assertEqual(self.host.ask("undo 1"), "2")
        [line] = self.dropped(other)
        self.assertRegex(line, r"^/un/ /\{\\rtf1.* un\}\\n/ /<!DOCTYPE html>.*>un</p>.*/$")
        self.keys(self.note, "ctrl+z")
        self.host.waits_for("text 1", TEXT)

    def test_what_is_copied_or_refused_stays(self):
        for number, (manner, drops) in enumerate((("copy", 1), ("late", 1), ("refuse", 0)), 1):
            other = self.drag_out(manner)
            self.wait(lambda: len(self.dropped(other)) == drops, "the drop")
            # Typed after the drop, so that the program has seen how the drag ended.
            self.keys(self.note, "ctrl+End")
            self.type(self.note, "!")
            self.host.waits_for("text 1", TEXT + "!" * number)
            self.select_word()
            other.process.kill()
            self.wait(lambda: not self.window("Cible"), "the other program's end")

    def test_a_move_within_the_note_is_one_step(self):
        self.drag_to(WORD, self.note, 38, self.popup)  # what is dragged is shown beside the mouse
        self.host.waits_for("text 1", " deux troisun")
        self.assertEqual(self.host.ask("undo 1"), "3")
        self.keys(self.note, "ctrl+z")
        self.host.waits_for("text 1", TEXT)
        self.assertEqual(self.host.ask("undo 1"), "0")

    def test_a_move_to_another_note(self):
        other = self.show(2)
        self.run_x("xdotool", "windowmove", "--sync", other, "800", "500")
        self.keys(self.note, "shift")
        self.drag_to(WORD, other, 38, self.popup)
        self.host.waits_for("text 2", "autreun")
        self.host.waits_for("text 1", " deux trois")


if __name__ == "__main__":
    main()
