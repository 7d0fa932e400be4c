// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/proofs/proof_checker.hpp"

#include <algorithm>
#include <set>

#include "tests/proofs/implication.hpp"
#include "tests/proofs/shape.hpp"

namespace sdk::proofs {

namespace {

// Whether a premise is true, word for word.

std::string untruth(const PlainGrid& grid, const CellPremise& p) {
  if (!grid.is_empty(p.cell)) return name_of(p.cell) + " is not empty";
  if (grid.at(p.cell) == p.digits) return "";
  return "untrue that " + text_of(Premise(p)) + ": it can hold " + text_of(grid.at(p.cell));
}

std::string untruth(const PlainGrid& grid, const UnitPremise& p) {
  if (grid.stands_in(p.unit, p.digit))
    return "the " + std::to_string(p.digit) + " stands in " + p.unit;
  const std::vector<int> places = grid.places(p.unit, p.digit);
  if (places == p.cells) return "";
  return "untrue that " + text_of(Premise(p)) + ": it can go in " + text_of(places);
}

std::string untruth(const PlainGrid& grid, const UniquePremise& p) {
  const auto filled =
      std::ranges::find_if(p.corners, [&](int corner) { return !grid.is_empty(corner); });
  return filled == p.corners.end() ? "" : "the corner " + name_of(*filled) + " is not empty";
}

std::string first_untruth(const PlainGrid& grid, const Premises& premises) {
  for (const Premise& premise : premises) {
    const std::string text = std::visit([&](const auto& p) { return untruth(grid, p); }, premise);
    if (!text.empty()) return text;
  }
  return "";
}

// Whether the conclusion follows, and from fewer premises as well.

/// The first candidate that may well be there; nothing when all are excluded.
const CellDigit* first_not_excluded(const Premises& premises,
                                    const std::vector<CellDigit>& removed) {
  const auto found =
      std::ranges::find_if(removed, [&](const CellDigit& c) { return !is_excluded(premises, c); });
  return found == removed.end() ? nullptr : &*found;
}

bool follows(const Premises& premises, const TechniqueStep& step) {
  return first_not_excluded(premises, step.removed) == nullptr;
}

bool follows(const Premises& premises, const OfferStep& step) {
  return is_forced(premises, step.placed);
}

/// Whether the premise names the cell as a place of its digit.
bool speaks_of(const Premise& premise, int cell) {
  const auto* const unit = std::get_if<UnitPremise>(&premise);
  return unit != nullptr && std::ranges::find(unit->cells, cell) != unit->cells.end();
}

template <class AnyStep>
std::string superfluous_premise(const AnyStep& step) {
  for (std::size_t i = 0; i < step.premises.size(); ++i) {
    if (is_listed_anyway(step, step.premises[i])) continue;
    Premises fewer = step.premises;
    fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(i));
    if (follows(fewer, step)) return "superfluous: " + text_of(step.premises[i]);
  }
  return "";
}

/// A cell that could be left out with all its links, other than one that loses the digit: colouring
/// lists all the links that join the cells it uses, so none of them alone is too many.
std::string superfluous_chain_cell(const TechniqueStep& step) {
  std::set<int> cells;
  for (const Premise& premise : step.premises)
    if (const auto* const unit = std::get_if<UnitPremise>(&premise))
      cells.insert(unit->cells.begin(), unit->cells.end());
  for (const CellDigit& removed : step.removed) cells.erase(removed.cell);
  for (const int cell : cells) {
    Premises fewer = step.premises;
    std::erase_if(fewer, [&](const Premise& premise) { return speaks_of(premise, cell); });
    if (follows(fewer, step)) return "superfluous: the links of " + name_of(cell);
  }
  return "";
}

std::string first_missing(const PlainGrid& grid, const std::vector<CellDigit>& removed) {
  const auto missing = std::ranges::find_if(
      removed, [&](const CellDigit& c) { return !grid.can_hold(c.cell, c.digit); });
  return missing == removed.end() ? "" : "there is no candidate " + text_of(*missing);
}

// What a single found alone.

bool has_single(const PlainGrid& grid) {
  for (int cell = 0; cell < cell_count; ++cell)
    if (grid.is_empty(cell) && grid.at(cell).count() == 1) return true;
  for (const std::string& unit : all_units())
    for (int digit = 1; digit <= 9; ++digit)
      if (grid.places(unit, digit).size() == 1) return true;
  return false;
}

/// The first of the faults.
std::string first_of(std::initializer_list<std::string> faults) {
  const auto found = std::ranges::find_if(faults, [](const auto& text) { return !text.empty(); });
  return found == faults.end() ? "" : *found;
}

}  // namespace

ProofChecker::ProofChecker(std::string_view puzzle)
    : ProofChecker(grid_of(puzzle), Setting::walk) {}

ProofChecker::ProofChecker(const PlainGrid& grid, Setting setting)
    : grid_(grid), setting_(setting) {}

std::string ProofChecker::fault(const nlohmann::json& step) {
  try {
    return fault(read_step(step));
  } catch (const Malformed& malformed) {
    return std::string("malformed: ") + malformed.what();
  }
}

std::string ProofChecker::fault(const Step& step) {
  if (is_over_) return "the walk is over";
  const std::string text = std::visit([&](const auto& s) { return fault_of(s); }, step);
  std::visit([&](const auto& s) { apply(s); }, step);
  return text;
}

std::string ProofChecker::fault_of(const TechniqueStep& step) const {
  return first_of({first_missing(grid_, step.removed), first_untruth(grid_, step.premises),
                   shape_fault(step, grid_), certainty_fault(step), proof_fault(step)});
}

std::string ProofChecker::certainty_fault(const TechniqueStep& step) const {
  const bool is_avoidable = step.name == "avoidable_rectangle";
  if (is_avoidable && setting_ == Setting::walk)
    return "an avoidable rectangle never fires in a hint";
  const bool is_certain = !is_uncertain_ && !is_avoidable && !has_loose_rectangle(step);
  if (step.certain && !is_certain)
    return is_uncertain_ ? "certain after a step of the hint that is not"
                         : "certain, though the rectangle proves nothing";
  return is_certain && !step.certain ? "not certain, without a reason" : "";
}

std::string ProofChecker::proof_fault(const TechniqueStep& step) const {
  if (step.name == "avoidable_rectangle" || has_loose_rectangle(step)) return "";
  if (const CellDigit* const candidate = first_not_excluded(step.premises, step.removed))
    return "does not follow: " + text_of(*candidate) + " is possible";
  if (setting_ == Setting::drawn_board) return "";
  const std::string superfluous = superfluous_premise(step);
  const bool is_chain = superfluous.empty() && step.name == "simple_colouring";
  return is_chain ? superfluous_chain_cell(step) : superfluous;
}

std::string ProofChecker::fault_of(const OfferStep& step) const {
  const auto [cell, digit] = step.placed;
  if (!grid_.is_empty(cell)) return name_of(cell) + " is not empty";
  if (!grid_.can_hold(cell, digit)) return "there is no candidate " + text_of(step.placed);
  const std::string untrue = first_of({first_untruth(grid_, step.premises), shape_fault(step)});
  if (!untrue.empty()) return untrue;
  if (step.certain == is_uncertain_)
    return step.certain ? "certain after a step of the hint that is not"
                        : "not certain, without a reason";
  if (!follows(step.premises, step))
    return "does not follow: another digit than " + text_of(step.placed) + " is possible";
  return superfluous_premise(step);
}

std::string ProofChecker::fault_of(const EndStep& step) const {
  const int dead = grid_.first_dead_cell();
  const bool is_full = grid_.is_full();
  if (is_full != (step.end == "completed"))
    return is_full ? "the grid is complete" : "the grid is not complete";
  if (step.cell != dead)
    return dead < 0 ? name_of(step.cell) + " is not dead" : name_of(dead) + " is the dead cell";
  if (step.end == "exhausted" && has_single(grid_)) return "a single is left";
  return "";
}

void ProofChecker::apply(const TechniqueStep& step) {
  for (const auto& [cell, digit] : step.removed)
    grid_.at(cell).reset(static_cast<std::size_t>(digit));
  is_uncertain_ = is_uncertain_ || !step.certain;
}

void ProofChecker::apply(const OfferStep& step) {
  grid_.enter(step.placed.cell, step.placed.digit);
  is_uncertain_ = false;
}

}  // namespace sdk::proofs
