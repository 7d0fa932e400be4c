// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Assertions that look at more than one condition: a check of a whole state returns a text that
/// says what is wrong, and an empty one when nothing is.
#pragma once

#include <string>

namespace sdk {

/// Whether this build has assertions. Checks that take long are asked for only then.
#ifdef NDEBUG
inline constexpr bool has_assertions = false;
#else
inline constexpr bool has_assertions = true;
#endif

/// Returns when `fault` is empty; else tells it on the error stream and aborts the program.
void abort_on(const std::string& fault);

}  // namespace sdk
