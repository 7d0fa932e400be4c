// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What sudoku-walk takes from its command line, and what it refuses.

#include <gtest/gtest.h>

#include <string>

#include "tests/support/machine.hpp"
#include "tests/support/tool.hpp"
#include "tools/walk/json_walk.hpp"
#include "tools/walk/walk.hpp"

namespace sdk::test {
namespace {

const std::string puzzle =
    ".2345678945678912378912345623156489756489723189723156431264597864597831297831264.";
const std::string usage =
    "usage: sudoku-walk [--explain en|fr | --json] [--jobs N] [FILE...]\n       sudoku-walk "
    "--signature | --help\n";

/// Its walk of the puzzle, asked for in these words.
ToolRun walk_with(const std::string& words) {
  return run_tool("echo " + puzzle + " | " SUDOKU_WALK " " + words);
}

void expect_refused(const std::string& words) {
  const ToolRun run = walk_with(words);
  EXPECT_EQ(run.output, usage) << words;
  EXPECT_EQ(run.status, 2) << words;
  EXPECT_EQ(walk_with(words + " 2>/dev/null").output, "") << words;
}

TEST(WalkCommandLine, TakesNumbersInDecimalAlone) {
  for (const char* number : {"1", "1024", "007", "010", "1 --jobs 2"})
    EXPECT_EQ(walk_with("--jobs " + std::string(number)).output, walk(puzzle)) << number;
  for (const char* number : {"0", "1025", "99999999999999999999", "-1", "+2", "0x10", "1.5", "2x",
                             "''", "' 2'", "2,3", "[2]", "1\\'000", "0 --jobs 2", "2 --jobs 0"})
    expect_refused("--jobs " + std::string(number));
}

TEST(WalkCommandLine, TakesOneWayToTellWalks) {
  EXPECT_EQ(walk_with("--json").output, json_walk(puzzle));
  EXPECT_EQ(walk_with("--explain fr").output, explained_walk(puzzle, "Fr"));
  for (const char* words :
       {"--json --json", "--json --explain en", "--explain en --json", "--explain en --explain en",
        "--explain fr --explain en", "--explain", "--explain ''", "--explain EN", "--explain en,fr",
        "--explain --json", "--explain -- en", "--explain [en]"})
    expect_refused(words);
}

TEST(WalkCommandLine, TakesAValueAfterAnEqualsSignToo) {
  EXPECT_EQ(walk_with("--jobs=2 --explain=en").output, explained_walk(puzzle, "En"));
  expect_refused("--jobs=0");
  expect_refused("--explain=de");
}

TEST(WalkCommandLine, RefusesOptionsThatItDoesNotHave) {
  for (const char* words :
       {"-h", "-?", "-j", "-j2", "-1", "-json", "--jso", "--JSON", "--no-json", "--json=no",
        "--walk", "--walk=2", "--version", "-", "--", "-- a.sdk", "a.sdk -", "---json"})
    expect_refused(words);
}

TEST(WalkCommandLine, AnswersHelpAndSignatureAloneOnly) {
  EXPECT_EQ(walk_with("--signature").output, std::to_string(library_signature()) + "\n");
  EXPECT_EQ(walk_with("--help").output.substr(0, usage.size()), usage);
  EXPECT_EQ(walk_with("--help").status, 0);
  for (const char* words :
       {"--help --help", "--help --signature", "--signature --signature", "--help a.sdk",
        "a.sdk --help", "--json --help", "--signature --jobs 2", "--jobs 2 --signature",
        "--help ''", "--help --walk", "--signature --", "--explain de --help"})
    expect_refused(words);
}

TEST(WalkCommandLine, TheHelpTellsEveryMark) {
  const std::string help = walk_with("--help").output;
  for (const char* part :
       {"3= candidates removed", "4= support", "6= pincers, fins", "second colour"})
    EXPECT_NE(help.find(part), std::string::npos) << part;
}

/// In a folder with a saved game of that name.
ToolRun walk_file_named(const std::string& name) {
  const ScratchFolder folder;
  write_file(folder / name.c_str(), puzzle);
  return run_tool("cd '" + folder.path().string() + "' && " SUDOKU_WALK " '" + name + "'");
}

TEST(WalkCommandLine, TakesEveryOtherWordAsTheNameOfAFile) {
  for (const char* name : {"a", "[a,b]", "[]", "{}", "%%", "a=b", "a b", " -a", "en", "json", "++",
                           "+a", "\xC3\xA9t\xC3\xA9.sdk"})
    EXPECT_EQ(walk_file_named(name).output, walk(puzzle)) << name;
  EXPECT_EQ(walk_with("''").output, "error : No such file or directory\n");
  EXPECT_EQ(walk_with("''").status, 1);
}

}  // namespace
}  // namespace sdk::test
