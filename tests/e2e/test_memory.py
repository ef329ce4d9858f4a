# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The program writes no core dump, and other processes of the user cannot read its memory.

For this, the program's process is not dumpable before it draws the first secret. The desktop portal
refuses calls of such a process, so another process asks the portal.
"""

import contextlib
import os
import pathlib
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest

from desktop import ARTIFACTS, PROGRAM, Desktop, Program, output, wait_for
from portal import APPEARANCE, Portal

STOPPING_RANDOM = os.environ["MORVANE_STOPPING_RANDOM"]

DARK = "#323232"
"""The background of the left panel in the dark scheme."""

READ_SETTINGS = """
import ctypes, sys, dbus
PR_SET_DUMPABLE = 4
ctypes.CDLL(None).prctl(PR_SET_DUMPABLE, int(sys.argv[1]), 0, 0, 0)
name, path = "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop"
portal = dbus.SessionBus().get_object(name, path, introspect=False)
try:
    portal.ReadAll([""], dbus_interface="org.freedesktop.portal.Settings")
    print("answered")
except dbus.DBusException as error:
    print(error.get_dbus_name())
"""
"""A program that reads the portal's settings; with the argument 0, its process is not dumpable."""


class Memory(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    @contextlib.contextmanager
    def program_before_its_first_secret(self, **options):
        """The program, which is stopped until the end of the `with` block."""
        with Program(self.desktop, preload=STOPPING_RANDOM, **options) as program:
            wait_for(lambda: self.state(program) == "T", "a stopped process")
            yield program
            program.process.send_signal(signal.SIGCONT)
            program.window()

    @staticmethod
    def state(program):
        """The letter of the state of the program's process."""
        text = pathlib.Path(f"/proc/{program.process.pid}/stat").read_text("utf-8")
        return text.rpartition(")")[2].split()[0]

    def assert_not_dumpable(self, program):
        process = pathlib.Path(f"/proc/{program.process.pid}")
        self.assertNotEqual((process / "maps").stat().st_uid, os.geteuid())
        for name in ("mem", "environ"):
            with self.assertRaises(PermissionError):
                (process / name).open("rb")
        # With the limit 0, the kernel passes core dumps to a program that handles core dumps.
        limits = resource.prlimit(program.process.pid, resource.RLIMIT_CORE)
        self.assertEqual(limits, (1, 1))

    def background(self, program):
        screenshot = ARTIFACTS / "memory.png"
        program.save_screenshot(screenshot)
        return output("convert", str(screenshot), "-format", "#%[hex:u.p{12,12}]", "info:")[:7]

    def test_is_not_dumpable_without_a_portal(self):
        with self.program_before_its_first_secret() as program:
            self.assert_not_dumpable(program)

    def test_is_not_dumpable_without_a_session_bus(self):
        no_bus = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent"}
        with self.program_before_its_first_secret(variables=no_bus) as program:
            self.assert_not_dumpable(program)

    def test_is_not_dumpable_while_the_portal_does_not_answer(self):
        with Portal() as portal:
            portal.stop()
            with self.program_before_its_first_secret() as program:
                self.assert_not_dumpable(program)

    def test_is_not_dumpable_and_follows_the_portal(self):
        with Portal() as portal:
            portal.set(APPEARANCE, "color-scheme", 1)
            with self.program_before_its_first_secret() as program:
                self.assert_not_dumpable(program)
            with Program(self.desktop) as program:
                wait_for(lambda: self.background(program) == DARK, "the portal's colour scheme")
                self.assert_not_dumpable(program)

    def test_the_mock_portal_refuses_a_process_that_is_not_dumpable(self):
        """Shows that the test above fails if the program is not dumpable from the start."""
        with Portal():
            answers = [
                subprocess.run(
                    [sys.executable, "-c", READ_SETTINGS, flag],
                    stdout=subprocess.PIPE,
                    text=True,
                    check=True,
                ).stdout.strip()
                for flag in ("1", "0")
            ]
        self.assertEqual(answers, ["answered", "org.freedesktop.DBus.Error.AccessDenied"])


def run_as_nobody():
    """Runs these tests as the user nobody, because root can read the memory of every process.

    Returns the exit status.
    """
    nobody = 65534
    with tempfile.TemporaryDirectory(prefix="morvane-e2e-") as name:
        folder = pathlib.Path(name)
        shutil.copytree(pathlib.Path(__file__).parent, folder / "tests")
        shutil.copy(PROGRAM, folder / "program")
        shutil.copy(STOPPING_RANDOM, folder / "library")
        for path in (folder, *folder.rglob("*")):
            os.chown(path, nobody, nobody)
        return subprocess.run(
            [
                *("setpriv", f"--reuid={nobody}", f"--regid={nobody}", "--clear-groups"),
                *(sys.executable, "-B", "-W", "ignore"),
                *(folder / "tests" / pathlib.Path(__file__).name, *sys.argv[1:]),
            ],
            env={
                **os.environ,
                "MORVANE_PROGRAM": str(folder / "program"),
                "MORVANE_STOPPING_RANDOM": str(folder / "library"),
                "MORVANE_ARTIFACTS": str(folder),
            },
            cwd=folder,
            check=False,
        ).returncode


if __name__ == "__main__":
    if os.geteuid() == 0:
        sys.exit(run_as_nobody())
    unittest.main()
