// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A started game on a fake desktop, grids as readable text, and what the window repainted.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "game/message.hpp"
#include "tests/support/fake_desktop.hpp"
#include "ui/main_window.hpp"

namespace sdk::test {

using Lines = std::vector<std::string>;

/// A complete valid grid, nine lines.
extern const char* const complete_grid;

/// Its hint removes candidates four times before it offers r2c8=6.
extern const char* const grid_of_several_steps;

/// The same as 81 characters: `grid` without its line breaks.
std::string joined(std::string_view grid);

/// Writes nine lines into `MSF`: "." an empty cell, "1".."9" a given (on `CouleurDonnees`, black),
/// "a".."i" the digits 1 to 9 as the player types them (on white, green), "?" an empty text, "#" a
/// cell that holds that character. The cell at row 1, column 1 becomes current.
void draw(MainWindow& window, std::string_view grid);

/// `MSF` as nine lines: "." for a space, "?" for an empty text.
std::string shown(const MainWindow& window);

/// `square` as nine lines of digits, "." for 0.
std::string digits(const Square<std::int16_t>& square);

/// The cells of `grid` with that text or back colour, such as "r1c1 r9c9", row by row.
std::string cells_with_text_colour(const DisplayGrid& grid, Colour colour);
std::string cells_with_back_colour(const DisplayGrid& grid, Colour colour);
/// All 81 names.
std::string all_cells();

/// The whole state of the window, its fields and the globals as text, a line a thing. Equal texts
/// mean equal states.
std::string dump(const MainWindow& window);

/// The first line in which two dumps differ, as "was ... is ..."; empty when they are equal.
std::string difference(const std::string& before, const std::string& after);

/// Hears of one grid's changes.
class GridRecorder : public DisplayGridListener {
 public:
  GridRecorder(DisplayGrid& grid, std::string name, Lines& repaints);
  ~GridRecorder() override;

  int changes_while_visible = 0;
  int times_hidden = 0;

  void cell_changed(int row, int column) override;
  void selection_changed() override;
  void appearance_changed() override;
  void refresh() override;

 private:
  DisplayGrid& grid_;
  std::string name_;
  Lines& repaints_;
  bool was_visible_;
};

/// A started window, its first puzzle on screen, records empty.
class Game : private WindowListener {
 public:
  Game();
  ~Game() override;

  FakeDesktop desktop;
  MainWindow window{desktop};
  /// "refresh window", "refresh MSF", "refresh MSR", "lines" and "about", in the order they came.
  Lines repaints;
  GridRecorder msf{window.MSF, "MSF", repaints};
  GridRecorder msr{window.MSR, "MSR", repaints};

  /// Draws the grid, with nothing recorded so far.
  void draw(std::string_view grid);
  void forget();
  void press(int code, bool ctrl = false) { window.key_down(code, ctrl); }
  /// Row and column are 1..9.
  void select(int row, int column) { window.MSF.make_current(row - 1, column - 1); }
  const DisplayCell& cell(int row, int column) const {
    return window.MSF.cell(row - 1, column - 1);
  }

 private:
  void layout_changed() override { repaints.push_back("layout"); }
  void lines_drawn() override { repaints.push_back("lines"); }
  void about_changed() override { repaints.push_back("about"); }
  void refresh() override { repaints.push_back("refresh window"); }
};

/// A box with the text of that message, an OK button and the program's title.
Box message(Message message, Icon icon);

}  // namespace sdk::test
