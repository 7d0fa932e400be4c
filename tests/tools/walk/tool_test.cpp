// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// sudoku-walk as its users call it.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

#include "board/cells.hpp"
#include "board/grid_text.hpp"
#include "puzzles/stock/entry_text.hpp"
#include "tests/support/tool.hpp"
#include "tools/walk/walk.hpp"

namespace sdk::test {
namespace {

const std::string nearly_full =
    ".2345678945678912378912345623156489756489723189723156431264597864597831297831264.";
const std::string walk_of_nearly_full = "grid " + nearly_full +
                                        "\n"
                                        "N r1c1=1 | 3= 4=r1c1 6=\n"
                                        "N r9c9=5 | 3= 4=r9c9 6=\n"
                                        "E completed | 3= 4= 6=\n";
const std::string no_digit(81, '.');
const std::string walk_of_no_digit = "grid " + no_digit + "\nE exhausted | 3= 4= 6=\n";

/// Runs the tool on an input in the notation of printf.
ToolRun walk(const std::string& input, const std::string& arguments = "") {
  return run_tool("printf '" + input + "' | " SUDOKU_WALK " " + arguments);
}

std::string errors(const std::string& input) { return walk(input, ">/dev/null").output; }

// The walk

TEST(Walk, TellsEveryOfferWithTheMarksThatStandAndTheEnd) {
  const ToolRun run = walk(nearly_full + "\\n");
  EXPECT_EQ(run.output, walk_of_nearly_full);
  EXPECT_EQ(run.status, 0);
}

TEST(Walk, TellsAnExhaustedEnd) { EXPECT_EQ(walk(no_digit + "\\n").output, walk_of_no_digit); }

TEST(Walk, TellsTheDeadCell) {
  std::string puzzle = no_digit;
  puzzle.replace(0, 8, "12345678");
  puzzle[17] = '9';
  EXPECT_EQ(walk(puzzle + "\\n").output, "grid " + puzzle + "\nE dead r1c9 | 3=r1c9 4= 6=\n");
}

TEST(Walk, TellsAFullGridAsCompletedEvenWhenItBreaksTheRules) {
  const std::string ones(81, '1');
  EXPECT_EQ(walk(ones + "\\n").output, "grid " + ones + "\nE completed | 3= 4= 6=\n");
}

TEST(Walk, TellsAHiddenSingle) {
  // Four nines leave r1c1 alone in row 1.
  std::string puzzle = no_digit;
  for (const std::size_t k : {13, 25, 37, 65}) puzzle[k] = '9';
  EXPECT_EQ(walk(puzzle + "\\n").output.substr(87, 24), "H r1c1=9 | 3= 4=r1c1 6=\n");
}

TEST(Walk, TellsWhatATechniqueRemovedAndMarked) {
  // In box 1 only row 1 is left for 1, 8 and 9.
  std::string puzzle = no_digit;
  puzzle.replace(9, 3, "234");
  puzzle.replace(18, 3, "567");
  EXPECT_EQ(walk(puzzle + "\\n").output,
            "grid " + puzzle +
                "\n"
                "T01 r1c4-1 r1c5-1 r1c6-1 r1c7-1 r1c8-1 r1c9-1\n"
                "T01 r1c4-8 r1c5-8 r1c6-8 r1c7-8 r1c8-8 r1c9-8\n"
                "T01 r1c4-9 r1c5-9 r1c6-9 r1c7-9 r1c8-9 r1c9-9\n"
                "E exhausted | 3=r1c4,r1c5,r1c6,r1c7,r1c8,r1c9 4=r1c1,r1c2,r1c3 6=\n");
}

void replace_all(std::string& text, std::string_view part, std::string_view by) {
  for (auto at = text.find(part); at != text.npos; at = text.find(part))
    text.replace(at, part.size(), by);
}

/// The line with R for a cell, d for digits, and lists cut down to one item.
std::string skeleton(std::string line) {
  for (int number = 1; number <= 81; ++number) {
    replace_all(line, name_of(cell_at(number)), "R");
  }
  for (char& c : line)
    if (c >= '1' && c <= '9') c = 'd';
  for (const auto& [part, by] : {std::pair{"dd", "d"}, {"R,R", "R"}, {"R-d R-d", "R-d"}})
    replace_all(line, part, by);
  replace_all(line, "d=R", "d=");
  return line;
}

TEST(Walk, EveryLineHasOneOfTheForms) {
  const std::set<std::string> forms{"T0d R-d",
                                    "Td0 R-d",
                                    "Td R-d",
                                    "N R=d | d= d= d=",
                                    "H R=d | d= d= d=",
                                    "E completed | d= d= d=",
                                    "E exhausted | d= d= d="};
  for (const LibraryEntry& entry : BibliothequeGrilles) {
    const std::string puzzle = puzzle_text(entry);
    std::istringstream lines(sdk::walk(puzzle));
    std::string line;
    std::getline(lines, line);
    EXPECT_EQ(line, "grid " + puzzle);
    while (std::getline(lines, line)) EXPECT_TRUE(forms.contains(skeleton(line))) << line;
  }
}

// The input

TEST(Walk, AcceptsZerosForEmptyCells) {
  EXPECT_EQ(walk("0" + nearly_full.substr(1, 79) + "0\\n").output, walk_of_nearly_full);
}

TEST(Walk, IgnoresACarriageReturnAtTheEndOfALine) {
  EXPECT_EQ(walk(nearly_full + "\\r\\n\\r\\n" + no_digit + "\\r\\n").output,
            walk_of_nearly_full + walk_of_no_digit);
}

TEST(Walk, ReadsALastLineThatHasNoEnd) { EXPECT_EQ(walk(nearly_full).output, walk_of_nearly_full); }

TEST(Walk, SkipsBlankLinesAndComments) {
  const ToolRun run = walk("# two puzzles\\n\\n" + nearly_full + "\\n  \\n#\\n" + no_digit + "\\n");
  EXPECT_EQ(run.output, walk_of_nearly_full + walk_of_no_digit);
  EXPECT_EQ(run.status, 0);
}

TEST(Walk, OfNothingIsNothing) {
  EXPECT_EQ(walk("").output, "");
  EXPECT_EQ(walk("").status, 0);
}

// Faults

TEST(Walk, ReportsALineThatIsNoPuzzleAndPlaysTheOthers) {
  const std::string input = "# list\\n\\n12345\\n" + nearly_full + "\\n" + no_digit + ".\\n";
  EXPECT_EQ(walk(input, "2>/dev/null").output, walk_of_nearly_full);
  EXPECT_EQ(errors(input),
            "error line 3: 81 characters expected, 5 found\n"
            "error line 5: 81 characters expected, 82 found\n");
  EXPECT_EQ(walk(input).status, 1);
}

TEST(Walk, NamesTheCharacterThatDoesNotBelong) {
  std::string puzzle = no_digit;
  puzzle[40] = 'x';
  EXPECT_EQ(errors(puzzle + "\\n"), "error line 1: character 41 is neither a digit nor '.'\n");
  puzzle[0] = ' ';
  EXPECT_EQ(errors(puzzle + "\\r\\n"), "error line 1: character 1 is neither a digit nor '.'\n");
}

TEST(Walk, ACarriageReturnWithinALineIsAFault) {
  EXPECT_EQ(errors("12345\\r\\r\\n"), "error line 1: 81 characters expected, 6 found\n");
}

// Several at once

/// The library's puzzles many times over, with lines that are none among them.
std::string long_input() {
  std::string input;
  for (int times = 0; times < 12; ++times) {
    for (const LibraryEntry& entry : BibliothequeGrilles) input += puzzle_text(entry) + "\\n";
    input += "12345\\n# a comment\\n";
  }
  return input;
}

TEST(Walk, OnSeveralThreadsIsTheSameInTheOrderOfTheInput) {
  const std::string input = long_input();
  const ToolRun one = walk(input, "--jobs 1 2>/dev/null");
  EXPECT_EQ(std::ranges::count(one.output, 'g'), 12 * 40);
  EXPECT_EQ(one.status, 1);
  for (const char* jobs : {"--jobs 2", "--jobs 7", ""}) {
    const ToolRun several = walk(input, std::string(jobs) + " 2>/dev/null");
    EXPECT_EQ(several.output, one.output) << jobs;
    EXPECT_EQ(several.status, 1) << jobs;
    EXPECT_EQ(walk(input, std::string(jobs) + " 2>&1 >/dev/null").output,
              walk(input, "--jobs 1 2>&1 >/dev/null").output)
        << jobs;
  }
}

TEST(Walk, AnswersBeforeTheNextLineIsThere) {
  // The rest of the second line comes only once the first one's walk has been read.
  const ToolRun run = run_tool(
      "folder=$(mktemp -d); input=$folder/input; mkfifo $input; "
      "(" SUDOKU_WALK
      " < $input | (read line; echo \"$line\"; touch $folder/read; tail -n 1)) & "
      "exec 3> $input; printf '" +
      no_digit + "\\n" + nearly_full.substr(0, 40) +
      "' >&3; for i in $(seq 100); do [ -e $folder/read ] && break; sleep 0.1; done; "
      "[ -e $folder/read ] && echo in time; printf '" +
      nearly_full.substr(40) + "' >&3; exec 3>&-; wait; rm -r $folder");
  EXPECT_EQ(run.output, "grid " + no_digit + "\nin time\nE completed | 3= 4= 6=\n");
}

#ifndef SUDOKU_SANITIZE  // AddressSanitizer itself needs more memory than is left here
TEST(Walk, GoesOnWithFewerThreadsWhereTheSystemGrantsNoMore) {
  const ToolRun run =
      run_tool("ulimit -v 300000; printf '" + nearly_full + "\\n' | " SUDOKU_WALK " --jobs 1024");
  EXPECT_EQ(run.output, walk_of_nearly_full);
  EXPECT_EQ(run.status, 0);
}
#endif

TEST(Walk, SaysThatItsInputCannotBeRead) {
  const ToolRun run = run_tool(SUDOKU_WALK " 2>&1 < /tmp");
  EXPECT_EQ(run.output, "error standard input: Input/output error\n");
  EXPECT_EQ(run.status, 1);
}

TEST(Walk, SaysThatItsOutputCannotBeWritten) {
  const ToolRun run = walk(nearly_full + "\\n", "2>&1 >/dev/full");
  EXPECT_EQ(run.output, "error standard output: No space left on device\n");
  EXPECT_EQ(run.status, 1);
}

// Options

TEST(Walk, TakesOptionsInAnyOrder) {
  const std::string explained = explained_walk(nearly_full, "En");
  EXPECT_EQ(walk(nearly_full + "\\n", "--jobs 3 --explain en").output, explained);
  EXPECT_EQ(walk(nearly_full + "\\n", "--explain en --jobs 3").output, explained);
}

TEST(Walk, IsTheSameWhenRunTwice) {
  const std::string puzzle = puzzle_text(BibliothequeGrilles[33]);
  EXPECT_EQ(sdk::walk(puzzle), sdk::walk(puzzle));
}

TEST(Walk, ExplainsInEnglishAndFrench) {
  const std::string line = nearly_full + "\\n";
  EXPECT_EQ(walk(line, "--explain en").output,
            "grid " + nearly_full +
                "\n1. Naked single: r1c1 can only be 1: row 1 has 2, 3, 4, 5, 6, 7, 8 and 9.\n"
                "1. Naked single: r9c9 can only be 5: row 9 has 1, 2, 3, 4, 6, 7, 8 and 9.\n"
                "1. The puzzle is complete.\n");
  EXPECT_EQ(
      walk(line, "--explain fr").output,
      "grid " + nearly_full +
          "\n1. Singleton nu\u00A0: L1C1 ne peut être que 1\u00A0: la ligne 1 a les 2, 3, 4, 5, 6, "
          "7, 8 et 9.\n"
          "1. Singleton nu\u00A0: L9C9 ne peut être que 5\u00A0: la ligne 9 a les 1, 2, 3, 4, 6, "
          "7, 8 et 9.\n"
          "1. La grille est terminée.\n");
}

TEST(Walk, ReportsFaultsWhileExplainingToo) {
  const ToolRun run = walk("1\\n", "--explain en");
  EXPECT_EQ(run.output, "error line 1: 81 characters expected, 1 found\n");
  EXPECT_EQ(run.status, 1);
}

TEST(Walk, TheHelpTellsInputOutputAndOptions) {
  const ToolRun run = run_tool(SUDOKU_WALK " --help");
  EXPECT_EQ(run.status, 0);
  for (const char* part : {"usage: sudoku-walk", "81 characters", "'.' or '0'", "'#'", "grid <81",
                           "T<place>", "N r<r>c<c>=<d>", "H r<r>c<c>=<d>", "E completed",
                           "E exhausted", "E dead", "<marks>", "--explain en|fr", "--jobs N",
                           "--signature", "--help", "error line <n>", "status is 1", "status 2"})
    EXPECT_NE(run.output.find(part), std::string::npos) << part;
}

TEST(Walk, TheSignatureIsOneNumber) {
  EXPECT_EQ(run_tool(SUDOKU_WALK " --signature").output,
            std::to_string(library_signature()) + "\n");
}

TEST(Walk, RefusesOtherArguments) {
  for (const char* arguments : {"--explain", "--explain de", "--walk", "-x", "-", "file --jobs",
                                "--help me", "--signature 2", "--explain en --explain de", "--jobs",
                                "--jobs 0", "--jobs -1", "--jobs 2x", "--jobs 99999"}) {
    const ToolRun run = run_tool(SUDOKU_WALK " " + std::string(arguments));
    EXPECT_EQ(run.status, 2) << arguments;
    EXPECT_EQ(run.output.find("usage: sudoku-walk"), 0u) << arguments;
  }
}

}  // namespace
}  // namespace sdk::test
