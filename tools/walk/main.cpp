// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// sudoku-walk: the hint command as a filter.

#include <algorithm>
#include <charconv>
#include <iostream>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "board/grid_text.hpp"
#include "files/text/file_grid.hpp"
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
  3= candidates removed, 4= support of a removal or offered, 6= pincers, fins, ends of links

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

using Words = std::vector<std::string>;

/// What is asked of the walks.
struct Order {
  /// Tells the walk of a puzzle; none when it was not said how.
  std::string (*tell)(std::string_view puzzle) = nullptr;
  int jobs = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
  /// Saved games to play; none when the puzzles come on standard input.
  Words files;
};

std::string told(std::string_view puzzle, const Order& order) {
  return order.tell ? order.tell(puzzle) : sdk::walk(puzzle);
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

int refuse() {
  std::cerr << usage;
  return 2;
}

std::string tell_in_english(std::string_view puzzle) { return sdk::explained_walk(puzzle, "En"); }
std::string tell_in_french(std::string_view puzzle) { return sdk::explained_walk(puzzle, "Fr"); }

/// Whether it is still open how walks are told, and the word is a language.
bool read_language(std::string_view word, Order& order) {
  if (order.tell) return false;
  if (word == "en") order.tell = tell_in_english;
  if (word == "fr") order.tell = tell_in_french;
  return order.tell != nullptr;
}

bool read_json(Order& order) { return !std::exchange(order.tell, sdk::json_walk); }

bool read_jobs(std::string_view word, Order& order) {
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), order.jobs);
  return error == std::errc() && end == word.data() + word.size() && order.jobs >= 1 &&
         order.jobs <= most_jobs;
}

using Rest = std::span<const std::string>;

const std::string& take_first(Rest& words) {
  const std::string& first = words.front();
  words = words.subspan(1);
  return first;
}

/// Takes one option, and its value if it has one; false when it is none.
bool take_option(Rest& words, Order& order) {
  const std::string& option = take_first(words);
  if (option == "--json") return read_json(order);
  if (words.empty()) return false;
  const std::string& value = take_first(words);
  if (option == "--explain") return read_language(value, order);
  return option == "--jobs" && read_jobs(value, order);
}

/// Takes one option or one file; false when it is neither.
bool take(Rest& words, Order& order) {
  if (words.front().starts_with('-')) return take_option(words, order);
  order.files.push_back(take_first(words));
  return true;
}

/// Nothing when a word is out of place.
std::optional<Order> read_order(Rest words) {
  Order order;
  while (!words.empty())
    if (!take(words, order)) return std::nullopt;
  return order;
}

int run(const Words& arguments) {
  if (arguments == Words{"--help"}) {
    std::cout << usage << help;
    return 0;
  }
  if (arguments == Words{"--signature"}) {
    std::cout << sdk::library_signature() << '\n';
    return 0;
  }
  const std::optional<Order> order = read_order(arguments);
  return order ? play_all(*order) : refuse();
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  return run({argv + 1, argv + argc});
}
