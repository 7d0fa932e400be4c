// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "pas_a_pas/techniques/pincers.hpp"

#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

CellSet pincers_with(Cell pivot, const CellSet& two_candidates, int digit1, int digit2) {
  return two_candidates & peers_of(pivot) & solver.Candidats.cells_with(digit1) &
         solver.Candidats.cells_with(digit2);
}

namespace {

void remove_from(const Wing& wing, Cell pincer_a, Cell pincer_b, Cell target) {
  support(wing.pivot, Role::pivot, wing.pivot_digits);
  for (const Cell pincer : {pincer_a, pincer_b})
    support(pincer, Role::pincer, NineSet::all(), mark::second);
  eliminate_shown(target, {wing.digit});
}

}  // namespace

bool clears_targets(const Wing& wing) {
  bool cleared = false;
  for (const int a : wing.pincers_a)
    for (const int b : wing.pincers_b) {
      const CellSet seen = wing.targets & peers_of(a) & peers_of(b);
      for (const int target : seen& solver.Candidats.cells_with(wing.digit)) {
        remove_from(wing, cell_at(a), cell_at(b), cell_at(target));
        cleared = true;
      }
    }
  if (cleared) solver.step.digits = wing.pivot_digits;
  return cleared;
}

}  // namespace sdk
