// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/walk/json_walk.hpp"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "board/grid_text.hpp"
#include "tools/walk/marks.hpp"
#include "tools/walk/play.hpp"

namespace sdk {

namespace {

/// Keeps its keys in the order in which they were entered.
using Json = nlohmann::ordered_json;

template <class Values, class Write>
Json array_of(const Values& values, Write write) {
  Json array = Json::array();
  for (const auto& value : values) array.push_back(write(value));
  return array;
}

Json names_of(const CellSet& cells) {
  return array_of(cells, [](int cell) { return name_of(cell_at(cell)); });
}

Json numbers_of(NineSet digits) {
  return array_of(digits, [](int digit) { return digit; });
}

struct PremiseWriter {
  Json operator()(const CellHolds& premise) const {
    return {{"cell", name_of(premise.cell)}, {"digits", numbers_of(premise.digits)}};
  }
  Json operator()(const DigitInUnit& premise) const {
    return {{"unit", name_of(premise.unit)},
            {"digit", premise.digit},
            {"cells", names_of(premise.cells)}};
  }
  Json operator()(const OneSolution& premise) const {
    return {{"unique", numbers_of(premise.digits)}, {"cells", names_of(premise.corners)}};
  }
};

Json object_of(const Premise& premise) { return std::visit(PremiseWriter(), premise); }

Json premises_of(const Deduction& deduction) { return array_of(deduction.premises, object_of); }

/// Row by row, and the digits of a cell in ascending order.
Json removals_of(const Deduction& deduction) {
  Json removals = Json::array();
  for (int cell = 1; cell <= 81; ++cell)
    for (int digit = 1; digit <= 9; ++digit)
      if (deduction.losers_of(digit).contains(cell))
        removals.push_back({{"cell", name_of(cell_at(cell))}, {"digit", digit}});
  return removals;
}

struct Variant {
  Rule rule;
  int number;
};

/// The rules of a technique that has several are counted from 1.
constexpr Variant variants[] = {
    {Rule::only, 0},          {Rule::odd_corner, 1},          {Rule::two_share_a_digit, 2},
    {Rule::bound_to_roof, 3}, {Rule::three_share_a_digit, 4}, {Rule::bound_to_diagonal, 5},
    {Rule::with_fin, 1},      {Rule::without_fin, 2},         {Rule::trap, 1},
    {Rule::wrap, 2},
};

int variant_of(Rule rule) { return std::ranges::find(variants, rule, &Variant::rule)->number; }

Json technique_step(const Event& event) {
  const Deduction& deduction = event.deduction;
  return {{"step", "technique"},
          {"place", deduction.technique->place},
          {"name", deduction.technique->id},
          {"variant", variant_of(deduction.rule)},
          {"certain", event.certain},
          {"premises", premises_of(deduction)},
          {"removed", removals_of(deduction)}};
}

Json offer_step(const Event& event) {
  const auto [cell, digit] = *event.deduction.placement;
  return {{"step", "offer"},          {"kind", event.deduction.technique->id},
          {"certain", event.certain}, {"premises", premises_of(event.deduction)},
          {"cell", name_of(cell)},    {"digit", digit}};
}

Json dead_step(const Event& event) {
  const int cell = *event.deduction.cells_as(Role::pattern).begin();
  return {{"step", "end"}, {"end", "dead"}, {"cell", name_of(cell_at(cell))}};
}

Json step_of(const Event& event) {
  switch (event.kind) {
    case EventKind::removal:
      return technique_step(event);
    case EventKind::offer:
      return offer_step(event);
    case EventKind::dead:
      return dead_step(event);
    case EventKind::completed:
      return {{"step", "end"}, {"end", "completed"}};
    case EventKind::exhausted:
      break;
  }
  return {{"step", "end"}, {"end", "exhausted"}};
}

}  // namespace

std::string json_of(const Event& event) { return step_of(event).dump(); }

std::string json_walk(std::string_view puzzle) {
  std::string grid(puzzle);
  std::ranges::replace(grid, '0', '.');
  std::string text = Json{{"puzzle", grid}}.dump() + "\n";
  play(puzzle_of(puzzle), [&](const Event& event) { text += json_of(event) + "\n"; });
  return text;
}

}  // namespace sdk
