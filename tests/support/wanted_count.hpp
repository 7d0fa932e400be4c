// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// How much a test is to try, as the environment says.
#pragma once

#include <string>

namespace sdk::test {

/// The number in the variable of that name, from 1; `otherwise` when there is no such variable.
/// Throws std::invalid_argument when it holds anything else, so that no test passes on nothing.
int wanted_count(const std::string& variable, int otherwise);

}  // namespace sdk::test
