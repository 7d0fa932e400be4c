// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Naked and hidden singles: what excludes the other digits of a cell, or the other cells of a unit.

#include <algorithm>

#include "explanations/claims.hpp"
#include "explanations/tellers.hpp"

namespace sdk {

namespace {

NineSet values_in(const Position& position, Unit unit) {
  NineSet values;
  for (int place = 1; place <= 9; ++place) {
    const int value = position.candidates.value(unit.cell(place));
    if (value != 0) values.insert(value);
  }
  return values;
}

NineSet removed_from(const Deduction& deduction, Cell cell) {
  NineSet digits;
  for (const int digit : removed_digits(deduction))
    if (deduction.losers_of(digit).contains(cell)) digits.insert(digit);
  return digits;
}

/// "row 1 has 2, 3 and 7": as few units as explain what they can. Takes these from `open`.
std::vector<std::string> excluding_units(const Words& words, const Position& position, Cell cell,
                                         NineSet& open) {
  std::vector<std::string> clauses;
  const auto excluded = [&](Unit unit) { return values_in(position, unit) & open; };
  for (;;) {
    const Unit best =
        std::ranges::max(units_of(cell), {}, [&](Unit unit) { return excluded(unit).count(); });
    const NineSet digits = excluded(best);
    if (digits.empty()) return clauses;
    clauses.push_back(words.say(
        digits.count() == 1 ? Text{"%1 a le %2", "%1 has %2"} : Text{"%1 a les %2", "%1 has %2"},
        best, words.all_of(digits)));
    open = open - digits;
  }
}

/// "step 2 removed the 6".
std::vector<std::string> excluding_steps(const Words& words, const ToldStep& step, Cell cell,
                                         NineSet open) {
  std::vector<std::string> clauses;
  for (int number = 1; number <= step.earlier(); ++number) {
    const NineSet digits = removed_from(step.earlier(number), cell) & open;
    if (digits.empty()) continue;
    clauses.push_back(words.say(digits.count() == 1
                                    ? Text{"l'étape %1 a retiré le %2", "step %1 removed the %2"}
                                    : Text{"l'étape %1 a retiré les %2", "step %1 removed the %2"},
                                number, words.all_of(digits)));
  }
  return clauses;
}

}  // namespace

std::string tell_naked_single(const Words& words, const ToldStep& step) {
  const auto [cell, digit] = *step.deduction().placement;
  NineSet open = NineSet::all() - NineSet{digit};
  auto clauses = excluding_units(words, step.event().before, cell, open);
  std::ranges::copy(excluding_steps(words, step, cell, open), std::back_inserter(clauses));
  return words.say({"%1 ne peut être que %2 : %3.", "%1 can only be %2: %3."}, cell, digit,
                   words.listed(clauses));
}

namespace {

/// The box of the cell when the digit is alone there as well, else the unit that was found.
Unit told_unit(const ToldStep& step) {
  const auto [cell, digit] = *step.deduction().placement;
  const Unit box{UnitKind::box, cell.box()};
  return digit_count(step.event().before, box, digit) == 1 ? box : step.deduction().unit;
}

CellSet cells_of(Unit unit) {
  CellSet cells;
  for (int place = 1; place <= 9; ++place) cells.insert(unit.cell(place));
  return cells;
}

CellSet cells_of_value(const Position& position, int digit) {
  CellSet cells;
  for (int cell = 1; cell <= 81; ++cell)
    if (position.candidates.value(cell_at(cell)) == digit) cells.insert(cell);
  return cells;
}

/// As few of the holders as every barred cell needs to see one.
CellSet fewest_that_bar(const CellSet& holders, CellSet barred) {
  CellSet chosen;
  while (!barred.empty()) {
    int best = *holders.begin();
    for (const int holder : holders)
      if ((peers_of(holder) & barred).count() > (peers_of(best) & barred).count()) best = holder;
    chosen.insert(best);
    barred = barred - peers_of(best);
  }
  return chosen;
}

/// "r7c1 and r8c3 see the 4 in r3c1 or r8c5": the free cells of the unit that see the digit.
std::vector<std::string> barred_cells(const Words& words, const ToldStep& step, Unit unit) {
  const Position& position = step.event().before;
  const auto [cell, digit] = *step.deduction().placement;
  const CellSet holders = cells_of_value(position, digit);
  CellSet barred;
  for (const int other : cells_of(unit))
    if (position.candidates.value(cell_at(other)) == 0 && !(peers_of(other) & holders).empty())
      barred.insert(other);
  if (barred.empty()) return {};
  return {words.say(barred.count() == 1 ? Text{"%1 voit le %2 en %3", "%1 sees the %2 in %3"}
                                        : Text{"%1 voient le %2 en %3", "%1 see the %2 in %3"},
                    words.all_of(barred), digit, words.one_of(fewest_that_bar(holders, barred)))};
}

/// "step 1 took it from r9c4".
std::vector<std::string> cells_that_lost_it(const Words& words, const ToldStep& step,
                                            const CellSet& cells) {
  std::vector<std::string> clauses;
  for (int number = 1; number <= step.earlier(); ++number) {
    const CellSet lost = step.earlier(number).losers_of(step.deduction().placement->digit) & cells;
    if (!lost.empty())
      clauses.push_back(words.say({"l'étape %1 l'a retiré de %2", "step %1 took it from %2"},
                                  number, words.all_of(lost)));
  }
  return clauses;
}

}  // namespace

std::string tell_hidden_single(const Words& words, const ToldStep& step) {
  const auto [cell, digit] = *step.deduction().placement;
  const Unit found = step.deduction().unit, told = told_unit(step);
  auto clauses = barred_cells(words, step, told);
  std::ranges::copy(cells_that_lost_it(words, step, cells_of(told) | cells_of(found)),
                    std::back_inserter(clauses));
  const std::string where = words.say(
      found == told ? Text{"dans %1", "in %1"} : Text{"dans %1 (et dans %2)", "in %1 (and in %2)"},
      told, found);
  return words.say({"%1, le %2 ne va qu'en %3%4.", "%1, the %2 can only go in %3%4."}, where, digit,
                   cell,
                   clauses.empty() ? "" : words.say({" : %1", ": %1"}, words.listed(clauses)));
}

}  // namespace sdk
