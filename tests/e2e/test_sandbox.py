# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""What the kernel refuses the program, tried from inside of it in every one of its threads."""

import collections
import errno
import os
import pathlib
import pwd
import re
import shutil
import tempfile
import unittest

from desktop import PROGRAM, Desktop, Program, key, qt_version, until

PROBE = os.environ["MORVANE_SANDBOX_PROBE"]
OLD_KERNEL = os.environ["MORVANE_OLD_KERNEL"]
UNCONFINED = os.environ["MORVANE_UNSANDBOXED_PROGRAM"]

# What anybody may do, whatever machine the tests run on.
COMMON = {"exec", "ptrace", "internet"}
FILES = {"create", "write", "append", "rename", "link", "symlink", "mkdir", "rmdir", "mkfifo"}
SYSTEM = {"exec", "ptrace", "read-memory", "rings", "mark"}
SOCKETS = {"internet", "internet-6", "internet-disguised"}
OPEN = {"unix", "netlink", "read", "null", "memory-file"}

FONT = pathlib.Path("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf")


class Sandbox(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)
        (cls.desktop.home / "file").write_text("untouched", encoding="utf-8")
        (cls.desktop.home / "folder").mkdir()

    def intrude(self, **options):
        """The errors of all attempts: of each, by its name, those that it met in the threads."""
        with Program(self.desktop, preload=PROBE, **options) as program:
            program.window()
            value = until(program.value, "a value")
            key("ctrl+r")
            until(lambda: program.value() not in (None, value), "another value")
            status = pathlib.Path(f"/proc/{program.process.pid}/status").read_text("utf-8")
            key("ctrl+q")
            ended, text = program.ended()
        self.assertEqual(ended, 0, text)
        lines = text.splitlines()
        self.assertIn("probe done", lines)
        errors = collections.defaultdict(list)
        for thread, attempt, error in re.findall(r"^probe (\S+) (\S+) (-?\d+)$", text, re.M):
            errors[attempt].append((thread, int(error)))
        self.assertEqual(errors.keys(), FILES | SYSTEM | SOCKETS | OPEN)
        # The display's and the buses' have started by then.
        self.assertGreaterEqual(len(errors["create"]), 3)
        self.assertEqual([l for l in lines if not l.startswith("probe ")], [])
        return errors, status

    def assert_met(self, expected, attempts, errors):
        for attempt in sorted(attempts):
            with self.subTest(attempt=attempt):
                met = {errno.errorcode.get(e, str(e)) if e else "" for _, e in errors[attempt]}
                self.assertLessEqual(met, expected, errors[attempt])

    def test_every_thread_is_refused_what_stores_or_sends(self):
        errors, status = self.intrude()
        self.assert_met({"EACCES", "EXDEV"}, FILES, errors)
        self.assert_met({"EPERM", "EACCES", "ENOSYS"}, SYSTEM, errors)
        self.assert_met({"EAFNOSUPPORT"}, SOCKETS, errors)
        self.assert_met({""}, OPEN, errors)
        self.assertRegex(status, r"(?m)^NoNewPrivs:\s1$")
        self.assertEqual(
            sorted(path.name for path in self.desktop.home.iterdir()), ["file", "folder"]
        )
        self.assertEqual((self.desktop.home / "file").read_text("utf-8"), "untouched")

    def test_without_it_nobody_refuses_anything(self):
        errors, _ = self.intrude(program=UNCONFINED)
        self.assert_met({""}, FILES | COMMON | OPEN, errors)

    def test_runs_on_a_kernel_that_refuses_nothing(self):
        errors, _ = self.intrude(under=[OLD_KERNEL, "landlock", "seccomp", "--"])
        self.assert_met({""}, FILES | COMMON | OPEN, errors)

    def test_without_landlock_it_sends_nothing(self):
        errors, _ = self.intrude(under=[OLD_KERNEL, "landlock", "--"])
        self.assert_met({""}, FILES | OPEN, errors)
        self.assert_met({"EAFNOSUPPORT"}, SOCKETS, errors)

    def test_without_seccomp_it_stores_nothing(self):
        errors, _ = self.intrude(under=[OLD_KERNEL, "seccomp", "--"])
        self.assert_met({"EACCES", "EXDEV"}, FILES | {"exec"}, errors)
        self.assert_met({""}, {"ptrace", "internet"} | OPEN, errors)

    def stored_by_libraries(self, program):
        """What is stored where a font has not been seen before, and no runtime folder is there."""
        with tempfile.TemporaryDirectory(prefix="morvane-e2e-") as name:
            folder = pathlib.Path(name)
            for place in ("fonts", "temporary"):
                (folder / place).mkdir()
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
                until(running.value, "a value")
                key("ctrl+q")
                self.assertEqual(running.ended()[0], 0)
            return {str(path.relative_to(folder)) for path in set(folder.rglob("*")) - before}

    def test_libraries_store_nothing_either(self):
        expected = {"cache"}
        # Qt 6.4 makes a runtime folder where there is none, Qt 6.8 does not.
        if qt_version() < (6, 8):
            expected.add(f"temporary/runtime-{pwd.getpwuid(os.geteuid()).pw_name}")
        self.assertLessEqual(expected, self.stored_by_libraries(UNCONFINED))
        self.assertEqual(self.stored_by_libraries(PROGRAM), set())


if __name__ == "__main__":
    unittest.main()
