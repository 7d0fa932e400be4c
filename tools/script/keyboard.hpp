// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The keys a script can press.
#pragma once

#include <string_view>

#include "ui/main_window.hpp"

namespace sdk {

struct Key {
  int code;
  bool ctrl = false;
};

/// Throws ScriptError when there is no such key.
Key key_named(std::string_view name);

/// The key goes to the window, then to `MSF`. An arrow key moves the current cell as in any table:
/// not beyond the edge, and what was selected with it is selected no more.
void press(MainWindow& window, Key pressed);

}  // namespace sdk
