// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What the wings around a pivot share.
#pragma once

#include "board/cell_set.hpp"

namespace sdk {

struct Wing {
  Cell pivot;
  NineSet pivot_digits;
  CellSet pincers_a, pincers_b;  ///< each with the removed digit and one of the pivot's others
  CellSet targets;               ///< where the digit may be removed: never at the pivot
  int digit;
};

/// The cells of two candidates that see the pivot and hold both digits.
CellSet pincers_with(Cell pivot, const CellSet& two_candidates, int digit1, int digit2);

/// Removes the digit from every target that sees a pincer of either list; tells whether there was
/// one. The lists stay as they are, so a pincer that loses the digit still counts as one.
bool clears_targets(const Wing& wing);

}  // namespace sdk
