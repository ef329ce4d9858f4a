# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The main window under a Wayland compositor: real window, real pointer, real keys."""

import os
import pathlib
import re
import subprocess
import unittest
from unittest import mock

from desktop import ARTIFACTS, Desktop, Program, first, output, role_name, until
from wayland import APPLICATION, WaylandDesktop, WaylandProgram

PACKAGING = pathlib.Path(__file__).parents[2] / "packaging"


def is_password(accessible):
    # Some controls are named with as many letters.
    return role_name(accessible) == "label" and re.fullmatch(
        r"[A-Za-z0-9!@#$%&*+\-=?_~]{10}", accessible.name
    )


def colours(picture):
    return int(output("identify", "-format", "%k", str(picture)))


class Wayland(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = WaylandDesktop()
        cls.addClassCleanup(cls.desktop.close)

    def another(self, program, password):
        return until(
            lambda: first(program.accessible(), lambda a: is_password(a) and a.name != password),
            "another password",
        ).name

    def test_starts_and_closes_without_a_warning(self):
        with WaylandProgram(self.desktop) as program:
            window = program.window()
            self.assertEqual(window["app_id"], APPLICATION)
            program.find(is_password, "a password of ten characters")
            self.desktop.screenshot("wayland")
            self.desktop.kill(window)
            self.assertEqual(program.ended(), (0, ""))

    def test_a_dock_finds_the_desktop_entry_by_the_id_of_the_window(self):
        with WaylandProgram(self.desktop) as program:
            entry = PACKAGING / f"{program.window()['app_id']}.desktop"
            self.assertTrue(entry.is_file(), entry)

    def test_a_click_makes_another_password(self):
        with WaylandProgram(self.desktop) as program:
            program.window()
            password = program.find(is_password, "a password").name
            button = program.find(lambda a: a.name == "Neu erzeugen", "the button")
            self.desktop.click(*program.place(button))
            self.another(program, password)

    def test_a_key_makes_another_password(self):
        with WaylandProgram(self.desktop) as program:
            program.activate()
            password = program.find(is_password, "a password").name
            self.desktop.key("ctrl+r")
            self.another(program, password)

    def test_shows_at_other_scales(self):
        self.addCleanup(self.desktop.set_scale, 1)
        self.desktop.move(0, 0)  # off the window
        with WaylandProgram(self.desktop) as program:
            for factor in (2, 1.5):
                with self.subTest(factor=factor):
                    self.desktop.set_scale(factor)
                    window = program.window()
                    picture = until(
                        lambda: self.picture_with_content(f"wayland-{factor}", window),
                        "a drawn window",
                    )
                    self.assertEqual(
                        output("identify", "-format", "%w %h", str(picture)),
                        "{width:.0f} {height:.0f}".format(
                            width=window["rect"]["width"] * factor,
                            height=window["rect"]["height"] * factor,
                        ),
                    )

    def picture_with_content(self, name, window):
        picture = self.desktop.screenshot(name, window)
        return picture if colours(picture) > 200 else None

    def test_says_so_where_there_is_no_compositor(self):
        nowhere = str(self.desktop.home / "wayland-0")
        with mock.patch.dict(os.environ, WAYLAND_DISPLAY=nowhere):
            with WaylandProgram(self.desktop) as program:
                status, errors = program.ended()
        self.assertEqual(status, 1)
        self.assertTrue(
            errors.endswith(
                "Morvane braucht eine grafische Oberfläche, und keine war zu erreichen.\n"
            ),
            errors,
        )

class SameLook(unittest.TestCase):
    """Glyphs that are measured for one scale and drawn for another are cut off."""

    SETTINGS = "540x1180+10+20"
    """The left panel without the window's edge, at twice its size: it holds no secret."""

    def test_a_large_scale_looks_as_on_x11(self):
        ours, theirs = ARTIFACTS / "x11-2.png", ARTIFACTS / "wayland-2-settings.png"
        desktop = Desktop()
        try:
            with Program(desktop, variables={"QT_SCALE_FACTOR": "2"}) as program:
                program.picture(ours)
        finally:
            desktop.close()

        desktop = WaylandDesktop()
        self.addCleanup(desktop.close)
        desktop.set_scale(2)
        desktop.move(0, 0)  # off the window
        with WaylandProgram(desktop) as program:
            window = program.window()
            until(
                lambda: colours(desktop.screenshot("wayland-2-settings", window)) > 200
                and self.difference(ours, theirs) == 0,
                "the picture of X11",
            )

    def difference(self, *pictures):
        """How many pixels differ."""
        answer = subprocess.run(
            ["compare", "-metric", "AE", "-extract", self.SETTINGS, *map(str, pictures), "null:"],
            stderr=subprocess.PIPE,
            text=True,
            check=False,
        )
        # ImageMagick 7 can add the normalised number in brackets.
        return int(answer.stderr.split()[0])


if __name__ == "__main__":
    unittest.main(verbosity=2)
