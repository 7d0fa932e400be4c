// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// XY-wing: a pivot of a and b sees a cell of a and c and a cell of b and c. One of these two is c.

#include "logic/techniques/finders.hpp"
#include "logic/techniques/pincers.hpp"

namespace sdk {

namespace {

/// A target need only see the pincers.
std::optional<Deduction> find_with(const Position& position, Cell pivot, int a, int b, int c,
                                   const CellSet& two_candidates) {
  const PivotWing wing{.pivot = pivot,
                       .pivot_digits = {a, b},
                       .pincers_a = pincers_with(position, pivot, two_candidates, a, c),
                       .pincers_b = pincers_with(position, pivot, two_candidates, b, c),
                       .targets = all_cells - CellSet{pivot.number()},
                       .digit = c};
  if (wing.pincers_a.empty() || wing.pincers_b.empty()) return std::nullopt;
  return deduce_from(position, wing);
}

std::optional<Deduction> find_at(const Position& position, Cell pivot,
                                 const CellSet& two_candidates) {
  const int a = nth_candidate(position, pivot, 1), b = nth_candidate(position, pivot, 2);
  for (const int c : NineSet::all() - NineSet{a, b})
    if (auto found = find_with(position, pivot, a, b, c, two_candidates)) return found;
  return std::nullopt;
}

}  // namespace

std::optional<Deduction> find_xy_wing(const Position& position) {
  const CellSet two_candidates = position.candidates.cells_counting(2);
  for (const int pivot : two_candidates)
    if (auto found = find_at(position, cell_at(pivot), two_candidates)) return found;
  return std::nullopt;
}

}  // namespace sdk
