// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/proofs/walk_audit.hpp"

#include <iomanip>

#include "tests/support/solution_counter.hpp"

namespace sdk::proofs {

namespace {

std::string name_of(const TechniqueStep& step) {
  return step.variant == 0 ? step.name : step.name + " " + std::to_string(step.variant);
}
std::string name_of(const OfferStep& step) { return step.kind; }
std::string name_of(const EndStep& step) { return "end: " + step.end; }

bool is_certain(const EndStep&) { return true; }
template <class AnyStep>
bool is_certain(const AnyStep& step) {
  return step.certain;
}

}  // namespace

void WalkAudit::report(const std::string& fault) {
  ++faults_;
  out_ << "puzzle " << puzzles_ << ' ' << puzzle_ << ", line " << lines_ << ": " << fault << '\n';
}

void WalkAudit::read(const std::string& line) {
  ++lines_;
  try {
    read_object(nlohmann::json::parse(line));
  } catch (const nlohmann::json::parse_error&) {
    report("no JSON: " + line);
  } catch (const Malformed& malformed) {
    report(std::string("malformed: ") + malformed.what() + ": " + line);
  }
}

void WalkAudit::read_object(const nlohmann::json& object) {
  if (object.contains("puzzle")) return begin(read_puzzle(object));
  const Step step = read_step(object);
  if (walk_)
    judge(step);
  else
    report("a step before any puzzle");
}

void WalkAudit::begin(const std::string& puzzle) {
  end();
  puzzle_ = puzzle;
  const auto index = static_cast<std::size_t>(puzzles_++);
  if (expected_ && (index >= expected_->size() || (*expected_)[index] != puzzle))
    report("this puzzle was not asked for");
  const std::string solution = test::only_solution(puzzle);
  with_one_solution_ += !solution.empty();
  walk_ = Walk{ProofChecker(puzzle), SolutionGuard(solution)};
}

void WalkAudit::end() {
  if (!walk_) return;
  if (!walk_->checker.is_over()) report("the walk before has no end");
  removals_ += walk_->guard.removals();
  offers_ += walk_->guard.offers();
  walk_.reset();
}

void WalkAudit::judge(const Step& step) {
  Count& count = std::visit([&](const auto& s) -> Count& { return counts_[name_of(s)]; }, step);
  ++(std::visit([](const auto& s) { return is_certain(s); }, step) ? count.certain
                                                                   : count.uncertain);
  const std::string unproved = walk_->checker.fault(step);
  const std::string wrong = walk_->guard.fault(step);
  if (unproved.empty() && wrong.empty()) return;
  ++count.faulty;
  const std::string name = std::visit([](const auto& s) { return name_of(s); }, step);
  if (!unproved.empty()) report(name + ": " + unproved);
  if (!wrong.empty()) report(name + ": " + wrong);
}

void WalkAudit::finish() {
  end();
  if (expected_ && static_cast<std::size_t>(puzzles_) < expected_->size())
    report("only " + std::to_string(puzzles_) + " of " + std::to_string(expected_->size()) +
           " puzzles came");
}

void WalkAudit::print_table(std::ostream& out) const {
  const auto row = [&](const std::string& name, auto... numbers) {
    out << std::left << std::setw(24) << name << std::right;
    ((out << std::setw(13) << numbers), ...);
    out << '\n';
  };
  row("", "certain", "not certain", "faulty");
  for (const auto& [name, count] : counts_) row(name, count.certain, count.uncertain, count.faulty);
  row("puzzles", puzzles_);
  row("with one solution", with_one_solution_);
  row("  removals compared", removals_);
  row("  offers compared", offers_);
  row("faults", faults_);
}

}  // namespace sdk::proofs
