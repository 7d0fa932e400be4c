// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A walk as JSON, one object a line.
#pragma once

#include <string>
#include <string_view>

#include "logic/run.hpp"

namespace sdk {

/// The puzzle, which must pass puzzle_fault, then every technique that fired, every offer and the
/// end, in their order.
std::string json_walk(std::string_view puzzle);

/// One event as an object on one line, without its end.
std::string json_of(const Event& event);

}  // namespace sdk
