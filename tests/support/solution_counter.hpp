// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Counting the solutions of a puzzle, for tests only.
#pragma once

#include <string_view>

namespace sdk::test {

/// How many ways there are to fill `puzzle` (81 characters, anything but "1".."9" is empty), but no
/// more than `limit`.
int solution_count(std::string_view puzzle, int limit);

}  // namespace sdk::test
