# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The window's own frame under an X11 window manager: buttons, edges, strip and menu."""

import contextlib
import ctypes
import itertools
import pathlib
import re
import subprocess
import unittest

from desktop import Desktop, Program, everything, first, key, output, point, role_name, until

DESKTOP_ENTRY = pathlib.Path(__file__).parents[2] / "packaging/de.morvane.Morvane.desktop"


class CursorImage(ctypes.Structure):
    """The beginning of what the X server tells of the pointer's picture."""

    _fields_ = [
        ("x", ctypes.c_short),
        ("y", ctypes.c_short),
        ("width", ctypes.c_ushort),
        ("height", ctypes.c_ushort),
        ("hot_x", ctypes.c_ushort),
        ("hot_y", ctypes.c_ushort),
        ("serial", ctypes.c_ulong),
        ("pixels", ctypes.POINTER(ctypes.c_ulong)),
        ("atom", ctypes.c_ulong),
        ("name", ctypes.c_char_p),
    ]


def cursor_outline():
    """Which pixels of the pointer's picture are drawn, as rows of text without the empty edges."""
    x11 = ctypes.CDLL("libX11.so.6")
    fixes = ctypes.CDLL("libXfixes.so.3")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    fixes.XFixesGetCursorImage.restype = ctypes.POINTER(CursorImage)
    display = ctypes.c_void_p(x11.XOpenDisplay(None))
    major, minor = ctypes.c_int(), ctypes.c_int()
    fixes.XFixesQueryExtension(display, ctypes.byref(major), ctypes.byref(minor))
    image = fixes.XFixesGetCursorImage(display).contents
    rows = [
        "".join(
            "#" if image.pixels[y * image.width + x] & 0xFF000000 else " "
            for x in range(image.width)
        )
        for y in range(image.height)
    ]
    x11.XCloseDisplay(display)
    rows = [row for row in rows if row.strip()]
    left = min(len(row) - len(row.lstrip()) for row in rows)
    right = max(len(row.rstrip()) for row in rows)
    return [row[left:right] for row in rows]


@contextlib.contextmanager
def button_held():
    subprocess.run(["xdotool", "mousedown", "1"], check=True)
    try:
        yield
    finally:
        subprocess.run(["xdotool", "mouseup", "1"], check=True)


def pasted(target="UTF8_STRING"):
    return output("timeout", "2", "xclip", "-o", "-selection", "clipboard", "-t", target)


class Frame(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        # Not where the window comes to be: its edges would have a pointer of their own.
        point(0, 1700)
        self.program = self.enterContext(Program(self.desktop))
        self.program.find(lambda a: a.name == "Schließen", "the window")
        self.window = self.program.window()
        subprocess.run(["xdotool", "windowmove", "--sync", self.window, "300", "200"], check=True)
        until(lambda: self.place()[:2] == (300, 200), "the window at its place")
        self.point_at_ground()
        self.usual_pointer = cursor_outline()

    def point_at_ground(self):
        """Where the settings have their margin."""
        left, top = self.place()[:2]
        point(left + 12, top + 300)

    def place(self):
        """Left, top, width and height on the screen."""
        told = output("xwininfo", "-id", self.window)
        return tuple(
            int(re.search(rf"{name}:\s+(-?\d+)", told)[1])
            for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        )

    def state(self):
        return output("xprop", "-id", self.window, "_NET_WM_STATE", "WM_STATE")

    def drag(self, start, end, there):
        """Drags from one point of the screen to another until the window is where it should be."""
        before = self.place()
        # Far enough for a drag, and not yet as far as it goes.
        x, y = (a + max(-20, min(20, b - a)) for a, b in zip(start, end))
        shaking = itertools.cycle(((x, y), (x + 1, y + 1)))

        def follows():
            point(*next(shaking))
            return self.place() != before

        point(*start)
        with button_held():
            until(follows, "a window that follows the pointer")
            point(*end)
            until(lambda: there(self.place()), f"a window dragged to {end}")

    def resize(self, start, end, expected):
        """Takes hold of an edge at one point of the screen and lets it go at another.

        The edge keeps the distance to the pointer that it has when the program asks the window
        manager to resize, so the pointer stays until that one shows its own.
        """
        self.point_at_ground()
        until(lambda: cursor_outline() == self.usual_pointer, "the usual pointer")
        point(*start)
        until(lambda: cursor_outline() != self.usual_pointer, "a pointer that tells of resizing")
        pointers = (self.usual_pointer, cursor_outline())
        with button_held():
            until(lambda: cursor_outline() not in pointers, "the window manager's pointer")
            point(*end)
            until(lambda: self.place() == expected, f"{expected} after {end}")

    def assert_secret(self):
        """What is copied is plain text, with the mark of a secret."""
        formats = pasted("TARGETS").split()
        self.assertIn("text/plain", formats)
        self.assertNotIn("text/html", formats)
        self.assertEqual(pasted("x-kde-passwordManagerHint"), "secret")

    def test_the_window_manager_adds_no_frame(self):
        extents = output("xprop", "-id", self.window, "_NET_FRAME_EXTENTS")
        self.assertIn("= 0, 0, 0, 0", extents)
        name = output("xprop", "-id", self.window, "_NET_WM_NAME")
        self.assertNotIn("File", name)

    def test_a_dock_finds_the_desktop_entry_by_the_class_of_the_window(self):
        told = output("xprop", "-id", self.window, "WM_CLASS")
        window_class = re.fullmatch(r'WM_CLASS\(STRING\) = ".*", "(.*)"\n', told)[1]
        entry = DESKTOP_ENTRY.read_text(encoding="utf-8").splitlines()
        self.assertIn(f"StartupWMClass={window_class}", entry)

    def test_every_edge_and_corner_resizes(self):
        # Where to take hold, in fractions of the window; which way to go; what becomes of it.
        for name, at, by, change in (
            ("left", (0, 0.5), (-40, 0), (-40, 0, 40, 0)),
            ("right", (1, 0.5), (40, 0), (0, 0, 40, 0)),
            ("top", (0.5, 0), (0, -40), (0, -40, 0, 40)),
            ("bottom", (0.5, 1), (0, 40), (0, 0, 0, 40)),
            ("top left", (0, 0), (-40, -30), (-40, -30, 40, 30)),
            ("top right", (1, 0), (40, -30), (0, -30, 40, 30)),
            ("bottom left", (0, 1), (-40, 30), (-40, 0, 40, 30)),
            ("bottom right", (1, 1), (40, 30), (0, 0, 40, 30)),
        ):
            with self.subTest(name):
                before = self.place()
                start = tuple(
                    int(before[i] + at[i] * (before[i + 2] - 1) + (2 if at[i] == 0 else 0))
                    for i in (0, 1)
                )
                expected = tuple(a + b for a, b in zip(before, change))
                end = (start[0] + by[0], start[1] + by[1])
                self.resize(start, end, expected)

    def test_no_edge_makes_it_smaller_than_its_content(self):
        left, top, width, height = self.place()
        start = (left + width - 1, top + height - 1)
        self.resize(start, (left + 200, top + 200), (left, top, 760, 610))

    def test_edges_and_corners_show_where_they_lead(self):
        left, top, width, height = self.place()
        point(left + width // 2, top + height // 2)
        outlines = {}
        for name, x, y in (
            ("left", left + 1, top + height // 2),
            ("top", left + width // 2, top + 1),
            ("top left", left + 1, top + 1),
            ("top right", left + width - 2, top + 1),
        ):
            usual = cursor_outline()
            point(x, y)
            until(lambda: cursor_outline() != usual, f"another pointer at the {name}")
            outlines[name] = cursor_outline()
        self.assertEqual(len({tuple(rows) for rows in outlines.values()}), 4)
        for name, x, y in (
            ("left", left + width - 1, top + height // 2),
            ("top", left + width // 2, top + height - 1),
            ("top left", left + width - 1, top + height - 1),
            ("top right", left + 1, top + height - 1),
        ):
            point(x, y)
            until(lambda: cursor_outline() == outlines[name], f"the pointer opposite {name}")
        self.assertGreater(len(outlines["left"][0]), len(outlines["left"]))
        self.assertLess(len(outlines["top"][0]), len(outlines["top"]))

    def test_the_strip_moves_the_window_by_its_left_end(self):
        self.assert_moves_by(140)

    def test_the_strip_moves_the_window_by_its_middle(self):
        self.assert_moves_by(500)

    def assert_moves_by(self, x):
        left, top, width, height = self.place()
        # It follows from where the program saw that the pointer had moved enough for a drag.
        self.drag(
            (left + x, top + 12),
            (left + x + 150, top + 12 + 150),
            lambda place: 100 <= place[0] - left <= 150,
        )
        self.assertEqual(self.place()[0] - left, self.place()[1] - top)
        self.assertEqual(self.place()[2:], (width, height))

    def test_a_double_click_on_the_strip_maximises_and_restores(self):
        before = self.place()
        for expected in (True, False):
            left, top = self.place()[:2]
            point(left + 450, top + 15)
            subprocess.run(["xdotool", "click", "--repeat", "2", "--delay", "60", "1"], check=True)
            until(lambda: ("MAXIMIZED_VERT" in self.state()) == expected, f"maximised: {expected}")
        until(lambda: self.place() == before, "the window as it was")

    def test_the_buttons_maximise_restore_minimise_and_close(self):
        self.program.click("Maximieren")
        until(lambda: "MAXIMIZED_VERT" in self.state(), "a maximised window")
        self.program.click("Wiederherstellen")
        until(lambda: "MAXIMIZED_VERT" not in self.state(), "a restored window")
        self.program.click("Minimieren")
        until(lambda: "Iconic" in self.state(), "a minimised window")
        subprocess.run(["wmctrl", "-i", "-a", self.window], check=True)
        until(lambda: "Normal" in self.state(), "the window again")
        self.program.click("Schließen")
        self.assertEqual(self.program.ended(), (0, ""))

    def open_menu(self):
        key("F10")
        self.program.find(lambda a: a.name == "Morvane beenden", "the menu")

    def menu_is_closed(self):
        return first(self.program.accessible(), lambda a: a.name == "Morvane beenden") is None

    def test_the_menu_holds_the_standard_commands(self):
        self.open_menu()
        names = [
            a.name
            for a in everything(self.program.accessible())
            if role_name(a) == "menu item"
        ]
        self.assertEqual(
            names,
            [
                "Über Morvane",
                "Kopieren",
                "Alles auswählen",
                "Fenster minimieren",
                "Fenster schließen",
                "Morvane beenden",
            ],
        )
        key("Escape")
        until(self.menu_is_closed, "a closed menu")

    def test_the_menu_is_walked_by_arrow_keys(self):
        self.open_menu()
        key("Down", "Down", "Down", "Down", "Down", "Return")
        self.assertEqual(self.program.ended(), (0, ""))

    def test_the_menu_button_opens_and_closes_the_menu(self):
        self.program.click("Menü")
        self.program.find(lambda a: a.name == "Morvane beenden", "the menu")
        self.program.click("Menü")
        until(self.menu_is_closed, "a closed menu")

    def test_a_menu_command_works_through_the_accessibility_bus(self):
        self.open_menu()
        self.program.press("Fenster schließen")
        self.assertEqual(self.program.ended(), (0, ""))

    def test_the_value_is_selected_and_copied_through_the_menu(self):
        value = self.program.value()
        self.open_menu()
        self.program.click("Alles auswählen")
        until(self.menu_is_closed, "a closed menu")
        self.open_menu()
        self.program.click("Kopieren", "menu item")
        until(lambda: pasted() == value, "the value on the clipboard")
        self.assert_secret()

    def test_the_usual_keys(self):
        key("ctrl+m")
        until(lambda: "Iconic" in self.state(), "a minimised window")
        subprocess.run(["wmctrl", "-i", "-a", self.window], check=True)
        until(lambda: "Normal" in self.state(), "the window again")
        value = self.program.value()
        key("ctrl+a", "ctrl+c")
        until(lambda: pasted() == value, "the value on the clipboard")
        self.assert_secret()
        key("ctrl+q")
        self.assertEqual(self.program.ended(), (0, ""))

    def test_closing_by_key(self):
        key("ctrl+w")
        self.assertEqual(self.program.ended(), (0, ""))


if __name__ == "__main__":
    unittest.main(verbosity=2)
