// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The pick of a stored puzzle, and its disguise.
#pragma once

#include <cstdint>

#include "board/bool16.hpp"
#include "board/square.hpp"
#include "puzzles/stock/library_table.hpp"
#include "puzzles/stock/random.hpp"

namespace sdk {

/// The uniform generator behind every puzzle.
inline Random generator;

/// Reseeds the generator from the clock and fills both squares with one of the eight entries of
/// `NiveauCourant`, each equally likely: digits 1..9, and true where the puzzle shows a given.
/// Shows the number of givens in `Label`. Throws std::out_of_range for a level outside 0..4.
void Choisir_Grille(Square<std::uint8_t>& resGrille, Square<Bool16>& Masque);

/// Makes a new puzzle: Choisir_Grille, then Transformer_Grille.
void Nouvelle_Grille(Square<std::uint8_t>& resGrille, Square<Bool16>& Masque);

}  // namespace sdk
