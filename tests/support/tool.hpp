// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Runs one of the project's executables and keeps what it printed.
#pragma once

#include <string>

namespace sdk::test {

struct ToolRun {
  int status;
  std::string output;  ///< standard output and standard error, as they came
};

/// Runs a shell command.
ToolRun run_tool(const std::string& command);

}  // namespace sdk::test
