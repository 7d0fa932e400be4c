// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/proofs/solution_guard.hpp"

namespace sdk::proofs {

std::string SolutionGuard::fault(const Step& step) {
  if (solution_.empty()) return "";
  return std::visit([&](const auto& s) { return fault_of(s); }, step);
}

bool SolutionGuard::is_solved_by(const CellDigit& candidate) const {
  return solution_[static_cast<std::size_t>(candidate.cell)] == '0' + candidate.digit;
}

std::string SolutionGuard::fault_of(const TechniqueStep& step) {
  if (!step.certain) return "";
  for (const CellDigit& candidate : step.removed) {
    ++removals_;
    if (is_solved_by(candidate)) return "against the solution: removes " + text_of(candidate);
  }
  return "";
}

std::string SolutionGuard::fault_of(const OfferStep& step) {
  if (!step.certain) {
    solution_.clear();
    return "";
  }
  ++offers_;
  return is_solved_by(step.placed) ? "" : "against the solution: offers " + text_of(step.placed);
}

}  // namespace sdk::proofs
