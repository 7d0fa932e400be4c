// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The solve button with the companion solver itself.

#include <gtest/gtest.h>

#include "puzzles/stock/entry_text.hpp"
#include "tests/support/game.hpp"
#include "tests/support/machine.hpp"

namespace sdk::test {
namespace {

namespace fs = std::filesystem;

class CompanionSolver : public testing::Test {
 protected:
  CompanionSolver() { fs::copy_file(ZOLV_PROGRAM, desktop.program_folder() / "zolv.exe"); }

  KeptFolder kept;
  Game game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
  const Variable variable{"tmp", game.desktop.temporary_folder()};
};

TEST_F(CompanionSolver, SolvesTheFortyStoredPuzzles) {
  for (std::size_t k = 0; k < BibliothequeGrilles.size(); ++k) {
    const LibraryEntry& entry = BibliothequeGrilles[k];
    game.draw(puzzle_text(entry));
    w.click(Control::Bouton_GO);
    EXPECT_EQ(desktop.boxes, std::vector{message(Message::completed, Icon::exclamation)}) << k + 1;
    EXPECT_EQ(joined(shown(w)), entry.solution) << k + 1;
    EXPECT_EQ(w.ChaineSolution, entry.solution) << k + 1;
  }
}

TEST_F(CompanionSolver, SolvesAnEmptyGrid) {
  game.draw(std::string(81, '.'));
  w.click(Control::Bouton_GO);
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::completed, Icon::exclamation)});
}

TEST_F(CompanionSolver, TellsThatThereIsNoSolution) {
  game.draw("11" + std::string(79, '.'));
  w.click(Control::Bouton_GO);
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::impossible, Icon::critical)});
  EXPECT_TRUE(fs::is_empty(desktop.temporary_folder()));
}

TEST_F(CompanionSolver, SaysNothingToAGridThatItCannotRead) {
  game.draw("#" + std::string(80, '.'));
  w.click(Control::Bouton_GO);
  EXPECT_TRUE(desktop.boxes.empty());
  EXPECT_EQ(desktop.pointers, std::vector{Pointer::hourglass});
}

}  // namespace
}  // namespace sdk::test
