// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "board/grid_text.hpp"

#include <algorithm>
#include <charconv>

#include "board/cells.hpp"

namespace sdk {

std::string_view character(std::string_view text, int k) {
  const auto position = static_cast<std::size_t>(k - 1);
  return position < text.size() ? text.substr(position, 1) : std::string_view();
}

std::int16_t numeric_prefix(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  std::int16_t value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

namespace {

bool is_puzzle_character(char c) { return c == '.' || (c >= '0' && c <= '9'); }

}  // namespace

std::string puzzle_fault(std::string_view line) {
  if (line.size() != 81) return "81 characters expected, " + std::to_string(line.size()) + " found";
  const auto* const bad = std::ranges::find_if_not(line, is_puzzle_character);
  if (bad == line.end()) return "";
  return "character " + std::to_string(bad - line.begin() + 1) + " is neither a digit nor '.'";
}

Square<std::int16_t> puzzle_of(std::string_view line) {
  Square<std::int16_t> grid;
  for (int k = 1; k <= 81; ++k) {
    const Cell cell = cell_at(k);
    grid(cell.row, cell.column) = numeric_prefix(character(line, k));
  }
  return grid;
}

std::string name_of(Cell cell) {
  return {'r', static_cast<char>('0' + cell.row), 'c', static_cast<char>('0' + cell.column)};
}

std::string name_of(Unit unit) {
  const char* const kind = unit.kind == UnitKind::row      ? "row "
                           : unit.kind == UnitKind::column ? "column "
                                                           : "box ";
  return kind + std::to_string(unit.number);
}

}  // namespace sdk
