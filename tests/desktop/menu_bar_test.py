#!/usr/bin/env python3
"""The menu bar at the keyboard: which keys call it, what sends it away, where the keyboard goes then."""
from rig import Notes, main

NOTE = r"un deux trois\nquatre cinq\nsix sept"
TEXT, GROUND, EDT, BAR_ZONE = (150, 150), (2, 60), (20, 10), (40, 20)
UNDER_BAR, MOVED_BAR_ZONE = (40, 22), (40, 40)  # while the bar is shown


class MenuBar(Notes):
    def setUp(self):
        super().setUp()
        self.open(r"{\rtf1 un deux trois\par quatre cinq\par six sept\par}")
        self.keys(self.note, "ctrl+Home", "ctrl+shift+Right")
        self.bar_is("hidden")

    def bar_is(self, state):
        """With the keyboard or without, called by a key or shown for good."""
        self.host.waits_for("bar 1", state)

    def press(self, *keys):
        self.keys(self.note, *keys)

    def click(self, *points):
        for point in points:
            self.mouse(self.note, point, "click 1")

    def test_which_keys_call_it(self):
        self.run_x("setxkbmap", "fr")
        for keys, state in ((["F10"], "focused"), (["Alt_L"], "focused"), (["ISO_Level3_Shift"], "hidden"),
                            (["alt+x"], "hidden"), (["shift+Alt_L"], "hidden"), (["alt+shift+z"], "hidden"),
                            (["ctrl+Alt_L"], "hidden"), (["ctrl+F10"], "hidden")):
            with self.subTest(keys=keys):
                self.press(*keys)
                self.host.ask("focus 1")
                self.bar_is(state)
                self.press("Escape", "Escape")
                self.bar_is("hidden")

    def test_what_sends_it_away_and_leaves_the_text_as_it_was(self):
        ways = {"F10": ["F10"], "Alt": ["Alt_L"], "Escape": ["Escape"],
                "a command": ["Right", "Right", "Right", "Return", "ctrl+b"],
                "an entry": ["Right", "Right", "Down", "Down", "Escape", "Escape"]}
        for call in ("F10", "Alt_L"):
            for way, keys in ways.items():
                with self.subTest(call=call, way=way):
                    self.press(call)
                    self.bar_is("focused")
                    self.press(*keys)
                    self.bar_is("hidden")
                    self.assertEqual(self.host.ask("focus 1"), "Bx_RTF")
                    self.assertEqual(self.host.ask("selected 1"), "un ")
        self.press("F10", "Right", "Right", "Right", "Return")
        self.bar_is("hidden")
        self.host.waits_for("rtf 1", lambda source: "\\b " in source)
        self.type(self.note, "x")
        self.host.waits_for("text 1", "x" + NOTE[3:])

    def test_a_click_elsewhere_and_another_window_send_it_away(self):
        for point in (TEXT, GROUND, UNDER_BAR, MOVED_BAR_ZONE):
            self.press("F10")
            self.bar_is("focused")
            self.click(point)
            self.bar_is("hidden")
        self.press("F10")
        self.bar_is("focused")
        self.paragraph_dialog()
        self.bar_is("hidden")

    def typed_at(self, *acts):
        """The text with an x where these acts of the mouse have left the caret; it is as it was after."""
        self.mouse(self.note, *acts)
        self.bar_is("hidden")
        self.type(self.note, "x")
        self.host.waits_for("text 1", lambda text: "x" in text)
        text = self.host.ask("text 1")
        self.press("ctrl+z")
        self.host.waits_for("text 1", NOTE)
        return text

    def test_a_click_lands_where_the_text_was_seen(self):
        held = ("mousedown 1", "sleep 0.3", (17, 51), "sleep 0.3", "mouseup 1")
        for acts, text in ((((30, 68), "click 1"), NOTE.replace("quatre", "quaxtre")),
                           (((18, 50), *held), NOTE.replace("un", "uxn"))):
            with self.subTest(acts=acts):
                self.press("ctrl+Home", "ctrl+shift+Right", "F10")
                self.bar_is("focused")
                self.assertEqual(self.typed_at(*acts), text)

    def test_the_mouse_in_a_bar_that_a_key_called(self):
        self.press("F10")
        self.bar_is("focused")
        self.click(EDT)
        self.wait(self.popup, "the list")
        self.run_x("xdotool", "key", "Escape", "Escape")
        self.bar_is("hidden")

    def test_a_bar_that_the_mouse_has_shown_stays(self):
        self.click(BAR_ZONE)
        self.bar_is("shown")
        for keys in (["F10", "F10"], ["Alt_L", "Escape"], ["F10", "Right", "Right", "Right", "Return"]):
            self.press(*keys)
            self.bar_is("shown")
        self.press("Alt_L")
        self.bar_is("focused")
        self.click(TEXT)
        self.bar_is("shown")


if __name__ == "__main__":
    main()
