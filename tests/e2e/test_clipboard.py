# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The real clipboard, with the real waits: 30 seconds until it is emptied, 1.4 of confirmation.

The long waits run side by side, each on a desktop of its own.
"""

import concurrent.futures
import contextlib
import itertools
import os
import re
import subprocess
import time
import unittest
from unittest import mock

from desktop import DEADLINE, Desktop, Program, first, key, output, role_name, until
from wayland import APPLICATION, WaylandDesktop, WaylandProgram

STAYS = 30.0
"""Seconds after which a copied value is cleared."""

CONFIRMED = 1.4
"""Seconds for which a copy is confirmed."""

GRACE = 3.0
"""Seconds after which a clearing that has not come will not come any more."""

SECRET = r"[A-Za-z0-9!@#$%&*+\-=?_~]{10}"
MARKER = "x-kde-passwordManagerHint"


class Session:
    """A desktop of its own with the program on it, to be used from any thread."""

    def __init__(self, desktop, program):
        self.desktop = desktop
        self.environment = dict(os.environ)
        self.program = program(desktop)

    def run(self, *command, text=None):
        """Standard output of a command on this desktop."""
        return subprocess.run(
            ["timeout", "10", *command],
            env=self.environment,
            input=text,
            stdin=subprocess.DEVNULL if text is None else None,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            text=True,
            check=False,
        ).stdout

    def feed(self, text, *command):
        """Has a command read `text` and stay on to offer it."""
        subprocess.run(
            command,
            env=self.environment,
            input=text,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
            text=True,
            check=True,
        )

    def copy(self):
        """Presses the keys that copy until the clipboard holds a secret; returns a time just before
        the last press."""
        end = time.monotonic() + DEADLINE
        while time.monotonic() < end:
            start = time.monotonic()
            self.press_copy()
            while time.monotonic() < start + 2:
                if re.fullmatch(SECRET, self.text()):
                    return start
                time.sleep(0.05)
        raise AssertionError("nothing is copied")

    def close(self):
        """Ends the program, which must not have complained, and the desktop."""
        try:
            if self.program.process.poll() is None:
                self.program.process.terminate()
            _, errors = self.program.ended()
            if errors:
                raise AssertionError(errors)
        finally:
            self.desktop.close()


class X11Session(Session):
    def __init__(self):
        super().__init__(Desktop(), Program)

    def start(self):
        """Returns once the window has the keyboard."""
        pid = str(self.program.process.pid)
        self.window = until(
            lambda: self.run("xdotool", "search", "--onlyvisible", "--pid", pid).split(),
            "a visible window",
        )[-1]
        until(
            lambda: self.run("xdotool", "getactivewindow").strip() == self.window,
            "an active window",
        )

    def press_copy(self):
        self.run("xdotool", "key", "ctrl+shift+c")

    def text(self):
        return self.run("xclip", "-o", "-selection", "clipboard")

    def write(self, text):
        self.feed(text, "xclip", "-i", "-selection", "clipboard")

    def formats(self):
        targets = self.run("xclip", "-o", "-selection", "clipboard", "-t", "TARGETS").split()
        # What the selection itself can do, and the names that X11 has for plain text.
        return {
            target
            for target in targets
            if target not in ("TARGETS", "TIMESTAMP", "MULTIPLE", "SAVE_TARGETS")
            and target not in ("UTF8_STRING", "STRING", "TEXT", "COMPOUND_TEXT")
        }

    def marker(self):
        return self.run("xclip", "-o", "-selection", "clipboard", "-t", MARKER)

    @contextlib.contextmanager
    def elsewhere(self):
        """Gives the keyboard to another program's window."""
        other = subprocess.Popen(
            ["xev", "-event", "keyboard"],
            env=self.environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
        )
        try:
            until(
                lambda: self.run("xdotool", "getactivewindow").strip() not in ("", self.window),
                "another window in front",
            )
            yield
        finally:
            other.terminate()
            other.wait()


class WaylandSession(Session):
    def __init__(self):
        super().__init__(WaylandDesktop(), WaylandProgram)
        self.command("workspace", "1")

    def command(self, *words):
        self.run("swaymsg", "--quiet", "--", *words)

    def start(self):
        """Returns once the window is on the screen; the copy itself waits for the keyboard."""
        until(
            lambda: f'"app_id": "{APPLICATION}"' in self.run("swaymsg", "-t", "get_tree"), "a window"
        )

    def press_copy(self):
        self.desktop.key("ctrl+shift+c")

    def text(self):
        return self.run("wl-paste", "--no-newline")

    def write(self, text):
        self.feed(text, "wl-copy")

    def formats(self):
        return {
            name
            for name in self.run("wl-paste", "--list-types").split()
            if name not in ("UTF8_STRING", "STRING", "TEXT", "COMPOUND_TEXT")
        }

    def marker(self):
        return self.run("wl-paste", "--no-newline", "--type", MARKER)

    @contextlib.contextmanager
    def elsewhere(self):
        """Takes the window out of sight."""
        self.command("workspace", "2")
        try:
            yield
        finally:
            self.command("workspace", "1")


def cleared(session):
    """Waits for an empty clipboard; returns the time at which it was first seen."""
    end = time.monotonic() + 2 * STAYS
    seen = []
    # While one text takes the place of another, there can be a moment without any.
    while len(seen) < 3:
        if time.monotonic() > end:
            raise AssertionError("the clipboard is not emptied")
        time.sleep(0.1)
        seen = [] if session.text() else [*seen, time.monotonic()]
    return seen[0]


def assert_in_time(elapsed):
    if not STAYS <= elapsed < STAYS + GRACE:
        raise AssertionError(f"cleared after {elapsed:.2f} s")


def assert_stays(session, text):
    time.sleep(STAYS + GRACE)
    found = session.text()
    if found != text:
        raise AssertionError(f"instead of {text!r} the clipboard holds {found!r}")


def cleared_when_due(session):
    start = session.copy()
    plain_text = {"text/plain", "text/plain;charset=utf-8"}
    formats = session.formats()
    if not {"text/plain"} <= formats - {MARKER} <= plain_text:
        raise AssertionError(f"offered as {formats}")
    if session.marker() != "secret":
        raise AssertionError("not marked as a secret")
    assert_in_time(cleared(session) - start)
    if session.formats():
        raise AssertionError(f"still offered as {session.formats()}")


def other_text_stays(session):
    session.copy()
    session.write("etwas anderes")
    assert_stays(session, "etwas anderes")


def same_text_of_another_program_stays(session):
    session.copy()
    secret = session.text()
    session.write(secret)
    assert_stays(session, secret)


def second_copy_has_its_own_time(session):
    start = session.copy()
    time.sleep(max(0, start + STAYS - 1 - time.monotonic()))
    again = time.monotonic()
    session.press_copy()
    assert_in_time(cleared(session) - again)


def cleared_while_another_window_is_used(session):
    start = session.copy()
    with session.elsewhere():
        assert_in_time(cleared(session) - start)
    until(lambda: not session.formats(), "nothing on offer once the window is back")
    if session.text():
        raise AssertionError("back on the clipboard")


def text_copied_in_another_window_stays(session):
    session.copy()
    with session.elsewhere():
        session.write("etwas anderes")
        assert_stays(session, "etwas anderes")


SCENARIOS = (
    cleared_when_due,
    other_text_stays,
    same_text_of_another_program_stays,
    second_copy_has_its_own_time,
    cleared_while_another_window_is_used,
    text_copied_in_another_window_stays,
)


def run_scenario(scenario, session):
    session.start()
    scenario(session)


class ParallelScenarios:
    """A mixin for test cases: `setUpClass` starts all scenarios, each on its own desktop."""

    cases = ()
    """Pairs of a subclass of Session and a scenario, which is a function of a session."""

    @classmethod
    def setUpClass(cls):
        workers = concurrent.futures.ThreadPoolExecutor(len(cls.cases))
        cls.addClassCleanup(workers.shutdown)
        cls.results = []
        # A desktop changes the environment of this process, so one desktop starts after the other.
        with mock.patch.dict(os.environ):
            for session_type, scenario in cls.cases:
                session = session_type()
                cls.addClassCleanup(session.close)
                cls.results.append(workers.submit(run_scenario, scenario, session))

    def test_every_scenario(self):
        for (session_type, scenario), result in zip(self.cases, self.results):
            with self.subTest(session=session_type.__name__, scenario=scenario.__name__):
                result.result()


class Clearing(ParallelScenarios, unittest.TestCase):
    cases = tuple(itertools.product((X11Session, WaylandSession), SCENARIOS))


class Copying(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def clipboard(self):
        return output("timeout", "10", "xclip", "-o", "-selection", "clipboard")

    def button(self, program, name):
        return first(
            program.accessible(), lambda a: a.name == name and role_name(a) == "button"
        )

    def active(self, program):
        window = program.window()
        until(lambda: output("xdotool", "getactivewindow").strip() == window, "an active window")

    def test_a_click_copies_and_is_confirmed_for_a_while(self):
        with Program(self.desktop) as program:
            value = program.value()
            start = time.monotonic()
            program.click("Kopieren", "button")
            until(lambda: self.button(program, "Kopiert"), "the confirmation")
            self.assertEqual(self.clipboard(), value)
            until(lambda: self.button(program, "Kopieren"), "the button as it was")
            self.assertGreaterEqual(time.monotonic() - start, CONFIRMED)

    def test_a_second_copy_is_confirmed_no_longer_than_the_first(self):
        with Program(self.desktop) as program:
            program.find(lambda a: a.name == "Kopieren", "the window")
            self.active(program)

            def confirmed_no_longer():
                key("ctrl+shift+c")
                until(lambda: self.button(program, "Kopiert"), "the confirmation")
                time.sleep(CONFIRMED / 2)
                second = time.monotonic()
                key("ctrl+shift+c")
                until(lambda: self.button(program, "Kopieren"), "the button as it was")
                return time.monotonic() - second < CONFIRMED

            # A busy machine can see the end of a confirmation too late, but never too early.
            until(confirmed_no_longer, "the end of a confirmation with that of the first copy")

    def test_a_value_that_there_is_not_is_not_copied(self):
        subprocess.run(
            ["xclip", "-i", "-selection", "clipboard"],
            input="vorher",
            text=True,
            stdout=subprocess.DEVNULL,
            check=True,
        )
        with Program(self.desktop, preload=os.environ["MORVANE_FAILING_RANDOM"]) as program:
            program.find(lambda a: a.name == "Einstellung prüfen", "the alert")
            self.active(program)
            key("Escape")
            until(
                lambda: not first(program.accessible(), lambda a: a.name == "Einstellung prüfen"),
                "no alert",
            )
            key("ctrl+shift+c", "F10")
            program.find(lambda a: a.name == "Morvane beenden", "what the later key does")
            self.assertIsNone(self.button(program, "Kopiert"))
            self.assertEqual(self.clipboard(), "vorher")

    def test_quitting_takes_the_value_along(self):
        with Program(self.desktop) as program:
            program.find(lambda a: a.name == "Kopieren", "the window")
            self.active(program)
            key("ctrl+shift+c")
            until(lambda: re.fullmatch(SECRET, self.clipboard()), "a secret on the clipboard")
            key("ctrl+q")
            self.assertEqual(program.ended(), (0, ""))
            self.assertEqual(self.clipboard(), "")


if __name__ == "__main__":
    unittest.main(verbosity=2)
