// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The forty stored puzzles and the pick of one of them.

#include "puzzles/library.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "puzzles/stock/transformer.hpp"
#include "tests/support/game.hpp"
#include "tests/support/solution_counter.hpp"

namespace sdk::test {
namespace {

const LibraryEntry& entry(int number) {
  return BibliothequeGrilles[static_cast<std::size_t>(number - 1)];
}

int givens(const LibraryEntry& e) { return static_cast<int>(std::ranges::count(e.mask, '1')); }

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
  EXPECT_EQ(givens(entry(GetParam())), expected[GetParam() - 1]);
}

TEST_P(Entries, LeaveOneSolutionButEntry33) {
  const LibraryEntry& e = entry(GetParam());
  std::string puzzle(e.solution);
  for (std::size_t k = 0; k < 81; ++k)
    if (e.mask[k] == '0') puzzle[k] = '.';
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

class Picking : public testing::Test {
 protected:
  void pick(std::int16_t level) {
    globals.NiveauCourant = level;
    Choisir_Grille(w.resGrille, w.Masque);
  }

  /// The number of the entry that was picked.
  int picked() const {
    std::string mask, solution;
    for (int r = 1; r <= 9; ++r)
      for (int c = 1; c <= 9; ++c) {
        mask += w.Masque(r, c) ? '1' : '0';
        solution += static_cast<char>('0' + w.resGrille(r, c));
      }
    for (int n = 1; n <= 40; ++n)
      if (entry(n).mask == mask && entry(n).solution == solution) return n;
    return 0;
  }

  Game game;
  MainWindow& w = game.window;
};

TEST_F(Picking, DrawsEachOfTheEightEntriesOfALevelEquallyOftenAndNoOther) {
  constexpr int picks = 4000;
  for (std::int16_t level = 0; level <= 4; ++level) {
    std::map<int, int> times;
    for (int i = 0; i < picks; ++i) {
      pick(level);
      ++times[picked()];
    }
    EXPECT_EQ(times.size(), 8u);
    for (const auto& [number, count] : times) {
      EXPECT_GE(number, 8 * level + 1);
      EXPECT_LE(number, 8 * level + 8);
      EXPECT_NEAR(count, picks / 8, 105) << "entry " << number;  // 5 standard deviations
    }
  }
}

TEST_F(Picking, TakesTheEntryThatTheFirstDrawNames) {
  for (std::uint32_t seed = 0; seed < 50; ++seed) {
    game.desktop.next_seed = seed;
    Random random;
    random.reseed(seed);
    pick(2);
    EXPECT_EQ(picked(), static_cast<int>(8 * random.draw() + 17));
    EXPECT_EQ(generator.draw(), random.draw()) << "one draw a pick";
  }
}

TEST_F(Picking, ReseedsEveryTime) {
  const std::uint32_t seed = game.desktop.next_seed;
  pick(1);
  pick(1);
  EXPECT_EQ(game.desktop.next_seed, seed + 2);
}

TEST_F(Picking, ShowsTheNumberOfGivens) {
  for (std::int16_t level = 0; level <= 4; ++level)
    for (int i = 0; i < 30; ++i) {
      pick(level);
      EXPECT_EQ(w.control(Control::Label).caption,
                " " + std::to_string(givens(entry(picked()))) + " indices");
    }
}

TEST_F(Picking, OnLevel4ShowsSeventeenGivensButForEntry40) {
  for (int i = 0; i < 100; ++i) {
    pick(4);
    EXPECT_EQ(w.control(Control::Label).caption, picked() == 40 ? " 21 indices" : " 17 indices");
  }
}

TEST_F(Picking, WritesTrueAsMinusOne) {
  pick(0);
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) EXPECT_EQ(w.Masque(r, c).bits(), w.Masque(r, c) ? -1 : 0);
}

TEST_F(Picking, FailsOutsideTheFiveLevels) {
  for (const std::int16_t level : {-1, 5, 100}) EXPECT_THROW(pick(level), std::out_of_range);
}

TEST_F(Picking, ForANewPuzzleIsFollowedByTheTransformerOnTheSameGenerator) {
  globals.NiveauCourant = 3;
  game.desktop.next_seed = 77;
  Choisir_Grille(w.resGrille, w.Masque);
  Transformer_Grille(generator, w.resGrille, w.Masque);
  const auto solution = w.resGrille;
  const auto mask = w.Masque;
  game.desktop.next_seed = 77;
  Nouvelle_Grille(w.resGrille, w.Masque);
  EXPECT_EQ(w.resGrille, solution);
  EXPECT_EQ(w.Masque, mask);
  EXPECT_EQ(game.desktop.next_seed, 78u);
}

}  // namespace
}  // namespace sdk::test
