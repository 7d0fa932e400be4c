// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What is known of a technique beside how it works.
#pragma once

#include <bit>
#include <initializer_list>
#include <optional>
#include <string_view>

#include "logic/deduction.hpp"
#include "logic/position.hpp"

namespace sdk {

/// Looks for the technique's first pattern that leads to something; nothing when there is none.
using Finder = std::optional<Deduction> (*)(const Position&);

/// Some of the rules.
class RuleSet {
 public:
  constexpr RuleSet(std::initializer_list<Rule> rules) {
    for (const Rule rule : rules) bits_ |= bit(rule);
  }
  constexpr bool contains(Rule rule) const { return (bits_ & bit(rule)) != 0; }
  constexpr std::size_t count() const { return static_cast<std::size_t>(std::popcount(bits_)); }

 private:
  static constexpr unsigned bit(Rule rule) { return 1u << static_cast<unsigned>(rule); }

  unsigned bits_ = 0;
};

/// What ends the application of a pattern.
enum class Ending {
  none,
  recompute,           ///< the candidates are recomputed
  show_and_recompute,  ///< the marked step is displayed, then the candidates are recomputed
};

/// What a technique does to `SuggestionTrouvee`.
enum class SuggestionFlag {
  kept,
  raised,              ///< when it fires
  lowered_and_raised,  ///< lowered when it is asked, raised when it fires
};

/// One row of the tables in techniques.hpp.
struct Technique {
  int place;              ///< in the order; 0 for a single
  std::string_view id;    ///< names it in files and programs: "x_wing"
  std::string_view name;  ///< names it to people: "X-wing"
  Finder find;
  RuleSet rules = {Rule::only};  ///< those that its deductions may name
  Ending ending = Ending::none;
  bool reads_links = false;  ///< the links are to be built before it is asked
  SuggestionFlag flag = SuggestionFlag::kept;
};

}  // namespace sdk
