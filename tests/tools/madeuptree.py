# SPDX-License-Identifier: Apache-2.0
"""A made-up project in a temporary folder, and a run of one of the checkers over it."""

import os
import subprocess
import sys
import tempfile
import unittest

PROJECT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
OPENING = "// SPDX-License-Identifier: Apache-2.0\n// What a file is for.\n"


class MadeUpTree(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = folder.name

    def write(self, path, text):
        whole = os.path.join(self.root, path)
        os.makedirs(os.path.dirname(whole), exist_ok=True)
        with open(whole, "w", encoding="utf-8") as file:
            file.write(text)

    def source(self, path, *lines):
        self.write(path, OPENING + "\n".join(lines) + "\n")

    def run_checker(self, name, *arguments):
        """(exit status, lines on standard output)"""
        command = [sys.executable, "-B", os.path.join(PROJECT, "tools", name), "--root", self.root]
        done = subprocess.run(command + list(arguments), capture_output=True, text=True, check=False)
        self.assertNotIn("Traceback", done.stderr)
        return done.returncode, done.stdout.splitlines()

    def assert_clean(self, name, *arguments):
        self.assertEqual(self.run_checker(name, *arguments)[0], 0)

    def assert_one_violation(self, name, start, *arguments):
        status, lines = self.run_checker(name, *arguments)
        self.assertEqual((status, len(lines)), (1, 1), lines)
        self.assertTrue(lines[0].startswith(start), lines[0])
        return lines[0]
