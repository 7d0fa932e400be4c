// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Hands on a cube of candidates. Rows, columns, digits and places are 1..9.
#pragma once

#include "logic/candidate_cube.hpp"

namespace sdk::test {

/// The cell has exactly these candidates, and they are counted.
inline void set_candidates(CandidateCube& cube, Cell cell, NineSet digits) {
  for (const int digit : NineSet::all() - digits) cube.remove(cell, digit);
  cube.set_count(cell, cube.digits(cell).count());
}

/// The digit keeps only these places in the unit; counts follow.
inline void keep_places(CandidateCube& cube, Unit unit, int digit, NineSet places) {
  for (const int place : NineSet::all() - places) {
    const Cell cell = unit.cell(place);
    set_candidates(cube, cell, cube.digits(cell) - NineSet{digit});
  }
}

}  // namespace sdk::test
