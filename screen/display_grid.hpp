// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The model of the grid control: what is in the cells, which cell is current, what is selected.
/// It serves both the puzzle `MSF` and the candidates `MSR`. Rows and columns are 0..8.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "screen/colours.hpp"

namespace sdk {

/// One cell as it is shown. The text is in the system's single-byte code page, one byte a
/// character; a single space means empty.
struct DisplayCell {
  std::string text = " ";
  Colour text_colour = colour::black;
  Colour back_colour = colour::white;
  int font_size = 0;   ///< in points; 0 is the grid's own size
  int mark = 0;        ///< the last mark mode given to the cell, 0..6
  bool wrong = false;  ///< red because the text was compared with the solution and differs

  bool operator==(const DisplayCell&) const = default;

  /// A coloured background is all that tells a given of the puzzle from a player's cell.
  bool is_given() const { return back_colour != colour::white; }
  /// Red alone tells no wrong value: it outlasts the clash that it was given for, and is given for
  /// a clash elsewhere. In an empty cell nothing shows.
  bool is_wrong() const { return wrong && text.find_first_not_of(' ') != std::string::npos; }
};

/// A block of cells, both ends included.
struct CellRange {
  int first_row, first_column, last_row, last_column;
  bool operator==(const CellRange&) const = default;
};

/// Who draws a grid hears of its changes here.
class DisplayGridListener {
 public:
  virtual ~DisplayGridListener() = default;
  virtual void cell_changed(int row, int column) = 0;
  virtual void selection_changed() = 0;
  /// Visibility, or a setting of the whole grid, changed.
  virtual void appearance_changed() = 0;
  /// What changed is to be on screen when the call returns.
  virtual void refresh() = 0;
};

class DisplayGrid {
 public:
  static constexpr int size = 9;

  const DisplayCell& cell(int row, int column) const;
  const std::string& text(int row, int column) const { return cell(row, column).text; }
  /// All cells as they are now, row by row.
  std::vector<DisplayCell> cells() const { return {cells_.begin(), cells_.end()}; }
  /// Empty means exactly one space; anything else counts as filled, an empty text too.
  bool is_filled(int row, int column) const { return text(row, column) != " "; }

  /// Writes a cell's text without making the cell current. What was found of the text before, that
  /// it is wrong, goes with it.
  void set_text(int row, int column, std::string text);

  /// Replaces all of a cell without making it current.
  void set_cell(int row, int column, DisplayCell cell);

  /// Makes a cell current; the selection becomes that cell.
  void make_current(int row, int column);
  /// Makes (row, column) current and selects the block between it and the other corner.
  void select(int row, int column, int other_row, int other_column);
  int current_row() const { return row_; }
  int current_column() const { return column_; }
  CellRange selection() const;

  // The next six write to the current cell.
  void set_text(std::string text) { set_text(row_, column_, std::move(text)); }
  /// A cell that takes another colour is not wrong any more.
  void set_text_colour(Colour colour);
  /// The colour that a comparison with the solution gives the text: with red the cell is wrong.
  void set_verdict(Colour colour);
  void set_back_colour(Colour colour);
  void set_font_size(int points);
  void set_mark(int mode);
  const DisplayCell& current() const { return cell(row_, column_); }

  bool visible() const { return visible_; }
  /// A grid that is hidden and shown again within one handler never flickers nor loses the focus.
  void set_visible(bool visible);
  void refresh();

  /// Whether Tab reaches the grid and whether its current cell is marked; both are off during a
  /// search.
  bool tab_stop() const { return tab_stop_; }
  bool marks_current() const { return marks_current_; }
  void set_tab_stop(bool on);
  void set_marks_current(bool on);

  /// At most one listener; null for none.
  void set_listener(DisplayGridListener* listener) { listener_ = listener; }

 private:
  DisplayCell& cell_at(int row, int column);
  void tell_appearance();
  void tell_current_cell();

  std::array<DisplayCell, size * size> cells_;
  int row_ = 0, column_ = 0, other_row_ = 0, other_column_ = 0;
  bool visible_ = true, tab_stop_ = true, marks_current_ = true;
  DisplayGridListener* listener_ = nullptr;
};

/// Hides a grid for as long as it lives, so that a batch of changes is drawn once.
class HiddenWhileWorking {
 public:
  explicit HiddenWhileWorking(DisplayGrid& grid) : grid_(grid) { grid_.set_visible(false); }
  ~HiddenWhileWorking() { grid_.set_visible(true); }
  HiddenWhileWorking(const HiddenWhileWorking&) = delete;
  HiddenWhileWorking& operator=(const HiddenWhileWorking&) = delete;

 private:
  DisplayGrid& grid_;
};

}  // namespace sdk
