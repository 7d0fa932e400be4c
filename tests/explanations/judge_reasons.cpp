// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include <algorithm>

#include "explanations/told_step.hpp"
#include "tests/explanations/told_case.hpp"

namespace sdk::test {

bool see_all(const CellSet& who, const CellSet& seen) {
  for (const int cell : seen)
    if (!(who - peers_of(cell)).empty()) return false;
  return true;
}

namespace {

void judge_sights(ToldCase& told) {
  for (const auto& [who, holders, digit] : told.claims.sights) {
    told.expect(see_all(who, holders), "a cell that does not see another one");
    told.expect((who - told.deduction().losers_of(digit)).empty(), "a cell that sees for nothing");
  }
}

/// Wings: a cell of two digits loses the one that it sees.
void judge_consequences(ToldCase& told) {
  for (const auto& [cause, place, cells, digit] : told.claims.consequences)
    for (const int cell : cells) {
      const NineSet others = told.digits(cell) - NineSet{digit};
      told.expect(told.digits(cell).contains(digit) && others.count() == 1, "another consequence");
      told.expect(cause == 0 || others == NineSet{cause}, "another cause");
      const CellSet from = cause == 0 ? place : told.deduction().cells_as(Role::pivot);
      told.expect(see_all(from, {cell}), "a cause out of sight");
      for (const DigitInUnit& link : told.claims.units)
        told.expect(others == NineSet{link.digit} && (place - link.cells).empty(), "another link");
    }
}

bool has_consequence(const CellSet& cause, const DigitInUnit& line, int effect) {
  return line.cells.contains(effect) && see_all(cause, line.cells - CellSet{effect});
}

NineSet lines_across(Unit base, const CellSet& cells) {
  NineSet lines;
  for (const int cell : cells)
    lines.insert(base.kind == UnitKind::row ? cell_at(cell).column : cell_at(cell).row);
  return lines;
}

void judge_fish(ToldCase& told) {
  const Claims& claims = told.claims;
  for (const auto& [cause, effect] : claims.chained)
    told.expect(std::ranges::any_of(claims.units,
                                    [&, &cause = cause, &effect = effect](const DigitInUnit& line) {
                                      return has_consequence(cause, line, *effect.begin());
                                    }),
                "another chain");
  if (claims.covers.empty()) return;
  told.expect(claims.covers.count() == static_cast<int>(claims.units.size()), "too many covers");
  for (const DigitInUnit& line : claims.units) {
    told.expect(claims.covers.contains_all(lines_across(line.unit, line.cells)), "no cover");
    const CellSet& losers = told.deduction().losers_of(line.digit);
    told.expect(claims.covers.contains_all(lines_across(line.unit, losers)), "no cover of a loser");
  }
}

/// The lines have their digit on the base lines, but for what fins say.
void judge_wing(ToldCase& told, const WingOf& wing) {
  CellSet fins;
  for (const FinsOr& one : told.claims.fins) fins |= one.fins;
  NineSet bases;
  for (const DigitInUnit& line : told.claims.units) {
    bases.insert(line.unit.number);
    const CellSet cells = (line.cells - fins) | told.deduction().losers_of(line.digit);
    told.expect(wing.covers == lines_across(line.unit, cells), "other covers");
    told.expect(wing.digit == line.digit, "a wing of another digit");
  }
  told.expect(wing.bases == bases, "other base lines");
}

void judge_fins(ToldCase& told) {
  for (const WingOf& wing : told.claims.wings) judge_wing(told, wing);
  for (const auto& [fins, target, digits] : told.claims.fins) {
    told.expect(see_all(target, fins), "a fin out of sight");
    told.expect(told.claims.wings.size() == 1, "fins without a wing");
    for (const DigitInUnit& line : told.claims.units) {
      told.expect(told.deduction().losers_of(line.digit) == target, "another target");
      told.expect(digits == NineSet{line.digit}, "fins of another digit");
    }
  }
}

void judge_refusal(ToldCase& told, const Refusal& refusal) {
  const CellSet& roof = told.deduction().cells_as(Role::roof);
  told.expect(refusal.cells.empty() || refusal.cells == roof, "a refusal of another cell");
  told.expect(refusal.digits.count() == 1 || refusal.digits == told.deduction().digits,
              "a refusal of other digits");
  for (int digit = 1; digit <= 9; ++digit) {
    const CellSet& losers = told.deduction().losers_of(digit);
    told.expect(refusal.digits.contains(digit) || losers.empty(), "another refusal");
    told.expect((losers - roof).empty(), "a refusal of too few cells");
  }
}

/// A rectangle ends with what its corners are not, or with who sees the corners that have one more
/// digit.
void judge_rectangle(ToldCase& told, const OneSolution& fact) {
  const Claims& claims = told.claims;
  told.expect(claims.refusals.size() == (claims.sights.empty() ? 1 : 0), "no conclusion");
  for (const Refusal& refusal : claims.refusals) judge_refusal(told, refusal);
  for (const Sight& sight : claims.sights)
    for (const int corner : fact.corners)
      told.expect(sight.holders.contains(corner) == told.digits(corner).contains(sight.digit),
                  "other corners");
}

void judge_rectangles(ToldCase& told) {
  for (const OneSolution& fact : premises_of<OneSolution>(told.deduction()))
    judge_rectangle(told, fact);
}

/// What is denied leads to one of the cells that are seen.
void judge_denials(ToldCase& told) {
  for (const auto& [cells, digit] : told.claims.denials)
    for (const Sight& sight : told.claims.sights)
      told.expect(sight.holders == cells && sight.digit == digit, "another denial");
}

/// The cells that links from one colour to the other join to the cell.
CellSet joined_to(int cell, const Colours& colours, const std::vector<DigitInUnit>& links) {
  CellSet joined{cell};
  for (std::size_t pass = 0; pass < links.size(); ++pass)
    for (const DigitInUnit& link : links)
      if ((link.cells & colours.first).count() == 1 && (link.cells & colours.second).count() == 1 &&
          !(link.cells & joined).empty())
        joined |= link.cells;
  return joined;
}

/// The links tell which cells go with which. On a grid without a solution more links can go round
/// in a ring, with two neighbours in one colour.
void judge_colours(ToldCase& told) {
  CellSet coloured;
  for (const Colours& colours : told.claims.colours) {
    const CellSet all = colours.first | colours.second;
    coloured |= all;
    told.expect(joined_to(*all.begin(), colours, told.claims.units) == all, "colours that differ");
  }
  if (told.claims.colours.empty()) return;
  for (const DigitInUnit& link : told.claims.units)
    told.expect(link.cells.count() == 2 && (link.cells - coloured).empty(), "no link");
}

void judge_clash(ToldCase& told) {
  const CellSet& clash = told.claims.clash;
  if (clash.empty()) return;
  told.expect(clash.count() == 2 && see_all({*clash.begin()}, clash - CellSet{*clash.begin()}),
              "no clash");
  told.expect(std::ranges::any_of(told.claims.colours,
                                  [&](const Colours& colours) {
                                    return (clash - colours.first).empty() ||
                                           (clash - colours.second).empty();
                                  }),
              "a clash between the colours");
}

}  // namespace

void judge_reasons(ToldCase& told) {
  judge_sights(told);
  judge_consequences(told);
  judge_fish(told);
  judge_fins(told);
  judge_denials(told);
  judge_rectangles(told);
  judge_colours(told);
  judge_clash(told);
}

}  // namespace sdk::test
