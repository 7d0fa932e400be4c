// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The solutions of a puzzle, for tests only.
#pragma once

#include <string>
#include <string_view>

namespace sdk::test {

/// How many ways there are to fill `puzzle` (81 characters, anything but "1".."9" is empty), but no
/// more than `limit`.
int solution_count(std::string_view puzzle, int limit);

/// The solution as 81 digits when there is exactly one; else empty.
std::string only_solution(std::string_view puzzle);

}  // namespace sdk::test
