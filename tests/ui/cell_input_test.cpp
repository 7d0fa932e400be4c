// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The keys of the puzzle grid.

#include <gtest/gtest.h>

#include "tests/support/game.hpp"
#include "ui/version.hpp"

namespace sdk::test {
namespace {

const char* const few_digits =
    "1........\n.........\n....b....\n.........\n.........\n.........\n.........\n.........\n"
    ".......78\n";

/// The complete grid without its last digit, a 5.
std::string all_but_the_last() {
  std::string grid = complete_grid;
  grid[grid.size() - 2] = '.';
  return grid;
}

class CellInput : public testing::Test {
 protected:
  CellInput() { w.ChaineSolution = joined(complete_grid); }

  void draw_and_select(std::string_view grid, int row, int column) {
    game.draw(grid);
    game.select(row, column);
    game.forget();
  }

  void type(int row, int column, char digit) {
    game.select(row, column);
    game.press(digit);
  }

  Game game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
};

// Typing

struct DigitKey {
  int code;
  char digit;
};

class DigitKeys : public CellInput, public testing::WithParamInterface<DigitKey> {};

TEST_P(DigitKeys, WriteTheirDigitGreenOnWhiteIntoTheCurrentCell) {
  draw_and_select(few_digits, 5, 4);
  w.set_focus(Control::Niveau);
  game.press(GetParam().code);
  EXPECT_EQ(game.cell(5, 4).text, std::string(1, GetParam().digit));
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::green), "r3c5 r5c4");
  EXPECT_EQ(game.cell(5, 4).back_colour, colour::white);
  EXPECT_EQ(w.Grille(5, 4), GetParam().digit - '0');
  EXPECT_EQ(w.GrilleInitiale(5, 4), GetParam().digit - '0');
  EXPECT_TRUE(w.GrilleValide);
  EXPECT_EQ(w.control(Control::Label).caption, " 5 indices");
  EXPECT_EQ(w.focus(), Control::MSF);
  EXPECT_EQ(w.MSF.selection(), (CellRange{4, 3, 4, 3}));
  EXPECT_TRUE(desktop.boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(TopRowAndKeypad, DigitKeys,
                         testing::Values(DigitKey{49, '1'}, DigitKey{50, '2'}, DigitKey{51, '3'},
                                         DigitKey{52, '4'}, DigitKey{53, '5'}, DigitKey{54, '6'},
                                         DigitKey{55, '7'}, DigitKey{56, '8'}, DigitKey{57, '9'},
                                         DigitKey{97, '1'}, DigitKey{98, '2'}, DigitKey{99, '3'},
                                         DigitKey{100, '4'}, DigitKey{101, '5'}, DigitKey{102, '6'},
                                         DigitKey{103, '7'}, DigitKey{104, '8'},
                                         DigitKey{105, '9'}),
                         [](const auto& test) { return "Code" + std::to_string(test.param.code); });

TEST_F(CellInput, EveryOtherKeyOnlyTakesTheFocusBack) {
  draw_and_select(few_digits, 5, 4);
  w.set_focus(Control::MSF);
  const std::string before = dump(w);
  for (int code = 0; code < 400; ++code) {
    const bool has_meaning = code == key::del || code == key::backspace ||
                             (code >= 49 && code <= 57) || (code >= 97 && code <= 105);
    if (has_meaning) continue;
    w.set_focus(Control::Check1);
    game.press(code);
    ASSERT_EQ(difference(before, dump(w)), "") << "code " << code;
    if (code != key::a && code != key::c) {
      game.press(code, true);
      ASSERT_EQ(difference(before, dump(w)), "") << "Ctrl and code " << code;
    }
  }
  EXPECT_TRUE(game.repaints.empty());
  EXPECT_TRUE(desktop.clipboard.empty());
}

TEST_F(CellInput, ReplacesTheDigitThatIsThere) {
  draw_and_select(few_digits, 3, 5);
  game.press('6');
  EXPECT_EQ(game.cell(3, 5).text, "6");
  EXPECT_EQ(w.control(Control::Label).caption, " 4 indices");
}

TEST_F(CellInput, WritesIntoTheCurrentCellWhateverIsSelectedWithIt) {
  game.draw(few_digits);
  w.MSF.select(5, 5, 3, 2);
  game.press('4');
  EXPECT_EQ(shown(w),
            "1........\n.........\n....2....\n.........\n.........\n.....4...\n.........\n"
            ".........\n.......78\n");
}

TEST_F(CellInput, OnAProtectedGivenChangesNothing) {
  draw_and_select(few_digits, 1, 1);
  w.set_focus(Control::MSF);
  w.maj_indices();
  w.MajCandidats();
  game.forget();
  const std::string before = dump(w);
  game.press('5');
  game.press(key::keypad_9);
  EXPECT_EQ(difference(before, dump(w)), "");
}

TEST_F(CellInput, OnAnUnprotectedGivenTurnsItIntoThePlayersCell) {
  draw_and_select(few_digits, 1, 1);
  w.check(Control::Check3, false);
  game.press('5');
  EXPECT_EQ(game.cell(1, 1).text, "5");
  EXPECT_EQ(game.cell(1, 1).back_colour, colour::white);
  EXPECT_EQ(game.cell(1, 1).text_colour, colour::green);
}

TEST_F(CellInput, AClashReddensTheTypedCell) {
  globals.GrilleOk = true;
  draw_and_select(few_digits, 1, 9);
  game.press('1');
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::red), "r1c9");
  EXPECT_FALSE(globals.GrilleOk);
  EXPECT_FALSE(w.GrilleValide);
  EXPECT_EQ(game.cell(1, 9).back_colour, colour::white);
}

TEST_F(CellInput, AClashElsewhereReddensTheTypedCell) {
  draw_and_select(few_digits, 1, 9);
  game.press('1');
  type(6, 6, '3');
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::red), "r1c9 r6c6");
}

TEST_F(CellInput, AWrongDigitStaysGreenWithoutVerification) {
  draw_and_select(few_digits, 5, 4);
  game.press('5');  // the solution has an 8
  EXPECT_EQ(game.cell(5, 4).text_colour, colour::green);
}

TEST_F(CellInput, AWrongDigitTurnsRedAndARightOneGreenWithVerification) {
  w.check(Control::Check1, true);
  draw_and_select(few_digits, 5, 4);
  game.press('5');
  EXPECT_EQ(game.cell(5, 4).text_colour, colour::red);
  game.press('8');
  EXPECT_EQ(game.cell(5, 4).text_colour, colour::green);
  type(1, 2, '3');
  EXPECT_EQ(game.cell(1, 2).text_colour, colour::red);
  type(1, 2, '2');
  EXPECT_EQ(game.cell(1, 2).text_colour, colour::green);
}

TEST_F(CellInput, VerificationSaysNothingWhileThereIsAClash) {
  w.check(Control::Check1, true);
  draw_and_select(few_digits, 1, 9);
  game.press('1');
  type(5, 4, '8');
  EXPECT_EQ(game.cell(5, 4).text_colour, colour::red) << "for the clash, though it is right";
}

TEST_F(CellInput, VerificationAloneFindsADigitWrong) {
  draw_and_select(few_digits, 1, 9);
  game.press('1');
  EXPECT_FALSE(game.cell(1, 9).is_wrong()) << "it clashes, nothing was compared";
  game.press('4');
  w.check(Control::Check1, true);
  game.press('4');
  EXPECT_TRUE(game.cell(1, 9).is_wrong());
  game.press(key::del);
  EXPECT_FALSE(game.cell(1, 9).wrong);
}

TEST_F(CellInput, VerificationWithoutASolutionReddensEveryDigit) {
  w.check(Control::Check1, true);
  w.ChaineSolution = "";
  draw_and_select(few_digits, 5, 4);
  game.press('8');
  EXPECT_EQ(game.cell(5, 4).text_colour, colour::red);
}

TEST_F(CellInput, TheLastDigitOfACorrectGridAnnouncesCompletionInFrenchAndEnglish) {
  draw_and_select(all_but_the_last(), 9, 9);
  game.press('5');
  EXPECT_EQ(desktop.boxes,
            (std::vector{Box{"Grille terminée!!", Icon::exclamation, Buttons::ok, program_title}}));
  w.preview_key(key::f1);
  draw_and_select(all_but_the_last(), 9, 9);
  game.press('5');
  EXPECT_EQ(
      desktop.boxes,
      (std::vector{Box{"Puzzle completed!! ", Icon::exclamation, Buttons::ok, program_title}}));
}

TEST_F(CellInput, TheLastDigitWithAClashIsCalledImpossible) {
  draw_and_select(all_but_the_last(), 9, 9);
  game.press('4');
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::impossible, Icon::exclamation)});
  EXPECT_EQ(game.cell(9, 9).text, "4");
}

TEST_F(CellInput, ARefusedDigitOnAFullGridRepeatsTheCompletionBox) {
  draw_and_select(all_but_the_last(), 9, 9);
  game.press('5');
  game.select(1, 1);
  game.forget();
  game.press('7');
  EXPECT_EQ(game.cell(1, 1).text, "1");
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::completed, Icon::exclamation)});
}

// Erasing

class Erasing : public CellInput, public testing::WithParamInterface<int> {};

TEST_P(Erasing, EmptiesThePlayersCellsOfTheSelectionAndKeepsColours) {
  game.draw(
      "1b.......\n.c3......\n.........\n.........\n.........\n.........\n.........\n"
      ".........\n........i\n");
  w.MSF.select(1, 2, 0, 0);
  w.set_focus(Control::Check2);
  game.forget();
  game.press(GetParam());
  EXPECT_EQ(shown(w),
            "1........\n..3......\n.........\n.........\n.........\n.........\n.........\n"
            ".........\n........9\n");
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::green), "r1c2 r2c2 r9c9");
  EXPECT_EQ(w.control(Control::Label).caption, " 3 indices");
  EXPECT_EQ(w.focus(), Control::MSF);
  EXPECT_EQ(game.msf.times_hidden, 1);
  EXPECT_EQ(game.msf.changes_while_visible, 0);
  EXPECT_TRUE(w.MSF.visible());
}

TEST_P(Erasing, MovesTheCurrentCellToTheLastOfTheSelection) {
  game.draw(few_digits);
  w.MSF.select(5, 4, 2, 3);
  game.press(GetParam());
  EXPECT_EQ(w.MSF.selection(), (CellRange{5, 4, 5, 4}));
}

TEST_P(Erasing, OfGivensNeedsThemUnprotectedAndKeepsTheirColour) {
  draw_and_select(few_digits, 1, 1);
  game.press(GetParam());
  EXPECT_EQ(game.cell(1, 1).text, "1");
  w.check(Control::Check3, false);
  game.press(GetParam());
  EXPECT_EQ(game.cell(1, 1).text, " ");
  EXPECT_EQ(game.cell(1, 1).back_colour, colour::level[1]);
  w.check(Control::Check3, true);
  game.press('4');
  EXPECT_EQ(game.cell(1, 1).text, " ") << "the coloured cell is protected again";
}

TEST_P(Erasing, LeavesTheIntegerGrids) {
  draw_and_select(few_digits, 3, 5);
  w.Lire_Grille_Initiale(0, 0);
  game.press(GetParam());
  EXPECT_EQ(game.cell(3, 5).text, " ");
  EXPECT_EQ(w.Grille(3, 5), 2);
}

INSTANTIATE_TEST_SUITE_P(DeleteAndBackspace, Erasing, testing::Values(46, 8), [](const auto& test) {
  return test.param == 46 ? "Delete" : "Backspace";
});

// Copying

TEST_F(CellInput, CtrlCCopiesWholeRowsOfTheSelection) {
  game.draw(
      "1b.......\n.........\n?........\n.........\n.........\n.........\n.........\n"
      ".........\n........9\n");
  w.MSF.select(2, 5, 0, 4);
  game.forget();
  const std::string before = dump(w);
  game.press(67, true);
  EXPECT_EQ(desktop.clipboard, Lines{"1\t2\t \t \t \t \t \t \t \r\n"
                                     " \t \t \t \t \t \t \t \t \r\n"
                                     "\t \t \t \t \t \t \t \t \r\n"});
  EXPECT_EQ(difference(before, dump(w)), "");
  EXPECT_TRUE(game.repaints.empty());
}

TEST_F(CellInput, CtrlCWithOneCellCopiesItsRow) {
  draw_and_select(few_digits, 9, 2);
  game.press(67, true);
  EXPECT_EQ(desktop.clipboard, Lines{" \t \t \t \t \t \t \t7\t8\r\n"});
}

TEST_F(CellInput, CtrlASelectsTheWholeGridAndEmptiesTheClipboard) {
  draw_and_select(few_digits, 4, 4);
  globals.GrilleOk = true;
  const std::string before = shown(w);
  game.press(65, true);
  EXPECT_FALSE(globals.GrilleOk);
  EXPECT_EQ(w.MSF.selection(), (CellRange{0, 0, 8, 8}));
  EXPECT_EQ(w.MSF.current_row(), 0);
  EXPECT_EQ(w.MSF.current_column(), 0);
  EXPECT_EQ(desktop.clipboard, Lines{""});
  EXPECT_EQ(shown(w), before);
  EXPECT_EQ(w.focus(), Control::MSF);
}

TEST_F(CellInput, CtrlAThenCtrlCCopiesEverything) {
  game.draw(complete_grid);
  game.press(65, true);
  game.press(67, true);
  EXPECT_EQ(desktop.clipboard.back().size(), 9u * (9 + 8 + 2));
  EXPECT_EQ(desktop.clipboard.back().substr(0, 19), "1\t2\t3\t4\t5\t6\t7\t8\t9\r\n");
}

TEST_F(CellInput, CtrlAThenDeleteErasesAllThatIsNotProtected) {
  game.draw(
      "1b.......\n.........\n.........\n.........\n....e....\n.........\n.........\n"
      ".........\n........i\n");
  game.press(65, true);
  game.press(46);
  EXPECT_EQ(joined(shown(w)), "1" + std::string(80, '.'));
}

}  // namespace
}  // namespace sdk::test
