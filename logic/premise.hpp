// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What a deduction rests on: facts of the candidates as they stood before it.
#pragma once

#include <variant>

#include "board/cell_set.hpp"
#include "board/cells.hpp"
#include "board/nine_set.hpp"

namespace sdk {

/// The cell can only hold these digits, which are all its candidates.
struct CellHolds {
  Cell cell;
  NineSet digits;
  bool operator==(const CellHolds&) const = default;
};

/// In the unit the digit can only go in these cells, which are all its places there.
struct DigitInUnit {
  Unit unit;
  int digit;
  CellSet cells;
  bool operator==(const DigitInUnit&) const = default;
};

/// The puzzle has one solution, so the four corners of a rectangle are not filled crosswise with
/// these two digits, neither way.
struct OneSolution {
  NineSet digits;
  CellSet corners;
  bool operator==(const OneSolution&) const = default;
};

using Premise = std::variant<CellHolds, DigitInUnit, OneSolution>;

}  // namespace sdk
