# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The client-side decorations under an X11 window manager: title bar, buttons, edges and menu."""

import contextlib
import ctypes
import itertools
import pathlib
import re
import subprocess
import unittest

from desktop import (
    ARTIFACTS,
    Desktop,
    Program,
    find_first,
    key,
    move_pointer,
    output,
    role_name,
    showing_objects,
    wait_for,
)

DESKTOP_ENTRY = pathlib.Path(__file__).parents[2] / "packaging/de.morvane.Morvane.desktop"


class CursorImage(ctypes.Structure):
    """XFixesCursorImage of libXfixes."""

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
    """The opaque pixels of the cursor as rows of text, without empty rows and columns."""
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


def clipboard(target="UTF8_STRING"):
    """The clipboard's contents in one format."""
    return output("timeout", "2", "xclip", "-o", "-selection", "clipboard", "-t", target)


class ClientSideDecorations(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        # The pointer starts outside of the new window, whose edges would change the cursor.
        move_pointer(0, 1700)
        self.program = self.enterContext(Program(self.desktop))
        self.program.find(lambda a: a.name == "Schließen", "the window")
        self.window = self.program.window()
        subprocess.run(["xdotool", "windowmove", "--sync", self.window, "300", "200"], check=True)
        wait_for(lambda: self.geometry()[:2] == (300, 200), "the window at its position")
        self.move_pointer_to_background()
        self.usual_cursor = cursor_outline()

    def move_pointer_to_background(self):
        """Moves the pointer to the margin of the left panel."""
        left, top = self.geometry()[:2]
        move_pointer(left + 12, top + 300)

    def geometry(self):
        """The window's left edge, top edge, width and height in screen coordinates."""
        info = output("xwininfo", "-id", self.window)
        return tuple(
            int(re.search(rf"{name}:\s+(-?\d+)", info)[1])
            for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        )

    def state(self):
        return output("xprop", "-id", self.window, "_NET_WM_STATE", "WM_STATE")

    def drag(self, start, end, is_expected):
        """Drags from one point to another until `is_expected` accepts the window's geometry."""
        before = self.geometry()
        # The first moves go far enough to begin a drag, but not beyond its end.
        x, y = (a + max(-20, min(20, b - a)) for a, b in zip(start, end))
        small_moves = itertools.cycle(((x, y), (x + 1, y + 1)))

        def window_moves():
            move_pointer(*next(small_moves))
            return self.geometry() != before

        move_pointer(*start)
        with button_held():
            wait_for(window_moves, "a window that follows the pointer")
            move_pointer(*end)
            wait_for(lambda: is_expected(self.geometry()), f"a window dragged to {end}")

    def resize(self, start, end, expected):
        """Drags an edge from one point of the screen to another.

        Once the window manager has begun to resize, the edge keeps its distance to the pointer, so
        the pointer does not move until the window manager has changed the cursor.
        """
        self.move_pointer_to_background()
        wait_for(lambda: cursor_outline() == self.usual_cursor, "the usual cursor")
        move_pointer(*start)
        wait_for(lambda: cursor_outline() != self.usual_cursor, "a cursor for resizing")
        cursors = (self.usual_cursor, cursor_outline())
        with button_held():
            wait_for(lambda: cursor_outline() not in cursors, "the window manager's cursor")
            move_pointer(*end)
            wait_for(lambda: self.geometry() == expected, f"the geometry {expected}")

    def assert_clipboard_holds_secret(self):
        """The clipboard holds plain text with the hint that the text is a secret."""
        formats = clipboard("TARGETS").split()
        self.assertIn("text/plain", formats)
        self.assertNotIn("text/html", formats)
        self.assertEqual(clipboard("x-kde-passwordManagerHint"), "secret")

    def test_the_window_manager_adds_no_frame(self):
        extents = output("xprop", "-id", self.window, "_NET_FRAME_EXTENTS")
        self.assertIn("= 0, 0, 0, 0", extents)
        name = output("xprop", "-id", self.window, "_NET_WM_NAME")
        self.assertNotIn("File", name)

    def test_the_desktop_entry_names_the_window_class(self):
        info = output("xprop", "-id", self.window, "WM_CLASS")
        window_class = re.fullmatch(r'WM_CLASS\(STRING\) = ".*", "(.*)"\n', info)[1]
        entry = DESKTOP_ENTRY.read_text(encoding="utf-8").splitlines()
        self.assertIn(f"StartupWMClass={window_class}", entry)

    def test_every_edge_and_corner_resizes(self):
        # Name, start as fractions of the window's size, movement, and change of the geometry.
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
                before = self.geometry()
                start = tuple(
                    int(before[i] + at[i] * (before[i + 2] - 1) + (2 if at[i] == 0 else 0))
                    for i in (0, 1)
                )
                expected = tuple(a + b for a, b in zip(before, change))
                end = (start[0] + by[0], start[1] + by[1])
                self.resize(start, end, expected)

    def test_resizing_stops_at_the_minimum_size(self):
        left, top, width, height = self.geometry()
        start = (left + width - 1, top + height - 1)
        self.resize(start, (left + 200, top + 200), (left, top, 760, 610))

    def test_edges_and_corners_change_the_cursor(self):
        left, top, width, height = self.geometry()
        move_pointer(left + width // 2, top + height // 2)
        outlines = {}
        for name, x, y in (
            ("left", left + 1, top + height // 2),
            ("top", left + width // 2, top + 1),
            ("top left", left + 1, top + 1),
            ("top right", left + width - 2, top + 1),
        ):
            usual = cursor_outline()
            move_pointer(x, y)
            wait_for(lambda: cursor_outline() != usual, f"another cursor at the {name}")
            outlines[name] = cursor_outline()
        self.assertEqual(len({tuple(rows) for rows in outlines.values()}), 4)
        for name, x, y in (
            ("left", left + width - 1, top + height // 2),
            ("top", left + width // 2, top + height - 1),
            ("top left", left + width - 1, top + height - 1),
            ("top right", left + 1, top + height - 1),
        ):
            move_pointer(x, y)
            wait_for(lambda: cursor_outline() == outlines[name], f"the cursor opposite {name}")
        self.assertGreater(len(outlines["left"][0]), len(outlines["left"]))
        self.assertLess(len(outlines["top"][0]), len(outlines["top"]))

    def test_the_left_end_of_the_title_bar_moves_the_window(self):
        self.assert_moves_when_dragged_at(140)

    def test_the_middle_of_the_title_bar_moves_the_window(self):
        self.assert_moves_when_dragged_at(500)

    def assert_moves_when_dragged_at(self, x):
        left, top, width, height = self.geometry()
        # The window moves less far than the pointer, whose first pixels only begin the drag.
        self.drag(
            (left + x, top + 12),
            (left + x + 150, top + 12 + 150),
            lambda geometry: 100 <= geometry[0] - left <= 150,
        )
        self.assertEqual(self.geometry()[0] - left, self.geometry()[1] - top)
        self.assertEqual(self.geometry()[2:], (width, height))

    def open_alert(self):
        for name in ("Kleinbuchstaben", "Großbuchstaben", "Zahlen", "Sonderzeichen"):
            self.program.press(name)
        self.program.find(lambda a: a.name == "Einstellung prüfen", "the alert")

    def test_the_alert_leaves_title_bar_and_edges_alive(self):
        self.open_alert()
        left, top, width, height = self.geometry()
        start = (left + width - 1, top + height // 2)
        self.resize(start, (start[0] + 40, start[1]), (left, top, width + 40, height))
        self.assert_moves_when_dragged_at(500)
        self.program.click("Menü")
        self.program.click("Maximieren")
        wait_for(lambda: "MAXIMIZED_VERT" in self.state(), "a maximised window")
        self.program.click("Minimieren")
        wait_for(lambda: "Iconic" in self.state(), "a minimised window")
        subprocess.run(["wmctrl", "-i", "-a", self.window], check=True)
        wait_for(lambda: "Normal" in self.state(), "the restored window")
        # The click on the menu's button had no effect, and the alert is still open.
        self.assertTrue(self.menu_is_closed())
        self.program.find(lambda a: a.name == "Einstellung prüfen", "the alert")
        self.program.save_screenshot(ARTIFACTS / "alert-with-title-bar.png")
        self.program.click("Schließen")
        self.assertEqual(self.program.wait_for_exit(), (0, ""))

    def test_a_double_click_on_the_title_bar_maximises_and_restores(self):
        before = self.geometry()
        for expected in (True, False):
            left, top = self.geometry()[:2]
            move_pointer(left + 450, top + 15)
            subprocess.run(["xdotool", "click", "--repeat", "2", "--delay", "60", "1"], check=True)
            wait_for(
                lambda: ("MAXIMIZED_VERT" in self.state()) == expected, f"maximised: {expected}"
            )
        wait_for(lambda: self.geometry() == before, "the window's previous geometry")

    def test_the_buttons_maximise_restore_minimise_and_close(self):
        self.program.click("Maximieren")
        wait_for(lambda: "MAXIMIZED_VERT" in self.state(), "a maximised window")
        self.program.click("Wiederherstellen")
        wait_for(lambda: "MAXIMIZED_VERT" not in self.state(), "a restored window")
        self.program.click("Minimieren")
        wait_for(lambda: "Iconic" in self.state(), "a minimised window")
        subprocess.run(["wmctrl", "-i", "-a", self.window], check=True)
        wait_for(lambda: "Normal" in self.state(), "the restored window")
        self.program.click("Schließen")
        self.assertEqual(self.program.wait_for_exit(), (0, ""))

    def open_menu(self):
        key("F10")
        self.program.find(lambda a: a.name == "Morvane beenden", "the menu")

    def menu_is_closed(self):
        return find_first(self.program.accessible(), lambda a: a.name == "Morvane beenden") is None

    def test_the_menu_contains_the_standard_items(self):
        self.open_menu()
        names = [
            a.name
            for a in showing_objects(self.program.accessible())
            if role_name(a) == "menu item"
        ]
        self.assertEqual(
            names,
            [
                "Über Morvane",
                "Neu erzeugen",
                "Kopieren",
                "Auswahl kopieren",
                "Alles auswählen",
                "Fenster minimieren",
                "Fenster schließen",
                "Morvane beenden",
            ],
        )
        key("Escape")
        wait_for(self.menu_is_closed, "a closed menu")

    def test_arrow_keys_move_through_the_menu(self):
        self.open_menu()
        key(*["Down"] * 7, "Return")
        self.assertEqual(self.program.wait_for_exit(), (0, ""))

    def selected_item(self):
        """The name of the menu item with the keyboard focus, or None."""
        import pyatspi

        item = find_first(
            self.program.accessible(),
            lambda a: role_name(a) == "menu item"
            and a.getState().contains(pyatspi.STATE_FOCUSED),
        )
        return item and item.name

    def assert_selects(self, keys, item):
        key(*keys)
        wait_for(lambda: self.selected_item() == item, f"{item} after {keys}")

    def test_keys_select_menu_items(self):
        # The umlaut is on this keyboard; otherwise xdotool would change the keyboard for a moment.
        subprocess.run(["setxkbmap", "de"], check=True)
        self.addCleanup(subprocess.run, ["setxkbmap", "us"], check=True)
        self.open_menu()
        for keys, item in (
            (["Up"], "Morvane beenden"),
            (["Down"], "Über Morvane"),
            (["End"], "Morvane beenden"),
            (["Home"], "Über Morvane"),
            (["f"], "Fenster minimieren"),
            (["f"], "Fenster schließen"),
            (["f"], "Fenster minimieren"),
            (["shift+m"], "Morvane beenden"),
            (["udiaeresis"], "Über Morvane"),
            (["x"], "Über Morvane"),
            (["Down", "Down"], "Kopieren"),
            # "Auswahl kopieren" is disabled, because nothing is selected.
            (["Down"], "Alles auswählen"),
            (["Up"], "Kopieren"),
        ):
            with self.subTest(keys):
                self.assert_selects(keys, item)

    def test_f10_and_escape_close_the_menu(self):
        for name in ("F10", "Escape"):
            for keys in ([], ["Down"]):
                with self.subTest(name, keys=keys):
                    self.open_menu()
                    key(*keys, name)
                    wait_for(self.menu_is_closed, "a closed menu")

    def test_a_resting_pointer_selects_no_menu_item(self):
        self.open_menu()
        x, y = self.program.stable_centre("Fenster schließen")
        key("Escape")
        wait_for(self.menu_is_closed, "a closed menu")
        for _ in range(2):
            move_pointer(x, y)
            self.open_menu()
            self.assert_selects(["Down"], "Über Morvane")
            # The pointer selects an item once the pointer has moved.
            move_pointer(x + 4, y)
            move_pointer(x + 5, y)
            wait_for(lambda: self.selected_item() == "Fenster schließen", "the pointed item")
            key("Escape")
            wait_for(self.menu_is_closed, "a closed menu")

    def test_a_press_on_the_title_bar_closes_the_menu(self):
        self.open_menu()
        left, top = self.geometry()[:2]
        move_pointer(left + 450, top + 15)
        subprocess.run(["xdotool", "click", "1"], check=True)
        wait_for(self.menu_is_closed, "a closed menu")

    def assert_tool_tip(self, text):
        self.program.find(
            lambda a: role_name(a) == "tool tip" and a.name == text, f"the tool tip {text}"
        )

    def test_buttons_with_only_a_symbol_have_tool_tips(self):
        for name in ("Menü", "Minimieren", "Maximieren", "Schließen"):
            with self.subTest(name):
                move_pointer(*self.program.stable_centre(name))
                self.assert_tool_tip(name)
        self.move_pointer_to_background()
        wait_for(
            lambda: find_first(self.program.accessible(), lambda a: role_name(a) == "tool tip")
            is None,
            "no tool tip",
        )
        # Tab reaches the last control before the first one backwards.
        key("Tab", "shift+Tab")
        self.assert_tool_tip("Menü")
        self.program.save_screenshot(ARTIFACTS / "tool-tip.png")

    def test_the_menu_button_opens_and_closes_the_menu(self):
        self.program.click("Menü")
        self.program.find(lambda a: a.name == "Morvane beenden", "the menu")
        self.program.click("Menü")
        wait_for(self.menu_is_closed, "a closed menu")

    def test_a_menu_item_works_through_the_accessibility_bus(self):
        self.open_menu()
        self.program.press("Fenster schließen")
        self.assertEqual(self.program.wait_for_exit(), (0, ""))

    def test_menu_items_select_and_copy_the_secret(self):
        secret = self.program.secret()
        self.open_menu()
        self.program.click("Alles auswählen")
        wait_for(self.menu_is_closed, "a closed menu")
        self.open_menu()
        self.program.click("Auswahl kopieren")
        wait_for(lambda: clipboard() == secret, "the secret on the clipboard")
        self.assert_clipboard_holds_secret()

    def test_menu_items_generate_and_copy_the_whole_secret(self):
        secret = self.program.secret()
        self.open_menu()
        self.program.click("Neu erzeugen", "menu item")
        wait_for(lambda: self.program.secret() not in (secret, None), "another secret")
        self.open_menu()
        self.program.click("Kopieren", "menu item")
        self.program.find(lambda a: a.name == "Kopiert", "the confirmation")
        wait_for(lambda: clipboard() == self.program.secret(), "the secret on the clipboard")
        self.assert_clipboard_holds_secret()

    def test_standard_shortcuts(self):
        key("ctrl+m")
        wait_for(lambda: "Iconic" in self.state(), "a minimised window")
        subprocess.run(["wmctrl", "-i", "-a", self.window], check=True)
        wait_for(lambda: "Normal" in self.state(), "the restored window")
        secret = self.program.secret()
        key("ctrl+a", "ctrl+c")
        wait_for(lambda: clipboard() == secret, "the secret on the clipboard")
        self.assert_clipboard_holds_secret()
        key("ctrl+q")
        self.assertEqual(self.program.wait_for_exit(), (0, ""))

    def test_the_shortcut_for_closing(self):
        key("ctrl+w")
        self.assertEqual(self.program.wait_for_exit(), (0, ""))


if __name__ == "__main__":
    unittest.main(verbosity=2)
