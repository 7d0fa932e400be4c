// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Swordfish and jellyfish, as patterns.
#pragma once

#include "logic/deduction.hpp"
#include "logic/position.hpp"

namespace sdk {

/// A digit, three or four base lines, and as many cover lines that cross them.
struct Fish {
  UnitKind base;
  NineSet base_lines, cover_lines;
  int digit;

  Cell crossing_at(int base_line, int cover_line) const {
    return Unit{base, base_line}.cell(cover_line);
  }
};

/// What follows when all places of the digit on the base lines lie on the cover lines: it leaves
/// the rest of the cover lines. Whether they do is not asked.
Deduction deduce_from(const Position& position, const Fish& fish);

}  // namespace sdk
