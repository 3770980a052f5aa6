# SPDX-License-Identifier: Apache-2.0
"""check-types.py refuses two types of one qualified name."""

import unittest

from madeuptree import MadeUpTree

CHECKER = "check-types.py"


class Types(MadeUpTree):
    def test_one_name_in_two_rooms_is_refused(self):
        self.source("host/A.h", "namespace house {", "struct Printer {", "  int one;", "};", "}")
        self.source("platform/B.h", "namespace house {", "class Printer final : public Thing {", "};", "}")
        self.assert_one_violation(CHECKER, "platform/B.h:4: house::Printer is defined in host/A.h:4 too")

    def test_a_nested_namespace_is_the_same_in_either_spelling(self):
        self.source("host/A.h", "namespace one::two {", "enum class Kind { A };", "}")
        self.source("host/B.h", "namespace one {", "namespace two {", "enum class Kind : int { B };", "}", "}")
        self.assert_one_violation(CHECKER, "host/B.h:5: one::two::Kind")

    def test_a_test_must_not_take_a_name_of_the_product(self):
        self.source("host/A.h", "struct Printer {};")
        self.source("tests/host/A.cpp", "struct Printer {};")
        self.assert_one_violation(CHECKER, "tests/host/A.cpp:3: Printer")

    def test_other_scopes_are_other_names(self):
        self.source("host/A.h", "namespace one {", "struct A { struct Step {}; };", "struct B { struct Step {}; };", "}")
        self.source("host/B.h", "namespace two {", "struct A {};", "}")
        self.assert_clean(CHECKER)

    def test_names_that_no_other_file_sees_are_free(self):
        self.source("host/A.cpp", "namespace {", "struct Text { int a; };", "}", "void f() { struct Local {}; }")
        self.source("host/B.cpp", "namespace {", "struct Text { int b; };", "}", "void g() { struct Local {}; }")
        self.assert_clean(CHECKER)

    def test_declarations_variables_comments_and_texts_define_nothing(self):
        self.source("host/A.h", "struct Printer { int a; };")
        self.source("host/B.h", "struct Printer;", "// struct Printer {", 'const char *a = "struct Printer {";',
                    "inline Printer f(struct Printer p) { return Printer{p}; }")
        self.assert_clean(CHECKER)

    def test_programs_of_tests_do_not_meet(self):
        self.source("tests/one/A.cpp", "struct Kit {};")
        self.source("tests/two/A.cpp", "struct Kit {};")
        self.assert_clean(CHECKER)


if __name__ == "__main__":
    unittest.main()
