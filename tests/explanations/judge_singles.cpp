// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include <algorithm>

#include "tests/explanations/told_case.hpp"

namespace sdk::test {
namespace {

NineSet values_in(const ToldCase& told, Unit unit) {
  NineSet values;
  for (int place = 1; place <= 9; ++place) {
    const int value = told.value(unit.cell(place).number());
    if (value != 0) values.insert(value);
  }
  return values;
}

void judge_values(ToldCase& told) {
  for (const auto& [unit, digits] : told.claims.filled)
    told.expect(values_in(told, unit).contains_all(digits), "a digit that its unit does not have");
  for (const auto& [who, holders, digit] : told.claims.values) {
    for (const int cell : holders)
      told.expect(told.value(cell) == digit, "a cell of another value");
    for (const int cell : who)
      told.expect(!(peers_of(cell) & holders).empty(), "a cell that does not see the value");
  }
}

void judge_steps(ToldCase& told, const Placement& placed) {
  for (const auto& [number, digits, cells] : told.claims.steps) {
    if (number < 1 || number > static_cast<int>(told.index)) {
      told.expect(false, "a step that is not before this one");
      continue;
    }
    const Deduction& step = told.hint[static_cast<std::size_t>(number - 1)].deduction;
    for (const int digit : digits)
      told.expect(step.losers_of(digit).contains(placed.cell), "a step that removed another digit");
    told.expect((cells - step.losers_of(placed.digit)).empty(), "a step that cleared another cell");
  }
}

/// Whether the sentence says what keeps the digit out of the cell.
bool is_explained(const ToldCase& told, Cell cell, int digit) {
  const auto excludes = [&](const UnitHas& filled) {
    return filled.unit.contains(cell) && filled.digits.contains(digit);
  };
  const auto sees = [&](const Sight& sight) {
    return sight.digit == digit && sight.who.contains(cell);
  };
  const auto took = [&](const StepTook& step) {
    return step.digits.contains(digit) || step.cells.contains(cell);
  };
  return std::ranges::any_of(told.claims.filled, excludes) ||
         std::ranges::any_of(told.claims.values, sees) ||
         std::ranges::any_of(told.claims.steps, took);
}

void judge_other_digits(ToldCase& told, const Placement& placed) {
  for (const int digit : NineSet::all() - NineSet{placed.digit})
    told.expect(is_explained(told, placed.cell, digit), "a digit that nothing excludes");
}

void judge_other_places(ToldCase& told, Unit unit, const Placement& placed) {
  for (int place = 1; place <= 9; ++place) {
    const Cell cell = unit.cell(place);
    if (cell != placed.cell && told.value(cell.number()) == 0)
      told.expect(is_explained(told, cell, placed.digit), "a place that nothing excludes");
  }
}

/// A digit that is alone in its box is told by the box.
bool names_the_box(const ToldCase& told, const Placement& placed) {
  const Unit box{UnitKind::box, placed.cell.box()};
  return told.claims.units.front().unit == box ||
         digit_count(told.before(), box, placed.digit) != 1;
}

}  // namespace

void judge_single(ToldCase& told) {
  if (!told.deduction().placement) return;
  const Placement placed = *told.deduction().placement;
  judge_values(told);
  judge_steps(told, placed);
  if (told.claims.units.empty()) return judge_other_digits(told, placed);
  judge_other_places(told, told.claims.units.front().unit, placed);
  told.expect(names_the_box(told, placed), "the box is not told");
}

}  // namespace sdk::test
