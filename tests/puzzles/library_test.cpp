// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The pick of a stored puzzle.

#include "puzzles/library.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "board/grid_text.hpp"
#include "puzzles/stock/transformer.hpp"
#include "tests/support/game.hpp"

namespace sdk::test {
namespace {

const LibraryEntry& entry(int number) {
  return BibliothequeGrilles[static_cast<std::size_t>(number - 1)];
}

int givens(const LibraryEntry& e) { return static_cast<int>(std::ranges::count(e.mask, '1')); }

class Picking : public testing::Test {
 protected:
  void pick(std::int16_t level) {
    globals.NiveauCourant = level;
    Choisir_Grille(w.resGrille, w.Masque);
  }

  /// The number of the entry that was picked.
  int picked() const {
    std::string mask;
    for (int r = 1; r <= 9; ++r)
      for (int c = 1; c <= 9; ++c) mask += w.Masque(r, c) ? '1' : '0';
    for (int n = 1; n <= 40; ++n)
      if (entry(n).mask == mask && entry(n).solution == digits_of(w.resGrille)) return n;
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
