// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Saving the grid as a puzzle file.

#include "files/puzzle_file.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/game.hpp"

namespace sdk::test {
namespace {

const char* const empty_line = " . . . . . . . . .\r\n";

class PuzzleFile : public testing::Test {
 protected:
  PuzzleFile() : path((desktop.data_folder() / "grille.sdk").string()) {}

  std::string saved(std::string_view grid) {
    game.draw(grid);
    Save_Grille(path);
    return bytes_of(path);
  }

  Game game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
  std::string path;
};

std::string repeated(const std::string& text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

TEST_F(PuzzleFile, OfAnEmptyGridIsNineLinesOfNineDots) {
  EXPECT_EQ(saved(".........\n.........\n.........\n.........\n.........\n.........\n.........\n"
                  ".........\n.........\n"),
            repeated(empty_line, 9));
  EXPECT_EQ(w.ChaineGrille, std::string(81, ' '));
}

TEST_F(PuzzleFile, HoldsGivensAndThePlayersDigitsAlike) {
  EXPECT_EQ(saved("5.c......\n.........\n.........\n.........\n.........\n.........\n.........\n"
                  ".........\n........i\n"),
            " 5 . 3 . . . . . .\r\n" + repeated(empty_line, 7) + " . . . . . . . . 9\r\n");
  EXPECT_EQ(w.ChaineGrille, "5 3" + std::string(77, ' ') + "9");
}

TEST_F(PuzzleFile, HoldsZerosAsEmptyCells) {
  game.draw(complete_grid);
  w.MSF.set_text(0, 1, "0");
  Save_Grille(path);
  EXPECT_EQ(bytes_of(path).substr(0, 20), " 1 . 3 4 5 6 7 8 9\r\n");
  EXPECT_EQ(w.ChaineGrille.substr(0, 3), "1 3");
}

TEST_F(PuzzleFile, HoldsOtherCharactersAsTheyAre) {
  EXPECT_EQ(saved("#........\n.........\n.........\n.........\n.........\n.........\n.........\n"
                  ".........\n.........\n"),
            " # . . . . . . . .\r\n" + repeated(empty_line, 8));
}

TEST_F(PuzzleFile, WithCellsOfEmptyTextEndsInBlanks) {
  EXPECT_EQ(saved("12.......\n.........\n.........\n.........\n.........\n.........\n.........\n"
                  ".........\n?......??\n"),
            " 1 2 . . . . . . .\r\n" + repeated(empty_line, 7) + " . . . . . .      \r\n");
  EXPECT_EQ(w.ChaineGrille.size(), 78u);
}

TEST_F(PuzzleFile, ReplacesWhatTheFileHeld) {
  write_file(path, std::string(5000, 'x'));
  EXPECT_EQ(saved(complete_grid).size(), 9u * 20);
}

TEST_F(PuzzleFile, ThatCannotBeWrittenIsARuntimeErrorNamingTheFile) {
  const std::string nowhere = (desktop.data_folder() / "missing" / "a.sdk").string();
  try {
    Save_Grille(nowhere);
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.object(), nowhere);
    EXPECT_EQ(std::string(error.what()), nowhere + ": No such file or directory");
  }
}

TEST_F(PuzzleFile, OnAFullDiskIsARuntimeError) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "needs /dev/full";
  EXPECT_THROW(Save_Grille("/dev/full"), RuntimeError);
}

TEST_F(PuzzleFile, IsSavedWhereTheDialogSays) {
  game.draw(complete_grid);
  desktop.chosen = {path};
  globals.ResolutionSilencieuse = true;
  w.click(Control::sauve);
  EXPECT_EQ(bytes_of(path).substr(0, 20), " 1 2 3 4 5 6 7 8 9\r\n");
  EXPECT_EQ(desktop.filters, Lines{"Sudoku files (.sdk)|*.sdk|"});
  EXPECT_FALSE(globals.ResolutionSilencieuse);
}

TEST_F(PuzzleFile, IsOfferedWithTheSameFilterInEnglish) {
  w.preview_key(key::f1);
  w.click(Control::sauve);
  EXPECT_EQ(desktop.filters, Lines{"Sudoku files (.sdk)|*.sdk|"});
}

TEST_F(PuzzleFile, IsNotWrittenWhenTheDialogWasCancelled) {
  globals.ResolutionSilencieuse = true;
  const std::string before = dump(w);
  w.click(Control::sauve);
  EXPECT_EQ(difference(before, dump(w)), "");
  EXPECT_EQ(desktop.filters.size(), 1u);
}

TEST_F(PuzzleFile, ThatCannotBeSavedEndsTheProgramWithTheGridElsewhere) {
  game.draw(complete_grid);
  desktop.chosen = {(desktop.data_folder() / "missing" / "a.sdk").string()};
  EXPECT_THROW(w.click(Control::sauve), ProgramEnd);
  EXPECT_EQ(desktop.rescued_file().substr(0, 20), " 1 2 3 4 5 6 7 8 9\r\n");
}

}  // namespace
}  // namespace sdk::test
