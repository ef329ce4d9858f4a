# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""Every control of the main window, used with real pointer and keys."""

import re
import subprocess
import unittest

from desktop import Desktop, Program, everything, first, key, role_name, until


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
        """After `action` there is exactly one secret more than before."""
        before = self.program.history()
        action()
        value = until(
            lambda: self.program.history() != before and self.program.value(), "another secret"
        )
        # A second one that followed at once would have moved the list once more.
        self.assertEqual(self.program.history(), ([value] + before)[:4])
        if pattern:
            self.assertRegex(value, pattern)
        return value

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
        self.assert_one_new_secret(lambda: self.program.slide("Wörter", 8), r"^([A-Z][a-z]+\+){7}")
        self.assert_one_new_secret(lambda: self.program.click("Passwort"), r"^\S{10}$")
        # The other mode's settings have been kept.
        self.assert_one_new_secret(lambda: self.program.click("Passphrase"), r"^([A-Z][a-z]+\+){7}")

    def test_the_slider_is_moved_by_keys(self):
        self.program.click("Passwort")
        key("Tab")
        for keys, length in (("Right", 11), ("Left", 10), ("End", 64), ("Home", 8)):
            self.assert_one_new_secret(lambda: key(keys), rf"^\S{{{length}}}$")

    def test_the_whole_window_is_used_without_a_pointer(self):
        # From the picker over the slider to the first switch.
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

    def test_shortcuts_work_inside_the_value(self):
        key("ctrl+a")
        self.assert_one_new_secret(lambda: key("ctrl+r"))
        key("ctrl+shift+c")
        self.program.find(lambda a: a.name == "Kopiert", "the confirmation")

    def test_the_alert_is_provoked_and_dismissed(self):
        for name in ("Kleinbuchstaben", "Großbuchstaben", "Zahlen"):
            self.assert_one_new_secret(lambda: self.program.click(name))
        last = self.program.value()
        self.program.click("Sonderzeichen")
        self.program.find(lambda a: a.name == "Einstellung prüfen", "the alert")
        self.program.find(
            lambda a: a.name == "Bitte mindestens eine Zeichengruppe aktivieren.", "the message"
        )
        key("Return")
        until(
            lambda: first(self.program.accessible(), lambda a: a.name == "Einstellung prüfen")
            is None,
            "the end of the alert",
        )
        self.assertEqual(self.program.value(), last)
        self.assert_one_new_secret(lambda: self.program.click("Zahlen"), r"^[2-9]{10}$")

    def test_the_third_history_row_is_taken_back(self):
        for _ in range(3):
            self.assert_one_new_secret(lambda: self.program.click("Neu erzeugen"))
        rows = self.program.history()
        row = self.program.find(
            lambda a: a.name == rows[2] and role_name(a) == "button", "the third row"
        )
        self.assertEqual(row.description, "Holt diesen Wert zurück in die Anzeige.")
        self.program.click(rows[2])
        until(lambda: self.program.value() == rows[2], "the third secret on show")
        self.assertEqual(self.program.history(), rows)

    def test_the_slider_is_dragged_to_its_end(self):
        x, y = self.program.middle("Länge")
        # The knob stands at 10, which is near the left end.
        left = x - 116 + 9
        subprocess.run(
            ["xdotool", "mousemove", "--sync", str(left), str(y), "mousedown", "1"], check=True
        )
        for step in range(left, left + 260, 4):
            subprocess.run(["xdotool", "mousemove", str(step), str(y)], check=True)
        subprocess.run(["xdotool", "mouseup", "1"], check=True)
        until(lambda: re.fullmatch(r"\S{64}", self.program.value() or ""), "64 characters")

    def test_the_value_and_its_rating_are_announced(self):
        import pyatspi
        from gi.repository import GLib

        announced = []
        kind = "object:property-change:accessible-name"

        def listener(event):
            announced.append(event.source.name)

        pyatspi.Registry.registerEventListener(listener, kind)
        self.addCleanup(pyatspi.Registry.deregisterEventListener, listener, kind)

        def heard(*patterns):
            while GLib.MainContext.default().iteration(False):
                pass
            return all(any(re.fullmatch(p, name) for name in announced) for p in patterns)

        def heard_after_another():
            self.program.press("Neu erzeugen")
            return heard(r"\S{10}")

        # How soon the program learns of a listener is up to the bus.
        until(heard_after_another, "the value on the accessibility bus")
        self.program.slide("Länge", 15)
        until(
            lambda: heard(r"\S{15}", "Stark", "· ca. 93 Bit"),
            "the new value, its rating and its bits on the accessibility bus",
        )

    def test_every_control_has_a_role_and_a_german_name(self):
        def named():
            return {(role_name(a), a.name) for a in everything(self.program.accessible())}

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
        self.assertLessEqual(expected, named())
        self.program.press("Passphrase")
        expected = {
            ("slider", "Wörter"),
            ("text", "Trennzeichen"),
            ("check box", "Wörter groß beginnen"),
            ("check box", "Zahl anhängen"),
        }
        until(lambda: expected <= named(), "the passphrase's controls")


if __name__ == "__main__":
    unittest.main(verbosity=2)
