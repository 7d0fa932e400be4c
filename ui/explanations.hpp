// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What a technique did and why it is right, in plain sentences for the player. These texts stand
/// beside `Messages` and are independent of it.
#pragma once

#include <string>
#include <string_view>

#include "pas_a_pas/observer.hpp"
#include "pas_a_pas/step.hpp"

namespace sdk {

/// One sentence or two about a step that has fired, or about a single that is offered: the
/// technique's usual name, the cells and digits of the pattern, what is removed and why. UTF-8;
/// French for exactly "Fr", English for anything else. Throws std::out_of_range for a step that no
/// technique leaves.
std::string explain(const Step& step, std::string_view language);

/// The same about the end of a run. `step` is then the one that the run left: for a dead cell it
/// names the cell.
std::string explain(RunEnd end, const Step& step, std::string_view language);

}  // namespace sdk
