// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A game in which hints are asked for, and a record of what the solver did. Rows, columns, digits
/// and places are 1..9.
#pragma once

#include <string>

#include "pas_a_pas/tables.hpp"
#include "tests/logic/candidates.hpp"
#include "tests/support/game.hpp"

namespace sdk::test {

/// Entry `number` (1..40) of the library, for drawing.
std::string library_puzzle(int number);

/// Such as "5 fired" for a technique by its place, "naked r1c2=3", "hidden r1c2=3", "completed",
/// "dead" or "exhausted".
std::string told(const Event& event);

class HintGame : public Game {
 public:
  HintGame();

  Lines events;  ///< of all runs that a hint made, also those that an accepted offer started

  /// Presses the hint button.
  void hint();
  /// The texts of all Yes/No boxes so far.
  Lines questions() const;
  /// The cells of `MSR` with that mark, such as "r1c1 r9c9".
  std::string marked(int mode) const;
  const DisplayCell& candidates(int row, int column) const {
    return window.MSR.cell(row - 1, column - 1);
  }

 private:
  void record_run();
};

/// The same as in tests/logic/candidates.hpp, in `Candidats`.
inline void set_candidates(Cell cell, NineSet digits) { set_candidates(Candidats, cell, digits); }
inline void keep_places(Unit unit, int digit, NineSet places) {
  keep_places(Candidats, unit, digit, places);
}

}  // namespace sdk::test
