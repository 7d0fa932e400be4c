// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The walk through a puzzle: hints until one comes to another end than an offer.
#pragma once

#include "logic/run.hpp"

namespace sdk {

/// Runs one hint after another on the grid of values (0 for an empty cell), enters each digit that
/// is offered, and shows every event to `visit` in its order. Each hint starts afresh from the
/// grid: what the one before removed is forgotten.
template <class Visit>
void play(Square<std::int16_t> grid, Visit visit) {
  for (;;) {
    Run run(grid);
    while (!run.is_over()) visit(run.next());
    const Event& last = run.events().back();
    if (last.kind != EventKind::offer) return;
    const auto [cell, digit] = *last.deduction.placement;
    grid(cell.row, cell.column) = static_cast<std::int16_t>(digit);
  }
}

}  // namespace sdk
