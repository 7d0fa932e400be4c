// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Every kind of step as a drawing.

#include "explanations/step_picture.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "board/grid_text.hpp"
#include "tests/logic/board_call.hpp"
#include "tests/logic/candidates.hpp"
#include "tests/support/puzzle_generator.hpp"
#include "tests/support/wanted_count.hpp"
#include "tools/walk/play.hpp"

namespace sdk::test {
namespace {

using Cells = std::vector<std::pair<Cell, NineSet>>;

/// These cells have these candidates, all others none.
Position holding(const Cells& cells) {
  Position position;
  position.candidates = open_cube();
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    const auto known = std::ranges::find(cells, cell, &Cells::value_type::first);
    set_candidates(position.candidates, cell, known == cells.end() ? NineSet() : known->second);
  }
  position.links = links_of(position.candidates);
  return position;
}

StepPicture picture_of_step(const Technique& technique, const Position& before) {
  return picture_of({EventKind::removal, before, find_by(technique, before).value()});
}

// A drawing as text.

using sdk::name_of;

std::string name_of(const PictureLink& link) {
  EXPECT_EQ(link.from.digit, link.to.digit);
  return std::to_string(link.from.digit) + ":" + name_of(link.from.cell) + "-" +
         name_of(link.to.cell);
}

std::string prefix_of(Mark mark) {
  if (mark == Mark::removed) return "!";
  if (mark == Mark::support) return "*";
  return mark == Mark::second ? "+" : "";
}

/// As a drawn board writes it, with "_" in front of bold digits.
std::string drawing_of(const PictureCell& cell) {
  std::string text = prefix_of(cell.mark);
  if (cell.value != 0) return text + "=" + std::to_string(cell.value);
  for (const int digit : cell.candidates)
    text += (cell.pattern.contains(digit) ? "_" : "") + std::to_string(digit) +
            (cell.removed.contains(digit) ? "-" : "");
  return text;
}

/// The cells that are marked or have bold or struck-out digits.
std::string cells_of(const StepPicture& picture) {
  std::string text;
  for (int number = 1; number <= 81; ++number) {
    const PictureCell& cell = picture.cells[number];
    if (cell.mark == Mark::none && cell.pattern.empty() && cell.removed.empty()) continue;
    text += (text.empty() ? "" : " ") + name_of(cell_at(number)) + drawing_of(cell);
  }
  return text;
}

template <class Things>
std::string names_of(const Things& things) {
  std::string text;
  for (const auto& thing : things) text += (text.empty() ? "" : " ") + name_of(thing);
  return text;
}

struct Drawing {
  const char* name;
  const Technique* technique;
  Cells before;
  std::string cells, links{}, lines{};
};

std::ostream& operator<<(std::ostream& out, const Drawing& drawing) { return out << drawing.name; }

class StepDrawing : public testing::TestWithParam<Drawing> {};

TEST_P(StepDrawing, ShowsWhatTheStepDoesAndRestsOn) {
  const StepPicture picture = picture_of_step(*GetParam().technique, holding(GetParam().before));
  EXPECT_EQ(cells_of(picture), GetParam().cells);
  EXPECT_EQ(names_of(picture.links), GetParam().links);
  EXPECT_EQ(names_of(picture.lines), GetParam().lines);
}

const Drawing drawings[] = {
    {"NakedSingle", &technique_named("naked_single"), {{{1, 1}, {5}}}, "r1c1*_5"},
    {"HiddenSingle", &technique_named("hidden_single"), {{{2, 3}, {4, 7}}}, "r2c3*_47"},
    {"PointingRows",
     &technique_named("pointing_rows"),
     {{{1, 1}, {5, 6}}, {{1, 2}, {5}}, {{1, 7}, {5, 6}}},
     "r1c1*_56 r1c2*_5 r1c7!5-6"},
    // A hint draws no mark in a column.
    {"PointingColumns",
     &technique_named("pointing_columns"),
     {{{1, 1}, {5, 6}}, {{2, 1}, {5}}, {{7, 1}, {5, 6}}},
     "r1c1*_56 r2c1*_5 r7c1!5-6"},
    {"BoxLineRows",
     &technique_named("box_line_rows"),
     {{{1, 1}, {5, 6}}, {{1, 2}, {5}}, {{2, 3}, {5, 6}}},
     "r1c1*_56 r1c2*_5 r2c3!5-6"},
    {"BoxLineColumns",
     &technique_named("box_line_columns"),
     {{{1, 1}, {5, 6}}, {{2, 1}, {5}}, {{3, 2}, {5, 6}}},
     "r1c1*_56 r2c1*_5 r3c2!5-6"},
    {"NakedPair",
     &technique_named("naked_pair"),
     {{{2, 1}, {3, 8}}, {{2, 7}, {3, 8}}, {{2, 8}, {3, 5, 8}}},
     "r2c1*_3_8 r2c7*_3_8 r2c8!3-58-"},
    {"HiddenPair",
     &technique_named("hidden_pair"),
     {{{2, 1}, {3, 8, 9}}, {{2, 7}, {3, 8}}, {{2, 8}, {5, 9}}, {{2, 9}, {5, 9}}},
     "r2c1*_3_89- r2c7*_3_8"},
    {"NakedTriple",
     &technique_named("naked_triple"),
     {{{2, 1}, {3, 8}}, {{2, 4}, {3, 9}}, {{2, 7}, {8, 9}}, {{2, 9}, {3, 5}}},
     "r2c1*_3_8 r2c4*_3_9 r2c7*_8_9 r2c9!3-5"},
    {"HiddenTriple",
     &technique_named("hidden_triple"),
     {{{2, 1}, {3, 5, 8}}, {{2, 4}, {3, 9}}, {{2, 7}, {8, 9}}, {{2, 8}, {5, 6}}, {{2, 9}, {5, 6}}},
     "r2c1*_35-_8 r2c4*_3_9 r2c7*_8_9"},
    {"NakedQuad",
     &technique_named("naked_quad"),
     {{{2, 1}, {1, 2}}, {{2, 2}, {2, 3}}, {{2, 4}, {3, 4}}, {{2, 5}, {1, 4}}, {{2, 9}, {4, 5}}},
     "r2c1*_1_2 r2c2*_2_3 r2c4*_3_4 r2c5*_1_4 r2c9!4-5"},
    {"HiddenQuad",
     &technique_named("hidden_quad"),
     {{{2, 1}, {1, 2, 9}}, {{2, 2}, {2, 3}}, {{2, 4}, {3, 4}}, {{2, 5}, {1, 4}}, {{2, 9}, {5, 9}}},
     "r2c1*_1_29- r2c2*_2_3 r2c4*_3_4 r2c5*_1_4"},
    {"RectangleWithAnOddCorner",
     &technique_named("unique_rectangle"),
     {{{4, 4}, {3, 8}}, {{4, 5}, {3, 8}}, {{7, 4}, {3, 8}}, {{7, 5}, {3, 5, 8}}},
     "r4c4*_3_8 r4c5*_3_8 r7c4*_3_8 r7c5!3-58-"},
    {"RectangleWhoseCornersShareADigit",
     &technique_named("unique_rectangle"),
     {{{4, 4}, {3, 8}},
      {{4, 5}, {3, 8}},
      {{7, 4}, {3, 5, 8}},
      {{7, 5}, {3, 5, 8}},
      {{7, 9}, {5, 7}}},
     "r4c4*_3_8 r4c5*_3_8 r7c4*_3_5_8 r7c5*_3_5_8 r7c9!5-7"},
    {"RectangleWithThreeCornersThatShareADigit",
     &technique_named("unique_rectangle"),
     {{{4, 4}, {3, 8}},
      {{4, 5}, {3, 5, 8}},
      {{6, 4}, {3, 5, 8}},
      {{6, 5}, {3, 5, 8}},
      {{5, 6}, {5, 7}}},
     "r4c4*_3_8 r4c5*_3_5_8 r5c6!5-7 r6c4*_3_5_8 r6c5*_3_5_8"},
    {"RectangleBoundToItsRoof",
     &technique_named("unique_rectangle"),
     {{{4, 4}, {3, 8}}, {{4, 5}, {3, 8}}, {{7, 4}, {3, 5, 8}}, {{7, 5}, {3, 6, 8}}, {{7, 9}, {8}}},
     "r4c4*_3_8 r4c5*_3_8 r7c4*_358- r7c5*_368-"},
    {"RectangleBoundToItsDiagonal",
     &technique_named("unique_rectangle"),
     {{{4, 4}, {3, 5, 8}}, {{4, 5}, {3, 8}}, {{7, 4}, {3, 8}}, {{7, 5}, {3, 6, 8}}},
     "r4c4*3-5_8 r4c5*_3_8 r7c4*_3_8 r7c5*3-6_8"},
    {"XWing",
     &technique_named("x_wing"),
     {{{2, 3}, {5, 6}}, {{2, 8}, {5}}, {{6, 3}, {5}}, {{6, 8}, {5}}, {{9, 3}, {5, 7}}},
     "r2c3*_56 r2c8*_5 r6c3*_5 r6c8*_5 r9c3!5-7",
     "",
     "row 2 row 6 column 3 column 8"},
    {"XWingOfColumns",
     &technique_named("x_wing"),
     {{{2, 3}, {5}}, {{2, 8}, {5}}, {{6, 3}, {5}}, {{6, 8}, {5}}, {{2, 9}, {5}}, {{6, 1}, {5}}},
     "r2c3*_5 r2c8*_5 r2c9!5- r6c1!5- r6c3*_5 r6c8*_5",
     "",
     "column 3 column 8 row 2 row 6"},
    {"Swordfish",
     &technique_named("swordfish"),
     {{{1, 2}, {5}},
      {{1, 5}, {5}},
      {{4, 5}, {5}},
      {{4, 8}, {5}},
      {{7, 2}, {5}},
      {{7, 8}, {5}},
      {{9, 8}, {5, 6}}},
     "r1c2*_5 r1c5*_5 r4c5*_5 r4c8*_5 r7c2*_5 r7c8*_5 r9c8!5-6",
     "",
     "row 1 row 4 row 7 column 2 column 5 column 8"},
    {"Jellyfish",
     &technique_named("jellyfish"),
     {{{1, 2}, {5}},
      {{1, 5}, {5}},
      {{4, 5}, {5}},
      {{4, 8}, {5}},
      {{7, 8}, {5}},
      {{7, 9}, {5}},
      {{8, 9}, {5}},
      {{8, 2}, {5}},
      {{9, 2}, {5}}},
     "r1c2*_5 r1c5*_5 r4c5*_5 r4c8*_5 r7c8*_5 r7c9*_5 r8c2*_5 r8c9*_5 r9c2!5-",
     "",
     "row 1 row 4 row 7 row 8 column 2 column 5 column 8 column 9"},
    {"FinnedXWing",
     &technique_named("finned_x_wing"),
     {{{2, 3}, {5}}, {{2, 8}, {5}}, {{2, 9}, {5}}, {{6, 3}, {5}}, {{6, 8}, {5}}, {{1, 8}, {5, 6}}},
     "r1c8!5-6 r2c3*_5 r2c8*_5 r2c9+_5 r6c3*_5 r6c8*_5",
     "",
     "row 2 row 6 column 3 column 8"},
    // The corner that lacks the digit is a corner all the same, and has none in bold.
    {"FinnedXWingThatLacksACorner",
     &technique_named("finned_x_wing"),
     {{{2, 3}, {5}}, {{2, 8}, {6}}, {{2, 9}, {5}}, {{6, 3}, {5}}, {{6, 8}, {5}}, {{1, 8}, {5, 6}}},
     "r1c8!5-6 r2c3*_5 r2c8*6 r2c9+_5 r6c3*_5 r6c8*_5",
     "",
     "row 2 row 6 column 3 column 8"},
    {"XYWing",
     &technique_named("xy_wing"),
     {{{1, 1}, {1, 2}}, {{1, 5}, {1, 3}}, {{5, 1}, {2, 3}}, {{5, 5}, {3, 4}}},
     "r1c1*_1_2 r1c5+_1_3 r5c1+_2_3 r5c5!3-4",
     "1:r1c1-r1c5 2:r1c1-r5c1"},
    {"XYZWing",
     &technique_named("xyz_wing"),
     {{{1, 1}, {1, 2, 3}}, {{1, 5}, {1, 3}}, {{2, 2}, {2, 3}}, {{1, 2}, {3, 4}}},
     "r1c1*_1_2_3 r1c2!3-4 r1c5+_1_3 r2c2+_2_3",
     "1:r1c1-r1c5 2:r1c1-r2c2"},
    {"WWing",
     &technique_named("w_wing"),
     {{{1, 1}, {5, 9}}, {{2, 5}, {5, 9}}, {{4, 1}, {9}}, {{4, 5}, {6, 9}}, {{1, 5}, {5, 7}}},
     "r1c1*_5_9 r1c5!5-7 r2c5*_5_9 r4c1+_9 r4c5+6_9",
     "9:r4c1-r4c5 9:r1c1-r4c1 9:r2c5-r4c5"},
    // The first cell of the pair sees the second end.
    {"WWingCrossed",
     &technique_named("w_wing"),
     {{{1, 5}, {5, 9}}, {{2, 1}, {5, 9}}, {{4, 1}, {9}}, {{4, 5}, {9}}, {{1, 1}, {5, 7}}},
     "r1c1!5-7 r1c5*_5_9 r2c1*_5_9 r4c1+_9 r4c5+_9",
     "9:r4c1-r4c5 9:r1c5-r4c5 9:r2c1-r4c1"},
    // Cells that see each other need no link.
    {"WWingOfCellsThatSeeEachOther",
     &technique_named("w_wing"),
     {{{1, 1}, {5, 9}}, {{1, 5}, {5, 9}}, {{4, 1}, {9}}, {{4, 5}, {9}}, {{1, 9}, {5, 7}}},
     "r1c1*_5_9 r1c5*_5_9 r1c9!5-7 r4c1+9 r4c5+9"},
    // Row 1, column 5 and row 6 chain r1c1 to r6c2.
    {"ColouringTrap",
     &technique_named("simple_colouring"),
     {{{1, 1}, {4}},
      {{1, 5}, {4}},
      {{6, 5}, {4}},
      {{6, 2}, {4}},
      {{2, 2}, {4, 5}},
      {{3, 3}, {4}},
      {{8, 2}, {4}}},
     "r1c1*_4 r1c5+_4 r2c2!4-5 r6c2+_4 r6c5*_4",
     "4:r1c1-r1c5 4:r1c5-r6c5 4:r6c2-r6c5"},
    // Row 1, column 5, row 6 and column 2 chain r1c1 to r2c2, which see each other in box 1.
    {"ColouringWrap",
     &technique_named("simple_colouring"),
     {{{1, 1}, {4}}, {{1, 5}, {4}}, {{6, 5}, {4}}, {{6, 2}, {4}}, {{2, 2}, {4}}, {{3, 3}, {4}}},
     "r1c1*4- r1c5+_4 r2c2*4- r6c2+_4 r6c5*4-",
     "4:r1c1-r1c5 4:r1c5-r6c5 4:r2c2-r6c2 4:r6c2-r6c5"},
};

INSTANTIATE_TEST_SUITE_P(Each, StepDrawing, testing::ValuesIn(drawings),
                         [](const auto& test) { return test.param.name; });

TEST(StepDrawings, AnAvoidableRectangleMarksValues) {
  Position before = holding({{{5, 8}, {3, 8, 9}}});
  for (const auto& [cell, value] : {std::pair<Cell, int>{{2, 1}, 3}, {{2, 8}, 8}, {{5, 1}, 8}}) {
    before.candidates.set_value(cell, value);
    before.pairs(cell.row, cell.column) = {3, 8};
  }
  const StepPicture picture = picture_of_step(technique_named("avoidable_rectangle"), before);
  EXPECT_EQ(cells_of(picture), "r2c1*=3 r2c8*=8 r5c1*=8 r5c8!3-89");
}

TEST(StepDrawings, RolesGiveTheMarksThatAHintDoesNotDraw) {
  Deduction step;
  for (std::size_t role = 0; role < role_count; ++role)
    step.cells[role].insert(static_cast<int>(role) + 1);
  step.cells_as(Role::pattern).insert(Cell{9, 9});
  step.removed[5].insert(Cell{9, 9});
  step.removed[5].insert(Cell{9, 8});
  step.highlights = {{{9, 8}, Mark::second, {}}, {{9, 7}, std::nullopt, {5}}};
  const StepPicture picture = picture_of({EventKind::removal, holding({}), step});
  EXPECT_EQ(cells_of(picture), "r1c1* r1c2* r1c3+ r1c4* r1c5+ r1c6+ r1c7* r1c8+ r9c8+ r9c9!");
}

TEST(StepDrawings, AnEndHasNoMoreThanItsDeadCell) {
  sdk::Run run(holding({{{1, 1}, {4, 5}}, {{1, 2}, {4, 5}}}), {});
  const Event& dead = run.next();
  ASSERT_EQ(dead.kind, EventKind::dead);
  EXPECT_EQ(cells_of(picture_of(dead)), "r1c3!");
  EXPECT_EQ(cells_of(picture_of({EventKind::exhausted, dead.before, {}})), "");
  EXPECT_EQ(picture_of({EventKind::exhausted, dead.before, {}}).cells(1, 1).candidates,
            NineSet({4, 5}));
}

// What holds of every drawing.

/// Every mark but the first's place, and why it is as it is.
std::string fault_of_marks(const StepPicture& picture, const Deduction& step) {
  Square<Mark> drawn;
  for (const Highlight& highlight : step.highlights)
    if (highlight.mark) drawn[highlight.cell.number()] = *highlight.mark;
  for (int cell = 1; cell <= 81; ++cell) {
    const PictureCell& shown = picture.cells[cell];
    if (drawn[cell] != Mark::none && shown.mark != drawn[cell]) return "another mark";
    const bool tells_something = !shown.removed.empty() || !shown.pattern.empty();
    if (tells_something && shown.mark == Mark::none) return "no mark";
  }
  return "";
}

std::string fault_of_digits(const StepPicture& picture, const Event& event) {
  for (int number = 1; number <= 81; ++number) {
    const PictureCell& shown = picture.cells[number];
    const Cell cell = cell_at(number);
    NineSet removed;
    for (int digit = 1; digit <= 9; ++digit)
      if (event.deduction.losers_of(digit).contains(number)) removed.insert(digit);
    if (shown.value != event.before.candidates.value(cell)) return "another value";
    if (shown.candidates != event.before.candidates.digits(cell)) return "other candidates";
    if (shown.value != 0 && !shown.candidates.empty()) return "a value with candidates";
    if (shown.removed != removed) return "other removals";
    if (!shown.candidates.contains_all(removed)) return "a removed digit was not there";
    if (!(shown.candidates - removed).contains_all(shown.pattern)) return "a wrong bold digit";
  }
  return "";
}

std::string fault_of_links(const StepPicture& picture) {
  for (const auto& [from, to] : picture.links)
    for (const auto& [cell, digit] : {from, to}) {
      const PictureCell& end = picture.cells[cell.number()];
      if (!(end.pattern | end.removed).contains(digit)) return "a link ends at a pale digit";
      if (end.mark == Mark::none) return "a link ends in a pale cell";
    }
  return "";
}

bool has_lines(std::string_view technique) {
  return technique.ends_with("x_wing") || technique.ends_with("fish");
}
bool has_links(std::string_view technique) {
  return technique == "xy_wing" || technique == "xyz_wing" || technique == "simple_colouring";
}

std::string fault_of_lines(const StepPicture& picture) {
  const auto is_on_a_line = [&](int cell) {
    return std::ranges::any_of(picture.lines,
                               [&](Unit line) { return line.contains(cell_at(cell)); });
  };
  for (int cell = 1; cell <= 81; ++cell)
    if (picture.cells[cell].mark != Mark::none && !is_on_a_line(cell)) return "off the lines";
  return "";
}

std::string fault_of(const Event& event) {
  const StepPicture picture = picture_of(event);
  const std::string_view technique =
      event.deduction.technique ? event.deduction.technique->id : "none";
  if (picture.lines.empty() == has_lines(technique)) return "lines";
  if (picture.links.empty() && has_links(technique)) return "no links";
  if (!picture.links.empty() && !has_links(technique) && technique != "w_wing") return "links";
  for (const std::string& fault :
       {fault_of_digits(picture, event), fault_of_marks(picture, event.deduction),
        fault_of_links(picture), has_lines(technique) ? fault_of_lines(picture) : ""})
    if (!fault.empty()) return fault;
  return "";
}

TEST(StepDrawings, HoldTogetherInWalks) {
  PuzzleGenerator generator(20260102);
  for (int grids = wanted_count("HINT_GRIDS", 12); grids > 0; --grids)
    for (const Puzzle& puzzle : generator.next())
      play(puzzle_of(puzzle), [](const Event& event) {
        const auto* technique = event.deduction.technique;
        EXPECT_EQ(fault_of(event), "") << (technique ? technique->id : "end");
      });
}

TEST(StepDrawings, HoldTogetherOnDrawnBoards) {
  for (const BoardFile& file : read_all_boards(BOARDS))
    for (const BoardCase& board : file.cases) {
      if (!board.fires) continue;
      const Position before = test::position_of(file, board);
      EXPECT_EQ(fault_of({EventKind::removal, before, find_by(*file.technique, before).value()}),
                "")
          << file.technique->id << '.' << board.name;
    }
}

}  // namespace
}  // namespace sdk::test
