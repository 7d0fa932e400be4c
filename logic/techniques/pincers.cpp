// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "logic/techniques/pincers.hpp"

#include <utility>

#include "logic/draft.hpp"
#include "logic/techniques/needed.hpp"

namespace sdk {

CellSet pincers_with(const Position& position, Cell pivot, const CellSet& two_candidates,
                     int digit1, int digit2) {
  return two_candidates & peers_of(pivot) & position.candidates.cells_with(digit1) &
         position.candidates.cells_with(digit2);
}

namespace {

/// Every target sees a pincer of either list that is among these.
bool reach_all(const PivotWing& wing, const CellSet& pincers, const CellSet& targets) {
  for (const int target : targets) {
    const CellSet seen = pincers & peers_of(target);
    if ((seen & wing.pincers_a).empty() || (seen & wing.pincers_b).empty()) return false;
  }
  return true;
}

/// The deduction rests on the pivot, and on as few pincers as all targets need.
void rest_on_used(Draft& draft, const PivotWing& wing) {
  const CellSet& targets = draft.deduction.losers_of(wing.digit);
  draft.rest_on(wing.pivot);
  for (const int pincer :
       needed_of(draft.deduction.cells_as(Role::pincer),
                 [&](const CellSet& some) { return reach_all(wing, some, targets); }))
    draft.rest_on(cell_at(pincer));
}

void clear_target(Draft& draft, const PivotWing& wing, Cell pincer_a, Cell pincer_b, Cell target) {
  draft.support(wing.pivot, Role::pivot, wing.pivot_digits);
  for (const Cell pincer : {pincer_a, pincer_b})
    draft.support(pincer, Role::pincer, NineSet::all(), Mark::second);
  draft.eliminate_shown(target, {wing.digit});
}

}  // namespace

std::optional<Deduction> deduce_from(const Position& position, const PivotWing& wing) {
  Draft draft(position);
  CellSet targets = wing.targets & position.candidates.cells_with(wing.digit);
  for (const int a : wing.pincers_a)
    for (const int b : wing.pincers_b) {
      const CellSet seen = targets & peers_of(a) & peers_of(b);
      for (const int target : seen) {
        clear_target(draft, wing, cell_at(a), cell_at(b), cell_at(target));
        targets.erase(target);
      }
    }
  if (!draft.deduction.removes_something()) return std::nullopt;
  draft.deduction.digits = wing.pivot_digits;
  rest_on_used(draft, wing);
  return std::move(draft).finished();
}

}  // namespace sdk
