// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The step-by-step solver's tables: all the state it has.
#pragma once

#include <array>
#include <cstdint>

#include "board/bool16.hpp"
#include "board/square.hpp"
#include "pas_a_pas/candidate_cube.hpp"
#include "pas_a_pas/observer.hpp"
#include "pas_a_pas/step.hpp"

namespace sdk {

/// For each digit and cell, the cells that are linked to it; read as the table of ones and zeros
/// `(digit, cell, cell)`.
class LinkTable {
 public:
  int operator()(int digit, int cell1, int cell2) const { return of(digit, cell1).contains(cell2); }
  const CellSet& of(int digit, int cell) const { return links_[index(digit, cell)]; }
  CellSet& of(int digit, int cell) { return links_[index(digit, cell)]; }

 private:
  static std::size_t index(int digit, int cell) {
    return static_cast<std::size_t>((digit - 1) * 82 + cell);
  }

  std::array<CellSet, 9 * 82> links_{};
};

/// The two colours of a chain; read as the table of 1, -1 and 0 (uncoloured) by cell number.
class ColourTable {
 public:
  int operator()(int cell) const { return cells_[0].contains(cell) - cells_[1].contains(cell); }
  /// `colour` is 1 or -1; the cell must be uncoloured.
  void paint(int cell, int colour) { cells_[colour == 1 ? 0 : 1].insert(cell); }
  const CellSet& cells(int colour) const { return cells_[colour == 1 ? 0 : 1]; }
  CellSet coloured() const { return cells_[0] | cells_[1]; }

 private:
  std::array<CellSet, 2> cells_{};
};

/// Rows, columns and digits are 1..9, cell numbers 1..81.
struct SolverTables {
  CandidateCube Candidats;
  /// The two candidates, the smaller first, that the cell had when it last had two; zeros before.
  Square<std::array<std::uint8_t, 2>> Paires;
  Square<std::uint8_t> GrilleDepart;  ///< values as init_candidats read them
  Bool16 GrilleFinie;                 ///< a run found no empty cell
  Bool16 SuggestionTrouvee;           ///< a technique fired; nothing depends on it
  Bool16 SansMarqueMorte;             ///< a dead cell is not to be marked; nothing sets it
  LinkTable LienFort;                 ///< the only two places of a digit in a unit
  LinkTable LienFaible;               ///< places of a digit that merely see each other
  ColourTable Couleur;

  Step step;                           ///< the technique being tried, or the last that fired
  bool running = false;                ///< suggestion is at work
  bool run_wanted = false;             ///< it is to start (over)
  SolverObserver* observer = nullptr;  ///< null for none
};

inline SolverTables solver;

}  // namespace sdk
