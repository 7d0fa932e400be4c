// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What a hint did and why it is right, in plain sentences for the player. These texts stand beside
/// the game's own messages and are independent of them.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "logic/run.hpp"

namespace sdk {

/// One sentence or two about what a technique found: its usual name, the cells and digits of the
/// pattern, what is removed or placed and why. UTF-8; French for exactly "Fr", English for anything
/// else. Throws std::out_of_range for a deduction that no technique makes.
std::string explain(const Deduction& deduction, std::string_view language);

/// The same about an event of a run, its end included.
std::string explain(const Event& event, std::string_view language);

/// The same about all events of one run, a text each in their order.
std::vector<std::string> explain(const std::deque<Event>& hint, std::string_view language);

}  // namespace sdk
