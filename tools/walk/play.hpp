// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The walk through a puzzle: hints until one comes to another end than an offer.
#pragma once

#include "logic/run.hpp"

namespace sdk {

/// Runs one hint after another on the grid of values (0 for an empty cell), enters each digit that
/// is offered, and shows all events of each hint to `visit`. Each hint starts afresh from the grid:
/// what the one before removed is forgotten.
template <class Visit>
void play_hints(Square<std::int16_t> grid, Visit visit) {
  for (;;) {
    Run run(grid);
    while (!run.is_over()) run.next();
    visit(run.events());
    const Event& last = run.events().back();
    if (last.kind != EventKind::offer) return;
    const auto [cell, digit] = *last.deduction.placement;
    grid(cell.row, cell.column) = static_cast<std::int16_t>(digit);
  }
}

/// The same, and `visit` gets one event after the other.
template <class Visit>
void play(const Square<std::int16_t>& grid, Visit visit) {
  play_hints(grid, [&](const std::deque<Event>& hint) {
    for (const Event& event : hint) visit(event);
  });
}

}  // namespace sdk
