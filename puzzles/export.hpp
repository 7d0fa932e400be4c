// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Turning the puzzle in hand into an entry of the library.
#pragma once

namespace sdk {

/// Writes the digits of `Grille` into `MSF` and `ChaineSolution`, zeros included, and appends the
/// entry to "Grilles.txt" in the current folder: the mask of `GrilleInitiale`, the solution and an
/// empty line, each ended by CR LF. The solution is complete right after a solve. Throws
/// RuntimeError naming the file when it cannot be written.
void generate_sudoku();

}  // namespace sdk
