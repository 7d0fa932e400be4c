// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The content of puzzle files, as it is written and as it is read.

#include "files/text/puzzle_file_text.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/files/text/grid_texts.hpp"

namespace sdk::test {
namespace {

using namespace std::string_literals;

const std::string empty_grid(81, ' ');
const std::string empty_line = " . . . . . . . . .\r\n";
/// 81 cells, "." an empty one, and the same as a grid.
const std::string cells =
    "98765432.1.5927468642138579426571983793482156518396742371865294269743815.5421963.";
const std::string grid = with(cells, '.', ' ');

std::string spaced(std::string_view text) {
  std::string result;
  for (const char c : text) (result += ' ') += c;
  return result;
}

std::string lines_of(const std::string& text, const std::string& line_end) {
  std::string lines;
  for (std::size_t r = 0; r < 9; ++r) lines += text.substr(r * 9, 9) + line_end;
  return lines;
}

// Writing

TEST(GridToSave, HasBlanksForZerosAndTheOtherTextsAsTheyAre) {
  EXPECT_EQ(grid_to_save("10 0#"), "1   #");
  EXPECT_EQ(grid_to_save(std::string(81, '0')), empty_grid);
  EXPECT_EQ(grid_to_save(".\r\n\xE9\0"s), ".\r\n\xE9\0"s);
  EXPECT_EQ(grid_to_save(""), "");
}

TEST(PuzzleFileText, OfAnEmptyGridIsNineLinesOfNineDots) {
  EXPECT_EQ(puzzle_file_text(empty_grid), repeated(empty_line, 9));
}

TEST(PuzzleFileText, GivesEachCellABlankAndItsCharacter) {
  EXPECT_EQ(puzzle_file_text("5 3" + std::string(77, ' ') + "9"),
            " 5 . 3 . . . . . .\r\n" + repeated(empty_line, 7) + " . . . . . . . . 9\r\n");
}

TEST(PuzzleFileText, HasTheRowsInOrder) {
  const std::string text = puzzle_file_text(solved_grid);
  for (std::size_t r = 0; r < 9; ++r)
    EXPECT_EQ(text.substr(r * 20, 20), spaced(solved_grid.substr(r * 9, 9)) + "\r\n");
}

TEST(PuzzleFileText, HoldsOtherCharactersAsTheyAre) {
  EXPECT_EQ(puzzle_file_text("#0.\xE9\0"s + std::string(76, ' ')).substr(0, 20),
            " # 0 . \xE9 \0 . . . .\r\n"s);
}

TEST(PuzzleFileText, OfAShortGridEndsInBlanks) {
  EXPECT_EQ(puzzle_file_text("12" + std::string(76, ' ')),
            " 1 2 . . . . . . .\r\n" + repeated(empty_line, 7) + " . . . . . .      \r\n");
  EXPECT_EQ(puzzle_file_text(""), repeated(std::string(18, ' ') + "\r\n", 9));
}

TEST(PuzzleFileText, OfALongGridHasItsFirst81Characters) {
  EXPECT_EQ(puzzle_file_text(solved_grid + "1"), puzzle_file_text(solved_grid));
  EXPECT_EQ(puzzle_file_text(solved_grid + std::string(1 << 24, '1')).size(), 180u);
}

// Reading

TEST(GridOfFile, TakesTheFormThatIsWritten) {
  EXPECT_EQ(grid_of_file(puzzle_file_text(grid)), grid);
}

TEST(GridOfFile, TakesOneLineWithAndWithoutBlanksAndAnEnd) {
  for (const std::string& text : {cells, cells + "\n", cells + "\r\n", spaced(cells)})
    EXPECT_EQ(grid_of_file(text), grid);
}

TEST(GridOfFile, TakesEveryKindOfLineEnd) {
  for (const char* line_end : {"\r\n", "\n", "\r", "\n\n\r", " \r\n \r\n"})
    EXPECT_EQ(grid_of_file(lines_of(cells, line_end)), grid);
}

TEST(GridOfFile, TakesLinesOfAnyLength) {
  EXPECT_EQ(
      grid_of_file(cells.substr(0, 1) + "\n" + cells.substr(1, 50) + "\n\n" + cells.substr(51)),
      grid);
}

TEST(GridOfFile, IsNothingForAnEmptyFileOnly) {
  EXPECT_EQ(grid_of_file(""), std::nullopt);
  for (const char* text : {" ", "\r", "\n", "\r\n", "   \r\n  \n"})
    EXPECT_EQ(grid_of_file(text), "");
}

TEST(GridOfFile, KeepsEverythingElseAsGivens) {
  EXPECT_EQ(grid_of_file("0abc,;\t\x1A\x7F"), "0abc,;\t\x1A\x7F");
  EXPECT_EQ(grid_of_file("\x80\xA0\xE9\xFF"), "\x80\xA0\xE9\xFF");
  EXPECT_EQ(grid_of_file("1\0.2"s), "1\0 2"s);
}

TEST(GridOfFile, MayBeShortOrLong) {
  EXPECT_EQ(grid_of_file("9.7"), "9 7");
  EXPECT_EQ(grid_of_file(cells + "7"), grid + "7");
}

TEST(GridOfFile, TakesSixteenMegabytes) {
  constexpr std::size_t size = 16 << 20;
  EXPECT_TRUE(grid_of_file(std::string(size, '.')) == std::string(size, ' '));
  EXPECT_EQ(grid_of_file(std::string(size, ' ')), "");
  EXPECT_EQ(grid_of_file(std::string(size, '\r') + cells), grid);
}

TEST(GridOfFile, OfRandomBytesKeepsAllButBlanksAndLineEnds) {
  std::mt19937 random(4);
  for (int i = 0; i < 2000; ++i) {
    const std::string bytes = random_bytes(random);
    std::string expected;
    for (const char c : bytes)
      if (c != ' ' && c != '\r' && c != '\n') expected += c == '.' ? ' ' : c;
    ASSERT_EQ(grid_of_file(bytes), expected) << i;
  }
}

// Counting

TEST(GivensOf, CountsTheFilledCells) {
  EXPECT_EQ(givens_of(grid), 77);
  EXPECT_EQ(givens_of(empty_grid), 0);
  EXPECT_EQ(givens_of(solved_grid), 81);
}

TEST(GivensOf, CountsZerosAndOtherCharactersToo) { EXPECT_EQ(givens_of("0 a\xE9.\0"s), 5); }

TEST(GivensOf, TakesMissingCellsForEmptyAndLeavesOutThoseBeyondThe81st) {
  EXPECT_EQ(givens_of(""), 0);
  EXPECT_EQ(givens_of("9 7"), 2);
  EXPECT_EQ(givens_of(empty_grid + "1"), 0);
  EXPECT_EQ(givens_of(std::string(1 << 24, '1')), 81);
}

// Both ways

TEST(PuzzleFileText, OfRandomGridsComesBack) {
  std::mt19937 random(20);
  for (int i = 0; i < 2000; ++i) {
    const std::string saved = with(random_cells(random), '.', ' ');
    const std::string text = puzzle_file_text(saved);
    ASSERT_EQ(text.size(), 180u);
    ASSERT_EQ(grid_of_file(text), saved);
    ASSERT_EQ(givens_of(saved), 81 - std::ranges::count(saved, ' '));
  }
}

TEST(PuzzleFileText, OfWhateverWasReadStaysTheSame) {
  std::mt19937 random(22);
  for (int i = 0; i < 2000; ++i) {
    const std::string read = grid_of_file(random_bytes(random)).value();
    const std::string text = puzzle_file_text(grid_to_save(read));
    ASSERT_EQ(text.size(), 180u) << i;
    ASSERT_EQ(puzzle_file_text(grid_of_file(text).value()), text) << i;
  }
}

TEST(PuzzleFileText, LosesZeros) {
  std::mt19937 random(21);
  for (int i = 0; i < 200; ++i) {
    const std::string shown = with(with(random_cells(random), '.', ' '), '5', '0');
    EXPECT_EQ(grid_of_file(puzzle_file_text(grid_to_save(shown))), with(shown, '0', ' '));
  }
}

}  // namespace
}  // namespace sdk::test
