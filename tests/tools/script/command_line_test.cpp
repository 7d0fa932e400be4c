// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What sudoku-script and the runner of transcripts take from their command lines, and what they
// refuse.

#include <gtest/gtest.h>

#include <string>

#include "tests/support/tool.hpp"
#include "tools/script/help.hpp"

namespace sdk::test {
namespace {

TEST(ScriptCommandLine, IsEmptyOrAsksForHelp) {
  EXPECT_EQ(run_tool("echo show focus | " SUDOKU_SCRIPT).output, "MSF\n");
  const ToolRun run = run_tool(SUDOKU_SCRIPT " --help 2>/dev/null");
  EXPECT_EQ(run.output, help_text());
  EXPECT_EQ(run.status, 0);
}

TEST(ScriptCommandLine, HasNothingElse) {
  for (const char* words : {"--help --help", "--help a", "a --help", "a", "''", "-", "--", "-h",
                            "--help=no", "--hel", "--version", "'show focus'", "{}", "[]"}) {
    const ToolRun run = run_tool("echo show focus | " SUDOKU_SCRIPT " " + std::string(words));
    EXPECT_EQ(run.output, "usage: sudoku-script < commands (--help tells the commands)\n") << words;
    EXPECT_EQ(run.status, 2) << words;
  }
}

TEST(RunnerCommandLine, NeedsAFile) {
  for (const char* words : {"", "--rewrite", "--rewrite --rewrite"}) {
    const ToolRun run = run_tool(RUN_TRANSCRIPT " " + std::string(words));
    EXPECT_EQ(run.output, "usage: run_transcript [--rewrite] FILE...\n") << words;
    EXPECT_EQ(run.status, 2) << words;
  }
}

TEST(RunnerCommandLine, RefusesOptionsThatItDoesNotHave) {
  for (const char* words : {"--write", "-r /dev/null", "/dev/null --help"})
    EXPECT_EQ(run_tool(RUN_TRANSCRIPT " " + std::string(words)).status, 2) << words;
}

}  // namespace
}  // namespace sdk::test
