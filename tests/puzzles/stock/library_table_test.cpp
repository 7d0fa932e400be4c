// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The forty stored puzzles.

#include "puzzles/stock/library_table.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <set>

#include "puzzles/stock/entry_text.hpp"
#include "tests/support/solution_counter.hpp"

namespace sdk::test {
namespace {

const LibraryEntry& entry(int number) {
  return BibliothequeGrilles[static_cast<std::size_t>(number - 1)];
}

class Entries : public testing::TestWithParam<int> {};

TEST_P(Entries, Hold81CharactersOfEach) {
  const LibraryEntry& e = entry(GetParam());
  EXPECT_EQ(e.mask.size(), 81u);
  EXPECT_EQ(e.solution.size(), 81u);
  EXPECT_EQ(e.mask.find_first_not_of("01"), std::string_view::npos);
  EXPECT_EQ(e.solution.find_first_not_of("123456789"), std::string_view::npos);
}

TEST_P(Entries, HoldAValidSolution) {
  EXPECT_EQ(solution_count(entry(GetParam()).solution, 2), 1);
  std::set<std::string> seen;
  for (std::size_t k = 0; k < 81; ++k) {
    const std::string digit(1, entry(GetParam()).solution[k]);
    seen.insert(digit + "r" + std::to_string(k / 9));
    seen.insert(digit + "c" + std::to_string(k % 9));
    seen.insert(digit + "b" + std::to_string(k / 27 * 3 + k % 9 / 3));
  }
  EXPECT_EQ(seen.size(), 243u);
}

TEST_P(Entries, HoldAsManyGivensAsTheirLevelHas) {
  static constexpr int expected[40] = {34, 35, 35, 35, 36, 38, 37, 30, 30, 32, 28, 31, 32, 32,
                                       29, 32, 28, 27, 26, 26, 27, 26, 29, 28, 25, 25, 26, 26,
                                       26, 23, 27, 28, 17, 17, 17, 17, 17, 17, 17, 21};
  EXPECT_EQ(std::ranges::count(entry(GetParam()).mask, '1'), expected[GetParam() - 1]);
}

TEST_P(Entries, LeaveOneSolutionButEntry33) {
  const std::string puzzle = puzzle_text(entry(GetParam()));
  if (GetParam() == 33)
    EXPECT_EQ(solution_count(puzzle, 100), 100);
  else
    EXPECT_EQ(solution_count(puzzle, 2), 1);
}

INSTANTIATE_TEST_SUITE_P(Library, Entries, testing::Range(1, 41));

/// Keeps the forty puzzles from being changed by accident: sums over all of their characters.
TEST(Library, IsAsItWasWritten) {
  std::uint64_t sum = 14695981039346656037u;
  for (const LibraryEntry& e : BibliothequeGrilles)
    for (const char c : std::string(e.mask) + std::string(e.solution))
      sum = (sum ^ static_cast<unsigned char>(c)) * 1099511628211u;
  EXPECT_EQ(sum, 4666454033854687090u);
}

}  // namespace
}  // namespace sdk::test
