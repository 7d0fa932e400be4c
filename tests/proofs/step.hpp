// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The lines of a walk in JSON, read strictly: every key, name and number must be as agreed, and
/// nothing may stand twice. The order within a list is free.
#pragma once

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include "tests/proofs/plain_grid.hpp"

namespace sdk::proofs {

/// What is wrong with the form of a line.
struct Malformed : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The cell can only hold these digits.
struct CellPremise {
  int cell;
  Digits digits;
};

/// In the unit the digit can only go in these cells.
struct UnitPremise {
  std::string unit;
  int digit;
  std::vector<int> cells;  ///< ascending

  bool is_line() const { return !unit.starts_with("box"); }
};

/// Four corners of a rectangle, ascending, that are not filled crosswise with these two digits.
struct UniquePremise {
  int low, high;
  std::vector<int> corners;

  /// Whether both ways to fill them crosswise could be swapped: they lie in exactly two boxes.
  bool can_be_swapped() const;
};

using Premise = std::variant<CellPremise, UnitPremise, UniquePremise>;
using Premises = std::vector<Premise>;

/// A digit in a cell: a candidate, or what is offered.
struct CellDigit {
  int cell, digit;
  bool operator==(const CellDigit&) const = default;
};

struct TechniqueStep {
  std::string name;
  int variant;
  bool certain;
  Premises premises;
  std::vector<CellDigit> removed;
};

struct OfferStep {
  std::string kind;
  bool certain;
  Premises premises;
  CellDigit placed;
};

struct EndStep {
  std::string end;
  int cell;  ///< when dead; else -1
};

using Step = std::variant<TechniqueStep, OfferStep, EndStep>;

/// Throws Malformed.
Step read_step(const nlohmann::json& line);
/// The puzzle of the line that begins a walk. Throws Malformed.
std::string read_puzzle(const nlohmann::json& line);

std::string text_of(const Premise& premise);
std::string text_of(const CellDigit& candidate);  ///< "5 in r1c1"

}  // namespace sdk::proofs
