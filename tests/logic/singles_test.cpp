// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Which naked and which hidden single is found.

#include <gtest/gtest.h>

#include "logic/techniques/finders.hpp"
#include "tests/logic/candidates.hpp"

namespace sdk::test {
namespace {

constexpr Unit row(int n) { return {UnitKind::row, n}; }
constexpr Unit column(int n) { return {UnitKind::column, n}; }
constexpr Unit box(int n) { return {UnitKind::box, n}; }

/// Every cell has every candidate, but for what a test takes away.
class SingleFinders : public testing::Test {
 protected:
  SingleFinders() { candidates = open_cube(); }

  std::optional<Placement> naked() const { return placement(find_naked_single(position)); }
  std::optional<Placement> hidden() const { return placement(find_hidden_single(position)); }

  Position position;
  CandidateCube& candidates = position.candidates;

 private:
  static std::optional<Placement> placement(const std::optional<Deduction>& found) {
    return found ? found->placement : std::nullopt;
  }
};

TEST_F(SingleFinders, ANakedSingleIsTakenByItsCountAndItsLowestFlag) {
  set_candidates(candidates, {4, 6}, {3, 8});
  candidates.set_count({4, 6}, 1);
  EXPECT_EQ(naked(), (Placement{{4, 6}, 3}));
}

TEST_F(SingleFinders, ASingleIsOfTheDigitThatItPlaces) {
  set_candidates(candidates, {4, 6}, {3});
  EXPECT_EQ(find_naked_single(position)->digits, NineSet{3});
  keep_places(candidates, row(1), 2, {3});
  EXPECT_EQ(find_hidden_single(position)->digits, NineSet{2});
}

TEST_F(SingleFinders, TheFirstNakedSingleRowByRowIsTaken) {
  for (const Cell cell : {Cell{9, 1}, {2, 8}, {2, 9}, {3, 1}})
    set_candidates(candidates, cell, {5});
  EXPECT_EQ(naked(), (Placement{{2, 8}, 5}));
}

TEST_F(SingleFinders, ACellOfTwoOrNoCandidatesIsNoNakedSingle) {
  set_candidates(candidates, {1, 1}, {3, 8});
  fill(candidates, {1, 2}, 4);  // counts 0
  EXPECT_EQ(naked(), std::nullopt);
}

TEST_F(SingleFinders, AHidden1InRow9ComesBeforeAHidden2InRow1) {
  keep_places(candidates, row(1), 2, {3});
  keep_places(candidates, row(9), 1, {5});
  EXPECT_EQ(hidden(), (Placement{{9, 5}, 1}));
}

TEST_F(SingleFinders, TheLowestRowOfADigitComesFirst) {
  keep_places(candidates, row(8), 6, {2});
  keep_places(candidates, row(3), 6, {7});
  EXPECT_EQ(hidden(), (Placement{{3, 7}, 6}));
}

TEST_F(SingleFinders, EveryRowIsScannedBeforeAnyColumn) {
  keep_places(candidates, column(1), 1, {4});
  keep_places(candidates, row(9), 9, {9});
  EXPECT_EQ(hidden(), (Placement{{9, 9}, 9}));
}

TEST_F(SingleFinders, EveryColumnIsScannedBeforeAnyBox) {
  keep_places(candidates, box(1), 1, {5});
  keep_places(candidates, column(9), 9, {2});
  EXPECT_EQ(hidden(), (Placement{{2, 9}, 9}));
}

TEST_F(SingleFinders, TheLowestColumnOfADigitComesFirst) {
  keep_places(candidates, column(7), 4, {1});
  keep_places(candidates, column(2), 4, {6});
  EXPECT_EQ(hidden(), (Placement{{6, 2}, 4}));
}

TEST_F(SingleFinders, TheLowestBoxOfADigitComesFirst) {
  keep_places(candidates, box(9), 4, {1});
  keep_places(candidates, box(6), 4, {8});
  EXPECT_EQ(hidden(), (Placement{{6, 8}, 4}));
}

TEST_F(SingleFinders, ADigitThatIsHiddenInARowAndABoxIsReportedFromTheRow) {
  keep_places(candidates, row(5), 7, {4});
  keep_places(candidates, box(5), 7, {4});
  EXPECT_EQ(hidden(), (Placement{{5, 4}, 7}));
  EXPECT_EQ(find_hidden_single(position)->unit, row(5));
}

TEST_F(SingleFinders, ADigitWithoutAnyPlaceInAUnitIsNoHit) {
  keep_places(candidates, row(5), 7, {});
  EXPECT_EQ(hidden(), std::nullopt);
}

TEST_F(SingleFinders, ADigitWithTwoPlacesInAUnitIsNoHit) {
  keep_places(candidates, box(5), 7, {1, 9});
  EXPECT_EQ(hidden(), std::nullopt);
}

}  // namespace
}  // namespace sdk::test
