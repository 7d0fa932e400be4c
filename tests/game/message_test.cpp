// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The entries of the message table by their names.

#include "game/message.hpp"

#include <gtest/gtest.h>

#include "tests/support/game.hpp"

namespace sdk::test {
namespace {

TEST(Message, IsTheNumberOfAnEntry) {
  EXPECT_EQ(place_of(Message::new_puzzle), 0u);
  EXPECT_EQ(place_of(Message::show_bad_values), 9u);
  EXPECT_EQ(place_of(Message::credit), 15u);
  EXPECT_EQ(place_of(Message::search_stopped), 23u);
  EXPECT_EQ(place_of(Message::picture_credit), 30u);
  EXPECT_EQ(place_of(Message::hidden_single), 34u);
}

TEST(Message, IsReadInTheCurrentLanguage) {
  Game game;
  EXPECT_EQ(text_of(Message::new_puzzle), "Nouvelle grille");
  EXPECT_EQ(text_of(Message::impossible), "Grille impossible à résoudre");
  game.window.preview_key(key::f1);
  EXPECT_EQ(text_of(Message::impossible), "Impossible to solve this puzzle");
  EXPECT_EQ(text_of(Message::naked_single), "Naked single L");
}

TEST(LevelName, IsThatOfTheLevelInTheCurrentLanguage) {
  Game game;
  game.window.preview_key(key::f1);
  const char* const names[] = {"Newbie", "Easy", "Average", "Hard", "Diabolic"};
  for (std::int16_t level = 0; level <= 4; ++level) EXPECT_EQ(level_name(level), names[level]);
  game.window.preview_key(key::f2);
  EXPECT_EQ(level_name(0), "Débutant");
}

}  // namespace
}  // namespace sdk::test
