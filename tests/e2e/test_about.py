# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The About window: opened from the menu, at most once, and of a fixed size."""

import re
import unittest

from desktop import ARTIFACTS, Desktop, Program, everything, key, output, role_name, until

TITLE = "Über Morvane"


class About(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        self.program = self.enterContext(Program(self.desktop))
        self.program.find(lambda a: a.name == "Menü", "the menu's button")
        self.main_window = self.program.window()
        until(lambda: self.active() == self.main_window, "an active window")

    def about_windows(self):
        """Their X windows."""
        return [
            window
            for window in output(
                "xdotool", "search", "--onlyvisible", "--pid", str(self.program.process.pid)
            ).split()
            if output("xdotool", "getwindowname", window).strip() == TITLE
        ]

    @staticmethod
    def active():
        return output("xdotool", "getactivewindow").strip()

    def open_menu(self):
        key("F10")
        self.program.find(lambda a: a.name == "Morvane beenden", "the menu")

    def open_by_keyboard(self):
        self.open_menu()
        key("Down", "Return")
        windows = until(self.about_windows, "the About window")
        until(lambda: self.active() == windows[0], "the About window in front")
        return windows[0]

    def geometry(self, window):
        told = output("xwininfo", "-id", window)
        return tuple(int(re.search(rf"{side}:\s+(\d+)", told)[1]) for side in ("Width", "Height"))

    def test_says_what_it_has_to(self):
        window = self.open_by_keyboard()
        root = self.program.find(
            lambda a: a.name == TITLE and role_name(a) in ("dialog", "frame", "window"),
            "the About window",
        )
        texts = [a.name for a in everything(root) if role_name(a) in ("label", "heading")]
        self.assertEqual(
            texts,
            [
                "Morvane",
                "Version 1.1",
                "Sichere Passwörter. Lokal geschmiedet.",
                "Keine Cloud, keine Konten, keine Passwortspeicherung.",
                "Entwickelt von\nMorvane-Projekt – Morvane-Team",
                "© 2026 Morvane-Projekt",
            ],
        )
        self.program.picture(ARTIFACTS / "about.png")
        self.assertEqual(self.geometry(window), (370, 390))

    def test_there_is_one_and_it_comes_to_the_front(self):
        window = self.open_by_keyboard()
        output("xdotool", "windowactivate", "--sync", self.main_window)
        until(lambda: self.active() == self.main_window, "the main window in front")
        self.open_menu()
        self.program.press(TITLE)
        until(lambda: self.active() == window, "the About window in front again")
        self.assertEqual(self.about_windows(), [window])

    def test_cannot_be_resized(self):
        window = self.open_by_keyboard()
        hints = output("xprop", "-id", window, "WM_NORMAL_HINTS")
        self.assertIn("minimum size: 370 by 390", hints)
        self.assertIn("maximum size: 370 by 390", hints)
        # A request of the window manager's, as its own handles would make.
        output("wmctrl", "-i", "-r", window, "-e", "0,100,100,500,600")
        until(
            lambda: re.search(
                r"Absolute upper-left X:\s+10\d", output("xwininfo", "-id", window)
            ),
            "the window at its new place",
        )
        self.assertEqual(self.geometry(window), (370, 390))

    def test_closes_by_key_and_opens_again(self):
        for chord in ("Escape", "ctrl+w"):
            with self.subTest(chord):
                self.open_by_keyboard()
                key(chord)
                until(lambda: not self.about_windows(), "no About window")
                until(lambda: self.active() == self.main_window, "the main window in front")
                self.assertIsNone(self.program.process.poll())

    def test_does_not_touch_the_secret(self):
        value, history = self.program.value(), self.program.history()
        self.open_by_keyboard()
        key("Escape")
        until(lambda: not self.about_windows(), "no About window")
        self.assertEqual((self.program.value(), self.program.history()), (value, history))

    def test_the_keys_of_the_main_window_do_nothing_in_it(self):
        value, history = self.program.value(), self.program.history()
        self.open_by_keyboard()
        key("ctrl+r", "ctrl+a", "ctrl+c", "ctrl+shift+c", "F10", "ctrl+m")
        # Once this one has been dealt with, so have the others.
        key("ctrl+w")
        until(lambda: not self.about_windows(), "no About window")
        until(lambda: self.active() == self.main_window, "the main window in front")
        self.assertEqual((self.program.value(), self.program.history()), (value, history))
        names = {a.name for a in everything(self.program.accessible())}
        self.assertFalse(names & {"Kopiert", "Morvane beenden"})
        self.assertEqual(output("xclip", "-o", "-selection", "clipboard"), "")
        self.assertEqual(output("xclip", "-o", "-selection", "primary"), "")
        # They are the main window's again.
        key("ctrl+r")
        until(lambda: self.program.value() != value, "another secret")
        key("ctrl+q")
        self.assertEqual(self.program.ended(), (0, ""))

    def test_leaves_the_main_window_its_keys(self):
        self.open_by_keyboard()
        output("xdotool", "windowactivate", "--sync", self.main_window)
        until(lambda: self.active() == self.main_window, "the main window in front")
        value = self.program.value()
        key("ctrl+a", "ctrl+c")
        until(
            lambda: output("timeout", "2", "xclip", "-o", "-selection", "clipboard") == value,
            "the value on the clipboard",
        )
        key("ctrl+w")
        self.assertEqual(self.program.ended(), (0, ""))

    def test_the_menu_looks_usable_while_it_is_in_front(self):
        import pyatspi

        def commands():
            return {
                (a.name, a.getState().contains(pyatspi.STATE_ENABLED))
                for a in everything(self.program.accessible())
                if role_name(a) == "menu item"
            }

        window = self.open_by_keyboard()
        output("xdotool", "windowactivate", "--sync", self.main_window)
        until(lambda: self.active() == self.main_window, "the main window in front")
        self.open_menu()
        before = commands()
        self.assertIn(("Fenster schließen", True), before)
        output("xdotool", "windowactivate", "--sync", window)
        until(lambda: self.active() == window, "the About window in front")
        self.assertEqual(commands(), before)
        self.program.press("Fenster schließen")
        self.assertEqual(self.program.ended(), (0, ""))

    def test_quits_with_the_program(self):
        self.open_by_keyboard()
        key("ctrl+q")
        self.assertEqual(self.program.ended(), (0, ""))

    def test_goes_with_the_main_window(self):
        self.open_by_keyboard()
        output("wmctrl", "-i", "-c", self.main_window)
        self.assertEqual(self.program.ended(), (0, ""))


if __name__ == "__main__":
    unittest.main(verbosity=2)
