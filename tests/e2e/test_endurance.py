# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""Long use: as much memory after thousands of secrets as before, and a random source that fails."""

import mmap
import os
import pathlib
import re
import struct
import subprocess
import tempfile
import unittest

from desktop import PROGRAM, Desktop, Program, first, until

TOLERANCE = 1024
"""KiB by which memory may grow over all repetitions: less than any object for each of them."""

ALERT = "Einstellung prüfen"


class RandomSource:
    """The page that FailingRandom.cpp shares with the program."""

    def __init__(self):
        self._file = tempfile.NamedTemporaryFile(prefix="morvane-e2e-")
        self._file.truncate(mmap.PAGESIZE)
        self._page = mmap.mmap(self._file.fileno(), mmap.PAGESIZE)

    def program(self, desktop):
        """The program under test, drawing from this source."""
        return Program(
            desktop,
            preload=os.environ["MORVANE_FAILING_RANDOM"],
            variables={"MORVANE_RANDOM_CONTROL": self._file.name},
        )

    @property
    def draws(self):
        return struct.unpack_from("=Q", self._page, 0)[0]

    def fail(self, fails):
        struct.pack_into("=Q", self._page, 8, fails)

    def close(self):
        self._page.close()
        self._file.close()


def setUpModule():
    Source.desktop = Desktop()
    unittest.addModuleCleanup(Source.desktop.close)


class Source(unittest.TestCase):
    desktop = None

    def setUp(self):
        self.source = RandomSource()
        self.addCleanup(self.source.close)
        self.program = self.enterContext(self.source.program(self.desktop))
        self.program.activate()
        self.value = until(self.program.value, "a secret")

    def quit(self):
        self.program.key("ctrl+q")
        self.assertEqual(self.program.ended(), (0, ""))


class Endurance(Source):
    def strike(self, times, chords, draws):
        """Strikes keys again and again, and returns once the program has drawn for all of them."""
        expected = self.source.draws + times * draws
        keys = ["xdotool", "key", "--delay", "0", "--repeat", str(times), *chords]
        subprocess.run(keys, check=True)
        until(lambda: self.source.draws >= expected, f"{times} times {chords}")
        self.assertEqual(self.source.draws, expected)

    def draws(self, *chords):
        """How often the program draws for these keys, of which each makes a secret."""
        start, history = self.source.draws, self.program.history()
        for chord in chords:
            self.program.key(chord)
            until(lambda: self.program.history() != history, "another secret")
            history = self.program.history()
        return self.source.draws - start

    def memory(self):
        """KiB of the program's memory that are no file's, once that has come to rest."""
        status = pathlib.Path(f"/proc/{self.program.process.pid}/status")
        seen = []

        def at_rest():
            found = re.findall(r"^Rss(?:Anon|Shmem):\s+(\d+) kB$", status.read_text(), re.MULTILINE)
            self.assertEqual(len(found), 2)
            seen.append(sum(map(int, found)))
            return len(seen) > 10 and len(set(seen[-10:])) == 1

        until(at_rest, "memory at rest")
        return seen[-1]

    def assert_no_growth(self, repetitions, repeat):
        """Repeating so often, after a tenth of it to warm up, leaves memory as it was."""
        for _ in range(repetitions // 10):
            repeat()
        before = self.memory()
        for _ in range(repetitions):
            repeat()
        after = self.memory()
        print(f"{before} KiB, then {after} KiB", end=" ... ", flush=True)
        # The sanitizer keeps what has been freed.
        if b"__asan_init" not in pathlib.Path(PROGRAM).read_bytes():
            self.assertLess(after - before, TOLERANCE)

    def test_ten_thousand_secrets(self):
        draws = self.draws("ctrl+r")
        self.assertGreater(draws, 0)
        self.assert_no_growth(200, lambda: self.strike(50, ["ctrl+r"], draws))
        self.assertNotEqual(self.program.value(), self.value)
        self.quit()

    def test_a_thousand_switches_of_the_mode(self):
        self.program.click("Passwort")
        draws = self.draws("Right", "Left")
        # One at a time: the controls of a mode are only let go of when there is nothing else to do.
        self.assert_no_growth(500, lambda: self.strike(1, ["Right", "Left"], draws))
        self.assertRegex(self.program.value(), r"^\S{10}$")
        self.quit()


class Failure(Source):
    def alert(self):
        return first(self.program.accessible(), lambda a: a.name == ALERT)

    def fails(self, action):
        """After `action` there is the alert, and still the same secret; both outlast its end."""
        history = self.program.history()
        action()
        until(self.alert, "the alert")
        self.program.find(
            lambda a: a.name
            == "Der sichere Zufallsgenerator von macOS konnte nicht verwendet werden.",
            "the message",
        )
        self.assertEqual((self.program.value(), self.program.history()), (self.value, history))
        self.program.key("Return")
        until(lambda: not self.alert(), "the end of the alert")
        self.assertEqual((self.program.value(), self.program.history()), (self.value, history))

    def succeeds(self, action, pattern):
        history = self.program.history()
        action()
        until(lambda: self.program.history() != history, "another secret")
        self.assertIsNone(self.alert())
        self.assertNotEqual(self.program.value(), self.value)
        self.assertRegex(self.program.value(), pattern)
        self.value = self.program.value()

    def test_a_source_that_fails_for_a_while(self):
        def again():
            self.program.key("ctrl+r")

        self.succeeds(again, r"^\S{10}$")
        self.source.fail(True)
        self.fails(again)
        self.fails(again)
        self.source.fail(False)
        self.succeeds(again, r"^\S{10}$")
        self.source.fail(True)
        self.fails(lambda: self.program.click("Passphrase"))
        self.source.fail(False)
        self.succeeds(again, r"^([a-z]+-){5}[0-9]{1,2}$")
        self.quit()


if __name__ == "__main__":
    unittest.main(verbosity=2)
