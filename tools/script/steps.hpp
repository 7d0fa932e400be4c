// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The steps of the last hint, as a script chooses and shows them.
#pragma once

#include "tools/script/show.hpp"

namespace sdk {

/// The command `step`.
Action choose_step(Script& script, Arguments& arguments);

/// `show explanation`: "  1. " and a sentence, one a line, "> 1. " when the step is chosen; "none"
/// when there is none.
TopicText show_explanation(Arguments& arguments);

/// `show step`: the chosen step as nine lines of nine cells, in columns: "=5" a value, "38"
/// candidates, "0" when there is none, "-" after a removed one; in front the mark: ! removed,
/// * support, + second. "none" when no step is chosen.
TopicText show_step(Arguments& arguments);

}  // namespace sdk
