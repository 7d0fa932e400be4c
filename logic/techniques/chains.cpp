// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "logic/techniques/chains.hpp"

#include <array>
#include <deque>

namespace sdk {

void rest_on_link(Draft& draft, const Position& position, int cell1, int cell2, int digit) {
  for (const Unit unit : units_of(cell_at(cell1)))
    if (unit.contains(cell_at(cell2)) && digit_count(position, unit, digit) == 2)
      return draft.rest_on(unit, digit);
}

namespace {

/// For each cell that has been reached, the one before it; 0 for the others, and the start's is
/// itself.
using Steps = std::array<int, 82>;

int& step_to(Steps& steps, int cell) { return steps[static_cast<std::size_t>(cell)]; }

/// Goes along the links, nearest cells first; the goal that is reached first, 0 when none is.
int find_goal(Steps& steps, const LinkTable& strong, const ColourTable& colours, int from,
              const CellSet& goals, int digit) {
  std::deque<int> reached{from};
  step_to(steps, from) = from;
  for (; !reached.empty(); reached.pop_front()) {
    const int cell = reached.front();
    if (goals.contains(cell)) return cell;
    for (const int linked : strong.of(digit, cell) & colours.cells(-colours(cell))) {
      if (step_to(steps, linked) != 0) continue;
      step_to(steps, linked) = cell;
      reached.push_back(linked);
    }
  }
  return 0;
}

}  // namespace

CellSet chain_between(const LinkTable& strong, const ColourTable& colours, int from,
                      const CellSet& goals, int digit) {
  Steps steps{};
  CellSet chain;
  int cell = find_goal(steps, strong, colours, from, goals, digit);
  for (; cell != 0 && cell != from; cell = step_to(steps, cell)) chain.insert(cell);
  if (!chain.empty() || goals.contains(from)) chain.insert(from);
  return chain;
}

void rest_on_links(Draft& draft, const Position& position, const CellSet& cells, int digit) {
  for (const int cell : cells)
    for (const int linked : position.links.strong.of(digit, cell) & cells)
      if (cell < linked) rest_on_link(draft, position, cell, linked, digit);
}

}  // namespace sdk
