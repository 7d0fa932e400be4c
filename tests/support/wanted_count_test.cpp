// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/support/wanted_count.hpp"

#include <gtest/gtest.h>

#include "tests/support/machine.hpp"

namespace sdk::test {
namespace {

TEST(WantedCount, IsWhatTheEnvironmentSays) {
  const Variable grids("TEST_GRIDS", "12");
  EXPECT_EQ(wanted_count("TEST_GRIDS", 5), 12);
}

TEST(WantedCount, IsTheTestsOwnWhenTheEnvironmentSaysNothing) {
  const Variable grids("TEST_GRIDS", std::nullopt);
  EXPECT_EQ(wanted_count("TEST_GRIDS", 5), 5);
}

TEST(WantedCount, RefusesWhatIsNoNumberFrom1) {
  for (const char* value : {"", "abc", "0", "-3", "12x", " 12", "99999999999"}) {
    const Variable grids("TEST_GRIDS", value);
    EXPECT_THROW(wanted_count("TEST_GRIDS", 5), std::invalid_argument) << value;
  }
}

}  // namespace
}  // namespace sdk::test
