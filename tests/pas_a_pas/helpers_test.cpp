// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Box arithmetic, counts, the primitives and the recompute.

#include "pas_a_pas/helpers.hpp"

#include <gtest/gtest.h>

#include "pas_a_pas/cube_check.hpp"
#include "pas_a_pas/driver.hpp"
#include "tests/pas_a_pas/hint_game.hpp"

namespace sdk::test {
namespace {

constexpr Unit row(int n) { return {UnitKind::row, n}; }
constexpr Unit column(int n) { return {UnitKind::column, n}; }
constexpr Unit box(int n) { return {UnitKind::box, n}; }

// Box arithmetic

TEST(Boxes, TheNumberOfACellsBoxIsTheFloatingPointFormula) {
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c)
      EXPECT_EQ(no_boite(r, c),
                3 * static_cast<int>((r - 0.1) / 3) + 1 + static_cast<int>((c - 0.1) / 3))
          << r << c;
  EXPECT_EQ(no_boite(4, 7), 6);
  EXPECT_EQ(no_boite(9, 9), 9);
  EXPECT_EQ(no_boite(3, 3), 1);
}

TEST(Boxes, BoundsOfACellsBox) {
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) {
      EXPECT_EQ(first_row(r, c), r <= 3 ? 1 : r <= 6 ? 4 : 7);
      EXPECT_EQ(last_row(r, c), r <= 3 ? 3 : r <= 6 ? 6 : 9);
      EXPECT_EQ(first_column(r, c), c <= 3 ? 1 : c <= 6 ? 4 : 7);
      EXPECT_EQ(last_column(r, c), c <= 3 ? 3 : c <= 6 ? 6 : 9);
    }
}

TEST(Boxes, LinesOfABox) {
  for (int b = 1; b <= 9; ++b) {
    const int top = b <= 3 ? 1 : b <= 6 ? 4 : 7;
    const int left = b % 3 == 1 ? 1 : b % 3 == 2 ? 4 : 7;
    EXPECT_EQ(first_row(b), top);
    EXPECT_EQ(middle_row(b), top + 1);
    EXPECT_EQ(last_row(b), top + 2);
    EXPECT_EQ(first_column(b), left);
    EXPECT_EQ(middle_column(b), left + 1);
    EXPECT_EQ(last_column(b), left + 2);
  }
}

TEST(Boxes, ABoxThatDoesNotExistHasTheLines0) {
  for (const int b : {-1, 0, 10})
    for (const int line : {first_row(b), middle_row(b), last_row(b), first_column(b),
                           middle_column(b), last_column(b)})
      EXPECT_EQ(line, 0);
}

TEST(Cells, SeeEachOtherInARowAColumnOrABoxAndThemselves) {
  EXPECT_TRUE(se_voient(1, 1, 1, 9));
  EXPECT_TRUE(se_voient(1, 1, 9, 1));
  EXPECT_TRUE(se_voient(1, 1, 3, 3));
  EXPECT_TRUE(se_voient(5, 5, 5, 5));
  EXPECT_FALSE(se_voient(1, 1, 4, 4));
  EXPECT_FALSE(se_voient(3, 3, 4, 2));
}

TEST(Cells, AreNumberedRowByRow) {
  for (int n = 1; n <= 81; ++n) {
    EXPECT_EQ(cell_at(n).row, (n - 1) / 9 + 1);
    EXPECT_EQ(cell_at(n).column, n - 9 * ((n - 1) / 9));
    EXPECT_EQ(cell_at(n).number(), n);
  }
  EXPECT_TRUE(se_voient_num(1, 81 - 72));
  EXPECT_FALSE(se_voient_num(1, 81));
}

class Helpers : public testing::Test {
 protected:
  Helpers() { solver.Candidats.reset(); }

  HintGame game;
};

// Counts

TEST_F(Helpers, ADigitIsCountedByItsFlags) {
  keep_places(row(5), 7, {1, 4, 6});
  solver.Candidats.set_count({5, 1}, 0);  // no count of digits looks at it
  EXPECT_EQ(digit_count(row(5), 7), 3);
  EXPECT_EQ(digit_count(column(4), 7), 9);
  EXPECT_EQ(digit_count(column(5), 7), 8);
  EXPECT_EQ(digit_count(box(5), 7), 8);
  EXPECT_EQ(digit_count(box(4), 7), 7);
  EXPECT_EQ(digit_count_in_box(row(5), 4, 7), 1);
  EXPECT_EQ(digit_count_in_box(row(5), 5, 7), 2);
  EXPECT_EQ(digit_count_in_box(row(5), 6, 7), 0);
  EXPECT_EQ(digit_count_in_box(column(5), 5, 7), 2);
  EXPECT_EQ(digit_count_in_box(column(5), 2, 7), 3);
}

TEST_F(Helpers, TotalsAddTheStoredCounts) {
  set_candidates({5, 5}, {1, 2});
  solver.Candidats.remove({5, 6}, 1);  // its count still says 9
  EXPECT_EQ(candidate_total(row(5)), 74);
  EXPECT_EQ(candidate_total(column(5)), 74);
  EXPECT_EQ(candidate_total(box(5)), 74);
  EXPECT_EQ(candidate_total(column(6)), 81);
  EXPECT_EQ(candidate_count(5, 6), 8);
  EXPECT_EQ(solver.Candidats.count({5, 6}), 9);
}

TEST_F(Helpers, CandidatesAreNumberedUpwards) {
  set_candidates({2, 3}, {3, 5, 9});
  EXPECT_EQ(nieme_candidat(2, 3, 1), 3);
  EXPECT_EQ(nieme_candidat(2, 3, 2), 5);
  EXPECT_EQ(nieme_candidat(2, 3, 3), 9);
  EXPECT_EQ(nieme_candidat(2, 3, 4), 0);
}

// Primitives

TEST_F(Helpers, AColumnIsClearedOutsideABox) {
  clear_column_outside_box(6, 5, 2);
  EXPECT_EQ(solver.Candidats.places(column(5), 6), (NineSet{1, 2, 3}));
  EXPECT_EQ(solver.Candidats.cells_with(6).count(), 75);
  EXPECT_EQ(solver.Candidats.cells_with(7).count(), 81);
  EXPECT_EQ(solver.Candidats.count({9, 5}), 9) << "counts wait for the recompute";
}

TEST_F(Helpers, AClearedCellHasNoFlagAndTheCount0) {
  clear_cell(4, 4);
  EXPECT_EQ(solver.Candidats.digits({4, 4}), NineSet{});
  EXPECT_EQ(solver.Candidats.count({4, 4}), 0);
  EXPECT_EQ(solver.Candidats.digits({4, 5}), NineSet::all());
}

// The recompute

TEST_F(Helpers, AFilledCellThatStillHasCandidatesLosesThemAll) {
  solver.Candidats.set_value({4, 4}, 5);
  ASSERT_EQ(solver.Candidats.count({4, 4}), 9);
  maj_candidats();
  EXPECT_EQ(solver.Candidats.digits({4, 4}), NineSet{});
  EXPECT_EQ(solver.Candidats.count({4, 4}), 0);
}

TEST_F(Helpers, AValueExcludesItsDigitFromTheCellsThatSeeIt) {
  solver.Candidats.fill({4, 4}, 5);
  maj_candidats();
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    if (cell == Cell{4, 4}) continue;
    const bool sees = se_voient_num(number, Cell{4, 4}.number());
    EXPECT_EQ(solver.Candidats.has(cell, 5), !sees) << number;
    EXPECT_EQ(solver.Candidats.count(cell), sees ? 8 : 9) << number;
  }
  EXPECT_EQ(candidats_fault(), "");
}

TEST_F(Helpers, ACellThatOnceCounted0IsNeverVisitedAgain) {
  solver.Candidats.fill({4, 4}, 5);
  solver.Candidats.set_count({4, 5}, 0);
  maj_candidats();
  EXPECT_TRUE(solver.Candidats.has({4, 5}, 5));
  EXPECT_EQ(solver.Candidats.count({4, 5}), 0);
}

TEST_F(Helpers, TheRecomputeRestoresNothing) {
  set_candidates({1, 1}, {1});
  maj_candidats();
  EXPECT_EQ(solver.Candidats.digits({1, 1}), NineSet{1});
  EXPECT_EQ(solver.Candidats.count({1, 1}), 1);
}

TEST_F(Helpers, ACellOfTwoCandidatesShowsThemTheSmallerFirst) {
  solver.Candidats.remove({2, 3}, 9);
  for (const int digit : {1, 2, 4, 5, 6, 7}) solver.Candidats.remove({2, 3}, digit);
  maj_candidats();
  EXPECT_EQ(game.candidates(2, 3).text, "3 , 8");
  EXPECT_EQ(solver.Paires(2, 3), (std::array<std::uint8_t, 2>{3, 8}));
}

TEST_F(Helpers, APairIsShownAfterEveryRecomputeAndKeptWhenTheCellHasFewer) {
  set_candidates({2, 3}, {3, 8});
  maj_candidats();
  game.window.MSR.set_text(1, 2, "?");
  maj_candidats();
  EXPECT_EQ(game.candidates(2, 3).text, "3 , 8");
  solver.Candidats.remove({2, 3}, 8);
  maj_candidats();
  EXPECT_EQ(solver.Candidats.count({2, 3}), 1);
  EXPECT_EQ(solver.Paires(2, 3), (std::array<std::uint8_t, 2>{3, 8}));
}

// The check of the candidates

TEST_F(Helpers, TheCheckFindsWhatIsWrong) {
  EXPECT_EQ(candidats_fault(), "");
  solver.Candidats.set_count({1, 2}, 8);
  EXPECT_EQ(candidats_fault(), "r1c2 has a count other than its number of flags");
  solver.Candidats.reset();
  solver.Candidats.set_value({1, 2}, 8);
  EXPECT_EQ(candidats_fault(), "r1c1 has the candidate 8 and sees that value");
  solver.Candidats.reset();
  solver.Candidats.set_value({1, 1}, 8);
  EXPECT_EQ(candidats_fault(), "r1c1 is filled and has candidates");
}

}  // namespace
}  // namespace sdk::test
