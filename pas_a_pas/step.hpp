// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What the solver found and did last, left behind for whoever wants to tell the player.
#pragma once

#include <array>
#include <cstddef>

#include "board/cell_set.hpp"
#include "board/cells.hpp"
#include "board/nine_set.hpp"

namespace sdk {

/// What a cell does in a pattern.
enum class Role {
  pattern,  ///< pair, triple and quad cells, corners, crossings, a single or dead cell
  pivot,
  pincer,
  roof,  ///< corners of a rectangle that have more than its two digits
  fin,
  link_end,
  first_colour,
  second_colour,
};
inline constexpr std::size_t role_count = 8;

/// Valid once a technique has returned true, a single is offered or a dead cell is found, until the
/// driver tries the next technique.
struct Step {
  int place = 0;    ///< in the fixed order; 0 for a single or a dead cell
  int variant = 0;  ///< what fired, where a technique has several rules (from 1)
  Unit unit{};      ///< where the pattern lies, for techniques of one or two units
  Unit other_unit{};
  NineSet digits;                           ///< of the pattern
  std::array<CellSet, role_count> cells{};  ///< by role
  std::array<CellSet, 10> removed{};        ///< by digit: the cells that lost it

  CellSet& cells_as(Role role) { return cells[static_cast<std::size_t>(role)]; }
  const CellSet& cells_as(Role role) const { return cells[static_cast<std::size_t>(role)]; }
};

}  // namespace sdk
