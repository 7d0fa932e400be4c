// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A game in which hints are asked for, a record of what the solver did, and hands on its tables.
/// Rows, columns, digits and places are 1..9.
#pragma once

#include <string>

#include "pas_a_pas/observer.hpp"
#include "pas_a_pas/tables.hpp"
#include "tests/support/game.hpp"

namespace sdk::test {

/// "round"; "5 fired" or "5 nothing" for a technique by its place; "naked r1c2=3", "hidden r1c2=3";
/// "completed", "dead", "exhausted".
class SolverRecorder : public SolverObserver {
 public:
  Lines events;

  void recomputed() override { events.push_back("round"); }
  void tried(const Technique& technique, bool changed) override;
  void offered(Single kind, Cell cell, int digit) override;
  void ended(RunEnd end) override;
};

std::string name_of(Cell cell);

/// Entry `number` (1..40) of the library, for drawing.
std::string library_puzzle(int number);

class HintGame : public Game {
 public:
  HintGame();
  ~HintGame();

  SolverRecorder solving;

  /// Presses the hint button.
  void hint() { window.click(Control::Command8); }
  /// The texts of all Yes/No boxes so far.
  Lines questions() const;
  /// The cells of `MSR` with that mark, such as "r1c1 r9c9".
  std::string marked(int mode) const;
  const DisplayCell& candidates(int row, int column) const {
    return window.MSR.cell(row - 1, column - 1);
  }
};

/// The cell has exactly these candidates, and they are counted.
void set_candidates(Cell cell, NineSet digits);
/// The digit keeps only these places in the unit; counts follow.
void keep_places(Unit unit, int digit, NineSet places);

}  // namespace sdk::test
