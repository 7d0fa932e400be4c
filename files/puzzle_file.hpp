// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Puzzle files: nine lines of nine cells, a blank and a digit or "." each, ended by CR LF.
#pragma once

#include <string>

namespace sdk {

/// What the file dialogs offer, in every language.
inline constexpr const char* file_filter = "Sudoku files (.sdk)|*.sdk|";

/// Writes the displayed grid to the file `nom` and leaves it in `ChaineGrille`, zeros as blanks.
/// Throws RuntimeError naming the file when it cannot be written.
void Save_Grille(const std::string& nom);

}  // namespace sdk
