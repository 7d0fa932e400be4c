// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The value types of the fields.

#include <gtest/gtest.h>

#include "board/bool16.hpp"
#include "board/square.hpp"

namespace sdk::test {
namespace {

TEST(Bool16, IsSixteenBitsWithTrueAsMinusOne) {
  EXPECT_EQ(sizeof(Bool16), 2u);
  EXPECT_EQ(Bool16(true).bits(), -1);
  EXPECT_EQ(Bool16(false).bits(), 0);
  EXPECT_EQ(Bool16().bits(), 0);
  EXPECT_TRUE(Bool16(true));
  EXPECT_FALSE(Bool16(false));
}

TEST(Square, KeepsAValueOfItsOwnForEveryRowAndColumn) {
  Square<std::int16_t> square;
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) square(r, c) = static_cast<std::int16_t>(10 * r + c);
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) EXPECT_EQ(square(r, c), 10 * r + c);
}

}  // namespace
}  // namespace sdk::test
