// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Simple colouring: along the strong links of a digit two colours alternate, and exactly one of
// them holds it. A cell that sees both cannot (trap); a colour that sees itself is false (wrap).

#include "logic/techniques/colouring.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

#include "logic/draft.hpp"
#include "logic/techniques/chains.hpp"
#include "logic/techniques/finders.hpp"
#include "logic/techniques/needed.hpp"

namespace sdk {

void spread_colours(ColourTable& colours, const LinkTable& strong, int cell, int digit) {
  for (const int linked : strong.of(digit, cell)) {
    if (colours(linked) != 0) continue;
    colours.paint(linked, -colours(cell));
    spread_colours(colours, strong, linked, digit);
  }
}

namespace {

Draft begin_draft(const Position& position, const ColourTable& colours, int digit, Rule rule) {
  Draft draft(position);
  draft.deduction.rule = rule;
  draft.deduction.digits = {digit};
  draft.deduction.cells_as(Role::first_colour) = colours.cells(1);
  draft.deduction.cells_as(Role::second_colour) = colours.cells(-1);
  return draft;
}

/// A chain between two cells of both colours that the cell sees.
CellSet chain_seen_from(int cell, const Position& position, const ColourTable& colours, int digit) {
  const CellSet first = colours.cells(1) & peers_of(cell);
  return chain_between(position.links.strong, colours, *first.begin(),
                       colours.cells(-1) & peers_of(cell), digit);
}

bool sees_one_of(int cell, const CellSet& cells) { return !(peers_of(cell) & cells).empty(); }

/// The cell sees both ends of a chain among the coloured ones.
bool is_trapped(int cell, const Position& position, const ColourTable& colours, int digit) {
  const CellSet goals = colours.cells(-1) & peers_of(cell);
  for (const int first : colours.cells(1) & peers_of(cell))
    if (!chain_between(position.links.strong, colours, first, goals, digit).empty()) return true;
  return false;
}

/// As few of the cells as still trap all that lose the digit.
CellSet needed_to_trap(const CellSet& losers, const CellSet& cells, const Position& position,
                       const ColourTable& colours, int digit) {
  return needed_of(cells, [&](const CellSet& some) {
    const ColourTable part = colours.within(some);
    for (const int loser : losers)
      if (!is_trapped(loser, position, part, digit)) return false;
    return true;
  });
}

}  // namespace

std::optional<Deduction> find_trap(const Position& position, const ColourTable& colours,
                                   int digit) {
  Draft draft = begin_draft(position, colours, digit, Rule::trap);
  CellSet used;
  for (const int cell : position.candidates.cells_with(digit) - colours.coloured())
    if (sees_one_of(cell, colours.cells(1)) && sees_one_of(cell, colours.cells(-1))) {
      draft.eliminate_shown(cell_at(cell), {digit});
      used |= chain_seen_from(cell, position, colours, digit);
    }
  if (!draft.deduction.removes_something()) return std::nullopt;
  used = needed_to_trap(draft.deduction.losers_of(digit), used, position, colours, digit);
  rest_on_links(draft, position, used, digit);
  return std::move(draft).finished();
}

namespace {

/// The cells of the colour that chains among the coloured cells join to this one.
CellSet joined_to(int cell, const Position& position, const ColourTable& colours, int colour,
                  int digit) {
  CellSet joined;
  for (const int other : colours.cells(colour))
    if (!chain_between(position.links.strong, colours, other, {cell}, digit).empty())
      joined.insert(other);
  return joined;
}

/// A cell of its colour that the clashing one sees is joined to it, so the other colour holds the
/// digit; and each of the colour sees a joined cell of the other.
bool wraps_all(int clashing, const Position& position, const ColourTable& colours, int digit) {
  const int colour = colours(clashing);
  if (!sees_one_of(clashing, joined_to(clashing, position, colours, colour, digit))) return false;
  const CellSet holding = joined_to(clashing, position, colours, -colour, digit);
  for (const int loser : colours.cells(colour))
    if (!sees_one_of(loser, holding)) return false;
  return true;
}

/// One of the cells that clash joins all of their colour. Unlike the trap, the wrap gives no marks
/// of its own: the display of the colours shows it.
Deduction deduce_wrap(const Position& position, const ColourTable& colours, int clashing,
                      int digit) {
  Draft draft = begin_draft(position, colours, digit, Rule::wrap);
  const CellSet& losers = colours.cells(colours(clashing));
  CellSet used;
  for (const int number : losers) {
    used |= chain_between(position.links.strong, colours, number, {clashing}, digit);
    draft.show(cell_at(number), std::nullopt, {digit}, Emphasis::removed);
    draft.eliminate(cell_at(number), {digit});
  }
  used = losers | needed_of(used - losers, [&](const CellSet& some) {
           return wraps_all(clashing, position, colours.within(some | losers), digit);
         });
  rest_on_links(draft, position, used, digit);
  return std::move(draft).finished();
}

}  // namespace

std::optional<Deduction> find_wrap(const Position& position, const ColourTable& colours,
                                   int digit) {
  for (const int cell : colours.coloured())
    if (sees_one_of(cell, colours.cells(colours(cell))))
      return deduce_wrap(position, colours, cell, digit);
  return std::nullopt;
}

namespace {

Mark mark_of(int colour) {
  if (colour == 0) return Mark::none;
  return colour == 1 ? Mark::support : Mark::second;
}

}  // namespace

std::vector<Highlight> colour_marks(const Position& position, const ColourTable& colours) {
  std::vector<Highlight> marks;
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    if (position.candidates.value(cell) == 0)
      marks.push_back({cell, mark_of(colours(number)), {}, Emphasis::support});
  }
  return marks;
}

namespace {

ColourTable colours_from(const Position& position, int cell, int digit) {
  const LinkTable& strong = position.links.strong;
  const int linked = *strong.of(digit, cell).begin();
  ColourTable colours;
  colours.paint(cell, 1);
  colours.paint(linked, -1);
  spread_colours(colours, strong, cell, digit);
  spread_colours(colours, strong, linked, digit);
  return colours;
}

std::optional<Deduction> find_with(const Position& position, const ColourTable& colours,
                                   int digit) {
  auto found = find_trap(position, colours, digit);
  if (!found) found = find_wrap(position, colours, digit);
  if (found)
    std::ranges::copy(colour_marks(position, colours), std::back_inserter(found->highlights));
  return found;
}

/// A chain on which both rules failed has only one colouring, up to which colour is which: had it
/// two cells of one colour linked, the wrap would have applied. So its other links would fail as
/// well, and each chain is tried from its first link only.
std::optional<Deduction> find_of(const Position& position, int digit) {
  CellSet tried;
  for (int cell = 1; cell <= 81; ++cell) {
    if (position.links.strong.of(digit, cell).empty() || tried.contains(cell)) continue;
    const ColourTable colours = colours_from(position, cell, digit);
    if (auto found = find_with(position, colours, digit)) return found;
    tried |= colours.coloured();
  }
  return std::nullopt;
}

}  // namespace

std::optional<Deduction> find_simple_colouring(const Position& position) {
  for (int digit = 1; digit <= 9; ++digit)
    if (auto found = find_of(position, digit)) return found;
  return std::nullopt;
}

}  // namespace sdk
