// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The step-by-step solver's tables: all the state it has.
#pragma once

#include <cstdint>
#include <optional>

#include "board/bool16.hpp"
#include "board/square.hpp"
#include "logic/run.hpp"
#include "logic/techniques/colouring.hpp"

namespace sdk {

/// Rows, columns and digits are 1..9, cell numbers 1..81.
struct SolverTables {
  Position position;
  Square<std::uint8_t> GrilleDepart;  ///< values as init_candidats read them
  Bool16 GrilleFinie;                 ///< a run found no empty cell
  Bool16 SuggestionTrouvee;           ///< a technique fired; nothing depends on it
  Bool16 SansMarqueMorte;             ///< a dead cell is not to be marked; nothing sets it
  ColourTable Couleur;

  std::optional<Run> hint;  ///< the last run of suggestion, from its start; none before the first
  bool running = false;     ///< suggestion is at work
  bool run_wanted = false;  ///< it is to start (over)
};

inline SolverTables solver;

// Tables under their own names.
inline CandidateCube& Candidats = solver.position.candidates;
inline PairTable& Paires = solver.position.pairs;
inline LinkTable& LienFort = solver.position.links.strong;
inline LinkTable& LienFaible = solver.position.links.weak;
inline ColourTable& Couleur = solver.Couleur;

}  // namespace sdk
