// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The solve command: the bridge to an external solver program, which falls back on the search.
///
/// The exchange takes two files in the temporary folder: "00000.000", the grid as 81 pairs of a
/// digit ("0" for an empty cell) and a blank on one line without an end, and "out.000", whose first
/// line is the answer: 81 digits, blanks allowed, or a "0" for no solution.
#pragma once

#include <cstdint>

#include "board/bool16.hpp"

namespace sdk {

/// The solve command. Hands the displayed grid to "zolv.exe" of the program's folder and shows its
/// answer; without that program, runs Resoudre. Makes the program's folder the current one. Any
/// failure ends it silently, leaving everything as it stands at that moment.
void Bouton_GO_Click();

/// Leaves the displayed grid in `ChaineGrille`, zeros for empty cells, and writes the input file.
/// Throws RuntimeError naming the file.
void sauve_sudo();

/// Reads the answer into `Grille` and `ChaineSolution`, or tells the player that there is no
/// solution. Throws RuntimeError naming the file when the answer is missing, short or no number;
/// what was read before the fault stays.
void read_sudo();

/// Whether the process is still running: it exists, and its exit code is 259. Never for id 0.
Bool16 ProcessusActif(std::uint32_t id);

}  // namespace sdk
