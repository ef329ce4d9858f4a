# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The window follows the user's settings: colour scheme, font size and display scale."""

import re
import subprocess
import unittest

from desktop import ARTIFACTS, TERMINATED, Desktop, Program, output, wait_for
from portal import APPEARANCE, Portal

LIGHT, DARK = "#ECECEC", "#323232"
"""The background of the left panel."""

OUTLINE = "#D2D2D2"
"""The outline of the window in light colours."""

PLASMA = {
    "KDE_FULL_SESSION": "true",
    "KDE_SESSION_VERSION": "5",
    "XDG_CURRENT_DESKTOP": "KDE",
}
"""The variables of a desktop whose palette and font Qt reads from the file kdeglobals."""

LARGE_TEXT = "[General]\nfont=DejaVu Sans,15,-1,5,50,0,0,0,0,0\n"
"""The setting of a font of 15 points, which are 20 pixels."""


class Appearance(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def background(self, program):
        file = ARTIFACTS / "background.png"
        program.save_screenshot(file)
        return output("convert", str(file), "-format", "#%[hex:u.p{12,12}]", "info:")[:7]

    def assert_background(self, program, colour):
        wait_for(lambda: self.background(program) == colour, f"the background {colour}")

    def test_follows_changes_of_the_portals_colour_scheme(self):
        with Portal() as portal, Program(self.desktop) as program:
            self.assert_background(program, LIGHT)
            portal.set(APPEARANCE, "color-scheme", 1)
            self.assert_background(program, DARK)
            portal.set(APPEARANCE, "color-scheme", 2)
            self.assert_background(program, LIGHT)

    def test_starts_in_the_portals_colour_scheme(self):
        with Portal() as portal:
            portal.set(APPEARANCE, "color-scheme", 1)
            with Program(self.desktop) as program:
                self.assert_background(program, DARK)

    def test_uses_the_desktops_palette_without_a_portal(self):
        # Qt ignores the colours of views and windows if the colours of buttons are missing.
        self.set_plasma(
            "".join(
                f"[Colors:{part}]\nBackgroundNormal=40,40,40\nForegroundNormal=240,240,240\n"
                for part in ("Button", "View", "Window")
            )
        )
        with Program(self.desktop, variables=PLASMA) as program:
            self.assert_background(program, DARK)

    def set_plasma(self, settings):
        """Writes the settings of the desktop Plasma until the end of the test."""
        folder = self.desktop.home / ".config"
        folder.mkdir()
        self.addCleanup(folder.rmdir)
        file = folder / "kdeglobals"
        file.write_text(settings)
        self.addCleanup(file.unlink)

    def test_starts_without_a_session_bus(self):
        no_bus = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent"}
        with Program(self.desktop, variables=no_bus) as program:
            self.assert_background(program, LIGHT)
            program.process.terminate()
            _, errors = program.wait_for_exit()
            self.assertEqual(errors, TERMINATED)

    def minimum_size(self, program):
        hints = output("xprop", "-id", program.window(), "WM_NORMAL_HINTS")
        return tuple(map(int, re.search(r"minimum size: (\d+) by (\d+)", hints).groups()))

    def test_the_minimum_size_grows_with_the_font(self):
        self.set_plasma(LARGE_TEXT)
        with Program(self.desktop, variables=PLASMA) as program:
            program.save_screenshot(ARTIFACTS / "font-150.png")
            width, height = self.minimum_size(program)
            self.assertGreater(width, 760)
            self.assertGreater(height, 610)
            # The rows that the history gets do not resize the window.
            for _ in range(3):
                secret = program.secret()
                program.press("Neu erzeugen")
                wait_for(lambda: program.secret() not in (None, secret), "another secret")
            program.save_screenshot(ARTIFACTS / "font-150-history.png")
            self.assertEqual(self.minimum_size(program), (width, height))

    def test_the_buttons_of_the_title_bar_grow_with_the_font(self):
        import pyatspi

        def size(program):
            close = program.find(lambda a: a.name == "Schließen", "the close button")
            box = close.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
            return box.width, box.height

        with Program(self.desktop) as program:
            self.assertEqual(size(program), (32, 28))
        self.set_plasma(LARGE_TEXT)
        with Program(self.desktop, variables=PLASMA) as program:
            self.assertEqual(size(program), (49, 43))

    def test_the_window_is_painted_up_to_its_last_pixels(self):
        # 801 and 625 logical pixels are 1001.25 and 781.25 device pixels.
        with Program(self.desktop, variables={"QT_SCALE_FACTOR": "1.25"}) as program:
            resize = ["xdotool", "windowsize", "--sync", program.window(), "1001", "781"]
            subprocess.run(resize, check=True)
            file = ARTIFACTS / "last-pixels.png"
            program.save_screenshot(file)
            for edge, part in (("bottom", "300x1+20+780"), ("right", "1x300+1000+20")):
                with self.subTest(edge):
                    colours = output(
                        "convert", str(file), "-crop", part, "-unique-colors", "txt:"
                    )
                    self.assertEqual(re.findall("#[0-9A-F]{6}", colours), [OUTLINE])

    def test_the_minimum_size_is_scaled_with_the_display(self):
        for scale, expected in (("1.5", (1140, 915)), ("2", (1520, 1220))):
            with self.subTest(scale):
                with Program(self.desktop, variables={"QT_SCALE_FACTOR": scale}) as program:
                    program.save_screenshot(ARTIFACTS / f"scale-{scale}.png")
                    self.assertEqual(self.minimum_size(program), expected)


if __name__ == "__main__":
    unittest.main(verbosity=2)
