// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/pas_a_pas/hint_game.hpp"

#include "board/grid_text.hpp"
#include "puzzles/stock/entry_text.hpp"

namespace sdk::test {

std::string library_puzzle(int number) {
  return puzzle_text(BibliothequeGrilles.at(static_cast<std::size_t>(number - 1)));
}

namespace {

std::string told_offer(const Deduction& deduction) {
  const auto [cell, digit] = *deduction.placement;
  return (is_naked_single(deduction) ? "naked " : "hidden ") + name_of(cell) + "=" +
         std::to_string(digit);
}

}  // namespace

std::string told(const Event& event) {
  switch (event.kind) {
    case EventKind::removal:
      return std::to_string(event.deduction.technique->place) + " fired";
    case EventKind::offer:
      return told_offer(event.deduction);
    case EventKind::completed:
      return "completed";
    case EventKind::dead:
      return "dead";
    default:
      return "exhausted";
  }
}

HintGame::HintGame() {
  solver.GrilleFinie = solver.SuggestionTrouvee = false;
  desktop.at_box = [this](const Box& box) {
    if (box.buttons == Buttons::yes_no) record_run();
  };
}

void HintGame::record_run() {
  if (!solver.hint) return;  // a single was placed without a run
  for (const Event& event : solver.hint->events()) events.push_back(told(event));
}

void HintGame::hint() {
  window.click(Control::Command8);
  // A run that offers something has been recorded when it asked.
  if (solver.hint.value().events().back().kind != EventKind::offer) record_run();
}

Lines HintGame::questions() const {
  Lines texts;
  for (const Box& box : desktop.boxes)
    if (box.buttons == Buttons::yes_no) texts.push_back(box.text);
  return texts;
}

std::string HintGame::marked(int mode) const {
  std::string names;
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    if (candidates(cell.row, cell.column).mark != mode) continue;
    names += (names.empty() ? "" : " ") + name_of(cell);
  }
  return names;
}

}  // namespace sdk::test
