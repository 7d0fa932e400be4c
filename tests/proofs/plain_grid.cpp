// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/proofs/plain_grid.hpp"

#include <algorithm>

namespace sdk::proofs {

bool see_each_other(int a, int b) {
  return a != b &&
         (row_of(a) == row_of(b) || column_of(a) == column_of(b) || box_of(a) == box_of(b));
}

std::string name_of(int cell) {
  return "r" + std::to_string(row_of(cell) + 1) + "c" + std::to_string(column_of(cell) + 1);
}

namespace {

/// 0..8; -1 for another character than "1".."9".
int index_of(char c) { return c >= '1' && c <= '9' ? c - '1' : -1; }

}  // namespace

int cell_named(std::string_view text) {
  if (text.size() != 4 || text[0] != 'r' || text[2] != 'c') return -1;
  const int row = index_of(text[1]), column = index_of(text[3]);
  return row < 0 || column < 0 ? -1 : row * 9 + column;
}

std::vector<int> cells_of_unit(std::string_view text) {
  const int number = text.empty() ? -1 : index_of(text.back());
  const std::string_view kind = text.substr(0, text.empty() ? 0 : text.size() - 1);
  const auto index = kind == "row " ? row_of : kind == "column " ? column_of : box_of;
  std::vector<int> cells;
  if (number < 0 || (index == box_of && kind != "box ")) return cells;
  for (int cell = 0; cell < cell_count; ++cell)
    if (index(cell) == number) cells.push_back(cell);
  return cells;
}

const std::vector<std::string>& all_units() {
  static const std::vector<std::string> units = [] {
    std::vector<std::string> names;
    for (const char* kind : {"row ", "column ", "box "})
      for (int number = 1; number <= 9; ++number) names.push_back(kind + std::to_string(number));
    return names;
  }();
  return units;
}

Digits all_digits() { return Digits(0b1111111110); }

std::string text_of(const Digits& digits) {
  std::string text;
  for (std::size_t digit = 1; digit <= 9; ++digit)
    if (digits.test(digit)) text += (text.empty() ? "" : " ") + std::to_string(digit);
  return text.empty() ? "nothing" : text;
}

std::string text_of(const std::vector<int>& cells) {
  std::string text;
  for (const int cell : cells) text += (text.empty() ? "" : " ") + name_of(cell);
  return text.empty() ? "nowhere" : text;
}

bool PlainGrid::can_hold(int cell, int digit) const {
  return is_empty(cell) && at(cell).test(static_cast<std::size_t>(digit));
}

std::vector<int> PlainGrid::places(std::string_view unit, int digit) const {
  std::vector<int> cells = cells_of_unit(unit);
  std::erase_if(cells, [&](int cell) { return !can_hold(cell, digit); });
  return cells;
}

bool PlainGrid::stands_in(std::string_view unit, int digit) const {
  return std::ranges::any_of(cells_of_unit(unit), [&](int cell) { return value(cell) == digit; });
}

bool PlainGrid::is_full() const {
  return std::ranges::none_of(values, [](int value) { return value == 0; });
}

int PlainGrid::first_dead_cell() const {
  for (int cell = 0; cell < cell_count; ++cell)
    if (is_empty(cell) && at(cell).none()) return cell;
  return -1;
}

void PlainGrid::start_afresh() {
  for (int cell = 0; cell < cell_count; ++cell) {
    at(cell) = is_empty(cell) ? all_digits() : Digits();
    for (int other = 0; other < cell_count; ++other)
      if (see_each_other(cell, other)) at(cell).reset(static_cast<std::size_t>(value(other)));
  }
}

void PlainGrid::enter(int cell, int digit) {
  values[static_cast<std::size_t>(cell)] = digit;
  start_afresh();
}

PlainGrid grid_of(std::string_view puzzle) {
  PlainGrid grid;
  for (std::size_t cell = 0; cell < grid.values.size() && cell < puzzle.size(); ++cell)
    grid.values[cell] = index_of(puzzle[cell]) + 1;
  grid.start_afresh();
  return grid;
}

}  // namespace sdk::proofs
