// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Judges the steps of a walk by the premises that they give.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "tests/proofs/plain_grid.hpp"
#include "tests/proofs/step.hpp"

namespace sdk::proofs {

enum class Setting {
  walk,
  drawn_board,  ///< premises that could be left out, and an avoidable rectangle, are no fault
};

class ProofChecker {
 public:
  /// At the beginning of a walk through 81 characters, anything but "1".."9" an empty cell.
  explicit ProofChecker(std::string_view puzzle);
  /// In the midst of a hint, or before one call of a technique on a drawn board.
  ProofChecker(const PlainGrid& grid, Setting setting);

  /// What is wrong with the step, empty when nothing is. Then the step is applied, also a wrong one
  /// as long as it could be read: removed candidates go; an offered digit is entered, and the next
  /// hint starts afresh from the grid.
  std::string fault(const nlohmann::json& step);
  std::string fault(const Step& step);

  /// The candidates as they stand before the next step.
  const PlainGrid& grid() const { return grid_; }
  /// Whether an end has come.
  bool is_over() const { return is_over_; }

 private:
  std::string fault_of(const TechniqueStep& step) const;
  std::string fault_of(const OfferStep& step) const;
  std::string fault_of(const EndStep& step) const;
  std::string certainty_fault(const TechniqueStep& step) const;
  std::string proof_fault(const TechniqueStep& step) const;

  void apply(const TechniqueStep& step);
  void apply(const OfferStep& step);
  void apply(const EndStep&) { is_over_ = true; }

  PlainGrid grid_;
  Setting setting_;
  bool is_uncertain_ = false;  ///< a step of this hint was not certain
  bool is_over_ = false;
};

}  // namespace sdk::proofs
