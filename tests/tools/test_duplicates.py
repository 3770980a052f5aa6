# SPDX-License-Identifier: Apache-2.0
"""check-duplicates.py finds copied code, however it is laid out."""

import unittest

from madeuptree import MadeUpTree

CHECKER = "check-duplicates.py"
CODE = [f"int value{i} = compute({i});" for i in range(10)]  # 8 tokens a line
TOKENS = ("--tokens", "40")


class Duplicates(MadeUpTree):
    def test_a_copy_is_found_with_both_places_and_its_length(self):
        self.source("host/A.cpp", *CODE)
        self.source("host/B.cpp", "int other;", *CODE)
        self.assert_one_violation(CHECKER, "host/B.cpp:4: 80 tokens as in host/A.cpp:3", *TOKENS)

    def test_white_space_and_comments_do_not_hide_a_copy(self):
        self.source("host/A.cpp", *CODE)
        self.source("host/B.cpp", *[line.replace(" ", "\n  ") + " // new" for line in CODE])
        self.assert_one_violation(CHECKER, "host/B.cpp:3: 80 tokens", *TOKENS)

    def test_a_copy_inside_one_file_is_found(self):
        self.source("host/A.cpp", *CODE, "int between;", *CODE)
        self.assert_one_violation(CHECKER, "host/A.cpp:14: 80 tokens as in host/A.cpp:3", *TOKENS)

    def test_shorter_runs_are_left_alone(self):
        self.source("host/A.cpp", *CODE[:4])
        self.source("host/B.cpp", *CODE[:4])
        self.assert_clean(CHECKER, *TOKENS)

    def test_equal_includes_are_no_copy(self):
        lines = [f'#include "platform/ui/Header{i}.h"' for i in range(30)]
        self.source("host/A.cpp", *lines)
        self.source("host/B.cpp", *lines)
        self.assert_clean(CHECKER, *TOKENS)

    def test_different_names_make_different_code(self):
        self.source("host/A.cpp", *CODE)
        self.source("host/B.cpp", *[line.replace("value", "result") for line in CODE])
        self.assert_clean(CHECKER, *TOKENS)

    def test_only_the_named_folders_are_compared(self):
        self.source("host/A.cpp", *CODE)
        self.source("tests/B.cpp", *CODE)
        self.assert_clean(CHECKER, *TOKENS, "host")


if __name__ == "__main__":
    unittest.main()
