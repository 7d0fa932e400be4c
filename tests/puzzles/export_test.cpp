// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The puzzle in hand as an entry of the library.

#include "puzzles/export.hpp"

#include <gtest/gtest.h>

#include "tests/support/game.hpp"
#include "tests/support/machine.hpp"

namespace sdk::test {
namespace {

namespace fs = std::filesystem;

const std::string solution =
    "987654321135927468642138579426571983793482156518396742371865294269743815854219637";
const std::string mask =
    "111111111101111111111111111111111111111111111111111111111111111111111101011111110";
const std::string entry = mask + "\r\n" + solution + "\r\n\r\n";

class Export : public testing::Test {
 protected:
  Export() {
    fs::current_path(folder.path());
    game.draw(puzzle);
    w.Lire_Grille_Initiale(0, 0);
    for (int k = 1; k <= 81; ++k)
      w.Grille((k - 1) / 9 + 1, (k - 1) % 9 + 1) =
          static_cast<std::int16_t>(solution[static_cast<std::size_t>(k - 1)] - '0');
  }

  KeptFolder kept;
  ScratchFolder folder;
  Game game;
  MainWindow& w = game.window;
};

TEST_F(Export, WritesTheMaskTheSolutionAndAnEmptyLine) {
  w.export_entry();
  EXPECT_EQ(bytes_of(folder / "Grilles.txt"), entry);
}

TEST_F(Export, AppendsToWhatIsThere) {
  write_file(folder / "Grilles.txt", "mine\r\n");
  w.export_entry();
  w.export_entry();
  EXPECT_EQ(bytes_of(folder / "Grilles.txt"), "mine\r\n" + entry + entry);
}

TEST_F(Export, WritesTheSolutionIntoTheGridOnScreen) {
  w.ChaineSolution = "before";
  w.export_entry();
  EXPECT_EQ(joined(shown(w)), solution);
  EXPECT_EQ(w.ChaineSolution, solution);
  EXPECT_EQ(w.MSF.selection(), (CellRange{8, 8, 8, 8}));
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::black), all_cells());
  EXPECT_EQ(cells_with_back_colour(w.MSF, colour::white), "r2c2 r8c8 r9c1 r9c9");
}

TEST_F(Export, WritesAZeroForAnEmptyCell) {
  w.Grille(2, 2) = 0;
  w.export_entry();
  EXPECT_EQ(game.cell(2, 2).text, "0");
  EXPECT_EQ(w.ChaineSolution[10], '0');
  EXPECT_EQ(bytes_of(folder / "Grilles.txt").substr(83, 12), "987654321105");
}

TEST_F(Export, GoesToTheFolderThatTheSolveLeft) {
  fs::create_directory(game.desktop.program_folder());
  game.draw(puzzle);
  w.click(Control::Bouton_GO);
  w.export_entry();
  EXPECT_EQ(bytes_of(game.desktop.program_folder() / "Grilles.txt"), entry);
  EXPECT_EQ(folder.names(), "");
}

TEST_F(Export, ThatCannotBeWrittenEndsTheProgramWithTheGridRescued) {
  fs::create_directory(folder / "Grilles.txt");
  EXPECT_THROW(w.export_entry(), ProgramEnd);
  ASSERT_EQ(game.desktop.errors.size(), 1u);
  EXPECT_NE(game.desktop.errors[0].find("(Grilles.txt: Is a directory)"), std::string::npos);
  EXPECT_EQ(game.desktop.rescued_file().substr(0, 20), " 9 8 7 6 5 4 3 2 1\r\n");
}

}  // namespace
}  // namespace sdk::test
