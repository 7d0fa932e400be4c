// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The sentences of the hints: every kind of step has its own in both languages.

#include "ui/explanations.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

#include "pas_a_pas/tables.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "puzzles/library.hpp"
#include "tools/walk/walk.hpp"

namespace sdk::test {
namespace {

using Cells = std::vector<std::pair<Cell, NineSet>>;

/// Candidates drawn by hand, on which a technique is called as the driver calls it.
class Explanations : public testing::Test {
 protected:
  Explanations() {
    window.start("");
    solver.Paires = {};
    solver.Candidats.reset();
  }

  /// These cells have these candidates, all others none.
  void hold(const Cells& cells) {
    for (int number = 1; number <= 81; ++number) {
      const Cell cell = cell_at(number);
      const auto known = std::ranges::find(cells, cell, &Cells::value_type::first);
      const NineSet digits = known == cells.end() ? NineSet() : known->second;
      for (const int digit : NineSet::all() - digits) solver.Candidats.remove(cell, digit);
      solver.Candidats.set_count(cell, digits.count());
    }
  }
  void fire(int place, Bool16 (*technique)()) {
    solver.step = {};
    solver.step.place = place;
    ASSERT_TRUE(technique());
  }
  std::string english() const { return explain(solver.step, "En"); }
  std::string french() const { return explain(solver.step, "Fr"); }

  YesDesktop desktop;
  MainWindow window{desktop};
};

TEST_F(Explanations, AvoidableRectangle) {
  hold({{{5, 8}, {3, 8, 9}}});
  for (const auto& [cell, value] : {std::pair<Cell, int>{{2, 1}, 3}, {{2, 8}, 8}, {{5, 1}, 8}}) {
    solver.Candidats.set_value(cell, value);
    solver.Paires(cell.row, cell.column) = {3, 8};
  }
  fire(10, rectangle_evitable);
  EXPECT_EQ(english(),
            "Avoidable rectangle: r2c1, r2c8 and r5c1 were choices between 3 and 8; with the 3 in "
            "r5c8 they could be swapped and the puzzle would have two solutions. Removed: 3 from "
            "r5c8.");
  EXPECT_EQ(french(),
            "Rectangle évitable : L2C1, L2C8 et L5C1 étaient des choix entre 3 et 8 ; avec le 3 en "
            "L5C8, on pourrait les échanger et la grille aurait deux solutions. Retiré : 3 de "
            "L5C8.");
}

TEST_F(Explanations, UniqueRectangleWithOneExtraDigitInThreeCorners) {
  hold({{{4, 4}, {3, 8}},
        {{4, 5}, {3, 5, 8}},
        {{6, 4}, {3, 5, 8}},
        {{6, 5}, {3, 5, 8}},
        {{5, 6}, {5, 7}}});
  fire(9, rectangles_uniques);
  EXPECT_EQ(english(),
            "Unique rectangle: without the 5 in r4c5, r6c4 and r6c5, the corners r4c4, r4c5, r6c4 "
            "and r6c5 would hold only 3 and 8, which could be swapped; so one of these three "
            "corners is 5. Removed: 5 from r5c6.");
  EXPECT_EQ(french(),
            "Rectangle unique : sans le 5 en L4C5, L6C4 et L6C5, les coins L4C4, L4C5, L6C4 et "
            "L6C5 n'auraient que 3 et 8, qu'on pourrait échanger ; l'un de ces trois coins est "
            "donc 5. Retiré : 5 de L5C6.");
}

TEST_F(Explanations, FinnedXWingWithoutAFin) {
  hold({{{2, 3}, {5}}, {{2, 8}, {5}}, {{6, 3}, {5}}, {{6, 8}, {5}}, {{9, 3}, {5}}});
  fire(18, aile_x_aileron);
  EXPECT_EQ(english(),
            "Finned X-wing, without a fin: in row 2 and row 6, the 5 can only go in the corners "
            "r2c3, r2c8, r6c3 and r6c8, so it has no other place in their columns. Removed: 5 from "
            "r9c3.");
  EXPECT_EQ(french(),
            "Aile X à aileron (finned X-wing), sans aileron : dans la ligne 2 et dans la ligne 6, "
            "le 5 n'a de place qu'aux coins L2C3, L2C8, L6C3 et L6C8, donc pas d'autre dans leurs "
            "colonnes. Retiré : 5 de L9C3.");
}

TEST_F(Explanations, AColourThatSeesItself) {
  // Row 1, column 5, row 6 and column 2 chain r1c1 to r2c2, which see each other in box 1.
  hold({{{1, 1}, {4}}, {{1, 5}, {4}}, {{6, 5}, {4}}, {{6, 2}, {4}}, {{2, 2}, {4}}, {{3, 3}, {4}}});
  construit_liens();
  fire(21, coloriage);
  EXPECT_EQ(english(),
            "Simple colouring: two colours, r1c1, r2c2 and r6c5 against r1c5 and r6c2; the 4 "
            "stands in every cell of one and in none of the other, and two cells of one colour see "
            "each other: that one is false. Removed: 4 from r1c1, r2c2 and r6c5.");
  EXPECT_EQ(french(),
            "Coloriage simple : deux couleurs, L1C1, L2C2 et L6C5 contre L1C5 et L6C2 ; le 4 est "
            "dans toutes les cases de l'une et dans aucune de l'autre, et deux cases d'une couleur "
            "se voient : elle est fausse. Retiré : 4 de L1C1, L2C2 et L6C5.");
}

TEST_F(Explanations, DigitsThatLeaveTheSameCellsAreToldTogether) {
  hold({{{2, 1}, {3, 8}}, {{2, 7}, {3, 8}}, {{2, 8}, {3, 5, 8}}, {{2, 9}, {3, 8, 9}}});
  fire(5, naked_pairs);
  EXPECT_TRUE(english().ends_with("Removed: 3 and 8 from r2c8 and r2c9.")) << english();
}

TEST_F(Explanations, DigitsThatLeaveDifferentCellsAreToldOneByOne) {
  hold({{{2, 1}, {3, 8}}, {{2, 7}, {3, 8}}, {{2, 8}, {3, 5}}, {{2, 9}, {8, 9}}});
  fire(5, naked_pairs);
  EXPECT_TRUE(english().ends_with("Removed: 3 from r2c8; 8 from r2c9.")) << english();
  EXPECT_TRUE(french().ends_with("Retiré : 3 de L2C8 ; 8 de L2C9.")) << french();
}

/// What technique and rule leave, the technique's name in both languages.
struct Kind {
  int place, variant;
  std::string_view english, french;
};

constexpr Kind kinds[] = {
    {0, 1, "Naked single:", "Singleton nu :"},
    {0, 2, "Hidden single:", "Singleton caché :"},
    {1, 0, "Pointing:", "Pointage :"},
    {2, 0, "Pointing:", "Pointage :"},
    {3, 0, "Box/line reduction:", "Réduction ligne/région :"},
    {4, 0, "Box/line reduction:", "Réduction colonne/région :"},
    {5, 0, "Naked pair:", "Paire nue :"},
    {6, 0, "Hidden pair:", "Paire cachée :"},
    {7, 0, "Naked triple:", "Triplet nu :"},
    {8, 0, "Hidden triple:", "Triplet caché :"},
    {9, 1, "Unique rectangle:", "Rectangle unique :"},
    {9, 2, "Unique rectangle:", "Rectangle unique :"},
    {9, 3, "Unique rectangle:", "Rectangle unique :"},
    {9, 4, "Unique rectangle:", "Rectangle unique :"},
    {9, 5, "Unique rectangle:", "Rectangle unique :"},
    {10, 0, "Avoidable rectangle:", "Rectangle évitable :"},
    {11, 0, "Naked quad:", "Quadruplet nu :"},
    {12, 0, "X-wing:", "Aile X (X-wing) :"},
    {13, 0, "Hidden quad:", "Quadruplet caché :"},
    {14, 0, "Swordfish:", "Espadon (swordfish) :"},
    {15, 0, "Jellyfish:", "Méduse (jellyfish) :"},
    {16, 0, "XY-wing:", "Aile XY (XY-wing) :"},
    {17, 0, "XYZ-wing:", "Aile XYZ (XYZ-wing) :"},
    {18, 1, "Finned X-wing:", "Aile X à aileron (finned X-wing) :"},
    {18, 2, "Finned X-wing, without a fin:", "Aile X à aileron (finned X-wing), sans aileron :"},
    {20, 0, "W-wing:", "Aile W (W-wing) :"},
    {21, 1, "Simple colouring:", "Coloriage simple :"},
    {21, 2, "Simple colouring:", "Coloriage simple :"},
};

/// Every role has a cell of its own, so that an empty slot would show.
Step step_of(const Kind& kind) {
  Step step;
  step.place = kind.place;
  step.variant = kind.variant;
  step.unit = {UnitKind::row, 2};
  step.other_unit = {UnitKind::column, 7};
  step.digits = {3, 8};
  for (std::size_t role = 0; role < role_count; ++role)
    step.cells[role].insert(static_cast<int>(role) + 10);
  step.removed[3].insert(81);
  return step;
}

TEST(Sentences, EveryKindOfStepHasOneInBothLanguagesWithoutAnEmptySlot) {
  for (const Kind& kind : kinds) {
    const std::string english = explain(step_of(kind), "En"), french = explain(step_of(kind), "Fr");
    EXPECT_TRUE(english.starts_with(kind.english)) << english;
    EXPECT_TRUE(french.starts_with(kind.french)) << french;
    for (const std::string& text : {english, french}) {
      EXPECT_TRUE(text.ends_with('.')) << text;
      for (const char* hole : {"%", "  ", " ,", "..", "and .", "et ."})
        EXPECT_EQ(text.find(hole), text.npos) << text;
    }
    if (kind.place > 0) {
      EXPECT_TRUE(english.ends_with(" Removed: 3 from r9c9.")) << english;
      EXPECT_TRUE(french.ends_with(" Retiré : 3 de L9C9.")) << french;
    }
  }
}

TEST(Sentences, AStepThatNoTechniqueLeavesHasNone) {
  EXPECT_THROW(explain(step_of({19, 0, "", ""}), "En"), std::out_of_range);
  EXPECT_THROW(explain(step_of({9, 6, "", ""}), "En"), std::out_of_range);
}

TEST(Sentences, EveryEndHasOneInBothLanguages) {
  Step step;
  step.cells_as(Role::pattern).insert(Cell{4, 2});
  EXPECT_EQ(explain(RunEnd::completed, step, "En"), "The puzzle is complete.");
  EXPECT_EQ(explain(RunEnd::completed, step, "Fr"), "La grille est terminée.");
  EXPECT_EQ(explain(RunEnd::dead, step, "En"),
            "No digit is possible in r4c2 any more: the puzzle cannot be completed.");
  EXPECT_EQ(explain(RunEnd::dead, step, "Fr"),
            "Aucun chiffre n'est plus possible en L4C2 : la grille ne peut être terminée.");
  EXPECT_EQ(explain(RunEnd::exhausted, step, "En"), "No technique finds anything more.");
  EXPECT_EQ(explain(RunEnd::exhausted, step, "Fr"), "Aucune technique ne trouve plus rien.");
}

TEST(Sentences, EveryStepOfTheLibrarysWalksHasOne) {
  Walker walker;
  for (const LibraryEntry& entry : BibliothequeGrilles) {
    std::string puzzle(entry.solution);
    for (std::size_t k = 0; k < puzzle.size(); ++k)
      if (entry.mask[k] == '0') puzzle[k] = '.';
    const std::string walk = walker.walk(puzzle);
    for (const char* language : {"En", "Fr"}) {
      const std::string sentences = walker.explained(puzzle, language);
      EXPECT_EQ(std::ranges::count(sentences, '\n'), std::ranges::count(walk, '\n'));
      EXPECT_EQ(sentences.find('%'), sentences.npos);
    }
  }
}

}  // namespace
}  // namespace sdk::test
