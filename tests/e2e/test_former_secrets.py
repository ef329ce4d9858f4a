# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""Former secrets do not stay in the memory of the program.

The test reads the memory of the program as root. It recognises secrets without knowledge of their
values: all secrets are passphrases with an unusual separator. The scenarios run in parallel, on X11
and on Wayland, with a screen reader's interface and without.
"""

import contextlib
import json
import os
import pathlib
import re
import subprocess
import sys
import unittest

from desktop import Desktop, Program, wait_for
from test_clipboard import (
    ParallelScenarios,
    Session,
    WaylandSession,
    X11Session,
    wait_until_cleared,
)
from test_endurance import RandomSource
from wayland import WaylandDesktop, WaylandProgram, window_nodes

SEPARATOR = "qjx"
WORDS = 5
SECRETS = 20
HISTORY_LIMIT = 6
SHORTEST_PART = 8
"""The number of characters from which a part of a former secret counts as a remainder."""

SKIPPED = 77
"""The exit status that ctest reports as a test that was not run."""

SCREEN_READERS = 2
"""The number of processes that read the window, so that several answers are under way at once."""

READ_WINDOW = f"""
import select, sys
import desktop, pyatspi
program = desktop.wait_for(lambda: list(pyatspi.Registry.getDesktop(0)), "the program")[0]
secrets = set()
while not select.select([sys.stdin], [], [], 0)[0]:
    for accessible in desktop.showing_objects(program):
        accessible.clear_cache()
        if "{SEPARATOR}" in accessible.name:
            secrets.add(accessible.name)
print(len(secrets))
"""
"""A program that reads all texts of the window again and again until its standard input ends."""

PASSPHRASE = re.compile(rf"(?:[a-z]+{SEPARATOR}){{{WORDS}}}[0-9]{{1,2}}")


def memory_parts(pid):
    """All texts in the writable memory of a process that contain the separator."""
    with open(f"/proc/{pid}/maps", encoding="utf-8") as maps:
        areas = [line.split() for line in maps]
    with open(f"/proc/{pid}/mem", "rb", buffering=0) as memory:
        for addresses, rights, *_ in areas:
            if not rights.startswith("rw"):
                continue
            start, end = (int(address, 16) for address in addresses.split("-"))
            memory.seek(start)
            try:
                data = memory.read(end - start)
            except OSError:  # the area of a device
                continue
            for encoding in ("utf-16-le", "latin-1"):
                yield from parts_of(data, SEPARATOR.encode(encoding), len("x".encode(encoding)))


def parts_of(data, needle, width):
    """The longest texts of letters and digits around each `needle`, without overlaps."""
    place = data.find(needle)
    while place >= 0:
        start = place
        while is_letter_or_digit(data[start - width : start], width):
            start -= width
        end = place
        while is_letter_or_digit(data[end : end + width], width):
            end += width
        text = data[start:end:width].decode("ascii")
        if len(text) >= SHORTEST_PART:
            yield text
        place = data.find(needle, end)


def is_letter_or_digit(character, width):
    return len(character) == width and character[:1].isalnum() and not any(character[1:])


class MemoryReader:
    """Reads the secrets in the memory of the program, whose secrets are all passphrases."""

    def __init__(self, pid):
        self._pid = pid
        self._known = []
        """The secrets in the order of their generation."""

    def wait_for_new_secret(self):
        """Waits for one secret that was not yet known."""
        (secret,) = wait_for(self._new_secrets, "another secret in the memory")
        self._known.append(secret)

    def _new_secrets(self):
        # A text that the program overwrites during a reading looks like another secret, once.
        return self._read_new_secrets() & self._read_new_secrets()

    def _read_new_secrets(self):
        found = {match[0] for match in map(PASSPHRASE.search, memory_parts(self._pid)) if match}
        # A remainder of a known secret, without its first characters, looks like another secret.
        return {text for text in found if not any(text in known for known in self._known)}

    def forget(self):
        """Makes the secrets in the memory known, in any order."""
        self._known = list(self._new_secrets()) + self._known[-1:]

    def former_secrets(self):
        """The remainders of secrets that are not in the history."""
        history = self._known[-HISTORY_LIMIT:]
        parts = set(memory_parts(self._pid))
        missing = [secret for secret in history if secret not in parts]
        if missing:
            raise AssertionError(f"not found in the memory: {missing}")
        return {part for part in parts if not any(part in secret for secret in history)}


class MemorySession:
    """A mixin for sessions: starts the program with a controlled random source."""

    desktop_type, program_type = Desktop, Program
    with_screen_reader = False

    def __init__(self):
        self.source = RandomSource()
        Session.__init__(self, self.desktop_type(), self._start_program)
        self.reader = MemoryReader(self.program.process.pid)

    def _start_program(self, desktop):
        self.environment["PYTHONPATH"] = str(pathlib.Path(__file__).parent)
        if not self.with_screen_reader:
            del os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"]
        return self.source.start_program(desktop, self.program_type)

    def close(self):
        try:
            super().close()
        finally:
            self.source.close()

    @contextlib.contextmanager
    def screen_readers(self):
        """Reads all texts of the window all the time, if the session has screen readers."""
        readers = [
            subprocess.Popen(
                [sys.executable, "-B", "-W", "ignore", "-c", READ_WINDOW],
                env=self.environment,
                stdin=subprocess.PIPE,
                stdout=subprocess.PIPE,
                stderr=subprocess.DEVNULL,
                text=True,
            )
            for _ in range(SCREEN_READERS if self.with_screen_reader else 0)
        ]
        try:
            yield
            numbers = [int(reader.communicate(timeout=20)[0]) for reader in readers]
            if not all(number > SECRETS for number in numbers):
                raise AssertionError(f"only {numbers} secrets were read")
        finally:
            for reader in readers:
                reader.kill()
                reader.communicate()


class X11MemorySession(MemorySession, X11Session):
    def key(self, *combinations):
        self.run("xdotool", "key", *combinations)

    def repeat_key(self, combination, times):
        self.run("xdotool", "key", "--delay", "0", "--repeat", str(times), combination)

    def window_titles(self):
        pid = str(self.program.process.pid)
        windows = self.run("xdotool", "search", "--onlyvisible", "--pid", pid).split()
        return sorted(self.run("xdotool", "getwindowname", window).strip() for window in windows)

    def focused_title(self):
        return self.run("xdotool", "getactivewindow", "getwindowname").strip()


class WaylandMemorySession(MemorySession, WaylandSession):
    desktop_type, program_type = WaylandDesktop, WaylandProgram

    def key(self, *combinations):
        self.desktop.key(*combinations)

    def repeat_key(self, combination, times):
        self.desktop.key(*[combination] * times)

    def windows(self):
        return window_nodes(json.loads(self.run("swaymsg", "--raw", "--type", "get_tree")))

    def window_titles(self):
        return sorted(node["name"] for node in self.windows())

    def focused_title(self):
        return next((node["name"] for node in self.windows() if node["focused"]), None)


class X11ScreenReaderSession(X11MemorySession):
    with_screen_reader = True


class WaylandScreenReaderSession(WaylandMemorySession):
    with_screen_reader = True


def generate(session, times):
    for _ in range(times):
        session.key("ctrl+r")
        session.reader.wait_for_new_secret()


def open_and_close_the_alert(session):
    draws = session.source.draws
    session.source.set_failing(True)
    session.key("ctrl+r")
    wait_for(lambda: session.source.draws > draws, "a failed generation")
    session.source.set_failing(False)
    # The program handles keys in order, and ignores the key of `generate` while the alert is open.
    session.key("Return")
    generate(session, 1)


def open_and_close_the_about_window(session):
    session.key("F10", "Down", "Return")
    wait_for(lambda: session.focused_title() == "Über Morvane", "the About window")
    session.key("Escape")
    wait_for(lambda: len(session.window_titles()) == 1, "no About window")
    wait_for(lambda: session.focused_title() == "Morvane", "the keyboard focus of the main window")


def assert_former_secrets_are_gone(session, when):
    # The program overwrites a secret shortly after it has drawn another secret.
    wait_for(
        lambda: len(session.reader.former_secrets()) <= 1, f"at most one former secret {when}"
    )


def former_secrets_do_not_stay(session):
    session.copy()
    session.key("Tab", "Right", "Tab", "Tab", "ctrl+a", *SEPARATOR)
    session.reader.wait_for_new_secret()
    with session.screen_readers():
        session.press_copy()
        copied = wait_for(lambda: PASSPHRASE.fullmatch(session.text()), "a copied passphrase")[0]
        wait_until_cleared(session)
        generate(session, SECRETS)
        open_and_close_the_alert(session)
        open_and_close_the_about_window(session)
        if copied in session.reader.former_secrets():
            raise AssertionError("the copied secret is still in the memory")
        assert_former_secrets_are_gone(session, f"after {SECRETS} secrets")
        draws = session.source.draws
        session.repeat_key("ctrl+r", 700)
        wait_for(lambda: session.source.draws >= draws + 700 * (WORDS + 1), "700 secrets")
    session.reader.forget()
    generate(session, HISTORY_LIMIT)
    assert_former_secrets_are_gone(session, "after 700 secrets")


class FormerSecrets(ParallelScenarios, unittest.TestCase):
    cases = tuple(
        (session, former_secrets_do_not_stay)
        for session in (
            X11MemorySession,
            X11ScreenReaderSession,
            WaylandMemorySession,
            WaylandScreenReaderSession,
        )
    )


class Parts(unittest.TestCase):
    """Tests of the search for parts of secrets."""

    SECRET = "abendqjxankerqjxapfelqjxatlasqjxbambusqjx7"

    def test_both_encodings_are_found(self):
        for encoding, needle, width in (
            ("utf-16-le", b"q\0j\0x\0", 2),
            ("latin-1", b"qjx", 1),
        ):
            with self.subTest(encoding):
                data = b"\1\0" + self.SECRET.encode(encoding) + b"\0\0"
                self.assertEqual(list(parts_of(data, needle, width)), [self.SECRET])

    def test_a_remainder_is_found(self):
        data = b"\xf0\x55\0\0" + self.SECRET[20:].encode("utf-16-le")
        self.assertEqual(list(parts_of(data, b"q\0j\0x\0", 2)), [self.SECRET[20:]])

    def test_the_separator_alone_is_no_remainder(self):
        self.assertEqual(list(parts_of(b"\0qjx\0aqjxb", b"qjx", 1)), [])


if __name__ == "__main__":
    if os.geteuid() != 0:
        print("not run: only root can read the memory of the program")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)
