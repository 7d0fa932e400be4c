// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What `sudoku-script --help` says.
#pragma once

#include <string>

namespace sdk {

/// Every command, everything that can be shown, and how the output reads.
std::string help_text();

}  // namespace sdk
