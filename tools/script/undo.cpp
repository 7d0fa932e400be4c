// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/script/undo.hpp"

#include "tools/script/script.hpp"

namespace sdk {

Action undo(Script& script, Arguments&) {
  return [&script] {
    if (!script.window().can_undo()) throw ScriptError("nothing to undo");
    script.window().undo();
  };
}

Action redo(Script& script, Arguments&) {
  return [&script] {
    if (!script.window().can_redo()) throw ScriptError("nothing to redo");
    script.window().redo();
  };
}

}  // namespace sdk
