// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The drawn boards' own runner: what it refuses, what it notices, and that no technique is left
// without boards.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "game/window.hpp"
#include "pas_a_pas/order.hpp"
#include "pas_a_pas/tables.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "tests/pas_a_pas/board_call.hpp"
#include "tests/support/game.hpp"

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

/// What a call on the file's first board differs in.
std::string judged(const BoardFile& file) {
  const Game game;
  return differences(file, file.cases.front());
}

/// What the run of one case finds.
std::string found(const std::string& row, const std::string& below) {
  return judged(parse_boards(one_case(row, below), "01_test.txt"));
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
  EXPECT_TRUE(has(stays, "with ModePasAPas false:\nr1c8"));
  EXPECT_TRUE(has(found("*15 12- 12 12 12 12 12 !125- 12\n", "fires\n"), "the step names other"));
}

TEST(BoardCalls, AMarkThatIsMissingOrTooMuchIsNoticedInStepsOnly) {
  const std::string missing = found("15 12 12 12 12 12 12 !125- 12\n", "fires\n");
  EXPECT_TRUE(has(missing, "r1c1 should be 15 with mark 0")) << missing;
  EXPECT_FALSE(has(missing, "ModePasAPas false"));
  EXPECT_TRUE(
      has(found("*15 +12 12 12 12 12 12 !125- 12\n", "fires\n"), "r1c2 should be +12 with mark 6"));
}

TEST(BoardCalls, TheDrawingOfWhatTheCallDidIsShown) {
  EXPECT_TRUE(has(found("15 12 12 12 12 12 12 !125- 12\n", "fires\n"),
                  "the call did:\n"
                  "*15      12       12       | 12       12       12       | "
                  "12       !125-    12       \n"));
}

// A call that does what no technique may do, beside what pointing does.

void count_afresh() { solver.Candidats.set_count({9, 9}, 7); }
void store_a_pair() { solver.Paires(9, 9) = {8, 9}; }
void enter_a_value() { solver.Candidats.set_value({9, 9}, 4); }
void write_into_the_puzzle() { sudoku().MSF.set_text(8, 8, "4"); }
void forget_the_step() { solver.step = {}; }

template <void (*harm)()>
Bool16 pointing_with() {
  const Bool16 fired = pointing_rows();
  harm();
  return fired;
}

std::string found_with(Bool16 (*procedure)()) {
  BoardFile file = parse_boards(one_case(first_row, "fires\n"), "01_test.txt");
  file.procedure = procedure;
  return judged(file);
}

TEST(BoardCalls, OtherChangesAreNoticed) {
  EXPECT_TRUE(has(found_with(pointing_with<count_afresh>), "but is    12 with mark 0, count 7"));
  EXPECT_TRUE(has(found_with(pointing_with<store_a_pair>),
                  "but is    12 with mark 0, count 2, "
                  "pair 89"));
  EXPECT_TRUE(has(found_with(pointing_with<enter_a_value>), "r9c9 should be 12"));
  EXPECT_TRUE(has(found_with(pointing_with<write_into_the_puzzle>), "MSF has changed"));
  EXPECT_TRUE(has(found_with(pointing_with<forget_the_step>), "the step names other removals"));
}

TEST(BoardCalls, ATechniqueThatRecomputesCountsAfreshAndOthersDoNot) {
  BoardFile file = parse_boards(one_case(first_row, "fires\n"), "01_test.txt");
  file.recomputes = true;
  EXPECT_TRUE(has(judged(file), "r1c8 should be !125- with mark 3, count 2"));
}

int exit_status(const std::string& arguments) {
  const int status = std::system((RUN_BOARDS " " + arguments + " >/dev/null 2>&1").c_str());
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// A file of that content for as long as this lives.
class BoardsOnDisk {
 public:
  explicit BoardsOnDisk(const std::string& text) {
    std::filesystem::create_directories(folder_);
    std::ofstream(path()) << text;
  }
  ~BoardsOnDisk() { std::filesystem::remove_all(folder_); }
  std::string path() const { return (folder_ / "01_test.txt").string(); }

 private:
  std::filesystem::path folder_ =
      std::filesystem::temp_directory_path() / ("boards_" + std::to_string(getpid()));
};

TEST(RunBoards, ADifferenceAndAMalformedFileFailTheRun) {
  EXPECT_EQ(exit_status(BoardsOnDisk(one_case(first_row, "fires\n")).path()), 0);
  EXPECT_EQ(exit_status(BoardsOnDisk(one_case("15 5- 12 12 12 12 12 12 12\n", "fires\n")).path()),
            1);
  EXPECT_EQ(exit_status(BoardsOnDisk(head).path()), 2);
  EXPECT_EQ(exit_status("/no/such/file"), 2);
}

std::string content(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<BoardFile> all_files() {
  std::vector<BoardFile> files;
  for (const auto& entry : std::filesystem::directory_iterator(BOARDS))
    if (entry.path().extension() == ".txt")
      files.push_back(parse_boards(content(entry.path()), entry.path().filename().string()));
  return files;
}

TEST(Boards, EveryTechniqueHasThreeThatFireAndTwoNearMisses) {
  const std::vector<BoardFile> files = all_files();
  for (const Technique& technique : technique_order) {
    if (technique.place == 19) continue;  // builds the links and removes nothing
    const auto file = std::ranges::find(files, technique.procedure, &BoardFile::procedure);
    ASSERT_NE(file, files.end()) << technique.name;
    const auto firing = std::ranges::count(file->cases, true, &BoardCase::fires);
    EXPECT_GE(firing, 3) << technique.name;
    EXPECT_GE(std::ssize(file->cases) - firing, 2) << technique.name;
  }
}

}  // namespace
}  // namespace sdk::test
