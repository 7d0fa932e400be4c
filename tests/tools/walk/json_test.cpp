// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The walk as JSON: its form. Whether what it says is true is for tests/proofs.

#include "tools/walk/json_walk.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include <nlohmann/json.hpp>
#include <sstream>
#include <vector>

#include "board/grid_text.hpp"
#include "puzzles/stock/entry_text.hpp"
#include "tests/support/tool.hpp"
#include "tools/walk/walk.hpp"

namespace sdk::test {
namespace {

using nlohmann::json;

const std::string no_digit(81, '.');

std::vector<json> steps_of(const std::string& puzzle) {
  std::istringstream lines(json_walk(puzzle));
  std::vector<json> steps;
  for (std::string line; std::getline(lines, line);) steps.push_back(json::parse(line));
  return steps;
}

TEST(JsonWalk, BeginsWithThePuzzleAndEndsWithTheEnd) {
  EXPECT_EQ(steps_of(std::string(81, '0')),
            (std::vector<json>{{{"puzzle", no_digit}}, {{"step", "end"}, {"end", "exhausted"}}}));
  EXPECT_EQ(steps_of(std::string(81, '1')).back(), (json{{"step", "end"}, {"end", "completed"}}));
}

TEST(JsonWalk, NamesTheDeadCell) {
  std::string puzzle = no_digit;
  puzzle.replace(0, 8, "12345678");
  puzzle[17] = '9';
  EXPECT_EQ(steps_of(puzzle).back(), (json{{"step", "end"}, {"end", "dead"}, {"cell", "r1c9"}}));
}

TEST(JsonWalk, TellsAnOfferWithWhatItRestsOn) {
  std::string puzzle = no_digit;
  for (const std::size_t k : {13, 25, 37, 65}) puzzle[k] = '9';  // leave r1c1 the 9 of row 1
  EXPECT_EQ(steps_of(puzzle)[1], json::parse(R"({"step": "offer", "kind": "hidden_single",
      "certain": true, "premises": [{"unit": "row 1", "digit": 9, "cells": ["r1c1"]}],
      "cell": "r1c1", "digit": 9})"));
}

TEST(JsonWalk, TellsATechniqueWithWhatItRestsOnAndWhatItRemoves) {
  std::string puzzle = no_digit;  // in box 1 only row 1 is left for 1, 8 and 9
  puzzle.replace(9, 3, "234");
  puzzle.replace(18, 3, "567");
  EXPECT_EQ(steps_of(puzzle)[1], json::parse(R"({"step": "technique", "place": 1,
      "name": "pointing_rows", "variant": 0, "certain": true,
      "premises": [{"unit": "box 1", "digit": 1, "cells": ["r1c1", "r1c2", "r1c3"]}],
      "removed": [{"cell": "r1c4", "digit": 1}, {"cell": "r1c5", "digit": 1},
                  {"cell": "r1c6", "digit": 1}, {"cell": "r1c7", "digit": 1},
                  {"cell": "r1c8", "digit": 1}, {"cell": "r1c9", "digit": 1}]})"));
}

/// Corners that hold only 3 and 8 but for one, in two boxes or in four.
json rectangle_step(int row2) {
  Deduction deduction;
  Position position = open_position({});
  for (const Cell cell : {Cell{1, 1}, {1, 4}, {row2, 1}})
    for (const int digit : NineSet::all() - NineSet{3, 8}) position.candidates.remove(cell, digit);
  recompute(position);
  deduction = *find_by(technique_named("unique_rectangle"), position);
  return json::parse(json_of({EventKind::removal, position, deduction, deduction.certain}));
}

TEST(JsonWalk, ARectangleInTwoBoxesIsCertainAndOneInFourIsNot) {
  const json certain = rectangle_step(2), loose = rectangle_step(5);
  EXPECT_EQ(certain["variant"], 1);
  EXPECT_EQ(certain["certain"], true);
  EXPECT_EQ(certain["premises"][0],
            json::parse(R"({"unique": [3, 8], "cells": ["r1c1", "r1c4", "r2c1", "r2c4"]})"));
  EXPECT_EQ(certain["premises"][1], json::parse(R"({"cell": "r1c1", "digits": [3, 8]})"));
  EXPECT_EQ(loose["certain"], false);
}

TEST(JsonWalk, WhatFollowsAnUncertainStepInAHintIsNotCertainEither) {
  // A technique that is never certain, and that fires once.
  const auto find_once = [](const Position& position) -> std::optional<Deduction> {
    if (!position.candidates.has({1, 1}, 1)) return std::nullopt;
    Deduction deduction;
    deduction.certain = false;
    deduction.removed[1].insert(Cell{1, 1});
    return deduction;
  };
  const std::array order{Technique{1, "once", "once", find_once}};
  sdk::Run run(open_position({}), order);
  EXPECT_FALSE(run.next().certain);
  EXPECT_FALSE(run.next().certain);
}

TEST(JsonWalk, HasALineForEachLineOfTheWalk) {
  for (const LibraryEntry& entry : BibliothequeGrilles) {
    const std::string puzzle = puzzle_text(entry);
    EXPECT_EQ(std::ranges::count(json_walk(puzzle), '\n'), std::ranges::count(walk(puzzle), '\n'));
  }
}

TEST(JsonWalk, IsAnOptionThatGoesWithJobsButNotWithSentences) {
  const std::string input = "printf '" + no_digit + "\\n' | " SUDOKU_WALK " ";
  EXPECT_EQ(run_tool(input + "--json --jobs 2").output, json_walk(no_digit));
  for (const char* arguments : {"--json --explain en", "--explain en --json", "--json --json"})
    EXPECT_EQ(run_tool(input + arguments).status, 2) << arguments;
}

}  // namespace
}  // namespace sdk::test
