// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The solver's program as the game runs it: the grid in 00000.000 of the folder named by "tmp", the
// answer on standard output.

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>

#include "grids.hpp"
#include "tests/support/files.hpp"

namespace zolv {
namespace {

namespace fs = std::filesystem;
using sdk::test::bytes_of;

constexpr std::string_view puzzle =
    "000000000000900000602038000026070080700002100008000040001805000209003005050009607";
constexpr std::string_view solved =
    "987654321135927468642138579426571983793482156518396742371865294269743815854219637";

/// As the game writes it: every cell followed by a blank, no line end.
std::string exchange_text(std::string_view cells) {
  std::string text;
  for (const char cell : cells) (text += cell) += ' ';
  return text;
}

class Exchange : public testing::Test {
 protected:
  struct Result {
    int status;
    std::string output, errors;
  };

  void SetUp() override { fs::create_directories(folder_); }

  void write(const std::string& text) const { sdk::test::write_file(folder_ / "00000.000", text); }

  Result run() const {
    setenv("tmp", folder_.c_str(), 1);
    return run_with_the_environment();
  }

  Result run_with_the_environment() const {
    const fs::path output = root_ / "output", errors = root_ / "errors";
    const std::string command =
        "\"" ZOLV_PROGRAM "\" > \"" + output.string() + "\" 2> \"" + errors.string() + "\"";
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, bytes_of(output), bytes_of(errors)};
  }

  void expect_refused(const std::string& text) const {
    write(text);
    const Result result = run();
    EXPECT_EQ(result.status, 1) << text;
    EXPECT_EQ(result.output, "") << text;
    EXPECT_NE(result.errors.find((folder_ / "00000.000").string()), std::string::npos)
        << result.errors;
    EXPECT_NE(result.errors.find("not 81 cells"), std::string::npos) << result.errors;
  }

  const sdk::test::ScratchFolder root_;
  const fs::path folder_ = root_ / "a player's folder";
};

TEST_F(Exchange, PrintsTheSolutionAsOneLineOf81Digits) {
  write(exchange_text(puzzle));
  const Result result = run();
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, std::string(solved) + "\n");
  EXPECT_EQ(result.errors, "");
}

TEST_F(Exchange, LeavesTheExchangeFileAsItWas) {
  write(exchange_text(puzzle));
  run();
  EXPECT_EQ(bytes_of(folder_ / "00000.000"), exchange_text(puzzle));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()), 1);
}

TEST_F(Exchange, PrintsZeroForAGridWithoutSolution) {
  std::string clash(puzzle);
  clash[2] = '6';
  write(exchange_text(clash));
  const Result result = run();
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, "0\n");
  EXPECT_EQ(result.errors, "");
}

TEST_F(Exchange, FillsAnEmptyGrid) {
  write(exchange_text(std::string(81, '0')));
  const Result result = run();
  EXPECT_EQ(result.status, 0);
  ASSERT_EQ(result.output.size(), 82u);
  EXPECT_EQ(result.output.back(), '\n');
  EXPECT_TRUE(solves(grid_of(result.output), Grid{}));
}

TEST_F(Exchange, ReadsCellsWithAnyBlanksBetweenOrWithoutBlanks) {
  std::string lines;
  for (int row = 0; row < 9; ++row)
    lines += " \t" + std::string(puzzle.substr(9 * row, 9)) + "\r\n";
  for (const std::string& text :
       {std::string(puzzle), lines, "\n\n" + exchange_text(puzzle) + "\n"}) {
    write(text);
    EXPECT_EQ(run().output, std::string(solved) + "\n") << text;
  }
}

TEST_F(Exchange, RefusesAnythingThatIsNot81Digits) {
  expect_refused("");
  expect_refused(exchange_text(puzzle.substr(0, 80)));
  expect_refused(exchange_text(puzzle) + "0");
  std::string letter(puzzle);
  letter[80] = 'x';
  expect_refused(exchange_text(letter));
}

TEST_F(Exchange, NamesTheFileThatIsMissing) {
  const Result result = run();
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.errors,
            "zolv: " + (folder_ / "00000.000").string() + ": No such file or directory\n");
}

TEST_F(Exchange, SaysThatTheVariableIsMissing) {
  for (const bool empty : {false, true}) {
    if (empty)
      setenv("tmp", "", 1);
    else
      unsetenv("tmp");
    const Result result = run_with_the_environment();
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "zolv: the environment variable \"tmp\" names no folder\n");
  }
}

TEST_F(Exchange, FailsWhenTheAnswerCannotBeWritten) {
  write(exchange_text(puzzle));
  setenv("tmp", folder_.c_str(), 1);
  const int status = std::system("\"" ZOLV_PROGRAM "\" > /dev/full 2> /dev/null");
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 1);
}

}  // namespace
}  // namespace zolv
