# SPDX-License-Identifier: Apache-2.0
"""The shell functions that the commands share, with the package tools replaced by stand-ins."""

import os
import stat
import subprocess
import tempfile
import unittest

from madeuptree import PROJECT

PACKAGES = "# a comment\n\ncompiler run why\nwidgets run why\nlint check why\nserver test why\n"


class Scripts(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = folder.name
        os.mkdir(os.path.join(self.root, "bin"))
        self.write("tools/packages.txt", PACKAGES)
        self.installed("compiler", "widgets", "server", "lint")
        self.command("apt-get", 'echo "$@" >>apt.log')

    def write(self, path, text):
        whole = os.path.join(self.root, path)
        os.makedirs(os.path.dirname(whole), exist_ok=True)
        with open(whole, "w", encoding="utf-8") as file:
            file.write(text)
        return whole

    def command(self, name, body):
        path = self.write(f"bin/{name}", f"#!/bin/sh\n{body}\n")
        os.chmod(path, os.stat(path).st_mode | stat.S_IXUSR)

    def installed(self, *names):
        lines = "".join(f"installed {name}\\n" for name in names)
        self.command("dpkg-query", f"printf '{lines}config-files lint\\n'")

    def shell(self, text):
        environment = dict(os.environ, PATH=f"{self.root}/bin:{os.environ['PATH']}")
        script = f"set -euo pipefail; . '{PROJECT}/tools/lib.sh'; {text}"
        return subprocess.run(
            ["bash", "-c", script, "run"],
            cwd=self.root,
            env=environment,
            stdin=subprocess.DEVNULL,
            capture_output=True,
            text=True,
            check=False,
        )

    def apt_calls(self):
        path = os.path.join(self.root, "apt.log")
        if not os.path.exists(path):
            return []
        with open(path, encoding="utf-8") as file:
            return file.read().splitlines()

    def test_a_group_has_its_own_packages_only(self):
        self.assertEqual(self.shell("needed_packages run").stdout, "compiler\nwidgets\n")
        self.assertEqual(
            self.shell("needed_packages run check").stdout, "compiler\nwidgets\nlint\n"
        )

    def test_nothing_is_installed_where_nothing_is_missing(self):
        done = self.shell("ensure_packages run test check")
        self.assertEqual((done.returncode, done.stdout), (0, ""))
        self.assertEqual(self.apt_calls(), [])

    def test_missing_packages_are_installed_after_one_update(self):
        self.installed("compiler")
        self.command("id", "echo 0")
        self.assertEqual(self.shell("ensure_packages run test").returncode, 0)
        self.assertEqual(
            self.apt_calls(),
            ["-q -y update", "-q -y install --no-install-recommends widgets server"],
        )

    def test_a_removed_package_with_configuration_left_counts_as_missing(self):
        self.installed("compiler", "widgets")
        self.assertEqual(self.shell("missing_packages run check").stdout, "lint\n")

    def test_sudo_is_asked_where_the_user_is_not_root(self):
        self.installed("compiler")
        self.command("id", "echo 1000")
        self.command("sudo", 'echo sudo "$@" >>sudo.log; [ "$1" = -n ] && shift; exec "$@"')
        self.assertEqual(self.shell("ensure_packages run").returncode, 0)
        self.assertEqual(len(self.apt_calls()), 2)
        self.assertTrue(os.path.exists(os.path.join(self.root, "sudo.log")))

    def test_a_failing_installation_ends_with_one_line(self):
        self.installed("compiler")
        self.command("id", "echo 0")
        self.command("apt-get", '[ "$3" = update ]')
        done = self.shell("ensure_packages run; echo reached")
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stderr, "run: can't install: widgets\n")
        self.assertNotIn("reached", done.stdout)

    def test_each_preset_builds_in_its_own_folder(self):
        done = self.shell("build_folder dev; echo; build_folder sanitize")
        self.assertEqual(done.stdout, "build\nbuild-sanitize")


class Lists(unittest.TestCase):
    def test_every_package_is_listed_once_with_a_known_group_and_a_reason(self):
        seen = set()
        with open(os.path.join(PROJECT, "tools", "packages.txt"), encoding="utf-8") as file:
            for line in file:
                if line.startswith("#"):
                    continue
                name, group, reason = line.split(maxsplit=2)
                self.assertIn(group, {"run", "test", "check", "bench"}, name)
                self.assertTrue(reason.strip(), name)
                self.assertNotIn(name, seen)
                seen.add(name)
        self.assertGreater(len(seen), 0)
        self.named_in_the_readme(seen)

    def named_in_the_readme(self, packages):
        with open(os.path.join(PROJECT, "README.md"), encoding="utf-8") as file:
            cells = [cell for line in file if line.startswith("|") for cell in line.split("|")[2:3]]
        named = [name for cell in cells for name in cell.strip().split(", ")]
        for package in packages:
            self.assertEqual(named.count(package), 1, f"{package} in README.md")


if __name__ == "__main__":
    unittest.main()
