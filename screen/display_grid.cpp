// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "screen/display_grid.hpp"

#include <algorithm>
#include <cassert>
#include <utility>

namespace sdk {

const DisplayCell& DisplayGrid::cell(int row, int column) const {
  assert(row >= 0 && row < size && column >= 0 && column < size);
  return cells_[static_cast<std::size_t>(row * size + column)];
}

DisplayCell& DisplayGrid::cell_at(int row, int column) {
  return const_cast<DisplayCell&>(std::as_const(*this).cell(row, column));
}

void DisplayGrid::set_text(int row, int column, std::string text) {
  DisplayCell& written = cell_at(row, column);
  written.text = std::move(text);
  written.wrong = false;
  if (listener_) listener_->cell_changed(row, column);
}

void DisplayGrid::set_cell(int row, int column, DisplayCell cell) {
  cell_at(row, column) = std::move(cell);
  if (listener_) listener_->cell_changed(row, column);
}

void DisplayGrid::make_current(int row, int column) { select(row, column, row, column); }

void DisplayGrid::select(int row, int column, int other_row, int other_column) {
  cell(row, column);
  cell(other_row, other_column);
  row_ = row;
  column_ = column;
  other_row_ = other_row;
  other_column_ = other_column;
  if (listener_) listener_->selection_changed();
}

CellRange DisplayGrid::selection() const {
  const auto [first_row, last_row] = std::minmax(row_, other_row_);
  const auto [first_column, last_column] = std::minmax(column_, other_column_);
  return {first_row, first_column, last_row, last_column};
}

void DisplayGrid::set_text_colour(Colour colour) {
  DisplayCell& cell = cell_at(row_, column_);
  cell.wrong = cell.wrong && colour == cell.text_colour;
  cell.text_colour = colour;
  tell_current_cell();
}

void DisplayGrid::set_verdict(Colour colour) {
  DisplayCell& cell = cell_at(row_, column_);
  cell.text_colour = colour;
  cell.wrong = colour == colour::red;
  tell_current_cell();
}

void DisplayGrid::set_back_colour(Colour colour) {
  cell_at(row_, column_).back_colour = colour;
  tell_current_cell();
}

void DisplayGrid::set_font_size(int points) {
  cell_at(row_, column_).font_size = points;
  tell_current_cell();
}

void DisplayGrid::set_mark(int mode) {
  cell_at(row_, column_).mark = mode;
  tell_current_cell();
}

void DisplayGrid::set_visible(bool visible) {
  visible_ = visible;
  tell_appearance();
}

void DisplayGrid::set_tab_stop(bool on) {
  tab_stop_ = on;
  tell_appearance();
}

void DisplayGrid::set_marks_current(bool on) {
  marks_current_ = on;
  tell_appearance();
}

void DisplayGrid::refresh() {
  if (listener_) listener_->refresh();
}

void DisplayGrid::tell_appearance() {
  if (listener_) listener_->appearance_changed();
}

void DisplayGrid::tell_current_cell() {
  if (listener_) listener_->cell_changed(row_, column_);
}

}  // namespace sdk
