// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// sudoku-walk: the hint command as a filter.

#include <algorithm>
#include <charconv>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "board/grid_text.hpp"
#include "tools/walk/line_filter.hpp"
#include "tools/walk/walk.hpp"

namespace {

constexpr std::string_view usage =
    "usage: sudoku-walk [--explain en|fr] [--jobs N]\n       sudoku-walk --signature | --help\n";

constexpr std::string_view help = R"(
Plays the hint command on each puzzle, accepting every offer, until nothing more can be found, and
prints what happened.

Input: one puzzle a line, 81 characters row by row, 1-9 a digit, '.' or '0' an empty cell. Blank
lines and lines that start with '#' are skipped.

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
  --jobs N          works on N puzzles at once, on as many threads; else on as many as the machine has
                    processors. The output is the same, in the order of the input
  --signature       one number that stands for the walks of the forty built-in puzzles
  --help            this text

A line that is no puzzle gives "error line <n>: <why>" on standard error; every line counts in <n>,
and a carriage return at a line's end is ignored. The other lines are still played, and the exit
status is 1, as it is when the input or the output fails. A wrong option gives exit status 2.
)";

/// More threads than any machine of today has processors.
constexpr int most_jobs = 1024;

/// What is asked of the walks.
struct Order {
  std::string_view language;  ///< of the explanation, "En" or "Fr"; empty for the plain walk
  int jobs = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
};

bool is_skipped(std::string_view line) {
  return line.find_first_not_of(" \t") == std::string_view::npos || line.front() == '#';
}

sdk::Processed process(std::string_view line, long number, std::string_view language) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  if (is_skipped(line)) return {};
  if (const std::string fault = sdk::puzzle_fault(line); !fault.empty())
    return {"", "error line " + std::to_string(number) + ": " + fault + "\n", true};
  return {language.empty() ? sdk::walk(line) : sdk::explained_walk(line, language), ""};
}

/// Plays every line of the standard input; the exit status.
int play_all(const Order& order) {
  const auto process_line = [&](const std::string& line, long number) {
    return process(line, number, order.language);
  };
  const auto [had_faults, failure] =
      sdk::filter_lines(std::cin, std::cout, std::cerr, order.jobs, process_line);
  if (!failure.empty()) std::cerr << "error " << failure << '\n';
  return had_faults || !failure.empty() ? 1 : 0;
}

int refuse() {
  std::cerr << usage;
  return 2;
}

bool read_language(std::string_view word, Order& order) {
  if (word != "en" && word != "fr") return false;
  order.language = word == "en" ? "En" : "Fr";
  return true;
}

bool read_jobs(std::string_view word, Order& order) {
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), order.jobs);
  return error == std::errc() && end == word.data() + word.size() && order.jobs >= 1 &&
         order.jobs <= most_jobs;
}

/// Options and their values by turns; nothing when one of them is none.
std::optional<Order> read_order(const std::vector<std::string>& arguments) {
  Order order;
  if (arguments.size() % 2 != 0) return std::nullopt;
  for (std::size_t i = 0; i < arguments.size(); i += 2) {
    const bool is_read = arguments[i] == "--explain"
                             ? read_language(arguments[i + 1], order)
                             : arguments[i] == "--jobs" && read_jobs(arguments[i + 1], order);
    if (!is_read) return std::nullopt;
  }
  return order;
}

int run(const std::vector<std::string>& arguments) {
  if (arguments == std::vector<std::string>{"--help"}) {
    std::cout << usage << help;
    return 0;
  }
  if (arguments == std::vector<std::string>{"--signature"}) {
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
