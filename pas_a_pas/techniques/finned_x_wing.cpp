// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Finned X-wing: an X-wing with extra places, the fins, on its base lines. A cell of a cover line
// in whose box all fins lie loses the digit: either a fin is true and sees it, or the X-wing holds.
// One corner may be missing.

#include "game/globals.hpp"
#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

/// Base lines of one kind, and the cover lines that cross them.
struct Wing {
  UnitKind base;
  int digit;
  std::array<int, 2> base_lines, cover_lines;

  Unit base_line(std::size_t n) const { return {base, base_lines[n]}; }
  Unit cover_line(std::size_t n) const { return {crossing(base), cover_lines[n]}; }
  Cell corner(std::size_t line, std::size_t cover) const {
    return base_line(line).cell(cover_lines[cover]);
  }
};

/// The places of the digit on a base line outside the cover lines.
NineSet fins_on(const Wing& wing, std::size_t line) {
  return solver.Candidats.places(wing.base_line(line), wing.digit) -
         NineSet{wing.cover_lines[0], wing.cover_lines[1]};
}

void apply(const Wing& wing, Cell target) {
  const NineSet digit{wing.digit};
  solver.step.unit = wing.base_line(0);
  solver.step.other_unit = wing.base_line(1);
  solver.step.digits = digit;
  solver.step.variant = fins_on(wing, 0).empty() && fins_on(wing, 1).empty() ? 2 : 1;
  for (const std::size_t line : {0, 1})
    for (const std::size_t cover : {0, 1}) support(wing.corner(line, cover), Role::pattern, digit);
  eliminate_shown(target, digit);
  for (const std::size_t line : {0, 1})
    for (const int place : fins_on(wing, line))
      support(wing.base_line(line).cell(place), Role::fin, digit, mark::second);
  if (globals.ModePasAPas) marque_candidats();
  maj_candidats();
}

bool all_fins_in_box(const Wing& wing, int box) {
  for (const std::size_t line : {0, 1})
    for (const int place : fins_on(wing, line))
      if (wing.base_line(line).cell(place).box() != box) return false;
  return true;
}

void finish(const Wing& wing, Cell target) {
  const auto [line1, line2] = wing.base_lines;
  const auto [cover1, cover2] = wing.cover_lines;
  if (wing.base == UnitKind::row)
    aileron_lignes(wing.digit, line1, cover1, line2, cover2, target.row, target.column);
  else
    aileron_colonnes(wing.digit, cover1, line1, cover2, line2, target.row, target.column);
}

/// Takes the first target on one of the cover lines.
bool clears_on_cover(const Wing& wing, std::size_t cover) {
  const Unit cover_line = wing.cover_line(cover);
  if (digit_count(cover_line, wing.digit) < 2) return false;
  const NineSet base_lines{wing.base_lines[0], wing.base_lines[1]};
  for (const int place : solver.Candidats.places(cover_line, wing.digit) - base_lines) {
    const Cell target = cover_line.cell(place);
    if (!all_fins_in_box(wing, target.box())) continue;
    finish(wing, target);
    return true;
  }
  return false;
}

/// Three corners hold the digit at least, so each cover line meets it on one of the base lines.
bool fires_between(UnitKind base, int digit, int line1, int line2) {
  const NineSet places1 = solver.Candidats.places({base, line1}, digit);
  const NineSet places2 = solver.Candidats.places({base, line2}, digit);
  if (places1.count() < 2 || places2.count() < 2) return false;
  for (const int cover1 : places1 | places2)
    for (const int cover2 : places1 | places2) {
      const NineSet covers{cover1, cover2};
      if (cover1 >= cover2 || (places1 & covers).count() + (places2 & covers).count() < 3) continue;
      const Wing wing{base, digit, {line1, line2}, {cover1, cover2}};
      if (clears_on_cover(wing, 0) || clears_on_cover(wing, 1)) return true;
    }
  return false;
}

bool fires_on(UnitKind base) {
  for (int digit = 1; digit <= 9; ++digit)
    for (int line1 = 1; line1 <= 8; ++line1)
      for (int line2 = line1 + 1; line2 <= 9; ++line2)
        if (fires_between(base, digit, line1, line2)) return true;
  return false;
}

}  // namespace

Bool16 aile_x_aileron() { return fires_on(UnitKind::row) || fires_on(UnitKind::column); }

void aileron_lignes(int digit, int row1, int column1, int row2, int column2, int target_row,
                    int target_column) {
  apply({UnitKind::row, digit, {row1, row2}, {column1, column2}}, {target_row, target_column});
}

void aileron_colonnes(int digit, int row1, int column1, int row2, int column2, int target_row,
                      int target_column) {
  apply({UnitKind::column, digit, {column1, column2}, {row1, row2}}, {target_row, target_column});
}

}  // namespace sdk
