# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The protections that the compiler and the linker put into the program."""

import os
import platform
import re
import subprocess
import unittest

PROGRAM = os.environ["MORVANE_PROGRAM"]


def told_by(*command):
    return subprocess.run([*command, PROGRAM], check=True, stdout=subprocess.PIPE, text=True).stdout


def functions():
    """Of every function of ours, by its name, the first instruction."""
    code = told_by("objdump", "--disassemble", "--no-show-raw-insn", "--section=.text")
    found = re.findall(r"^[0-9a-f]+ <(\w+)>:\n\s*[0-9a-f]+:\s+(\S+)", code, re.M)
    return {name: first for name, first in found if "SecureGenerator" in name or name == "main"}


class Hardening(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.header = told_by("readelf", "--wide", "--file-header")
        cls.segments = told_by("readelf", "--wide", "--program-headers")
        cls.dynamic = told_by("readelf", "--wide", "--dynamic")
        cls.imports = set(re.findall(r" UND (\w+)", told_by("readelf", "--wide", "--dyn-syms")))

    def test_its_place_in_memory_is_drawn_anew_at_each_start(self):
        self.assertRegex(self.header, r"Type:\s+DYN \(Position-Independent Executable")
        self.assertRegex(self.dynamic, r"\(FLAGS_1\)\s.*\bPIE\b")
        self.assertNotIn("(TEXTREL)", self.dynamic)

    def test_addresses_of_libraries_are_fixed_before_it_runs(self):
        self.assertIn("GNU_RELRO", self.segments)
        self.assertRegex(self.dynamic, r"\(FLAGS\)\s.*\bBIND_NOW\b")

    def test_no_memory_is_both_written_and_executed(self):
        self.assertRegex(self.segments, r"GNU_STACK\s.*\sRW\s")
        self.assertNotRegex(self.segments, r"\sRWE\s")

    def test_the_stack_is_watched(self):
        self.assertIn("__stack_chk_fail", self.imports)

    def test_calls_of_the_c_library_check_sizes(self):
        self.assertTrue({n for n in self.imports if re.fullmatch(r"__\w+_chk", n)}, self.imports)

    def test_jumps_only_land_where_they_may(self):
        mark = {"x86_64": {"endbr64"}, "aarch64": {"bti", "paciasp"}}[platform.machine()]
        first = functions()
        self.assertIn("main", first)
        self.assertGreater(len(first), 1)
        self.assertEqual({n: i for n, i in first.items() if i not in mark}, {})

    if platform.machine() == "x86_64":  # which alone has a stack of its own for them

        def test_returns_go_where_calls_came_from(self):
            self.assertRegex(told_by("readelf", "--wide", "--notes"), r"Properties:.*\bSHSTK\b")


if __name__ == "__main__":
    unittest.main()
