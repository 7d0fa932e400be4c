// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/proofs/step.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <set>

namespace sdk::proofs {

using nlohmann::json;

namespace {

using Keys = std::set<std::string>;

void expect(bool is_right, const std::string& fault) {
  if (!is_right) throw Malformed(fault);
}

void expect_keys(const json& object, const Keys& wanted, const std::string& what) {
  expect(object.is_object(), what + " is no object");
  Keys found;
  for (const auto& [key, value] : object.items()) found.insert(key);
  for (const std::string& key : wanted) expect(found.contains(key), what + " lacks " + key);
  for (const std::string& key : found) expect(wanted.contains(key), what + " has a key " + key);
}

std::string string_at(const json& object, const char* key) {
  expect(object.at(key).is_string(), std::string(key) + " is no text");
  return object.at(key);
}

bool bool_at(const json& object, const char* key) {
  expect(object.at(key).is_boolean(), std::string(key) + " is neither true nor false");
  return object.at(key);
}

const json& list_at(const json& object, const char* key) {
  expect(object.at(key).is_array(), std::string(key) + " is no list");
  return object.at(key);
}

int integer(const json& value, int low, int high, const std::string& what) {
  expect(value.is_number_integer(), what + " is no integer");
  const auto number = value.get<std::int64_t>();
  expect(number >= low && number <= high, what + " is " + value.dump());
  return static_cast<int>(number);
}

int digit(const json& value) { return integer(value, 1, 9, "a digit"); }

int cell(const json& value) {
  expect(value.is_string(), "a cell is no text");
  const int number = cell_named(value.get<std::string>());
  expect(number >= 0, value.dump() + " is no cell");
  return number;
}

/// All different, ascending.
std::vector<int> numbers_at(const json& object, const char* key, int (*read)(const json&)) {
  std::vector<int> numbers;
  for (const json& item : list_at(object, key)) numbers.push_back(read(item));
  std::ranges::sort(numbers);
  expect(std::ranges::adjacent_find(numbers) == numbers.end(),
         std::string(key) + " names something twice: " + object.at(key).dump());
  return numbers;
}

CellPremise read_cell_premise(const json& premise) {
  expect_keys(premise, {"cell", "digits"}, "a premise about a cell");
  Digits digits;
  for (const int d : numbers_at(premise, "digits", digit)) digits.set(static_cast<std::size_t>(d));
  return {cell(premise.at("cell")), digits};
}

UnitPremise read_unit_premise(const json& premise) {
  expect_keys(premise, {"unit", "digit", "cells"}, "a premise about a unit");
  const std::string unit = string_at(premise, "unit");
  expect(!cells_of_unit(unit).empty(), "\"" + unit + "\" is no unit");
  return {unit, digit(premise.at("digit")), numbers_at(premise, "cells", cell)};
}

/// How many different values the function has on the cells.
std::size_t variety(const std::vector<int>& cells, int (*function)(int)) {
  std::set<int> values;
  for (const int c : cells) values.insert(function(c));
  return values.size();
}

UniquePremise read_unique_premise(const json& premise) {
  expect_keys(premise, {"unique", "cells"}, "a premise about a rectangle");
  const std::vector<int> digits = numbers_at(premise, "unique", digit);
  expect(digits.size() == 2, "a rectangle has two digits");
  const std::vector<int> corners = numbers_at(premise, "cells", cell);
  expect(corners.size() == 4 && variety(corners, row_of) == 2 && variety(corners, column_of) == 2,
         text_of(corners) + " are not the corners of a rectangle");
  return {digits[0], digits[1], corners};
}

Premise read_premise(const json& premise) {
  if (premise.contains("cell")) return read_cell_premise(premise);
  if (premise.contains("unit")) return read_unit_premise(premise);
  if (premise.contains("unique")) return read_unique_premise(premise);
  throw Malformed("a premise is neither about a cell nor a unit nor a rectangle");
}

Premises read_premises(const json& step) {
  Premises premises;
  for (const json& premise : list_at(step, "premises")) premises.push_back(read_premise(premise));
  return premises;
}

std::vector<CellDigit> read_removed(const json& step) {
  std::vector<CellDigit> removed;
  for (const json& item : list_at(step, "removed")) {
    expect_keys(item, {"cell", "digit"}, "a removed candidate");
    const CellDigit candidate{cell(item.at("cell")), digit(item.at("digit"))};
    expect(std::ranges::find(removed, candidate) == removed.end(),
           text_of(candidate) + " is removed twice");
    removed.push_back(candidate);
  }
  expect(!removed.empty(), "nothing is removed");
  return removed;
}

struct Known {
  const char* name;
  int place;
  int rules;
};

constexpr std::array techniques{
    Known{"pointing_rows", 1, 1},    Known{"pointing_columns", 2, 1},
    Known{"box_line_rows", 3, 1},    Known{"box_line_columns", 4, 1},
    Known{"naked_pair", 5, 1},       Known{"hidden_pair", 6, 1},
    Known{"naked_triple", 7, 1},     Known{"hidden_triple", 8, 1},
    Known{"unique_rectangle", 9, 5}, Known{"avoidable_rectangle", 10, 1},
    Known{"naked_quad", 11, 1},      Known{"x_wing", 12, 1},
    Known{"hidden_quad", 13, 1},     Known{"swordfish", 14, 1},
    Known{"jellyfish", 15, 1},       Known{"xy_wing", 16, 1},
    Known{"xyz_wing", 17, 1},        Known{"finned_x_wing", 18, 2},
    Known{"w_wing", 20, 1},          Known{"simple_colouring", 21, 2},
};

/// A technique of several rules counts them from 1.
int read_variant(const json& step, const Known& technique) {
  const bool has_several = technique.rules > 1;
  return integer(step.at("variant"), has_several ? 1 : 0, has_several ? technique.rules : 0,
                 std::string("the variant of ") + technique.name);
}

TechniqueStep read_technique(const json& step) {
  expect_keys(step, {"step", "place", "name", "variant", "certain", "premises", "removed"},
              "a technique");
  const std::string name = string_at(step, "name");
  const auto known = std::ranges::find(techniques, name, &Known::name);
  expect(known != techniques.end(), "there is no technique " + name);
  integer(step.at("place"), known->place, known->place, "the place of " + name);
  return {name, read_variant(step, *known), bool_at(step, "certain"), read_premises(step),
          read_removed(step)};
}

OfferStep read_offer(const json& step) {
  expect_keys(step, {"step", "kind", "certain", "premises", "cell", "digit"}, "an offer");
  const std::string kind = string_at(step, "kind");
  expect(kind == "naked_single" || kind == "hidden_single", "there is no offer of kind " + kind);
  return {kind, bool_at(step, "certain"), read_premises(step),
          CellDigit{cell(step.at("cell")), digit(step.at("digit"))}};
}

EndStep read_end(const json& step) {
  expect(step.contains("end"), "an end lacks end");
  const std::string end = string_at(step, "end");
  expect(end == "completed" || end == "exhausted" || end == "dead", "there is no end " + end);
  const bool is_dead = end == "dead";
  expect_keys(step, is_dead ? Keys{"step", "end", "cell"} : Keys{"step", "end"}, "an end");
  return {end, is_dead ? cell(step.at("cell")) : -1};
}

}  // namespace

bool UniquePremise::can_be_swapped() const { return variety(corners, box_of) == 2; }

Step read_step(const json& line) {
  expect(line.is_object() && line.contains("step"), "the line is no step");
  const std::string kind = string_at(line, "step");
  if (kind == "technique") return read_technique(line);
  if (kind == "offer") return read_offer(line);
  if (kind == "end") return read_end(line);
  throw Malformed("there is no step " + kind);
}

std::string read_puzzle(const json& line) {
  expect_keys(line, {"puzzle"}, "the line of a puzzle");
  const std::string puzzle = string_at(line, "puzzle");
  expect(puzzle.size() == cell_count && puzzle.find_first_not_of(".123456789") == puzzle.npos,
         "\"" + puzzle + "\" is no puzzle");
  return puzzle;
}

namespace {

std::string text(const CellPremise& p) {
  return name_of(p.cell) + " can only hold " + text_of(p.digits);
}

std::string text(const UnitPremise& p) {
  return "in " + p.unit + " the " + std::to_string(p.digit) + " can only go in " + text_of(p.cells);
}

std::string text(const UniquePremise& p) {
  return text_of(p.corners) + " are not filled crosswise with " + std::to_string(p.low) + " and " +
         std::to_string(p.high);
}

}  // namespace

std::string text_of(const Premise& premise) {
  return std::visit([](const auto& p) { return text(p); }, premise);
}

std::string text_of(const CellDigit& candidate) {
  return std::to_string(candidate.digit) + " in " + name_of(candidate.cell);
}

}  // namespace sdk::proofs
