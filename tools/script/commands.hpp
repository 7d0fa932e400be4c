// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The commands of a script: one table, from which `--help` is made as well.
#pragma once

#include <span>
#include <string_view>

#include "tools/script/arguments.hpp"

namespace sdk {

class Script;

struct Command {
  /// An event or a look starts the program when it does not run, a setting of the machine does not;
  /// a start always does. Only a look can happen while a question is open.
  enum class Role { setting, event, look, start };

  std::string_view name;
  std::string_view arguments;  ///< as `--help` shows them
  std::string_view meaning;    ///< for `--help`
  Role role;
  /// Takes the command's arguments and returns what it does when it happens. Throws ScriptError.
  Action (*understand)(Script&, Arguments&);
};

std::span<const Command> commands();
/// The command of that name, or null.
const Command* command_named(std::string_view name);

}  // namespace sdk
