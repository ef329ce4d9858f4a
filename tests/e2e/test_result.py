# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The result panel under X11: selecting, copying, generating and announcing the secret."""

import re
import subprocess
import time
import unittest

from desktop import (
    Desktop,
    Program,
    find_first,
    key,
    move_pointer,
    output,
    qt_version,
    role_name,
    wait_for,
)

PASSPHRASE = r"([a-z]+-){4}[0-9]{1,2}"
ANNOUNCEMENT_DELAY = 0.3
"""Seconds after which the program announces a message."""

MARKER = "a text that is not copied from the program"


def setUpModule():
    # One desktop for all tests, because pyatspi connects to one accessibility bus only.
    Result.desktop = Desktop()
    unittest.addModuleCleanup(Result.desktop.close)


class Result(unittest.TestCase):
    def setUp(self):
        self.program = self.enterContext(Program(self.desktop))
        self.program.ensure_keyboard_focus()

    def show_passphrase(self):
        """Shows four words of the word list and waits for them."""
        self.program.press("Passphrase")
        self.program.set_slider("Wörter", 4)
        wait_for(
            lambda: re.fullmatch(PASSPHRASE, self.program.secret() or ""), "four words and a number"
        )

    def value(self):
        secret = self.program.secret()
        return self.program.find(
            lambda a: a.name == secret and role_name(a) == "label", "the secret"
        )

    def box(self):
        import pyatspi

        return self.value().queryComponent().getExtents(pyatspi.DESKTOP_COORDS)

    def click(self, *arguments):
        subprocess.run(["xdotool", "click", *arguments], check=True)

    def clipboard(self, selection="clipboard"):
        return output("timeout", "2", "xclip", "-o", "-selection", selection)

    def copied(self):
        """The text that Ctrl+C puts on the clipboard in place of a marker."""
        subprocess.run(["xclip", "-selection", "clipboard"], input=MARKER, text=True, check=True)
        key("ctrl+c")
        wait_for(lambda: self.clipboard() != MARKER, "another text on the clipboard")
        return self.clipboard()


class Generating(Result):
    def test_every_click_at_one_place_generates_a_passphrase(self):
        self.show_passphrase()
        x, y = self.program.stable_centre("Neu erzeugen")
        # A button that moves up or down by half its height misses one of these places.
        self.click_repeatedly(20, x, y - 12)
        self.click_repeatedly(20, x, y + 12)

    def test_every_click_at_one_place_generates_a_password_while_the_history_grows(self):
        self.assertEqual(len(self.program.history()), 1)
        self.click_repeatedly(8, *self.program.stable_centre("Neu erzeugen"))

    def click_repeatedly(self, count, x, y):
        """Clicks at one place, and waits for another secret after each click."""
        move_pointer(x, y)
        for number in range(count):
            secret = self.program.secret()
            self.click("1")
            wait_for(
                lambda before=secret: self.program.secret() != before,
                f"another secret after click {number + 1}",
                deadline=5,
            )


class Selecting(Result):
    def assert_no_primary_selection(self):
        self.assertEqual(self.clipboard("primary"), "")

    def test_a_drag_selects_without_the_primary_selection(self):
        box = self.box()
        y = box.y + box.height // 2
        # The text is centred in the box. Ten characters of 28 pixels are more than 150 pixels wide.
        centre = box.x + box.width // 2
        move_pointer(centre - 60, y)
        subprocess.run(["xdotool", "mousedown", "1"], check=True)
        move_pointer(centre, y)
        move_pointer(centre + 60, y)
        subprocess.run(["xdotool", "mouseup", "1"], check=True)
        selected = self.copied()
        self.assertIn(selected, self.program.secret())
        self.assertIn(len(selected), range(5, 10))
        self.assert_no_primary_selection()

    def test_clicks_select_a_word_and_everything_without_the_primary_selection(self):
        self.show_passphrase()
        box = self.box()
        # A character is 17 pixels wide, so one of the two places is not on a separator.
        for distance in (20, 37):
            move_pointer(box.x + box.width // 2 - distance, box.y + 15)
            self.click("--repeat", "2", "--delay", "50", "1")
            selected = self.copied()
            if selected != "-":
                break
        self.assertIn(selected, self.program.secret().split("-"))
        self.click("--repeat", "3", "--delay", "50", "1")
        wait_for(lambda: self.copied() == self.program.secret(), "the whole secret")
        self.assert_no_primary_selection()

    def test_keys_select_without_the_primary_selection(self):
        secret = self.program.secret()
        self.value().queryComponent().grabFocus()
        key("ctrl+Home", "shift+Right", "shift+Right", "shift+Right")
        self.assertEqual(self.copied(), secret[:3])
        key("ctrl+a")
        self.assertEqual(self.copied(), secret)
        self.assert_no_primary_selection()

    def test_copied_text_has_no_line_breaks(self):
        self.program.set_slider("Länge", 64)
        wait_for(lambda: len(self.program.secret()) == 64, "64 characters")
        self.value().queryComponent().grabFocus()
        key("ctrl+a")
        self.assertEqual(self.copied(), self.program.secret())
        self.assertRegex(self.program.secret(), r"^\S{64}$")


class ContextMenu(Result):
    def menu_items(self):
        """The items of the open context menu, with their states; empty without a menu."""
        import pyatspi

        found = []
        find_first(
            self.program.accessible(),
            lambda a: found.append((a.name, a.getState().contains(pyatspi.STATE_ENABLED)))
            if role_name(a) == "menu item"
            else None,
        )
        return dict(found)

    def open_by_pointer(self):
        box = self.box()
        move_pointer(box.x + box.width // 2, box.y + box.height // 2)
        self.click("3")
        return wait_for(self.menu_items, "the context menu")

    def test_the_right_button_opens_a_menu_that_selects_and_copies(self):
        items = self.open_by_pointer()
        self.assertEqual(list(items), ["Auswahl kopieren", "Alles auswählen"])
        self.program.click("Alles auswählen", "menu item")
        wait_for(lambda: not self.menu_items(), "no menu")
        self.open_by_pointer()
        self.program.click("Auswahl kopieren", "menu item")
        wait_for(lambda: self.clipboard() == self.program.secret(), "the copied secret")

    def test_keys_open_the_menu(self):
        for combination in ("Menu", "shift+F10"):
            with self.subTest(combination):
                self.value().queryComponent().grabFocus()
                key(combination)
                wait_for(self.menu_items, "the context menu")
                key("Escape")
                wait_for(lambda: not self.menu_items(), "no menu")


class Announcements(Result):
    """What a screen reader is told without being asked."""

    def setUp(self):
        from gi.repository import Atspi

        self.messages = []
        self.focused = []
        listener = Atspi.EventListener.new(self.receive)
        announcement = (
            "object:announcement" if qt_version() >= (6, 8) else "object:state-changed:showing"
        )
        # Before the program starts, because Qt sends only events that have a listener.
        for event in (announcement, "object:state-changed:focused"):
            listener.register(event)
            self.addCleanup(listener.deregister, event)
        super().setUp()

    def receive(self, event):
        if event.type == "object:announcement":
            self.messages.append(event.any_data)
        elif event.type == "object:state-changed:focused":
            if event.detail1:
                self.focused.append((role_name(event.source), event.source.name))
        elif event.detail1 and event.source.get_role_name() == "notification":
            self.messages.append(event.source.name)

    def wait_for_event(self, is_received, description):
        """Waits until the received events fulfil the condition."""
        from gi.repository import GLib

        def receive_and_check():
            while GLib.MainContext.default().iteration(False):
                pass
            return is_received()

        wait_for(receive_and_check, description)

    def wait_for_message(self, message):
        self.wait_for_event(lambda: message in self.messages, f"the announcement {message}")

    def wait_for_focus(self, role, name):
        self.wait_for_event(lambda: (role, name) in self.focused, f"the focused {role} {name}")

    def test_a_new_secret_is_announced(self):
        secret = self.program.secret()
        self.program.press("Neu erzeugen")
        wait_for(lambda: self.program.secret() != secret, "another secret")
        self.wait_for_message(self.program.secret())
        self.program.set_slider("Länge", 64)
        wait_for(lambda: len(self.program.secret()) == 64, "64 characters")
        self.wait_for_message(self.program.secret())

    def test_the_copy_is_announced(self):
        key("ctrl+shift+c")
        self.wait_for_message("Kopiert")

    def test_an_error_is_announced_once(self):
        for name in ("Kleinbuchstaben", "Großbuchstaben", "Zahlen", "Sonderzeichen"):
            self.program.press(name)
        # Screen readers read the dialog around the focused button.
        self.wait_for_focus("button", "OK")
        alert = self.program.find(lambda a: a.name == "OK", "the alert").parent
        self.assertEqual((role_name(alert), alert.name), ("dialog", "Einstellung prüfen"))
        message = [a.name for a in alert if role_name(a) == "label"][-1]
        self.assertEqual(message, "Bitte mindestens eine Zeichengruppe aktivieren.")
        end = time.monotonic() + 3 * ANNOUNCEMENT_DELAY
        self.wait_for_event(lambda: time.monotonic() > end, "the end of the delay")
        self.assertNotIn(message, self.messages)

    def test_the_menu_is_announced(self):
        key("F10")
        self.wait_for_focus("popup menu", "Menü")

    def test_the_about_window_is_read(self):
        key("F10")
        self.program.find(lambda a: a.name == "Morvane beenden", "the menu")
        key("Down", "Return")
        self.wait_for_focus("dialog", "Morvane Version 1.1")
        dialog = self.program.find(lambda a: a.name == "Morvane Version 1.1", "the dialog")
        self.assertIn(
            "Keine Cloud, keine Konten, keine Passwortspeicherung.",
            [a.name for a in dialog if role_name(a) == "label"],
        )

    def test_the_attributes_of_the_separator_cover_its_text(self):
        self.program.press("Passphrase")
        field = self.program.find(
            lambda a: a.name == "Trennzeichen" and role_name(a) == "text", "the text field"
        )
        text = field.queryText()
        wait_for(lambda: text.getText(0, -1) == "-", "the separator")
        # Orca 43 reads only text that has attributes.
        self.assertEqual(list(text.getAttributes(0)[1:]), [0, 1])


if __name__ == "__main__":
    unittest.main(verbosity=2)
