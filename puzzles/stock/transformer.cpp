// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "puzzles/stock/transformer.hpp"

#include <array>
#include <utility>
#include <vector>

namespace sdk {

void Melanger(Random& generator, std::span<int> list) {
  std::vector<int> unused(list.begin(), list.end());
  for (std::size_t i = list.size(); i-- > 0;) {
    const auto chosen = unused.begin() + generator.below(static_cast<int>(i) + 1);
    list[i] = *chosen;
    unused.erase(chosen);
  }
}

void Echanger(Square<std::uint8_t>& resGrille, Square<Bool16>& Masque, std::string_view direction,
              int a, int b) {
  for (int k = 1; k <= 9; ++k) {
    if (direction == "vertical") {
      std::swap(resGrille(a, k), resGrille(b, k));
      std::swap(Masque(a, k), Masque(b, k));
    } else if (direction == "horizontal") {
      std::swap(resGrille(k, a), resGrille(k, b));
      std::swap(Masque(k, a), Masque(k, b));
    }
  }
}

void Echanger_Bandes(Square<std::uint8_t>& resGrille, Square<Bool16>& Masque,
                     std::string_view direction, int a, int b) {
  for (int k = 1; k <= 3; ++k) Echanger(resGrille, Masque, direction, 3 * a - 3 + k, 3 * b - 3 + k);
}

void Renumeroter(std::span<const int, 9> digits, Square<std::uint8_t>& resGrille) {
  for (int i = 1; i <= 9; ++i)
    for (int j = 1; j <= 9; ++j)
      resGrille(i, j) = static_cast<std::uint8_t>(digits[resGrille(i, j) - 1u]);
}

namespace {

std::array<int, 3> draw_trio(Random& generator) {
  std::array<int, 3> trio{1, 2, 3};
  Melanger(generator, trio);
  return trio;
}

void transpose(Square<std::uint8_t>& resGrille, Square<Bool16>& Masque) {
  for (int i = 1; i <= 9; ++i)
    for (int j = i + 1; j <= 9; ++j) {
      std::swap(resGrille(i, j), resGrille(j, i));
      std::swap(Masque(i, j), Masque(j, i));
    }
}

/// Exchanges the three items after `base` in both directions, each k with its drawn partner only
/// when k is smaller. So the third item never comes out first with the others in order, and the
/// reversed trio comes out twice as often as each other arrangement.
template <class Exchange>
void exchange_trios(Random& generator, int base, Exchange exchange) {
  const auto horizontal = draw_trio(generator);
  const auto vertical = draw_trio(generator);
  for (int k = 1; k <= 3; ++k) {
    const auto index = static_cast<std::size_t>(k - 1);
    if (k < horizontal[index]) exchange("horizontal", base + k, base + horizontal[index]);
    if (k < vertical[index]) exchange("vertical", base + k, base + vertical[index]);
  }
}

}  // namespace

void Transformer_Grille(Random& generator, Square<std::uint8_t>& resGrille,
                        Square<Bool16>& Masque) {
  if (generator.below(2) == 0) transpose(resGrille, Masque);
  exchange_trios(generator, 0, [&](std::string_view direction, int a, int b) {
    Echanger_Bandes(resGrille, Masque, direction, a, b);
  });
  for (int band = 1; band <= 3; ++band)
    exchange_trios(generator, 3 * band - 3, [&](std::string_view direction, int a, int b) {
      Echanger(resGrille, Masque, direction, a, b);
    });
  std::array<int, 9> digits{1, 2, 3, 4, 5, 6, 7, 8, 9};
  Melanger(generator, digits);
  Renumeroter(digits, resGrille);
}

}  // namespace sdk
