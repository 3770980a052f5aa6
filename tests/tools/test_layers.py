# SPDX-License-Identifier: Apache-2.0
"""check-layers.py allows the house's arrows and no other."""

import unittest

from madeuptree import MadeUpTree

CHECKER = "check-layers.py"


class Layers(MadeUpTree):
    def include(self, path, target):
        self.source(path, f"#include {target}")

    def test_every_arrow_of_the_house_is_allowed(self):
        for layer, target in [
            ("host", "platform"),
            ("plugin", "panel"),
            ("plugin", "platform"),
            ("panel", "Common"),
            ("panel", "platform"),
            ("Common", "platform"),
            ("device", "Common"),
            ("device", "platform"),
        ]:
            self.include(f"{layer}/{target}.cpp", f'"{target}/X.h"')
        self.assert_clean(CHECKER)

    def test_a_folder_may_include_itself(self):
        for layer in ["host", "plugin", "panel", "Common", "device", "platform"]:
            self.include(f"{layer}/sub/A.cpp", f'"{layer}/other/B.h"')
        self.assert_clean(CHECKER)

    def test_tests_benchmarks_and_fuzzers_may_include_everything(self):
        for layer in ["tests", "bench", "fuzz"]:
            for target in ["host", "plugin", "panel", "Common", "device", "platform", "tests"]:
                self.include(f"{layer}/{target}.cpp", f'"{target}/X.h"')
        self.assert_clean(CHECKER)

    def test_every_other_arrow_is_refused(self):
        for layer, target in [
            ("host", "plugin"),
            ("host", "panel"),
            ("host", "Common"),
            ("host", "device"),
            ("Common", "panel"),
            ("Common", "host"),
            ("panel", "host"),
            ("panel", "plugin"),
            ("plugin", "Common"),
            ("plugin", "host"),
            ("device", "panel"),
            ("device", "host"),
            ("platform", "Common"),
            ("platform", "host"),
            ("platform", "tests"),
            ("host", "tests"),
        ]:
            with self.subTest(layer=layer, target=target):
                self.include("host/A.cpp", "<vector>")
                self.include(f"{layer}/A.cpp", f'"{target}/X.h"')
                self.assert_one_violation(CHECKER, f"{layer}/A.cpp:3: \"{target}/X.h\": {layer}/ may")
                self.include(f"{layer}/A.cpp", "<vector>")

    def test_the_ppd_interface_has_one_door(self):
        self.include("platform/printing/PPD.h", "<cups/ppd.h>")
        self.assert_clean(CHECKER)
        self.include("tests/host/A.cpp", "<cups/ppd.h>")
        self.assert_one_violation(CHECKER, "tests/host/A.cpp:3: <cups/ppd.h>: include \"platform/")

    def test_other_headers_of_libcups_are_open_to_all(self):
        self.include("host/A.cpp", "<cups/cups.h>")
        self.assert_clean(CHECKER)

    def test_a_path_that_does_not_start_at_the_root_is_refused(self):
        for target in ['"Sibling.h"', '"../platform/ui/Frames.h"', '"ui/Frames.h"']:
            with self.subTest(target=target):
                self.include("platform/ui/A.cpp", target)
                self.assert_one_violation(CHECKER, "platform/ui/A.cpp:3: ")

    def test_angle_brackets_are_no_way_around(self):
        self.include("host/A.cpp", "<panel/OrvekFinishing.h>")
        self.assert_one_violation(CHECKER, "host/A.cpp:3: <panel/OrvekFinishing.h>")

    def test_the_installed_headers_are_for_programs_outside(self):
        self.include("tests/install/A.cpp", "<orvek/Common/Utilities.h>")
        self.assert_clean(CHECKER)
        self.include("host/A.cpp", "<orvek/Common/Utilities.h>")
        self.assert_one_violation(CHECKER, "host/A.cpp:3: <orvek/")

    def test_output_of_the_meta_object_compiler_is_allowed(self):
        self.include("host/A.cpp", '"A.moc"')
        self.assert_clean(CHECKER)

    def test_white_space_does_not_hide_an_include(self):
        self.source("host/A.cpp", '  #  include   "panel/X.h"')
        self.assert_one_violation(CHECKER, "host/A.cpp:3: ")

    def test_a_source_outside_the_known_folders_is_refused(self):
        self.include("new/A.cpp", "<vector>")
        self.assert_one_violation(CHECKER, "new/A.cpp: lies in no folder")

    def test_build_folders_are_passed_over(self):
        self.include("build-old/host/A.cpp", '"panel/X.h"')
        self.assert_clean(CHECKER)


if __name__ == "__main__":
    unittest.main()
