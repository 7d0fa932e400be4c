// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Whole walks, a JSON object a line, judged and counted.
#pragma once

#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "tests/proofs/proof_checker.hpp"
#include "tests/proofs/solution_guard.hpp"

namespace sdk::proofs {

class WalkAudit {
 public:
  /// Faults are told there, a line each, as they are found.
  explicit WalkAudit(std::ostream& faults) : out_(faults) {}

  /// The walks that must come, in this order, and no others.
  void expect(std::vector<std::string> puzzles) { expected_ = std::move(puzzles); }

  void read(const std::string& line);
  /// To be called after the last line.
  void finish();

  long faults() const { return faults_; }
  long puzzles() const { return puzzles_; }
  /// Puzzles, steps by technique, certain, not certain and faulty, what was compared with
  /// solutions.
  void print_table(std::ostream& out) const;

 private:
  struct Count {
    long certain = 0, uncertain = 0, faulty = 0;
  };
  /// One walk.
  struct Walk {
    ProofChecker checker;
    SolutionGuard guard;
  };

  void read_object(const nlohmann::json& object);
  void begin(const std::string& puzzle);
  void end();
  void judge(const Step& step);
  void report(const std::string& fault);

  std::ostream& out_;
  std::optional<std::vector<std::string>> expected_;
  std::optional<Walk> walk_;
  std::string puzzle_;
  long lines_ = 0, puzzles_ = 0, faults_ = 0, with_one_solution_ = 0;
  long removals_ = 0, offers_ = 0;
  std::map<std::string, Count> counts_;
};

}  // namespace sdk::proofs
