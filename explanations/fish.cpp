// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// X-wing, swordfish, jellyfish and finned X-wing.

#include "explanations/claims.hpp"
#include "explanations/tellers.hpp"

namespace sdk {

namespace {

/// The lines of the kind that the cells lie on.
NineSet lines_through(UnitKind kind, const CellSet& cells) {
  NineSet lines;
  for (const int cell : cells)
    lines.insert(kind == UnitKind::row ? cell_at(cell).row : cell_at(cell).column);
  return lines;
}

std::string name(const Words& words, UnitKind line) {
  return line == UnitKind::row ? words.say({"ligne", "row"}) : words.say({"colonne", "column"});
}

/// "rows 2 and 6".
std::string named(const Words& words, UnitKind kind, NineSet lines) {
  return words.say({"%1s %2", "%1s %2"}, name(words, kind), words.all_of(lines));
}

}  // namespace

std::string tell_x_wing(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  const auto facts = premises_of<DigitInUnit>(deduction);
  const UnitKind across = crossing(deduction.unit.kind);
  const NineSet covers = lines_through(across, facts.front().cells);
  const auto corner = [&](std::size_t line, int cover) {
    return facts[line].unit.cell(nth(covers, cover));
  };
  return words.say({"%1. Si %2 est %6, %3 aussi ; si %4 est %6, %5 aussi. Dans les deux cas, les "
                    "%7 ont là leur %6, et pas ailleurs.",
                    "%1. If %2 is %6, so is %3; if %4 is %6, so is %5. Either way %7 have their %6 "
                    "there and nowhere else."},
                   in_their_units(words, facts), corner(0, 1), corner(1, 2), corner(0, 2),
                   corner(1, 1), deduction.digits.first(), named(words, across, covers));
}

namespace {

/// "in row 2, the 5 can only go in column 1 or 3; in row 6, only in column 3 or 8".
std::string base_places(const Words& words, const std::vector<DigitInUnit>& facts) {
  std::vector<std::string> clauses;
  for (const auto& [unit, digit, cells] : facts) {
    const UnitKind across = crossing(unit.kind);
    clauses.push_back(words.say(clauses.empty() ? Text{"dans %1, le %2 ne va qu'en %3 %4",
                                                       "in %1, the %2 can only go in %3 %4"}
                                                : Text{"%5, qu'en %4", "in %1, only in %3 %4"},
                                unit, digit, name(words, across),
                                words.one_of(lines_through(across, cells)), words.bare(unit)));
  }
  return words.listed(clauses);
}

}  // namespace

std::string tell_fish(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  const UnitKind base = deduction.unit.kind, across = crossing(base);
  const NineSet covers =
      lines_through(across, deduction.cells_as(Role::pattern) | losers(deduction));
  return words.say(
      {"%1. Chaque %2 prend une %5 différente : les %3 ont là leur %4, et pas ailleurs.",
       "%1. Each %2 takes a different one, so %3 have their %4 there and nowhere else."},
      base_places(words, premises_of<DigitInUnit>(deduction)), name(words, base),
      named(words, across, covers), deduction.digits.first(), name(words, across));
}

namespace {

/// "columns 6 and 9 have their 4 in row 2 or 5".
std::string one_in_each(const Words& words, const Deduction& deduction) {
  const UnitKind base = deduction.unit.kind, across = crossing(base);
  const NineSet covers = lines_through(across, deduction.cells_as(Role::pattern));
  NineSet bases;
  for (const DigitInUnit& fact : premises_of<DigitInUnit>(deduction))
    bases.insert(fact.unit.number);
  return words.say({"les %1 ont leur %2 en %3 %4", "%1 have their %2 in %3 %4"},
                   named(words, across, covers), deduction.digits.first(), name(words, base),
                   words.one_of(bases));
}

/// "If r5c4 is not 4, columns 6 and 9 have their 4 in row 2 or 5; if it is, r6c6 sees it."
std::string fin_or_wing(const Words& words, const Deduction& deduction, Cell target) {
  const CellSet& fins = deduction.cells_as(Role::fin);
  const int digit = deduction.digits.first();
  const std::string wing = one_in_each(words, deduction);
  if (fins.count() == 1)
    return words.say({"Si %1 n'est pas %2, %3 ; sinon %4 voit ce %2.",
                      "If %1 is not %2, %3; if it is, %4 sees it."},
                     words.all_of(fins), digit, wing, target);
  return words.say({"Si ni %1 n'est %2, %3 ; sinon %4 voit ce %2.",
                    "If neither %1 is %2, %3; if one is, %4 sees it."},
                   words.none_of(fins), digit, wing, target);
}

/// What both lines together exclude.
std::string told_finned(const Words& words, const Deduction& deduction, Cell target) {
  const int digit = deduction.digits.first();
  if (deduction.rule == Rule::without_fin)
    return words.say({"Donc %1, et %2 n'est pas %3.", "So %1, and %2 is not %3."},
                     one_in_each(words, deduction), target, digit);
  return words.say({"%1 Dans les deux cas, %2 n'est pas %3.", "%1 Either way %2 is not %3."},
                   fin_or_wing(words, deduction, target), target, digit);
}

}  // namespace

std::string tell_finned_x_wing(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  const auto facts = premises_of<DigitInUnit>(deduction);
  const Cell target = cell_at(*losers(deduction).begin());
  const std::string places = in_their_units(words, facts);
  if (facts.size() == 1)
    return words.say({"%1 ; dans tous les cas, %2 le voit.", "%1; wherever it is, %2 sees it."},
                     places, target);
  return words.say({"%1. %2", "%1. %2"}, places, told_finned(words, deduction, target));
}

}  // namespace sdk
