# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The compiler's and the linker's protections are present in the program."""

import os
import platform
import re
import subprocess
import unittest

PROGRAM = os.environ["MORVANE_PROGRAM"]


def inspect(*command):
    """The output of a command that takes the program's file as its last argument."""
    return subprocess.run([*command, PROGRAM], check=True, stdout=subprocess.PIPE, text=True).stdout


def first_instructions():
    """The first instructions of main and of the functions of SecureGenerator, by function name."""
    code = inspect("objdump", "--disassemble", "--no-show-raw-insn", "--section=.text")
    found = re.findall(r"^[0-9a-f]+ <(\w+)>:\n\s*[0-9a-f]+:\s+(\S+)", code, re.M)
    return {name: first for name, first in found if "SecureGenerator" in name or name == "main"}


class Hardening(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.header = inspect("readelf", "--wide", "--file-header")
        cls.segments = inspect("readelf", "--wide", "--program-headers")
        cls.dynamic = inspect("readelf", "--wide", "--dynamic")
        cls.imports = set(re.findall(r" UND (\w+)", inspect("readelf", "--wide", "--dyn-syms")))

    def test_is_position_independent(self):
        self.assertRegex(self.header, r"Type:\s+DYN \(Position-Independent Executable")
        self.assertRegex(self.dynamic, r"\(FLAGS_1\)\s.*\bPIE\b")
        self.assertNotIn("(TEXTREL)", self.dynamic)

    def test_relocations_are_read_only(self):
        self.assertIn("GNU_RELRO", self.segments)
        self.assertRegex(self.dynamic, r"\(FLAGS\)\s.*\bBIND_NOW\b")

    def test_no_segment_is_writable_and_executable(self):
        self.assertRegex(self.segments, r"GNU_STACK\s.*\sRW\s")
        self.assertNotRegex(self.segments, r"\sRWE\s")

    def test_uses_stack_protectors(self):
        self.assertIn("__stack_chk_fail", self.imports)

    def test_uses_fortified_functions(self):
        self.assertTrue({n for n in self.imports if re.fullmatch(r"__\w+_chk", n)}, self.imports)

    def test_functions_begin_with_landing_pads(self):
        landing_pads = {"x86_64": {"endbr64"}, "aarch64": {"bti", "paciasp"}}[platform.machine()]
        instructions = first_instructions()
        self.assertIn("main", instructions)
        self.assertGreater(len(instructions), 1)
        unprotected = {n: i for n, i in instructions.items() if i not in landing_pads}
        self.assertEqual(unprotected, {})

    if platform.machine() == "x86_64":  # AArch64 has no shadow stack

        def test_supports_the_shadow_stack(self):
            self.assertRegex(inspect("readelf", "--wide", "--notes"), r"Properties:.*\bSHSTK\b")


if __name__ == "__main__":
    unittest.main()
