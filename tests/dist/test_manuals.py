# SPDX-License-Identifier: Apache-2.0
"""The man pages against the programs' own help, and the icons against their names."""

import os
import re
import shutil
import struct
import subprocess
import unittest

BUILD = os.environ["ORVEK_BINARY_DIR"]
DIST = os.path.join(BUILD, "dist")


def read(*path):
    with open(os.path.join(*path), encoding="utf-8") as file:
        return file.read()


def help_of(program):
    command = [os.path.join(BUILD, "bin", program), "--help"]
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def manual_of(program):
    """The page's text without the formatter's own words."""
    page = read(DIST, f"{program}.1").replace(r"\-", "-")
    return re.sub(r"\\f[A-Z]", "", page)


def long_options(text):
    return set(re.findall(r"(?<![\w-])--[a-z][a-z-]*", text))


class Manuals(unittest.TestCase):
    def test_each_option_of_a_program_stands_in_its_manual_and_the_reverse(self):
        for program in ["orvek-print", "orvek-device"]:
            with self.subTest(program):
                offered = long_options(help_of(program)) | {"--help", "--version"}
                self.assertEqual(offered, long_options(manual_of(program)))

    def test_each_short_option_of_the_print_dialog_stands_in_its_manual(self):
        offered = re.findall(r"^  (-[a-zA-Z]) ", help_of("orvek-print"), re.MULTILINE)
        self.assertGreater(len(offered), 0)
        manual = manual_of("orvek-print")
        for option in offered:
            self.assertRegex(manual, rf"(?m)^\.BR? {option}\b")

    def test_each_command_of_the_device_utilities_stands_in_help_and_manual(self):
        for command in ["url", "ping", "mdns", "fetch", "xml"]:
            self.assertRegex(help_of("orvek-device"), rf"\b{command}\b")
            self.assertIn(f"orvek-device {command}", manual_of("orvek-device"))

    def test_the_manuals_name_the_version_that_the_programs_name(self):
        for program in ["orvek-print", "orvek-device"]:
            command = [os.path.join(BUILD, "bin", program), "--version"]
            said = subprocess.run(command, capture_output=True, text=True, check=True).stdout
            version = re.search(r"\d+\.\d+\.\d+", said).group(0)
            self.assertIn(f'"{program} {version}"', manual_of(program))

    @unittest.skipUnless(shutil.which("groff"), "groff is not installed")
    def test_the_formatter_has_nothing_to_say(self):
        for program in ["orvek-print", "orvek-device"]:
            page = os.path.join(DIST, f"{program}.1")
            command = ["groff", "-ww", "-man", "-Tutf8", page]
            done = subprocess.run(command, capture_output=True, text=True, check=True)
            self.assertEqual(done.stderr, "")


class Icons(unittest.TestCase):
    def test_each_icon_has_the_size_of_its_folder(self):
        folder = os.path.join(BUILD, os.environ["ORVEK_DATA_FOLDER"], "icons", "hicolor")
        sizes = [name for name in os.listdir(folder) if "x" in name]
        self.assertGreater(len(sizes), 0)
        for size in sizes:
            with open(os.path.join(folder, size, "apps", "orvek-print.png"), "rb") as file:
                width, height = struct.unpack(">II", file.read(24)[16:])
            self.assertEqual(f"{width}x{height}", size)


if __name__ == "__main__":
    unittest.main()
