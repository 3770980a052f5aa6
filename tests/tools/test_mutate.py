# SPDX-License-Identifier: Apache-2.0
"""mutate.py finds what can be changed, and its changes sleep until one is woken."""

import json
import os
import subprocess
import sys
import unittest

from madeuptree import PROJECT, MadeUpTree

TOOLS = os.path.join(PROJECT, "tools")
sys.path.insert(0, TOOLS)
import mutants  # noqa: E402
import mutate  # noqa: E402

PROGRAM = """
#include <cstdio>
#include <vector>
namespace {
struct Pair { int first; int second; };
int larger(int a, int b) {
  if (a > b) return a;
  return b;
}
bool isBetween(int x, int low, int high) { return x >= low && x <= high; }
}  // namespace
int main() {
  int sum = 0;
  const auto add = [&](int n) { sum += n; };
  for (int i : std::vector<int>{1, 2, 3}) add(i);
  if (const int most = larger(sum, 4)) sum = most;
  std::printf("%d %d\\n", sum, isBetween(5, 1, 3) ? 1 : 0);
}
"""


def found(source):
    return [(m.kind, m.code) for m in mutants.find_mutants("panel/A.cpp", source)]


def numbered(source):
    changes = mutants.find_mutants("panel/A.cpp", source)
    for number, mutant in enumerate(changes, 1):
        mutant.number = number
    return changes


class FindingChanges(unittest.TestCase):
    def test_a_statement_can_be_left_out_and_a_declaration_cannot(self):
        self.assertEqual(
            found(
                "void f() {\n  int a = 1;\n  QString text(b);\n  QList<A<B, C *>> d;\n"
                "  QString &e = a;\n  g(a);\n  delete p;\n}\n"
            ),
            [("leave out", "g(a);"), ("leave out", "delete p;")],
        )

    def test_an_if_goes_as_a_whole_or_is_turned_round(self):
        self.assertEqual(
            found("void f() { if (a) g(); }"),
            [("leave out", "if (a) g();"), ("invert", "a"), ("leave out", "g();")],
        )

    def test_each_operand_of_a_chain_is_dropped_once(self):
        dropped = [c for kind, c in found("int x() { if (a && b && c) g(); }") if "drop" in kind]
        self.assertEqual(dropped, ["a", "b", "c"])

    def test_a_result_that_is_empty_already_is_left_alone(self):
        self.assertEqual(found("T f() { return {}; }"), [])
        self.assertEqual(found("T f() { return nullptr; }"), [])
        self.assertEqual(found("T f() { return x; }"), [("empty result", "return x;")])
        self.assertEqual(found("bool f() { return true; }"), [("invert", "true")])

    def test_code_in_comments_texts_and_lists_is_none(self):
        self.assertEqual(found('// if (a) g();\nconst T t{1, "g();"};\nenum E { A, B };\n'), [])

    def test_code_in_a_lambda_is_found(self):
        self.assertIn(("leave out", "h();"), found("void f() { run([&] { h(); }); }"))

    def test_methods_in_a_class_are_found(self):
        self.assertEqual(found("class A {\n  void f() const { g(); }\n};"), [("leave out", "g();")])

    def test_a_change_knows_its_line(self):
        self.assertEqual(mutants.find_mutants("a.cpp", "void f() {\n\n  g();\n}\n")[0].line, 3)


class WakingChanges(MadeUpTree):
    def build(self):
        changes = numbered(PROGRAM)
        self.write("a.cpp", mutants.instrument(PROGRAM, changes))
        program = os.path.join(self.root, "a")
        switch = os.path.join(TOOLS, "mutation-switch.inc")
        command = ["g++", "-std=c++20", "-Werror", "-include", switch, "-o", program]
        subprocess.run(command + [os.path.join(self.root, "a.cpp")], check=True)
        return program, changes

    def output(self, program, **environment):
        whole = dict(os.environ, **environment)
        return subprocess.check_output([program], text=True, env=whole).strip()

    def test_nothing_changes_until_a_change_is_woken(self):
        program, changes = self.build()
        self.assertEqual(self.output(program), "6 0")
        woken = {
            (m.kind, m.code): self.output(program, ORVEK_MUTANT=str(m.number)) for m in changes
        }
        self.assertEqual(woken["leave out", "sum += n;"], "4 0")
        self.assertEqual(woken["invert", "a > b"], "4 0")
        self.assertEqual(woken["drop operand", "x <= high"], "6 1")
        self.assertEqual(woken["empty result", "return a;"], "6 0")
        self.assertEqual(woken["leave out", "add(i);"], "4 0")

    def test_a_trace_names_what_was_reached(self):
        program, changes = self.build()
        trace = os.path.join(self.root, "trace")
        self.output(program, ORVEK_MUTANT_TRACE=trace)
        with open(trace, encoding="ascii") as file:
            reached = set(map(int, file))
        never = {m.code for m in changes if m.number not in reached}
        self.assertEqual(never, {"return b;"})


class Blaming(unittest.TestCase):
    def test_the_most_fragile_change_of_a_line_is_blamed_for_its_error(self):
        changes = numbered("T f() {\n  if (a) return x;\n  g();\n}\n")
        for mutant in changes:
            mutant.path = "panel/A.cpp"
        log = "../tree/panel/A.cpp:2:7: error: no\n../tree/panel/B.cpp:3:1: error: no\n"
        blamed = mutate.blamed(log, changes, "/copy/build", "/copy/tree")
        self.assertEqual([m.kind for m in blamed], ["empty result"])


class Reasons(unittest.TestCase):
    def test_every_reason_names_a_source_and_says_why(self):
        with open(os.path.join(TOOLS, "mutants.json"), encoding="utf-8") as file:
            rules = json.load(file)
        for rule in rules["equivalent"]:
            self.assertTrue(os.path.exists(os.path.join(PROJECT, rule["file"])), rule)
            self.assertIn((rule["kind"], rule["code"]), found_in(rule["file"]), rule)
            self.assertGreater(len(rule["why"]), 20, rule)


def found_in(path):
    with open(os.path.join(PROJECT, path), encoding="utf-8") as file:
        return found(file.read())


if __name__ == "__main__":
    unittest.main()
