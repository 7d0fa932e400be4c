// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Random commands for the text front end.
#pragma once

#include <cstdint>
#include <random>
#include <string>

namespace sdk {

/// One seed gives the same commands on every machine.
class EventSource {
 public:
  explicit EventSource(std::uint32_t seed) : engine_(seed) {}

  /// A command without line end: mostly what a player does to the grid, now and then the rest,
  /// also at steps of searches, also at steps of searches inside these.
  std::string next() { return event(0); }
  /// A setting for the puzzles of one program.
  std::string seed();

 private:
  int below(int n) { return static_cast<int>(engine_() % static_cast<std::uint32_t>(n)); }
  int cell_line() { return 1 + below(9); }
  template <std::size_t n>
  std::string one_of(const char* const (&texts)[n]);

  std::string event(int depth);
  std::string plain_event();
  std::string key();
  std::string select();
  std::string click();
  std::string turn();
  std::string check();
  std::string level();
  std::string answer();
  std::string rare();
  std::string at_step(int depth);

  std::mt19937 engine_;
};

}  // namespace sdk
