// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Nothing that is certain may go against the one solution of a puzzle.
#pragma once

#include <string>

#include "tests/proofs/step.hpp"

namespace sdk::proofs {

class SolutionGuard {
 public:
  /// 81 digits; empty for a puzzle that has not exactly one solution, of which nothing is said.
  explicit SolutionGuard(std::string solution) : solution_(std::move(solution)) {}

  /// What goes against the solution; empty when nothing does. After an offer that was not certain
  /// nothing is said any more, since the grid may be wrong.
  std::string fault(const Step& step);

  /// How many certain removals and offers were compared.
  long removals() const { return removals_; }
  long offers() const { return offers_; }

 private:
  std::string fault_of(const TechniqueStep& step);
  std::string fault_of(const OfferStep& step);
  std::string fault_of(const EndStep&) { return ""; }
  bool is_solved_by(const CellDigit& candidate) const;

  std::string solution_;
  long removals_ = 0;
  long offers_ = 0;
};

}  // namespace sdk::proofs
