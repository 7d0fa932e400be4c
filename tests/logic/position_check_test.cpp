// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The check of positions, on candidates whose sets no longer say what the cells' flags say. No
// procedure of CandidateCube leaves them so, which is why its memory is changed here.

#include "logic/position_check.hpp"

#include <gtest/gtest.h>

#include <array>
#include <bit>

#include "tests/logic/candidates.hpp"

namespace sdk::test {
namespace {

/// What CandidateCube consists of.
struct Parts {
  Square<NineSet> digits;
  Square<std::uint8_t> values, counts;
  std::array<std::array<std::array<NineSet, 10>, 10>, 3> places;
  std::array<CellSet, 10> cells;
};

template <class Damage>
std::string fault_after(Damage damage) {
  auto parts = std::bit_cast<Parts>(open_cube());
  damage(parts);
  Position position;
  position.candidates = std::bit_cast<CandidateCube>(parts);
  return position_fault(position);
}

TEST(PositionCheck, FindsACellThatTheListOfItsDigitLacks) {
  EXPECT_EQ(fault_after([](Parts& parts) {
              parts.cells[3].erase(Cell{2, 4});
            }),
            "r2c4 disagrees with the cells of 3");
}

TEST(PositionCheck, FindsACellThatTheListOfADigitHasTooMuch) {
  EXPECT_EQ(fault_after([](Parts& parts) {
              parts.digits(9, 9).erase(9);
              parts.counts(9, 9) = 8;
            }),
            "r9c9 disagrees with the cells of 9");
}

TEST(PositionCheck, FindsAPlaceThatAUnitLacks) {
  EXPECT_EQ(fault_after([](Parts& parts) { parts.places[0][1][1].erase(1); }),
            "the places in row 1 differ");
  EXPECT_EQ(fault_after([](Parts& parts) { parts.places[1][9][9].erase(9); }),
            "the places in column 9 differ");
  EXPECT_EQ(fault_after([](Parts& parts) { parts.places[2][5][4].erase(7); }),
            "the places in box 5 differ");
}

TEST(PositionCheck, FindsNothingInSoundCandidates) {
  EXPECT_EQ(fault_after([](Parts&) {}), "");
}

}  // namespace
}  // namespace sdk::test
