#!/usr/bin/env python3
"""Notes among the acts of the user's own mouse and keys: what closes, changes or deletes them, how they
all end, whether an editor keeps itself above the other windows."""
from rig import DROP_TARGET, Notes, main


class Files(Notes):
    def setUp(self):
        super().setUp()
        self.folder = self.home / "c" / "notes"
        self.folder.mkdir(parents=True)
        self.file = self.folder / "note.txt"
        self.file.write_text("un")
        self.open("C:\\notes\\note.txt")

    def test_a_close_box_is_refused_while_the_note_has_no_place(self):
        self.edit()
        self.leave_no_place(self.folder)
        self.ask_to_close(self.note)
        self.agree()
        self.host.waits_for("text 1", "xun")
        self.assertEqual(self.window("Note 1"), self.note)
        self.folder.mkdir()
        self.ask_to_close(self.note)
        self.agree()
        self.wait(lambda: not self.window("Note 1"), "the closing")
        self.assertEqual(self.file.read_text(), "xun")

    def test_a_question_has_no_escape(self):
        self.edit()
        self.host.tell("read 1")
        box = self.front("notes_host")
        self.keys(box, "Escape")
        self.ask_to_close(box)
        self.keys(box, "alt+F4")
        self.keys(box, "Return")
        self.wait(lambda: "C:\\notes\\note.txt" in self.host.lines(), "the note")
        self.assertEqual(self.file.read_text(), "xun")

    def test_what_another_program_wrote_is_kept_before_a_save(self):
        (self.home / "Documents").mkdir()
        self.edit()
        self.file.write_text("leur")
        self.choose(self.note, "e")
        self.agree()
        self.assertEqual(self.file.read_text(), "xun")
        self.assertEqual((self.home / "Documents" / "Secours_note.txt").read_text(), "leur")

    def test_a_deleted_document_does_not_come_back(self):
        self.edit()
        self.choose(self.note, *["Up"] * 4, "Return")
        self.agree("Attention")
        self.wait(lambda: not self.window("Note 1"), "the closing")
        self.assertEqual(self.host.ask("read 1"), "")
        self.show(1)
        self.host.waits_for("text 1", "")
        self.assertEqual(list(self.folder.iterdir()), [])


class Keys(Notes):
    def test_save_and_format(self):
        (self.home / "c").mkdir(exist_ok=True)
        file = self.home / "c" / "note.rtf"
        file.write_text(r"{\rtf1 un\par}")
        self.open("C:\\note.rtf")
        self.edit()
        self.keys(self.note, "ctrl+j")
        self.run_x("setxkbmap", "fr")
        self.keys(self.note, "ctrl+14")  # the key of "(" and 5
        self.host.waits_for("rtf 1", lambda source: r"\sl360\slmult1\qj xun" in source)
        self.keys(self.note, "ctrl+s")
        self.wait(lambda: "xun" in file.read_text(), "the file")
        self.ask_to_close(self.note)
        self.wait(lambda: not self.window("Note 1"), "the closing")


class Quitting(Notes):
    def setUp(self):
        super().setUp()
        self.open("un", "deux")
        self.show(2)

    def test_ends_a_wait(self):
        self.host.tell("wait 1")
        self.host.tell("quit")
        self.ends("ok", "ok", "ended")

    def test_waits_for_an_open_question(self):
        self.edit()
        self.host.tell("read 1")
        box = self.front("notes_host")
        self.host.ask("quit")
        self.keys(box, "Return")
        self.ends("xun", "ended")

    def test_asks_for_every_note(self):
        self.edit(1)
        self.edit(2)
        self.host.tell("quit")
        for left in (1, 0):
            self.keys(self.front("notes_host"), "Return")
            self.wait(lambda: sum("Note" in title for title in self.titles()) <= left, "the closing")
        self.ends("ended")


class Order(Notes):
    def setUp(self):
        super().setUp()
        self.open("un")
        self.start(DROP_TARGET, "move", "top")
        self.other = self.wait(lambda: self.window("Cible"), "the other program")

    def look(self, *keys):
        """Whether the editor takes itself for the topmost window when the menu comes up."""
        self.choose(self.note)
        ontop = self.host.ask("ontop 1")
        self.run_x("xdotool", "key", "--delay", "40", *keys)
        self.wait(lambda: not self.popup(), "the end of the menu")
        return ontop

    def test_only_windows_in_sight_count(self):
        self.assertEqual(self.look("Escape"), "no")
        self.run_x("xdotool", "windowminimize", "--sync", self.other)
        self.assertEqual(self.look("Escape"), "yes")

    def test_the_entry_toggles_flag_and_state(self):
        for now, above in (("no", True), ("yes", False)):
            self.assertEqual(self.look("Up", "Up", "Return"), now)
            self.wait(lambda: above == ("ABOVE" in self.run_x(
                "xprop", "-id", self.note, "_NET_WM_STATE")), "the window's state")


if __name__ == "__main__":
    main()
