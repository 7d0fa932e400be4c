// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Whole walks: what is counted, and what is noticed between the steps.

#include "tests/proofs/walk_audit.hpp"

#include <gtest/gtest.h>

#include <sstream>

#include "tests/proofs/examples.hpp"

namespace sdk::proofs {
namespace {

using nlohmann::json;

const std::string solved =
    "987654321135927468642138579426571983793482156518396742371865294269743815854219637";
const std::string puzzle = "." + solved.substr(1);
const std::string offered = offer("naked_single", cell_premise("r1c1", {9}), "r1c1", 9).dump();
const std::string completed = R"({"step": "end", "end": "completed"})";

std::string puzzle_line(const std::string& grid) { return json{{"puzzle", grid}}.dump(); }

/// The faults that are told of the lines, and the table when there are none.
std::string told(const std::vector<std::string>& lines, const std::vector<std::string>& expected) {
  std::ostringstream out;
  WalkAudit audit(out);
  audit.expect(expected);
  for (const std::string& line : lines) audit.read(line);
  audit.finish();
  if (audit.faults() == 0) audit.print_table(out);
  return out.str();
}

std::string told(const std::vector<std::string>& lines) { return told(lines, {puzzle}); }

bool has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

TEST(Audit, ARightWalkIsCounted) {
  const std::string table = told({puzzle_line(puzzle), offered, completed});
  EXPECT_EQ(table,
            "                              certain  not certain       faulty\n"
            "end: completed                      1            0            0\n"
            "naked_single                        1            0            0\n"
            "puzzles                             1\n"
            "with one solution                   1\n"
            "  removals compared                 0\n"
            "  offers compared                   1\n"
            "faults                              0\n");
}

TEST(Audit, AFaultIsToldWithPuzzleAndLine) {
  EXPECT_EQ(told({puzzle_line(puzzle), completed}), "puzzle 1 " + puzzle +
                                                        ", line 2: end: completed: the grid is not "
                                                        "complete\n");
}

TEST(Audit, LinesThatAreNotOfTheFormAreNoticed) {
  EXPECT_TRUE(has(told({puzzle_line(puzzle), "T05 r1c1-38", offered, completed}), "no JSON"));
  EXPECT_TRUE(has(told({puzzle_line(puzzle), "{}", offered, completed}), "malformed"));
  EXPECT_TRUE(has(told({puzzle_line("987"), offered}), "malformed"));
  EXPECT_TRUE(has(told({offered, completed}), "a step before any puzzle"));
}

TEST(Audit, AWalkHasAnEndAndOnlyOne) {
  EXPECT_TRUE(has(told({puzzle_line(puzzle), offered}), "has no end"));
  EXPECT_TRUE(has(told({puzzle_line(puzzle), offered, completed, completed}), "the walk is over"));
}

TEST(Audit, ThePuzzlesThatWereAskedForCome) {
  EXPECT_TRUE(has(told({}), "only 0 of 1 puzzles came"));
  EXPECT_TRUE(has(told({puzzle_line(solved), completed}), "not asked for"));
  const std::vector<std::string> twice{puzzle_line(puzzle), offered, completed,
                                       puzzle_line(puzzle), offered, completed};
  EXPECT_TRUE(has(told(twice), "not asked for"));
  EXPECT_FALSE(has(told(twice, {puzzle, puzzle}), "not asked for"));
}

OfferStep offer_of(int cell, int digit, bool certain) {
  return {"naked_single", certain, {}, {cell, digit}};
}

TechniqueStep removal_of(int cell, int digit, bool certain) {
  return {"naked_pair", 0, certain, {}, {{cell, digit}}};
}

TEST(Solution, NothingCertainGoesAgainstIt) {
  SolutionGuard guard(solved);
  EXPECT_EQ(guard.fault(offer_of(0, 9, true)), "");
  EXPECT_EQ(guard.fault(offer_of(0, 8, true)), "against the solution: offers 8 in r1c1");
  EXPECT_EQ(guard.fault(removal_of(0, 8, true)), "");
  EXPECT_EQ(guard.fault(removal_of(0, 9, true)), "against the solution: removes 9 in r1c1");
  EXPECT_EQ(guard.fault(EndStep{"exhausted", -1}), "");
  EXPECT_EQ(guard.offers(), 2);
  EXPECT_EQ(guard.removals(), 2);
}

TEST(Solution, WhatIsNotCertainMayAndAfterSuchAnOfferAnything) {
  SolutionGuard guard(solved);
  EXPECT_EQ(guard.fault(removal_of(0, 9, false)), "");
  EXPECT_EQ(guard.fault(removal_of(0, 9, true)), "against the solution: removes 9 in r1c1");
  EXPECT_EQ(guard.fault(offer_of(0, 8, false)), "");
  EXPECT_EQ(guard.fault(removal_of(1, 8, true)), "");
  EXPECT_EQ(guard.fault(offer_of(1, 1, true)), "");
}

TEST(Solution, OfPuzzlesWithSeveralOrNoneNothingIsSaid) {
  EXPECT_EQ(SolutionGuard("").fault(offer_of(0, 8, true)), "");
}

}  // namespace
}  // namespace sdk::proofs
