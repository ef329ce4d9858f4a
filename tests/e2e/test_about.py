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
        wait_for(lambda: self.active_window() == windows[0], "the active About window")
        return windows[0]

    def size(self, window):
        info = output("xwininfo", "-id", window)
        return tuple(int(re.search(rf"{side}:\s+(\d+)", info)[1]) for side in ("Width", "Height"))

    def test_shows_the_expected_texts_and_has_the_expected_size(self):
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

    def test_the_menu_item_raises_the_open_window(self):
        window = self.open_by_keyboard()
        output("xdotool", "windowactivate", "--sync", self.main_window)
        wait_for(lambda: self.active_window() == self.main_window, "the active main window")
        self.open_menu()
        self.program.press(TITLE)
        wait_for(lambda: self.active_window() == window, "the active About window")
        self.assertEqual(self.about_windows(), [window])

    def test_cannot_be_resized(self):
        window = self.open_by_keyboard()
        hints = output("xprop", "-id", window, "WM_NORMAL_HINTS")
        self.assertIn("minimum size: 370 by 390", hints)
        self.assertIn("maximum size: 370 by 390", hints)
        # The window manager handles this request like the drag of an edge.
        output("wmctrl", "-i", "-r", window, "-e", "0,100,100,500,600")
        wait_for(
            lambda: re.search(
                r"Absolute upper-left X:\s+10\d", output("xwininfo", "-id", window)
            ),
            "the window at its new position",
        )
        self.assertEqual(self.size(window), (370, 390))

    def test_closes_by_keyboard_and_opens_again(self):
        for combination in ("Escape", "ctrl+w"):
            with self.subTest(combination):
                self.open_by_keyboard()
                key(combination)
                wait_for(lambda: not self.about_windows(), "no About window")
                wait_for(
                    lambda: self.active_window() == self.main_window, "the active main window"
                )
                self.assertIsNone(self.program.process.poll())

    def test_focus_returns_to_the_control_that_had_it(self):
        import pyatspi

        def focused():
            return [
                a.name
                for a in showing_objects(self.program.accessible())
                if a.getState().contains(pyatspi.STATE_FOCUSED)
            ]

        key("Tab", "Tab")
        wait_for(lambda: focused() == ["Länge"], "the focus on the slider")
        for name, opens in (
            ("Länge", self.open_menu),
            ("Menü", lambda: self.program.press("Menü")),
        ):
            with self.subTest(name):
                opens()
                self.program.press(TITLE)
                windows = wait_for(self.about_windows, "the About window")
                wait_for(lambda: self.active_window() == windows[0], "the active About window")
                key("Escape")
                wait_for(lambda: not self.about_windows(), "no About window")
                wait_for(lambda: focused() == [name], f"the focus on {name}")

    def test_does_not_change_the_secret(self):
        secret, history = self.program.secret(), self.program.history()
        self.open_by_keyboard()
        key("Escape")
        wait_for(lambda: not self.about_windows(), "no About window")
        self.assertEqual((self.program.secret(), self.program.history()), (secret, history))

    def test_shortcuts_of_the_main_window_do_nothing(self):
        secret, history = self.program.secret(), self.program.history()
        self.open_by_keyboard()
        key("ctrl+r", "ctrl+a", "ctrl+c", "ctrl+shift+c", "F10", "ctrl+m")
        # The program handles keys in order, so the window closes after all other keys are handled.
        key("ctrl+w")
        wait_for(lambda: not self.about_windows(), "no About window")
        wait_for(lambda: self.active_window() == self.main_window, "the active main window")
        self.assertEqual((self.program.secret(), self.program.history()), (secret, history))
        names = {a.name for a in showing_objects(self.program.accessible())}
        self.assertFalse(names & {"Kopiert", "Morvane beenden"})
        self.assertEqual(output("xclip", "-o", "-selection", "clipboard"), "")
        self.assertEqual(output("xclip", "-o", "-selection", "primary"), "")
        # The same shortcuts work in the main window.
        key("ctrl+r")
        wait_for(lambda: self.program.secret() != secret, "another secret")
        key("ctrl+q")
        self.assertEqual(self.program.wait_for_exit(), (0, ""))

    def test_shortcuts_work_in_the_active_main_window(self):
        self.open_by_keyboard()
        output("xdotool", "windowactivate", "--sync", self.main_window)
        wait_for(lambda: self.active_window() == self.main_window, "the active main window")
        secret = self.program.secret()
        key("ctrl+a", "ctrl+c")
        wait_for(
            lambda: output("timeout", "2", "xclip", "-o", "-selection", "clipboard") == secret,
            "the secret on the clipboard",
        )
        key("ctrl+w")
        self.assertEqual(self.program.wait_for_exit(), (0, ""))

    def test_menu_items_stay_enabled_while_the_about_window_is_active(self):
        import pyatspi

        def menu_items():
            return {
                (a.name, a.getState().contains(pyatspi.STATE_ENABLED))
                for a in showing_objects(self.program.accessible())
                if role_name(a) == "menu item"
            }

        window = self.open_by_keyboard()
        output("xdotool", "windowactivate", "--sync", self.main_window)
        wait_for(lambda: self.active_window() == self.main_window, "the active main window")
        self.open_menu()
        before = menu_items()
        self.assertIn(("Fenster schließen", True), before)
        output("xdotool", "windowactivate", "--sync", window)
        wait_for(lambda: self.active_window() == window, "the active About window")
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
