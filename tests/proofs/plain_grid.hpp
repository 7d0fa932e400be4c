// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The grid as a proof knows it: digits and, in each empty cell, what it can hold. Made up here
/// from the rules alone, so that it can judge the game's own tables.
#pragma once

#include <array>
#include <bitset>
#include <string>
#include <string_view>
#include <vector>

namespace sdk::proofs {

using Digits = std::bitset<10>;  ///< 1..9

/// Cells are 0..80, row by row.
inline constexpr int cell_count = 81;

inline int row_of(int cell) { return cell / 9; }
inline int column_of(int cell) { return cell % 9; }
inline int box_of(int cell) { return cell / 27 * 3 + cell % 9 / 3; }

/// Whether two different cells share a row, a column or a box.
bool see_each_other(int a, int b);

/// "r1c1".
std::string name_of(int cell);
/// -1 when the text names no cell.
int cell_named(std::string_view text);

/// The nine cells of "row 2", "column 2" or "box 2"; none when the text names no unit.
std::vector<int> cells_of_unit(std::string_view text);
/// The 27 names.
const std::vector<std::string>& all_units();

Digits all_digits();
/// "3 8", or "nothing".
std::string text_of(const Digits& digits);
/// "r1c2 r1c3", or "nowhere".
std::string text_of(const std::vector<int>& cells);

struct PlainGrid {
  std::array<int, cell_count> values{};         ///< 0: empty
  std::array<Digits, cell_count> candidates{};  ///< of empty cells

  bool is_empty(int cell) const { return values[static_cast<std::size_t>(cell)] == 0; }
  int value(int cell) const { return values[static_cast<std::size_t>(cell)]; }
  const Digits& at(int cell) const { return candidates[static_cast<std::size_t>(cell)]; }
  Digits& at(int cell) { return candidates[static_cast<std::size_t>(cell)]; }
  bool can_hold(int cell, int digit) const;
  /// The cells of the unit that can hold the digit, ascending.
  std::vector<int> places(std::string_view unit, int digit) const;
  /// Whether the digit stands in a cell of the unit.
  bool stands_in(std::string_view unit, int digit) const;
  bool is_full() const;
  /// The first empty cell, row by row, that can hold nothing; -1 when there is none.
  int first_dead_cell() const;
  /// Gives each empty cell every digit that it does not see.
  void start_afresh();
  void enter(int cell, int digit);  ///< starts afresh
};

/// 81 characters, anything but "1".."9" is empty; candidates are afresh.
PlainGrid grid_of(std::string_view puzzle);

}  // namespace sdk::proofs
