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

/// A text for each event of a hint, in their order, its end included: the technique's name, what
/// the step rests on, how that leads to the conclusion, and what is removed. All that is told of
/// the candidates is true of them before the step. A text that names another step counts from 1;
/// the texts have no number of their own. A step that is not certain says so, and why. UTF-8;
/// French for exactly "Fr", English for anything else. Throws std::out_of_range for a deduction
/// that no technique makes.
std::vector<std::string> explain(const std::deque<Event>& hint, std::string_view language);

}  // namespace sdk
