#!/usr/bin/env python3
"""Ends of the program that nobody asks the user about: the text is there at the next start."""
import signal

from rig import MICROEDIT, NOTES_HOST, Host, Notes, main
from session import Session

COPIES = ".local/state/lumenote/owner-*/*.note"


class Ends(Notes):
    session = None

    def setUp(self):
        super().setUp()
        (self.home / "Documents").mkdir()
        self.note = self.home / "note.txt"
        self.note.write_text("avant")

    def launch(self):
        return self.start(MICROEDIT, "--title", "Note", str(self.note))

    def rescued(self):
        return [path.read_text() for path in sorted((self.home / "Documents").iterdir())]

    def starts_again(self):
        """The box is there once, and the note's file is as it was."""
        program = self.launch()
        box = self.front("microedit")
        self.assertEqual(self.rescued(), ["xavant"])
        self.assertEqual(self.note.read_text(), "avant")
        self.keys(box, "Return")
        self.wait(lambda: not self.window("microedit"), "the end of the box")
        program.kill()
        program.wait()
        self.wait(lambda: not self.window("Note"), "the end of the editor")
        self.launch()
        self.keys(self.front("Note"), "ctrl+f")  # comes behind any box
        self.front("Trouver")
        self.assertIsNone(self.window("microedit"))
        self.assertEqual(self.rescued(), ["xavant"])

    def launch_and_edit(self):
        program = self.launch()
        editor = self.front("Note")
        self.type(editor, "x")
        self.keys(editor, "ctrl+f")  # comes behind the text
        self.front("Trouver")
        return program

    def test_a_hang_up(self):
        program = self.launch_and_edit()
        program.send_signal(signal.SIGHUP)
        self.assertEqual(program.wait(60), -signal.SIGHUP)
        self.starts_again()

    def test_a_signal_while_a_box_is_open(self):
        program = self.launch_and_edit()
        self.keys(self.window("Note"), "alt+F4")
        self.wait(lambda: self.window("microedit"), "the question")
        program.terminate()
        self.assertEqual(program.wait(60), -signal.SIGTERM)
        self.starts_again()

    def test_a_crash(self):
        program = self.launch_and_edit()
        self.wait(lambda: list(self.home.glob(COPIES)), "the copy")
        program.kill()
        program.wait()
        self.starts_again()

    def join_session(self):
        Ends.session = Ends.session or Session()
        self.env["SESSION_MANAGER"] = self.session.address

    def end_session(self):
        self.wait(lambda: self.session.programs, "the program in the session")
        self.session.ending.set()

    def test_the_end_of_the_session(self):
        self.join_session()
        program = self.launch_and_edit()
        self.end_session()
        self.assertEqual(program.wait(60), 0)
        del self.env["SESSION_MANAGER"]
        self.starts_again()

    def test_a_host_without_a_place_for_its_note_does_not_hold_the_session_up(self):
        self.join_session()
        folder = self.home / "c" / "notes"
        folder.mkdir(parents=True)
        self.host = Host(self, NOTES_HOST, "C:\\notes\\note.rtf")
        self.host.tell("wait 1")
        self.front("Note 1")
        self.edit()
        self.leave_no_place(folder)
        self.end_session()
        self.keys(self.front("notes_host"), "Return")
        self.ends("ok", "ended")

    def test_a_lost_display(self):
        program = self.launch_and_edit()
        self.started[0].kill()
        program.wait(60)
        self.env["DISPLAY"] = self.start_server()
        self.start_window_manager()
        self.starts_again()


if __name__ == "__main__":
    main()
