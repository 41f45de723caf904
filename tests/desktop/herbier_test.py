#!/usr/bin/env python3
"""The herbarium: its user searches, writes several notes at once, and finds them in the database."""
import sqlite3
import sys

from rig import Desktop, main

HERBIER = sys.argv[1]
del sys.argv[1]


class Herbarium(Desktop):
    def setUp(self):
        super().setUp()
        self.base = self.home / "herbier.sqlite"
        self.open()

    def open(self):
        self.host = self.start(HERBIER, str(self.base))
        self.herbarium = self.front("Herbier")

    def edit_first_found(self, words, title):
        """Its note, which a search finds."""
        self.keys(self.herbarium, "ctrl+f")
        self.type(self.herbarium, words)
        self.keys(self.herbarium, "Return")
        return self.front(title)

    def note_of(self, genus, column="texte"):
        with sqlite3.connect(self.base, timeout=60) as base:
            return base.execute(f"SELECT {column} FROM taxon WHERE genre = ?", [genus]).fetchone()[0]

    def close(self, editor, title):
        self.ask_to_close(editor)
        self.keys(self.front("herbier"), "Return")  # yes, save
        self.wait(lambda: not self.window(title), "the end of the editor")

    def test_two_notes_are_written_at_once_and_found_again(self):
        fagus = self.edit_first_found("hetraie", "Fagus sylvatica L.")
        drosera = self.edit_first_found("sphaignes noir", "Drosera rotundifolia")
        self.type(fagus, "Zorglub ")
        self.type(drosera, "Ici ")
        self.close(fagus, "Fagus")
        self.assertTrue(self.note_of("Fagus").startswith("Zorglub H"))
        self.ask_to_close(self.herbarium)
        self.keys(self.front("herbier"), "Return")
        self.assertEqual(self.host.wait(timeout=60), 0, self.log())
        self.assertTrue(self.note_of("Drosera").startswith("Ici Fiche"))
        self.open()
        self.edit_first_found("zorglub", "Fagus sylvatica L.")

    def test_scanned_text_is_mended_by_the_list_beside_the_database(self):
        drosera = self.edit_first_found("drosera", "Drosera rotundifolia")
        self.assertIn("re1evés", self.note_of("Drosera"))
        self.choose(drosera, *["Up"] * 4, "Right", "n")
        self.wait(lambda: not self.popup(), "the end of the menu")
        self.close(drosera, "Drosera")
        self.assertIn("Orchis et Drosera relevés le même jour", self.note_of("Drosera"))

    def test_a_note_that_the_database_refuses_stays_in_its_editor(self):
        fagus = self.edit_first_found("hetraie", "Fagus sylvatica L.")
        self.type(fagus, "Zorglub ")
        other = sqlite3.connect(self.base, isolation_level=None)
        other.execute("BEGIN EXCLUSIVE")  # for longer than anybody waits
        self.close(fagus, "Fagus")
        self.keys(self.front("Remarque"), "Return")
        fagus = self.front("Fagus")
        other.close()
        self.ask_to_close(fagus)
        self.wait(lambda: not self.window("Fagus"), "the end of the editor")
        self.assertTrue(self.note_of("Fagus").startswith("Zorglub H"))

    def test_a_note_outlives_its_record(self):
        fagus = self.edit_first_found("hetraie", "Fagus sylvatica L.")
        self.type(fagus, "Zorglub ")
        with sqlite3.connect(self.base) as other:
            other.execute("DELETE FROM taxon WHERE id >= "
                          "(SELECT id FROM taxon WHERE genre = 'Fagus')")
            other.execute("INSERT INTO taxon (genre, note, texte) VALUES ('Zamia', 'z', 'z')")
        self.close(fagus, "Fagus")
        self.assertTrue(self.note_of("").startswith("Zorglub H"))
        self.assertEqual(self.note_of("Zamia"), "z")


if __name__ == "__main__":
    main()
