# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The program writes no core dump, and other processes of the user cannot read its memory.

For this, the program's process is not dumpable. The desktop portal refuses calls of such a process,
so the process becomes not dumpable after the portal has answered.
"""

import os
import pathlib
import resource
import shutil
import subprocess
import sys
import tempfile
import unittest

from desktop import ARTIFACTS, PROGRAM, Desktop, Program, output, wait_for
from portal import APPEARANCE, Portal

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

    def assert_not_dumpable(self, program):
        process = pathlib.Path(f"/proc/{program.process.pid}")
        maps = process / "maps"
        wait_for(lambda: maps.stat().st_uid != os.geteuid(), "a process that is not dumpable")
        with self.assertRaises(PermissionError):
            (process / "mem").open("rb")
        limits = resource.prlimit(program.process.pid, resource.RLIMIT_CORE)
        self.assertEqual(limits, (1, 1))

    def background(self, program):
        screenshot = ARTIFACTS / "memory.png"
        program.save_screenshot(screenshot)
        return output("convert", str(screenshot), "-format", "#%[hex:u.p{12,12}]", "info:")[:7]

    def test_is_not_dumpable_without_a_portal(self):
        with Program(self.desktop) as program:
            program.window()
            self.assert_not_dumpable(program)

    def test_is_not_dumpable_without_a_session_bus(self):
        no_bus = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent"}
        with Program(self.desktop, variables=no_bus) as program:
            program.window()
            self.assert_not_dumpable(program)

    def test_is_not_dumpable_after_the_portal_has_answered(self):
        with Portal() as portal:
            portal.set(APPEARANCE, "color-scheme", 1)
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
                "MORVANE_ARTIFACTS": str(folder),
            },
            cwd=folder,
            check=False,
        ).returncode


if __name__ == "__main__":
    if os.geteuid() == 0:
        sys.exit(run_as_nobody())
    unittest.main()
