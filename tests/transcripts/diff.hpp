// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// How two texts differ, line by line.
#pragma once

#include <string>
#include <vector>

namespace sdk {

/// Lines that only `before` has after "-", lines that only `after` has after "+", with three common
/// lines around and the line number in `before` in front of each place. Empty when they are equal.
std::string diff(const std::vector<std::string>& before, const std::vector<std::string>& after);

}  // namespace sdk
