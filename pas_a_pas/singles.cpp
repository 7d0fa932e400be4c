// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "pas_a_pas/singles.hpp"

#include <string>

#include "game/window.hpp"
#include "logic/techniques.hpp"
#include "pas_a_pas/driver.hpp"
#include "pas_a_pas/tables.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

void accept(Placement placement) {
  Window& window = sudoku();
  const auto [cell, digit] = placement;
  window.MSF.set_text(cell.row - 1, cell.column - 1, std::to_string(digit));
  window.maj_indices();
  window.trace_ligne();
  window.set_focus(Control::MSF);
  suggestion();
}

void enter(Placement placement) { apply(Deduction{.placement = placement}, solver.position); }

/// `message` names the technique.
void offer(Placement placement, Message message) {
  const auto [cell, digit] = placement;
  marque_case(cell.row, cell.column, Mark::support);
  sudoku().trace_ligne();
  const std::string question = text_of(message) + std::to_string(cell.row) + " C" +
                               std::to_string(cell.column) + " " + std::to_string(digit);
  sudoku().tell_hint();
  const Answer answer =
      sudoku().desktop().message_box(question, Icon::none, Buttons::yes_no, globals.TitreFenetre);
  sudoku().leave_step();
  if (answer == Answer::yes) accept(placement);
}

Bool16 find_and_place(const Technique& technique) {
  const auto found = find_by(technique, solver.position);
  if (found) place(*found);
  return found.has_value();
}

}  // namespace

Bool16 singleton_nu() { return find_and_place(technique_named("naked_single")); }

Bool16 singleton_cache() { return find_and_place(technique_named("hidden_single")); }

void place_singleton_nu(int row, int column, int digit) {
  enter({{row, column}, digit});
  if (globals.ModePasAPas) offer({{row, column}, digit}, Message::naked_single);
}

// Unlike a naked single, a hidden one is marked and offered whether or not a hint was asked for, so
// that every run that finds one asks.
void place_singleton_cache(int row, int column, int digit) {
  enter({{row, column}, digit});
  offer({{row, column}, digit}, Message::hidden_single);
}

void place(const Deduction& single) {
  const auto [cell, digit] = *single.placement;
  (is_naked_single(single) ? place_singleton_nu : place_singleton_cache)(cell.row, cell.column,
                                                                         digit);
}

}  // namespace sdk
