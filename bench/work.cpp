// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What the game computes, with its real window on screen: a new puzzle, and the search beside the
// same search as a plain loop.

#include <benchmark/benchmark.h>

#include <algorithm>

#include "bench/game.hpp"
#include "bench/plain_search.hpp"
#include "board/grid_text.hpp"
#include "puzzles/library.hpp"
#include "puzzles/stock/entry_text.hpp"

namespace sdk::bench {
namespace {

Game* game = nullptr;

Square<std::int16_t> puzzle_of(const LibraryEntry& entry) {
  return sdk::puzzle_of(puzzle_text(entry));
}

void show(const LibraryEntry& entry, Window& window) {
  window.ChaineGrille = puzzle_text(entry);
  std::ranges::replace(window.ChaineGrille, '.', ' ');
  window.CreateGrille();
}

void count_steps(benchmark::State& state, std::int64_t steps_a_search) {
  state.SetItemsProcessed(state.iterations() * steps_a_search);
}

const LibraryEntry& entry_of(const benchmark::State& state) {
  return BibliothequeGrilles.at(static_cast<std::size_t>(state.range(0) - 1));
}

void plain_loop(benchmark::State& state) {
  const Square<std::int16_t> puzzle = puzzle_of(entry_of(state));
  std::int64_t steps = 0;
  for (auto _ : state) {
    PlainSearch search(puzzle);
    benchmark::DoNotOptimize(steps = search.run());
  }
  count_steps(state, steps);
}

/// The game makes the very steps of the plain loop, so that those are counted.
void Resoudre(benchmark::State& state) {
  MainWindow& window = game->window();
  show(entry_of(state), window);
  globals.ResolutionSilencieuse = true;
  for (auto _ : state) window.Resoudre();
  if (window.ChaineSolution != entry_of(state).solution) state.SkipWithError("not solved");
  count_steps(state, PlainSearch(puzzle_of(entry_of(state))).run());
}

void Nouvelle_Grille(benchmark::State& state) {
  MainWindow& window = game->window();
  for (auto _ : state) sdk::Nouvelle_Grille(window.resGrille, window.Masque);
}

/// A press of the button: the puzzle is made, put in the grid and repainted.
void new_puzzle_button(benchmark::State& state) {
  for (auto _ : state) game->window().click(Control::Command1);
}

// Entries whose search takes millions of steps.
BENCHMARK(plain_loop)->Arg(35)->Arg(38)->Arg(40)->Unit(benchmark::kMillisecond);
BENCHMARK(Resoudre)->Arg(35)->Arg(38)->Arg(40)->Unit(benchmark::kMillisecond);
BENCHMARK(Nouvelle_Grille)->Unit(benchmark::kMicrosecond);
BENCHMARK(new_puzzle_button)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace sdk::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  QApplication::setStyle("Fusion");
  QApplication application(argc, argv);
  sdk::bench::Game game;
  sdk::bench::game = &game;
  benchmark::RunSpecifiedBenchmarks();
}
