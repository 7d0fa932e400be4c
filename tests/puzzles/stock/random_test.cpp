// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "puzzles/stock/random.hpp"

#include <gtest/gtest.h>

namespace sdk::test {
namespace {

constexpr double two_to_32 = 4294967296.0;

TEST(Random, DrawsThe32BitOutputsOfTheMersenneTwisterDividedByTwoToThe32) {
  Random random;
  random.reseed(1);
  EXPECT_EQ(random.draw(), 1791095845 / two_to_32);
  EXPECT_EQ(random.draw(), 4282876139 / two_to_32);
  EXPECT_EQ(random.draw(), 3093770124 / two_to_32);
  random.reseed(5489);
  EXPECT_EQ(random.draw(), 3499211612 / two_to_32);
}

TEST(Random, RepeatsItsDrawsAfterTheSameSeed) {
  Random random;
  random.reseed(123);
  const double first = random.draw();
  random.draw();
  random.reseed(123);
  EXPECT_EQ(random.draw(), first);
}

TEST(Random, BelowRoundsTheDrawDown) {
  Random draws, random;
  for (std::uint32_t seed = 0; seed < 200; ++seed) {
    draws.reseed(seed);
    random.reseed(seed);
    for (const int n : {1, 2, 3, 8, 9}) {
      const int value = random.below(n);
      EXPECT_EQ(value, static_cast<int>(draws.draw() * n));
      EXPECT_GE(value, 0);
      EXPECT_LT(value, n);
    }
  }
}

}  // namespace
}  // namespace sdk::test
