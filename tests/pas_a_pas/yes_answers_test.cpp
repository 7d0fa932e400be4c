// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// One Yes after another, from the first question to the last.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

#include "tests/pas_a_pas/hint_game.hpp"

namespace sdk::test {
namespace {

class YesAnswers : public testing::Test {
 protected:
  YesAnswers() { game.draw(library_puzzle(39)); }

  HintGame game;
};

TEST_F(YesAnswers, SixtyFourPlacementsDoNotDeepenTheStack) {
  std::vector<std::uintptr_t> depths;
  game.desktop.at_box = [&](const Box& box) {
    if (box.buttons == Buttons::yes_no)
      depths.push_back(reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)));
  };
  game.desktop.answers.assign(64, Answer::yes);
  game.hint();
  ASSERT_EQ(depths.size(), 64u);
  const auto [lowest, highest] = std::ranges::minmax(depths);
  // A naked and a hidden single are offered through different procedures; 63 nested runs would
  // take far more.
  EXPECT_LT(highest - lowest, 1000u);
}

TEST_F(YesAnswers, TheQuestionsAreThoseOfOneHintAfterAnother) {
  game.desktop.answers.assign(64, Answer::yes);
  game.hint();
  const Lines in_one_go = game.questions();
  ASSERT_EQ(in_one_go.size(), 64u);

  game.draw(library_puzzle(39));
  for (int hint = 0; hint < 64; ++hint) {
    game.desktop.answers = {Answer::yes, Answer::no};
    game.hint();
  }
  Lines one_by_one;  // every second question repeats at the next hint; the last has no second
  const Lines all = game.questions();
  for (std::size_t i = 0; i < all.size(); i += 2) one_by_one.push_back(all[i]);
  EXPECT_EQ(one_by_one, in_one_go);
}

TEST_F(YesAnswers, OneQuestionComesForEachPlacementAndTheEndIsToldOnce) {
  game.desktop.answers.assign(64, Answer::yes);
  game.hint();
  EXPECT_EQ(game.questions().size(), 64u);
  EXPECT_EQ(game.desktop.boxes.size(), 66u);
  EXPECT_EQ(std::ranges::count(game.events, "completed"), 1);
  EXPECT_EQ(game.window.control(Control::Label).caption, " 81 indices");
}

TEST_F(YesAnswers, ANoAfterSomeYesEndsTheHint) {
  game.desktop.answers = {Answer::yes, Answer::yes, Answer::no};
  game.hint();
  EXPECT_EQ(game.questions().size(), 3u);
  EXPECT_EQ(game.desktop.boxes.size(), 3u);
  EXPECT_EQ(game.window.control(Control::Label).caption, " 19 indices");
}

}  // namespace
}  // namespace sdk::test
