// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The judge of proofs, judged: right steps of every kind pass, and whatever is wrong is noticed.

#include "tests/proofs/proof_checker.hpp"

#include <gtest/gtest.h>

#include "tests/proofs/examples.hpp"

namespace sdk::proofs {
namespace {

using nlohmann::json;

std::string fault(const json& step, const PlainGrid& grid) {
  return ProofChecker(grid, Setting::walk).fault(step);
}

/// Of the step in the grid in which `right` is right.
std::string fault(const json& step, const json& right) { return fault(step, grid_for(right)); }

bool begins(const std::string& text, const std::string& beginning) {
  return text.starts_with(beginning);
}

#define EXPECT_FAULT(text, beginning) EXPECT_PRED2(begins, text, beginning)

TEST(Proofs, RightStepsOfEveryKindPass) {
  for (const json& step : right_steps()) EXPECT_EQ(fault(step, step), "") << step;
  EXPECT_EQ(fault(loose_rectangle(), loose_rectangle()), "");
}

// Premises that are not true word for word.

TEST(Proofs, ADigitTooManyOrTooFewIsNoticed) {
  for (const json& right : right_steps())
    for (std::size_t i = 0; i < right["premises"].size(); ++i) {
      if (!right["premises"][i].contains("digits")) continue;
      json step = right;
      step["premises"][i]["digits"].push_back(9);
      if (right["premises"][i]["digits"].back() != 9) {
        EXPECT_FAULT(fault(step, right), "untrue");
      }
      step["premises"][i]["digits"] = right["premises"][i]["digits"];
      step["premises"][i]["digits"].erase(0);
      EXPECT_FAULT(fault(step, right), "untrue");
    }
}

TEST(Proofs, ACellTooManyOrTooFewIsNoticed) {
  for (const json& right : right_steps())
    for (std::size_t i = 0; i < right["premises"].size(); ++i) {
      if (!right["premises"][i].contains("unit")) continue;
      json step = right;
      step["premises"][i]["cells"].push_back("r9c7");
      EXPECT_FAULT(fault(step, right), "untrue");
      step["premises"][i]["cells"] = right["premises"][i]["cells"];
      step["premises"][i]["cells"].erase(0);
      EXPECT_FAULT(fault(step, right), "untrue");
    }
}

TEST(Proofs, PremisesAboutFilledCellsAreNoticed) {
  for (const json& right : right_steps()) {
    PlainGrid grid = grid_for(right);
    const json& premise = right["premises"].back();
    const std::string name = premise.contains("cell") ? premise["cell"] : premise["cells"].back();
    const int cell = cell_named(name);
    grid.values[static_cast<std::size_t>(cell)] = 6;
    grid.at(cell).reset();
    EXPECT_NE(fault(right, grid), "") << right;
  }
}

TEST(Proofs, ADigitThatStandsInTheUnitGoesNowhereElse) {
  const json right = right_step("pointing_rows");  // a 5 in box 1
  PlainGrid grid = grid_for(right);
  grid.values[20] = 5;
  grid.at(20).reset();
  EXPECT_EQ(fault(right, grid), "the 5 stands in box 1");
}

// Conclusions that do not follow.

TEST(Proofs, AnyPremiseLessIsNoticed) {
  for (const json& right : right_steps())
    for (std::size_t i = 0; i < right["premises"].size(); ++i) {
      json step = right;
      step["premises"].erase(i);
      EXPECT_NE(fault(step, right), "") << step;
    }
}

TEST(Proofs, ARemovalTooManyIsNoticed) {
  for (const json& right : right_steps()) {
    if (!right.contains("removed")) continue;
    json step = right;
    step["removed"].push_back({{"cell", "r8c8"}, {"digit", 6}});
    EXPECT_EQ(fault(step, right), "does not follow: 6 in r8c8 is possible") << step;
  }
}

TEST(Proofs, AnotherOfferIsNoticed) {
  json naked = right_step("naked_single");
  naked["digit"] = 8;
  EXPECT_EQ(fault(naked, naked), "there is no candidate 8 in r4c5");
  naked["digit"] = 7;
  naked["cell"] = "r4c6";
  EXPECT_FAULT(fault(naked, naked), "does not follow");
  json hidden = right_step("hidden_single");
  hidden["cell"] = "r9c1";
  EXPECT_FAULT(fault(hidden, right_step("naked_single")), "untrue");
  EXPECT_EQ(fault(hidden, hidden), "there is no candidate 4 in r9c1");
}

TEST(Proofs, AnOfferInAFilledCellIsNoticed) {
  PlainGrid grid = grid_for(right_step("naked_single"));
  grid.values[31] = 7;
  EXPECT_EQ(fault(right_step("naked_single"), grid), "r4c5 is not empty");
}

TEST(Proofs, ARemovedCandidateThatDoesNotStandIsNoticed) {
  for (const json& right : right_steps()) {
    if (!right.contains("removed")) continue;
    PlainGrid grid = grid_for(right);
    grid.at(cell_named(right["removed"][0]["cell"].get<std::string>()))
        .reset(right["removed"][0]["digit"].get<std::size_t>());
    EXPECT_FAULT(fault(right, grid), "there is no candidate");
  }
}

// Premises that could be left out.

TEST(Proofs, ASuperfluousPremiseIsNoticed) {
  for (const json& right : right_steps()) {
    json step = right;
    step["premises"].push_back(cell_premise("r8c8", {1, 2, 3, 4, 5, 6, 7, 8, 9}));
    const bool is_offer = right["step"] == "offer";
    const bool is_rectangle = !is_offer && right["name"] == "unique_rectangle";
    EXPECT_FAULT(fault(step, right), is_offer ? "a " : is_rectangle ? "rule " : "superfluous");
  }
}

TEST(Proofs, ASuperfluousUnitIsNoticedButInFishAndColouring) {
  json wing = right_step("xy_wing");
  wing["premises"].push_back(unit_premise("row 9", 9, {"r9c1", "r9c2"}));
  EXPECT_FAULT(fault(wing, wing), "superfluous");
  json colours = right_step("simple_colouring", 1);
  colours["premises"].push_back(unit_premise("column 2", 5, {"r3c2", "r6c2"}));
  colours["removed"].erase(1);
  EXPECT_EQ(fault(colours, colours), "superfluous: the links of r3c2");
  colours["removed"].push_back({{"cell", "r3c7"}, {"digit", 5}});
  EXPECT_EQ(fault(colours, colours), "");
  colours["premises"].push_back(cell_premise("r8c8", {1, 2}));
  EXPECT_FAULT(fault(colours, colours), "superfluous");
  json fish = right_step("jellyfish");
  fish["removed"].erase(1);
  EXPECT_EQ(fault(fish, fish), "");
}

TEST(Proofs, OnDrawnBoardsAPremiseMayBeSuperfluous) {
  json step = right_step("xy_wing");
  step["premises"].push_back(unit_premise("row 9", 9, {"r9c1", "r9c2"}));
  EXPECT_EQ(ProofChecker(grid_for(step), Setting::drawn_board).fault(step), "");
}

// What has to be listed.

json with_name(json step, const char* name, int place, int variant) {
  step["name"] = name;
  step["place"] = place;
  step["variant"] = variant;
  return step;
}

TEST(Proofs, AFishListsItsBaseLines) {
  const json wing = right_step("x_wing"), swordfish = right_step("swordfish");
  EXPECT_EQ(fault(with_name(wing, "swordfish", 14, 0), wing), "swordfish lists 3 base lines");
  EXPECT_EQ(fault(with_name(wing, "jellyfish", 15, 0), wing), "jellyfish lists 4 base lines");
  EXPECT_EQ(fault(with_name(swordfish, "x_wing", 12, 0), swordfish), "x_wing lists 2 base lines");
  json doubled = wing;
  doubled["premises"][1] = wing["premises"][0];
  EXPECT_EQ(fault(doubled, wing), "x_wing lists a base line twice");
}

TEST(Proofs, BaseLinesAreOfOneKindAndDigit) {
  const std::string mixed = "the base lines of x_wing are not of one kind and digit";
  for (const json& other :
       {unit_premise("column 5", 4, {"r5c5", "r9c5"}), unit_premise("box 7", 4, {"r8c1", "r9c2"}),
        unit_premise("row 5", 3, {"r5c6", "r5c9"})}) {
    json step = right_step("x_wing");
    step["premises"][1] = other;
    EXPECT_EQ(fault(step, step), mixed) << other;
  }
}

TEST(Proofs, ColouringListsAllLinksBetweenItsCells) {
  const json right = right_step("simple_colouring", 2);
  PlainGrid grid = grid_for(right);
  for (const char* cell : {"r1c2", "r1c3", "r2c1", "r2c2", "r2c3", "r3c1", "r3c3"})
    grid.at(cell_named(cell)).reset(5);
  EXPECT_EQ(fault(right, grid), "colouring does not list the link of r1c1 r3c2");
}

TEST(Proofs, LinksOfColouringHaveTwoCellsAndOneDigit) {
  for (const json& other : {unit_premise("column 5", 5, {"r2c5", "r5c5", "r9c5"}),
                            unit_premise("column 5", 6, {"r2c5", "r5c5"})}) {
    json step = right_step("simple_colouring", 1);
    step["premises"].push_back(other);
    EXPECT_FAULT(fault(step, step), "no link of colouring");
  }
}

TEST(Proofs, ALinkInTwoUnitsNamesOneOfThem) {
  json step = technique(
      "simple_colouring", 21, 1,
      {unit_premise("row 1", 5, {"r1c1", "r1c2"}), unit_premise("box 1", 5, {"r1c1", "r1c2"})},
      {{"r2c2", {5}}});
  PlainGrid grid = grid_for(step);
  grid.at(10).set(5);
  EXPECT_FAULT(fault(step, grid), "untrue");
  step["removed"] = json::array({{{"cell", "r7c1"}, {"digit", 6}}});
  EXPECT_EQ(fault(step, step), "two units for the link of r1c1 r1c2");
}

TEST(Proofs, RulesOfRectanglesListTheirLines) {
  const json rule1 = right_step("unique_rectangle", 1);
  EXPECT_EQ(fault(with_name(rule1, "unique_rectangle", 9, 3), rule1),
            "rule 3 of unique rectangles lists lines: 1, corners: 2, of two digits: 2");
  EXPECT_EQ(fault(with_name(rule1, "unique_rectangle", 9, 5), rule1),
            "rule 5 of unique rectangles lists lines: 2, corners: 2, of two digits: 2");
  const json rule3 = right_step("unique_rectangle", 3), rule5 = right_step("unique_rectangle", 5);
  EXPECT_EQ(fault(with_name(rule3, "unique_rectangle", 9, 5), rule3),
            "rule 5 of unique rectangles lists lines: 2, corners: 2, of two digits: 2");
  EXPECT_EQ(fault(with_name(rule5, "unique_rectangle", 9, 3), rule5),
            "rule 3 of unique rectangles lists lines: 1, corners: 2, of two digits: 2");
  EXPECT_EQ(fault(with_name(rule1, "naked_triple", 7, 0), rule1),
            "naked_triple speaks of a rectangle");
}

json with_variant(json step, int variant) {
  step["variant"] = variant;
  return step;
}

TEST(Proofs, RulesOfATechniqueAreToldApart) {
  const auto told_as = [](const char* name, int rule, int other) {
    const json right = right_step(name, rule);
    return fault(with_variant(right, other), right);
  };
  for (int rule = 1; rule <= 5; ++rule)
    for (int other = 1; other <= 5; ++other)
      if (other != rule) {
        EXPECT_FAULT(told_as("unique_rectangle", rule, other), "rule " + std::to_string(other));
      }
  EXPECT_EQ(told_as("finned_x_wing", 1, 2), "a fin is not told of");
  EXPECT_EQ(told_as("finned_x_wing", 2, 1), "an X-wing without a fin is told as finned");
  EXPECT_EQ(told_as("simple_colouring", 1, 2),
            "a wrap of colouring removes from no cell of its links");
  EXPECT_EQ(told_as("simple_colouring", 2, 1),
            "a trap of colouring removes from a cell of its links");
}

TEST(Proofs, ASingleHasOnePremiseOfItsKind) {
  json naked = right_step("naked_single"), hidden = right_step("hidden_single");
  naked["kind"] = "hidden_single";
  EXPECT_EQ(fault(naked, naked), "a hidden single has one premise, about a unit");
  hidden["kind"] = "naked_single";
  EXPECT_EQ(fault(hidden, hidden), "a naked single has one premise, about its cell");
}

// Certain, or not.

json uncertain(json step) {
  step["certain"] = false;
  return step;
}

json certain(json step) {
  step["certain"] = true;
  return step;
}

TEST(Certainty, WithoutAReasonNothingIsUncertain) {
  for (const json& right : right_steps())
    EXPECT_EQ(fault(uncertain(right), right), "not certain, without a reason") << right;
}

TEST(Certainty, ALooseRectangleIsNot) {
  const json step = certain(loose_rectangle());
  EXPECT_EQ(fault(step, step), "certain, though the rectangle proves nothing");
}

TEST(Certainty, ARectangleWithinOneBoxIsLooseAsWell) {
  json step = loose_rectangle();
  step["premises"] = {cell_premise("r1c1", {3, 8}), cell_premise("r1c2", {3, 8}),
                      cell_premise("r2c1", {3, 8}),
                      unique_premise(3, 8, {"r1c1", "r1c2", "r2c1", "r2c2"})};
  EXPECT_EQ(fault(step, step), "");
  EXPECT_NE(fault(certain(step), step), "");
}

TEST(Certainty, PremisesOfALooseRectangleAreTrueAllTheSame) {
  json step = loose_rectangle();
  step["removed"].push_back({{"cell", "r8c8"}, {"digit", 6}});
  EXPECT_EQ(fault(step, step), "") << "its conclusion need not follow";
  step["premises"][0]["digits"].push_back(9);
  EXPECT_FAULT(fault(step, loose_rectangle()), "untrue");
}

TEST(Certainty, WhatFollowsALooseRectangleInTheHintIsNot) {
  const json first = loose_rectangle(), second = right_step("x_wing");
  const json last = offer("naked_single", cell_premise("r9c8", {6}), "r9c8", 6);
  const auto checker_after = [&](const std::vector<json>& steps) {
    ProofChecker checker(grid_for(std::vector<json>{first, second, last}), Setting::walk);
    for (const json& step : steps) EXPECT_EQ(checker.fault(step), "") << step;
    return checker;
  };
  const std::string too_certain = "certain after a step of the hint that is not";
  EXPECT_EQ(checker_after({first}).fault(second), too_certain);
  EXPECT_EQ(checker_after({first}).fault(last), too_certain);
  EXPECT_EQ(checker_after({first}).fault(uncertain(second)), "");
  EXPECT_EQ(checker_after({first, uncertain(second)}).fault(last), too_certain);
  EXPECT_EQ(checker_after({first, uncertain(second)}).fault(uncertain(last)), "");
  EXPECT_EQ(checker_after({second}).fault(last), "");
  ProofChecker misled = checker_after({first});
  EXPECT_EQ(misled.fault(second), too_certain);
  EXPECT_EQ(misled.fault(last), too_certain);
  const json next = offer("naked_single", cell_premise("r9c7", {7}), "r9c7", 7);
  EXPECT_FAULT(checker_after({first, uncertain(last)}).fault(next), "untrue");
}

TEST(Certainty, WhatIsNotCertainIsProvedAllTheSame) {
  ProofChecker checker(grid_for(std::vector<json>{loose_rectangle(), right_step("x_wing")}),
                       Setting::walk);
  EXPECT_EQ(checker.fault(loose_rectangle()), "");
  json step = uncertain(right_step("x_wing"));
  step["removed"].push_back({{"cell", "r8c8"}, {"digit", 6}});
  EXPECT_FAULT(checker.fault(step), "does not follow");
}

TEST(Certainty, AnAvoidableRectangleBelongsToDrawnBoardsAndIsNot) {
  const json step = technique("avoidable_rectangle", 10, 0, json::array(), {{"r1c1", {5}}});
  const PlainGrid grid = grid_of("");
  EXPECT_EQ(ProofChecker(grid, Setting::drawn_board).fault(uncertain(step)), "");
  EXPECT_NE(ProofChecker(grid, Setting::drawn_board).fault(step), "");
  EXPECT_EQ(fault(uncertain(step), grid), "an avoidable rectangle never fires in a hint");
}

// The walk from step to step.

const std::string solved =
    "987654321135927468642138579426571983793482156518396742371865294269743815854219637";

/// The solved grid with these cells empty.
std::string without(const Names& cells) {
  std::string puzzle = solved;
  for (const std::string& name : cells) puzzle[static_cast<std::size_t>(cell_named(name))] = '.';
  return puzzle;
}

json naked(const char* cell, int digit) {
  return offer("naked_single", cell_premise(cell, {digit}), cell, digit);
}

json end(const char* how) { return {{"step", "end"}, {"end", how}}; }

json dead(const char* cell) { return {{"step", "end"}, {"end", "dead"}, {"cell", cell}}; }

TEST(Walks, AnOfferIsEnteredAndTheEndComes) {
  ProofChecker checker(without({"r1c1", "r1c2"}));
  EXPECT_EQ(checker.fault(naked("r1c1", 9)), "");
  EXPECT_EQ(checker.fault(naked("r1c1", 9)), "r1c1 is not empty");
  EXPECT_FALSE(checker.is_over());
  EXPECT_EQ(checker.fault(end("completed")), "the grid is not complete");
  EXPECT_EQ(checker.fault(naked("r1c2", 8)), "the walk is over");
}

TEST(Walks, EndsAreTrue) {
  const auto at_end = [](const std::string& puzzle, const json& how) {
    ProofChecker checker(puzzle);
    const std::string text = checker.fault(how);
    EXPECT_TRUE(checker.is_over());
    return text;
  };
  EXPECT_EQ(at_end(solved, end("completed")), "");
  EXPECT_EQ(at_end(solved, end("exhausted")), "the grid is complete");
  EXPECT_EQ(at_end(without({"r1c1"}), end("exhausted")), "a single is left");
  EXPECT_EQ(at_end(without({"r1c1"}), dead("r1c1")), "r1c1 is not dead");
  EXPECT_EQ(at_end(std::string(81, '.'), end("exhausted")), "");
  std::string clash = without({"r1c1", "r2c1"});
  clash[9] = '9';
  clash[0] = '.';
  EXPECT_EQ(at_end(clash, dead("r1c1")), "");
  EXPECT_EQ(at_end(clash, end("exhausted")), "r1c1 is the dead cell");
}

TEST(Walks, ADeadCellIsTheFirstRowByRow) {
  PlainGrid grid = grid_of("");
  grid.at(12).reset();
  grid.at(50).reset();
  const auto at_end = [&](const char* cell) {
    return ProofChecker(grid, Setting::walk).fault(dead(cell));
  };
  EXPECT_EQ(at_end("r2c4"), "");
  EXPECT_EQ(at_end("r6c6"), "r2c4 is the dead cell");
}

TEST(Walks, AHiddenSingleIsLeftAsWell) {
  PlainGrid grid = grid_for(right_step("hidden_single"));
  EXPECT_EQ(ProofChecker(grid, Setting::walk).fault(end("exhausted")), "a single is left");
}

TEST(Walks, RemovedCandidatesAreGoneUntilTheOffer) {
  const json pair = right_step("naked_pair");
  ProofChecker checker(grid_for(std::vector<json>{pair, right_step("naked_single")}),
                       Setting::walk);
  EXPECT_EQ(checker.fault(pair), "");
  EXPECT_FAULT(checker.fault(pair), "there is no candidate");
  EXPECT_EQ(checker.fault(right_step("naked_single")), "");
  EXPECT_FAULT(checker.fault(pair), "untrue") << "the grid has no more reason for the pair";
}

TEST(Walks, TheHintAfterAnOfferIsCertainAgain) {
  PlainGrid grid = grid_of(without({"r1c1", "r1c2"}));
  grid.at(0).set(8);  // what a loose rectangle would leave alone is of no matter here
  ProofChecker checker(grid, Setting::walk);
  json rectangle = uncertain(technique(
      "unique_rectangle", 9, 1,
      json::array({unique_premise(8, 9, {"r1c1", "r1c4", "r4c1", "r4c4"})}), {{"r1c1", {8}}}));
  EXPECT_EQ(checker.fault(rectangle), "the corner r1c4 is not empty");
  EXPECT_EQ(checker.fault(uncertain(naked("r1c1", 9))), "");
  EXPECT_EQ(checker.fault(naked("r1c2", 8)), "");
}

TEST(Walks, AMalformedStepChangesNothing) {
  ProofChecker checker(without({"r1c1"}));
  json step = naked("r1c1", 9);
  step.erase("digit");
  EXPECT_EQ(checker.fault(step), "malformed: an offer lacks digit");
  EXPECT_EQ(checker.fault(naked("r1c1", 9)), "");
}

}  // namespace
}  // namespace sdk::proofs
