// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What an external solver is given, and what its answers say.

#include "files/text/exchange_text.hpp"

#include <gtest/gtest.h>

#include "tests/files/text/grid_texts.hpp"

namespace sdk::test {
namespace {

using namespace std::string_literals;

// The input

TEST(GridToSolve, HasZerosForBlanksAndTheOtherTextsAsTheyAre) {
  EXPECT_EQ(grid_to_solve("1 2  #"), "10200#");
  EXPECT_EQ(grid_to_solve(std::string(81, ' ')), std::string(81, '0'));
  EXPECT_EQ(grid_to_solve("0.\xE9\0"s), "0.\xE9\0"s);
  EXPECT_EQ(grid_to_solve(""), "");
}

TEST(SolverInput, Is81PairsOnOneLineWithoutAnEnd) {
  EXPECT_EQ(solver_input("503" + std::string(78, '0')), "5 0 3 " + repeated("0 ", 78));
  EXPECT_EQ(solver_input(std::string(81, '0')), repeated("0 ", 81));
  EXPECT_EQ(solver_input(solved_grid).size(), 162u);
}

TEST(SolverInput, HasAPairForEveryCharacterThatThereIs) {
  EXPECT_EQ(solver_input(""), "");
  EXPECT_EQ(solver_input("#1"), "# 1 ");
  EXPECT_EQ(solver_input(solved_grid + "12").size(), 166u);
  EXPECT_EQ(solver_input("\xE9\0"s), "\xE9 \0 "s);
}

// The first line

TEST(FirstLine, EndsBeforeTheFirstLineEndOfAnyKind) {
  for (const char* text : {"12 3", "12 3\n", "12 3\r\n", "12 3\r", "12 3\r0\n0", "12 3\n0\r0"})
    EXPECT_EQ(first_line(text), "12 3") << text;
}

TEST(FirstLine, MayBeEmpty) {
  for (const char* text : {"\n", "\r", "\r\n", "\n123", "\r123"}) EXPECT_EQ(first_line(text), "");
}

TEST(FirstLine, IsNothingForAnEmptyOutput) { EXPECT_EQ(first_line(""), std::nullopt); }

TEST(FirstLine, HoldsAnyOtherByte) {
  EXPECT_EQ(first_line("\0\t\x1A\xE9 0\n1"s), "\0\t\x1A\xE9 0"s);
}

TEST(FirstLine, MayBeSixteenMegabytesLong) {
  const std::string line(16 << 20, '1');
  EXPECT_TRUE(first_line(line) == line);
  EXPECT_TRUE(first_line(line + "\r\n" + line) == line);
}

// The answer

/// The digits of a complete answer; empty for every other.
std::string solution_in(const std::string& line) {
  const SolverAnswer answer = solver_answer(line);
  const auto* solution = std::get_if<Solution>(&answer);
  return solution ? solution->digits : "";
}

bool tells_no_solution(const std::string& line) {
  return std::holds_alternative<NoSolution>(solver_answer(line));
}

/// The digits before the fault and the cell that has none: "12, cell 3"; empty without a fault.
std::string fault_in(const std::string& line) {
  const SolverAnswer answer = solver_answer(line);
  const auto* missing = std::get_if<MissingDigit>(&answer);
  return missing ? missing->digits_before + ", cell " + std::to_string(missing->cell()) : "";
}

TEST(SolverAnswer, MayHaveBlanksAnywhere) {
  for (const std::string& line : {solved_grid, "   " + solved_grid + "  ",
                                  solved_grid.substr(0, 40) + "      " + solved_grid.substr(40)})
    EXPECT_EQ(solution_in(line), solved_grid) << line;
}

TEST(SolverAnswer, HasAllItsDigitsInTheFirst81Characters) {
  for (const char* more : {"1", "x", "\xE9", " . ", "."})
    EXPECT_EQ(solution_in(solved_grid + more), solved_grid) << more;
  EXPECT_EQ(solution_in(solved_grid + std::string(16 << 20, '1')), solved_grid);
}

TEST(SolverAnswer, NeedNotObeyTheRules) {
  EXPECT_EQ(solution_in(std::string(81, '5')), std::string(81, '5'));
}

TEST(SolverAnswer, WithAZeroAnywhereTellsThatThereIsNoSolution) {
  for (const std::string& line :
       {"0"s, " 0 "s, "x0"s, "\0"s + "0", "no solution in 10 steps"s, solved_grid + "0",
        "0" + solved_grid, "\xE9"s + "0", solved_grid + " " + std::string(1 << 24, 'x') + "0"})
    EXPECT_TRUE(tells_no_solution(line)) << line.substr(0, 100);
}

TEST(SolverAnswer, LacksADigitAtItsFirstFault) {
  EXPECT_EQ(fault_in("x"), ", cell 1");
  EXPECT_EQ(fault_in("-" + solved_grid), ", cell 1");
  EXPECT_EQ(fault_in("123\t456"), "123, cell 4");
  EXPECT_EQ(fault_in("1 2 \xE9 3"), "12, cell 3");
  EXPECT_EQ(fault_in("1\0"s + solved_grid), "1, cell 2");
  EXPECT_EQ(fault_in("12\r"), "12, cell 3");
  EXPECT_EQ(fault_in("1.2"), "1, cell 2");
  const std::string but_one = solved_grid.substr(0, 80);
  EXPECT_EQ(fault_in(but_one + "."), but_one + ", cell 81");
}

TEST(SolverAnswer, ThatIsShortLacksTheDigitAfterItsLast) {
  EXPECT_EQ(fault_in(""), ", cell 1");
  EXPECT_EQ(fault_in("     "), ", cell 1");
  EXPECT_EQ(fault_in("1 2 3 "), "123, cell 4");
  const std::string but_one = solved_grid.substr(0, 80);
  EXPECT_EQ(fault_in(but_one), but_one + ", cell 81");
}

TEST(SolverAnswer, OfEveryByteButADigitAndABlankIsAFault) {
  for (int byte = 0; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    if (c == ' ' || (c >= '0' && c <= '9')) continue;
    EXPECT_EQ(fault_in("12" + std::string(1, c) + solved_grid), "12, cell 3") << byte;
  }
}

TEST(SolverAnswer, OfRandomBytesIsOneOfTheThree) {
  std::mt19937 random(5);
  for (int i = 0; i < 2000; ++i) {
    const std::string bytes = random_bytes(random);
    const bool has_zero = bytes.find('0') != std::string::npos;
    ASSERT_EQ(tells_no_solution(bytes), has_zero) << i;
    ASSERT_EQ(solution_in(bytes).empty() && fault_in(bytes).empty(), has_zero) << i;
  }
}

TEST(SolverAnswer, OfASolverThatFillsTheGridIsReadBackAsItWasWritten) {
  std::mt19937 random(6);
  for (int i = 0; i < 500; ++i) {
    const std::string filled = with(random_cells(random), '.', '9');
    const std::string input = solver_input(grid_to_solve(filled));
    ASSERT_EQ(solution_in(std::string(first_line(input + "\r\n").value())), filled);
  }
}

}  // namespace
}  // namespace sdk::test
