// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The sentences of the hints: every kind of step has its own in both languages.

#include "explanations/explanations.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

#include "puzzles/stock/entry_text.hpp"
#include "tests/logic/candidates.hpp"
#include "tools/walk/walk.hpp"

namespace sdk::test {
namespace {

using Cells = std::vector<std::pair<Cell, NineSet>>;

/// Candidates drawn by hand, on which a technique is called as the driver calls it.
class Explanations : public testing::Test {
 protected:
  Explanations() { position.candidates = open_cube(); }

  /// These cells have these candidates, all others none.
  void hold(const Cells& cells) {
    for (int number = 1; number <= 81; ++number) {
      const Cell cell = cell_at(number);
      const auto known = std::ranges::find(cells, cell, &Cells::value_type::first);
      const NineSet digits = known == cells.end() ? NineSet() : known->second;
      for (const int digit : NineSet::all() - digits) position.candidates.remove(cell, digit);
      position.candidates.set_count(cell, digits.count());
    }
  }
  void fire(const Technique& technique) {
    position.links = links_of(position.candidates);
    const auto found = find_by(technique, position);
    ASSERT_TRUE(found);
    deduction = *found;
  }
  std::string english() const { return explain(deduction, "En"); }
  std::string french() const { return explain(deduction, "Fr"); }

  Position position;
  Deduction deduction;
};

TEST_F(Explanations, AvoidableRectangle) {
  hold({{{5, 8}, {3, 8, 9}}});
  for (const auto& [cell, value] : {std::pair<Cell, int>{{2, 1}, 3}, {{2, 8}, 8}, {{5, 1}, 8}}) {
    position.candidates.set_value(cell, value);
    position.pairs(cell.row, cell.column) = {3, 8};
  }
  fire(technique_named("avoidable_rectangle"));
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
  fire(technique_named("unique_rectangle"));
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
  fire(technique_named("finned_x_wing"));
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
  fire(technique_named("simple_colouring"));
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
  fire(technique_named("naked_pair"));
  EXPECT_TRUE(english().ends_with("Removed: 3 and 8 from r2c8 and r2c9.")) << english();
}

TEST_F(Explanations, DigitsThatLeaveDifferentCellsAreToldOneByOne) {
  hold({{{2, 1}, {3, 8}}, {{2, 7}, {3, 8}}, {{2, 8}, {3, 5}}, {{2, 9}, {8, 9}}});
  fire(technique_named("naked_pair"));
  EXPECT_TRUE(english().ends_with("Removed: 3 from r2c8; 8 from r2c9.")) << english();
  EXPECT_TRUE(french().ends_with("Retiré : 3 de L2C8 ; 8 de L2C9.")) << french();
}

/// A rule of a technique, and the technique's name in both languages.
struct Kind {
  std::string_view technique;
  Rule rule;
  std::string_view english, french;
};

constexpr Kind kinds[] = {
    {"naked_single", Rule::only, "Naked single:", "Singleton nu :"},
    {"hidden_single", Rule::only, "Hidden single:", "Singleton caché :"},
    {"pointing_rows", Rule::only, "Pointing:", "Pointage :"},
    {"pointing_columns", Rule::only, "Pointing:", "Pointage :"},
    {"box_line_rows", Rule::only, "Box/line reduction:", "Réduction ligne/région :"},
    {"box_line_columns", Rule::only, "Box/line reduction:", "Réduction colonne/région :"},
    {"naked_pair", Rule::only, "Naked pair:", "Paire nue :"},
    {"hidden_pair", Rule::only, "Hidden pair:", "Paire cachée :"},
    {"naked_triple", Rule::only, "Naked triple:", "Triplet nu :"},
    {"hidden_triple", Rule::only, "Hidden triple:", "Triplet caché :"},
    {"unique_rectangle", Rule::odd_corner, "Unique rectangle:", "Rectangle unique :"},
    {"unique_rectangle", Rule::two_share_a_digit, "Unique rectangle:", "Rectangle unique :"},
    {"unique_rectangle", Rule::bound_to_roof, "Unique rectangle:", "Rectangle unique :"},
    {"unique_rectangle", Rule::three_share_a_digit, "Unique rectangle:", "Rectangle unique :"},
    {"unique_rectangle", Rule::bound_to_diagonal, "Unique rectangle:", "Rectangle unique :"},
    {"avoidable_rectangle", Rule::only, "Avoidable rectangle:", "Rectangle évitable :"},
    {"naked_quad", Rule::only, "Naked quad:", "Quadruplet nu :"},
    {"x_wing", Rule::only, "X-wing:", "Aile X (X-wing) :"},
    {"hidden_quad", Rule::only, "Hidden quad:", "Quadruplet caché :"},
    {"swordfish", Rule::only, "Swordfish:", "Espadon (swordfish) :"},
    {"jellyfish", Rule::only, "Jellyfish:", "Méduse (jellyfish) :"},
    {"xy_wing", Rule::only, "XY-wing:", "Aile XY (XY-wing) :"},
    {"xyz_wing", Rule::only, "XYZ-wing:", "Aile XYZ (XYZ-wing) :"},
    {"finned_x_wing", Rule::with_fin, "Finned X-wing:", "Aile X à aileron (finned X-wing) :"},
    {"finned_x_wing", Rule::without_fin,
     "Finned X-wing, without a fin:", "Aile X à aileron (finned X-wing), sans aileron :"},
    {"w_wing", Rule::only, "W-wing:", "Aile W (W-wing) :"},
    {"simple_colouring", Rule::trap, "Simple colouring:", "Coloriage simple :"},
    {"simple_colouring", Rule::wrap, "Simple colouring:", "Coloriage simple :"},
};

/// Every role has a cell of its own, so that an empty slot would show.
Deduction deduction_of(const Kind& kind) {
  Deduction deduction;
  deduction.technique = &technique_at(row_with(kind.technique));
  deduction.rule = kind.rule;
  deduction.unit = {UnitKind::row, 2};
  deduction.other_unit = {UnitKind::column, 7};
  deduction.digits = {3, 8};
  for (std::size_t role = 0; role < role_count; ++role)
    deduction.cells[role].insert(static_cast<int>(role) + 10);
  deduction.removed[3].insert(81);
  return deduction;
}

TEST(Sentences, EveryRuleOfEveryTechniqueHasOneInBothLanguagesWithoutAnEmptySlot) {
  for (const Kind& kind : kinds) {
    const Deduction deduction = deduction_of(kind);
    const std::string english = explain(deduction, "En"), french = explain(deduction, "Fr");
    EXPECT_TRUE(english.starts_with(kind.english)) << english;
    EXPECT_TRUE(french.starts_with(kind.french)) << french;
    for (const std::string& text : {english, french}) {
      EXPECT_TRUE(text.ends_with('.')) << text;
      for (const char* hole : {"%", "  ", " ,", "..", "and .", "et ."})
        EXPECT_EQ(text.find(hole), text.npos) << text;
    }
    if (deduction.technique->place > 0) {
      EXPECT_TRUE(english.ends_with(" Removed: 3 from r9c9.")) << english;
      EXPECT_TRUE(french.ends_with(" Retiré : 3 de L9C9.")) << french;
    }
  }
}

TEST(Sentences, ADeductionThatNoTechniqueMakesHasNone) {
  EXPECT_THROW(explain(Deduction(), "En"), std::out_of_range);
  EXPECT_THROW(explain(deduction_of({"unique_rectangle", Rule::trap, "", ""}), "En"),
               std::out_of_range);
}

TEST(Sentences, EveryEndHasOneInBothLanguages) {
  Event event{EventKind::completed, {}, {}};
  EXPECT_EQ(explain(event, "En"), "The puzzle is complete.");
  EXPECT_EQ(explain(event, "Fr"), "La grille est terminée.");
  event.kind = EventKind::exhausted;
  EXPECT_EQ(explain(event, "En"), "No technique finds anything more.");
  EXPECT_EQ(explain(event, "Fr"), "Aucune technique ne trouve plus rien.");
  event.kind = EventKind::dead;
  event.deduction.cells_as(Role::pattern).insert(Cell{4, 2});
  EXPECT_EQ(explain(event, "En"),
            "No digit is possible in r4c2 any more: the puzzle cannot be completed.");
  EXPECT_EQ(explain(event, "Fr"),
            "Aucun chiffre n'est plus possible en L4C2 : la grille ne peut être terminée.");
}

TEST(Sentences, EveryStepOfTheLibrarysWalksHasOne) {
  for (const LibraryEntry& entry : BibliothequeGrilles) {
    const std::string puzzle = puzzle_text(entry);
    for (const char* language : {"En", "Fr"}) {
      const std::string sentences = explained_walk(puzzle, language);
      EXPECT_EQ(std::ranges::count(sentences, '\n'), std::ranges::count(walk(puzzle), '\n'));
      EXPECT_EQ(sentences.find('%'), sentences.npos);
    }
  }
}

}  // namespace
}  // namespace sdk::test
