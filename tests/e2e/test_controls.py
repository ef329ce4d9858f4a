# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""Tests that use every control of the main window by pointer and keyboard."""

import re
import subprocess
import unittest

from desktop import (
    KEY_CODES,
    Desktop,
    Program,
    find_first,
    key,
    move_pointer,
    role_name,
    showing_objects,
    wait_for,
)


class Controls(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        self.program = self.enterContext(Program(self.desktop))
        self.program.find(lambda a: a.name == "Kopieren", "the window")
        self.program.window()

    def assert_one_new_secret(self, action, pattern=None):
        """The action generates exactly one secret; returns this secret."""
        before = self.program.history()
        action()
        secret = wait_for(
            lambda: self.program.history() != before and self.program.secret(), "another secret"
        )
        # A further new secret would have moved the history by another row.
        self.assertEqual(self.program.history(), ([secret] + before)[:4])
        if pattern:
            self.assertRegex(secret, pattern)
        return secret

    def test_every_switch_regenerates_once(self):
        for name, pattern in (
            ("Kleinbuchstaben", r"^[^a-z]{10}$"),
            ("Großbuchstaben", r"^[^a-zA-Z]{10}$"),
            ("Sonderzeichen", r"^[2-9]{10}$"),
            ("Ähnliche Zeichen vermeiden", r"^[0-9]{10}$"),
            ("Jede Gruppe muss vorkommen", r"^[0-9]{10}$"),
            ("Kleinbuchstaben", r"^[a-z0-9]{10}$"),
            ("Zahlen", r"^[a-z]{10}$"),
        ):
            with self.subTest(name):
                self.assert_one_new_secret(lambda: self.program.click(name), pattern)

    def test_every_passphrase_control_regenerates_once(self):
        self.assert_one_new_secret(
            lambda: self.program.click("Passphrase"), r"^([a-z]+-){5}[0-9]{1,2}$"
        )
        self.assert_one_new_secret(
            lambda: self.program.click("Wörter groß beginnen"), r"^([A-Z][a-z]+-){5}[0-9]{1,2}$"
        )
        self.assert_one_new_secret(
            lambda: self.program.click("Zahl anhängen"), r"^([A-Z][a-z]+-){4}[A-Z][a-z]+$"
        )
        self.program.click("Trennzeichen")
        key("ctrl+a")
        self.assert_one_new_secret(lambda: key("plus"), r"^([A-Z][a-z]+\+){4}[A-Z][a-z]+$")
        self.assert_one_new_secret(
            lambda: self.program.set_slider("Wörter", 8), r"^([A-Z][a-z]+\+){7}"
        )
        self.assert_one_new_secret(lambda: self.program.click("Passwort"), r"^\S{10}$")
        # The passphrase settings are unchanged.
        self.assert_one_new_secret(lambda: self.program.click("Passphrase"), r"^([A-Z][a-z]+\+){7}")

    def test_keys_move_the_slider(self):
        self.program.click("Passwort")
        key("Tab")
        for keys, length in (
            ("Right", 11),
            ("Left", 10),
            ("Up", 11),
            ("Down", 10),
            ("Page_Up", 16),
            ("Page_Up", 22),
            ("Page_Down", 16),
            ("End", 64),
            ("Home", 8),
            ("Page_Up", 14),
            ("Page_Down", 8),
        ):
            with self.subTest(keys):
                self.assert_one_new_secret(lambda: key(keys), rf"^\S{{{length}}}$")

    def turn_wheel(self, name, button):
        """Turns the wheel over the control by one step: button 4 is up, button 5 is down."""
        move_pointer(*self.program.stable_centre(name))
        subprocess.run(["xdotool", "click", str(button)], check=True)

    def test_the_wheel_moves_only_the_focused_slider(self):
        before = self.program.history()
        self.turn_wheel("Länge", 4)
        self.turn_wheel("Länge", 5)
        # The program handles the events in order, so it has ignored the wheel when it handles keys.
        key("Tab", "Tab")
        wait_for(lambda: self.focused() == ["Länge"], "the focus on the slider")
        self.assertEqual(self.program.history(), before)
        self.assert_one_new_secret(lambda: self.turn_wheel("Länge", 4), r"^\S{11}$")
        self.assert_one_new_secret(lambda: self.turn_wheel("Länge", 5), r"^\S{10}$")

    def slider_value(self, name):
        slider = self.program.find(lambda a: a.name == name, f"the slider {name}")
        return slider.queryValue().currentValue

    def test_a_slider_keeps_whole_numbers(self):
        # The second value chooses the same number, so it generates no secret.
        self.assert_one_new_secret(
            lambda: self.program.set_slider("Länge", 33.9), r"^\S{33}$"
        )
        for value in (33.9, 33.5):
            self.program.set_slider("Länge", value)
            self.assertEqual(self.slider_value("Länge"), 33)
        self.assert_one_new_secret(
            lambda: self.program.set_slider("Länge", 34.2), r"^\S{34}$"
        )
        self.assertEqual(self.slider_value("Länge"), 34)

    def test_return_presses_the_focused_button(self):
        self.program.click("Neu erzeugen")
        wait_for(lambda: self.focused() == ["Neu erzeugen"], "the focus on the button")
        self.assert_one_new_secret(lambda: key("Return"))
        self.assert_one_new_secret(lambda: key("KP_Enter"))
        key("Tab", "Return")
        self.program.find(lambda a: a.name == "Kopiert", "the confirmation")
        second = self.program.history()[1]
        key("Tab", "Tab")
        wait_for(lambda: self.focused() == [second], "the focus on the second row")
        key("Return")
        wait_for(lambda: self.program.secret() == second, "the second secret in the display")

    def test_arrow_keys_switch_the_mode(self):
        key("Tab")
        for keys, pattern in (
            ("Down", r"^[a-z]+-"),
            ("Up", r"^\S{10}$"),
            ("Right", r"^[a-z]+-"),
            ("Left", r"^\S{10}$"),
        ):
            with self.subTest(keys):
                self.assert_one_new_secret(lambda: key(keys), pattern)

    def test_tab_reaches_the_controls(self):
        # Tab reaches the segmented control of the mode, then the slider, then the first switch.
        key("Tab", "Tab", "Tab")
        self.assert_one_new_secret(lambda: key("space"), r"^[^a-z]{10}$")
        key("shift+Tab", "shift+Tab")
        self.assert_one_new_secret(lambda: key("Right"), r"^[a-z]+-")

    def test_shortcuts_work_inside_the_separator_field(self):
        self.assert_one_new_secret(lambda: self.program.click("Passphrase"))
        self.program.click("Trennzeichen")
        self.assert_one_new_secret(lambda: key("ctrl+r"))
        key("ctrl+shift+c")
        self.program.find(lambda a: a.name == "Kopiert", "the confirmation")

    def test_shortcuts_work_while_the_secret_is_selected(self):
        key("ctrl+a")
        self.assert_one_new_secret(lambda: key("ctrl+r"))
        key("ctrl+shift+c")
        self.program.find(lambda a: a.name == "Kopiert", "the confirmation")

    def focused(self):
        """The names of the controls that have the keyboard focus."""
        import pyatspi

        return [
            a.name
            for a in showing_objects(self.program.accessible())
            if a.getState().contains(pyatspi.STATE_FOCUSED) and role_name(a) != "popup menu"
        ]

    def assert_focus_returns(self, name, popup):
        """Escape closes the alert or menu with this object, and the control gets the focus."""
        self.program.find(lambda a: a.name == popup, popup)
        wait_for(lambda: self.focused() != [name], f"the focus in {popup}")
        key("Escape")
        wait_for(lambda: self.focused() == [name], f"the focus on {name}")

    def test_focus_returns_from_the_alert(self):
        groups = ("Kleinbuchstaben", "Großbuchstaben", "Zahlen")
        for name in groups:
            self.assert_one_new_secret(lambda: self.program.click(name))
        key("Tab", "space")
        self.assert_focus_returns("Sonderzeichen", "Einstellung prüfen")
        self.assert_one_new_secret(lambda: key("space"), r"^[^a-zA-Z0-9]{10}$")
        key("shift+Tab")
        wait_for(lambda: self.focused() == ["Zahlen"], "the focus on another control")
        self.program.press("Sonderzeichen")
        self.assert_focus_returns("Sonderzeichen", "Einstellung prüfen")
        self.assert_one_new_secret(lambda: key("space"), r"^[^a-zA-Z0-9]{10}$")

    def test_a_screen_reader_that_switches_the_mode_keeps_the_focus(self):
        key("Tab", "Tab")
        wait_for(lambda: self.focused() == ["Länge"], "the focus on the slider")
        # The program destroys the slider with the settings of the password mode.
        self.assert_one_new_secret(lambda: self.program.press("Passphrase"), r"^[a-z]+-")
        wait_for(lambda: "Passphrase" in self.focused(), "the focus on the segment")

    def test_focus_returns_from_the_menu(self):
        key("Tab", "Tab")
        wait_for(lambda: self.focused() == ["Länge"], "the focus on the slider")
        key("F10")
        self.assert_focus_returns("Länge", "Morvane beenden")
        self.program.click("Menü")
        self.assert_focus_returns("Länge", "Morvane beenden")
        self.program.press("Menü")
        self.assert_focus_returns("Menü", "Morvane beenden")
        key("space")
        self.assert_focus_returns("Menü", "Morvane beenden")
        # A press outside of the menu closes the menu, and the pressed control gets the focus.
        key("space")
        self.program.find(lambda a: a.name == "Morvane beenden", "the menu")
        self.program.click("Zahlen")
        wait_for(lambda: self.focused() == ["Zahlen"], "the focus on the pressed control")

    def menu_items(self):
        return [
            a.name
            for a in showing_objects(self.program.accessible())
            if role_name(a) == "menu item"
        ]

    def separator(self):
        """The text in the separator field."""
        field = self.program.find(
            lambda a: a.name == "Trennzeichen" and role_name(a) == "text", "the field"
        )
        return field.queryText().getText(0, -1)

    def test_the_separator_is_a_single_line(self):
        self.program.click("Passphrase")
        self.program.click("Trennzeichen")
        for text, expected in (("+\n", "+"), ("a\r\nb", "ab"), ("a\tb", "a b"), ("\u2028=", "=")):
            for name, selection, paste in (
                ("paste", "clipboard", lambda: key("ctrl+v")),
                ("middle click", "primary", lambda: self.middle_click("Trennzeichen")),
            ):
                with self.subTest(name, text=text):
                    key("ctrl+a", "Delete")
                    wait_for(lambda: self.separator() == "", "an empty field")
                    subprocess.run(
                        ["xclip", "-selection", selection], input=text, text=True, check=True
                    )
                    paste()
                    wait_for(lambda: self.separator() == expected, "the pasted text")
                    words = self.program.secret().split(expected)
                    self.assertGreater(len(words), 5, words)

    def middle_click(self, name):
        move_pointer(*self.program.stable_centre(name, "text"))
        subprocess.run(["xdotool", "click", "2"], check=True)

    def test_a_screen_reader_edits_the_separator(self):
        self.program.press("Passphrase")
        field = self.program.find(
            lambda a: a.name == "Trennzeichen" and role_name(a) == "text", "the field"
        )
        self.assertIn("EditableText", field.get_interfaces())
        for text, expected in (("=", "="), ("a\nb", "ab"), ("wxyz", "wxy")):
            with self.subTest(text):
                field.queryEditableText().setTextContents(text)
                wait_for(lambda: self.separator() == expected, "the new text")
                self.assertGreater(len(self.program.secret().split(expected)), 5)

    def test_undo_survives_the_limit_of_the_separator(self):
        self.program.click("Passphrase")
        self.program.click("Trennzeichen")
        for keys, text in (
            (["ctrl+a", "a"], "a"),
            (["b"], "ab"),
            (["c"], "abc"),
            (["d"], "abc"),
            # The cursor stays behind the typed character.
            (["Home", "Right", "x"], "axb"),
            (["y"], "axy"),
            (["ctrl+z"], "axb"),
            (["ctrl+z"], "abc"),
            (["ctrl+z"], "ab"),
            (["ctrl+z"], "a"),
            (["ctrl+z"], "-"),
            (["ctrl+z"], "-"),
            (["ctrl+shift+z", "ctrl+shift+z"], "ab"),
            (["z"], "abz"),
            (["ctrl+shift+z"], "abz"),
            (["ctrl+z"], "ab"),
        ):
            with self.subTest(keys):
                key(*keys)
                wait_for(lambda: self.separator() == text, f"the text {text}")

    def test_the_separator_has_a_context_menu(self):
        items = ["Rückgängig", "Ausschneiden", "Kopieren", "Einfügen", "Alles auswählen"]
        self.assert_one_new_secret(lambda: self.program.click("Passphrase"))
        self.program.click("Trennzeichen")
        for name, opens in (
            ("the right button", lambda: subprocess.run(["xdotool", "click", "3"], check=True)),
            ("the menu key", lambda: key("Menu")),
            ("Shift+F10", lambda: key("shift+" + KEY_CODES["F10"])),
        ):
            with self.subTest(name):
                opens()
                wait_for(lambda: self.menu_items() == items, "the context menu")
                self.program.find(
                    lambda a: a.name == "Bearbeiten" and role_name(a) == "popup menu", "its name"
                )
                key("Escape")
                wait_for(lambda: not self.menu_items(), "a closed menu")
        self.assert_one_new_secret(lambda: key("ctrl+a", "plus"), r"^([a-z]+\+){5}")
        key("Menu")
        self.assert_one_new_secret(lambda: self.program.click("Rückgängig"), r"^([a-z]+-){5}")
        key("Menu")
        self.program.click("Alles auswählen")
        wait_for(lambda: not self.menu_items(), "a closed menu")
        key("Menu")
        self.assert_one_new_secret(lambda: self.program.click("Ausschneiden"), r"^[a-z]+[0-9]+$")
        key("Menu")
        self.assert_one_new_secret(lambda: self.program.click("Einfügen"), r"^([a-z]+-){5}")

    def test_the_alert_opens_and_closes(self):
        for name in ("Kleinbuchstaben", "Großbuchstaben", "Zahlen"):
            self.assert_one_new_secret(lambda: self.program.click(name))
        last = self.program.secret()
        self.program.click("Sonderzeichen")
        self.program.find(lambda a: a.name == "Einstellung prüfen", "the alert")
        self.program.find(
            lambda a: a.name == "Bitte mindestens eine Zeichengruppe aktivieren.", "the message"
        )
        key("Return")
        wait_for(
            lambda: find_first(self.program.accessible(), lambda a: a.name == "Einstellung prüfen")
            is None,
            "a closed alert",
        )
        self.assertEqual(self.program.secret(), last)
        self.assert_one_new_secret(lambda: self.program.click("Zahlen"), r"^[2-9]{10}$")

    def test_a_click_on_the_third_history_row_shows_its_secret(self):
        for _ in range(3):
            self.assert_one_new_secret(lambda: self.program.click("Neu erzeugen"))
        rows = self.program.history()
        row = self.program.find(
            lambda a: a.name == rows[2] and role_name(a) == "button", "the third row"
        )
        self.assertEqual(row.description, "Holt diesen Wert zurück in die Anzeige.")
        self.program.click(rows[2])
        wait_for(lambda: self.program.secret() == rows[2], "the third secret in the display")
        self.assertEqual(self.program.history(), rows)

    def test_dragging_moves_the_slider_to_its_end(self):
        x, y = self.program.stable_centre("Länge")
        # The handle for the length 10 is near the left end.
        left = x - 116 + 9
        subprocess.run(
            ["xdotool", "mousemove", "--sync", str(left), str(y), "mousedown", "1"], check=True
        )
        for step in range(left, left + 260, 4):
            subprocess.run(["xdotool", "mousemove", str(step), str(y)], check=True)
        subprocess.run(["xdotool", "mouseup", "1"], check=True)
        wait_for(lambda: re.fullmatch(r"\S{64}", self.program.secret() or ""), "64 characters")

    def test_the_secret_and_its_rating_are_announced(self):
        import pyatspi
        from gi.repository import GLib

        announced = []
        kind = "object:property-change:accessible-name"

        def listener(event):
            announced.append(event.source.name)

        pyatspi.Registry.registerEventListener(listener, kind)
        self.addCleanup(pyatspi.Registry.deregisterEventListener, listener, kind)

        def has_announced(*patterns):
            while GLib.MainContext.default().iteration(False):
                pass
            return all(any(re.fullmatch(p, name) for name in announced) for p in patterns)

        def announces_another_secret():
            self.program.press("Neu erzeugen")
            return has_announced(r"\S{10}")

        # Qt sends no accessibility events until the accessibility bus has announced the listener.
        wait_for(announces_another_secret, "an event with the secret")
        self.program.set_slider("Länge", 15)
        wait_for(
            lambda: has_announced(r"\S{15}", "Stark", "· ca. 93 Bit"),
            "events with the new secret, its rating and its bits",
        )

    def test_screen_readers_know_disabled_items_and_modal_alerts(self):
        import pyatspi

        def has_state(accessible, state):
            return accessible.getState().contains(state)

        frame = self.program.find(lambda a: role_name(a) == "frame", "the window")
        self.assertEqual(frame.name, "Morvane")
        key("F10")
        copy = self.program.find(
            lambda a: a.name == "Auswahl kopieren" and role_name(a) == "menu item", "the item"
        )
        menu = self.program.find(lambda a: role_name(a) == "popup menu", "the menu")
        self.assertEqual(menu.name, "Menü")
        self.assertFalse(has_state(menu, pyatspi.STATE_MODAL))
        self.assertFalse(has_state(copy, pyatspi.STATE_ENABLED))
        self.assertFalse(has_state(copy, pyatspi.STATE_SENSITIVE))
        self.program.press("Alles auswählen")
        key("F10")
        wait_for(lambda: has_state(copy, pyatspi.STATE_ENABLED), "an enabled item")
        key("Escape")
        for name in ("Kleinbuchstaben", "Großbuchstaben", "Zahlen", "Sonderzeichen"):
            self.program.press(name)
        alert = self.program.find(lambda a: role_name(a) == "dialog", "the alert")
        self.assertEqual(alert.name, "Einstellung prüfen")
        self.assertTrue(has_state(alert, pyatspi.STATE_MODAL))

    def test_every_control_has_a_role_and_a_german_name(self):
        def roles_and_names():
            return {(role_name(a), a.name) for a in showing_objects(self.program.accessible())}

        expected = {
            ("slider", "Länge"),
            ("radio button", "Passwort"),
            ("radio button", "Passphrase"),
            ("check box", "Kleinbuchstaben"),
            ("check box", "Großbuchstaben"),
            ("check box", "Zahlen"),
            ("check box", "Sonderzeichen"),
            ("check box", "Ähnliche Zeichen vermeiden"),
            ("check box", "Jede Gruppe muss vorkommen"),
            ("button", "Neu erzeugen"),
            ("button", "Kopieren"),
            ("button", "Menü"),
            ("button", "Minimieren"),
            ("button", "Maximieren"),
            ("button", "Schließen"),
        }
        self.assertLessEqual(expected, roles_and_names())
        self.program.press("Passphrase")
        expected = {
            ("slider", "Wörter"),
            ("text", "Trennzeichen"),
            ("check box", "Wörter groß beginnen"),
            ("check box", "Zahl anhängen"),
        }
        wait_for(lambda: expected <= roles_and_names(), "the controls of the passphrase mode")


if __name__ == "__main__":
    unittest.main(verbosity=2)
