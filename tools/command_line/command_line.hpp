// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What the tools have in common where they read their command lines with CLI11.
#pragma once

#include <CLI/CLI.hpp>
#include <limits>
#include <string>
#include <vector>

namespace sdk {

/// A command line without any option yet. No word but an option begins with '-' (such a file is
/// ./-NAME). What is wrong with one is not told in CLI11's words: a tool prints its usage instead.
class CommandLine : public CLI::App {
 public:
  CommandLine();

  /// An option without a value, given at most once.
  CLI::Option* add_switch(const std::string& name, bool& given);
  /// The same, and no other word may stand beside it.
  CLI::Option* add_lone_switch(const std::string& name, bool& given);
  /// Every word that is no option goes to `names` as it stands, but for one that begins with '-'.
  /// (An option of many values would do without `[a,b]` and `{}`, which CLI11 reads as lists.)
  void add_names(std::vector<std::string>& names);

  /// Takes the words after the program's name. False when one of them is out of place; what was to
  /// be filled in is then of no use.
  bool read(int argc, const char* const* argv);

 private:
  bool take_names();

  std::vector<const CLI::Option*> lone_;
  std::vector<std::string>* names_ = nullptr;
};

/// A decimal number from `low` to `high`, in digits alone.
CLI::Validator whole_number(long low, long high = std::numeric_limits<long>::max());

}  // namespace sdk
