// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What a technique found: a value that can be kept, told, drawn and applied.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "board/cell_set.hpp"
#include "board/cells.hpp"
#include "board/nine_set.hpp"
#include "logic/premise.hpp"

namespace sdk {

struct Technique;

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
inline constexpr std::size_t role_count = static_cast<std::size_t>(Role::second_colour) + 1;

/// What fired, where a technique has several rules.
enum class Rule {
  only,                 ///< the technique has no other
  odd_corner,           ///< unique rectangle: three corners hold only the two digits
  two_share_a_digit,    ///< unique rectangle: two corners have the same third digit
  bound_to_roof,        ///< unique rectangle: one of the digits must stand on the roof
  three_share_a_digit,  ///< unique rectangle: three corners have the same third digit
  bound_to_diagonal,    ///< unique rectangle: one of the digits must stand on a diagonal
  with_fin,             ///< finned X-wing
  without_fin,          ///< finned X-wing whose base lines lack every fin
  trap,                 ///< colouring: a cell sees both colours
  wrap,                 ///< colouring: a colour sees itself
};

/// The looks of a cell of the candidate grid, by the numbers of the mark modes.
enum class Mark {
  none = 0,
  removed = 3,  ///< lost a candidate, or is dead
  support = 4,  ///< belongs to the pattern, or is offered
  value = 5,
  second = 6,  ///< pincers, fins, ends of a link, the second colour
};

/// What single candidates of a cell are pointed out for.
enum class Emphasis { support, removed };

/// One thing to draw: a mark, if there is one, then candidates that are pointed out.
struct Highlight {
  Cell cell;
  std::optional<Mark> mark;
  NineSet digits;  ///< of those that the deduction has not taken from the cell before
  Emphasis emphasis = Emphasis::support;
  bool operator==(const Highlight&) const = default;
};

struct Placement {
  Cell cell;
  int digit;
  bool operator==(const Placement&) const = default;
};

/// Which technique and rule fired, where, on what, and what follows: candidates to remove, or a
/// digit to place. Rows, columns, boxes and digits are 1..9, cell numbers 1..81.
struct Deduction {
  const Technique* technique = nullptr;  ///< its row; null for a dead cell
  Rule rule = Rule::only;
  /// Where the pattern lies, or the first of its lines; unset where it is made of cells alone.
  Unit unit{};
  Unit other_unit{};
  NineSet digits{};                         ///< of the pattern
  std::array<CellSet, role_count> cells{};  ///< by role
  std::array<CellSet, 10> removed{};        ///< by digit: the cells that lose it
  std::optional<Placement> placement{};
  /// All that the conclusion needs; for fish every base line, for colouring every link that joins
  /// the cells it uses.
  std::vector<Premise> premises{};
  /// The premises imply the conclusion by nothing but that a cell holds one digit and cells that
  /// see each other differ.
  bool certain = true;
  std::vector<Highlight> highlights{};  ///< in the order in which they are drawn

  CellSet& cells_as(Role role) { return cells[static_cast<std::size_t>(role)]; }
  const CellSet& cells_as(Role role) const { return cells[static_cast<std::size_t>(role)]; }
  const CellSet& losers_of(int digit) const { return removed[static_cast<std::size_t>(digit)]; }
  bool removes_something() const;
  bool operator==(const Deduction&) const = default;
};

}  // namespace sdk
