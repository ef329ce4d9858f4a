# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""What the user asks of the look of all programs: scheme, motion, size of text, scale of display."""

import re
import unittest

from desktop import ARTIFACTS, Desktop, Program, output, until
from portal import APPEARANCE, Portal

LIGHT, DARK = "#ECECEC", "#323232"
"""The ground of the left panel."""


class Appearance(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def ground(self, program):
        file = ARTIFACTS / "ground.png"
        program.picture(file)
        return output("convert", str(file), "-format", "#%[hex:u.p{12,12}]", "info:")[:7]

    def assert_ground(self, program, colour):
        until(lambda: self.ground(program) == colour, f"a ground of {colour}")

    def test_follows_the_portal_while_running(self):
        with Portal() as portal, Program(self.desktop) as program:
            self.assert_ground(program, LIGHT)
            portal.set(APPEARANCE, "color-scheme", 1)
            self.assert_ground(program, DARK)
            portal.set(APPEARANCE, "color-scheme", 2)
            self.assert_ground(program, LIGHT)

    def test_starts_in_the_portals_scheme(self):
        with Portal() as portal:
            portal.set(APPEARANCE, "color-scheme", 1)
            with Program(self.desktop) as program:
                self.assert_ground(program, DARK)

    def test_takes_the_palette_where_there_is_no_portal(self):
        settings = self.desktop.home / ".config"
        settings.mkdir()
        file = settings / "kdeglobals"
        # Without a colour for buttons, Qt takes none of the others.
        for part in ("Button", "View", "Window"):
            with file.open("a") as colours:
                colours.write(f"[Colors:{part}]\nBackgroundNormal=40,40,40\nForegroundNormal=240,240,240\n")
        self.addCleanup(settings.rmdir)
        self.addCleanup(file.unlink)
        plasma = {
            "KDE_FULL_SESSION": "true",
            "KDE_SESSION_VERSION": "5",
            "XDG_CURRENT_DESKTOP": "KDE",
        }
        with Program(self.desktop, variables=plasma) as program:
            self.assert_ground(program, DARK)

    def test_starts_without_a_session_bus(self):
        nowhere = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent"}
        with Program(self.desktop, variables=nowhere) as program:
            self.assert_ground(program, LIGHT)
            program.process.terminate()
            _, errors = program.ended()
            self.assertEqual(errors, "")

    def smallest_size(self, program):
        hints = output("xprop", "-id", program.window(), "WM_NORMAL_HINTS")
        return tuple(map(int, re.search(r"minimum size: (\d+) by (\d+)", hints).groups()))

    def test_the_smallest_size_grows_with_the_font(self):
        with Program(self.desktop, variables={"QT_FONT_DPI": "144"}) as program:
            program.picture(ARTIFACTS / "font-150.png")
            width, height = self.smallest_size(program)
            self.assertGreater(width, 760)
            self.assertGreater(height, 610)

    def test_the_smallest_size_is_in_the_displays_scale(self):
        for scale, expected in (("1.5", (1140, 915)), ("2", (1520, 1220))):
            with self.subTest(scale):
                with Program(self.desktop, variables={"QT_SCALE_FACTOR": scale}) as program:
                    program.picture(ARTIFACTS / f"scale-{scale}.png")
                    self.assertEqual(self.smallest_size(program), expected)


if __name__ == "__main__":
    unittest.main(verbosity=2)
