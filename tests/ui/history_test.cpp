// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The kept steps of a game.

#include "ui/history.hpp"

#include <gtest/gtest.h>

namespace sdk::test {
namespace {

/// A game whose first cell holds that text.
GameState game_with(const std::string& text, Colour colour = colour::black) {
  GameState state;
  state.cells[1] = SavedCell({.text = text, .text_colour = colour});
  return state;
}

TEST(SavedCell, KeepsTextAndColours) {
  for (const char* text : {" ", "7", "x", ""}) {
    const DisplayCell cell{
        .text = text, .text_colour = colour::red, .back_colour = colour::from_file};
    EXPECT_EQ(SavedCell(cell).cell(), cell) << '"' << text << '"';
  }
  EXPECT_EQ(SavedCell().cell(), DisplayCell());
}

TEST(SavedCell, TellsAnEmptyTextFromABlankAndAZeroByte) {
  const SavedCell blank({.text = " "}), none({.text = ""}), zero({.text = std::string(1, '\0')});
  EXPECT_FALSE(blank.has_text_of(none));
  EXPECT_FALSE(none.has_text_of(zero));
  EXPECT_TRUE(none.has_text_of(none));
}

TEST(History, HasNoStepWhenAGameBegins) {
  History history;
  history.begin(game_with("1"));
  EXPECT_FALSE(history.can_undo());
  EXPECT_FALSE(history.can_redo());
}

TEST(History, KnowsNoStepWhileTheTextsStay) {
  History history;
  history.begin(game_with("1"));
  EXPECT_FALSE(history.note(game_with("1", colour::red)));
  EXPECT_FALSE(history.can_undo());
}

TEST(History, GoesBackAndForthBetweenTheStates) {
  History history;
  history.begin(game_with("1"));
  EXPECT_TRUE(history.note(game_with("2")));
  EXPECT_TRUE(history.note(game_with("3")));
  EXPECT_EQ(history.undo(), game_with("2"));
  EXPECT_EQ(history.undo(), game_with("1"));
  EXPECT_FALSE(history.can_undo());
  EXPECT_EQ(history.redo(), game_with("2"));
  EXPECT_EQ(history.redo(), game_with("3"));
  EXPECT_FALSE(history.can_redo());
}

TEST(History, BringsBackWhatElseChangedBeforeTheStep) {
  History history;
  history.begin(game_with("1"));
  history.note(game_with("1", colour::red));
  history.note(game_with("2"));
  history.note(game_with("2", colour::green));
  EXPECT_EQ(history.undo(), game_with("1", colour::red));
  EXPECT_EQ(history.redo(), game_with("2", colour::green));
}

TEST(History, LosesWhatWasUndoneWithANewStepOnly) {
  History history;
  history.begin(game_with("1"));
  history.note(game_with("2"));
  history.undo();
  history.note(game_with("1", colour::red));
  EXPECT_TRUE(history.can_redo());
  history.note(game_with("3"));
  EXPECT_FALSE(history.can_redo());
  EXPECT_EQ(history.undo(), game_with("1", colour::red));
}

TEST(History, ForgetsEverythingWhenAGameBegins) {
  History history;
  history.begin(game_with("1"));
  history.note(game_with("2"));
  history.note(game_with("3"));
  history.undo();
  history.begin(game_with("4"));
  EXPECT_FALSE(history.can_undo());
  EXPECT_FALSE(history.can_redo());
}

}  // namespace
}  // namespace sdk::test
