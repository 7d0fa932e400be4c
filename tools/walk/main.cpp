// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// sudoku-walk: the hint command as a filter.

#include <algorithm>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "board/grid_text.hpp"
#include "files/text/file_grid.hpp"
#include "tools/command_line/command_line.hpp"
#include "tools/walk/json_walk.hpp"
#include "tools/walk/line_filter.hpp"
#include "tools/walk/walk.hpp"

namespace {

constexpr std::string_view usage =
    "usage: sudoku-walk [--explain en|fr | --json] [--jobs N] [FILE...]\n       sudoku-walk "
    "--signature | --help\n";

constexpr std::string_view help = R"(
Plays the hint command on each puzzle, accepting every offer, until nothing more can be found, and
prints what happened.

Input: one puzzle a line of standard input, 81 characters row by row, 1-9 a digit, '.' or '0' an
empty cell. Blank lines and lines that start with '#' are skipped.
FILE is a game saved by sudoku (*.sdk); with files, these are played in their order, each on all the
digits in its grid, the player's among them, and standard input is not read.

Output, for each puzzle:
  grid <81 characters>          the puzzle, '.' for an empty cell
  T<place> <eliminations>       a technique removed candidates: its place in the order, and for each
                                cell the digits it lost, as r1c3-38
  N r<r>c<c>=<d> | <marks>      a naked single was offered and accepted
  H r<r>c<c>=<d> | <marks>      a hidden single was offered and accepted
  E completed | <marks>         the end: the grid is complete
  E exhausted | <marks>         the end: nothing more can be found
  E dead r<r>c<c> | <marks>     the end: an empty cell has no candidate left
<marks> are the cells marked in the candidate grid at that moment:
  3= candidates removed, 4= support of a removal or offered, 6= pincers, fins, ends of links, the
  second colour of a colouring

  --explain en|fr   the same walk in sentences, in English or French
  --json            the same walk as JSON, one object a line: {"puzzle": ...}, then a step each, with
                    all that its conclusion rests on
  --jobs N          works on N puzzles at once, on as many threads; else on as many as the machine has
                    processors. The output is the same, in the order of the input
  --signature       one number that stands for the walks of the forty built-in puzzles
  --help            this text

A line that is no puzzle gives "error line <n>: <why>" on standard error; every line counts in <n>,
and a carriage return at a line's end is ignored. A file that cannot be read or is no saved game
gives "error <file>: <why>". The other lines or files are still played, and the exit status is 1, as
it is when the input or the output fails. A wrong option gives exit status 2.
)";

/// More threads than any machine of today has processors.
constexpr int most_jobs = 1024;

/// What is asked for.
struct Order {
  bool help = false, signature = false, json = false;
  /// en or fr; empty when no sentences are wanted.
  std::string language;
  int jobs = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
  /// Saved games to play; none when the puzzles come on standard input.
  std::vector<std::string> files;
};

std::string told(std::string_view puzzle, const Order& order) {
  if (order.json) return sdk::json_walk(puzzle);
  if (order.language.empty()) return sdk::walk(puzzle);
  return sdk::explained_walk(puzzle, order.language == "fr" ? "Fr" : "En");
}

/// A fault of the line or file of that name.
sdk::Processed fault_of(const std::string& name, const std::string& why) {
  return {"", "error " + name + ": " + why + "\n", true};
}

bool is_skipped(std::string_view line) {
  return line.find_first_not_of(" \t") == std::string_view::npos || line.front() == '#';
}

sdk::Processed process_line(std::string_view line, long number, const Order& order) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  if (is_skipped(line)) return {};
  if (const std::string fault = sdk::puzzle_fault(line); !fault.empty())
    return fault_of("line " + std::to_string(number), fault);
  return {told(line, order), ""};
}

sdk::Processed process_file(const std::string& name, const Order& order) {
  auto [cells, failure] = sdk::grid_in_file(name);
  if (!failure.empty()) return fault_of(name, failure);
  std::ranges::replace(cells, ' ', '.');
  if (const std::string fault = sdk::puzzle_fault(cells); !fault.empty())
    return fault_of(name, "no saved game: " + fault);
  return {told(cells, order), ""};
}

sdk::FilterEnd play_files(const Order& order) {
  return sdk::filter_items(
      order.files, std::cout, std::cerr, order.jobs,
      [&](const std::string& name, long) { return process_file(name, order); });
}

sdk::FilterEnd play_lines(const Order& order) {
  return sdk::filter_lines(
      std::cin, std::cout, std::cerr, order.jobs,
      [&](const std::string& line, long number) { return process_line(line, number, order); });
}

/// Plays the files, or every line of the standard input; the exit status.
int play_all(const Order& order) {
  const auto [had_faults, failure] = order.files.empty() ? play_lines(order) : play_files(order);
  if (!failure.empty()) std::cerr << "error " << failure << '\n';
  return had_faults || !failure.empty() ? 1 : 0;
}

/// Nothing when a word is out of place.
std::optional<Order> read_order(int argc, const char* const* argv) {
  Order order;
  sdk::CommandLine line;
  CLI::Option* const json = line.add_switch("--json", order.json);
  line.add_option("--explain", order.language)->check(CLI::IsMember({"en", "fr"}))->excludes(json);
  line.add_option("--jobs", order.jobs)->transform(sdk::whole_number(1, most_jobs))->take_last();
  line.add_lone_switch("--signature", order.signature);
  line.add_lone_switch("--help", order.help);
  line.add_names(order.files);
  return line.read(argc, argv) ? std::optional(order) : std::nullopt;
}

int refuse() {
  std::cerr << usage;
  return 2;
}

/// The exit status.
int run(const Order& order) {
  if (order.help) {
    std::cout << usage << help;
    return 0;
  }
  if (order.signature) {
    std::cout << sdk::library_signature() << '\n';
    return 0;
  }
  return play_all(order);
}

}  // namespace

// What lacks memory is ended by the system. NOLINTNEXTLINE(bugprone-exception-escape)
int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  const std::optional<Order> order = read_order(argc, argv);
  return order ? run(*order) : refuse();
}
