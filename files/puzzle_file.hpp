// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Puzzle files: nine lines of nine cells, a blank and a digit or "." each, ended by CR LF.
#pragma once

#include <string>

namespace sdk {

/// What the file dialogs offer, in every language.
inline constexpr const char* file_filter = "Sudoku files (.sdk)|*.sdk|";

/// Writes the displayed grid to the file `nom` and leaves it in `ChaineGrille`, zeros as blanks.
/// Throws RuntimeError naming the file when it cannot be written; a file that was there is then
/// as it was.
void Save_Grille(const std::string& nom);

/// Reads the file `nom`, quotes removed, into `ChaineGrille`: all lines joined, blanks dropped, "."
/// an empty cell, everything else a given. Shows the name as the window's title and the number of
/// givens among the first 81 cells. Throws RuntimeError naming the file when it cannot be read or
/// is empty.
void ouvrir(const std::string& nom);

/// The 81 texts of `MSF`, row-major, joined.
std::string displayed_grid();

}  // namespace sdk
