# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The main window under X11, used through keys, the window manager and the accessibility bus."""

import os
import re
import subprocess
import unittest

from desktop import Desktop, Program, find_first, output, role_name, wait_for

COUNTING_FONTS = os.environ["MORVANE_COUNTING_FONTS"]
FAILING_RANDOM = os.environ["MORVANE_FAILING_RANDOM"]

FONTS = 8
"""The default font, and the fonts of the seven text styles that the window displays."""

LOOK_ALIKES = "Il1O0o"


def is_password(accessible):
    # The role excludes controls whose names have ten letters.
    return role_name(accessible) == "label" and re.fullmatch(
        r"[A-Za-z0-9!@#$%&*+\-=?_~]{10}", accessible.name
    )


def is_alert(accessible):
    return accessible.name == "Einstellung prüfen"


class MainWindow(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def test_shows_a_password_of_ten_characters(self):
        with Program(self.desktop) as program:
            password = program.find(is_password, "a password of ten characters").name
            self.assertFalse(set(password) & set(LOOK_ALIKES), password)
            self.assertIsNone(find_first(program.accessible(), is_alert))

    def test_only_the_displayed_fonts_are_loaded(self):
        with Program(self.desktop, preload=COUNTING_FONTS) as program:
            program.find(is_password, "a password")
            program.process.terminate()
            _, errors = program.wait_for_exit()
            self.assertEqual(errors.count("font\n"), FONTS)

    def test_a_switch_is_toggled_through_the_accessibility_bus(self):
        with Program(self.desktop) as program:
            password = program.find(is_password, "a password").name
            switch = program.find(lambda a: a.name == "Sonderzeichen", "the switch")
            actions = switch.queryAction()
            names = [actions.getName(i) for i in range(actions.nActions)]
            actions.doAction(names.index("Toggle"))
            changed = wait_for(
                lambda: find_first(
                    program.accessible(), lambda a: is_password(a) and a.name != password
                ),
                "another password",
            )
            self.assertRegex(changed.name, r"^[A-Za-z0-9]{10}$")

    def test_the_length_is_set_through_the_accessibility_bus(self):
        with Program(self.desktop) as program:
            slider = program.find(lambda a: a.name == "Länge", "the slider")
            value = slider.queryValue()
            self.assertEqual(
                (value.minimumValue, value.currentValue, value.maximumValue), (8, 10, 64)
            )
            value.currentValue = 30
            program.find(
                lambda a: role_name(a) == "label" and re.fullmatch(r"\S{30}", a.name),
                "a password of thirty characters",
            )

    def test_the_mode_is_switched_through_the_accessibility_bus(self):
        with Program(self.desktop) as program:
            segment = program.find(lambda a: a.name == "Passphrase", "the segment")
            actions = segment.queryAction()
            names = [actions.getName(i) for i in range(actions.nActions)]
            actions.doAction(names.index("Press"))
            program.find(
                lambda a: re.fullmatch(r"([a-z]+-){5}[0-9]{1,2}", a.name), "a passphrase"
            )
            program.find(lambda a: a.name == "Wörter groß beginnen", "the passphrase's switches")
            self.assertIsNone(find_first(program.accessible(), lambda a: a.name == "Sonderzeichen"))

    def test_every_start_shows_a_different_password(self):
        passwords = set()
        for _ in range(3):
            with Program(self.desktop) as program:
                passwords.add(program.find(is_password, "a password").name)
        self.assertEqual(len(passwords), 3)

    def test_has_a_minimum_size_and_no_maximum_size(self):
        with Program(self.desktop) as program:
            window = program.window()
            self.assertIn(
                "program specified minimum size: 760 by 610",
                output("xprop", "-id", window, "WM_NORMAL_HINTS"),
            )
            self.resize(window, 300, 200, "760x610")
            self.resize(window, 1100, 900, "1100x900")

    def resize(self, window, width, height, expected):
        subprocess.run(["xdotool", "windowsize", window, str(width), str(height)], check=True)
        wait_for(
            lambda: f"-geometry {expected}" in output("xwininfo", "-id", window),
            f"a window of {expected}",
        )

    def test_closing_the_window_ends_the_program(self):
        with Program(self.desktop) as program:
            window = program.window()
            program.find(is_password, "a password")
            subprocess.run(["wmctrl", "-i", "-c", window], check=True)
            self.assertEqual(program.wait_for_exit(), (0, ""))

    def test_leaves_nothing_in_the_home_folder(self):
        with Program(self.desktop) as program:
            window = program.window()
            program.find(is_password, "a password")
            subprocess.run(["wmctrl", "-i", "-c", window], check=True)
            program.wait_for_exit()
        self.assertEqual(sorted(self.desktop.home.rglob("*")), [])

    def test_a_failing_random_source_shows_an_alert(self):
        with Program(self.desktop, preload=FAILING_RANDOM) as program:
            program.window()
            program.find(is_alert, "the alert")
            program.find(
                lambda a: a.name
                == "Der sichere Zufallsgenerator von macOS konnte nicht verwendet werden.",
                "the message",
            )
            self.desktop.screenshot("alert")
            program.find(lambda a: a.name == "OK", "the button")
            subprocess.run(["xdotool", "key", "Return"], check=True)
            wait_for(lambda: find_first(program.accessible(), is_alert) is None, "a closed alert")
            self.assertIsNone(program.process.poll())

    def test_reports_a_missing_display(self):
        with Program(self.desktop, with_display=False) as program:
            status, errors = program.wait_for_exit()
        self.assertEqual(status, 1)
        self.assertTrue(
            errors.endswith(
                "Morvane braucht eine grafische Oberfläche, und keine war zu erreichen.\n"
            ),
            errors,
        )


if __name__ == "__main__":
    unittest.main(verbosity=2)
