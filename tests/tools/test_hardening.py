# SPDX-License-Identifier: Apache-2.0
"""The checker of hardened binaries, on small libraries that each lack one thing."""

import os
import subprocess
import sys
import tempfile
import unittest

from madeuptree import PROJECT

SOURCE = """
#include <stdio.h>
void fill(char *text);
int say(const char *what) {
  char text[64];
  fill(text);
  return printf("%s %d", what, text[3]);
}
"""
HARD = ["-fstack-protector-strong", "-D_FORTIFY_SOURCE=2", "-fcf-protection", "-Wl,-z,relro,-z,now"]


class Hardening(unittest.TestCase):
    def check(self, *flags):
        """What the checker says of a library built with these flags beside the hard ones."""
        with tempfile.TemporaryDirectory() as folder:
            source, library = os.path.join(folder, "say.c"), os.path.join(folder, "say.so")
            with open(source, "w", encoding="utf-8") as file:
                file.write(SOURCE)
            subprocess.run(["g++", "-x", "c", "-O2", "-shared", "-fPIC", *HARD, *flags, source, "-o", library],
                           check=True, capture_output=True)
            return self.run_checker(library)

    def run_checker(self, path):
        checker = os.path.join(PROJECT, "tools/check-hardening.py")
        done = subprocess.run([sys.executable, "-B", checker, path], capture_output=True, text=True, check=False)
        self.assertNotIn("Traceback", done.stderr)
        return done.returncode, done.stdout

    def assert_lacks(self, words, *flags):
        status, told = self.check(*flags)
        self.assertEqual(status, 1)
        self.assertIn(words, told)
        self.assertEqual(len(told.splitlines()), 1, told)

    def test_a_library_with_all_of_it_passes(self):
        self.assertEqual(self.check()[0], 0)

    def test_late_binding_is_refused(self):
        self.assert_lacks("binds its symbols late", "-Wl,-z,lazy")

    def test_writable_relocations_are_refused(self):
        self.assert_lacks("no read-only relocations", "-Wl,-z,norelro")

    def test_unguarded_stacks_are_refused(self):
        self.assert_lacks("no guarded stacks", "-fno-stack-protector")

    def test_calls_that_fortifying_replaces_are_refused(self):
        self.assert_lacks("calls printf", "-U_FORTIFY_SOURCE")

    def test_functions_without_a_landing_are_refused(self):
        if os.uname().machine != "x86_64":
            self.skipTest("only x86-64 has landings of this kind")
        self.assert_lacks("no branch may land (say", "-fcf-protection=none")

    def test_an_executable_stack_is_refused(self):
        self.assert_lacks("executable stack", "-Wl,-z,execstack")

    def test_what_is_no_binary_is_said_to_be_none(self):
        status, told = self.run_checker(os.path.join(PROJECT, "LICENSE"))
        self.assertEqual(status, 1)
        self.assertIn("no ELF file", told)


if __name__ == "__main__":
    unittest.main()
