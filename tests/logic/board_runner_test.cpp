// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The drawn boards' own runner: what it refuses, what it notices, and that no technique is left
// without boards.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <string_view>
#include <vector>

#include "logic/techniques.hpp"
#include "tests/logic/board_call.hpp"
#include "tests/support/files.hpp"

namespace sdk::test {
namespace {

const std::string head = "technique pointing_rows\nrecomputes no\n";
const std::string first_row = "*15 12 12 | 12 12 12 | 12 !125- 12\n";
const std::string other_rows = [] {
  std::string rows;
  for (int row = 2; row <= 9; ++row) rows += "12 12 12 | 12 12 12 | 12 12 12\n";
  return rows;
}();

std::string one_case(const std::string& row, const std::string& below) {
  return head + "case one\n" + row + other_rows + below;
}

/// Why the text is refused; empty when it is not.
std::string fault(const std::string& text, const std::string& file_name = "01_test.txt") {
  try {
    parse_boards(text, file_name);
    return "";
  } catch (const Malformed& malformed) {
    return malformed.what();
  }
}

TEST(BoardFiles, TheRightFormIsAccepted) { EXPECT_EQ(fault(one_case(first_row, "fires\n")), ""); }

TEST(BoardFiles, BarsRulersBlanksAndCommentsAreForTheEye) {
  const std::string row = "*15\t12 12 12 12 12 12 !125- 12  # a comment\n---+--- ---|\n\n";
  EXPECT_EQ(fault("# a comment\n\n" + one_case(row, "\nfires # here\n")), "");
}

TEST(BoardFiles, AFaultIsNamedWithFileAndLine) {
  EXPECT_EQ(fault("technique pointing\n"), "01_test.txt:1: there is no technique pointing");
  EXPECT_EQ(fault(one_case("12 12 12\n", "fires\n")),
            "01_test.txt:4: a line of the board has nine cells");
}

TEST(BoardFiles, AHeadThatIsIncompleteOrInAnotherPlaceIsRefused) {
  EXPECT_NE(fault(""), "");
  EXPECT_NE(fault("recomputes no\n"), "");
  EXPECT_NE(fault("technique pointing_rows\nrecomputes maybe\n"), "");
  EXPECT_NE(fault(one_case(first_row, "fires\n"), "02_test.txt"), "");
}

TEST(BoardFiles, AFileWithoutCasesIsRefused) {
  EXPECT_EQ(fault(head), "01_test.txt:2: there is no case");
}

TEST(BoardFiles, ABoardWithALineTooFewOrTooManyIsRefused) {
  const std::string row = "12 12 12 12 12 12 12 12 12\n";
  EXPECT_EQ(fault(head + "case one\n" + other_rows + "silent\n"),
            "01_test.txt:12: a line of the board has nine cells");
  EXPECT_NE(fault(one_case(first_row, row + "fires\n")), "");
}

TEST(BoardFiles, ACaseNeedsANameOfItsOwn) {
  const std::string one = "case one\n" + first_row + other_rows + "fires\n";
  EXPECT_NE(fault(head + one + one), "");
  EXPECT_NE(fault(head + "case\n" + first_row + other_rows + "fires\n"), "");
  EXPECT_NE(fault(head + "case a.b\n" + first_row + other_rows + "fires\n"), "");
}

TEST(BoardFiles, ACaseNeedsAVerdict) {
  EXPECT_NE(fault(one_case(first_row, "")), "");
  EXPECT_NE(fault(one_case(first_row, "burns\n")), "");
}

TEST(BoardFiles, ACaseThatFiresRemovesSomething) {
  EXPECT_EQ(fault(one_case("*15 12 12 12 12 12 12 !125 12\n", "fires\n")),
            "01_test.txt:13: a case that fires removes something");
}

TEST(BoardFiles, ASilentCaseRemovesAndMarksNothing) {
  EXPECT_NE(fault(one_case("15 12 12 12 12 12 12 125- 12\n", "silent\n")), "");
  EXPECT_NE(fault(one_case("*15 12 12 12 12 12 12 125 12\n", "silent\n")), "");
  EXPECT_EQ(fault(one_case("15 12 12 12 12 12 12 125 12\n", "silent\n")), "");
}

TEST(BoardFiles, ACellThatIsNoneIsRefused) {
  for (const char* cell : {"21", "11", "1x", "-1", "1--", "*", "=", "=0", "=12", "=5-", "01", "0-",
                           "!*12", "10", "?12"})
    EXPECT_NE(fault(one_case(std::string(cell) + " 12 12 12 12 12 12 !125- 12\n", "fires\n")), "")
        << cell;
}

TEST(BoardFiles, ALineBelowTheBoardIsKnownSaysSomethingNewAndStandsOnce) {
  for (const char* line :
       {"colours r1c1=3", "counts r1c1=2", "counts r1c1=12", "counts r1c1", "counts r0c1=3",
        "counts r1c10=3", "counts 11=3", "pairs r1c1=15", "pairs r1c1=51", "pairs r1c1=5",
        "pairs r1c1=05", "marks r1c1=5", "marks r1c1=3 r1c1=4", "counts r1c1=3\ncounts r1c2=3"})
    EXPECT_NE(fault(one_case(first_row, std::string(line) + "\nfires\n")), "") << line;
  const std::string all = "marks r1c1=6 r9c9=3\ncounts r1c1=0\npairs r1c1=12 r1c8=89\n";
  EXPECT_EQ(fault(one_case(first_row, all + "fires\n")), "");
}

TEST(BoardFiles, OnlyAMarkThatStandsCanBeTakenAway) {
  const std::string row = "~15 12 12 12 12 12 12 !125- 12\n";
  EXPECT_NE(fault(one_case(row, "fires\n")), "");
  EXPECT_EQ(fault(one_case(row, "marks r1c1=4\nfires\n")), "");
}

/// What the run of one case finds.
std::string found(const std::string& row, const std::string& below) {
  const BoardFile file = parse_boards(one_case(row, below), "01_test.txt");
  return differences(file, file.cases.front());
}

bool has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

TEST(BoardCalls, TheRightDrawingShowsNoDifference) {
  EXPECT_EQ(found(first_row, "fires\n"), "");
  EXPECT_EQ(found(first_row, "marks r1c1=6 r5c5=3\ncounts r1c8=7\npairs r5c5=34\nfires\n"), "");
}

TEST(BoardCalls, AWrongVerdictIsNoticed) {
  EXPECT_TRUE(has(found("15 12 12 12 12 12 12 125 12\n", "silent\n"), "it fired"));
  EXPECT_TRUE(has(found("12 12 12 12 12 12 12 125- 12\n", "fires\n"), "it did not fire"));
}

TEST(BoardCalls, ADigitThatStaysOrGoesAgainstTheDrawingIsNoticed) {
  const std::string stays = found("*15 12 12 12 12 12 12 !12-5- 12\n", "fires\n");
  EXPECT_TRUE(has(stays,
                  "r1c8 should be !12-5- with mark 3, count 3, pair 00\n"
                  "     but is    !125- with mark 3, count 3, pair 00\n"))
      << stays;
  EXPECT_TRUE(has(found("*15 12- 12 12 12 12 12 !125- 12\n", "fires\n"), "r1c2 should be 12-"));
}

TEST(BoardCalls, AMarkThatIsMissingOrTooMuchIsNoticed) {
  const std::string missing = found("15 12 12 12 12 12 12 !125- 12\n", "fires\n");
  EXPECT_TRUE(has(missing, "r1c1 should be 15 with mark 0")) << missing;
  EXPECT_TRUE(
      has(found("*15 +12 12 12 12 12 12 !125- 12\n", "fires\n"), "r1c2 should be +12 with mark 6"));
}

TEST(BoardCalls, TheDrawingOfWhatTheCallDidIsShown) {
  EXPECT_TRUE(has(found("15 12 12 12 12 12 12 !125- 12\n", "fires\n"),
                  "the call did:\n"
                  "*15      12       12       | 12       12       12       | "
                  "12       !125-    12       \n"));
}

/// What is found when the right call did some harm besides.
std::string found_with(void (*harm)(Outcome&)) {
  const BoardFile file = parse_boards(one_case(first_row, "fires\n"), "01_test.txt");
  const BoardCase& board = file.cases.front();
  Outcome outcome{true, position_of(file, board), {}};
  apply(*find_by(*file.technique, outcome.after), outcome.after);
  outcome.marks(1, 1) = 4;
  outcome.marks(1, 8) = 3;
  harm(outcome);
  return differences(file, board, outcome, true);
}

TEST(BoardCalls, OtherChangesAreNoticed) {
  EXPECT_EQ(found_with([](Outcome&) {}), "");
  EXPECT_TRUE(has(found_with([](Outcome& o) {
                    o.after.candidates.set_count({9, 9}, 7);
                  }),
                  "but is    12 with mark 0, count 7"));
  EXPECT_TRUE(has(found_with([](Outcome& o) {
                    o.after.pairs(9, 9) = {8, 9};
                  }),
                  "but is    12 with mark 0, count 2, "
                  "pair 89"));
  EXPECT_TRUE(has(found_with([](Outcome& o) {
                    o.after.candidates.set_value({9, 9}, 4);
                  }),
                  "r9c9 should be 12"));
  EXPECT_TRUE(has(found_with([](Outcome& o) { o.marks(9, 9) = 6; }), "but is    +12 with mark 6"));
  EXPECT_TRUE(has(found_with([](Outcome& o) { o.fired = false; }), "it did not fire"));
}

TEST(BoardCalls, WithoutMarksOnlyThoseOfBeforeAreExpected) {
  const BoardFile file = parse_boards(one_case(first_row, "marks r1c1=6\nfires\n"), "01_test.txt");
  const BoardCase& board = file.cases.front();
  Outcome outcome{true, position_of(file, board), {}};
  apply(*find_by(*file.technique, outcome.after), outcome.after);
  outcome.marks(1, 1) = 6;
  EXPECT_EQ(differences(file, board, outcome, false), "");
  EXPECT_NE(differences(file, board, outcome, true), "");
}

/// Answers another call than the first in another way.
std::optional<Deduction> find_something_else(const Position& position) {
  static int calls = 0;
  auto found = find_pointing_rows(position);
  found->digits = {++calls};
  return found;
}

TEST(BoardCalls, AFinderThatDoesNotRepeatItselfIsNoticed) {
  BoardFile file = parse_boards(one_case(first_row, "fires\n"), "01_test.txt");
  const Technique unsteady{1, "unsteady", "unsteady", find_something_else};
  file.technique = &unsteady;
  EXPECT_EQ(differences(file, file.cases.front()), "it finds something else again\n");
}

TEST(BoardCalls, ATechniqueThatRecomputesCountsAfreshAndOthersDoNot) {
  BoardFile file = parse_boards(one_case(first_row, "fires\n"), "01_test.txt");
  file.recomputes = true;
  EXPECT_TRUE(
      has(differences(file, file.cases.front()), "r1c8 should be !125- with mark 3, count 2"));
}

int exit_status(const std::string& arguments) {
  const int status = std::system((RUN_BOARDS " " + arguments + " >/dev/null 2>&1").c_str());
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// A file of that content for as long as this lives.
class BoardsOnDisk {
 public:
  explicit BoardsOnDisk(const std::string& text) { write_file(path(), text); }
  std::string path() const { return (folder_ / "01_test.txt").string(); }

 private:
  ScratchFolder folder_;
};

TEST(RunBoards, ADifferenceAndAMalformedFileFailTheRun) {
  EXPECT_EQ(exit_status(BoardsOnDisk(one_case(first_row, "fires\n")).path()), 0);
  EXPECT_EQ(exit_status(BoardsOnDisk(one_case("15 5- 12 12 12 12 12 12 12\n", "fires\n")).path()),
            1);
  EXPECT_EQ(exit_status(BoardsOnDisk(head).path()), 2);
  EXPECT_EQ(exit_status("/no/such/file"), 2);
}

TEST(Techniques, AreCalledDifferently) {
  std::set<std::string_view> names;
  for (const Technique& technique : techniques) {
    EXPECT_GT(technique.name.size(), 4u) << technique.id;
    EXPECT_TRUE(names.insert(technique.name).second) << technique.name;
  }
}

TEST(Boards, EveryTechniqueHasThreeThatFireAndTwoNearMisses) {
  const std::vector<BoardFile> files = read_all_boards(BOARDS);
  for (const Technique& technique : techniques) {
    const auto file = std::ranges::find(files, &technique, &BoardFile::technique);
    ASSERT_NE(file, files.end()) << technique.name;
    const auto firing = std::ranges::count(file->cases, true, &BoardCase::fires);
    EXPECT_GE(firing, 3) << technique.name;
    EXPECT_GE(std::ssize(file->cases) - firing, 2) << technique.name;
  }
}

}  // namespace
}  // namespace sdk::test
