// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Start-up with a command line.

#include <gtest/gtest.h>

#include "tests/support/game.hpp"
#include "tests/support/machine.hpp"
#include "ui/state_check.hpp"
#include "ui/version.hpp"

namespace sdk::test {
namespace {

namespace fs = std::filesystem;

class StartWithFile : public testing::Test {
 protected:
  StartWithFile() {
    write_file(file, puzzle);
    desktop.at_pick = [this] { ++picks; };
  }

  int status_of_start(const std::string& command_line) {
    try {
      w.start(command_line);
    } catch (const ProgramEnd& end) {
      return end.status;
    }
    return -1;
  }

  void expect_puzzle_shown() {
    EXPECT_EQ(shown(w), puzzle);
    EXPECT_EQ(cells_with_back_colour(w.MSF, colour::white), "r2c2 r8c8 r9c1 r9c9");
    EXPECT_EQ(globals.CouleurDonnees, colour::from_file);
    EXPECT_EQ(w.control(Control::Label).caption, " 77 indices");
  }

  KeptFolder kept;
  ScratchFolder folder;
  const fs::path file = folder / "my puzzle.sdk";
  FakeDesktop desktop;
  MainWindow w{desktop};
  int picks = 0;
};

TEST_F(StartWithFile, ShowsThePuzzleInsteadOfANewOne) {
  w.start(file.string());
  expect_puzzle_shown();
  EXPECT_EQ(w.title(), file.string());
  EXPECT_EQ(picks, 0);
  EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(StartWithFile, ShowsAllButtons) {
  w.start(file.string());
  for (const ControlRow& row : all_controls) {
    const Control id = row.control;
    EXPECT_EQ(w.visible(id), id != Control::MSR && id != Control::rect2) << row.name;
  }
}

TEST_F(StartWithFile, SolvesOnlyOnceTheWindowIsOnScreen) {
  w.start(file.string());
  EXPECT_EQ(desktop.steps, 0);
  EXPECT_EQ(w.ChaineSolution, "");
  w.finish_start();
  EXPECT_GT(desktop.steps, 0);
  EXPECT_EQ(w.ChaineSolution, solution);
  expect_puzzle_shown();
  EXPECT_EQ(w.title(), file.string());
  EXPECT_FALSE(globals.ResolutionSilencieuse);
  EXPECT_EQ(desktop.pointers.back(), Pointer::arrow);
  EXPECT_TRUE(desktop.boxes.empty());
  EXPECT_EQ(state_fault(w), "");
}

TEST_F(StartWithFile, WithoutAFileSolvesNothing) {
  w.start("");
  const std::string before = dump(w);
  w.finish_start();
  EXPECT_EQ(difference(before, dump(w)), "");
  EXPECT_EQ(desktop.steps, 0);
  EXPECT_EQ(picks, 1);
}

TEST_F(StartWithFile, TakesQuotesAndRelativeNames) {
  fs::current_path(folder.path());
  w.start("\"my puzzle.sdk\"");
  expect_puzzle_shown();
  EXPECT_EQ(w.title(), "my puzzle.sdk");
}

TEST_F(StartWithFile, InterruptedLeavesNoSolution) {
  w.start(file.string());
  desktop.at_step[40] = [&] { w.preview_key(key::escape); };
  w.finish_start();
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::search_stopped, Icon::critical)});
  EXPECT_EQ(w.ChaineSolution, "");
  w.click(Control::Command7);
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::red), all_cells());
  EXPECT_EQ(state_fault(w), "");
}

TEST_F(StartWithFile, ThatIsMissingEndsWithStatus1AndRescuesNoEmptyGrid) {
  const std::string missing = (folder / "missing one.sdk").string();
  EXPECT_EQ(status_of_start(missing), 1);
  const std::string text = "SuDoKu doit s'arrêter (" + missing + ": No such file or directory)";
  EXPECT_EQ(desktop.errors, Lines{text});
  EXPECT_EQ(desktop.boxes, (std::vector{Box{text, Icon::critical, Buttons::ok, program_title}}));
  EXPECT_TRUE(fs::is_empty(desktop.data_folder()));
  EXPECT_EQ(picks, 0);
}

TEST_F(StartWithFile, ThatIsEmptyOrAFolderEndsWithStatus1) {
  write_file(folder / "empty.sdk", "");
  EXPECT_EQ(status_of_start((folder / "empty.sdk").string()), 1);
  EXPECT_EQ(status_of_start(folder.path().string()), 1);
  EXPECT_EQ(desktop.errors.size(), 2u);
  EXPECT_TRUE(fs::is_empty(desktop.data_folder()));
}

TEST_F(StartWithFile, QuittingInTheSilentSearchEndsTheProgram) {
  w.start(file.string());
  desktop.answers = {Answer::yes};
  desktop.at_step[5] = [&] { w.click(Control::Command3); };
  EXPECT_THROW(w.finish_start(), ProgramEnd);
  EXPECT_EQ(w.searches_running, 0);
}

}  // namespace
}  // namespace sdk::test
