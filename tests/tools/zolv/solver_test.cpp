// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "solver.hpp"

#include <gtest/gtest.h>

#include <ctime>

#include "grids.hpp"
#include "tests/support/wanted_count.hpp"

namespace zolv {
namespace {

constexpr std::string_view full =
    "987654321135927468642138579426571983793482156518396742371865294269743815854219637";

/// The text of the answer, "none" when there is none.
std::string answer(std::string_view givens) {
  const std::optional<Grid> solution = solve(grid_of(givens));
  return solution ? text_of(*solution) : "none";
}

std::string with(std::string_view grid, int cell, char text) {
  std::string changed(grid);
  changed.at(static_cast<std::size_t>(cell)) = text;
  return changed;
}

void expect_solved(std::string_view givens) {
  const std::optional<Grid> solution = solve(grid_of(givens));
  ASSERT_TRUE(solution) << givens;
  EXPECT_TRUE(solves(*solution, grid_of(givens))) << givens << '\n' << text_of(*solution);
}

/// What the plain search says of `givens`, the solver says too.
void expect_agreement(const Grid& givens) {
  Grid plain = givens;
  const int solutions = count_solutions(plain, 2);
  const std::optional<Grid> solution = solve(givens);
  ASSERT_EQ(solution.has_value(), solutions > 0) << text_of(givens);
  if (solutions == 0) return;
  // The plain search stopped at the second solution when there are several.
  Grid first = givens;
  count_solutions(first, 1);
  EXPECT_EQ(text_of(*solution), text_of(first)) << text_of(givens);
}

TEST(Solver, FindsTheOneSolution) {
  EXPECT_EQ(
      answer("9876...21..592........385..42....983.934....6...396...3....529.269....15..421...."),
      full);
}

TEST(Solver, GivesAFullGridBackAsItIs) { EXPECT_EQ(answer(full), full); }

TEST(Solver, FillsTheOneEmptyCellWhereverItIs) {
  for (int cell = 0; cell < 81; ++cell) EXPECT_EQ(answer(with(full, cell, '.')), full);
}

TEST(Solver, RefusesAFullGridWithAWrongDigitWhereverItIs) {
  for (int cell = 0; cell < 81; ++cell) {
    const char wrong = full[static_cast<std::size_t>(cell)] == '9' ? '1' : '9';
    EXPECT_EQ(answer(with(full, cell, wrong)), "none") << cell;
  }
}

TEST(Solver, FillsAnEmptyGridWithTheSmallestDigitsFirst) {
  EXPECT_EQ(answer(std::string(81, '.')),
            "123456789456789123789123456214365897365897214897214365531642978642978531978531642");
}

TEST(Solver, TakesEveryDigitInEveryCellOfAnEmptyGrid) {
  for (int cell = 0; cell < 81; ++cell)
    for (char digit = '1'; digit <= '9'; ++digit)
      expect_solved(with(std::string(81, '.'), cell, digit));
}

TEST(Solver, AnswersTheFirstOfSeveralSolutionsInRowOrder) {
  // 1 and 9 fit both ways in the four empty cells.
  const std::string givens =
      "98765432113592746864213857942657198379348215651839674237.8652.426.7438.5854219637";
  Grid plain = grid_of(givens);
  ASSERT_EQ(count_solutions(plain, 3), 2);
  expect_agreement(grid_of(givens));
}

TEST(Solver, RefusesGivensThatClashInARow) {
  EXPECT_EQ(answer("5.......5" + std::string(72, '.')), "none");
}

TEST(Solver, RefusesGivensThatClashInAColumn) {
  EXPECT_EQ(answer(with(with(std::string(81, '.'), 4, '7'), 76, '7')), "none");
}

TEST(Solver, RefusesGivensThatClashInABox) {
  EXPECT_EQ(answer(with(with(std::string(81, '.'), 60, '3'), 80, '3')), "none");
}

TEST(Solver, RefusesACellWithoutCandidates) {
  EXPECT_EQ(answer("12345678." + std::string(9, '.') + "........9" + std::string(54, '.')), "none");
}

TEST(Solver, RefusesADigitWithoutAPlaceInARow) {
  EXPECT_EQ(answer("..."
                   "123"
                   "..."
                   "9........"
                   ".......9." +
                   std::string(54, '.')),
            "none");
}

TEST(Solver, RefusesACellWithTwoDigitsThatFitNowhereElse) {
  // 1 and 2 both have the last cell of the first row as their only place in the top right box.
  EXPECT_EQ(answer("......34.12..........12...." + std::string(54, '.')), "none");
}

TEST(Solver, SolvesGridsThatDefeatASearchRowByRow) {
  // The first row is empty and its solution is 987654321.
  EXPECT_EQ(
      answer("000000000000300007000010060001800740009002000000700080035400100708006059090000400"),
      "987654321614328597352917864561893742879542613423761985235489176748136259196275438");
  EXPECT_EQ(
      answer("000000000000900000602038000026070080700002100008000040001805000209003005050009607"),
      "987654321135927468642138579426571983793482156518396742371865294269743815854219637");
}

TEST(Solver, SolvesGridsThatNeedManyGuesses) {
  expect_solved(
      "970204080010008000020000300000320009207060400360000010000900000000000057500076000");
  expect_solved(
      "001000380080017000700000000470000020000581000005000600200100000360008040000740002");
  expect_solved(
      "230000010048200006000009000802000050090010602005000003000600000003070000087591300");
}

/// Looking ahead takes candidates out of them and ends without having filled them.
TEST(Solver, SolvesGridsThatLookingAheadOnlyNarrows) {
  expect_solved(
      ".....5.8....6.1243..........1.5........1.6...3.......553.....69........4.........");
  expect_solved(
      ".....5.8....6.1.43..........1.5........1.6..83.......553......1........4.........");
  EXPECT_EQ(
      answer(".132.......6....7...9....36............................3....96..9..3.....61.9...."),
      "none");
}

TEST(Solver, AgreesWithAPlainSearchOnRandomGrids) {
  std::mt19937 random(1);
  for (int run = 0; run < 500; ++run) expect_agreement(random_puzzle(random, 26 + run % 40));
}

TEST(Solver, AgreesWithAPlainSearchOnRandomGridsWithAChangedDigit) {
  std::mt19937 random(2);
  int unsolvable = 0;
  for (int run = 0; run < 500; ++run) {
    Grid givens = random_puzzle(random, 26 + run % 40);
    const int cell = static_cast<int>(random() % 81), digit = static_cast<int>(1 + random() % 9);
    if (!fits(givens, cell, digit)) continue;
    givens[cell] = static_cast<std::uint8_t>(digit);
    expect_agreement(givens);
    unsolvable += !solve(givens);
  }
  EXPECT_GT(unsolvable, 20);
}

/// SEVERAL_SOLUTIONS in the environment says how many are compared.
TEST(Solver, AnswersAsThePlainSearchWhereThereAreSeveralSolutions) {
  std::mt19937 random(3);
  const int wanted = sdk::test::wanted_count("SEVERAL_SOLUTIONS", 100);
  for (int compared = 0; compared < wanted;) {
    const Grid givens = random_puzzle(random, 24 + static_cast<int>(random() % 12));
    Grid plain = givens;
    if (count_solutions(plain, 2) < 2) continue;
    expect_agreement(givens);
    ++compared;
  }
}

/// Grids without a solution that lead astray: 9 fits nowhere in the first row; three digits share
/// two cells of a column; and what a climb towards ever longer searches came to.
constexpr std::string_view contrived[] = {
    "12345678..................9......................................................",
    ".....5.8....6.1.43..........1.5........1.6...3.......553.....61........4.........",
    ".3.....1.91......6.5.9.........6.3.......9..............9.........3..15...4......",
    "....8...9....1.......23.....6...2............8..6.5.............26.....5.........",
    ".132.......6........9....36............................3....96..9..3.....61.9....",
    "........5................1...............8241...1248.......23................3..."};

TEST(Solver, RefusesContrivedGridsWithinASecond) {
  for (const std::string_view givens : contrived) {
    const std::clock_t start = std::clock();
    EXPECT_EQ(answer(givens), "none") << givens;
    EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC) << givens;
  }
}

}  // namespace
}  // namespace zolv
