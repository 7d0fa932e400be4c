// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Whole hints in the game: what they do and mark is what the walk tells, and without the step mode
// they remove the same and mark next to nothing. HINT_GRIDS in the environment says from how many
// grids the puzzles are made, six a grid.

#include <gtest/gtest.h>

#include <algorithm>

#include "board/grid_text.hpp"
#include "pas_a_pas/driver.hpp"
#include "tests/pas_a_pas/hint_game.hpp"
#include "tests/support/puzzle_generator.hpp"
#include "tests/support/wanted_count.hpp"
#include "tools/walk/walk.hpp"

namespace sdk::test {
namespace {

std::vector<Puzzle> puzzles() {
  PuzzleGenerator generator(20260101);
  std::vector<Puzzle> list;
  for (int grids = wanted_count("HINT_GRIDS", 15); grids > 0; --grids)
    for (Puzzle& puzzle : generator.next()) list.push_back(std::move(puzzle));
  return list;
}

class Hints : public testing::Test {
 protected:
  HintGame game;
};

/// The marked cells as a walk tells them.
std::string marks(const HintGame& game) {
  std::string text;
  for (const auto& [label, mode] : {std::pair("3=", 3), {" 4=", 4}, {" 6=", 6}}) {
    std::string cells = game.marked(mode);
    std::ranges::replace(cells, ' ', ',');
    text += label + cells;
  }
  return text;
}

/// The marks at every question and at the end.
Lines marks_of_hint(HintGame& game) {
  Lines all;
  game.desktop.answers.assign(81, Answer::yes);
  const auto record = game.desktop.at_box;
  game.desktop.at_box = [&](const Box& box) {
    record(box);
    if (box.buttons == Buttons::yes_no) all.push_back(marks(game));
  };
  game.hint();
  game.desktop.at_box = record;
  all.push_back(marks(game));
  return all;
}

/// The same as the walk tells it.
Lines marks_of_walk(const Puzzle& puzzle) {
  const std::string text = walk(puzzle);
  Lines all;
  for (auto at = text.find(" | "); at != text.npos; at = text.find(" | ", at + 1))
    all.push_back(text.substr(at + 3, text.find('\n', at) - at - 3));
  return all;
}

TEST_F(Hints, MarkWhatTheWalkTells) {
  for (const Puzzle& puzzle : puzzles()) {
    game.draw(puzzle);
    ASSERT_EQ(marks_of_hint(game), marks_of_walk(puzzle)) << puzzle;
  }
}

/// One run, as a hint (answered No) or without the step mode.
sdk::Run run(bool as_hint) {
  globals.ModePasAPas = as_hint;
  suggestion();
  return solver.hint.value();
}

bool are_same(const sdk::Run& a, const sdk::Run& b) {
  return std::ranges::equal(a.events(), b.events(), [](const Event& x, const Event& y) {
    return x.kind == y.kind && x.before.candidates == y.before.candidates &&
           x.deduction == y.deduction;
  });
}

/// The marks that a run without the step mode may leave: those of the view, the hidden single's and
/// the dead cell's.
std::string marks_of_end_only(const Event& end) {
  const bool is_hidden =
      end.kind == EventKind::offer && end.deduction.technique == &technique_named("hidden_single");
  if (!is_hidden && end.kind != EventKind::dead) return "3= 4= 6=";
  const std::string cell = name_of(cell_at(*end.deduction.cells_as(Role::pattern).begin()));
  return is_hidden ? "3= 4=" + cell + " 6=" : "3=" + cell + " 4= 6=";
}

TEST_F(Hints, WithoutTheStepModeRemoveTheSameAndTechniquesMarkNothing) {
  for (const Puzzle& puzzle : puzzles()) {
    game.draw(puzzle);
    for (bool goes_on = true; goes_on;) {
      const sdk::Run hint = run(true);
      const Position after_hint = solver.position;
      const sdk::Run silent = run(false);
      const Event& end = silent.events().back();
      ASSERT_TRUE(are_same(silent, hint)) << puzzle;
      ASSERT_EQ(solver.position.candidates, after_hint.candidates) << puzzle;
      ASSERT_EQ(marks(game), marks_of_end_only(end)) << puzzle;
      goes_on = end.kind == EventKind::offer;
      if (!goes_on) continue;
      const auto [cell, digit] = *end.deduction.placement;
      game.window.MSF.set_text(cell.row - 1, cell.column - 1, std::to_string(digit));
    }
  }
}

}  // namespace
}  // namespace sdk::test
