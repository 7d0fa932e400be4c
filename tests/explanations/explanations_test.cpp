// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The sentences of the hints, word for word, on candidates drawn by hand.

#include "explanations/explanations.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "puzzles/stock/entry_text.hpp"
#include "puzzles/stock/library_table.hpp"
#include "tests/explanations/sentence_judge.hpp"
#include "tests/logic/candidates.hpp"
#include "tools/walk/walk.hpp"

namespace sdk::test {
namespace {

using Cells = std::vector<std::pair<Cell, NineSet>>;

/// French as it is typed here: a tilde for a space at which no line ends.
std::string set_in_french(std::string text) {
  for (std::size_t at = 0; (at = text.find('~', at)) != text.npos;) text.replace(at, 1, "\u00A0");
  for (std::size_t at = 0; (at = text.find('\'', at)) != text.npos;) text.replace(at, 1, "’");
  return text;
}

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
  /// The next step of the hint is what the technique finds.
  void fire(const Technique& technique) {
    position.links = links_of(position.candidates);
    const auto found = find_by(technique, position);
    ASSERT_TRUE(found);
    const EventKind kind = found->placement ? EventKind::offer : EventKind::removal;
    add(kind, *found);
    EXPECT_TRUE(faults(hint, hint.size() - 1, english(), "En").empty()) << english();
    EXPECT_TRUE(faults(hint, hint.size() - 1, french(), "Fr").empty()) << french();
  }
  void add(EventKind kind, const Deduction& deduction = {}) {
    const bool is_certain = deduction.certain && (hint.empty() || hint.back().certain);
    hint.push_back({kind, position, deduction, is_certain});
  }
  /// A step before, of which only this is known.
  void add_removal(int digit, const CellSet& cells, bool is_certain = true) {
    Deduction deduction;
    deduction.technique = &technique_named("avoidable_rectangle");
    deduction.removed[static_cast<std::size_t>(digit)] = cells;
    deduction.certain = is_certain;
    add(EventKind::removal, deduction);
  }
  /// The last step's sentence.
  std::string english() const { return explain(hint, "En").back(); }
  std::string french() const { return explain(hint, "Fr").back(); }

  Position position;
  std::deque<Event> hint;
};

TEST_F(Explanations, WWing) {
  hold({{{1, 1}, {5, 9}}, {{2, 5}, {5, 9}}, {{4, 1}, {9}}, {{4, 5}, {9}}, {{1, 5}, {5}}});
  fire(technique_named("w_wing"));
  EXPECT_EQ(
      english(),
      "W-wing: r1c1 and r2c5 can only be 5 or 9. In row 4, the 9 can only go in r4c1 or r4c5. "
      "In r4c1 it makes r1c1 a 5; in r4c5 it makes r2c5 a 5. Either way r1c5 sees a 5 in r1c1 or "
      "r2c5. To remove: 5 from r1c5.");
  EXPECT_EQ(french(),
            set_in_french(
                "Aile W (W-wing)~: L1C1 et L2C5 ne peuvent être que 5 ou 9. Dans la ligne 4, le 9 "
                "ne va qu'en L4C1 ou L4C5. En L4C1, il fait de L1C1 un 5~; en L4C5, il fait de "
                "L2C5 un 5. Dans les deux cas, L1C5 voit un 5 en L1C1 ou L2C5. À retirer~: 5 de "
                "L1C5."));
}

TEST_F(Explanations, AWWingOfACellThatSeesBothEndsOfTheLink) {
  hold({{{4, 1}, {9}}, {{4, 2}, {9}}, {{5, 3}, {5, 9}}, {{8, 1}, {5, 9}}, {{8, 3}, {5}}});
  fire(technique_named("w_wing"));
  EXPECT_EQ(
      english(),
      "W-wing: r5c3 and r8c1 can only be 5 or 9. In row 4, the 9 can only go in r4c1 or r4c2. "
      "In r4c2 it makes r5c3 a 5; in r4c1 it makes r8c1 a 5. Either way r8c3 sees a 5 in r5c3 or "
      "r8c1. To remove: 5 from r8c3.");
}

TEST_F(Explanations, AHiddenTripleOfDigitsWithPlacesOfTheirOwn) {
  hold({{{1, 1}, {1, 3, 7}}, {{1, 2}, {1, 2, 8}}, {{1, 3}, {2, 3, 9}}, {{1, 4}, {7, 8, 9}}});
  fire(technique_named("hidden_triple"));
  EXPECT_EQ(english(),
            "Hidden triple: in row 1, the 1 can only go in r1c1 or r1c2; the 2 only in r1c2 or "
            "r1c3; the 3 only in r1c1 or r1c3. These three digits take these three cells, so no "
            "other digit can go there. To remove: 7 from r1c1; 8 from r1c2; 9 from r1c3.");
  EXPECT_EQ(french(),
            set_in_french(
                "Triplet caché~: dans la ligne 1, le 1 ne va qu'en L1C1 ou L1C2~; le 2 qu'en L1C2 "
                "ou L1C3~; le 3 qu'en L1C1 ou L1C3. Ces trois chiffres prennent ces trois cases~: "
                "aucun autre chiffre n'y a de place. À retirer~: 7 de L1C1~; 8 de L1C2~; 9 de "
                "L1C3."));
}

TEST_F(Explanations, FinnedXWing) {
  hold({{{2, 6}, {4}}, {{2, 9}, {4}}, {{5, 4}, {4}}, {{5, 6}, {4}}, {{5, 9}, {4}}, {{6, 6}, {4}}});
  fire(technique_named("finned_x_wing"));
  EXPECT_EQ(english(),
            "Finned X-wing: in row 2, the 4 can only go in r2c6 or r2c9; in row 5, only in r5c4, "
            "r5c6 or r5c9. If r5c4 is not 4, columns 6 and 9 have their 4 in row 2 or 5; if it is, "
            "r6c6 sees it. Either way r6c6 is not 4. To remove: 4 from r6c6.");
  EXPECT_EQ(
      french(),
      set_in_french(
          "Aile X à aileron (finned X-wing)~: dans la ligne 2, le 4 ne va qu'en L2C6 ou "
          "L2C9~; ligne 5, qu'en L5C4, L5C6 ou L5C9. Si L5C4 n'est pas 4, les "
          "colonnes 6 et 9 ont leur 4 en ligne 2 ou 5~; sinon L6C6 voit ce 4. Dans les deux cas, "
          "L6C6 n'est pas 4. À retirer~: 4 de L6C6."));
}

TEST_F(Explanations, FinnedXWingWithoutAFin) {
  hold({{{2, 3}, {5}}, {{2, 8}, {5}}, {{6, 3}, {5}}, {{6, 8}, {5}}, {{9, 3}, {5}}});
  fire(technique_named("finned_x_wing"));
  EXPECT_EQ(english(),
            "Finned X-wing, without a fin: in row 2, the 5 can only go in r2c3 or r2c8; in row 6, "
            "only in r6c3 or r6c8. So columns 3 and 8 have their 5 in row 2 or 6, and r9c3 is not "
            "5. To remove: 5 from r9c3.");
}

TEST_F(Explanations, UniqueRectangleWithOneExtraDigitInThreeCorners) {
  hold({{{4, 4}, {3, 8}},
        {{4, 5}, {3, 5, 8}},
        {{7, 4}, {3, 5, 8}},
        {{7, 5}, {3, 5, 8}},
        {{5, 6}, {5, 7}},
        {{8, 5}, {5, 6}}});
  fire(technique_named("unique_rectangle"));
  EXPECT_EQ(english(),
            "Unique rectangle: r4c4 can only be 3 or 8; r4c5, r7c4 and r7c5 only 3, 5 or 8. If "
            "none of r4c5, r7c4 and r7c5 were 5, the 3 and 8 could be swapped in the "
            "corners, giving two solutions; a Sudoku has one. So r8c5 sees a 5 in r4c5, r7c4 "
            "or r7c5. To remove: 5 "
            "from r8c5.");
}

TEST_F(Explanations, ARectangleInFourBoxesAssertsNothing) {
  hold({{{2, 1}, {3, 8}}, {{2, 8}, {3, 8}}, {{5, 1}, {3, 8}}, {{5, 8}, {3, 8, 9}}});
  fire(technique_named("unique_rectangle"));
  EXPECT_EQ(english(),
            "Unique rectangle: r2c1, r2c8 and r5c1 can only be 3 or 8. It is assumed that the "
            "corners do not hold just 3 and 8 (not certain here: the corners do not lie in two "
            "boxes). If that is right, r5c8 is neither 3 nor 8. To remove: 3 and 8 from r5c8.");
  EXPECT_EQ(
      french(),
      set_in_french(
          "Rectangle unique~: L2C1, L2C8 et L5C1 ne peuvent être que 3 ou 8. On suppose que les "
          "coins n'ont pas que 3 et 8 (pas certain ici~: les coins ne sont pas dans deux "
          "régions). Si c'est juste, L5C8 n'est ni 3 ni 8. À retirer~: 3 et 8 de L5C8."));
}

TEST_F(Explanations, ADigitBoundToADiagonalInFourBoxesIsToldBriefly) {
  hold({{{2, 1}, {3, 8}}, {{2, 8}, {3, 8, 9}}, {{5, 1}, {3, 7, 8}}, {{5, 8}, {3, 8}}});
  fire(technique_named("unique_rectangle"));
  EXPECT_EQ(english(),
            "Unique rectangle: r2c1 and r5c8 can only be 3 or 8. In row 2, the 3 can only go in "
            "r2c1 or r2c8; in row 5, only in r5c1 or r5c8. If r2c8 or r5c1 is 3, both are. If not "
            "all corners are 3 or 8 (not certain here: the corners do not lie in two boxes), "
            "neither r2c8 nor r5c1 is 3. To remove: 3 from r2c8 and r5c1.");
  EXPECT_EQ(french(),
            set_in_french(
                "Rectangle unique~: L2C1 et L5C8 ne peuvent être que 3 ou 8. Dans la ligne 2, le 3 "
                "ne va qu'en L2C1 ou L2C8~; ligne 5, qu'en L5C1 ou L5C8. Si L2C8 ou L5C1 est 3, "
                "l'autre aussi. Si les coins n'ont pas que 3 et 8 (pas certain ici~: les coins ne "
                "sont pas dans deux régions), ni L2C8 ni L5C1 n'est 3. À retirer~: 3 de L2C8 et "
                "L5C1."));
}

TEST_F(Explanations, AvoidableRectangle) {
  hold({{{5, 8}, {3, 8, 9}}});
  for (const auto& [cell, value] : {std::pair<Cell, int>{{2, 1}, 3}, {{2, 8}, 8}, {{5, 1}, 8}}) {
    position.candidates.set_value(cell, value);
    position.pairs(cell.row, cell.column) = {3, 8};
  }
  fire(technique_named("avoidable_rectangle"));
  EXPECT_EQ(english(),
            "Avoidable rectangle: before they were filled, r2c1, r2c8 and r5c1 were down to 3 or "
            "8. With a 3 in r5c8, these digits might be swapped (not certain here: it rests on "
            "what the cells could once be, not on the candidates). To remove: 3 from r5c8.");
}

TEST_F(Explanations, AColourThatSeesItself) {
  // Row 1, column 5, row 6 and column 2 chain r1c1 to r2c2, which see each other in box 1.
  hold({{{1, 1}, {4}}, {{1, 5}, {4}}, {{6, 5}, {4}}, {{6, 2}, {4}}, {{2, 2}, {4}}, {{3, 3}, {4}}});
  fire(technique_named("simple_colouring"));
  EXPECT_EQ(english(),
            "Simple colouring: in row 1, the 4 can only go in r1c1 or r1c5; in column 5, only "
            "in r1c5 or r6c5; in row 6, only in r6c2 or r6c5; in column 2, only in r2c2 or "
            "r6c2. Two colours alternate on these cells; the 4 fills all of one and none of the "
            "other: either r1c1, r2c2 and r6c5, or r1c5 and r6c2. But r1c1 and r2c2 see each "
            "other and cannot both be 4: their colour is false. To remove: 4 from r1c1, r2c2 "
            "and r6c5.");
}

TEST_F(Explanations, PartsOfAColouringThatNothingJoinsAreToldOneByOne) {
  hold({{{1, 1}, {4}},
        {{1, 3}, {4}},
        {{5, 3}, {4}},
        {{5, 7}, {4}},
        {{8, 7}, {4}},
        {{8, 9}, {4}},
        {{2, 2}, {4}},
        {{9, 8}, {4}}});
  fire(technique_named("simple_colouring"));
  EXPECT_EQ(
      english(),
      "Simple colouring: in row 1, the 4 can only go in r1c1 or r1c3. Two colours alternate on "
      "these cells; the 4 fills all of one and none of the other: either r1c1, or r1c3. Either "
      "way r2c2 sees a 4 in r1c1 or r1c3. In row 8, the 4 can only go in r8c7 or r8c9. Two "
      "colours alternate on these cells; the 4 fills all of one and none of the other: either "
      "r8c7, or r8c9. Either way r9c8 sees a 4 in r8c7 or r8c9. To remove: 4 from r2c2 and r9c8.");
}

TEST_F(Explanations, DigitsThatLeaveTheSameCellsAreToldTogether) {
  hold({{{2, 1}, {3, 8}}, {{2, 7}, {3, 8}}, {{2, 8}, {3, 5, 8}}, {{2, 9}, {3, 8, 9}}});
  fire(technique_named("naked_pair"));
  EXPECT_TRUE(english().ends_with(" To remove: 3 and 8 from r2c8 and r2c9.")) << english();
}

TEST_F(Explanations, DigitsThatLeaveDifferentCellsAreToldOneByOne) {
  hold({{{2, 1}, {3, 8}}, {{2, 7}, {3, 8}}, {{2, 8}, {3, 5}}, {{2, 9}, {8, 9}}});
  fire(technique_named("naked_pair"));
  EXPECT_TRUE(english().ends_with(" To remove: 3 from r2c8; 8 from r2c9.")) << english();
  EXPECT_TRUE(french().ends_with(set_in_french(" À retirer~: 3 de L2C8~; 8 de L2C9.")));
}

// Singles

TEST_F(Explanations, ANakedSingleNamesFewUnitsAndTheStepsBefore) {
  hold({{{1, 1}, {5}}, {{9, 9}, {1}}});
  const std::pair<Cell, int> values[] = {{{1, 4}, 2}, {{1, 5}, 3}, {{1, 6}, 7}, {{4, 1}, 1},
                                         {{5, 1}, 9}, {{2, 2}, 2}, {{2, 3}, 8}};
  for (const auto& [cell, value] : values) position.candidates.set_value(cell, value);
  add_removal(6, {1, 2});
  add_removal(4, {1});
  fire(technique_named("naked_single"));
  EXPECT_EQ(english(),
            "Naked single: r1c1 can only be 5: row 1 has 2, 3 and 7; column 1 has 1 and 9; box 1 "
            "has 8; step 1 removed the 6; step 2 removed the 4.");
  EXPECT_EQ(
      french(),
      set_in_french("Singleton nu~: L1C1 ne peut être que 5~: la ligne 1 a les 2, 3 et 7~; la "
                    "colonne 1 a les 1 et 9~; la région 1 a le 8~; l'étape 1 a retiré le 6~; "
                    "l'étape 2 a retiré le 4."));
}

TEST_F(Explanations, AHiddenSingleIsToldByItsBoxWhereItIsAloneInThat) {
  hold({{{9, 2}, {4, 5}}, {{9, 8}, {5}}, {{7, 1}, {5}}, {{9, 3}, {5}}});
  for (int column = 4; column <= 6; ++column)
    position.candidates.set_value({9, column}, column - 3);
  for (const Cell cell : {Cell{9, 1}, {9, 7}, {9, 9}, {7, 2}, {7, 3}, {8, 1}, {8, 2}, {8, 3}})
    position.candidates.set_value(cell, 9);
  for (const Cell cell : {Cell{7, 6}, {3, 8}}) position.candidates.set_value(cell, 4);
  add_removal(4, {75});
  fire(technique_named("hidden_single"));
  EXPECT_EQ(english(),
            "Hidden single: in box 7 (and in row 9), the 4 can only go in r9c2: r7c1 sees the 4 in "
            "r7c6; step 1 took it from r9c3.");
  EXPECT_EQ(french(),
            set_in_french("Singleton caché~: dans la région 7 (et dans la ligne 9), le 4 ne va "
                          "qu'en L9C2~: L7C1 voit le 4 en L7C6~; l'étape 1 l'a retiré de L9C3."));
}

// Doubts and ends

TEST_F(Explanations, AStepAfterOneThatIsNotCertainNamesTheFirst) {
  add_removal(3, {50});
  add_removal(3, {51}, false);
  add_removal(3, {52}, false);
  hold({{{2, 1}, {3, 8}}, {{2, 7}, {3, 8}}, {{2, 8}, {3, 5, 8}}});
  position.candidates.set_value({9, 9}, 1);
  const auto found = find_by(technique_named("naked_pair"), position);
  ASSERT_TRUE(found);
  add(EventKind::removal, *found);
  EXPECT_TRUE(english().ends_with("from r2c8. (not certain: rests on step 2)")) << english();
  EXPECT_TRUE(french().ends_with(set_in_french(" (pas certain~: s'appuie sur l'étape 2)")));
}

TEST_F(Explanations, AStepThatIsNotCertainByItselfNamesAnEarlierDoubtToo) {
  add_removal(3, {50}, false);
  hold({{{2, 1}, {3, 8}}, {{2, 8}, {3, 8, 9}}, {{5, 1}, {3, 7, 8}}, {{5, 8}, {3, 8}}});
  fire(technique_named("unique_rectangle"));
  EXPECT_NE(english().find("(not certain here:"), std::string::npos) << english();
  EXPECT_TRUE(english().ends_with("r5c1. (not certain: rests on step 1)")) << english();
}

TEST_F(Explanations, EveryEndHasASentence) {
  add(EventKind::completed);
  EXPECT_EQ(english(), "The puzzle is complete.");
  EXPECT_EQ(french(), "La grille est terminée.");
  add(EventKind::exhausted);
  EXPECT_EQ(english(), "No technique finds anything more.");
  EXPECT_EQ(french(), "Aucune technique ne trouve plus rien.");
}

Deduction dead_cell(Cell cell) {
  Deduction deduction;
  deduction.cells_as(Role::pattern).insert(cell);
  return deduction;
}

TEST_F(Explanations, ADeadCellBlamesADigitOrThePuzzle) {
  add(EventKind::dead, dead_cell({4, 5}));
  EXPECT_EQ(english(),
            "No digit is left for r4c5: a digit now in the grid is wrong, or the puzzle has no "
            "solution.");
  EXPECT_EQ(french(),
            set_in_french("Il ne reste aucun chiffre pour L4C5~: un chiffre de la grille est faux, "
                          "ou la grille n'a pas de solution."));
}

TEST_F(Explanations, ADeadCellAfterARectangleMayMeanSeveralSolutions) {
  hold({{{2, 1}, {3, 8}}, {{2, 2}, {3, 8}}, {{5, 1}, {3, 8}}, {{5, 2}, {3, 8, 9}}});
  fire(technique_named("unique_rectangle"));
  add(EventKind::dead, dead_cell({4, 5}));
  EXPECT_TRUE(english().ends_with("has no solution, or more than one.")) << english();
}

TEST_F(Explanations, ADeadCellAfterAStepThatIsNotCertainBlamesThatFirst) {
  add_removal(3, {50}, false);
  add(EventKind::dead, dead_cell({4, 5}));
  EXPECT_EQ(english(),
            "No digit is left for r4c5: step 1 is wrong, or a digit now in the grid is wrong, or "
            "the puzzle has no solution. (not certain: rests on step 1)");
}

TEST_F(Explanations, ADeductionThatNoTechniqueMakesHasNone) {
  add(EventKind::removal);
  EXPECT_THROW(explain(hint, "En"), std::out_of_range);
  hint.back().deduction.technique = &technique_named("unique_rectangle");
  hint.back().deduction.rule = Rule::trap;
  EXPECT_THROW(explain(hint, "En"), std::out_of_range);
}

TEST(ExplainedWalks, HaveALineForEveryLineOfTheWalk) {
  for (const LibraryEntry& entry : BibliothequeGrilles) {
    const std::string puzzle = puzzle_text(entry), lines = walk(puzzle);
    for (const char* language : {"En", "Fr"}) {
      const std::string sentences = explained_walk(puzzle, language);
      EXPECT_EQ(std::ranges::count(sentences, '\n'), std::ranges::count(lines, '\n'));
    }
  }
}

}  // namespace
}  // namespace sdk::test
