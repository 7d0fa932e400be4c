// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/script/grid_format.hpp"

#include <algorithm>
#include <array>

#include "game/window.hpp"
#include "tools/script/text_format.hpp"

namespace sdk {

std::string cell_name(int row, int column) {
  return 'r' + std::to_string(row + 1) + 'c' + std::to_string(column + 1);
}

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

std::string marked_cells(const DisplayGrid& grid, int mark) {
  std::string cells;
  for (int r = 0; r < DisplayGrid::size; ++r)
    for (int c = 0; c < DisplayGrid::size; ++c)
      if (grid.cell(r, c).mark == mark) cells += (cells.empty() ? "" : ",") + cell_name(r, c);
  return std::to_string(mark) + '=' + cells;
}

namespace {

std::string prefix_of(Mark mark) {
  switch (mark) {
    case Mark::removed:
      return "!";
    case Mark::support:
      return "*";
    case Mark::second:
      return "+";
    default:
      return "";
  }
}

std::string drawing(const PictureCell& cell) {
  std::string text = prefix_of(cell.mark);
  if (cell.value != 0) return text + '=' + std::to_string(cell.value);
  if (cell.candidates.empty()) return text + '0';
  for (const int digit : cell.candidates)
    text += std::to_string(digit) + (cell.removed.contains(digit) ? "-" : "");
  return text;
}

std::size_t width_of(const StepPicture& step, int column) {
  std::size_t width = 0;
  for (int row = 1; row <= 9; ++row)
    width = std::max(width, drawing(step.cells(row, column)).size());
  return width;
}

}  // namespace

std::string drawing(const StepPicture& step) {
  std::array<std::size_t, 8> widths{};  // nothing follows the last column
  for (std::size_t c = 0; c < widths.size(); ++c)
    widths[c] = width_of(step, static_cast<int>(c) + 1);
  return square_text(" ", [&](int r, int c) {
    std::string text = drawing(step.cells(r + 1, c + 1));
    const auto column = static_cast<std::size_t>(c);
    if (column < widths.size()) text.resize(widths[column], ' ');
    return text;
  });
}

}  // namespace sdk
