// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The changes that disguise a stored puzzle.

#include "puzzles/stock/transformer.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numeric>
#include <set>

#include "board/grid_text.hpp"
#include "puzzles/stock/library_table.hpp"
#include "tests/support/solution_counter.hpp"

namespace sdk::test {
namespace {

struct Puzzle {
  Square<std::uint8_t> solution;
  Square<Bool16> mask;
  bool operator==(const Puzzle&) const = default;
};

Puzzle stored(int number) {
  const LibraryEntry& e = BibliothequeGrilles[static_cast<std::size_t>(number - 1)];
  Puzzle puzzle;
  for (int k = 0; k < 81; ++k) {
    puzzle.solution(k / 9 + 1, k % 9 + 1) =
        static_cast<std::uint8_t>(e.solution[static_cast<std::size_t>(k)] - '0');
    puzzle.mask(k / 9 + 1, k % 9 + 1) = e.mask[static_cast<std::size_t>(k)] == '1';
  }
  return puzzle;
}

Random seeded(std::uint32_t seed) {
  Random random;
  random.reseed(seed);
  return random;
}

Puzzle transformed(Puzzle puzzle, std::uint32_t seed) {
  Random generator = seeded(seed);
  Transformer_Grille(generator, puzzle.solution, puzzle.mask);
  return puzzle;
}

std::string puzzle_text(const Puzzle& puzzle) {
  std::string text = digits_of(puzzle.solution);
  for (int k = 0; k < 81; ++k)
    if (!puzzle.mask(k / 9 + 1, k % 9 + 1)) text[static_cast<std::size_t>(k)] = '.';
  return text;
}

/// For each digit the number of its cells that are given, sorted: kept by every relabelling.
std::vector<int> givens_a_digit(const Puzzle& puzzle) {
  std::vector<int> counts(9);
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) counts[puzzle.solution(r, c) - 1u] += puzzle.mask(r, c);
  std::ranges::sort(counts);
  return counts;
}

// The same changes written as the rules for playing cards would be: lists counted from 1, used
// elements struck out by -1.

using List = std::vector<int>;

List shuffled(List list, Random& random) {
  List scratch = list;
  for (int i = static_cast<int>(list.size()); i >= 1; --i) {
    const int r = static_cast<int>(std::floor(random.draw() * i));
    std::size_t j = 0;
    for (int unused = -1; true; ++j) {
      if (scratch[j] >= 0) ++unused;
      if (unused == r) break;
    }
    list[static_cast<std::size_t>(i - 1)] = scratch[j];
    scratch[j] = -1;
  }
  return list;
}

/// Where each line comes from, for rows and columns.
struct Lines9 {
  std::array<int, 10> from{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
  void exchange(int a, int b) { std::swap(from.at(size_t(a)), from.at(size_t(b))); }
  void exchange_bands(int a, int b) {
    for (int k = 1; k <= 3; ++k) exchange(3 * a - 3 + k, 3 * b - 3 + k);
  }
};

Puzzle plainly_transformed(const Puzzle& puzzle, std::uint32_t seed) {
  Random random = seeded(seed);
  const bool transposed = std::floor(random.draw() * 2) == 0;
  Lines9 rows, columns;
  List h = shuffled({1, 2, 3}, random), v = shuffled({1, 2, 3}, random);
  for (int k = 1; k <= 3; ++k) {
    if (k < h[size_t(k - 1)]) columns.exchange_bands(k, h[size_t(k - 1)]);
    if (k < v[size_t(k - 1)]) rows.exchange_bands(k, v[size_t(k - 1)]);
  }
  for (int base = 0; base <= 6; base += 3) {
    h = shuffled({1, 2, 3}, random);
    v = shuffled({1, 2, 3}, random);
    for (int k = 1; k <= 3; ++k) {
      if (k < h[size_t(k - 1)]) columns.exchange(base + k, base + h[size_t(k - 1)]);
      if (k < v[size_t(k - 1)]) rows.exchange(base + k, base + v[size_t(k - 1)]);
    }
  }
  const List p = shuffled({1, 2, 3, 4, 5, 6, 7, 8, 9}, random);
  Puzzle result;
  for (int i = 1; i <= 9; ++i)
    for (int j = 1; j <= 9; ++j) {
      int r = rows.from[size_t(i)], c = columns.from[size_t(j)];
      if (transposed) std::swap(r, c);
      result.solution(i, j) = static_cast<std::uint8_t>(p[puzzle.solution(r, c) - 1u]);
      result.mask(i, j) = puzzle.mask(r, c);
    }
  return result;
}

TEST(Transformer, MakesTheSameChangesAsThePlainRulesForEverySeed) {
  for (std::uint32_t seed = 0; seed < 400; ++seed) {
    const Puzzle puzzle = stored(static_cast<int>(seed % 40) + 1);
    EXPECT_EQ(transformed(puzzle, seed), plainly_transformed(puzzle, seed)) << "seed " << seed;
  }
}

std::size_t unit_digit_pairs(const Puzzle& puzzle) {
  std::set<std::string> pairs;
  const std::string text = digits_of(puzzle.solution);
  for (std::size_t k = 0; k < 81; ++k) {
    pairs.insert({text[k], 'r', char('0' + k / 9)});
    pairs.insert({text[k], 'c', char('0' + k % 9)});
    pairs.insert({text[k], 'b', char('0' + k / 27 * 3 + k % 9 / 3)});
  }
  return pairs.size();
}

TEST(Transformer, KeepsEverySolutionValid) {
  for (std::uint32_t seed = 0; seed < 200; ++seed)
    EXPECT_EQ(unit_digit_pairs(transformed(stored(static_cast<int>(seed % 40) + 1), seed)), 243u)
        << "seed " << seed;
}

TEST(Transformer, KeepsPuzzlesWithOneSolution) {
  for (std::uint32_t seed = 0; seed < 32; ++seed)
    EXPECT_EQ(solution_count(puzzle_text(transformed(stored(static_cast<int>(seed) + 1), seed)), 2),
              1)
        << "seed " << seed;
}

TEST(Transformer, KeepsTheNumberOfGivensAndEachGivenWithItsDigit) {
  for (std::uint32_t seed = 0; seed < 200; ++seed) {
    const Puzzle before = stored(static_cast<int>(seed % 40) + 1);
    EXPECT_EQ(givens_a_digit(transformed(before, seed)), givens_a_digit(before));
  }
}

// Statistics. Every cell of the probe holds its row's number, and row r has r givens, column c has
// 10 - c: from the result one reads where each line came from and whether it was transposed.

Puzzle probe() {
  Puzzle puzzle;
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) {
      puzzle.solution(r, c) = static_cast<std::uint8_t>(r);
      puzzle.mask(r, c) = c <= r;
    }
  return puzzle;
}

bool is_transposed(const Puzzle& puzzle) { return puzzle.solution(1, 1) != puzzle.solution(1, 2); }

/// The source line (1..9) of every row, or column, of a transformed probe.
std::array<int, 9> sources(const Puzzle& puzzle, bool of_rows) {
  std::array<int, 9> lines{};
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c)
      lines[static_cast<std::size_t>((of_rows ? r : c) - 1)] += puzzle.mask(r, c);
  if (of_rows == is_transposed(puzzle))
    for (int& line : lines) line = 10 - line;
  return lines;
}

std::string letters(int a, int b, int c) {
  return {static_cast<char>('A' + a), static_cast<char>('A' + b), static_cast<char>('A' + c)};
}

class Arrangements : public testing::Test {
 protected:
  static constexpr int runs = 6000;

  static void SetUpTestSuite() {
    for (std::uint32_t seed = 1; seed <= runs; ++seed) {
      const Puzzle result = transformed(probe(), seed);
      transposed += is_transposed(result);
      note("row", "bands", sources(result, true));
      note("column", "stacks", sources(result, false));
    }
  }

  static void note(const std::string& line, const std::string& group,
                   const std::array<int, 9>& from) {
    ++times[group][letters((from[0] - 1) / 3, (from[3] - 1) / 3, (from[6] - 1) / 3)];
    for (std::size_t b = 0; b < 3; ++b)
      ++times[line + "s of " + group + " " + std::to_string(b + 1)]
             [letters((from[3 * b] - 1) % 3, (from[3 * b + 1] - 1) % 3, (from[3 * b + 2] - 1) % 3)];
  }

  static inline int transposed = 0;
  static inline std::map<std::string, std::map<std::string, int>> times;
};

TEST_F(Arrangements, OfEveryTrioAreFiveWithTheReversedOneTwiceAsOften) {
  EXPECT_EQ(times.size(), 8u);
  for (const auto& [trio, counts] : times) {
    EXPECT_EQ(counts.size(), 5u) << trio;
    EXPECT_EQ(counts.count("CAB"), 0u) << trio;
    for (const auto& [order, count] : counts)
      EXPECT_NEAR(count, order == "CBA" ? runs / 3 : runs / 6, 185) << trio << ' ' << order;
  }
}

TEST_F(Arrangements, AreTransposedHalfOfTheTimes) { EXPECT_NEAR(transposed, runs / 2, 195); }

TEST(Relabelling, GivesEveryDigitEveryNameEquallyOften) {
  constexpr int runs = 4500;
  std::map<std::pair<int, int>, int> times;
  for (std::uint32_t seed = 1; seed <= runs; ++seed) {
    const Puzzle result = transformed(probe(), seed);
    const auto rows = sources(result, true), columns = sources(result, false);
    const auto& lines = is_transposed(result) ? columns : rows;
    for (int k = 1; k <= 9; ++k)
      ++times[{lines[size_t(k - 1)],
               is_transposed(result) ? result.solution(1, k) : result.solution(k, 1)}];
  }
  EXPECT_EQ(times.size(), 81u);
  for (const auto& [names, count] : times)
    EXPECT_NEAR(count, runs / 9, 110) << names.first << " as " << names.second;
}

// The parts of the transformation.

TEST(Melanger, GivesEveryOrderEquallyOften) {
  constexpr int runs = 24000;
  std::map<List, int> times;
  Random generator = seeded(2);
  for (int i = 0; i < runs; ++i) {
    List list{0, 1, 2, 3};
    Melanger(generator, list);
    ++times[list];
  }
  EXPECT_EQ(times.size(), 24u);
  for (const auto& [order, count] : times) EXPECT_NEAR(count, 1000, 155);
}

TEST(Melanger, DrawsOncePerElementAndKeepsThemAll) {
  List list{7, 5, 0, 5};
  Random generator = seeded(9);
  Melanger(generator, list);
  std::ranges::sort(list);
  EXPECT_EQ(list, (List{0, 5, 5, 7}));
  Random random = seeded(9);
  for (int i = 0; i < 4; ++i) random.draw();
  EXPECT_EQ(generator.draw(), random.draw());
}

TEST(Melanger, LeavesAnEmptyListAlone) {
  List list;
  Random generator;
  Melanger(generator, list);
  EXPECT_TRUE(list.empty());
}

Puzzle numbered() {
  Puzzle puzzle;
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) {
      puzzle.solution(r, c) = static_cast<std::uint8_t>(10 * r + c);
      puzzle.mask(r, c) = (r * 3 + c * 5) % 7 < 3;
    }
  return puzzle;
}

/// Where `puzzle` has its rows and columns from, as seen from `numbered`.
void expect_lines(const Puzzle& puzzle, const List& rows, const List& columns) {
  const Puzzle before = numbered();
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) {
      const int row = rows[size_t(r - 1)], column = columns[size_t(c - 1)];
      EXPECT_EQ(puzzle.solution(r, c), before.solution(row, column)) << r << ' ' << c;
      EXPECT_EQ(puzzle.mask(r, c), before.mask(row, column)) << r << ' ' << c;
    }
}

const List natural{1, 2, 3, 4, 5, 6, 7, 8, 9};

TEST(Echanger, VerticalExchangesTwoRowsOfBothSquares) {
  Puzzle puzzle = numbered();
  Echanger(puzzle.solution, puzzle.mask, "vertical", 2, 9);
  expect_lines(puzzle, {1, 9, 3, 4, 5, 6, 7, 8, 2}, natural);
}

TEST(Echanger, HorizontalExchangesTwoColumnsOfBothSquares) {
  Puzzle puzzle = numbered();
  Echanger(puzzle.solution, puzzle.mask, "horizontal", 1, 5);
  expect_lines(puzzle, natural, {5, 2, 3, 4, 1, 6, 7, 8, 9});
}

TEST(Echanger, AnyOtherWordChangesNothing) {
  Puzzle puzzle = numbered();
  for (const char* word : {"Vertical", "", "horizontal ", "both"}) {
    Echanger(puzzle.solution, puzzle.mask, word, 1, 5);
    Echanger_Bandes(puzzle.solution, puzzle.mask, word, 1, 2);
  }
  EXPECT_EQ(puzzle, numbered());
}

TEST(EchangerBandes, ExchangesThreeRowsOrThreeColumns) {
  Puzzle rows = numbered();
  Echanger_Bandes(rows.solution, rows.mask, "vertical", 1, 3);
  expect_lines(rows, {7, 8, 9, 4, 5, 6, 1, 2, 3}, natural);
  Puzzle columns = numbered();
  Echanger_Bandes(columns.solution, columns.mask, "horizontal", 2, 1);
  expect_lines(columns, natural, {4, 5, 6, 1, 2, 3, 7, 8, 9});
}

TEST(Renumeroter, GivesEveryCellTheListsDigit) {
  Puzzle puzzle = stored(1);
  const Puzzle before = puzzle;
  const std::array<int, 9> names{3, 1, 2, 9, 8, 7, 6, 5, 4};
  Renumeroter(names, puzzle.solution);
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c)
      EXPECT_EQ(puzzle.solution(r, c), names[before.solution(r, c) - 1u]);
  EXPECT_EQ(puzzle.mask, before.mask);
}

}  // namespace
}  // namespace sdk::test
