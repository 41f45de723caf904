#!/usr/bin/env python3
"""Windows and notes as a screen reader gets to know them."""
import json
import os
import pathlib
import subprocess

from rig import Host, Notes, main

NOTE = (r"{\rtf1{\fonttbl{\f0 Arial;}}{\colortbl;\red255\green0\blue0;}\f0\fs24 plain "
        r"{\b\ul\strike\cf1 bold}{\super up}\par\qc mid\par}")
PYTHON = "/usr/bin/python3"  # the system's own has the bindings
READY = f"""which dbus-daemon && {PYTHON} -c 'import gi; gi.require_version("Atspi", "2.0")'"""
USABLE = {"text", "combo box", "list", "spin button", "check box", "radio button",
          "push button", "scroll bar",
          "panel", "label", "filler"}  # the symbols, the text of a box, the wells of colours
LEARN = ["Menu", "Up", "Up", "Up", "Up", "Right", "a"]


class Accessibility(Notes):
    def setUp(self):
        if subprocess.run(["sh", "-c", READY], capture_output=True).returncode != 0:
            self.skipTest("no interface of screen readers")
        super().setUp()

    def open(self, *notes):
        del self.env["NO_AT_BRIDGE"]
        reading, writing = os.pipe()
        self.start("dbus-daemon", "--session", "--nofork", f"--print-address={writing}",
                   pass_fds=[writing])
        os.close(writing)
        with open(reading, encoding="ascii") as address:
            self.env["DBUS_SESSION_BUS_ADDRESS"] = address.readline().strip()
        self.env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        listener = pathlib.Path(__file__).with_name("listener.py")
        self.listener = Host(self, PYTHON, str(listener))
        self.listener.ask("events")
        super().open(*notes)
        self.wait(self.tree, "the tree")

    def tree(self, window=""):
        return [item for item in json.loads(self.listener.ask("tree")) if window in item["window"]]

    def told(self, *wanted):
        """Waits until these kinds of events have come, with their details; returns all that came."""
        heard = []

        def complete():
            heard.extend(json.loads(self.listener.ask("events")))
            events = [tuple(event[:3]) for event in heard]
            return all(event in events for event in wanted)

        self.wait(complete, f"the events {wanted} among {heard}")
        return heard

    def focused(self):
        """The window of each part that says that it has the keyboard."""
        return [item["window"] for item in self.tree() if "focused" in item["states"]]

    def check(self, title, *parts):
        """One part of the window in front has the focus, each that can have it is named; some are
        there with role, name and what labels them. Returns the window."""
        window = self.front(title)
        self.wait(lambda: self.focused() == [self.title_of(window)], f"one focus, in {title}")
        items = self.tree(title)
        usable = [item for item in items if {"focusable", "showing"} <= set(item["states"])]
        self.assertEqual([item for item in usable if not item["name"]], [])
        self.assertLessEqual({item["role"] for item in usable}, USABLE)
        told = {(item["role"], item["name"], *item["labels"]) for item in items}
        self.assertLessEqual(set(parts), told)
        return window

    def leave(self, window, key="Escape"):
        self.keys(window, key)
        self.wait(lambda: window not in self.windows(), "the window's end")

    def test_every_window_is_named_part_by_part(self):
        self.open(NOTE)
        self.keys(self.note, "ctrl+Home", "ctrl+shift+Right")
        self.check("Note 1", ("frame", "Note 1"), ("text", "Note 1"), ("text", "Règle"),
                   ("push button", "Menus, Règle, Paragraphe"), ("label", "Format RichText (rtf)"))
        self.keys(self.note, "ctrl+f")
        find = self.check("Trouver", ("dialog", "Trouver / Remplacer"), ("label", "Trouver:"),
                          ("combo box", "Trouver:", "Trouver:"), ("text", "Trouver:"),
                          ("check box", "Sensible à la casse"))
        self.type(find, "zzz")
        self.keys(find, "Return")
        box = self.check("notes_host", ("alert", "notes_host"), ("label", "Texte non trouvé"),
                         ("push button", "OK"))
        self.leave(box, "Return")
        self.leave(find)
        self.keys(self.note, "F10", "Down", "Down", "Return")
        self.leave(self.check("symboles", ("panel", "Symboles"), ("label", "!"),
                              ("combo box", "Choisir la fonte", "Choisir la fonte"),
                              ("scroll bar", "Défilement des symboles")))
        self.keys(self.note, *LEARN)
        self.leave(self.check("Apprentissage", ("text", "Texte erroné", "Texte erroné"),
                              ("text", "Faire corrections", "Faire corrections")))
        self.keys(self.note, "F10", "Right", "Down", "Return")
        fonts = self.check("Police", ("text", "Police"), ("list", "Police"),
                           ("text", "Taille", "Taille"), ("list", "Taille"))
        self.keys(fonts, "alt+o")
        self.leave(self.check("Couleur", ("spin button", "Rouge :", "Rouge :")))
        self.leave(fonts)
        self.paragraph_dialog()
        self.check("Format", ("panel", "Alignement"), ("radio button", "Centre"),
                   *((role, "Indent Gauche", "Indent Gauche") for role in ("text", "spin button")),
                   ("combo box", "Appliquer Style", "Appliquer Style"), ("text", "Taille"))

    def test_typing_deleting_and_formatting_are_told_as_such(self):
        self.open(NOTE)
        self.wait(lambda: len(self.focused()) == 1, "one focus")
        self.keys(self.note, "ctrl+Home")
        self.type(self.note, "x")
        self.told(("object:text-changed:insert", 0, "x"), ("object:text-caret-moved", 1, ""))
        self.keys(self.note, "ctrl+Delete")
        self.told(("object:text-changed:delete", 1, "plain "))
        self.keys(self.note, "ctrl+a")
        self.told(("object:text-selection-changed", 0, ""))
        self.keys(self.note, "ctrl+e")
        self.host.waits_for("rtf 1", lambda source: source.count("\\qc") > 0)
        self.keys(self.note, "ctrl+Home")
        heard = self.told(("object:text-caret-moved", 0, ""))
        self.assertFalse([event for event in heard if "text-changed" in event[0]])

    def test_a_word_has_its_attributes(self):
        self.open(NOTE)
        runs = next(item["runs"] for item in self.tree() if item["role"] == "text" and
                    "editable" in item["states"])
        looks = ("family-name", "weight", "underline", "fg-color", "vertical-align", "justification")
        self.assertEqual([run["range"] for run in runs],
                         [[0, 6], [6, 10], [10, 12], [12, 14], [14, 17]])
        self.assertEqual([runs[1][look] for look in looks],
                         ["Arial", "bold", "single", "255,0,0", "baseline", "left"])
        self.assertEqual(runs[2]["vertical-align"], "super")
        self.assertEqual(runs[4]["justification"], "center")

    def reach(self, window, role, name):
        """Presses Tab until that part has the focus."""
        def there():
            parts = [(item["role"], item["name"]) for item in self.tree() if "focused" in item["states"]]
            if (role, name) in parts:
                return True
            self.keys(window, "Tab")
            return False
        self.wait(there, f"the focus at {name!r}")

    def part(self, role, name):
        return next(item for item in self.tree() if (item["role"], item["name"]) == (role, name))

    def test_a_spinner_has_the_number_of_its_box(self):
        self.open(r"{\rtf1\li567 a\par}")
        window = self.paragraph_dialog()
        self.reach(window, "spin button", "Indent Gauche")
        before = self.part("spin button", "Indent Gauche")["value"]
        self.listener.ask("events")
        self.keys(window, "Up")
        self.wait(lambda: self.part("spin button", "Indent Gauche")["value"] > before, "the step")
        heard = self.wait(lambda: json.loads(self.listener.ask("events")), "its event")
        self.assertIn(("object:property-change:accessible-value", "Indent Gauche"),
                      [(event[0], event[3]) for event in heard])

    def test_the_keyboard_walks_the_symbols(self):
        self.open(NOTE)
        self.keys(self.note, "F10", "Down", "Down", "Down", "Return")
        window = self.front("symboles")
        self.reach(window, "panel", "Symboles")
        self.keys(window, "Right", "Right", "Down")
        self.wait(lambda: any(item["name"] == "Symboles, 5, Special Char 53" for item in self.tree()),
                  "the sign's name")
        self.keys(window, "space", "End", "Return")
        self.wait(lambda: any(item["name"] == "Symboles, ÿ, Special Char 255" for item in self.tree()),
                  "the last sign")
        self.keys(window, "alt+f")
        self.wait(lambda: window not in self.windows(), "the window's end")

    def test_menu_entries_are_told_without_their_keys(self):
        self.open(NOTE)
        self.keys(self.note, "F10", "Down")
        entry = self.wait(lambda: next((item for item in self.tree() if item["name"] == "Trouver"), None),
                          "the entry")
        self.assertEqual((entry["role"], entry["keys"]), ("menu item", "Ctrl+F"))

    def test_saving_is_told(self):
        self.open(NOTE)
        self.type(self.note, "x")
        self.keys(self.note, "ctrl+s")
        heard = []
        def told():
            heard.extend(json.loads(self.listener.ask("events")))
            return any("accessible-name" in event[0] and "Enregistré" in event[3] for event in heard)
        self.wait(told, f"the sign among {heard}")

    def test_a_misspelt_word_is_told(self):
        (self.home / "fr_FR.aff").write_text("SET UTF-8\n")
        (self.home / "fr_FR.dic").write_text("2\nune\nplante\n")
        self.env["DICPATH"] = str(self.home)
        self.open(r"{\rtf1 une rebuste plante}")
        text = lambda: next(item["runs"] for item in self.tree() if "editable" in item["states"] and
                            item["runs"])
        wrong = lambda: [run["range"] for run in text() if run.get("invalid") == "spelling"]
        self.wait(lambda: wrong() == [[4, 11]], "the word")


if __name__ == "__main__":
    main()
