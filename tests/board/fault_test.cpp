// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// How a failed check of a whole state ends the program.

#include "board/fault.hpp"

#include <gtest/gtest.h>

#include <csignal>

namespace sdk::test {
namespace {

TEST(Fault, AbortsAndTellsWhatIsWrong) {
  EXPECT_EXIT(abort_on("r1c2 is odd"), testing::KilledBySignal(SIGABRT),
              "SuDoKu: a check of the program's own state failed: r1c2 is odd\n");
}

TEST(Fault, IsNoneWhenTheTextIsEmpty) { abort_on(""); }

}  // namespace
}  // namespace sdk::test
