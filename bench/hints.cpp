// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The hint command without drawing: how long it takes, and what the techniques do, over lists of
// puzzles.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "board/grid_text.hpp"
#include "files/platform_desktop.hpp"
#include "puzzles/stock/entry_text.hpp"
#include "screen/errors.hpp"
#include "tests/support/puzzle_generator.hpp"
#include "tests/support/solution_counter.hpp"
#include "tools/command_line/command_line.hpp"
#include "tools/walk/play.hpp"
#include "ui/main_window.hpp"

namespace sdk::bench {
namespace {

using test::Puzzle;
using test::PuzzleGenerator;

// The lists

std::vector<Puzzle> library() {
  std::vector<Puzzle> puzzles;
  for (const LibraryEntry& entry : BibliothequeGrilles) puzzles.push_back(puzzle_text(entry));
  return puzzles;
}

std::vector<Puzzle> generated(int count) {
  PuzzleGenerator generator(1);
  std::vector<Puzzle> puzzles;
  while (count-- > 0) puzzles.push_back(generator.next()[1]);
  return puzzles;
}

std::vector<Puzzle> of_file(const std::string& path) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error("cannot read " + path);
  std::vector<Puzzle> puzzles;
  for (std::string line; std::getline(file, line);)
    if (puzzle_fault(line).empty()) puzzles.push_back(line);
  return puzzles;
}

/// "library", "minimal" (1,000 generated minimal puzzles), or a file of puzzles, one a line.
std::vector<Puzzle> list_named(const std::string& name) {
  if (name == "library") return library();
  if (name == "minimal") return generated(1000);
  return of_file(name);
}

// A game that plays them

/// Answers every offer alike, and has nothing else of a machine.
class AnsweringDesktop : public PlatformDesktop {
 public:
  Answer answer = Answer::yes;

  Answer message_box(const std::string&, Icon, Buttons buttons, const std::string&) override {
    return buttons == Buttons::yes_no ? answer : Answer::ok;
  }
  std::string open_dialog(const std::string&) override { return ""; }
  std::string save_dialog(const std::string&) override { return ""; }
  void set_pointer(Pointer) override {}
  void let_events_run() override {}
  void set_clipboard(const std::string&) override {}
  void open_document(const std::string&) override {}
  PageSize printer_page() override { throw RuntimeError("printer", "there is none"); }
  void print(const Page&) override {}
  std::filesystem::path data_folder() override { throw RuntimeError("data folder", "none"); }
};

/// What happened on one puzzle.
struct Record {
  std::vector<Placement> offers;
  std::map<int, int> firings;  ///< by place
  EventKind end{};
};

Record walk(const Puzzle& puzzle) {
  Record record;
  play(puzzle_of(puzzle), [&](const Event& event) {
    if (event.kind == EventKind::removal) ++record.firings[event.deduction.technique->place];
    if (event.kind == EventKind::offer) record.offers.push_back(*event.deduction.placement);
    record.end = event.kind;
  });
  return record;
}

class Game {
 public:
  Game() { window_.start(""); }

  void show(const Puzzle& puzzle) {
    for (int row = 0; row < 9; ++row)
      for (int column = 0; column < 9; ++column) {
        const char c = puzzle[static_cast<std::size_t>(row * 9 + column)];
        write(row, column, c == '.' || c == '0' ? ' ' : c);
      }
  }
  void place(Placement placement) {
    write(placement.cell.row - 1, placement.cell.column - 1,
          static_cast<char>('0' + placement.digit));
  }
  /// Asks for a hint; with Yes it goes on to the end.
  void hint(Answer answer) {
    desktop_.answer = answer;
    window_.click(Control::Command8);
  }

 private:
  void write(int row, int column, char c) { window_.MSF.set_text(row, column, std::string(1, c)); }

  AnsweringDesktop desktop_;
  MainWindow window_{desktop_};
};

// How long it takes

/// The shortest of five times, in microseconds: what the work takes while nothing disturbs it.
template <class Prepare, class Work>
double shortest_time(Prepare prepare, Work work) {
  using Clock = std::chrono::steady_clock;
  double shortest = 1e9;
  for (int times = 0; times < 5; ++times) {
    prepare();
    const auto start = Clock::now();
    work();
    const std::chrono::duration<double, std::micro> taken = Clock::now() - start;
    shortest = std::min(shortest, taken.count());
  }
  return shortest;
}

/// One hint in every position of every walk, and the walks.
struct Times {
  std::vector<double> hints, walks;
};

void measure(Game& game, const Puzzle& puzzle, Times& times) {
  const auto show = [&] { game.show(puzzle); };
  const std::vector<Placement> offers = walk(puzzle).offers;
  times.walks.push_back(shortest_time(show, [&] { game.hint(Answer::yes); }));
  show();
  for (const Placement offer : offers) {
    times.hints.push_back(shortest_time([] {}, [&] { game.hint(Answer::no); }));
    game.place(offer);
  }
}

double percentile(std::vector<double>& times, int percent) {
  const auto n = static_cast<std::ptrdiff_t>(times.size() - 1) * percent / 100;
  std::ranges::nth_element(times, times.begin() + n);
  return times[static_cast<std::size_t>(n)];
}

void print_percentiles(const char* what, std::vector<double>& times) {
  std::printf("  %-10s %6zu measured, median %8.1f us, 99 %% below %8.1f us, longest %8.1f us\n",
              what, times.size(), percentile(times, 50), percentile(times, 99),
              percentile(times, 100));
}

void print_times(const std::string& name) {
  Game game;
  Times times;
  for (const Puzzle& puzzle : list_named(name)) measure(game, puzzle, times);
  std::printf("%s\n", name.c_str());
  print_percentiles("one hint", times.hints);
  print_percentiles("whole walk", times.walks);
}

// What the techniques do

/// Summed over the walks of a list.
struct Counts {
  std::map<int, int> firings, walks_with;  ///< by place
  std::map<EventKind, int> ends;
  int walks = 0, offers = 0, wrong_walks = 0;
};

/// Whether the digits that were offered, all of them together, leave the puzzle without solution.
bool offers_wrong_digit(const Record& record, Puzzle puzzle) {
  for (const Placement& placement : record.offers)
    puzzle[static_cast<std::size_t>(placement.cell.number() - 1)] =
        static_cast<char>('0' + placement.digit);
  return test::solution_count(puzzle, 1) == 0;
}

void count(const Record& record, const Puzzle& puzzle, Counts& counts) {
  ++counts.walks;
  ++counts.ends[record.end];
  counts.offers += static_cast<int>(record.offers.size());
  for (const auto& [place, times] : record.firings) {
    counts.firings[place] += times;
    counts.walks_with[place] += times > 0;
  }
  counts.wrong_walks += offers_wrong_digit(record, puzzle);
}

void print_counts(const std::string& name, Counts& counts) {
  std::printf("%s: %d walks, %d offers\n", name.c_str(), counts.walks, counts.offers);
  for (const Technique& technique : techniques)
    std::printf("  %2d %-28s %6d times in %5d walks\n", technique.place,
                std::string(technique.name).c_str(), counts.firings[technique.place],
                counts.walks_with[technique.place]);
  std::printf("  completed %d, exhausted %d, dead %d\n", counts.ends[EventKind::completed],
              counts.ends[EventKind::exhausted], counts.ends[EventKind::dead]);
  std::printf("  walks that offer a digit which is not in the solution: %d\n", counts.wrong_walks);
}

void print_table(const std::string& name) {
  Counts counts;
  for (const Puzzle& puzzle : list_named(name)) count(walk(puzzle), puzzle, counts);
  print_counts(name, counts);
}

int run(int argc, const char* const* argv) {
  std::string what;
  std::vector<std::string> lists;
  CommandLine line;
  line.add_option("WHAT", what)->required()->check(CLI::IsMember({"times", "table"}));
  line.add_names(lists);
  if (!line.read(argc, argv) || lists.empty()) {
    std::cerr << "usage: bench_hints times|table LIST...\n"
                 "LIST is library, minimal (1,000 generated puzzles), or a file of puzzles\n";
    return 2;
  }
  for (const std::string& list : lists) what == "times" ? print_times(list) : print_table(list);
  return 0;
}

}  // namespace
}  // namespace sdk::bench

int main(int argc, char** argv) { return sdk::bench::run(argc, argv); }
