# SPDX-License-Identifier: Apache-2.0
"""check-sources.py wants an opening, bounds the length, has comments stand above fields, and knows words that have no place."""

import unittest

from madeuptree import OPENING, MadeUpTree

CHECKER = "check-sources.py"


class Sources(MadeUpTree):
    def test_a_source_with_its_opening_passes(self):
        self.source("host/A.cpp", "int a;")
        self.assert_clean(CHECKER)

    def test_a_source_without_licence_line_is_refused(self):
        self.write("host/A.cpp", "// What it is for.\nint a;\n")
        self.assert_one_violation(CHECKER, "host/A.cpp:1: must begin")

    def test_an_empty_source_is_refused(self):
        self.write("host/A.h", "")
        self.assert_one_violation(CHECKER, "host/A.h:1: must begin")

    def test_a_source_that_does_not_say_its_purpose_is_refused(self):
        self.write("host/A.cpp", OPENING.splitlines()[0] + "\nint a;\n")
        self.assert_one_violation(CHECKER, "host/A.cpp:2: say in one to four lines")

    def test_a_script_says_its_licence_below_its_interpreter(self):
        self.write("run", "#!/usr/bin/env bash\n# SPDX-License-Identifier: Apache-2.0\n")
        self.assert_clean(CHECKER)
        self.write("run", "#!/usr/bin/env bash\ntrue\n")
        self.assert_one_violation(CHECKER, "run:2: must begin")

    def test_a_source_may_have_the_longest_length_and_no_line_more(self):
        self.source("host/A.cpp", *["int a;"] * 8)
        self.assert_clean(CHECKER, "--longest", "10")
        self.assert_one_violation(CHECKER, "host/A.cpp:10: 10 lines", "--longest", "9")

    def test_a_comment_behind_a_field_is_refused(self):
        for member in [
            "int m_count = 0;  // of all pages",
            "QMap<QString, int> m_sizes{};  // in points",
            "std::string text = \"}{ //\";  // as it was given",
            "void call();  ///< never null",
            "int width;  ///< in points",
        ]:
            with self.subTest(member=member):
                self.source("host/A.h", "struct A : B {", "  struct C {", "  };", f"  {member}", "};")
                self.assert_one_violation(CHECKER, "host/A.h:6: what is to be known of a field")

    def test_a_comment_behind_an_enumerator_is_refused(self):
        self.source("host/A.cpp", "enum class A {", "  One,  // or none", "};")
        self.assert_one_violation(CHECKER, "host/A.cpp:4: what is to be known of a field")

    def test_comments_above_fields_and_inside_functions_pass(self):
        self.source(
            "host/A.h",
            "class A {",
            "  void f() {",
            "    int count = 0;  // in words",
            "  }",
            "  // In points.",
            '  const char *url = "http://host/{";',
            "  int m_size = 0;  // NOLINT(name)",
            "};  // the end",
            "struct A *make(int pages) {",
            "  int left = pages;  // of them all",
            "}",
        )
        self.assert_clean(CHECKER)

    def test_what_may_take_a_text_for_markup_is_refused(self):
        for line, words in [
            ("auto *label = new QLabel(text, this);", "use PlainLabel"),
            ("A::A() : m_text(new QLabel(this)) {}", "use PlainLabel"),
            ("QLabel label(text);", "use PlainLabel"),
            ("class B : public QLabel {};", "use PlainLabel"),
            ("QMessageBox box(QMessageBox::Warning, a, b);", "use PlainMessageBox or isConfirmed"),
            ("if (QMessageBox::question(this, a, b) == yes) f();", "use PlainMessageBox or isConfirmed"),
            ("field->setToolTip(words);", "give it plainToolTip"),
            ("item->setToolTip(0, tr(\"%1: %2\").arg(a, b));", "give it plainToolTip"),
            ("case Qt::ToolTipRole: return words;", "give it plainToolTip"),
            ("QToolTip::showText(place, words);", "takes texts for markup"),
            ("label->setTextFormat(Qt::RichText);", "takes texts for markup"),
        ]:
            with self.subTest(line=line):
                self.source("host/A.cpp", line)
                violation = self.assert_one_violation(CHECKER, "host/A.cpp:3: ")
                self.assertIn(words, violation)

    def test_what_shows_a_text_letter_by_letter_passes(self):
        self.source(
            "host/A.cpp",
            "QLabel *m_text = nullptr;",
            "auto *label = new PlainLabel(text, this);",
            "auto *found = qobject_cast<const QLabel *>(control);",
            "field->setToolTip(plainToolTip(words));",
            "field->setToolTip(",
            "    tr(\"Several sheets (at once)\"));",
            "return role == Qt::ToolTipRole ? plainToolTip(words) : words;",
            "// new QLabel(text) would not do.",
        )
        self.source("platform/ui/PlainText.h", "class PlainLabel : public QLabel {};")
        self.source("tests/A.cpp", "QLabel label(text);")
        self.assert_clean(CHECKER)

    def test_unwanted_words_are_named_with_their_line(self):
        for text in [
            "see /ho" + "me/jane/notes",
            "TO" + "DO: later",
            "written to /t" + "mp/out",
            "X" + "XX: why?",
            "<<<<<" + "<< HEAD",
        ]:
            with self.subTest(text=text):
                self.write("docs/a.md", f"first\n{text}\n")
                self.assert_one_violation(CHECKER, "docs/a.md:2: ")

    def test_wanted_words_pass(self):
        self.write("docs/a.md", "the PPD specification, the home folder, /usr/lib/cups, a part of it\n")
        self.assert_clean(CHECKER)

    def test_pictures_and_documents_are_passed_over(self):
        self.write("docs/a.png", "\0TO" + "DO")
        self.write("docs/a.pdf", "%PDF-1.7 TO" + "DO")
        self.assert_clean(CHECKER)


if __name__ == "__main__":
    unittest.main()
