// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// XYZ-wing: a pivot of x, y and z sees a cell of x and z and a cell of y and z. One of the three is
// z.

#include "logic/techniques/finders.hpp"
#include "logic/techniques/pincers.hpp"

namespace sdk {

namespace {

/// A target must see the pivot as well as the pincers.
std::optional<Deduction> find_with(const Position& position, Cell pivot, int x, int y, int z,
                                   const CellSet& two_candidates) {
  const PivotWing wing{.pivot = pivot,
                       .pivot_digits = {x, y, z},
                       .pincers_a = pincers_with(position, pivot, two_candidates, x, z),
                       .pincers_b = pincers_with(position, pivot, two_candidates, y, z),
                       .targets = peers_of(pivot),
                       .digit = z};
  if (wing.pincers_a.empty() || wing.pincers_b.empty()) return std::nullopt;
  return deduce_from(position, wing);
}

std::optional<Deduction> find_at(const Position& position, Cell pivot,
                                 const CellSet& two_candidates) {
  const int first = nth_candidate(position, pivot, 1);
  const int second = nth_candidate(position, pivot, 2);
  const int third = nth_candidate(position, pivot, 3);
  if (auto found = find_with(position, pivot, second, third, first, two_candidates)) return found;
  if (auto found = find_with(position, pivot, first, third, second, two_candidates)) return found;
  return find_with(position, pivot, first, second, third, two_candidates);
}

}  // namespace

std::optional<Deduction> find_xyz_wing(const Position& position) {
  const CellSet two_candidates = position.candidates.cells_counting(2);
  for (const int pivot : position.candidates.cells_counting(3))
    if (auto found = find_at(position, cell_at(pivot), two_candidates)) return found;
  return std::nullopt;
}

}  // namespace sdk
