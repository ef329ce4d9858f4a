# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The clipboard with clipboard managers and with Weston, which acts as a clipboard manager.

The scenarios run in parallel, each on its own desktop.
"""

import itertools
import os
import pathlib
import re
import subprocess
import sys
import time
import unittest

from Xlib import X
from Xlib.display import Display

from desktop import DEADLINE, Desktop, Program, output, wait_for
from test_clipboard import (
    CLEAR_DELAY,
    SECRET,
    TOLERANCE,
    ParallelScenarios,
    Session,
    WaylandSession,
    X11Session,
    assert_cleared_in_time,
    wait_until_cleared,
)
from wayland import disable_leak_detection, find_socket

HANDOVER_TIMEOUT = 5.0
"""Seconds for which Qt waits at most, when a program ends, for a clipboard manager's request."""

IGNORE_SECRETS = r"""[Commands]
1\Automatic=true
1\Command=copyq ignore
1\Input=x-kde-passwordManagerHint
1\Name=Ignore secrets
1\Remove=true
size=1
"""
"""A command of CopyQ 6.4 for ignoring secrets. CopyQ 10 ignores secrets without this command."""

MARK = "secret"
"""The contents of the first format of a copied secret."""

PLACEHOLDER = "\u200b"
"""The text that replaces a secret for a short time before the clipboard is emptied on X11."""

PRINT_NAMES = """
import desktop, pyatspi
for program in pyatspi.Registry.getDesktop(0):
    print(*(accessible.name for accessible in desktop.showing_objects(program)), sep="\\n")
"""
"""A program that prints the names of all visible accessible objects."""


def version(package):
    """The version of a Debian package as numbers; a maximum if the package is not installed."""
    answer = output("dpkg-query", "--show", "--showformat", "${Version}", package)
    found = re.match(r"(?:\d+:)?(\d+(?:\.\d+)*)", answer)
    return tuple(map(int, found[1].split("."))) if found else (sys.maxsize,)


def shown_secrets(session):
    """The shown secret and the history of the session's program.

    A child process reads the names, because AT-SPI connects each process to one bus only.
    """
    answer = subprocess.run(
        ["timeout", "10", sys.executable, "-B", "-W", "ignore", "-c", PRINT_NAMES],
        env={**session.environment, "PYTHONPATH": str(pathlib.Path(__file__).parent)},
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.DEVNULL,
        text=True,
        check=False,
    ).stdout
    return [name for name in answer.splitlines() if re.fullmatch(SECRET, name)]


class ManagedSession(X11Session):
    """A desktop with the program and a clipboard manager."""

    command = ()
    ordinary_text = None

    def __init__(self):
        Session.__init__(self, Desktop(), Program)
        self.environment.pop("XDG_CACHE_HOME")
        self.configure()
        self.manager = subprocess.Popen(
            self.command,
            env=self.environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )

    def configure(self):
        """Writes the manager's configuration before the manager starts."""

    def start(self):
        """Waits until the manager records copies and the window has the keyboard focus."""

        numbers = itertools.count()

        def is_recorded():
            # A manager never records a text that was on the clipboard before the manager started.
            self.ordinary_text = f"ohne Kennzeichen {next(numbers)}"
            self.write(self.ordinary_text)
            time.sleep(0.5)
            return self.has_recorded(self.ordinary_text)

        wait_for(is_recorded, "an ordinary text in the manager's history")
        super().start()

    def has_recorded(self, text):
        """Whether the manager's history contains the text."""
        raise NotImplementedError

    def files_with(self, text):
        """The files in the home folder that contain the text, in any encoding that managers use."""
        encoded = [text.encode(encoding) for encoding in ("utf-8", "utf-16-le", "utf-16-be")]
        return [
            path
            for path in self.desktop.home.rglob("*")
            if path.is_file() and any(form in path.read_bytes() for form in encoded)
        ]

    def primary(self):
        return self.run("xclip", "-o", "-selection", "primary")

    def quit(self):
        """Quits the program by its shortcut; returns the seconds until the program has ended."""
        start = time.monotonic()
        self.run("xdotool", "key", "ctrl+q")
        status, errors = self.program.wait_for_exit()
        if status or errors:
            raise AssertionError(f"the program ended with status {status}: {errors}")
        return time.monotonic() - start

    def end_manager(self):
        self.manager.terminate()
        self.manager.wait()

    def close(self):
        try:
            if self.manager.poll() is None:
                self.end_manager()
        finally:
            super().close()


class Clipman(ManagedSession):
    """Clipman records every text, including secrets, and restores the text of an ended program."""

    command = ("xfce4-clipman",)

    def has_recorded(self, text):
        # Clipman writes its history to a file at every change.
        return bool(self.files_with(text))


class CopyQ(ManagedSession):
    command = ("copyq",)

    def configure(self):
        if version("copyq") >= (8,):
            return
        folder = self.desktop.home / ".config" / "copyq"
        folder.mkdir(parents=True)
        (folder / "copyq-commands.ini").write_text(IGNORE_SECRETS, encoding="ascii")

    def has_recorded(self, text):
        newest = map(str, range(10))
        return text in self.run("copyq", "read", *newest).splitlines()

    def end_manager(self):
        self.run("copyq", "exit")  # CopyQ writes its history when it exits
        self.manager.wait()


class SettingsDaemon(ManagedSession):
    """Xfce's settings daemon takes over the clipboard's contents from a program that ends."""

    command = ("xfsettingsd", "--no-daemon", "--disable-wm-check")

    def start(self):
        wait_for(self.has_clipboard_manager, "a clipboard manager")
        X11Session.start(self)

    def start_again(self):
        """Starts the program again after it has ended."""
        self.program = Program(self.desktop, variables=self.environment)
        X11Session.start(self)

    def has_clipboard_manager(self):
        display = Display(self.environment["DISPLAY"])
        try:
            return display.get_selection_owner(display.get_atom("CLIPBOARD_MANAGER")) != X.NONE
        finally:
            display.close()


class WestonDesktop(Desktop):
    """Weston in a window of an X server, so that xdotool can press keys."""

    def _start_display(self):
        super()._start_display()
        runtime = self._folder / "runtime"
        self._servers.start(["weston", "--backend=x11-backend.so", "--use-pixman", "--idle-time=0"])
        os.environ["WAYLAND_DISPLAY"] = wait_for(
            lambda: find_socket(runtime, "wayland-?"), "the compositor's socket"
        )
        os.environ["QT_QPA_PLATFORM"] = "wayland"
        disable_leak_detection()


class Weston(WaylandSession):
    """Weston copies the first format of each offer, and restores its copy when the offer ends."""

    def __init__(self):
        Session.__init__(self, WestonDesktop(), Program)

    def start(self):
        """Returns at once, because `press_copy` waits for the keyboard focus."""

    def press_copy(self):
        self.wait_for_keyboard_focus()
        self.run("xdotool", "key", "ctrl+shift+c")

    def wait_for_keyboard_focus(self):
        """Waits until a key press has reached the window.

        The window loses the keyboard focus for about a second when wl-paste reads the clipboard.
        """
        before = wait_for(lambda: shown_secrets(self), "a visible secret")

        def has_changed():
            self.run("xdotool", "key", "ctrl+r")
            return shown_secrets(self) not in ([], before)

        wait_for(has_changed, "another visible secret")

def text_of_an_ended_program_is_restored(session):
    session.copy()
    secret = session.text()
    wait_for(lambda: session.has_recorded(secret), "the secret in the manager's history")
    session.program.process.terminate()
    session.program.process.wait()
    wait_for(lambda: session.text() == secret, "the text of the program that has ended")


def cleared_secret_is_not_restored(session):
    start = session.copy()
    if session.primary():
        raise AssertionError("the secret is in the primary selection")
    assert_cleared_in_time(wait_until_cleared(session) - start)
    assert_stays_empty(session)
    session.quit()
    # Clipman 1.6.2 leaves the clipboard empty, Clipman 1.6.6 restores the last text.
    assert_stays(session, "", PLACEHOLDER)


def compositor_does_not_keep_the_secret(session):
    session.copy()
    session.program.process.terminate()
    session.program.process.wait()
    wait_for(lambda: session.text() == MARK, "the compositor's copy of the first format")


def secret_does_not_stay_when_the_focus_is_lost(session):
    session.copy()
    switch_windows = ("keydown", "super", "key", "Tab", "sleep", "0.5", "keyup", "super")

    def is_replaced():
        # While Super is held, no window has the keyboard focus. When the program releases its view
        # of the clipboard for this reason, Weston cancels the program's offer and restores its own
        # copy, so the program cannot empty the clipboard any more.
        session.wait_for_keyboard_focus()
        session.run("xdotool", *switch_windows)
        return session.text() == MARK

    wait_for(is_replaced, "the compositor's copy of the first format", 2 * DEADLINE)


def compositor_does_not_restore_a_cleared_secret(session):
    session.copy()
    session.wait_for_keyboard_focus()
    # Reading the clipboard would take the keyboard focus from the window, so the test only waits.
    time.sleep(CLEAR_DELAY + TOLERANCE)
    assert_stays_empty(session)
    session.program.process.terminate()
    session.program.process.wait()
    assert_stays_empty(session)


def manager_does_not_record_the_secret(session):
    start = session.copy()
    secret = session.text()
    assert_cleared_in_time(wait_until_cleared(session) - start)
    assert_stays_empty(session)
    session.write("danach")
    wait_for(lambda: session.has_recorded("danach"), "the next copy in the manager's history")
    if session.has_recorded(secret):
        raise AssertionError("the manager has recorded the secret")
    session.end_manager()
    if not session.files_with(session.ordinary_text):
        raise AssertionError("no file contains the manager's history")
    if session.files_with(secret):
        raise AssertionError(f"files with the secret: {session.files_with(secret)}")


def quitting_does_not_wait_for_the_manager(session):
    session.copy()
    elapsed = session.quit()
    if elapsed >= HANDOVER_TIMEOUT / 2:
        raise AssertionError(f"quitting took {elapsed:.2f} s")


def manager_takes_over_the_secret_when_the_program_ends(session):
    def is_taken_over():
        session.copy()
        secret = session.text()
        session.quit()
        end = time.monotonic() + HANDOVER_TIMEOUT
        while time.monotonic() < end:
            if session.text() == secret:
                return True
            time.sleep(0.1)
        # The program waits 0.3 s for the manager, which can be too short on a busy machine.
        session.start_again()
        return False

    wait_for(is_taken_over, "a secret that the manager has taken over", 2 * DEADLINE)


def assert_stays_empty(session):
    assert_stays(session, "")


def assert_stays(session, *texts):
    """Checks for a while that the clipboard holds one of these texts."""
    end = time.monotonic() + TOLERANCE
    while time.monotonic() < end:
        text = session.text()
        if text not in texts:
            raise AssertionError(f"the clipboard holds {text!r}")
        time.sleep(0.1)


class ClipboardManagers(ParallelScenarios, unittest.TestCase):
    cases = (
        (Clipman, text_of_an_ended_program_is_restored),
        (Clipman, cleared_secret_is_not_restored),
        (Clipman, quitting_does_not_wait_for_the_manager),
        (SettingsDaemon, manager_takes_over_the_secret_when_the_program_ends),
        (CopyQ, manager_does_not_record_the_secret),
        (Weston, compositor_does_not_keep_the_secret),
        (Weston, secret_does_not_stay_when_the_focus_is_lost),
        (Weston, compositor_does_not_restore_a_cleared_secret),
    )


if __name__ == "__main__":
    unittest.main(verbosity=2)
