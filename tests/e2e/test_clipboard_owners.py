# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The clipboard after the clearing, when another program owns the contents.

The scenarios run in parallel, each on its own desktop.
"""

import contextlib
import itertools
import signal
import subprocess
import time
import unittest

from Xlib import X
from Xlib.display import Display

from desktop import wait_for
from test_clipboard import (
    CLEAR_DELAY,
    ParallelScenarios,
    WaylandSession,
    X11Session,
    wait_until_cleared,
)
from test_clipboard_managers import assert_stays, shown_secrets
from wayland import HEIGHT, WIDTH

RESPONSE = 3.0
"""Seconds within which the window shows a new secret after input, on a busy machine as well.

Qt waits 5 s for a clipboard owner that does not answer.
"""


class InputOnX11(X11Session):
    owner = ("xclip", "-quiet", "-i", "-selection", "clipboard")

    def press_generate(self):
        self.run("xdotool", "key", "ctrl+r")

    def click_window(self):
        self.run("xdotool", "mousemove", "--window", self.window, "20", "20", "click", "1")


class InputOnWayland(WaylandSession):
    owner = ("wl-copy", "--foreground")

    def press_generate(self):
        self.desktop.key("ctrl+r")

    def click_window(self):
        self.desktop.click(WIDTH // 2, HEIGHT // 2)  # sway centres the window


@contextlib.contextmanager
def other_owner(session, text):
    """A program that offers the text until the end of the block."""
    owner = subprocess.Popen(
        session.owner,
        env=session.environment,
        stdin=subprocess.PIPE,
        stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL,
        text=True,
    )
    try:
        owner.stdin.write(text)
        owner.stdin.close()
        wait_for(lambda: session.text() == text, "the text of the other program")
        yield owner
    finally:
        owner.kill()
        owner.wait()


def seconds_until_new_secret(session):
    """Presses the shortcut for a new secret; returns the seconds until the window shows it."""
    before = shown_secrets(session)
    start = time.monotonic()
    session.press_generate()
    wait_for(lambda: shown_secrets(session) not in ([], before), "a new secret")
    return time.monotonic() - start


def input_does_not_erase_a_newer_copy_of_the_same_text(session):
    session.copy()
    secret = session.text()
    wait_until_cleared(session)
    with other_owner(session, secret):
        session.click_window()
        # The first new secret shows that the window has handled the click, the second that the
        # window has returned to the event loop since then.
        seconds_until_new_secret(session)
        seconds_until_new_secret(session)
        found = session.text()
    if found != secret:
        raise AssertionError(f"the clipboard holds {found!r} instead of the newer copy")


def copy_during_the_clearing_stays(session):
    session.copy()
    secret = session.text()
    wait_for(lambda: session.text() != secret, "the begin of the clearing", 2 * CLEAR_DELAY)
    with other_owner(session, "etwas anderes"):
        assert_stays(session, "etwas anderes")


def stopped_owner_does_not_delay_input(session):
    session.copy()
    wait_until_cleared(session)
    with other_owner(session, "etwas anderes") as owner:
        owner.send_signal(signal.SIGSTOP)
        session.click_window()
        elapsed = seconds_until_new_secret(session)
        if elapsed > RESPONSE:
            raise AssertionError(f"a new secret after {elapsed:.1f} s")


def silent_owner_does_not_delay_the_passphrase_mode(session):
    """Qt's text fields request the formats of each new contents of the clipboard."""
    session.copy()
    secrets = wait_for(lambda: shown_secrets(session), "a visible secret")
    session.run("xdotool", "key", "Tab", "Right")
    wait_for(lambda: 0 < len(shown_secrets(session)) < len(secrets), "a passphrase")
    display = Display(session.environment["DISPLAY"])
    try:
        owner = display.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        owner.set_selection_owner(display.get_atom("CLIPBOARD"), X.CurrentTime)
        display.sync()
        start = time.monotonic()
        session.run("xdotool", "key", "Left")
        wait_for(lambda: set(shown_secrets(session)) - set(secrets), "another password")
        elapsed = time.monotonic() - start
    finally:
        display.close()
    if elapsed > RESPONSE:
        raise AssertionError(f"another password after {elapsed:.1f} s")


class ClipboardOwners(ParallelScenarios, unittest.TestCase):
    cases = tuple(
        itertools.product(
            (InputOnX11, InputOnWayland),
            (
                copy_during_the_clearing_stays,
                input_does_not_erase_a_newer_copy_of_the_same_text,
                stopped_owner_does_not_delay_input,
            ),
        )
    ) + ((InputOnX11, silent_owner_does_not_delay_the_passphrase_mode),)


if __name__ == "__main__":
    unittest.main(verbosity=2)
