// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The form of a line, refused wherever it is another.

#include "tests/proofs/step.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/proofs/examples.hpp"

namespace sdk::proofs {
namespace {

using nlohmann::json;

/// Why the line is refused; empty when it is not.
std::string fault(const json& line) {
  try {
    read_step(line);
    return "";
  } catch (const Malformed& malformed) {
    return malformed.what();
  }
}

json dead_end() { return {{"step", "end"}, {"end", "dead"}, {"cell", "r1c1"}}; }

std::vector<json> right_lines() {
  std::vector<json> lines = right_steps();
  lines.push_back(loose_rectangle());
  lines.push_back(dead_end());
  lines.push_back({{"step", "end"}, {"end", "completed"}});
  lines.push_back({{"step", "end"}, {"end", "exhausted"}});
  return lines;
}

TEST(Steps, TheRightFormIsRead) {
  for (const json& line : right_lines()) EXPECT_EQ(fault(line), "") << line;
}

/// The line and all objects in it.
void collect_objects(json& value, std::vector<json*>& objects) {
  if (value.is_object()) objects.push_back(&value);
  if (value.is_structured())
    for (json& item : value) collect_objects(item, objects);
}

TEST(Steps, AKeyTooFewOrTooManyIsNoticed) {
  for (json line : right_lines()) {
    std::vector<json*> objects;
    collect_objects(line, objects);
    std::ranges::reverse(objects);
    for (json* const object : objects) {  // the inner ones first, since each is put back
      const json before = *object;
      (*object)["colour"] = 1;
      EXPECT_NE(fault(line), "") << line;
      for (const auto& [key, value] : before.items()) {
        *object = before;
        object->erase(key);
        EXPECT_NE(fault(line), "") << line;
      }
      *object = before;
    }
  }
}

TEST(Steps, AValueOfAnotherTypeOrOutOfRangeIsNoticed) {
  const std::vector<json> wrong{nullptr, "nonsense", -1, 10, 1.0, json::object(), json::array({0})};
  for (const json& line : right_lines()) {
    const json flat = line.flatten();
    for (const auto& [pointer, value] : flat.items())
      for (const json& other : wrong) {
        json changed = line;
        changed[json::json_pointer(pointer)] = other;
        EXPECT_NE(fault(changed), "") << changed;
      }
  }
}

TEST(Steps, ListsThatAreNoneAreNoticed) {
  json step = right_step("pointing_rows");
  for (const char* key : {"premises", "removed"}) {
    json changed = step;
    changed[key] = "r1c1";
    EXPECT_NE(fault(changed), "");
  }
  step["premises"] = json::array({"r1c1"});
  EXPECT_EQ(fault(step), "a premise is neither about a cell nor a unit nor a rectangle");
}

TEST(Steps, LinesThatAreNoStepsAreNoticed) {
  for (const json& line : {json(nullptr), json::array(), json::object(), json("step"),
                           json{{"step", "pause"}}, json{{"step", "end"}}})
    EXPECT_NE(fault(line), "") << line;
}

TEST(Steps, NothingStandsTwice) {
  for (const json& line : right_steps()) {
    if (!line.contains("removed")) continue;
    json changed = line;
    changed["removed"].push_back(line["removed"][0]);
    EXPECT_NE(fault(changed).find("removed twice"), std::string::npos);
    changed = line;
    json& premise = changed["premises"][0];
    json& list = premise.contains("digits") ? premise["digits"] : premise["cells"];
    list.push_back(list[0]);
    EXPECT_NE(fault(changed).find("twice"), std::string::npos) << changed;
  }
}

TEST(Steps, SomethingIsRemoved) {
  json step = right_step("pointing_rows");
  step["removed"] = json::array();
  EXPECT_EQ(fault(step), "nothing is removed");
}

TEST(Steps, ANameHasItsPlaceAndAsManyVariantsAsRules) {
  for (const json& line : right_steps()) {
    if (!line.contains("place")) continue;
    json changed = line;
    changed["place"] = line["place"].get<int>() % 21 + 1;
    EXPECT_NE(fault(changed), "") << changed;
    changed = line;
    changed["variant"] = line["variant"] == 0 ? 1 : 0;
    EXPECT_NE(fault(changed), "") << changed;
  }
}

TEST(Steps, OrderWithinAListIsFree) {
  json step = right_step("pointing_rows");
  step["premises"][0]["cells"] = {"r1c2", "r1c1"};
  EXPECT_EQ(fault(step), "");
}

TEST(Steps, CellsUnitsAndRectanglesAreSuch) {
  json step = right_step("pointing_rows");
  for (const char* cell : {"", "r0c1", "r1c0", "R1C1", "r1c10", "c1r1", "r1c", "r1c1 "}) {
    step["removed"][0]["cell"] = cell;
    EXPECT_NE(fault(step), "") << cell;
  }
  step = right_step("pointing_rows");
  for (const char* unit :
       {"", "row", "row 0", "row 10", "line 1", "1", "box  1", "boxes 1", "row1"}) {
    step["premises"][0]["unit"] = unit;
    EXPECT_NE(fault(step), "") << unit;
  }
  step = loose_rectangle();
  for (const Names& corners :
       {Names{"r1c1", "r1c4", "r4c1"}, Names{"r1c1", "r1c4", "r4c1", "r5c4"},
        Names{"r1c1", "r1c2", "r1c3", "r1c4"}, Names{"r1c1", "r1c4", "r4c1", "r4c4", "r7c1"}}) {
    step["premises"][3]["cells"] = corners;
    EXPECT_NE(fault(step), "");
  }
  step = loose_rectangle();
  step["premises"][3]["unique"] = {3};
  EXPECT_EQ(fault(step), "a rectangle has two digits");
}

TEST(Steps, OnlyADeadEndHasACell) {
  json end = dead_end();
  end["end"] = "exhausted";
  EXPECT_EQ(fault(end), "an end has a key cell");
}

TEST(Puzzles, AreEightyOneDigitsOrDots) {
  const auto is_read = [](const json& line) {
    try {
      read_puzzle(line);
      return true;
    } catch (const Malformed&) {
      return false;
    }
  };
  EXPECT_TRUE(is_read({{"puzzle", std::string(80, '.') + "9"}}));
  EXPECT_FALSE(is_read({{"puzzle", std::string(80, '.') + "0"}}));
  EXPECT_FALSE(is_read({{"puzzle", std::string(80, '.')}}));
  EXPECT_FALSE(is_read({{"puzzle", std::string(81, '.')}, {"name", "x"}}));
  EXPECT_FALSE(is_read({{"puzzle", 1}}));
}

}  // namespace
}  // namespace sdk::proofs
