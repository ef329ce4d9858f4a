# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The sandbox blocks forbidden operations, which SandboxProbe attempts in every thread."""

import collections
import errno
import os
import pathlib
import pwd
import re
import shutil
import tempfile
import unittest

from desktop import PROGRAM, Desktop, Program, key, qt_version, wait_for

PROBE = os.environ["MORVANE_SANDBOX_PROBE"]
OLD_KERNEL = os.environ["MORVANE_OLD_KERNEL"]
UNSANDBOXED = os.environ["MORVANE_UNSANDBOXED_PROGRAM"]

CONTENTS = {
    *("create", "write", "append", "truncate", "rename", "link", "symlink", "mkdir", "rmdir"),
    "mkfifo",
}
"""Attempts to store text in files and in names of files, which Landlock refuses."""

LANDLOCK_ONLY = {"create", "write", "append", "mkdir"}
"""Attempts that the system call filter permits, because it cannot read the paths."""

PERMITTED = {"unix", "read", "null", "memory-file", "private-shared-memory"}

UNAVAILABLE = {"setxattrat", "file_setattr"}
"""System calls that the kernels of Debian 12 and 13 do not have."""

NO_ERROR = ""

FONT = pathlib.Path("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf")


class Sandbox(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)
        (cls.desktop.home / "file").write_text("unchanged", encoding="utf-8")
        (cls.desktop.home / "folder").mkdir()

    def run_probe(self, **options):
        """Runs the program with the probe.

        Returns two results. The first result is a dictionary that contains, for each attempt, pairs
        of a thread and an error number (0 for success). The second result is the text of the
        program's /proc/PID/status.
        """
        with Program(self.desktop, preload=PROBE, **options) as program:
            program.window()
            secret = wait_for(program.secret, "a secret")
            key("ctrl+r")
            wait_for(lambda: program.secret() not in (None, secret), "another secret")
            status = pathlib.Path(f"/proc/{program.process.pid}/status").read_text("utf-8")
            key("ctrl+q")
            exit_status, text = program.wait_for_exit()
        self.assertEqual(exit_status, 0, text)
        lines = text.splitlines()
        self.assertIn("probe done", lines)
        errors = collections.defaultdict(list)
        for thread, attempt, error in re.findall(r"^probe (\S+) (\S+) (-?\d+)$", text, re.M):
            errors[attempt].append((thread, int(error)))
        self.assertLess(CONTENTS | PERMITTED, errors.keys())
        # At this time, the threads of the display and of the buses run besides the main thread.
        self.assertGreaterEqual(len(errors["create"]), 3)
        self.assertEqual([line for line in lines if not line.startswith("probe ")], [])
        return errors, status

    def assert_errors(self, expected, attempts, errors):
        """Each attempt fails with an expected error, or succeeds if NO_ERROR is expected."""
        for attempt in sorted(attempts):
            with self.subTest(attempt=attempt):
                self.assertLessEqual(self.names_of(errors[attempt]), expected, errors[attempt])

    @staticmethod
    def names_of(results):
        """The names of the errors of one attempt in all threads."""
        return {
            errno.errorcode.get(error, str(error)) if error else NO_ERROR for _, error in results
        }

    def assert_refused_by_filter(self, attempts, errors):
        self.assert_errors({"ENOSYS"}, attempts, errors)

    def assert_not_refused(self, attempts, errors):
        """The attempts reach the kernel, so a test of their refusal can fail."""
        for attempt in sorted(attempts - UNAVAILABLE):
            with self.subTest(attempt=attempt):
                self.assertNotIn("ENOSYS", self.names_of(errors[attempt]))

    def test_no_thread_can_break_a_promise(self):
        errors, status = self.run_probe()
        for attempt, results in errors.items():
            print(f"{attempt:22}", *sorted(self.names_of(results) - {NO_ERROR}) or ["possible"])
        self.assert_errors({"EACCES"}, LANDLOCK_ONLY, errors)
        self.assert_refused_by_filter(errors.keys() - LANDLOCK_ONLY - PERMITTED, errors)
        self.assert_errors({NO_ERROR}, PERMITTED, errors)
        self.assertRegex(status, r"(?m)^NoNewPrivs:\s1$")
        self.assertEqual(
            sorted(path.name for path in self.desktop.home.iterdir()), ["file", "folder"]
        )
        self.assertEqual((self.desktop.home / "file").read_text("utf-8"), "unchanged")

    def test_without_the_sandbox_every_attempt_reaches_the_kernel(self):
        errors, _ = self.run_probe(program=UNSANDBOXED)
        self.assert_errors({NO_ERROR}, CONTENTS | PERMITTED, errors)
        self.assert_not_refused(errors.keys(), errors)

    def test_runs_on_a_kernel_without_landlock_and_seccomp(self):
        errors, _ = self.run_probe(wrapper=[OLD_KERNEL, "landlock", "seccomp", "--"])
        self.assert_errors({NO_ERROR}, CONTENTS | PERMITTED, errors)
        self.assert_not_refused(errors.keys(), errors)

    def test_cannot_send_on_a_kernel_without_landlock(self):
        errors, _ = self.run_probe(wrapper=[OLD_KERNEL, "landlock", "--"])
        self.addCleanup((self.desktop.home / "fresh").unlink, missing_ok=True)
        self.assert_errors({NO_ERROR, "EEXIST"}, LANDLOCK_ONLY, errors)
        self.assert_refused_by_filter(errors.keys() - LANDLOCK_ONLY - PERMITTED, errors)
        self.assert_errors({NO_ERROR}, PERMITTED, errors)

    def test_cannot_store_on_a_kernel_without_seccomp(self):
        errors, _ = self.run_probe(wrapper=[OLD_KERNEL, "seccomp", "--"])
        self.assert_errors({"EACCES", "EXDEV"}, CONTENTS, errors)
        self.assert_not_refused(errors.keys(), errors)
        self.assert_errors({NO_ERROR}, PERMITTED, errors)

    def files_of_libraries(self, program):
        """The files that libraries create for an uncached font and a missing runtime folder."""
        with tempfile.TemporaryDirectory(prefix="morvane-e2e-") as path:
            folder = pathlib.Path(path)
            for name in ("fonts", "temporary"):
                (folder / name).mkdir()
            shutil.copy(FONT, folder / "fonts")
            configuration = folder / "fonts.conf"
            configuration.write_text(
                f"<fontconfig><dir>{folder}/fonts</dir>"
                f"<cachedir>{folder}/cache</cachedir></fontconfig>",
                encoding="ascii",
            )
            before = set(folder.rglob("*"))
            variables = {
                "FONTCONFIG_FILE": str(configuration),
                "TMPDIR": str(folder / "temporary"),
                "XDG_RUNTIME_DIR": "",
            }
            with Program(self.desktop, program=program, variables=variables) as running:
                running.window()
                wait_for(running.secret, "a secret")
                key("ctrl+q")
                self.assertEqual(running.wait_for_exit()[0], 0)
            return {str(path.relative_to(folder)) for path in set(folder.rglob("*")) - before}

    def test_libraries_cannot_store_anything(self):
        expected = {"cache"}
        # Qt 6.4 creates a missing runtime folder, Qt 6.8 does not.
        if qt_version() < (6, 8):
            expected.add(f"temporary/runtime-{pwd.getpwuid(os.geteuid()).pw_name}")
        self.assertLessEqual(expected, self.files_of_libraries(UNSANDBOXED))
        self.assertEqual(self.files_of_libraries(PROGRAM), set())


if __name__ == "__main__":
    unittest.main()
