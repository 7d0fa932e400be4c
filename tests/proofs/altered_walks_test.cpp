// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Steps of real walks pass; made wrong, none of them does.

#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "tests/proofs/alterations.hpp"
#include "tests/proofs/proof_checker.hpp"
#include "tests/support/puzzle_generator.hpp"
#include "tools/walk/json_walk.hpp"

namespace sdk::proofs {
namespace {

using nlohmann::json;
using StepVisitor = void (*)(const json& step, const ProofChecker& before);

/// Every technique of the walk, with the checker as it stands before it. The avoidable rectangle
/// is none of them.
void visit_techniques(const std::string& puzzle, const StepVisitor& visit) {
  std::istringstream lines(json_walk(puzzle));
  std::string line;
  std::getline(lines, line);
  for (ProofChecker checker(puzzle); std::getline(lines, line);) {
    const json step = json::parse(line);
    if (step["step"] == "technique") visit(step, checker);
    EXPECT_EQ(checker.fault(step), "") << line;
  }
}

void visit_techniques(const StepVisitor& visit) {
  test::PuzzleGenerator generator(5);
  for (int grid = 0; grid < 12; ++grid)
    for (const std::string& puzzle : generator.next()) visit_techniques(puzzle, visit);
}

void expect_faults(const std::vector<json>& wrong_steps, const ProofChecker& before) {
  for (const json& step : wrong_steps) EXPECT_NE(ProofChecker(before).fault(step), "") << step;
}

TEST(AlteredWalks, AStepMadeWrongIsNoticed) {
  visit_techniques([](const json& step, const ProofChecker& before) {
    expect_faults(altered(step, before.grid()), before);
  });
}

TEST(AlteredWalks, APremiseLessIsNoticed) {
  visit_techniques([](const json& step, const ProofChecker& before) {
    if (step["certain"]) expect_faults(with_a_premise_less(step), before);
  });
}

TEST(AlteredWalks, APremiseMoreIsNoticed) {
  visit_techniques([](const json& step, const ProofChecker& before) {
    if (step["certain"]) expect_faults(with_a_premise_more(step, before.grid()), before);
  });
}

// Two traps and a wrap, each with chains that the others make needless.
TEST(Walks, NothingRestsOnANeedlessChainOfColouring) {
  for (const char* puzzle :
       {".4......6...93.....26...1.....7....8..8....3........97837.5...15...679...6...1...",
        "....4.29...5..2..74..1....59...36.7...2..7....87...5...7.2...5..4.9.......3...8.."})
    visit_techniques(puzzle, [](const json&, const ProofChecker&) {});
}

}  // namespace
}  // namespace sdk::proofs
