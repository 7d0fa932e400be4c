// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/proofs/examples.hpp"

#include <algorithm>

namespace sdk::proofs {

using nlohmann::json;

json cell_premise(const std::string& cell, const std::vector<int>& digits) {
  return {{"cell", cell}, {"digits", digits}};
}

json unit_premise(const std::string& unit, int digit, const Names& cells) {
  return {{"unit", unit}, {"digit", digit}, {"cells", cells}};
}

json unique_premise(int low, int high, const Names& corners) {
  return {{"unique", {low, high}}, {"cells", corners}};
}

json technique(const std::string& name, int place, int variant, const json& premises,
               const Losses& losses) {
  json removed = json::array();
  for (const auto& [cell, digits] : losses)
    for (const int digit : digits) removed.push_back({{"cell", cell}, {"digit", digit}});
  return {{"step", "technique"}, {"place", place},       {"name", name},      {"variant", variant},
          {"certain", true},     {"premises", premises}, {"removed", removed}};
}

json offer(const std::string& kind, const json& premise, const std::string& cell, int digit) {
  return {{"step", "offer"}, {"kind", kind},
          {"certain", true}, {"premises", json::array({premise})},
          {"cell", cell},    {"digit", digit}};
}

namespace {

json both(const json& a, const json& b) { return json::array({a, b}); }

void add_singles(std::vector<json>& steps) {
  steps.push_back(offer("naked_single", cell_premise("r4c5", {7}), "r4c5", 7));
  steps.push_back(offer("hidden_single", unit_premise("box 7", 4, {"r9c2"}), "r9c2", 4));
}

void add_one_unit(std::vector<json>& steps) {
  steps.push_back(technique("pointing_rows", 1, 0,
                            json::array({unit_premise("box 1", 5, {"r1c1", "r1c2"})}),
                            {{"r1c5", {5}}, {"r1c9", {5}}}));
  steps.push_back(technique("pointing_columns", 2, 0,
                            json::array({unit_premise("box 1", 5, {"r1c1", "r2c1"})}),
                            {{"r7c1", {5}}}));
  steps.push_back(technique("box_line_rows", 3, 0,
                            json::array({unit_premise("row 1", 5, {"r1c1", "r1c2"})}),
                            {{"r2c3", {5}}}));
  steps.push_back(technique("box_line_columns", 4, 0,
                            json::array({unit_premise("column 1", 5, {"r1c1", "r2c1"})}),
                            {{"r3c3", {5}}}));
}

void add_naked_sets(std::vector<json>& steps) {
  steps.push_back(technique("naked_pair", 5, 0,
                            both(cell_premise("r1c1", {3, 8}), cell_premise("r1c2", {3, 8})),
                            {{"r1c9", {3, 8}}, {"r2c3", {8}}}));
  steps.push_back(technique(
      "naked_triple", 7, 0,
      {cell_premise("r1c1", {1, 2}), cell_premise("r1c4", {2, 3}), cell_premise("r1c7", {1, 3})},
      {{"r1c9", {1, 2, 3}}}));
  steps.push_back(technique("naked_quad", 11, 0,
                            {cell_premise("r1c1", {1, 2}), cell_premise("r1c2", {2, 3}),
                             cell_premise("r1c5", {3, 4}), cell_premise("r1c7", {1, 4})},
                            {{"r1c9", {1, 2, 3, 4}}}));
}

json hidden_in_row_1(int count, const Names& cells) {
  json premises = json::array();
  for (int digit = 1; digit <= count; ++digit)
    premises.push_back(unit_premise("row 1", digit, cells));
  return premises;
}

void add_hidden_sets(std::vector<json>& steps) {
  steps.push_back(technique("hidden_pair", 6, 0, hidden_in_row_1(2, {"r1c1", "r1c5"}),
                            {{"r1c1", {7}}, {"r1c5", {8, 9}}}));
  steps.push_back(technique("hidden_triple", 8, 0, hidden_in_row_1(3, {"r1c1", "r1c5", "r1c9"}),
                            {{"r1c9", {7}}}));
  steps.push_back(technique("hidden_quad", 13, 0,
                            hidden_in_row_1(4, {"r1c1", "r1c2", "r1c5", "r1c9"}), {{"r1c9", {9}}}));
}

const Names corners{"r1c1", "r1c2", "r4c1", "r4c2"};

json with_rectangle(json premises) {
  premises.push_back(unique_premise(3, 8, corners));
  return premises;
}

void add_rectangles(std::vector<json>& steps) {
  const json a = cell_premise("r1c1", {3, 8}), b = cell_premise("r1c2", {3, 8}),
             c = cell_premise("r4c1", {3, 8});
  const json b3 = cell_premise("r1c2", {3, 5, 8}), c3 = cell_premise("r4c1", {3, 5, 8}),
             d3 = cell_premise("r4c2", {3, 5, 8});
  const json line1 = unit_premise("row 1", 3, {"r1c1", "r1c2"}),
             line4 = unit_premise("row 4", 3, {"r4c1", "r4c2"});
  const auto add = [&](int rule, const json& premises, const Losses& losses) {
    steps.push_back(technique("unique_rectangle", 9, rule, with_rectangle(premises), losses));
  };
  add(1, {a, b, c}, {{"r4c2", {3, 8}}});
  add(2, {a, b, c3, d3}, {{"r4c9", {5}}, {"r5c3", {5}}});
  add(3, {a, b, line4}, {{"r4c1", {8}}, {"r4c2", {8}}});
  add(4, {a, b3, c3, d3}, {{"r5c2", {5}}});
  add(5, {b, c, line1, line4}, {{"r1c1", {3}}, {"r4c2", {3}}});
}

void add_fish(std::vector<json>& steps) {
  const json row2 = unit_premise("row 2", 4, {"r2c6", "r2c9"}),
             row5 = unit_premise("row 5", 4, {"r5c6", "r5c9"});
  steps.push_back(technique("x_wing", 12, 0, both(row2, row5), {{"r4c6", {4}}, {"r9c9", {4}}}));
  steps.push_back(technique("finned_x_wing", 18, 2, both(row2, row5), {{"r6c6", {4}}}));
  steps.push_back(technique("finned_x_wing", 18, 1,
                            both(row2, unit_premise("row 5", 4, {"r5c4", "r5c6", "r5c9"})),
                            {{"r6c6", {4}}}));
  steps.push_back(technique(
      "swordfish", 14, 0,
      {unit_premise("row 1", 5, {"r1c1", "r1c5"}), unit_premise("row 4", 5, {"r4c5", "r4c9"}),
       unit_premise("row 7", 5, {"r7c1", "r7c9"})},
      {{"r2c1", {5}}, {"r2c5", {5}}}));
  steps.push_back(technique(
      "jellyfish", 15, 0,
      {unit_premise("column 1", 5, {"r1c1", "r3c1"}), unit_premise("column 4", 5, {"r3c4", "r5c4"}),
       unit_premise("column 7", 5, {"r5c7", "r8c7"}),
       unit_premise("column 9", 5, {"r1c9", "r8c9"})},
      {{"r1c2", {5}}, {"r8c5", {5}}}));
}

void add_wings(std::vector<json>& steps) {
  const json pincer1 = cell_premise("r1c5", {1, 3}), pincer2 = cell_premise("r3c2", {2, 3});
  steps.push_back(technique("xy_wing", 16, 0, {cell_premise("r1c1", {1, 2}), pincer1, pincer2},
                            {{"r1c2", {3}}, {"r3c4", {3}}}));
  steps.push_back(technique("xyz_wing", 17, 0, {cell_premise("r1c1", {1, 2, 3}), pincer1, pincer2},
                            {{"r1c2", {3}}}));
  steps.push_back(technique("w_wing", 20, 0,
                            {cell_premise("r1c1", {5, 9}), cell_premise("r2c5", {5, 9}),
                             unit_premise("row 4", 9, {"r4c1", "r4c5"})},
                            {{"r1c5", {5}}}));
}

void add_colouring(std::vector<json>& steps) {
  json links = {unit_premise("row 1", 5, {"r1c1", "r1c9"}),
                unit_premise("column 9", 5, {"r1c9", "r6c9"}),
                unit_premise("row 6", 5, {"r6c2", "r6c9"})};
  steps.push_back(technique("simple_colouring", 21, 1, links, {{"r4c1", {5}}, {"r2c2", {5}}}));
  links.push_back(unit_premise("column 2", 5, {"r3c2", "r6c2"}));
  steps.push_back(
      technique("simple_colouring", 21, 2, links, {{"r1c1", {5}}, {"r3c2", {5}}, {"r6c9", {5}}}));
}

}  // namespace

std::vector<json> right_steps() {
  std::vector<json> steps;
  for (const auto add : {add_singles, add_one_unit, add_naked_sets, add_hidden_sets, add_rectangles,
                         add_fish, add_wings, add_colouring})
    add(steps);
  return steps;
}

json right_step(const std::string& name, int variant) {
  const std::vector<json> steps = right_steps();
  return *std::ranges::find_if(steps, [&](const json& step) {
    return step.contains("kind") ? step["kind"] == name
                                 : step["name"] == name && step["variant"] == variant;
  });
}

json loose_rectangle() {
  json step = technique(
      "unique_rectangle", 9, 1,
      {cell_premise("r1c1", {3, 8}), cell_premise("r1c4", {3, 8}), cell_premise("r4c1", {3, 8}),
       unique_premise(3, 8, {"r1c1", "r1c4", "r4c1", "r4c4"})},
      {{"r4c4", {3, 8}}});
  step["certain"] = false;
  return step;
}

namespace {

void narrow_cell(PlainGrid& grid, const json& premise) {
  Digits digits;
  for (const int digit : premise.at("digits")) digits.set(static_cast<std::size_t>(digit));
  grid.at(cell_named(premise.at("cell").get<std::string>())) &= digits;
}

void narrow_unit(PlainGrid& grid, const json& premise) {
  const Names kept = premise.at("cells");
  for (const int cell : cells_of_unit(premise.at("unit").get<std::string>()))
    if (std::ranges::find(kept, name_of(cell)) == kept.end())
      grid.at(cell).reset(premise.at("digit").get<std::size_t>());
}

}  // namespace

PlainGrid grid_for(const std::vector<json>& steps) {
  PlainGrid grid = grid_of("");
  for (const json& step : steps)
    for (const json& premise : step.at("premises")) {
      if (premise.contains("digits")) narrow_cell(grid, premise);
      if (premise.contains("unit")) narrow_unit(grid, premise);
    }
  return grid;
}

PlainGrid grid_for(const json& step) { return grid_for(std::vector<json>{step}); }

}  // namespace sdk::proofs
