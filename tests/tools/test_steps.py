# SPDX-License-Identifier: Apache-2.0
"""What the steps of ./check and .ci/run take for changed, on a made-up repository."""

import os
import subprocess
import tempfile
import unittest

from madeuptree import PROJECT


class Steps(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = folder.name
        self.git("init", "-q", "-b", "main")
        self.commit("Old.cpp")

    def git(self, *words):
        command = ["git", "-c", "user.name=a", "-c", "user.email=a@example.com", *words]
        return subprocess.run(command, cwd=self.root, check=True, capture_output=True, text=True).stdout

    def write(self, path):
        with open(os.path.join(self.root, path), "a", encoding="utf-8") as file:
            file.write("//\n")

    def commit(self, *paths):
        for path in paths:
            self.write(path)
        self.git("add", "-A")
        self.git("commit", "-q", "-m", "Change")

    def shell(self, text, **environment):
        script = f"set -euo pipefail; . '{PROJECT}/tools/lib.sh'; . '{PROJECT}/tools/steps.sh'; {text}"
        return subprocess.run(["bash", "-c", script], cwd=self.root, env={**os.environ, **environment},
                              stdin=subprocess.DEVNULL, capture_output=True, text=True, check=False)

    def changed(self, **environment):
        done = self.shell("changed_sources", **environment)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        return done.stdout.split()

    def test_on_a_branch_it_is_what_the_branch_changed_the_newest_first(self):
        self.git("checkout", "-q", "-b", "mine")
        self.commit("First.cpp")
        self.commit("Second.cpp", "Notes.md")
        self.write("Old.cpp")
        self.assertEqual(self.changed(), ["Old.cpp", "Second.cpp", "First.cpp"])

    def test_a_header_stands_for_the_source_of_its_name(self):
        self.git("checkout", "-q", "-b", "mine")
        self.commit("First.h", "First.cpp")
        self.assertEqual(self.changed(), ["First.cpp"])

    def test_on_the_main_branch_it_is_the_last_twenty_commits(self):
        for number in range(22):
            self.commit(f"F{number}.cpp")
        self.assertEqual(self.changed(), [f"F{number}.cpp" for number in range(21, 1, -1)])

    def test_where_there_is_no_older_commit_it_is_everything(self):
        self.assertEqual(self.changed(), ["Old.cpp"])

    def test_the_environment_may_name_the_commit_to_compare_with(self):
        self.commit("First.cpp")
        self.commit("Second.cpp")
        self.assertEqual(self.changed(ORVEK_BASE="HEAD~1"), ["Second.cpp"])

    def test_nothing_changed_is_no_fault(self):
        self.assertEqual(self.changed(ORVEK_BASE="HEAD"), [])

    def test_a_failed_step_shows_its_output_and_ends_the_run_with_an_error(self):
        done = self.shell("bad() { echo broken; false; }; step bad bad; step good true; finish_steps")
        self.assertEqual(done.returncode, 1)
        self.assertRegex(done.stdout, r"bad +FAILED.*\nbroken\ngood +ok")

    def test_a_step_that_ends_early_ends_alone(self):
        done = self.shell("ends() { die why; }; step ends ends; step good true; finish_steps")
        self.assertEqual(done.returncode, 1)
        self.assertRegex(done.stdout, r"ends +FAILED.*\n.*why\ngood +ok")

    def test_steps_that_hold_end_without_an_error(self):
        self.assertEqual(self.shell("step good true; finish_steps").returncode, 0)


if __name__ == "__main__":
    unittest.main()
