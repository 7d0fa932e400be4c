// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The solve button with the game's own search and with the companion solver, puzzle by puzzle:
//   bench_solve [LIST [COUNT]]
// over the 40 stored puzzles, then over the first COUNT (100) of a list of one puzzle a line. The
// button solves silently, as when a puzzle is opened. A search is stopped by Escape after 20 s.

#include <QMessageBox>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/game.hpp"
#include "files/external_solver.hpp"
#include "files/platform.hpp"
#include "puzzles/stock/entry_text.hpp"
#include "tools/command_line/command_line.hpp"

namespace sdk::bench {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds bound{20};

using Puzzles = std::vector<std::string>;  ///< 81 characters each, a blank for an empty cell

Puzzles library() {
  Puzzles puzzles;
  for (const LibraryEntry& entry : BibliothequeGrilles)
    std::ranges::replace(puzzles.emplace_back(puzzle_text(entry)), '.', ' ');
  return puzzles;
}

Puzzles first_of(const std::string& path, std::size_t count) {
  std::ifstream file(path);
  Puzzles puzzles;
  for (std::string line; puzzles.size() < count && std::getline(file, line);) {
    if (line.size() != 81) throw std::runtime_error("not a puzzle: " + line);
    std::ranges::replace(line, '.', ' ');
    puzzles.push_back(line);
  }
  if (puzzles.empty()) throw std::runtime_error("no puzzles in " + path);
  return puzzles;
}

/// The companion solver beside this program, under the name that the game looks for.
class InstalledSolver {
 public:
  InstalledSolver() { fs::copy_file(ZOLV_PROGRAM, file_, fs::copy_options::overwrite_existing); }
  ~InstalledSolver() { fs::remove(file_); }
  InstalledSolver(const InstalledSolver&) = delete;
  InstalledSolver& operator=(const InstalledSolver&) = delete;

 private:
  fs::path file_ = platform::program_folder() / "zolv.exe";
};

/// Presses Escape once the bound is reached, and OK in the box that follows.
class Impatience {
 public:
  explicit Impatience(MainWindow& window) {
    QObject::connect(&escape_, &QTimer::timeout, [&window] { window.preview_key(key::escape); });
    QObject::connect(&ok_, &QTimer::timeout, [] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->accept();
    });
    escape_.start(bound);
    ok_.start(std::chrono::milliseconds(200));
  }

 private:
  QTimer escape_, ok_;
};

struct Solve {
  double milliseconds;
  std::string solution;  ///< empty when the bound was hit
};

Solve solve(MainWindow& window, const std::string& puzzle) {
  window.ChaineGrille = puzzle;
  window.CreateGrille();
  window.ChaineSolution.clear();
  globals.ResolutionSilencieuse = true;
  const Impatience impatience(window);
  const auto start = std::chrono::steady_clock::now();
  Bouton_GO_Click();
  const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
  return {time.count(), window.ChaineSolution};
}

/// The times of one way to solve a list.
class Times {
 public:
  void add(const Solve& solve) {
    times_.push_back(solve.milliseconds);
    hits_ += solve.solution.empty();
  }

  void print(const char* name) {
    std::ranges::sort(times_);
    double sum = 0;
    for (const double time : times_) sum += time;
    std::printf("  %-8s median %10.3f ms  mean %10.3f ms  longest %10.3f ms  bound hit %d times\n",
                name, times_[times_.size() / 2], sum / static_cast<double>(times_.size()),
                times_.back(), hits_);
  }

 private:
  std::vector<double> times_;
  int hits_ = 0;
};

void run(MainWindow& window, const std::string& name, const Puzzles& puzzles) {
  Times search, companion;
  int different = 0;
  for (const std::string& puzzle : puzzles) {
    const Solve searched = solve(window, puzzle);
    const InstalledSolver installed;
    const Solve handed_over = solve(window, puzzle);
    search.add(searched);
    companion.add(handed_over);
    different += !searched.solution.empty() && searched.solution != handed_over.solution;
  }
  std::printf("%s: %zu puzzles, %d with two answers\n", name.c_str(), puzzles.size(), different);
  search.print("Resoudre");
  companion.print("zolv");
  std::fflush(stdout);
}

}  // namespace
}  // namespace sdk::bench

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  std::string name;
  std::size_t count = 100;
  sdk::CommandLine line;
  line.add_option("LIST", name);
  line.add_option("COUNT", count)->transform(sdk::whole_number(1));
  if (!line.read(argc, argv)) {
    std::cerr << "usage: bench_solve [LIST [COUNT]]\n";
    return 2;
  }
  try {
    sdk::bench::Puzzles list;
    if (!name.empty()) list = sdk::bench::first_of(name, count);
    sdk::bench::Game game;
    sdk::bench::run(game.window(), "library", sdk::bench::library());
    if (!name.empty()) sdk::bench::run(game.window(), name, list);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
