# SPDX-License-Identifier: Apache-2.0
"""check-layers.py allows the house's arrows and no other."""

import os
import subprocess
import sys
import unittest

from madeuptree import PROJECT, MadeUpTree

CHECKER = "check-layers.py"


PLATFORM_ROOMS = ["system", "xml", "network", "printing", "ui", "plugin"]


class Layers(MadeUpTree):
    def include(self, path, target):
        self.source(path, f"#include {target}")

    def assert_refused(self, arrows):
        """One run over a tree in which each of these arrows is one source."""
        for number, (room, target) in enumerate(arrows):
            self.include(f"{room}/A{number}.cpp", f'"{target}/X.h"')
        lines = self.run_checker(CHECKER)[1]
        self.assertEqual(len(lines), len(arrows), lines)
        for number, (room, target) in enumerate(arrows):
            start = f'{room}/A{number}.cpp:3: "{target}/X.h": {room}/ may'
            self.assertTrue(any(line.startswith(start) for line in lines), f"{start} is not in {lines}")

    def test_every_arrow_of_the_house_is_allowed(self):
        for room, target in [
            ("plugin", "panel"),
            ("plugin", "platform/plugin"),
            ("panel", "Common"),
            ("panel", "platform/ui"),
            ("Common", "platform/network"),
            ("device", "Common"),
            ("device", "platform/xml"),
            ("host/cli", "host/dialog"),
            ("host/dialog", "host/session"),
            ("host/session", "host/ppd"),
            ("host/session", "host/ticket"),
            ("host/session", "host/panels"),
            ("host/session", "host/printers"),
            ("host/ticket", "host/ppd"),
            ("host/jobs", "host/printers"),
            ("host/ppd", "platform/printing"),
            ("host/ticket", "imposition"),
            ("host/preview", "imposition"),
            ("driver", "imposition"),
            ("imposition", "platform/plugin"),
        ]:
            self.include(f"{room}/{target.replace('/', '-')}.cpp", f'"{target}/X.h"')
        self.assert_clean(CHECKER)

    def test_a_room_may_include_itself_and_what_lies_deeper_in_it(self):
        for room in ["plugin", "panel", "Common", "device", "host/ppd", "platform/ui"]:
            self.include(f"{room}/sub/A.cpp", f'"{room}/other/B.h"')
        self.assert_clean(CHECKER)

    def test_tests_benchmarks_and_fuzzers_may_include_everything(self):
        for room in ["tests", "bench", "fuzz"]:
            for target in ["host/cli", "plugin", "panel", "Common", "device", "platform/ui", "tests"]:
                self.include(f"{room}/{target.replace('/', '-')}.cpp", f'"{target}/X.h"')
        self.assert_clean(CHECKER)

    def test_arrows_between_houses_that_are_none_are_refused(self):
        self.assert_refused([
            ("host/session", "plugin"),
            ("host/session", "panel"),
            ("host/cli", "Common"),
            ("host/cli", "device"),
            ("Common", "panel"),
            ("Common", "host/ppd"),
            ("panel", "host/session"),
            ("panel", "plugin"),
            ("plugin", "Common"),
            ("plugin", "host/panels"),
            ("device", "panel"),
            ("device", "host/jobs"),
            ("platform/ui", "Common"),
            ("platform/plugin", "host/panels"),
            ("platform/system", "tests"),
            ("host/jobs", "tests"),
            ("imposition", "host/ticket"),
            ("imposition", "driver"),
            ("driver", "host/jobs"),
            ("host/jobs", "driver"),
        ])

    def test_inside_the_host_views_stand_above_the_session_and_nothing_points_up(self):
        self.assert_refused([
            ("host/ppd", "host/ticket"),
            ("host/ppd", "host/session"),
            ("host/ticket", "host/session"),
            ("host/panels", "host/ticket"),
            ("host/panels", "host/session"),
            ("host/printers", "host/session"),
            ("host/printers", "host/panels"),
            ("host/jobs", "host/session"),
            ("host/session", "host/jobs"),
            ("host/session", "host/presets"),
            ("host/presets", "host/settings"),
            ("host/settings", "host/dialog"),
            ("host/preview", "host/dialog"),
            ("host/dialog", "host/cli"),
        ])

    def test_inside_the_platform_only_the_stated_arrows_are_allowed(self):
        allowed = {"plugin": ["printing", "ui"], "ui": ["system"], "printing": [], "network": [],
                   "xml": ["system"], "system": []}
        self.assert_refused([
            (f"platform/{room}", f"platform/{target}")
            for room in PLATFORM_ROOMS
            for target in PLATFORM_ROOMS
            if target != room and target not in allowed[room]
        ])

    def test_a_room_that_nobody_named_is_refused(self):
        self.include("host/attic/A.cpp", "<vector>")
        self.assert_one_violation(CHECKER, "host/attic/A.cpp: lies in no room")
        self.include("host/attic/A.cpp", '"host/ppd/X.h"')
        self.assert_one_violation(CHECKER, "host/attic/A.cpp: lies in no room")

    def test_a_header_in_no_room_is_refused(self):
        self.include("host/ppd/A.cpp", '"host/attic/X.h"')
        self.assert_one_violation(CHECKER, 'host/ppd/A.cpp:3: "host/attic/X.h": lies in no room')

    def test_rules_that_run_in_a_circle_are_refused(self):
        self.write("rules.json", '{"rooms": {"a": ["b"], "b": ["c"], "c": ["a"]}, "onlyIn": {},'
                                 ' "installedPrefix": "orvek/"}')
        rules = os.path.join(self.root, "rules.json")
        self.assert_one_violation(CHECKER, f"{rules}: rooms in a circle: a -> b -> c -> a", "--rules", rules)

    def test_the_ppd_interface_has_one_door(self):
        self.include("platform/printing/PPD.h", "<cups/ppd.h>")
        self.assert_clean(CHECKER)
        self.include("tests/host/A.cpp", "<cups/ppd.h>")
        self.assert_one_violation(CHECKER, "tests/host/A.cpp:3: <cups/ppd.h>: include \"platform/")

    def test_inside_the_host_the_ppd_interface_is_for_one_room_and_the_panels_loan(self):
        for path in ["host/ppd/A.cpp", "host/panels/PluginCallback.h", "panel/A.cpp", "tests/host/A.cpp"]:
            self.source(path, '#include "platform/printing/PPD.h"\nppd_file_t *ppd = ppdOpenFile(name);')
        self.assert_clean(CHECKER)
        for path in ["host/session/A.cpp", "host/panels/HostedPanel.cpp"]:
            with self.subTest(path=path):
                self.include(path, '"platform/printing/PPD.h"')
                self.assert_one_violation(CHECKER, f'{path}:3: "platform/printing/PPD.h": include "host/ppd/')
                self.include(path, "<vector>")

    def test_names_of_the_ppd_interface_are_refused_where_another_header_brings_them_in(self):
        for line in ["ppd_option_t *option;", "struct ppd_file_s;", "ppdMarkDefaults(printer.lend());",
                     "cupsResolveConflicts(ppd, a, b, &c, &d);"]:
            with self.subTest(line=line):
                self.source("host/session/A.cpp", line)
                self.assert_one_violation(CHECKER, "host/session/A.cpp:3: ")
        self.source("host/session/A.cpp", "request.ppdFile = checkPPDFile(ppd); // ppdFindOption() of libcups")
        self.assert_clean(CHECKER)

    def test_other_headers_of_libcups_are_open_to_all(self):
        self.include("host/ppd/A.cpp", "<cups/cups.h>")
        self.assert_clean(CHECKER)

    def test_a_path_that_does_not_start_at_the_root_is_refused(self):
        for target in ['"Sibling.h"', '"../platform/ui/Frames.h"', '"ui/Frames.h"']:
            with self.subTest(target=target):
                self.include("platform/ui/A.cpp", target)
                self.assert_one_violation(CHECKER, "platform/ui/A.cpp:3: ")

    def test_angle_brackets_are_no_way_around(self):
        self.include("host/ppd/A.cpp", "<panel/OrvekFinishing.h>")
        self.assert_one_violation(CHECKER, "host/ppd/A.cpp:3: <panel/OrvekFinishing.h>")

    def test_the_installed_headers_are_for_programs_outside(self):
        self.include("tests/install/A.cpp", "<orvek/Common/Utilities.h>")
        self.assert_clean(CHECKER)
        self.include("host/ppd/A.cpp", "<orvek/Common/Utilities.h>")
        self.assert_one_violation(CHECKER, "host/ppd/A.cpp:3: <orvek/")

    def test_output_of_the_meta_object_compiler_is_allowed(self):
        self.include("host/ppd/A.cpp", '"A.moc"')
        self.assert_clean(CHECKER)

    def test_white_space_does_not_hide_an_include(self):
        self.source("host/ppd/A.cpp", '  #  include   "panel/X.h"')
        self.assert_one_violation(CHECKER, "host/ppd/A.cpp:3: ")

    def test_a_source_outside_the_known_folders_is_refused(self):
        self.include("new/A.cpp", "<vector>")
        self.assert_one_violation(CHECKER, "new/A.cpp: lies in no room")

    def test_build_folders_are_passed_over(self):
        self.include("build-old/host/A.cpp", '"panel/X.h"')
        self.assert_clean(CHECKER)

    def test_an_edge_that_no_include_needs_is_refused_where_asked(self):
        self.write("rules.json", '{"rooms": {"a": ["b"], "b": []}, "onlyIn": {}, "usedOnlyIn": [],'
                                 ' "installedPrefix": "orvek/"}')
        rules = os.path.join(self.root, "rules.json")
        self.assert_clean(CHECKER, "--rules", rules)
        self.assert_one_violation(CHECKER, "a/ may include b/, and nothing", "--rules", rules, "--unused")
        self.include("a/A.cpp", '"b/X.h"')
        self.assert_clean(CHECKER, "--rules", rules, "--unused")

    def test_the_drawing_of_the_rooms_is_made_from_the_rules(self):
        marks = "<!-- drawn by tools/draw-rooms.py -->\n<!-- end of the drawing -->\n"
        self.write("page.md", "before\n" + marks + "after\n")
        self.write("rules.json", '{"rooms": {"a/one": ["b"], "b": [], "tests": ["*"]}}')
        page, rules = os.path.join(self.root, "page.md"), os.path.join(self.root, "rules.json")
        tool = [sys.executable, "-B", os.path.join(PROJECT, "tools", "draw-rooms.py"), "--page", page, "--rules", rules]
        self.assertEqual(subprocess.run(tool + ["--check"], capture_output=True, check=False).returncode, 1)
        self.assertEqual(subprocess.run(tool, capture_output=True, check=False).returncode, 0)
        with open(page, encoding="utf-8") as file:
            lines = file.read().splitlines()
        self.assertEqual([line for line in lines if "│" in line], ["    a/one  │ b", "    b      │ -"])
        self.assertEqual((lines[0], lines[-1]), ("before", "after"))
        self.assertEqual(subprocess.run(tool + ["--check"], capture_output=True, check=False).returncode, 0)


if __name__ == "__main__":
    unittest.main()
