# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The real clipboard with managers that collect what is on it, in their real homes, and with a
compositor that is one itself.

Each has a desktop of its own, and they run side by side.
"""

import concurrent.futures
import itertools
import os
import subprocess
import time
import unittest

from Xlib import X, display

from desktop import Desktop, Program, until
from test_clipboard import (
    GRACE,
    STAYS,
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
"""A command of CopyQ's user. It heeds the marker by itself from version 8 on."""


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
        self._start(["weston", "--backend=x11-backend.so", "--use-pixman", "--idle-time=0"])
        os.environ["WAYLAND_DISPLAY"] = until(
            lambda: a_socket(runtime, "wayland-?"), "the compositor's socket"
        )
        os.environ["QT_QPA_PLATFORM"] = "wayland"
        overlook_leaks()


class Weston(WaylandSession):
    """Puts back its copy of the last text whenever nothing is on offer."""

    def __init__(self):
        Session.__init__(self, WestonDesktop(), Program)

    def start(self):
        """The copy itself waits for the keyboard."""

    def press_copy(self):
        self.activate()
        self.run("xdotool", "key", "ctrl+shift+c")
        time.sleep(0.5)

    def activate(self):
        """Gives the window the keyboard, which every look at the clipboard takes away, and Weston
        does not return to a window that came in between."""
        time.sleep(0.5)
        self.run("xdotool", "key", "super+Tab")


def text_without_owner_is_brought_back(session):
    session.copy()
    secret = session.text()
    session.program.process.terminate()
    session.program.process.wait()
    until(lambda: session.text() == secret, "the text of a program that is gone")


def cleared_secret_is_not_brought_back(session):
    start = session.copy()
    if session.primary():
        raise AssertionError("selected as well")
    assert_in_time(cleared(session) - start)
    assert_stays_empty(session)
    session.quit()
    assert_stays_empty(session)


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
    session.copy()
    secret = session.text()
    session.quit()
    until(lambda: session.text() == secret, "the secret that was handed over")


def assert_stays_empty(session):
    end = time.monotonic() + GRACE
    while time.monotonic() < end:
        if session.text():
            raise AssertionError("back on the clipboard")
        time.sleep(0.1)


STORIES = (
    (Clipman, text_without_owner_is_brought_back),
    (Clipman, cleared_secret_is_not_brought_back),
    (Clipman, quitting_waits_for_no_manager),
    (SettingsDaemon, secret_outlives_the_program),
    (CopyQ, secret_marked_as_one_is_not_kept),
    (Weston, text_without_owner_is_brought_back),
    (Weston, cleared_secret_is_not_brought_back_by_compositor),
)


def tell(story, session):
    session.start()
    story(session)


class Managers(unittest.TestCase):
    """Every story; `setUpClass` starts them all."""

    @classmethod
    def setUpClass(cls):
        options = os.environ.get("ASAN_OPTIONS")
        workers = concurrent.futures.ThreadPoolExecutor(len(STORIES))
        cls.addClassCleanup(workers.shutdown)
        cls.told = {}
        # One after the other, for a desktop becomes this process's own when it starts.
        for kind, story in STORIES:
            session = kind()
            cls.addClassCleanup(session.close)
            cls.told[kind, story] = workers.submit(tell, story, session)
        if options is not None:
            os.environ["ASAN_OPTIONS"] = options


def add_test(kind, story):
    def test(self):
        self.told[kind, story].result()

    setattr(Managers, f"test_{kind.__name__.lower()}_{story.__name__}", test)


for kind, story in STORIES:
    add_test(kind, story)


if __name__ == "__main__":
    unittest.main(verbosity=2)
