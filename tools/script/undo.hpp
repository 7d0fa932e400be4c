// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The commands that take changes of the grid back.
#pragma once

#include "tools/script/arguments.hpp"

namespace sdk {

class Script;

/// "undo" and "redo". What they do throws ScriptError when there is nothing to undo or to redo.
Action undo(Script& script, Arguments& arguments);
Action redo(Script& script, Arguments& arguments);

}  // namespace sdk
