// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Disguises a puzzle by changes that keep it valid and as difficult as it was.
/// Every draw is of the generator that it is given.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "board/bool16.hpp"
#include "board/square.hpp"
#include "puzzles/stock/random.hpp"

namespace sdk {

/// Transposes at random, exchanges bands, stacks, rows and columns, and relabels the digits. The
/// number of givens stays, and each given stays with its digit's cell.
void Transformer_Grille(Random& generator, Square<std::uint8_t>& resGrille, Square<Bool16>& Masque);

/// Shuffles `list` in place, every order equally likely. Elements must not be negative.
void Melanger(Random& generator, std::span<int> list);

/// Exchanges lines a and b (1..9) in both squares: rows when `direction` is "vertical", columns
/// when it is "horizontal"; any other word changes nothing.
void Echanger(Square<std::uint8_t>& resGrille, Square<Bool16>& Masque, std::string_view direction,
              int a, int b);

/// The same for bands or stacks a and b (1..3), three lines each.
void Echanger_Bandes(Square<std::uint8_t>& resGrille, Square<Bool16>& Masque,
                     std::string_view direction, int a, int b);

/// Digit d (1..9) becomes digits[d - 1] in every cell.
void Renumeroter(std::span<const int, 9> digits, Square<std::uint8_t>& resGrille);

}  // namespace sdk
