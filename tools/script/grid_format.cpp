// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/script/grid_format.hpp"

#include "board/grid_text.hpp"
#include "game/window.hpp"
#include "screen/digit_frames.hpp"
#include "tools/script/text_format.hpp"

namespace sdk {

std::string cell_name(int row, int column) { return name_of(Cell{row + 1, column + 1}); }

namespace {

std::string first_character(const std::string& text) {
  if (text == " ") return ".";
  return text.empty() ? "?" : from_code_page(text.substr(0, 1));
}

}  // namespace

std::string cell_text(const DisplayCell& cell) {
  return in_quotes(from_code_page(cell.text)) + ' ' + colour_text(cell.text_colour) + ' ' +
         colour_text(cell.back_colour) + ' ' + std::to_string(cell.font_size) + ' ' +
         std::to_string(cell.mark) + '\n';
}

std::string first_characters(const DisplayGrid& grid) {
  return square_text("", [&](int r, int c) { return first_character(grid.text(r, c)); });
}

std::string colours(const DisplayGrid& grid, Colour DisplayCell::*which) {
  return square_text(" ", [&](int r, int c) { return colour_text(grid.cell(r, c).*which); });
}

namespace {

/// `holds` is asked of (row, column), 0-based.
template <class Question>
std::string cells_where(Question holds) {
  std::string cells;
  for (int r = 0; r < DisplayGrid::size; ++r)
    for (int c = 0; c < DisplayGrid::size; ++c)
      if (holds(r, c)) cells += (cells.empty() ? "" : ",") + cell_name(r, c);
  return cells;
}

std::string cells_framed(const DisplayGrid& puzzle, DigitFrame frame) {
  return cells_where([&](int r, int c) { return digit_frame(puzzle, {r + 1, c + 1}) == frame; });
}

}  // namespace

std::string marked_cells(const DisplayGrid& grid, int mark) {
  return std::to_string(mark) + '=' +
         cells_where([&](int r, int c) { return grid.cell(r, c).mark == mark; });
}

std::string framed_cells(const DisplayGrid& puzzle) {
  return "clash=" + cells_framed(puzzle, DigitFrame::clash) +
         " equal=" + cells_framed(puzzle, DigitFrame::equal) +
         " underlined=" + cells_where([&](int r, int c) {
           return as_seen(puzzle, {r + 1, c + 1}).is_wrong();
         });
}

}  // namespace sdk
