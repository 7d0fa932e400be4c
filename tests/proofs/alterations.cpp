// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/proofs/alterations.hpp"

#include <algorithm>
#include <functional>
#include <set>

#include "tests/proofs/examples.hpp"
#include "tests/proofs/implication.hpp"
#include "tests/proofs/shape.hpp"
#include "tests/proofs/step.hpp"

namespace sdk::proofs {

namespace {

using nlohmann::json;

/// The value taken out of the list where it stands in it, else put in.
void toggle(json& list, const json& value) {
  const auto at = std::ranges::find(list, value);
  if (at == list.end())
    list.push_back(value);
  else
    list.erase(at);
}

class Alterer {
 public:
  Alterer(const json& step, const PlainGrid& before) : step_(step), before_(before) {}

  std::vector<json> all() && {
    for (std::size_t i = 0; i < step_["premises"].size(); ++i) alter_premise(i);
    add([](json& step) { step["certain"] = !step["certain"].get<bool>(); });
    add_missing_candidates();
    if (is_proof_) add_unfounded_removals();
    return std::move(altered_);
  }

 private:
  /// Neither a rectangle that proves nothing, nor premises of which anything would follow since
  /// they cannot all be true.
  bool is_proof() const {
    const auto read = std::get<TechniqueStep>(read_step(step_));
    return read.name != "avoidable_rectangle" && !has_loose_rectangle(read) &&
           has_a_way(read.premises, 0, all_digits());
  }

  void add(const std::function<void(json&)>& change) { change(altered_.emplace_back(step_)); }

  void alter_premise(std::size_t i) {
    const json& premise = step_["premises"][i];
    if (premise.contains("cell")) alter_digits(i);
    if (premise.contains("unit")) alter_unit(i);
    if (premise.contains("unique") && is_proof_) alter_rectangle(i);
  }

  void alter_digits(std::size_t i) {
    for (int digit = 1; digit <= 9; ++digit)
      add([&](json& step) { toggle(step["premises"][i]["digits"], digit); });
  }

  void alter_unit(std::size_t i) {
    const std::string unit = step_["premises"][i]["unit"];
    for (const int cell : cells_of_unit(unit))
      add([&](json& step) { toggle(step["premises"][i]["cells"], name_of(cell)); });
    for (const std::string& other : all_units())
      if (other != unit && other[0] == unit[0])
        add([&](json& step) { step["premises"][i]["unit"] = other; });
    alter_digit(i, unit, step_["premises"][i]["digit"]);
  }

  /// Another digit that has the same places makes another premise that is true.
  void alter_digit(std::size_t i, const std::string& unit, int digit) {
    for (int other = 1; other <= 9; ++other)
      if (before_.places(unit, other) != before_.places(unit, digit))
        add([&](json& step) { step["premises"][i]["digit"] = other; });
  }

  /// A digit of the two that could be swapped becomes another one.
  void alter_rectangle(std::size_t i) {
    const json& digits = step_["premises"][i]["unique"];
    for (int digit = 1; digit <= 9; ++digit)
      if (std::ranges::find(digits, json(digit)) == digits.end())
        add([&](json& step) { step["premises"][i]["unique"][0] = digit; });
  }

  void add_removal(int cell, int digit) {
    add([&](json& step) {
      step["removed"].push_back({{"cell", name_of(cell)}, {"digit", digit}});
    });
  }

  /// Digits that the losing cells do not hold.
  void add_missing_candidates() {
    for (const json& removed : step_["removed"])
      for (int cell = cell_named(removed["cell"].get<std::string>()), digit = 1; digit <= 9;
           ++digit)
        if (!before_.can_hold(cell, digit)) add_removal(cell, digit);
  }

  /// No premise speaks of these cells, nor of these digits, so none excludes them there. One digit
  /// a cell.
  void add_unfounded_removals() {
    const std::string premises = step_["premises"].dump();
    const std::set<int> told = told_digits();
    for (int cell = 0; cell < cell_count; ++cell) {
      int digit = 1;
      while (digit <= 9 && (told.contains(digit) || !before_.can_hold(cell, digit))) ++digit;
      if (digit <= 9 && premises.find(name_of(cell)) == premises.npos) add_removal(cell, digit);
    }
  }

  std::set<int> told_digits() const {
    std::set<int> digits;
    for (const json& premise : step_["premises"])
      for (const char* key : {"digits", "digit", "unique"})
        if (premise.contains(key)) collect(premise[key], digits);
    return digits;
  }

  static void collect(const json& numbers, std::set<int>& digits) {
    if (numbers.is_number())
      digits.insert(numbers.get<int>());
    else
      digits.insert(numbers.begin(), numbers.end());
  }

  const json step_;
  const PlainGrid& before_;
  const bool is_proof_ = is_proof();
  std::vector<json> altered_;
};

}  // namespace

std::vector<json> altered(const json& step, const PlainGrid& before) {
  return Alterer(step, before).all();
}

std::vector<json> with_a_premise_less(const json& step) {
  std::vector<json> fewer;
  for (std::size_t i = 0; i < step["premises"].size(); ++i)
    fewer.emplace_back(step)["premises"].erase(i);
  return fewer;
}

std::vector<json> with_a_premise_more(const json& step, const PlainGrid& before) {
  const std::string premises = step["premises"].dump();
  std::vector<json> more;
  for (int cell = 0; cell < cell_count; ++cell) {
    if (!before.is_empty(cell) || premises.find(name_of(cell)) != premises.npos) continue;
    std::vector<int> digits;
    for (int digit = 1; digit <= 9; ++digit)
      if (before.can_hold(cell, digit)) digits.push_back(digit);
    more.emplace_back(step)["premises"].push_back(cell_premise(name_of(cell), digits));
  }
  return more;
}

}  // namespace sdk::proofs
