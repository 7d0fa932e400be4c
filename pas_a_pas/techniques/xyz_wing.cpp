// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// XYZ-wing: a pivot of x, y and z sees a cell of x and z and a cell of y and z. One of the three is
// z.

#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/pincers.hpp"
#include "pas_a_pas/techniques/techniques.hpp"

namespace sdk {

namespace {

/// A target must see the pivot as well as the pincers.
bool fires_with(Cell pivot, int x, int y, int z, const CellSet& two_candidates) {
  return clears_targets({.pivot = pivot,
                         .pivot_digits = {x, y, z},
                         .pincers_a = pincers_with(pivot, two_candidates, x, z),
                         .pincers_b = pincers_with(pivot, two_candidates, y, z),
                         .targets = peers_of(pivot),
                         .digit = z});
}

bool fires_at(Cell pivot, const CellSet& two_candidates) {
  const int first = nieme_candidat(pivot.row, pivot.column, 1);
  const int second = nieme_candidat(pivot.row, pivot.column, 2);
  const int third = nieme_candidat(pivot.row, pivot.column, 3);
  return fires_with(pivot, second, third, first, two_candidates) ||
         fires_with(pivot, first, third, second, two_candidates) ||
         fires_with(pivot, first, second, third, two_candidates);
}

}  // namespace

Bool16 aile_xyz() {
  const CellSet two_candidates = solver.Candidats.cells_counting(2);
  for (const int pivot : solver.Candidats.cells_counting(3))
    if (fires_at(cell_at(pivot), two_candidates)) return true;
  return false;
}

}  // namespace sdk
