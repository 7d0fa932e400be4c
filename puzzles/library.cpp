// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "puzzles/library.hpp"

#include <algorithm>
#include <stdexcept>

#include "game/window.hpp"
#include "puzzles/stock/transformer.hpp"

namespace sdk {

namespace {

constexpr int entries_per_level = 8;

const LibraryEntry& pick_entry() {
  if (globals.NiveauCourant < 0 || globals.NiveauCourant > 4)
    throw std::out_of_range("no puzzle of level " + std::to_string(globals.NiveauCourant));
  const int first = globals.NiveauCourant * entries_per_level;
  return BibliothequeGrilles.at(
      static_cast<std::size_t>(first + generator.below(entries_per_level)));
}

}  // namespace

void Choisir_Grille(Square<std::uint8_t>& resGrille, Square<Bool16>& Masque) {
  generator.reseed(sudoku().desktop().random_seed());
  const LibraryEntry& entry = pick_entry();
  sudoku().show_count(static_cast<int>(std::ranges::count(entry.mask, '1')));
  for (int i = 1; i <= 9; ++i)
    for (int j = 1; j <= 9; ++j) {
      const auto k = static_cast<std::size_t>((i - 1) * 9 + j - 1);
      Masque(i, j) = entry.mask[k] == '1';
      resGrille(i, j) = static_cast<std::uint8_t>(entry.solution[k] - '0');
    }
}

void Nouvelle_Grille(Square<std::uint8_t>& resGrille, Square<Bool16>& Masque) {
  Choisir_Grille(resGrille, Masque);
  Transformer_Grille(generator, resGrille, Masque);
}

}  // namespace sdk
