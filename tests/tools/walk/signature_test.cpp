// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// No change of what a hint does goes unnoticed.

#include <gtest/gtest.h>

#include "tools/walk/walk.hpp"

namespace sdk::test {
namespace {

constexpr std::uint64_t expected = 681404554755906271u;

TEST(Signature, OfTheLibrarysWalksIsTheKnownOne) {
  EXPECT_EQ(library_signature(), expected)
      << "The walk of a library puzzle has changed: another removal, another offer, another mark "
         "or "
         "another order. If it is to change, compare the output of sudoku-walk before and after on "
         "many puzzles, and then write the number that `sudoku-walk --signature` prints into "
      << __FILE__ << ".";
}

TEST(Signature, IsTheSameEachTime) { EXPECT_EQ(library_signature(), library_signature()); }

}  // namespace
}  // namespace sdk::test
