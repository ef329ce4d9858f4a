# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The About window: opened from the menu, shown at most once, with a fixed size."""

import re
import unittest

from desktop import ARTIFACTS, Desktop, Program, key, output, role_name, showing_objects, wait_for

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
        wait_for(lambda: self.active_window() == self.main_window, "an active window")

    def about_windows(self):
        """The ids of the X windows with the About window's title."""
        return [
            window
            for window in output(
                "xdotool", "search", "--onlyvisible", "--pid", str(self.program.process.pid)
            ).split()
            if output("xdotool", "getwindowname", window).strip() == TITLE
        ]

    @staticmethod
    def active_window():
        return output("xdotool", "getactivewindow").strip()

    def open_menu(self):
        key("F10")
        self.program.find(lambda a: a.name == "Morvane beenden", "the menu")

    def open_by_keyboard(self):
        self.open_menu()
        key("Down", "Return")
        windows = wait_for(self.about_windows, "the About window")
        wait_for(lambda: self.active_window() == windows[0], "the About window in front")
        return windows[0]

    def size(self, window):
        info = output("xwininfo", "-id", window)
        return tuple(int(re.search(rf"{side}:\s+(\d+)", info)[1]) for side in ("Width", "Height"))

    def test_shows_its_texts_in_its_size(self):
        window = self.open_by_keyboard()
        root = self.program.find(
            lambda a: a.name == TITLE and role_name(a) in ("dialog", "frame", "window"),
            "the About window",
        )
        texts = [a.name for a in showing_objects(root) if role_name(a) in ("label", "heading")]
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
        self.program.save_screenshot(ARTIFACTS / "about.png")
        self.assertEqual(self.size(window), (370, 390))

    def test_opening_it_again_raises_the_same_window(self):
        window = self.open_by_keyboard()
        output("xdotool", "windowactivate", "--sync", self.main_window)
        wait_for(lambda: self.active_window() == self.main_window, "the main window in front")
        self.open_menu()
        self.program.press(TITLE)
        wait_for(lambda: self.active_window() == window, "the About window in front again")
        self.assertEqual(self.about_windows(), [window])

    def test_cannot_be_resized(self):
        window = self.open_by_keyboard()
        hints = output("xprop", "-id", window, "WM_NORMAL_HINTS")
        self.assertIn("minimum size: 370 by 390", hints)
        self.assertIn("maximum size: 370 by 390", hints)
        # A resize by the window manager, as when the user drags an edge.
        output("wmctrl", "-i", "-r", window, "-e", "0,100,100,500,600")
        wait_for(
            lambda: re.search(
                r"Absolute upper-left X:\s+10\d", output("xwininfo", "-id", window)
            ),
            "the window at its new place",
        )
        self.assertEqual(self.size(window), (370, 390))

    def test_closes_by_keyboard_and_opens_again(self):
        for chord in ("Escape", "ctrl+w"):
            with self.subTest(chord):
                self.open_by_keyboard()
                key(chord)
                wait_for(lambda: not self.about_windows(), "no About window")
                wait_for(
                    lambda: self.active_window() == self.main_window, "the main window in front"
                )
                self.assertIsNone(self.program.process.poll())

    def test_does_not_change_the_secret(self):
        value, history = self.program.value(), self.program.history()
        self.open_by_keyboard()
        key("Escape")
        wait_for(lambda: not self.about_windows(), "no About window")
        self.assertEqual((self.program.value(), self.program.history()), (value, history))

    def test_shortcuts_of_the_main_window_do_nothing(self):
        value, history = self.program.value(), self.program.history()
        self.open_by_keyboard()
        key("ctrl+r", "ctrl+a", "ctrl+c", "ctrl+shift+c", "F10", "ctrl+m")
        # Keys are handled in order: when this one has closed the window, the others are done.
        key("ctrl+w")
        wait_for(lambda: not self.about_windows(), "no About window")
        wait_for(lambda: self.active_window() == self.main_window, "the main window in front")
        self.assertEqual((self.program.value(), self.program.history()), (value, history))
        names = {a.name for a in showing_objects(self.program.accessible())}
        self.assertFalse(names & {"Kopiert", "Morvane beenden"})
        self.assertEqual(output("xclip", "-o", "-selection", "clipboard"), "")
        self.assertEqual(output("xclip", "-o", "-selection", "primary"), "")
        # The same shortcuts work in the main window.
        key("ctrl+r")
        wait_for(lambda: self.program.value() != value, "another secret")
        key("ctrl+q")
        self.assertEqual(self.program.wait_for_exit(), (0, ""))

    def test_shortcuts_work_in_the_main_window_behind_it(self):
        self.open_by_keyboard()
        output("xdotool", "windowactivate", "--sync", self.main_window)
        wait_for(lambda: self.active_window() == self.main_window, "the main window in front")
        secret = self.program.value()
        key("ctrl+a", "ctrl+c")
        wait_for(
            lambda: output("timeout", "2", "xclip", "-o", "-selection", "clipboard") == secret,
            "the secret on the clipboard",
        )
        key("ctrl+w")
        self.assertEqual(self.program.wait_for_exit(), (0, ""))

    def test_menu_items_stay_enabled_while_it_is_in_front(self):
        import pyatspi

        def menu_items():
            return {
                (a.name, a.getState().contains(pyatspi.STATE_ENABLED))
                for a in showing_objects(self.program.accessible())
                if role_name(a) == "menu item"
            }

        window = self.open_by_keyboard()
        output("xdotool", "windowactivate", "--sync", self.main_window)
        wait_for(lambda: self.active_window() == self.main_window, "the main window in front")
        self.open_menu()
        before = menu_items()
        self.assertIn(("Fenster schließen", True), before)
        output("xdotool", "windowactivate", "--sync", window)
        wait_for(lambda: self.active_window() == window, "the About window in front")
        self.assertEqual(menu_items(), before)
        self.program.press("Fenster schließen")
        self.assertEqual(self.program.wait_for_exit(), (0, ""))

    def test_closes_when_the_program_quits(self):
        self.open_by_keyboard()
        key("ctrl+q")
        self.assertEqual(self.program.wait_for_exit(), (0, ""))

    def test_closes_with_the_main_window(self):
        self.open_by_keyboard()
        output("wmctrl", "-i", "-c", self.main_window)
        self.assertEqual(self.program.wait_for_exit(), (0, ""))


if __name__ == "__main__":
    unittest.main(verbosity=2)
