// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Why a step is right, in whole sentences; the name of the technique, what is to be removed and
/// whether the step is certain stand before and behind them. A teller gets only steps of the
/// techniques that have it in the table of sentences.hpp.
#pragma once

#include <string>

#include "explanations/told_step.hpp"
#include "explanations/words.hpp"

namespace sdk {

using Teller = std::string (*)(const Words&, const ToldStep&);

// singles.cpp
std::string tell_naked_single(const Words& words, const ToldStep& step);
std::string tell_hidden_single(const Words& words, const ToldStep& step);

// sets.cpp
/// A digit that lies in one line of a box, or in one box of a line.
std::string tell_locked(const Words& words, const ToldStep& step);
std::string tell_naked_pair(const Words& words, const ToldStep& step);
std::string tell_naked_set(const Words& words, const ToldStep& step);
std::string tell_hidden_set(const Words& words, const ToldStep& step);

// fish.cpp
std::string tell_x_wing(const Words& words, const ToldStep& step);
std::string tell_fish(const Words& words, const ToldStep& step);
std::string tell_finned_x_wing(const Words& words, const ToldStep& step);

// wings.cpp
/// XY-wing and XYZ-wing.
std::string tell_pivot_wing(const Words& words, const ToldStep& step);
std::string tell_w_wing(const Words& words, const ToldStep& step);

// rectangles.cpp
std::string tell_odd_corner(const Words& words, const ToldStep& step);
/// A third digit that two or three corners share.
std::string tell_shared_digit(const Words& words, const ToldStep& step);
std::string tell_bound_to_roof(const Words& words, const ToldStep& step);
std::string tell_bound_to_diagonal(const Words& words, const ToldStep& step);
std::string tell_avoidable(const Words& words, const ToldStep& step);

// colouring.cpp
std::string tell_trap(const Words& words, const ToldStep& step);
std::string tell_wrap(const Words& words, const ToldStep& step);

}  // namespace sdk
