// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// One call of a technique on a drawn board, judged.
#pragma once

#include <string>

#include "logic/position.hpp"
#include "tests/logic/board_file.hpp"

namespace sdk::test {

/// The board before the call; the links are built where the technique reads them.
Position position_of(const BoardFile& file, const BoardCase& board);

/// What a call left behind.
struct Outcome {
  bool fired = false;
  Position after;
  Square<int> marks;  ///< by mark mode; the board's own marks stood before the call
};

/// What differs from the drawing, the drawing of what was really done included; empty when nothing
/// does. `with_marks` tells whether the drawn marks are expected, or none but those of before.
std::string differences(const BoardFile& file, const BoardCase& board, const Outcome& outcome,
                        bool with_marks);

/// The same of the technique's finder, and of applying what it found. It is also judged whether the
/// finder left the position alone and finds the same again.
std::string differences(const BoardFile& file, const BoardCase& board);

}  // namespace sdk::test
