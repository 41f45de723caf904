#!/usr/bin/env python3
"""Text is dragged out of a note, into other programs and other notes.

usage: drag_test.py NOTES_HOST DROP_TARGET    status 77 when the desktop cannot be had
"""
import itertools
import os
import sys

from rig import Desktop, Host, main

NOTES_HOST, DROP_TARGET = map(os.path.abspath, (sys.argv.pop(1), sys.argv.pop(1)))
TEXT = "un deux trois"
WORD = (17, 38)  # inside the first word of a note


class Drag(Desktop):
    def setUp(self):
        super().setUp()
        self.host = Host(self, NOTES_HOST, TEXT, "autre")
        self.host.ask("show 1")
        self.note = self.front("Note 1")
        self.keys(self.note, "ctrl+Home", "shift+Right", "shift+Right")
        self.host.waits_for("selected 1", "un")

    def drag_to(self, window, height, sees):
        """Drags the selected word over a window until that `sees` it, and lets it fall there."""
        self.mouse(self.note, WORD, "mousedown 1", (30, 40), (40, 44))
        steps = itertools.cycle(range(200, 220, 3))

        def move():
            self.mouse(window, (next(steps), height))
            return sees()

        self.wait(move, "the drag at its target")
        self.mouse(window, (200, height), "mouseup 1")

    def drag_out(self, manner):
        other = Host(self, DROP_TARGET, manner)
        target = self.wait(lambda: self.window("Cible"), "the other program")
        self.keys(self.note, "shift")  # in front again
        asked = 1 if manner == "refuse" else 3  # who has refused is not asked again
        self.drag_to(target, 100, lambda: other.lines().count("over") >= asked)
        return other

    def shows_the_drag(self):
        """The toolkit shows what is dragged in a window of its own, beside the mouse."""
        return self.popup()

    def dropped(self, other):
        return [line for line in other.lines() if line.startswith("/")]

    def test_a_move_to_another_program(self):
        other = self.drag_out("move")
        self.host.waits_for("text 1", " deux trois")
        self.assertEqual(self.host.ask("undo 1"), "2")
        [line] = self.dropped(other)
        self.assertRegex(line, r"^/un/ /\{\\rtf1.* un\}\\n/$")
        self.keys(self.note, "ctrl+z")
        self.host.waits_for("text 1", TEXT)

    def refuse(self, manner, drops):
        other = self.drag_out(manner)
        self.wait(lambda: len(self.dropped(other)) == drops, "the drop")
        # Typed after the drop, so that the program has seen how the drag ended.
        self.keys(self.note, "ctrl+End")
        self.type(self.note, "!")
        self.host.waits_for("text 1", TEXT + "!")

    def test_a_copy_stays(self):
        self.refuse("copy", 1)

    def test_what_is_refused_when_it_has_fallen_stays(self):
        self.refuse("late", 1)

    def test_what_is_refused_stays(self):
        self.refuse("refuse", 0)

    def test_a_move_within_the_note_is_one_step(self):
        self.drag_to(self.note, 38, self.shows_the_drag)
        self.host.waits_for("text 1", " deux troisun")
        self.assertEqual(self.host.ask("undo 1"), "3")
        self.keys(self.note, "ctrl+z")
        self.host.waits_for("text 1", TEXT)
        self.assertEqual(self.host.ask("undo 1"), "0")

    def test_a_move_to_another_note(self):
        self.host.ask("show 2")
        other = self.front("Note 2")
        self.run_x("xdotool", "windowmove", "--sync", other, "800", "500")
        self.keys(self.note, "shift")
        self.drag_to(other, 38, self.shows_the_drag)
        self.host.waits_for("text 2", "autreun")
        self.host.waits_for("text 1", " deux trois")


if __name__ == "__main__":
    main()
