# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The real clipboard with managers that collect what is on it, in their real homes, and with a
compositor that is one itself.

Each has a desktop of its own, and they run side by side.
"""

import itertools
import os
import pathlib
import re
import subprocess
import sys
import time
import unittest

from Xlib import X, display

from desktop import DEADLINE, Desktop, Program, output, until
from test_clipboard import (
    GRACE,
    SECRET,
    STAYS,
    ParallelScenarios,
    Session,
    WaylandSession,
    X11Session,
    assert_in_time,
    cleared,
)
from wayland import a_socket, overlook_leaks

HANDOVER = 5.0
"""Seconds for which Qt has a clipboard manager fetch the contents of a program that ends."""

HEED_MARKER = r"""[Commands]
1\Automatic=true
1\Command=copyq ignore
1\Input=x-kde-passwordManagerHint
1\Name=Ignore secrets
1\Remove=true
size=1
"""
"""A command of CopyQ's user. CopyQ 6.4 needs it, CopyQ 10 heeds the marker by itself."""


NAMES = """
import desktop, pyatspi
for program in pyatspi.Registry.getDesktop(0):
    print(*(accessible.name for accessible in desktop.everything(program)), sep="\\n")
"""
"""Prints what all programs show."""


def version(package):
    """The version of an installed Debian package, as numbers; an unknown one is the newest."""
    answer = output("dpkg-query", "--show", "--showformat", "${Version}", package)
    found = re.match(r"(?:\d+:)?(\d+(?:\.\d+)*)", answer)
    return tuple(map(int, found[1].split("."))) if found else (sys.maxsize,)


class ManagedSession(X11Session):
    """A desktop with the program and a clipboard manager."""

    command = ()
    unmarked = None

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
        """What is to be in the home before the manager starts."""

    def start(self):
        """Returns once the manager takes what is copied and the window has the keyboard."""

        numbers = itertools.count()

        def taken():
            # What is there when the manager starts is nothing new to it, and stays so.
            self.unmarked = f"ohne Kennzeichen {next(numbers)}"
            self.write(self.unmarked)
            time.sleep(0.5)
            return self.keeps(self.unmarked)

        until(taken, "the manager's copy of an unmarked text")
        super().start()

    def keeps(self, text):
        """Whether the manager has `text` in its history."""
        raise NotImplementedError

    def on_disk(self, text):
        """The files that have `text` in them, in any encoding that is known of a manager."""
        forms = [text.encode(encoding) for encoding in ("utf-8", "utf-16-le", "utf-16-be")]
        return [
            path
            for path in self.desktop.home.rglob("*")
            if path.is_file() and any(form in path.read_bytes() for form in forms)
        ]

    def primary(self):
        return self.run("xclip", "-o", "-selection", "primary")

    def quit(self):
        """Quits the program by its keys; returns the seconds that it takes to end."""
        start = time.monotonic()
        self.run("xdotool", "key", "ctrl+q")
        status, errors = self.program.ended()
        if status or errors:
            raise AssertionError(f"ended with {status}: {errors}")
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
    """Takes every text whatever it is marked as, and never lets the clipboard be without one."""

    command = ("xfce4-clipman",)

    def keeps(self, text):
        # Its history is this file, written at every change.
        return bool(self.on_disk(text))


class CopyQ(ManagedSession):
    command = ("copyq",)

    def configure(self):
        if version("copyq") >= (8,):
            return
        folder = self.desktop.home / ".config" / "copyq"
        folder.mkdir(parents=True)
        (folder / "copyq-commands.ini").write_text(HEED_MARKER, encoding="ascii")

    def keeps(self, text):
        newest = map(str, range(10))
        return text in self.run("copyq", "read", *newest).splitlines()

    def end_manager(self):
        self.run("copyq", "exit")  # which writes the history
        self.manager.wait()


class SettingsDaemon(ManagedSession):
    """Fetches what is on the clipboard from a program that ends, and keeps it there."""

    command = ("xfsettingsd", "--no-daemon", "--disable-wm-check")

    def start(self):
        until(self.has_clipboard_manager, "a clipboard manager")
        X11Session.start(self)

    def start_again(self):
        """Starts another program in place of the one that has ended."""
        self.program = Program(self.desktop, variables=self.environment)
        X11Session.start(self)

    def has_clipboard_manager(self):
        screen = display.Display(self.environment["DISPLAY"])
        try:
            return screen.get_selection_owner(screen.get_atom("CLIPBOARD_MANAGER")) != X.NONE
        finally:
            screen.close()


class WestonDesktop(Desktop):
    """Weston in a window of an X server, which has a keyboard for it."""

    def _start_display(self):
        super()._start_display()
        runtime = self._folder / "runtime"
        self._servers.start(["weston", "--backend=x11-backend.so", "--use-pixman", "--idle-time=0"])
        os.environ["WAYLAND_DISPLAY"] = until(
            lambda: a_socket(runtime, "wayland-?"), "the compositor's socket"
        )
        os.environ["QT_QPA_PLATFORM"] = "wayland"
        overlook_leaks()


class Weston(WaylandSession):
    """Puts back its copy of the last text whenever nothing is on offer."""

    def __init__(self):
        Session.__init__(self, WestonDesktop(), Program)
        self.environment["PYTHONPATH"] = str(pathlib.Path(__file__).parent)

    def start(self):
        """The copy itself waits for the keyboard."""

    def press_copy(self):
        self.activate()
        self.run("xdotool", "key", "ctrl+shift+c")

    def activate(self):
        """Returns once a key has reached the window.

        Every look at the clipboard takes the keyboard away for about a second.
        """
        shown = until(self.secrets, "a secret on show")

        def another():
            self.run("xdotool", "key", "ctrl+r")
            return self.secrets() not in ([], shown)

        until(another, "another secret on show")

    def keeps(self, _text):
        """Weston asks the program for what is copied before any look at the clipboard can, and the
        program answers in this order."""
        return True

    def secrets(self):
        """The value and its history, as a process of its own sees them on the accessibility bus:
        each process can look at one bus only."""
        names = self.run(sys.executable, "-B", "-W", "ignore", "-c", NAMES).splitlines()
        return [name for name in names if re.fullmatch(SECRET, name)]


def text_without_owner_is_brought_back(session):
    session.copy()
    secret = session.text()
    until(lambda: session.keeps(secret), "the manager's copy of the secret")
    session.program.process.terminate()
    session.program.process.wait()
    until(lambda: session.text() == secret, "the text of a program that is gone")


def assert_cleared_for_the_run(session):
    """Copies a secret, which is not back before the program ends; returns it."""
    start = session.copy()
    secret = session.text()
    if session.primary():
        raise AssertionError("selected as well")
    assert_in_time(cleared(session) - start)
    assert_stays_empty(session)
    return secret


def cleared_secret_is_not_brought_back(session):
    assert_cleared_for_the_run(session)
    session.quit()
    assert_stays_empty(session)


def cleared_secret_is_brought_back_at_the_end(session):
    secret = assert_cleared_for_the_run(session)
    session.quit()
    until(lambda: session.text() == secret, "the cleared secret, which this manager brings back")


def cleared_secret_is_not_brought_back_by_compositor(session):
    session.copy()
    session.activate()
    # No look at the clipboard meanwhile: the window is to have the keyboard.
    time.sleep(STAYS + GRACE)
    assert_stays_empty(session)
    session.program.process.terminate()
    session.program.process.wait()
    assert_stays_empty(session)


def secret_marked_as_one_is_not_kept(session):
    start = session.copy()
    secret = session.text()
    assert_in_time(cleared(session) - start)
    assert_stays_empty(session)
    session.write("danach")
    until(lambda: session.keeps("danach"), "what was copied next")
    if session.keeps(secret):
        raise AssertionError("kept in the history")
    session.end_manager()
    if not session.on_disk(session.unmarked):
        raise AssertionError("the history is not where it was looked for")
    if session.on_disk(secret):
        raise AssertionError(f"written to {session.on_disk(secret)}")


def quitting_waits_for_no_manager(session):
    session.copy()
    elapsed = session.quit()
    if elapsed >= HANDOVER / 2:
        raise AssertionError(f"took {elapsed:.2f} s")


def secret_outlives_the_program(session):
    def handed_over():
        session.copy()
        secret = session.text()
        session.quit()
        end = time.monotonic() + HANDOVER
        while time.monotonic() < end:
            if session.text() == secret:
                return True
            time.sleep(0.1)
        # The program waits 0.3 s for the manager, which is too short on a busy machine.
        session.start_again()
        return False

    until(handed_over, "the secret that was handed over", 2 * DEADLINE)


def assert_stays_empty(session):
    end = time.monotonic() + GRACE
    while time.monotonic() < end:
        if session.text():
            raise AssertionError("back on the clipboard")
        time.sleep(0.1)


CLIPMAN_AFTER_CLEARING = (
    # Clipman 1.6.2 leaves the clipboard empty, Clipman 1.6.6 puts the last text back.
    cleared_secret_is_brought_back_at_the_end
    if version("xfce4-clipman") > (1, 6, 2)
    else cleared_secret_is_not_brought_back
)


class ClipboardManagers(ParallelScenarios, unittest.TestCase):
    cases = (
        (Clipman, text_without_owner_is_brought_back),
        (Clipman, CLIPMAN_AFTER_CLEARING),
        (Clipman, quitting_waits_for_no_manager),
        (SettingsDaemon, secret_outlives_the_program),
        (CopyQ, secret_marked_as_one_is_not_kept),
        (Weston, text_without_owner_is_brought_back),
        (Weston, cleared_secret_is_not_brought_back_by_compositor),
    )


if __name__ == "__main__":
    unittest.main(verbosity=2)
