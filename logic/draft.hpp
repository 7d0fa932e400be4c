// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// How a finder writes a deduction down.
#pragma once

#include <optional>
#include <utility>

#include "logic/deduction.hpp"
#include "logic/position.hpp"

namespace sdk {

/// A deduction in the making. It follows the removals it has noted: a digit that the cell has lost
/// is neither pointed out nor removed again. Rows, columns, boxes and digits are 1..9.
class Draft {
 public:
  /// `position` must outlive the draft, and does not change.
  explicit Draft(const Position& position) : position_(position) {}

  Deduction deduction;

  /// What the cell still has.
  NineSet digits_left(Cell cell) const;

  /// Draws the mark, and points out those of `digits` that the cell still has.
  void show(Cell cell, std::optional<Mark> mark, NineSet digits, Emphasis emphasis);
  /// Enters the cell under its role, and shows it as a support of the removal.
  void support(Cell cell, Role role, NineSet digits, Mark mark = Mark::support);
  /// The cell loses those of `digits` that it still has.
  void eliminate(Cell cell, NineSet digits);
  /// Shows the cell as losing `digits`, then takes them away.
  void eliminate_shown(Cell cell, NineSet digits);
  /// Every row outside the box loses the digit in the column; nothing is shown.
  void clear_column_outside_box(int digit, int column, int box);

  // What the deduction rests on stands in it once, however often it is noted.

  /// The deduction rests on what the cell can hold.
  void rest_on(Cell cell);
  /// It rests on where the digit can go in the unit.
  void rest_on(Unit unit, int digit);

  /// The deduction; the draft is used up.
  Deduction finished() && { return std::move(deduction); }

 private:
  void add(const Premise& premise);

  const Position& position_;
};

}  // namespace sdk
