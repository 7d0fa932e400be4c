// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The forty stored puzzles, eight a level, and the pick of one of them.
#pragma once

#include <array>
#include <string_view>

#include "grid/types.hpp"

namespace sdk {

/// One stored puzzle: two texts of 81 characters, row-major. `mask` holds "1" for a given and "0"
/// for an empty cell, `solution` the digits of a complete valid grid.
struct LibraryEntry {
  std::string_view mask;
  std::string_view solution;
};

/// Entry number n is at index n - 1; level v (0..4) owns the eight entries from number 8v + 1.
/// Entry 33 has several solutions; every other entry's mask leaves exactly one.
extern const std::array<LibraryEntry, 40> BibliothequeGrilles;

/// Reseeds the generator from the clock and fills both squares with one of the eight entries of
/// `NiveauCourant`, each equally likely: digits 1..9, and true where the puzzle shows a given.
/// Shows the number of givens in `Label`. Throws std::out_of_range for a level outside 0..4.
void Choisir_Grille(Square<std::uint8_t>& resGrille, Square<Bool16>& Masque);

/// Makes a new puzzle: Choisir_Grille, then Transformer_Grille.
void Nouvelle_Grille(Square<std::uint8_t>& resGrille, Square<Bool16>& Masque);

}  // namespace sdk
