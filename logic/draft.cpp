// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "logic/draft.hpp"

#include <algorithm>

namespace sdk {

NineSet Draft::digits_left(Cell cell) const {
  NineSet left = position_.candidates.digits(cell);
  for (const int digit : left)
    if (deduction.losers_of(digit).contains(cell)) left.erase(digit);
  return left;
}

void Draft::show(Cell cell, std::optional<Mark> mark, NineSet digits, Emphasis emphasis) {
  deduction.highlights.push_back({cell, mark, digits & digits_left(cell), emphasis});
}

void Draft::support(Cell cell, Role role, NineSet digits, Mark mark) {
  deduction.cells_as(role).insert(cell);
  show(cell, mark, digits, Emphasis::support);
}

void Draft::eliminate(Cell cell, NineSet digits) {
  for (const int digit : digits_left(cell) & digits)
    deduction.removed[static_cast<std::size_t>(digit)].insert(cell);
}

void Draft::eliminate_shown(Cell cell, NineSet digits) {
  show(cell, Mark::removed, digits, Emphasis::removed);
  eliminate(cell, digits);
}

void Draft::clear_column_outside_box(int digit, int column, int box) {
  for (const int row : NineSet::all() - places_in_box(UnitKind::column, box))
    eliminate({row, column}, {digit});
}

void Draft::rest_on(Cell cell) { add(CellHolds{cell, position_.candidates.digits(cell)}); }

void Draft::rest_on(Unit unit, int digit) {
  add(DigitInUnit{unit, digit, cells_with(position_, unit, digit)});
}

void Draft::add(const Premise& premise) {
  std::vector<Premise>& premises = deduction.premises;
  if (std::ranges::find(premises, premise) == premises.end()) premises.push_back(premise);
}

}  // namespace sdk
