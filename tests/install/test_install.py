# SPDX-License-Identifier: Apache-2.0
"""What an installation holds, component by component, held against what packagers ask for."""

import glob
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCE = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
BUILD = os.environ["ORVEK_BINARY_DIR"]
LIBDIR = os.environ["ORVEK_LIBDIR"]
HARDENED = os.environ["ORVEK_HARDENED"] == "ON"
LIBRARIES = ["liborvek-platform", "liborvek-platform-system", "liborvek-platform-ui"]
ELF = b"\x7fELF"


def run(*command, **more):
    done = subprocess.run(command, capture_output=True, text=True, check=False, **more)
    if done.returncode != 0:
        raise AssertionError(f"{' '.join(command)}\n{done.stdout}{done.stderr}")
    return done.stdout


def install(place, *more):
    run("cmake", "--install", BUILD, "--prefix", place, *more)


def files_in(place):
    return {
        os.path.relpath(os.path.join(folder, name), place)
        for folder, _, names in os.walk(place)
        for name in names
    }


def binaries_in(place):
    for path in sorted(files_in(place)):
        whole = os.path.join(place, path)
        if os.path.islink(whole):
            continue
        with open(whole, "rb") as file:
            if file.read(4) == ELF:
                yield whole


class Installation(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.mkdtemp(prefix="orvek-install-")
        cls.runtime = os.path.join(cls.folder, "runtime")
        cls.development = os.path.join(cls.folder, "development")
        install(cls.runtime, "--component", "runtime")
        install(cls.development, "--component", "development")
        cls.filter = os.path.join(cls.folder, "filter")
        install(cls.filter, "--component", "filter")

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder)

    def test_the_runtime_component_holds_programs_and_libraries_and_nothing_to_build_against(self):
        files = files_in(self.runtime)
        for path in ["bin/orvek-print", "bin/orvek-device", "libexec/orvek-print-server",
                     f"{LIBDIR}/orvek-print/orvek-print.so", "libexec/orvek-filter-guard",
                     "libexec/orvek-pdf-opener", "libexec/orvek-job-notice",
                     "share/man/man1/orvek-print.1"]:
            self.assertIn(path, files)
        for name in LIBRARIES:
            self.assertIn(f"{LIBDIR}/{name}.so.1", files)
        wrong = [f for f in files if f.endswith((".h", ".a", ".cmake"))]
        wrong += [f"{LIBDIR}/{name}.so" for name in LIBRARIES if f"{LIBDIR}/{name}.so" in files]
        self.assertEqual(wrong, [])

    def test_the_development_component_holds_no_program_and_no_library_of_the_runtime(self):
        files = files_in(self.development)
        for path in [f"{LIBDIR}/{name}.so" for name in LIBRARIES] + [
            f"{LIBDIR}/liborvek-common.a",
            f"{LIBDIR}/cmake/OrvekFinishing/OrvekFinishingConfig.cmake",
            "include/orvek/Common/RendezvousUtilities.h",
            "include/orvek/platform/plugin/PDEPanel.h",
        ]:
            self.assertIn(path, files)
        self.assertEqual(files & files_in(self.runtime), set())
        self.assertEqual(list(binaries_in(self.development)), [])

    def test_the_components_are_the_whole_installation(self):
        whole = os.path.join(self.folder, "whole")
        install(whole)
        parts = [files_in(place) for place in (self.runtime, self.development, self.filter)]
        self.assertEqual(files_in(whole), set().union(*parts))

    def test_headers_that_show_what_a_library_is_made_of_stay_at_home(self):
        names = {os.path.basename(path) for path in files_in(self.development)}
        self.assertEqual(names & {"Transfer.h", "InactivityLimit.h", "ReplyCursor.h"}, set())

    def test_every_header_that_an_installed_header_includes_is_installed(self):
        include = os.path.join(self.development, "include/orvek")
        for path in files_in(include):
            with open(os.path.join(include, path), encoding="utf-8") as file:
                for name in re.findall(r'#include "([^"]+)"', file.read()):
                    self.assertTrue(os.path.exists(os.path.join(include, name)), (path, name))

    def test_a_shared_library_says_with_which_others_it_may_be_swapped(self):
        for name in LIBRARIES:
            path = os.path.join(self.runtime, LIBDIR, f"{name}.so.1")
            self.assertRegex(run("readelf", "-d", path), rf"SONAME.*\[{name}\.so\.1\]")

    def test_the_licence_comes_along(self):
        found = glob.glob(os.path.join(self.runtime, "share/doc/*/LICENSE"))
        self.assertEqual(len(found), 1)
        with open(found[0], encoding="utf-8") as file, open(f"{SOURCE}/LICENSE", encoding="utf-8") as own:
            self.assertEqual(file.read(), own.read())

    def test_no_binary_looks_for_libraries_outside_of_the_one_folder_that_is_ours(self):
        ours = os.path.join(self.runtime, LIBDIR)
        for path in binaries_in(self.runtime):
            for entry in re.findall(r"(?:RUNPATH|RPATH).*\[(.*)\]", run("readelf", "-d", path)):
                place = entry.replace("$ORIGIN", os.path.dirname(path))
                self.assertEqual(os.path.realpath(place), os.path.realpath(ours), path)

    def test_moved_elsewhere_both_programs_still_run(self):
        first = os.path.join(self.folder, "first")
        install(first, "--component", "runtime")
        moved = os.path.join(self.folder, "moved")
        os.rename(first, moved)
        environment = {"PATH": os.environ["PATH"], "HOME": self.folder, "QT_QPA_PLATFORM": "offscreen",
                       "LC_ALL": "C.UTF-8", "ASAN_OPTIONS": "detect_leaks=0"}
        address = run(f"{moved}/bin/orvek-device", "url", "ipp://192.0.2.1/", env=environment)
        self.assertEqual(address, "http://192.0.2.1\n")
        told = run(f"{moved}/bin/orvek-print", "--headless", "--ppd", f"{SOURCE}/printers/Orvek-6180.ppd",
                   "--do", "foldingPopup=Saddle", "--summary", env=environment)
        self.assertIn("Saddle", told)
        asked = subprocess.run([f"{moved}/bin/orvek-print", "-h", "127.0.0.1:1", "--list-printers"],
                               env=environment, capture_output=True, text=True, check=False)
        self.assertIn("no print server answers there (Connection refused)", asked.stderr)
        helper = f"{moved}/libexec/orvek-print-server"
        os.remove(helper)
        asked = subprocess.run([f"{moved}/bin/orvek-print", "--list-printers"], env=environment,
                               capture_output=True, text=True, check=False)
        self.assertEqual(asked.stderr, f"orvek-print: {helper}: No such file or directory\n")
        self.assertEqual(asked.returncode, 1)

    def test_a_program_that_was_copied_without_its_module_says_so_in_one_line(self):
        alone = os.path.join(self.folder, "alone")
        os.makedirs(alone)
        shutil.copy(f"{self.runtime}/bin/orvek-print", alone)
        asked = subprocess.run([f"{alone}/orvek-print", "--version"], capture_output=True, text=True,
                               check=False)
        self.assertRegex(asked.stderr, r"^orvek-print: orvek-print\.so: .*; install the program again\n$")
        self.assertEqual(asked.returncode, 1)

    def test_moved_elsewhere_with_its_driver_the_program_prints_a_booklet_into_a_file(self):
        if not shutil.which("cupsfilter", path=os.environ["PATH"] + ":/usr/sbin"):
            self.skipTest("cupsfilter is not installed")
        first = os.path.join(self.folder, "first-with-driver")
        install(first, "--component", "runtime")
        install(first, "--component", "filter")
        moved = os.path.join(self.folder, "moved-with-driver")
        os.rename(first, moved)
        environment = {"PATH": os.environ["PATH"], "HOME": self.folder, "QT_QPA_PLATFORM": "offscreen",
                       "LC_ALL": "C.UTF-8", "ASAN_OPTIONS": "detect_leaks=0"}
        printed = os.path.join(self.folder, "booklet.ps")
        run(f"{moved}/bin/orvek-print", "--headless", "--ppd", f"{SOURCE}/printers/Orvek-6180.ppd",
            "--do", "foldingPopup=Saddle", "--do", "bookletChckBox=on", "--output", printed,
            f"{SOURCE}/samples/Finishing-Sample.pdf", env=environment)
        with open(printed, encoding="latin-1") as file:
            self.assertEqual(file.read().count("%%Page: "), 4)

    @unittest.skipUnless(HARDENED, "only an optimised build without sanitizers is hardened")
    def test_every_binary_is_hardened(self):
        checker = os.path.join(SOURCE, "tools/check-hardening.py")
        for place in (self.runtime, self.filter):
            run(sys.executable, "-B", checker, *binaries_in(place))


class Configuration(unittest.TestCase):
    """A packager's own choices at configure time."""

    def test_what_a_packager_says_holds(self):
        with tempfile.TemporaryDirectory(prefix="orvek-configure-") as place:
            run("cmake", "-S", SOURCE, "-B", place, "-G", "Ninja",
                "-DBUILD_TESTING=OFF", "-DCMAKE_DISABLE_FIND_PACKAGE_GTest=ON",
                "-DCMAKE_INSTALL_RPATH=/opt/mine", "-DCMAKE_CXX_COMPILER_LAUNCHER=/usr/bin/env",
                "-DORVEK_CCACHE=ON")
            self.assertNotIn("add_test", self.text_of(place, "CTestTestfile.cmake"))
            paths = re.findall(r'\sRPATH "([^"]*)"', self.text_of(place, "cmake_install.cmake"))
            self.assertEqual(set(paths), {"/opt/mine"})
            with open(f"{place}/compile_commands.json", encoding="utf-8") as file:
                commands = [entry["command"] for entry in json.load(file)]
            # The launcher stands in the build file only.
            with open(f"{place}/build.ninja", encoding="utf-8") as file:
                rules = file.read() + self.text_of(place, "rules.ninja")
            self.assertTrue(commands)
            self.assertIn("/usr/bin/env /usr/bin/c++", rules.replace("${LAUNCHER}${CODE_CHECK}", ""))
            self.assertNotIn("ccache /usr", rules)

    def text_of(self, place, name):
        text = ""
        for path in glob.glob(f"{place}/**/{name}", recursive=True):
            with open(path, encoding="utf-8") as file:
                text += file.read()
        return text


if __name__ == "__main__":
    unittest.main()
