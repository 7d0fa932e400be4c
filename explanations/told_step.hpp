// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What a sentence is made from: a step of a hint, and the steps before it.
#pragma once

#include <deque>
#include <optional>
#include <variant>
#include <vector>

#include "logic/run.hpp"

namespace sdk {

/// The number that the player reads is 1 for the first step of the hint.
class ToldStep {
 public:
  /// The hint must have the step, and outlive this.
  ToldStep(const std::deque<Event>& hint, std::size_t index) : hint_(hint), index_(index) {}

  const Event& event() const { return hint_[index_]; }
  const Deduction& deduction() const { return event().deduction; }

  /// The numbers of the steps before this one.
  int earlier() const { return static_cast<int>(index_); }
  const Deduction& earlier(int number) const { return hint_[at(number)].deduction; }

  /// The number of the hint's first step, up to this one, that is not certain by itself.
  std::optional<int> first_doubt() const {
    for (int number = 1; number <= earlier() + 1; ++number)
      if (!earlier(number).certain) return number;
    return std::nullopt;
  }

 private:
  static std::size_t at(int number) { return static_cast<std::size_t>(number - 1); }

  const std::deque<Event>& hint_;
  std::size_t index_;
};

/// The premises of one kind, in their order.
template <class Kind>
std::vector<Kind> premises_of(const Deduction& deduction) {
  std::vector<Kind> all;
  for (const Premise& premise : deduction.premises)
    if (const auto* const one = std::get_if<Kind>(&premise)) all.push_back(*one);
  return all;
}

}  // namespace sdk
