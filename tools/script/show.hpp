// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What `show` prints: one table of topics, from which `--help` is made as well.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "tools/script/arguments.hpp"

namespace sdk {

class Script;

/// The lines of a topic as they are when it is called, each ended by a line end. May throw
/// ScriptError.
using TopicText = std::function<std::string(Script&)>;

struct Topic {
  std::string_view name;
  std::string_view arguments;  ///< as `--help` shows them
  std::string_view meaning;    ///< for `--help`
  /// Takes the topic's arguments. Throws ScriptError.
  TopicText (*understand)(Arguments&);
};

std::span<const Topic> topics();

/// The command `show`.
Action show(Script& script, Arguments& arguments);

}  // namespace sdk
