# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""Shortcuts and buttons act once while their keys are held."""

import contextlib
import os
import time
import unittest
from unittest import mock

from desktop import Desktop, Program, key, role_name, wait_for
from test_clipboard import Session, WaylandSession, X11Session
from test_endurance import RandomSource
from wayland import WaylandDesktop

REPETITIONS = 12
"""The number of repetitions for which the tests hold a key."""

DRAWS_OF_A_STEP = 50
"""More random draws than a password of at most 10 + REPETITIONS characters takes."""

TABS_TO_SLIDER = 2

TABS_FROM_SLIDER_TO_BUTTON = 8
"""The six switches and the displayed secret precede the button."""


class X11(X11Session):
    def __init__(self, source):
        Session.__init__(self, Desktop(), source.start_program)

    def press(self, combination):
        self.run("xdotool", "key", combination)

    @contextlib.contextmanager
    def held_key(self, combination):
        *modifiers, last = combination.split("+")
        for name in (*modifiers, last):
            self.run("xdotool", "keydown", name)
        try:
            yield
        finally:
            for name in (last, *reversed(modifiers)):
                self.run("xdotool", "keyup", name)


class Wayland(WaylandSession):
    def __init__(self, source):
        Session.__init__(self, WaylandDesktop(), source.start_program)

    def press(self, combination):
        self.desktop.key(combination)

    def held_key(self, combination):
        return self.desktop.held_key(combination)


class HeldKeys:
    """A mixin for test cases; `session_type` is the type of the session."""

    def setUp(self):
        self.enterContext(mock.patch.dict(os.environ))
        self.source = RandomSource()
        self.addCleanup(self.source.close)
        self.session = self.session_type(self.source)
        self.addCleanup(self.session.close)
        self.session.start()
        self.session.copy()  # waits until the window reacts to keys

    def copy(self):
        """Copies once and waits for the copy. The program handles keys in order, so the effects of
        all earlier keys are complete afterwards."""
        with self.session.change_counter() as changes:
            self.session.press_copy()
            wait_for(changes, "a copy")

    def repetition_time(self):
        """The seconds that a held key takes to move a slider by REPETITIONS steps."""
        for _ in range(TABS_TO_SLIDER):
            self.session.press("Tab")
        self.copy()
        expected = self.source.draws + REPETITIONS * DRAWS_OF_A_STEP
        start = time.monotonic()
        with self.session.held_key("Right"):
            wait_for(lambda: self.source.draws >= expected, "repetitions of a held key")
        elapsed = time.monotonic() - start
        self.copy()
        return elapsed

    def assert_draws_once(self, tabs, press, elapsed):
        """Holding the key combination `press` generates as many secrets as pressing it once."""
        for _ in range(tabs):
            self.session.press("Tab")
        self.copy()
        start = self.source.draws
        self.session.press(press)
        self.copy()
        draws_of_a_secret = self.source.draws - start
        self.assertGreater(draws_of_a_secret, 0)
        with self.session.held_key(press):
            time.sleep(elapsed)
        self.copy()
        self.assertEqual(self.source.draws - start, 2 * draws_of_a_secret)

    def test_keys_that_generate_another_secret(self):
        elapsed = self.repetition_time()
        self.assert_draws_once(0, "ctrl+r", elapsed)
        self.assert_draws_once(TABS_FROM_SLIDER_TO_BUTTON, "space", elapsed)

    def test_the_shortcut_for_copying(self):
        elapsed = self.repetition_time()
        with self.session.change_counter() as changes:
            with self.session.held_key("ctrl+shift+c"):
                time.sleep(elapsed)
            self.assertEqual(changes(), 1)


class HeldKeysOnX11(HeldKeys, unittest.TestCase):
    session_type = X11


class HeldKeysOnWayland(HeldKeys, unittest.TestCase):
    session_type = Wayland


class KeysOfScreenReaders(unittest.TestCase):
    """While an assistive program listens to windows, Qt asks the program about each key event, and
    then sends a copy of the event, which has no time."""

    def setUp(self):
        from gi.repository import Atspi

        self.enterContext(mock.patch.dict(os.environ))
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)
        listener = Atspi.EventListener.new(lambda event: None)
        listener.register("window:activate")
        self.addCleanup(listener.deregister, "window:activate")
        self.program = self.enterContext(Program(self.desktop))
        self.program.ensure_keyboard_focus()

    def test_a_key_pressed_twice_toggles_twice(self):
        import pyatspi

        switch = self.program.find(
            lambda a: a.name == "Zahlen" and role_name(a) == "check box", "the switch"
        )
        switch.queryComponent().grabFocus()
        for expected in (False, True):
            key("space")
            wait_for(
                lambda: switch.getState().contains(pyatspi.STATE_CHECKED) == expected,
                f"a switch with the state {expected}",
            )


if __name__ == "__main__":
    unittest.main(verbosity=2)
