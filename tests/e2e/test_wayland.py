# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The main window on Wayland, used through a virtual pointer and a virtual keyboard."""

import os
import pathlib
import re
import subprocess
import unittest
from unittest import mock

from desktop import ARTIFACTS, Desktop, Program, find_first, output, role_name, wait_for
from wayland import APPLICATION, WaylandDesktop, WaylandProgram

PACKAGING = pathlib.Path(__file__).parents[2] / "packaging"


def is_password(accessible):
    # The role excludes controls whose names have ten letters.
    return role_name(accessible) == "label" and re.fullmatch(
        r"[A-Za-z0-9!@#$%&*+\-=?_~]{10}", accessible.name
    )


def count_colours(image):
    return int(output("identify", "-format", "%k", str(image)))


class Wayland(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = WaylandDesktop()
        cls.addClassCleanup(cls.desktop.close)

    def wait_for_another_password(self, program, password):
        wait_for(
            lambda: find_first(
                program.accessible(), lambda a: is_password(a) and a.name != password
            ),
            "another password",
        )

    def test_starts_and_closes_without_a_warning(self):
        with WaylandProgram(self.desktop) as program:
            window = program.window()
            self.assertEqual(window["app_id"], APPLICATION)
            program.find(is_password, "a password of ten characters")
            self.desktop.screenshot("wayland")
            self.desktop.kill(window)
            self.assertEqual(program.wait_for_exit(), (0, ""))

    def test_the_application_id_names_the_desktop_entry(self):
        with WaylandProgram(self.desktop) as program:
            entry = PACKAGING / f"{program.window()['app_id']}.desktop"
            self.assertTrue(entry.is_file(), entry)

    def test_a_click_generates_another_password(self):
        with WaylandProgram(self.desktop) as program:
            program.window()
            password = program.find(is_password, "a password").name
            button = program.find(lambda a: a.name == "Neu erzeugen", "the button")
            self.desktop.click(*program.centre_of(button))
            self.wait_for_another_password(program, password)

    def test_a_shortcut_generates_another_password(self):
        with WaylandProgram(self.desktop) as program:
            program.ensure_keyboard_focus()
            password = program.find(is_password, "a password").name
            self.desktop.key("ctrl+r")
            self.wait_for_another_password(program, password)

    def test_a_drag_selects_without_the_primary_selection(self):
        with WaylandProgram(self.desktop) as program:
            program.ensure_keyboard_focus()
            value = program.find(is_password, "a password")
            x, y = program.centre_of(value)
            self.desktop.move(x - 60, y)
            self.desktop.press()
            self.desktop.move(x, y)
            self.desktop.move(x + 60, y)
            self.desktop.release()
            self.desktop.key("ctrl+c")
            copied = wait_for(lambda: output("wl-paste", "--no-newline"), "the copied selection")
            self.assertIn(copied, value.name)
            self.assertIn(len(copied), range(5, 10))
            self.assertEqual(output("wl-paste", "--primary", "--no-newline"), "")

    def test_draws_at_other_scales(self):
        self.addCleanup(self.desktop.set_scale, 1)
        self.desktop.move(0, 0)  # away from the window
        with WaylandProgram(self.desktop) as program:
            for factor in (2, 1.5):
                with self.subTest(factor=factor):
                    self.desktop.set_scale(factor)
                    window = program.window()
                    screenshot = wait_for(
                        lambda: self.screenshot_with_content(f"wayland-{factor}", window),
                        "a drawn window",
                    )
                    self.assertEqual(
                        output("identify", "-format", "%w %h", str(screenshot)),
                        "{width:.0f} {height:.0f}".format(
                            width=window["rect"]["width"] * factor,
                            height=window["rect"]["height"] * factor,
                        ),
                    )

    def screenshot_with_content(self, name, window):
        screenshot = self.desktop.screenshot(name, window)
        return screenshot if count_colours(screenshot) > 200 else None

    def test_reports_a_missing_compositor(self):
        missing_socket = str(self.desktop.home / "wayland-0")
        with mock.patch.dict(os.environ, WAYLAND_DISPLAY=missing_socket):
            with WaylandProgram(self.desktop) as program:
                status, errors = program.wait_for_exit()
        self.assertEqual(status, 1)
        self.assertTrue(
            errors.endswith(
                "Morvane braucht eine grafische Oberfläche, und keine war zu erreichen.\n"
            ),
            errors,
        )


class SameRendering(unittest.TestCase):
    """Glyphs are cut off if they are measured at one scale and drawn at another."""

    LEFT_PANEL = "540x1180+10+20"
    """The left panel at scale 2 without the window's edge; only the right panel shows a secret."""

    def test_scale_2_is_rendered_as_on_x11(self):
        x11, wayland = ARTIFACTS / "x11-2.png", ARTIFACTS / "wayland-2-settings.png"
        desktop = Desktop()
        try:
            with Program(desktop, variables={"QT_SCALE_FACTOR": "2"}) as program:
                program.save_screenshot(x11)
        finally:
            desktop.close()

        desktop = WaylandDesktop()
        self.addCleanup(desktop.close)
        desktop.set_scale(2)
        desktop.move(0, 0)  # away from the window
        with WaylandProgram(desktop) as program:
            window = program.window()
            wait_for(
                lambda: count_colours(desktop.screenshot("wayland-2-settings", window)) > 200
                and self.differing_pixels(x11, wayland) == 0,
                "the same rendering as on X11",
            )

    def differing_pixels(self, *images):
        """The number of pixels of the left panel that differ."""
        result = subprocess.run(
            ["compare", "-metric", "AE", "-extract", self.LEFT_PANEL, *map(str, images), "null:"],
            stderr=subprocess.PIPE,
            text=True,
            check=False,
        )
        # ImageMagick 7 can write a normalised number in parentheses after the absolute number.
        return int(result.stderr.split()[0])


if __name__ == "__main__":
    unittest.main(verbosity=2)
