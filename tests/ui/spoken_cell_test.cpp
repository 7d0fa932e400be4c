// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What a screen reader says of the cells.

#include "ui/spoken_cell.hpp"

#include <gtest/gtest.h>

#include "logic/deduction.hpp"

namespace sdk::test {
namespace {

class SpokenCell : public testing::Test {
 protected:
  /// The cell in the middle of the grid, as if the core had written it.
  std::string spoken(const std::string& text, Colour text_colour, Colour back_colour,
                     Mark mark = Mark::none) {
    grid.make_current(4, 4);
    grid.set_text(text);
    grid.set_verdict(text_colour);
    grid.set_back_colour(back_colour);
    grid.set_mark(static_cast<int>(mark));
    return spoken_cell(grid, 4, 4, "En");
  }

  DisplayGrid grid;
};

constexpr Colour yellow = colour::level[1];
const std::string candidates = " 1  .  . \r .  5  . \r .  .  9 ";

TEST_F(SpokenCell, TellsItsPlaceCountedFromOne) {
  EXPECT_EQ(spoken_cell(grid, 0, 8, "En"), "row 1, column 9: empty");
  EXPECT_EQ(spoken_cell(grid, 8, 0, "Fr"), "ligne 9, colonne 1: vide");
}

TEST_F(SpokenCell, TellsADigitOfThePlayersAlone) {
  EXPECT_EQ(spoken("7", colour::green, colour::white), "row 5, column 5: 7");
  EXPECT_EQ(spoken("7", colour::black, colour::white), "row 5, column 5: 7");
}

TEST_F(SpokenCell, TellsAGivenOfEveryLevelAndOfAFile) {
  for (const Colour back : colour::level)
    EXPECT_EQ(spoken("7", colour::black, back), "row 5, column 5: 7, given");
  EXPECT_EQ(spoken("7", colour::black, colour::from_file), "row 5, column 5: 7, given");
}

TEST_F(SpokenCell, TellsAWrongDigit) {
  EXPECT_EQ(spoken("7", colour::red, colour::white), "row 5, column 5: 7, wrong");
  EXPECT_EQ(spoken("7", colour::red, yellow), "row 5, column 5: 7, wrong, given");
}

TEST_F(SpokenCell, TellsNothingWrongOfAnEmptyCell) {
  EXPECT_EQ(spoken(" ", colour::red, colour::white), "row 5, column 5: empty");
  EXPECT_EQ(spoken("", colour::red, colour::white), "row 5, column 5: empty");
}

TEST_F(SpokenCell, TellsThatAnErasedGivenIsStillProtected) {
  EXPECT_EQ(spoken(" ", colour::black, yellow), "row 5, column 5: empty, given");
}

TEST_F(SpokenCell, TellsOtherCharactersOfAFileAsTheyAre) {
  EXPECT_EQ(spoken("\xE9", colour::black, colour::from_file), "row 5, column 5: é, given");
  EXPECT_EQ(spoken(".", colour::black, colour::from_file), "row 5, column 5: ., given");
}

TEST_F(SpokenCell, TellsCandidatesAsDigits) {
  EXPECT_EQ(spoken(candidates, colour::black, colour::white), "row 5, column 5: 1 5 9");
  EXPECT_EQ(spoken(" .  . \r . ", colour::black, colour::white), "row 5, column 5: empty");
}

TEST_F(SpokenCell, TellsWhatAHintMarked) {
  EXPECT_EQ(spoken(candidates, colour::black, 0xFF00FF, Mark::removed),
            "row 5, column 5: 1 5 9, loses a candidate");
  EXPECT_EQ(spoken(candidates, colour::green, 0xC0FFC0, Mark::support),
            "row 5, column 5: 1 5 9, supports the hint");
  EXPECT_EQ(spoken(candidates, colour::black, 0x00FFFF, Mark::second),
            "row 5, column 5: 1 5 9, second role");
}

TEST_F(SpokenCell, TellsThatNoDigitIsLeft) {
  EXPECT_EQ(spoken(" .  . \r . ", colour::black, 0xFF00FF, Mark::removed),
            "row 5, column 5: empty, no digit is left");
}

TEST_F(SpokenCell, TellsAPlacedValueFromAnOnlyCandidate) {
  EXPECT_EQ(spoken("5", colour::black, 0xE0E0E0, Mark::value), "row 5, column 5: 5, placed");
  EXPECT_EQ(spoken(" . \r 5 ", colour::black, 0xE0E0E0, Mark::value), "row 5, column 5: 5");
}

TEST_F(SpokenCell, SpeaksFrench) {
  spoken("7", colour::red, yellow);
  EXPECT_EQ(spoken_cell(grid, 4, 4, "Fr"), "ligne 5, colonne 5: 7, faux, donné");
}

TEST_F(SpokenCell, TellsWhatClashesInThePuzzleAlone) {
  spoken("7", colour::black, yellow);
  grid.set_text(4, 0, "7");
  EXPECT_EQ(spoken_puzzle_cell(grid, 4, 4, "En"), "row 5, column 5: 7, clashes, given");
  EXPECT_EQ(spoken_puzzle_cell(grid, 4, 0, "Fr"), "ligne 5, colonne 1: 7, en conflit");
  EXPECT_EQ(spoken_cell(grid, 4, 4, "En"), "row 5, column 5: 7, given");
  grid.set_text(4, 0, "8");
  EXPECT_EQ(spoken_puzzle_cell(grid, 4, 4, "En"), "row 5, column 5: 7, given");
}

TEST_F(SpokenCell, TellsRedAsWrongWhileItClashes) {
  spoken("7", colour::green, colour::white);
  grid.set_text_colour(colour::red);
  grid.set_text(4, 0, "7");
  EXPECT_EQ(spoken_puzzle_cell(grid, 4, 4, "En"), "row 5, column 5: 7, wrong");
  grid.set_text(4, 0, "8");
  EXPECT_EQ(spoken_puzzle_cell(grid, 4, 4, "En"), "row 5, column 5: 7");
}

/// The cell in the middle of a step's drawing.
std::string spoken(const PictureCell& cell, std::string_view language = "En") {
  return spoken_cell(cell, 4, 4, language);
}

TEST(SpokenStep, TellsValuesAndCandidates) {
  EXPECT_EQ(spoken({.value = 7}), "row 5, column 5: 7");
  EXPECT_EQ(spoken({.candidates = {3, 8}}), "row 5, column 5: 3 8");
  EXPECT_EQ(spoken({}), "row 5, column 5: empty");
}

TEST(SpokenStep, TellsWhatTheCellLosesAndDoes) {
  const PictureCell cell{.candidates = {3, 8}, .mark = Mark::support, .removed = {3}};
  EXPECT_EQ(spoken_cell(cell, 0, 1, "En"), "row 1, column 2: 3 8, loses 3, supports the hint");
  EXPECT_EQ(spoken_cell(cell, 0, 1, "Fr"), "ligne 1, colonne 2: 3 8, perd 3, appui");
}

TEST(SpokenStep, TellsALossOnce) {
  EXPECT_EQ(spoken({.candidates = {1, 3, 8}, .mark = Mark::removed, .removed = {1, 8}}),
            "row 5, column 5: 1 3 8, loses 1 8");
}

TEST(SpokenStep, TellsBoldDigitsUnlessAllAre) {
  EXPECT_EQ(spoken({.candidates = {3, 5, 8}, .mark = Mark::second, .pattern = {5}}),
            "row 5, column 5: 3 5 8, second role, bold 5");
  EXPECT_EQ(spoken({.candidates = {3, 8}, .mark = Mark::second, .pattern = {3, 8}}, "Fr"),
            "ligne 5, colonne 5: 3 8, second rôle");
}

TEST(SpokenStep, TellsADeadCell) {
  EXPECT_EQ(spoken({.mark = Mark::removed}), "row 5, column 5: empty, no digit is left");
}

}  // namespace
}  // namespace sdk::test
