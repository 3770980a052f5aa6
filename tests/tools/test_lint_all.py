# SPDX-License-Identifier: Apache-2.0
"""That linting many sources together finds what linting each alone finds, and nothing else."""

import json
import os
import subprocess
import tempfile
import unittest

from madeuptree import PROJECT

RULES = """Checks: '-*,readability-braces-around-statements,misc-unused-using-decls'
WarningsAsErrors: '*'
"""
CLEAN = "namespace {\nconst int limit = 3;\n}\nint %s(int a) { return a > limit ? limit : a; }\n"
BAD = "namespace {\nconst int limit = 4;\n}\nint %s(int a) {\n  if (a > limit)\n    return limit;\n  return a;\n}\n"


class LintAll(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = folder.name
        self.sources = {}
        os.makedirs(os.path.join(self.root, "build/lint"))
        self.write(".clang-tidy", RULES)

    def write(self, name, text):
        path = os.path.join(self.root, name)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def source(self, name, text, flags=""):
        path = self.write(name, text)
        self.sources[path] = {"directory": self.root, "file": path,
                              "command": f"c++ -std=c++20 {flags} -o {name}.o -c {path}"}
        return path

    def lint(self):
        with open(os.path.join(self.root, "build/lint/compile_commands.json"), "w", encoding="utf-8") as file:
            json.dump(list(self.sources.values()), file)
        command = [os.path.join(PROJECT, "tools/lint-all.py"), "--verbose", "build/lint"]
        return subprocess.run(command, cwd=self.root, capture_output=True, text=True, check=False)

    def test_clean_sources_pass_together_though_their_names_clash(self):
        self.source("one.cpp", CLEAN % "one")
        self.source("two.cpp", CLEAN % "two")
        done = self.lint()
        self.assertEqual((done.returncode, done.stdout), (0, "2 sources, 0 of them linted alone\n\n"))

    def test_a_fault_is_told_with_its_own_file_and_line_and_nobody_elses(self):
        self.source("one.cpp", CLEAN % "one")
        bad = self.source("two.cpp", BAD % "two")
        done = self.lint()
        self.assertEqual(done.returncode, 1)
        self.assertRegex(done.stdout, rf"{bad}:5:\d+: error: .*braces")
        self.assertEqual(done.stdout.count("lint fails"), 1)

    def test_a_source_that_stands_beside_no_other_is_linted_alone(self):
        self.source("one.cpp", "using Meaning = int;\n" + CLEAN % "one")
        bad = self.source("two.cpp", "enum class Other { Meaning };\nint Meaning;\n" + BAD % "two")
        done = self.lint()
        self.assertEqual(done.returncode, 1)
        self.assertIn(f"lint fails: {bad}", done.stdout)

    def test_sources_with_other_flags_are_not_mixed(self):
        self.source("one.cpp", CLEAN % "one", "-DLIMIT=1")
        self.source("two.cpp", "#ifdef LIMIT\n#error mixed\n#endif\n" + CLEAN % "two")
        self.assertEqual(self.lint().returncode, 0)

    def test_what_no_compiler_takes_fails(self):
        self.source("one.cpp", CLEAN % "one")
        broken = self.source("two.cpp", "int two( { return 1; }\n")
        done = self.lint()
        self.assertEqual(done.returncode, 1)
        self.assertIn(f"lint fails: {broken}", done.stdout)

    def test_a_folders_own_rules_hold_there(self):
        os.makedirs(os.path.join(self.root, "tests"))
        self.write("tests/.clang-tidy", "InheritParentConfig: true\nChecks: '-readability-*'\n")
        self.source("tests/one.cpp", BAD % "one")
        self.source("tests/two.cpp", BAD % "two")
        self.assertEqual(self.lint().returncode, 0)


if __name__ == "__main__":
    unittest.main()
