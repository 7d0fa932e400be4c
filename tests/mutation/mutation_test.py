#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

"""What scripts/mutate.py changes, and that it chooses alike for the same seed.

  mutation_test.py    exit status 1 when something is wrong
"""

import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

from mutation.places import all_mutations, choose, folder_of, mutations_of
from mutation.processes import Processes, Stopped
from mutation.results import Results, survivors, table
from mutation.tiers import groups_of

SAMPLE = """#include <vector>
// if (a < 1) f();
constexpr int width = 28;
struct Box { int side = 7; void empty(); };
Box made = {.side = width};
void Box::empty() {
  const std::vector<int> cells(side);
  if (side > 3 && !made.side) fill(cells, "a; b");
  else side += 2;
}
int area(const Box& box) {
  for (int i = 0; i < 9; ++i) box.fill([&](int a) { use(a); });
  switch (box.side) { case 4: break; default: grow(); }
  return box.side == 1 ? 0x1F : box.side * box.side;
}
"""


def mutants(kind, text=SAMPLE):
    """(line, the changed line) of every mutation of that kind."""
    found = []
    for mutation in mutations_of("board/sample.cpp", text):
        if mutation.kind == kind:
            changed = mutation.of(text).splitlines()
            assert len(changed) == len(text.splitlines())
            differing = [i for i, line in enumerate(text.splitlines()) if line != changed[i]]
            assert differing == [mutation.line - 1], (mutation, differing)
            found.append((mutation.line, changed[mutation.line - 1].strip()))
    return found


class Kinds(unittest.TestCase):
    def test_statements_are_deleted_and_declarations_kept(self):
        self.assertEqual(mutants("delete a statement"), [
            (8, "if (side > 3 && !made.side) ;"),
            (9, "else ;"),
            (12, "for (int i = 0; i < 9; ++i) ;"),
            (12, "for (int i = 0; i < 9; ++i) box.fill([&](int a) { ; });"),
            (13, "switch (box.side) { case 4: ; default: grow(); }"),
            (13, "switch (box.side) { case 4: break; default: ; }"),
        ])

    def test_a_statement_of_several_lines_leaves_as_many(self):
        text = "void f() {\n  g(1,\n    2);\n}\n"
        mutation = next(m for m in mutations_of("board/a.cpp", text) if m.kind == "delete a statement")
        self.assertEqual(mutation.of(text), "void f() {\n  ;\n\n}\n")

    def test_conditions_are_negated(self):
        self.assertEqual(mutants("negate a condition"), [
            (8, 'if (!(side > 3 && !made.side)) fill(cells, "a; b");'),
            (8, 'if (side > 3 && made.side) fill(cells, "a; b");'),
            (14, "return !(box.side == 1) ? 0x1F : box.side * box.side;"),
        ])

    def test_a_condition_that_declares_is_left_alone(self):
        self.assertEqual(mutants("negate a condition", "void f() {\n  if (auto a = g()) h(a);\n}\n"), [])

    def test_operators_are_swapped_and_references_kept(self):
        self.assertEqual([changed for _, changed in mutants("swap an operator")], [
            'if (side >= 3 && !made.side) fill(cells, "a; b");',
            'if (side <= 3 && !made.side) fill(cells, "a; b");',
            'if (side > 3 || !made.side) fill(cells, "a; b");',
            "else side -= 2;",
            "for (int i = 0; i <= 9; ++i) box.fill([&](int a) { use(a); });",
            "for (int i = 0; i >= 9; ++i) box.fill([&](int a) { use(a); });",
            "for (int i = 0; i < 9; --i) box.fill([&](int a) { use(a); });",
            "return box.side != 1 ? 0x1F : box.side * box.side;",
            "return box.side == 1 ? 0x1F : box.side / box.side;",
        ])

    def test_constants_become_their_neighbours(self):
        changed = [changed for _, changed in mutants("change a constant")]
        self.assertIn("constexpr int width = 29;", changed)
        self.assertIn("constexpr int width = 27;", changed)
        self.assertIn("for (int i = 1; i < 9; ++i) box.fill([&](int a) { use(a); });", changed)
        self.assertIn("return box.side == 1 ? 32 : box.side * box.side;", changed)
        self.assertEqual(mutants("change a constant", "float f = 0.5;\nbool b = true;\n"),
                         [(1, "float f = 1.5;"), (2, "bool b = false;")])

    def test_arguments_lose_their_effect(self):
        self.assertEqual([changed for _, changed in mutants("drop an argument")], [
            "Box made = {.side = {}};",
            "const std::vector<int> cells({});",
            'if (side > 3 && !made.side) fill({}, "a; b");',
            "if (side > 3 && !made.side) fill(cells, {});",
            "for (int i = 0; i < 9; ++i) box.fill({});",
            "for (int i = 0; i < 9; ++i) box.fill([&](int a) { use({}); });",
        ])

    def test_constructors_return_early(self):
        text = "Box::Box(int a) : Base(a), side_{a} { f(); }\nBox::~Box() { g(); }\n"
        self.assertEqual(mutants("return early", text), [
            (1, "Box::Box(int a) : Base(a), side_{a} { return; f(); }"),
            (2, "Box::~Box() { return; g(); }"),
        ])

    def test_functions_return_early_or_nothing(self):
        self.assertEqual(mutants("return early"), [
            (6, "void Box::empty() { return;"),
            (11, "int area(const Box& box) { return {};"),
        ])
        self.assertEqual(mutants("return nothing"), [(14, "return {};")])


class Choice(unittest.TestCase):
    def setUp(self):
        self.mutations = all_mutations({"board/a.cpp": SAMPLE, "tests/a.cpp": SAMPLE}, None)

    def test_only_the_product_is_mutated(self):
        self.assertEqual({mutation.file for mutation in self.mutations}, {"board/a.cpp"})

    def test_the_same_seed_chooses_the_same(self):
        self.assertEqual(choose(self.mutations, 3, 5), choose(self.mutations, 3, 5))
        self.assertNotEqual(choose(self.mutations, 3, 5), choose(self.mutations, 4, 5))

    def test_more_of_a_seed_begin_alike(self):
        self.assertEqual(choose(self.mutations, 3, 5)[:2], choose(self.mutations, 3, 2))

    def test_a_line_is_chosen_once(self):
        lines = [mutation.line for mutation in choose(self.mutations, 1, 100)]
        self.assertEqual(sorted(lines), sorted({mutation.line for mutation in self.mutations}))

    def test_a_file_belongs_to_its_deepest_folder(self):
        self.assertEqual(folder_of("ui/qt/main.cpp"), "ui/qt")
        self.assertEqual(folder_of("logic/techniques/fish.cpp"), "logic")


class Running(unittest.TestCase):
    def test_a_program_that_does_not_end_is_ended(self):
        self.assertEqual(Processes().run(["sleep", "60"], 0.1), (None, ""))

    def test_after_the_end_nothing_is_started(self):
        processes = Processes()
        processes.stop()
        with self.assertRaises(Stopped):
            processes.run(["true"], 1)

    def test_tests_of_one_program_run_in_one_process(self):
        def test(name, *command, label="quick"):
            return {"name": name, "command": list(command), "properties": [
                {"name": "LABELS", "value": [label]}, {"name": "WORKING_DIRECTORY", "value": "/b/tests/a"}]}
        groups = groups_of([test("A.a", "/b/a", "--gtest_filter=A.a"),
                            test("A.b", "/b/a", "--gtest_filter=A.b"),
                            test("t.a", "/b/t", "a.txt"), test("t.b", "/b/t", "b.txt"),
                            test("layers.x", "/b/x"), test("long", "/b/d", label="deep")])
        self.assertEqual([group.command for group in groups],
                         [["/b/a", "--gtest_fail_fast"], ["/b/t", "a.txt", "b.txt"]])


class Found(unittest.TestCase):
    def test_results_are_kept_and_counted(self):
        mutation = mutations_of("board/a.cpp", "int a = 1;\n")[0]
        result = {"key": mutation.key, "folder": "board", "file": "board/a.cpp", "line": 1,
                  "kind": "change a constant", "outcome": "survived", "reason": "", "seconds": 1.0,
                  "diff": ["-int a = 1;", "+int a = 2;"]}
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder) / "results.jsonl"
            Results(file).add(result)
            self.assertEqual(Results(file).of([mutation]), [result])
        self.assertEqual(table([result]).splitlines()[-1].split(), ["together", "1", "0", "0", "1", "0"])
        self.assertIn("board/a.cpp:1: change a constant\n    -int a = 1;", survivors([result]))


if __name__ == "__main__":
    unittest.main()
