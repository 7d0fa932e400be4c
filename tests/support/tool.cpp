// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/support/tool.hpp"

#include <sys/wait.h>

#include <cstdio>
#include <stdexcept>

namespace sdk::test {

ToolRun run_tool(const std::string& command) {
  FILE* pipe = popen(("{ " + command + "; } 2>&1").c_str(), "r");
  if (!pipe) throw std::runtime_error("cannot run " + command);
  ToolRun run{};
  char buffer[4096];
  while (const auto size = std::fread(buffer, 1, sizeof buffer, pipe))
    run.output.append(buffer, size);
  run.status = WEXITSTATUS(pclose(pipe));
  return run;
}

}  // namespace sdk::test
