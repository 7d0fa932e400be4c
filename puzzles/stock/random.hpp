// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The uniform generator behind every puzzle.
#pragma once

#include <cstdint>
#include <random>

namespace sdk {

/// Draws over [0, 1). One seed gives the same draws on every machine.
class Random {
 public:
  void reseed(std::uint32_t seed) { engine_.seed(seed); }

  /// Uniform over [0, 1): a 32-bit output divided by 2^32.
  double draw() { return static_cast<double>(engine_()) / 4294967296.0; }

  /// floor(draw() * n): uniform over 0..n-1, for n of 1 or more.
  int below(int n) { return static_cast<int>(draw() * n); }

 private:
  std::mt19937 engine_;
};

}  // namespace sdk
