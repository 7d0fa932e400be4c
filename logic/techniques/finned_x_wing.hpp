// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The finned X-wing, as a pattern.
#pragma once

#include <array>

#include "logic/deduction.hpp"
#include "logic/position.hpp"

namespace sdk {

/// A digit, two base lines of one kind, and two cover lines that cross them.
struct FinnedWing {
  UnitKind base;
  int digit;
  std::array<int, 2> base_lines, cover_lines;

  Unit base_line(std::size_t n) const { return {base, base_lines[n]}; }
  Unit cover_line(std::size_t n) const { return {crossing(base), cover_lines[n]}; }
  Cell corner(std::size_t line, std::size_t cover) const {
    return base_line(line).cell(cover_lines[cover]);
  }
};

/// What follows when every fin lies in the target's box: the target loses the digit. Whether they
/// do is not asked.
Deduction deduce_from(const Position& position, const FinnedWing& wing, Cell target);

}  // namespace sdk
