// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// sudoku-walk: the hint command as a filter.

#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "board/grid_text.hpp"
#include "tools/walk/walk.hpp"

namespace {

constexpr std::string_view usage = "usage: sudoku-walk [--explain en|fr | --signature | --help]\n";

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
  --signature       one number that stands for the walks of the forty built-in puzzles
  --help            this text

A line that is no puzzle gives "error line <n>: <why>" on standard error; every line counts in <n>,
and a carriage return at a line's end is ignored. The other lines are still played, and the exit
status is 1. A wrong option gives exit status 2.
)";

/// What is printed for a puzzle.
struct Output {
  std::string language;  ///< of the explanation; empty for the plain walk

  std::string of(sdk::Walker& walker, std::string_view puzzle) const {
    return language.empty() ? walker.walk(puzzle) : walker.explained(puzzle, language);
  }
};

bool is_skipped(std::string_view line) {
  return line.find_first_not_of(" \t") == std::string_view::npos || line.front() == '#';
}

/// Plays every line of the standard input; the exit status.
int play_all(const Output& output) {
  sdk::Walker walker;
  int status = 0, number = 0;
  for (std::string line; std::getline(std::cin, line);) {
    ++number;
    if (line.ends_with('\r')) line.pop_back();
    if (is_skipped(line)) continue;
    if (const std::string fault = sdk::puzzle_fault(line); !fault.empty()) {
      std::cerr << "error line " << number << ": " << fault << std::endl;
      status = 1;
    } else {
      std::cout << output.of(walker, line);
    }
  }
  return status;
}

int refuse() {
  std::cerr << usage;
  return 2;
}

int explain(const std::vector<std::string>& arguments) {
  if (arguments.size() != 2) return refuse();
  if (arguments[1] == "en") return play_all({"En"});
  if (arguments[1] == "fr") return play_all({"Fr"});
  return refuse();
}

int run(const std::vector<std::string>& arguments) {
  if (arguments.empty()) return play_all({});
  if (arguments[0] == "--explain") return explain(arguments);
  if (arguments.size() != 1) return refuse();
  if (arguments[0] == "--signature")
    std::cout << sdk::library_signature() << '\n';
  else if (arguments[0] == "--help")
    std::cout << usage << help;
  else
    return refuse();
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  return run({argv + 1, argv + argc});
}
