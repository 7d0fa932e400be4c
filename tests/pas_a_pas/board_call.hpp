// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// One call of a technique on a drawn board, judged.
#pragma once

#include <string>

#include "tests/pas_a_pas/board_file.hpp"

namespace sdk::test {

/// Calls the technique on the board, in the grids of the window that there must be, once with
/// `ModePasAPas` true and once false. Returns what differs from the drawing, the drawing of what
/// the call really did included; empty when nothing does.
std::string differences(const BoardFile& file, const BoardCase& board);

}  // namespace sdk::test
