# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The program's memory is kept from dumps and from others, who still see what they have to."""

import os
import pathlib
import resource
import shutil
import subprocess
import sys
import tempfile
import unittest

from desktop import ARTIFACTS, PROGRAM, Desktop, Program, output, until
from portal import APPEARANCE, Portal

DARK = "#323232"
"""The ground of the left panel."""


class Memory(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def assert_hidden(self, program):
        place = pathlib.Path(f"/proc/{program.process.pid}")
        until(lambda: (place / "maps").stat().st_uid != os.geteuid(), "a process that is hidden")
        with self.assertRaises(PermissionError):
            (place / "mem").open("rb")
        limits = resource.prlimit(program.process.pid, resource.RLIMIT_CORE)
        self.assertEqual(limits, (0, 0))

    def ground(self, program):
        picture = ARTIFACTS / "memory.png"
        program.picture(picture)
        return output("convert", str(picture), "-format", "#%[hex:u.p{12,12}]", "info:")[:7]

    def test_is_hidden_where_nobody_asks(self):
        with Program(self.desktop) as program:
            program.window()
            self.assert_hidden(program)

    def test_is_hidden_without_a_bus(self):
        nowhere = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nowhere"}
        with Program(self.desktop, variables=nowhere) as program:
            program.window()
            self.assert_hidden(program)

    def test_is_hidden_from_all_but_the_portal(self):
        with Portal() as portal:
            portal.set(APPEARANCE, "color-scheme", 1)
            with Program(self.desktop) as program:
                until(lambda: self.ground(program) == DARK, "the scheme that the portal told")
                self.assert_hidden(program)


def run_as_nobody():
    """Runs these tests as a user from whom things can be hidden; returns the exit status."""
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
