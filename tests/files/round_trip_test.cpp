// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Saved grids come back.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "files/puzzle_file.hpp"
#include "tests/support/game.hpp"
#include "tests/support/machine.hpp"

namespace sdk::test {
namespace {

/// Saves that do not wait for the disk.
class QuickSteps : public SaveSteps {
 public:
  void write_new(const std::filesystem::path& file, std::string_view bytes) override {
    write_file(file, bytes);
  }
};

class RoundTrip : public testing::Test {
 protected:
  RoundTrip() { game.desktop.save_steps = &steps_; }

  std::string path() { return (game.desktop.data_folder() / "a.sdk").string(); }

  void reopen() {
    ouvrir(path());
    globals.CouleurDonnees = colour::from_file;
    w.CreateGrille();
  }

  /// Empty cells, givens and the player's digits.
  std::string random_grid() {
    std::string grid(81, '.');
    const unsigned share = random_() % 10;
    for (char& cell : grid)
      if (random_() % 10 < share) cell = "123456789abcdefghi"[random_() % 18];
    return grid;
  }

  Game game;
  MainWindow& w = game.window;

 private:
  QuickSteps steps_;
  std::mt19937 random_{20};
};

TEST_F(RoundTrip, OfRandomGridsGivesTheSameDigitsAsGivens) {
  for (int i = 0; i < 500; ++i) {
    const std::string grid = random_grid();
    game.draw(grid);
    const std::string before = shown(w);
    Save_Grille(path());
    game.draw(complete_grid);
    reopen();
    ASSERT_EQ(shown(w), before);
    const auto filled = 81 - std::ranges::count(grid, '.');
    ASSERT_EQ(w.control(Control::Label).caption, " " + std::to_string(filled) + " indices");
    for (int r = 0; r < 9; ++r)
      for (int c = 0; c < 9; ++c) {
        const DisplayCell& cell = w.MSF.cell(r, c);
        ASSERT_EQ(cell.back_colour, cell.text == " " ? colour::white : colour::from_file);
        ASSERT_EQ(cell.text_colour, colour::black);
      }
  }
}

TEST_F(RoundTrip, GivesTheSameBytesWhenTheFileIsSavedAgain) {
  for (int i = 0; i < 100; ++i) {
    game.draw(random_grid());
    Save_Grille(path());
    const std::string bytes = bytes_of(path());
    ASSERT_EQ(bytes.size(), 180u);
    reopen();
    Save_Grille(path());
    ASSERT_EQ(bytes_of(path()), bytes);
  }
}

TEST_F(RoundTrip, OfAZeroLosesIt) {
  game.draw(complete_grid);
  w.MSF.set_text(4, 4, "0");
  Save_Grille(path());
  reopen();
  EXPECT_EQ(w.MSF.text(4, 4), " ");
}

}  // namespace
}  // namespace sdk::test
