// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What the wings around a pivot share.
#pragma once

#include <optional>

#include "board/cell_set.hpp"
#include "logic/deduction.hpp"
#include "logic/position.hpp"

namespace sdk {

struct PivotWing {
  Cell pivot;
  NineSet pivot_digits;
  CellSet pincers_a, pincers_b;  ///< each with the removed digit and one of the pivot's others
  CellSet targets;               ///< where the digit may be removed: never at the pivot
  int digit;
};

/// The cells of two candidates that see the pivot and hold both digits.
CellSet pincers_with(const Position& position, Cell pivot, const CellSet& two_candidates,
                     int digit1, int digit2);

/// The digit leaves every target that sees a pincer of either list; nothing when there is none. The
/// lists stay as they are, so a pincer that loses the digit still counts as one.
std::optional<Deduction> deduce_from(const Position& position, const PivotWing& wing);

}  // namespace sdk
