# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""Constant memory over thousands of secrets, and recovery after the random source has failed."""

import mmap
import os
import pathlib
import re
import struct
import subprocess
import tempfile
import unittest

from desktop import PROGRAM, Desktop, Program, find_first, qt_version, wait_for

TOLERANCE = 1024
"""KiB by which the memory may grow. A leak of one object per repetition exceeds this limit."""

ALERT = "Einstellung prüfen"


class RandomSource:
    """Controls the library FailingRandom through a page of memory shared with the program."""

    def __init__(self):
        self._file = tempfile.NamedTemporaryFile(prefix="morvane-e2e-")
        self._file.truncate(mmap.PAGESIZE)
        self._page = mmap.mmap(self._file.fileno(), mmap.PAGESIZE)

    def start_program(self, desktop, program_type=Program):
        """Starts the program under test with this random source."""
        return program_type(
            desktop,
            preload=os.environ["MORVANE_FAILING_RANDOM"],
            variables={"MORVANE_RANDOM_CONTROL": self._file.name},
        )

    @property
    def draws(self):
        """The number of times that the program has drawn random bytes."""
        return struct.unpack_from("=Q", self._page, 0)[0]

    def set_failing(self, fails):
        struct.pack_into("=Q", self._page, 8, fails)

    def close(self):
        self._page.close()
        self._file.close()


def setUpModule():
    RandomSourceTest.desktop = Desktop()
    unittest.addModuleCleanup(RandomSourceTest.desktop.close)


class RandomSourceTest(unittest.TestCase):
    """Starts the program with a controlled random source."""

    desktop = None

    def setUp(self):
        self.source = RandomSource()
        self.addCleanup(self.source.close)
        self.program = self.enterContext(self.source.start_program(self.desktop))
        self.program.ensure_keyboard_focus()
        self.secret = wait_for(self.program.secret, "a secret")

    def quit(self):
        self.program.key("ctrl+q")
        self.assertEqual(self.program.wait_for_exit(), (0, ""))


class Endurance(RandomSourceTest):
    def press_repeatedly(self, times, combinations, draws):
        """Presses keys `times` times; waits for `times * draws` draws and asserts this number."""
        expected = self.source.draws + times * draws
        keys = ["xdotool", "key", "--delay", "0", "--repeat", str(times), *combinations]
        subprocess.run(keys, check=True)
        wait_for(lambda: self.source.draws >= expected, f"{expected} draws after {combinations}")
        self.assertEqual(self.source.draws, expected)

    def count_draws(self, *combinations):
        """Presses keys, each of which generates a secret; returns the number of draws."""
        start, history = self.source.draws, self.program.history()
        for combination in combinations:
            self.program.key(combination)
            wait_for(lambda: self.program.history() != history, "another secret")
            history = self.program.history()
        return self.source.draws - start

    def memory(self):
        """The program's memory in KiB without mapped files, once the size has stopped changing."""
        status = pathlib.Path(f"/proc/{self.program.process.pid}/status")
        sizes = []

        def is_stable():
            found = re.findall(r"^Rss(?:Anon|Shmem):\s+(\d+) kB$", status.read_text(), re.MULTILINE)
            self.assertEqual(len(found), 2)
            sizes.append(sum(map(int, found)))
            return len(sizes) > 10 and len(set(sizes[-10:])) == 1

        wait_for(is_stable, "memory that does not change any more")
        return sizes[-1]

    def assert_no_growth(self, repetitions, repeat, tolerance=TOLERANCE):
        """Calls of `repeat` increase the memory by less than `tolerance` KiB.

        A tenth of the repetitions precede the first measurement as a warm-up.
        """
        for _ in range(repetitions // 10):
            repeat()
        before = self.memory()
        for _ in range(repetitions):
            repeat()
        after = self.memory()
        print(f"{before} KiB, then {after} KiB", end=" ... ", flush=True)
        # With AddressSanitizer, memory grows because the reuse of freed memory is delayed.
        if b"__asan_init" not in pathlib.Path(PROGRAM).read_bytes():
            self.assertLess(after - before, tolerance)

    def test_ten_thousand_secrets(self):
        draws = self.count_draws("ctrl+r")
        self.assertGreater(draws, 0)
        self.assert_no_growth(200, lambda: self.press_repeatedly(50, ["ctrl+r"], draws))
        self.assertNotEqual(self.program.secret(), self.secret)
        self.quit()

    def test_a_thousand_mode_changes(self):
        self.program.click("Passwort")
        draws = self.count_draws("Right", "Left")
        # Qt 6.4 leaks 5 KiB for the switches that each change creates while accessibility is on.
        tolerance = 1000 * 6 if qt_version() < (6, 5) else TOLERANCE
        # The test waits after each repetition, so that Qt's deferred deletions can run.
        self.assert_no_growth(
            500, lambda: self.press_repeatedly(1, ["Right", "Left"], draws), tolerance
        )
        self.assertRegex(self.program.secret(), r"^\S{10}$")
        self.quit()


class Failure(RandomSourceTest):
    def alert(self):
        return find_first(self.program.accessible(), lambda a: a.name == ALERT)

    def assert_fails(self, action):
        """The action opens the alert; the secret and the history do not change."""
        history = self.program.history()
        action()
        wait_for(self.alert, "the alert")
        self.program.find(
            lambda a: a.name
            == "Der sichere Zufallsgenerator von macOS konnte nicht verwendet werden.",
            "the message",
        )
        self.assertEqual((self.program.secret(), self.program.history()), (self.secret, history))
        self.program.key("Return")
        wait_for(lambda: not self.alert(), "a closed alert")
        self.assertEqual((self.program.secret(), self.program.history()), (self.secret, history))

    def assert_succeeds(self, action, pattern):
        """The action generates another secret and opens no alert."""
        history = self.program.history()
        action()
        wait_for(lambda: self.program.history() != history, "another secret")
        self.assertIsNone(self.alert())
        self.assertNotEqual(self.program.secret(), self.secret)
        self.assertRegex(self.program.secret(), pattern)
        self.secret = self.program.secret()

    def test_a_random_source_that_fails_temporarily(self):
        def regenerate():
            self.program.key("ctrl+r")

        self.assert_succeeds(regenerate, r"^\S{10}$")
        self.source.set_failing(True)
        self.assert_fails(regenerate)
        self.assert_fails(regenerate)
        self.source.set_failing(False)
        self.assert_succeeds(regenerate, r"^\S{10}$")
        self.source.set_failing(True)
        self.assert_fails(lambda: self.program.click("Passphrase"))
        self.source.set_failing(False)
        self.assert_succeeds(regenerate, r"^([a-z]+-){5}[0-9]{1,2}$")
        self.quit()


if __name__ == "__main__":
    unittest.main(verbosity=2)
