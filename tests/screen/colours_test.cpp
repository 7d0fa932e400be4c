// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "screen/colours.hpp"

#include <gtest/gtest.h>

namespace sdk::test {
namespace {

TEST(Colours, AreStoredBlueGreenRed) {
  EXPECT_EQ(colour::red, 0x0000FFu);
  EXPECT_EQ(colour::green, 0x008000u);
  EXPECT_EQ(colour::white, 0xFFFFFFu);
  EXPECT_EQ(colour::black, 0u);
  EXPECT_EQ(colour::from_file, 0xE0E0E0u);
  EXPECT_EQ(colour::level,
            (std::array<Colour, 5>{0xC0FFC0, 0xC0FFFF, 0xC0E0FF, 0xC0C0FF, 0xFFC0FF}));
  EXPECT_EQ(colour::red_of(0x123456), 0x56);
  EXPECT_EQ(colour::green_of(0x123456), 0x34);
  EXPECT_EQ(colour::blue_of(0x123456), 0x12);
}

}  // namespace
}  // namespace sdk::test
