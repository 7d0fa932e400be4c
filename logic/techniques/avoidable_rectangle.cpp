// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Avoidable rectangle: three solved corners that were open choices between x and y. Had the fourth
// the digit of its diagonal partner, the four could be swapped.

#include <algorithm>
#include <array>
#include <utility>

#include "logic/draft.hpp"
#include "logic/techniques/finders.hpp"
#include "logic/techniques/rectangles.hpp"

namespace sdk {

namespace {

/// The open corner, the corner across the diagonal, and the two beside it.
struct OpenRectangle {
  Cell open, partner, neighbour1, neighbour2;
};

/// The corner was solved as `digit` after it had been a choice between x and y. The pair store
/// keeps what a cell had before it was solved, and this reads it.
bool was_choice(const Position& position, Cell corner, int digit, int x, int y) {
  const std::array<std::uint8_t, 2>& pair = position.pairs(corner.row, corner.column);
  return position.candidates.value(corner) == digit && pair[0] == x && pair[1] == y;
}

bool is_avoidable(const Position& position, const OpenRectangle& corners, int partner_digit, int x,
                  int y) {
  const int neighbour_digit = x + y - partner_digit;
  return was_choice(position, corners.partner, partner_digit, x, y) &&
         was_choice(position, corners.neighbour1, neighbour_digit, x, y) &&
         was_choice(position, corners.neighbour2, neighbour_digit, x, y) &&
         position.candidates.has(corners.open, partner_digit) &&
         position.candidates.count(corners.open) > 1;
}

Deduction deduce(const Position& position, const OpenRectangle& corners, int digit, int x, int y) {
  Draft draft(position);
  draft.deduction.digits = {x, y};
  draft.deduction.certain = false;  // no fact of the candidates holds what the corners had before
  for (const Cell solved : {corners.partner, corners.neighbour1, corners.neighbour2})
    draft.support(solved, Role::pattern, {});
  draft.deduction.cells_as(Role::roof).insert(corners.open);
  draft.eliminate_shown(corners.open, {digit});
  return std::move(draft).finished();
}

std::optional<Deduction> find_at(const Position& position, const Corners& corners, int x, int y) {
  const auto& [p, q, r, s] = corners;
  for (const OpenRectangle& rectangle :
       {OpenRectangle{s, p, q, r}, {r, q, p, s}, {q, r, p, s}, {p, s, q, r}})
    for (const int digit : {x, y})
      if (is_avoidable(position, rectangle, digit, x, y))
        return deduce(position, rectangle, digit, x, y);
  return std::nullopt;
}

/// The solved cells that are known to have been a choice between two digits.
CellSet former_choices(const Position& position) {
  CellSet cells;
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    if (position.candidates.value(cell) != 0 && position.pairs(cell.row, cell.column)[0] != 0)
      cells.insert(cell);
  }
  return cells;
}

std::optional<Deduction> find_on(const Position& position, const CellSet& former,
                                 const Corners& corners) {
  if (std::ranges::count_if(corners, [&](Cell corner) { return former.contains(corner); }) < 3)
    return std::nullopt;
  for (int x = 1; x <= 8; ++x)
    for (int y = x + 1; y <= 9; ++y)
      if (auto found = find_at(position, corners, x, y)) return found;
  return std::nullopt;
}

}  // namespace

std::optional<Deduction> find_avoidable_rectangle(const Position& position) {
  const CellSet former = former_choices(position);
  if (former.count() < 3) return std::nullopt;
  return find_on_rectangles(
      [&](const Corners& corners) { return find_on(position, former, corners); });
}

}  // namespace sdk
