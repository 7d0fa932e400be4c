// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// X-wing: a digit with the same two places in two lines takes two opposite corners of that
// rectangle, so it stands nowhere else on the two lines that cross them.

#include "game/globals.hpp"
#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

/// The two base lines, and the places of the digit on both.
struct Rectangle {
  Unit base1, base2;
  NineSet places;

  Unit cover(int place) const { return {crossing(base1.kind), place}; }
};

bool removes_something(const Rectangle& wing, int digit) {
  for (const int place : wing.places)
    if (digit_count(wing.cover(place), digit) >= 3) return true;
  return false;
}

void remove_from_covers(const Rectangle& wing, int digit) {
  for (int line = 1; line <= 9; ++line) {
    if (line == wing.base1.number || line == wing.base2.number) continue;
    for (const int place : wing.places) {
      const Cell cell = wing.cover(place).cell(line);
      if (solver.Candidats.has(cell, digit)) eliminate_shown(cell, {digit});
    }
  }
}

void apply(const Rectangle& wing, int digit) {
  solver.step.unit = wing.base1;
  solver.step.other_unit = wing.base2;
  solver.step.digits = {digit};
  for (const int place : wing.places) {
    support(wing.base1.cell(place), Role::pattern, {digit});
    support(wing.base2.cell(place), Role::pattern, {digit});
  }
  remove_from_covers(wing, digit);
  if (globals.ModePasAPas) marque_candidats();
  maj_candidats();
}

bool fires_on(Unit base1, Unit base2, int digit) {
  const NineSet places = solver.Candidats.places(base1, digit);
  if (places.count() != 2 || places != solver.Candidats.places(base2, digit)) return false;
  const Rectangle wing{base1, base2, places};
  if (!removes_something(wing, digit)) return false;
  apply(wing, digit);
  return true;
}

bool fires_on(UnitKind base) {
  for (int digit = 1; digit <= 9; ++digit)
    for (int line1 = 1; line1 <= 8; ++line1)
      for (int line2 = line1 + 1; line2 <= 9; ++line2)
        if (fires_on({base, line1}, {base, line2}, digit)) return true;
  return false;
}

}  // namespace

Bool16 x_wing() { return fires_on(UnitKind::row) || fires_on(UnitKind::column); }

}  // namespace sdk
