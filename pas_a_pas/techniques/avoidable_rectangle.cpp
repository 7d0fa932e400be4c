// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Avoidable rectangle: three solved corners that were open choices between x and y. Had the fourth
// the digit of its diagonal partner, the four could be swapped.

#include <array>

#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/rectangles.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

/// The open corner, the corner across the diagonal, and the two beside it.
struct OpenRectangle {
  Cell open, partner, neighbour1, neighbour2;
};

/// The corner was solved as `digit` after it had been a choice between x and y. The pair store
/// keeps what a cell had before it was solved; that is what this reads.
bool was_choice(Cell corner, int digit, int x, int y) {
  const std::array<std::uint8_t, 2>& pair = solver.Paires(corner.row, corner.column);
  return solver.Candidats.value(corner) == digit && pair[0] == x && pair[1] == y;
}

bool is_avoidable(const OpenRectangle& corners, int partner_digit, int neighbour_digit, int x,
                  int y) {
  return was_choice(corners.partner, partner_digit, x, y) &&
         was_choice(corners.neighbour1, neighbour_digit, x, y) &&
         was_choice(corners.neighbour2, neighbour_digit, x, y) &&
         solver.Candidats.has(corners.open, partner_digit) &&
         solver.Candidats.count(corners.open) > 1;
}

void remove_from_open(const OpenRectangle& corners, int digit, int x, int y) {
  solver.step.digits = {x, y};
  for (const Cell solved : {corners.partner, corners.neighbour1, corners.neighbour2})
    support(solved, Role::pattern, {});
  solver.step.cells_as(Role::roof).insert(corners.open);
  eliminate_shown(corners.open, {digit});
}

bool fires_at(const OpenRectangle& corners, int x, int y) {
  for (const int digit : {x, y}) {
    if (!is_avoidable(corners, digit, x + y - digit, x, y)) continue;
    remove_from_open(corners, digit, x, y);
    return true;
  }
  return false;
}

/// Three solved corners at least; all other rectangles are left at once.
bool could_fire(const Corners& corners) {
  int solved = 0;
  for (const Cell corner : corners) solved += solver.Candidats.value(corner) != 0;
  return solved >= 3;
}

bool fires_on(const Corners& corners) {
  if (!could_fire(corners)) return false;
  const auto& [p, q, r, s] = corners;
  for (int x = 1; x <= 8; ++x)
    for (int y = x + 1; y <= 9; ++y)
      if (fires_at({s, p, q, r}, x, y) || fires_at({r, q, p, s}, x, y) ||
          fires_at({q, r, p, s}, x, y) || fires_at({p, s, q, r}, x, y))
        return true;
  return false;
}

}  // namespace

Bool16 rectangle_evitable() { return some_rectangle(fires_on); }

}  // namespace sdk
