// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The type of `Candidats`: which digits are still possible where.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "board/cell_set.hpp"
#include "board/cells.hpp"
#include "board/nine_set.hpp"
#include "board/square.hpp"

namespace sdk {

/// A 9x9x11 cube: per cell nine candidate flags, the value, and a count of candidates that is
/// stored, not computed: it stays as it is until set_count or clear, whatever flags fall meanwhile.
/// Beside the flags stand sets that always agree with them, so that a count or a search along a
/// unit is one operation. Rows, columns, digits, boxes and places are 1..9.
class CandidateCube {
 public:
  /// Every cell is filled with nothing: no value, no candidate, the count 0.
  CandidateCube() = default;
  /// These flags and values (0 for an empty cell), every count true.
  CandidateCube(const Square<NineSet>& digits, const Square<std::uint8_t>& values);

  bool has(Cell cell, int digit) const { return digits(cell).contains(digit); }
  NineSet digits(Cell cell) const { return digits_(cell.row, cell.column); }
  /// 0 for an empty cell.
  int value(Cell cell) const { return values_(cell.row, cell.column); }
  /// The stored count.
  int count(Cell cell) const { return counts_(cell.row, cell.column); }

  /// The places in the unit where the digit is a candidate.
  NineSet places(Unit unit, int digit) const {
    return places_[static_cast<std::size_t>(unit.kind)][index(unit.number)][index(digit)];
  }
  /// The cells where the digit is a candidate.
  const CellSet& cells_with(int digit) const { return cells_[index(digit)]; }
  /// No cell is empty.
  bool is_complete() const;
  /// The first empty cell, row by row, that counts no candidate.
  std::optional<Cell> dead_cell() const;
  /// The cells whose stored count is `count`.
  CellSet cells_counting(int count) const;

  /// The digit is no candidate of the cell any more.
  void remove(Cell cell, int digit);
  /// The cell has no candidate any more, and its count is 0.
  void clear(Cell cell);
  void set_value(Cell cell, int value) { values_(cell.row, cell.column) = byte(value); }
  void set_count(Cell cell, int count) { counts_(cell.row, cell.column) = byte(count); }

  bool operator==(const CandidateCube&) const = default;

 private:
  static std::size_t index(int n) { return static_cast<std::size_t>(n); }
  static std::uint8_t byte(int n) { return static_cast<std::uint8_t>(n); }
  NineSet& places_in(UnitKind kind, int number, int digit) {
    return places_[static_cast<std::size_t>(kind)][index(number)][index(digit)];
  }
  /// Enters the cell's flags in the sets.
  void list(Cell cell);

  Square<NineSet> digits_;
  Square<std::uint8_t> values_, counts_;
  std::array<std::array<std::array<NineSet, 10>, 10>, 3> places_{};  ///< by kind, unit and digit
  std::array<CellSet, 10> cells_{};                                  ///< by digit
};

}  // namespace sdk
