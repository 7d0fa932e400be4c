// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The open button.

#include <gtest/gtest.h>

#include "tests/support/game.hpp"
#include "tests/support/machine.hpp"
#include "ui/state_check.hpp"
#include "ui/version.hpp"

namespace sdk::test {
namespace {

namespace fs = std::filesystem;

/// Two equal digits in a column, and no digit for the last cell.
constexpr const char* impossible =
    "987654321\n135927468\n642138579\n426571983\n793482156\n518396742\n371865294\n269743815\n"
    "85421973.\n";

class Opening : public testing::Test {
 protected:
  /// Presses the open button, chooses a file of these bytes.
  void open(std::string_view bytes) {
    write_file(file, bytes);
    game.forget();
    desktop.chosen = {file.string()};
    w.click(Control::Command6);
  }

  int status_of_opening(const std::string& name) {
    desktop.chosen = {name};
    try {
      w.click(Control::Command6);
    } catch (const ProgramEnd& end) {
      return end.status;
    }
    return -1;
  }

  KeptFolder kept;
  ScratchFolder folder;
  const fs::path file = folder / "my puzzle.sdk";
  Game game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
};

TEST_F(Opening, AsksForAPuzzleFile) {
  w.click(Control::Command6);
  EXPECT_EQ(desktop.filters, Lines{"Sudoku files (.sdk)|*.sdk|"});
}

TEST_F(Opening, ThatIsCancelledChangesNothing) {
  w.set_visible(Control::Command8, false);
  const std::string before = dump(w);
  w.click(Control::Command6);
  EXPECT_EQ(difference(before, dump(w)), "");
  EXPECT_TRUE(desktop.pointers.empty());
}

TEST_F(Opening, ShowsThePuzzleGreyWithoutItsSolution) {
  open(puzzle);
  EXPECT_EQ(shown(w), puzzle);
  EXPECT_EQ(w.title(), file.string());
  EXPECT_EQ(w.control(Control::Label).caption, " 77 indices");
  EXPECT_EQ(globals.CouleurDonnees, colour::from_file);
  EXPECT_EQ(cells_with_back_colour(w.MSF, colour::white), "r2c2 r8c8 r9c1 r9c9");
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::black), all_cells());
  EXPECT_TRUE(desktop.boxes.empty());
  EXPECT_EQ(state_fault(w), "");
}

TEST_F(Opening, LeavesTheSolutionInChaineSolution) {
  open(puzzle);
  EXPECT_EQ(w.ChaineSolution, solution);
  EXPECT_TRUE(globals.GrilleOk);
  EXPECT_FALSE(globals.ResolutionSilencieuse);
  w.check(Control::Check1, true);
  game.select(2, 2);
  game.press('4');
  EXPECT_EQ(game.cell(2, 2).text_colour, colour::red);
  game.press('3');
  EXPECT_EQ(game.cell(2, 2).text_colour, colour::green);
}

TEST_F(Opening, ShowsTheHourglassUntilItIsDone) {
  open(puzzle);
  ASSERT_FALSE(desktop.pointers.empty());
  EXPECT_EQ(desktop.pointers.front(), Pointer::hourglass);
  EXPECT_EQ(desktop.pointers.back(), Pointer::arrow);
}

TEST_F(Opening, BringsTheHintButtonBack) {
  w.check(Control::Check3, false);
  w.click(Control::Command2);
  ASSERT_FALSE(w.visible(Control::Command8));
  open(puzzle);
  EXPECT_TRUE(w.visible(Control::Command8));
}

TEST_F(Opening, ComputesTheCandidates) {
  open(puzzle);
  EXPECT_EQ(w.MSR.text(0, 0), "9");
  EXPECT_EQ(w.MSR.text(1, 1).find('3') != std::string::npos, true);
}

TEST_F(Opening, IsForgottenByTheNextNewPuzzle) {
  open(puzzle);
  w.click(Control::Command1);
  EXPECT_EQ(w.title(), globals.TitreFenetre);
  EXPECT_EQ(globals.CouleurDonnees, colour::level[1]);
}

TEST_F(Opening, AnUnsolvablePuzzleKeepsTheOldSolution) {
  const std::string old = w.ChaineSolution;
  open(impossible);
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::impossible, Icon::critical)});
  EXPECT_EQ(w.ChaineSolution, old);
  EXPECT_FALSE(globals.GrilleOk);
  EXPECT_EQ(game.cell(1, 1).text_colour, colour::red);
  EXPECT_EQ(shown(w), impossible);
  EXPECT_EQ(state_fault(w), "");
}

TEST_F(Opening, InterruptedKeepsTheOldSolution) {
  const std::string old = w.ChaineSolution;
  desktop.at_step[40] = [&] { w.preview_key(key::escape); };
  open(puzzle);
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::search_stopped, Icon::critical)});
  EXPECT_EQ(w.ChaineSolution, old);
  EXPECT_EQ(shown(w), puzzle);
  EXPECT_EQ(desktop.pointers.back(), Pointer::arrow);
  EXPECT_FALSE(globals.ResolutionSilencieuse);
  EXPECT_EQ(state_fault(w), "");
}

TEST_F(Opening, AShortFileLeavesCellsOfEmptyTextThatCountAsFilled) {
  open("9.7");
  EXPECT_EQ(shown(w).substr(0, 9), "9.7??????");
  EXPECT_EQ(game.cell(9, 9).text, "");
  EXPECT_EQ(game.cell(9, 9).back_colour, colour::from_file);
  EXPECT_EQ(w.control(Control::Label).caption, " 2 indices");
  w.maj_indices();
  EXPECT_EQ(w.control(Control::Label).caption, " 80 indices");
  EXPECT_EQ(state_fault(w), "");
}

TEST_F(Opening, AZeroIsAGivenThatTheSearchFills) {
  std::string text(puzzle);
  text[11] = '0';
  open(text);
  EXPECT_EQ(game.cell(2, 2).text, "0");
  EXPECT_EQ(game.cell(2, 2).back_colour, colour::from_file);
  EXPECT_EQ(w.control(Control::Label).caption, " 78 indices");
  EXPECT_EQ(w.ChaineSolution, solution);
}

TEST_F(Opening, OtherCharactersAreGivensThatTheSearchFills) {
  std::string text(puzzle);
  text[11] = '\xE9';
  open(text);
  EXPECT_EQ(game.cell(2, 2).text, "\xE9");
  EXPECT_EQ(game.cell(2, 2).back_colour, colour::from_file);
  EXPECT_EQ(w.ChaineSolution, solution);
  EXPECT_EQ(state_fault(w), "");
}

TEST_F(Opening, AFullGridAnnouncesNothing) {
  open(solution);
  EXPECT_TRUE(desktop.boxes.empty());
  EXPECT_EQ(w.ChaineSolution, solution);
}

TEST_F(Opening, AMissingFileEndsTheProgramWithTheGridOnScreenRescued) {
  game.draw(complete_grid);
  const std::string missing = (folder / "missing.sdk").string();
  EXPECT_EQ(status_of_opening(missing), 1);
  const std::string text = "SuDoKu doit s'arrêter (" + missing +
                           ": No such file or directory). La grille a été sauvée dans " +
                           (desktop.data_folder() / "SuDoKu-1.sdk").string();
  EXPECT_EQ(desktop.errors, Lines{text});
  EXPECT_EQ(desktop.boxes, (std::vector{Box{text, Icon::critical, Buttons::ok, program_title}}));
  EXPECT_EQ(desktop.rescued_file().substr(0, 20), " 1 2 3 4 5 6 7 8 9\r\n");
  EXPECT_EQ(w.title(), missing);
}

TEST_F(Opening, AnEmptyFileAFolderOrALockedFileEndsTheProgram) {
  write_file(file, "");
  EXPECT_EQ(status_of_opening(file.string()), 1);
  EXPECT_EQ(status_of_opening(folder.path().string()), 1);
  write_file(file, puzzle);
  fs::permissions(file, fs::perms(0));
  fs::permissions(desktop.data_folder().parent_path(), fs::perms(0755));
  const PlainUser user;
  EXPECT_EQ(status_of_opening(file.string()), 1);
  ASSERT_EQ(desktop.errors.size(), 3u);
  EXPECT_NE(desktop.errors[0].find("my puzzle.sdk: the file is empty"), std::string::npos);
  EXPECT_NE(desktop.errors[1].find(": Is a directory"), std::string::npos);
  EXPECT_NE(desktop.errors[2].find("my puzzle.sdk: Permission denied"), std::string::npos);
}

}  // namespace
}  // namespace sdk::test
