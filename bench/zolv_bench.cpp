// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The companion solver in process, over lists of puzzles:
//   zolv_bench [benchmark options] LIST...
// A list has one puzzle a line, 81 characters row by row, "." for an empty cell. Every iteration
// solves the whole list; `a_puzzle` is the time by the number of puzzles.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "solver.hpp"

namespace zolv {
namespace {

Grid grid_of(const std::string& line) {
  if (line.size() != 81 || line.find_first_not_of(".123456789") != std::string::npos)
    throw std::runtime_error("not a puzzle: " + line);
  Grid grid{};
  for (std::size_t k = 0; k < grid.size(); ++k)
    if (line[k] != '.') grid[k] = static_cast<std::uint8_t>(line[k] - '0');
  return grid;
}

std::vector<Grid> puzzles_of(const std::string& path) {
  std::ifstream file(path);
  std::vector<Grid> puzzles;
  for (std::string line; std::getline(file, line);) puzzles.push_back(grid_of(line));
  if (puzzles.empty()) throw std::runtime_error("no puzzles in " + path);
  return puzzles;
}

void solve_all(benchmark::State& state, const std::vector<Grid>& puzzles) {
  for (auto _ : state)
    for (const Grid& puzzle : puzzles)
      if (!solve(puzzle)) return state.SkipWithError("a puzzle has no solution");
  state.counters["a_puzzle"] = benchmark::Counter(
      static_cast<double>(puzzles.size()),
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void run(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  if (count < 2) throw std::runtime_error("zolv_bench [benchmark options] LIST...");
  for (int k = 1; k < count; ++k)
    benchmark::RegisterBenchmark(arguments[k], solve_all, puzzles_of(arguments[k]))
        ->Unit(benchmark::kMillisecond);
  benchmark::RunSpecifiedBenchmarks();
}

}  // namespace
}  // namespace zolv

int main(int count, char** arguments) {
  try {
    zolv::run(count, arguments);
    return EXIT_SUCCESS;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return EXIT_FAILURE;
  }
}
