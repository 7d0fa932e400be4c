// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// XY-wing: a pivot of a and b sees a cell of a and c and a cell of b and c. One of these two is c.

#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/pincers.hpp"
#include "pas_a_pas/techniques/techniques.hpp"

namespace sdk {

namespace {

/// A target need only see the pincers.
CellSet everywhere_but(Cell pivot) {
  CellSet cells = all_cells;
  cells.erase(pivot);
  return cells;
}

bool fires_at(Cell pivot, const CellSet& two_candidates) {
  const int a = nieme_candidat(pivot.row, pivot.column, 1);
  const int b = nieme_candidat(pivot.row, pivot.column, 2);
  for (const int c : NineSet::all() - NineSet{a, b})
    if (clears_targets({.pivot = pivot,
                        .pivot_digits = {a, b},
                        .pincers_a = pincers_with(pivot, two_candidates, a, c),
                        .pincers_b = pincers_with(pivot, two_candidates, b, c),
                        .targets = everywhere_but(pivot),
                        .digit = c}))
      return true;
  return false;
}

}  // namespace

Bool16 aile_xy() {
  const CellSet two_candidates = solver.Candidats.cells_counting(2);
  for (const int pivot : two_candidates)
    if (fires_at(cell_at(pivot), two_candidates)) return true;
  return false;
}

}  // namespace sdk
