// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Hands on a cube of candidates. Rows, columns, digits and places are 1..9.
#pragma once

#include "logic/position.hpp"

namespace sdk::test {

/// Every cell is empty, has all nine candidates and the count 9.
inline CandidateCube open_cube() { return open_position({}).candidates; }

/// The cell holds the value, no candidate, and the count 0.
inline void fill(CandidateCube& cube, Cell cell, int value) {
  cube.clear(cell);
  cube.set_value(cell, value);
}

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
