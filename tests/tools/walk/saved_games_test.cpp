// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// sudoku-walk on the files that the game saves.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "files/text/puzzle_file_text.hpp"
#include "puzzles/stock/entry_text.hpp"
#include "tests/support/machine.hpp"
#include "tests/support/tool.hpp"
#include "tools/walk/json_walk.hpp"
#include "tools/walk/walk.hpp"

namespace sdk::test {
namespace {

const std::string nearly_full =
    ".2345678945678912378912345623156489756489723189723156431264597864597831297831264.";
const std::string no_digit(81, '.');

std::string stock(std::size_t index) { return puzzle_text(BibliothequeGrilles[index]); }

class SavedGames : public testing::Test {
 protected:
  /// The name of a new file of these bytes, ready for a command.
  std::string file_of(const char* name, const std::string& bytes) {
    write_file(folder / name, bytes);
    return file(name);
  }

  std::string saved(const char* name, std::string puzzle) {
    std::ranges::replace(puzzle, '.', ' ');
    return file_of(name, puzzle_file_text(puzzle));
  }

  std::string file(const char* name) const { return " '" + (folder / name).string() + "'"; }

  static ToolRun walk_files(const std::string& words) { return run_tool(SUDOKU_WALK " " + words); }

  /// What is told of a fault, the folder's name apart.
  std::string error(const std::string& words) const {
    std::string text = walk_files(words + " 2>&1 >/dev/null").output;
    const std::string path = folder.path().string() + "/";
    for (auto at = text.find(path); at != text.npos; at = text.find(path))
      text.erase(at, path.size());
    return text;
  }

  ScratchFolder folder;
};

TEST_F(SavedGames, AreWalkedLikeTheSamePuzzleOfALine) {
  const ToolRun run = walk_files(saved("a.sdk", nearly_full));
  EXPECT_EQ(run.output, walk(nearly_full));
  EXPECT_EQ(run.status, 0);
}

TEST_F(SavedGames, AreWalkedOneAfterTheOtherInTheOrderInWhichTheyAreNamed) {
  const std::string files = saved("b.sdk", nearly_full) + saved("a.sdk", stock(3)) +
                            saved("c.sdk", no_digit) + file("b.sdk");
  const ToolRun run = walk_files(files);
  EXPECT_EQ(run.output, walk(nearly_full) + walk(stock(3)) + walk(no_digit) + walk(nearly_full));
  EXPECT_EQ(run.status, 0);
}

TEST_F(SavedGames, TakeTheOptionsBeforeOrAfterThem) {
  const std::string a = saved("a.sdk", nearly_full);
  EXPECT_EQ(walk_files("--explain en" + a).output, explained_walk(nearly_full, "En"));
  EXPECT_EQ(walk_files(a + " --explain fr --jobs 2").output, explained_walk(nearly_full, "Fr"));
  EXPECT_EQ(walk_files("--jobs 1" + a + " --json" + a).output,
            json_walk(nearly_full) + json_walk(nearly_full));
}

TEST_F(SavedGames, OnSeveralThreadsComeInTheirOrder) {
  std::string files, walks;
  for (int times = 0; times < 3; ++times)
    for (std::size_t k = 0; k < BibliothequeGrilles.size(); ++k) {
      files += saved(std::to_string(k).c_str(), stock(k));
      walks += walk(stock(k));
    }
  for (const char* jobs : {"--jobs 1", "--jobs 2", "--jobs 7", ""})
    EXPECT_EQ(walk_files(jobs + files).output, walks) << jobs;
}

TEST_F(SavedGames, AreWalkedOnAllThatTheirGridShows) {
  const std::string name = (folder / "a.sdk").string();
  const ToolRun game = run_tool("printf 'seed 1\\nselect 1 1\\nkey 6\\nanswer file " + name +
                                "\\nclick sauve\\n' | " SUDOKU_SCRIPT);
  EXPECT_EQ(game.status, 0) << game.output;
  EXPECT_EQ(
      walk_files(file("a.sdk")).output.substr(0, 86),
      "grid 62......1.39.258..7.56.8..9..19.....5....6..4....4.1..2...635.8..35.941.9......3.");
}

TEST_F(SavedGames, MayBeWrittenWithOtherLinesAndZeros) {
  std::string zeros = nearly_full;
  std::ranges::replace(zeros, '.', '0');
  EXPECT_EQ(walk_files(file_of("a.sdk", zeros)).output, walk(nearly_full));
  EXPECT_EQ(
      walk_files(file_of("a.sdk", zeros.substr(0, 40) + "\n \r" + zeros.substr(40) + "\n")).output,
      walk(nearly_full));
}

TEST_F(SavedGames, LeaveStandardInputAlone) {
  const ToolRun run =
      run_tool("echo 12345 | (" SUDOKU_WALK + saved("a.sdk", nearly_full) + "; cat)");
  EXPECT_EQ(run.output, walk(nearly_full) + "12345\n");
}

TEST_F(SavedGames, ThatCannotBeReadAreNamedWithTheReason) {
  EXPECT_EQ(error(file("missing.sdk")), "error missing.sdk: No such file or directory\n");
  EXPECT_EQ(error(file_of("empty.sdk", "")), "error empty.sdk: the file is empty\n");
  EXPECT_EQ(error(file(".")), "error .: Is a directory\n");
  EXPECT_EQ(error(file_of("large.sdk", std::string((16 << 20) + 1, '1'))),
            "error large.sdk: File too large\n");
}

TEST_F(SavedGames, ThatAreNoneAreNamedWithTheReason) {
  EXPECT_EQ(error(file_of("short.sdk", " 1 2 .\r\n")),
            "error short.sdk: no saved game: 81 characters expected, 3 found\n");
  EXPECT_EQ(error(file_of("list.txt", nearly_full + "\n" + no_digit + "\n")),
            "error list.txt: no saved game: 81 characters expected, 162 found\n");
  EXPECT_EQ(error(file_of("x.sdk", no_digit.substr(1) + "x")),
            "error x.sdk: no saved game: character 81 is neither a digit nor '.'\n");
}

TEST_F(SavedGames, ThatAreGoodAreWalkedBesideTheOthers) {
  const std::string files = file("missing.sdk") + saved("a.sdk", nearly_full) +
                            file_of("bad.sdk", "?") + saved("b.sdk", no_digit);
  for (const char* jobs : {"--jobs 1", "--jobs 2"}) {
    const ToolRun run = walk_files(jobs + files + " 2>/dev/null");
    EXPECT_EQ(run.output, walk(nearly_full) + walk(no_digit));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(error(jobs + files),
              "error missing.sdk: No such file or directory\n"
              "error bad.sdk: no saved game: 81 characters expected, 1 found\n");
  }
}

TEST_F(SavedGames, SayThatTheirWalksCannotBeWritten) {
  const ToolRun run = walk_files(saved("a.sdk", nearly_full) + " 2>&1 >/dev/full");
  EXPECT_EQ(run.output, "error standard output: No space left on device\n");
  EXPECT_EQ(run.status, 1);
}

TEST_F(SavedGames, AreToldOfInTheHelp) {
  const std::string help = walk_files("--help").output;
  for (const char* part : {"[FILE...]", "*.sdk", "error <file>: <why>"})
    EXPECT_NE(help.find(part), std::string::npos) << part;
}

}  // namespace
}  // namespace sdk::test
