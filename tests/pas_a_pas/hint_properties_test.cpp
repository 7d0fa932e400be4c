// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What holds of every run of the solver, over puzzles of every kind. HINT_GRIDS in the environment
// says from how many grids they are made, six puzzles a grid.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "pas_a_pas/cube_check.hpp"
#include "pas_a_pas/driver.hpp"
#include "pas_a_pas/order.hpp"
#include "pas_a_pas/view.hpp"
#include "tests/pas_a_pas/hint_game.hpp"
#include "tests/pas_a_pas/puzzle_generator.hpp"
#include "tests/support/solution_counter.hpp"
#include "tools/walk/walk.hpp"

namespace sdk::test {
namespace {

const std::vector<Puzzle>& puzzles() {
  static const auto all = [] {
    const char* const grids = std::getenv("HINT_GRIDS");
    PuzzleGenerator generator(20260101);
    std::vector<Puzzle> list;
    for (int left = grids ? std::atoi(grids) : 10; left > 0; --left)
      for (Puzzle& puzzle : generator.next()) list.push_back(std::move(puzzle));
    return list;
  }();
  return all;
}

using Candidates = std::array<NineSet, 82>;  ///< by cell number

Candidates candidates_now() {
  Candidates now;
  for (int number = 1; number <= 81; ++number)
    now[static_cast<std::size_t>(number)] = solver.Candidats.digits(cell_at(number));
  return now;
}

bool are_within(const Candidates& some, const Candidates& all) {
  for (std::size_t number = 1; number <= 81; ++number)
    if (!all[number].contains_all(some[number])) return false;
  return true;
}

/// Follows runs and notes the first thing that must never be.
class Judge : public SolverObserver {
 public:
  std::string fault;
  int rounds = 0, offers = 0, ends = 0;

  void recomputed() override {
    ++rounds;
    if (!first_round_) expect(are_within(candidates_now(), last_), "a candidate came back");
    expect(candidats_fault().empty(), candidats_fault());
    remember();
  }
  void trying(const Technique&) override {
    expect(candidates_now() == last_, "candidates changed between two techniques");
  }
  void tried(const Technique& technique, bool changed) override {
    const Candidates now = candidates_now();
    const std::string name(technique.name);
    expect(are_within(now, last_), name + " restored a candidate");
    expect(changed == (now != last_),
           name + (changed ? " fired and removed nothing" : " removed and did not fire"));
    remember();
  }
  void offered(Single, Cell, int) override {
    ++offers;
    first_round_ = true;
  }
  void ended(RunEnd) override {
    ++ends;
    first_round_ = true;
  }

 private:
  void remember() {
    last_ = candidates_now();
    first_round_ = false;
  }
  void expect(bool holds, const std::string& otherwise) {
    if (!holds && fault.empty()) fault = otherwise;
  }

  Candidates last_{};
  bool first_round_ = true;
};

class Hints : public testing::Test {
 protected:
  void draw(const Puzzle& puzzle) {
    solver.observer = nullptr;
    game.draw(puzzle);
  }

  HintGame game;
};

TEST_F(Hints, EveryWalkEndsAndKeepsToTheRulesOfARun) {
  for (const Puzzle& puzzle : puzzles()) {
    draw(puzzle);
    Judge judge;
    solver.observer = &judge;
    game.desktop.answers.assign(81, Answer::yes);
    game.hint();
    ASSERT_EQ(judge.fault, "") << puzzle;
    ASSERT_EQ(judge.ends, 1) << puzzle;
    ASSERT_EQ(static_cast<std::size_t>(judge.offers), 81 - game.desktop.answers.size()) << puzzle;
    solver.observer = nullptr;
  }
}

/// What one run did: removals, the offer or the end, and the marks it left.
class RunRecord : public SolverObserver {
 public:
  /// "5 r1c2-38 ...", "naked r1c2=3", an end's name; what the techniques removed is in them.
  Lines events;
  Lines marks_of_techniques;  ///< names of techniques after which other marks stood

  void trying(const Technique&) override {
    before_ = candidates_now();
    marks_ = marks();
  }
  void tried(const Technique& technique, bool) override {
    if (candidates_now() != before_) events.push_back(std::to_string(technique.place) + removed());
    if (marks() != marks_) marks_of_techniques.emplace_back(technique.name);
  }
  void offered(Single kind, Cell cell, int digit) override { tell_.offered(kind, cell, digit); }
  void ended(RunEnd end) override { tell_.ended(end); }

  /// The events with the last one, the offer or the end.
  Lines all_events() const {
    Lines all = events;
    all.insert(all.end(), tell_.events.begin(), tell_.events.end());
    return all;
  }

 private:
  static std::string marks() {
    std::string modes;
    for (int number = 1; number <= 81; ++number) {
      const auto [row, column] = cell_at(number);
      modes += static_cast<char>('0' + sudoku().MSR.cell(row - 1, column - 1).mark);
    }
    return modes;
  }
  std::string removed() const {
    std::string text;
    const Candidates now = candidates_now();
    for (int number = 1; number <= 81; ++number) {
      const auto k = static_cast<std::size_t>(number);
      for (const int digit : before_[k] - now[k])
        text += " " + name_of(cell_at(number)) + "-" + std::to_string(digit);
    }
    return text;
  }

  Candidates before_{};
  std::string marks_;
  SolverRecorder tell_;
};

/// A run on the same grid, as a hint (answered No) or without the step mode.
RunRecord run(bool as_hint) {
  RunRecord record;
  globals.ModePasAPas = as_hint;
  solver.observer = &record;
  suggestion();
  solver.observer = nullptr;
  return record;
}

/// The cell that the run left with a digit that `MSF` lacks; nothing when it placed none.
std::optional<Cell> placed() {
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    if (solver.Candidats.value(cell) != solver.GrilleDepart(cell.row, cell.column)) return cell;
  }
  return std::nullopt;
}

/// The marks that a run without the step mode may leave: the hidden single's, the dead cell's, and
/// those of the view.
void expect_marks_of_the_end_only(const HintGame& game, const Lines& events,
                                  std::optional<Cell> cell) {
  const bool hidden = !events.empty() && events.back().starts_with("hidden");
  const bool dead = !events.empty() && events.back() == "dead";
  EXPECT_EQ(game.marked(mark::support), hidden ? name_of(*cell) : "");
  if (dead)
    EXPECT_EQ(game.marked(mark::removed).find(' '), std::string::npos);
  else
    EXPECT_EQ(game.marked(mark::removed), "");
  EXPECT_EQ(game.marked(mark::second), "");
}

/// A naked single is told only in a hint.
Lines without_naked_single(Lines events) {
  if (!events.empty() && events.back().starts_with("naked")) events.pop_back();
  return events;
}

TEST_F(Hints, WithoutTheStepModeTheRemovalsAreTheSameAndTechniquesMarkNothing) {
  for (const Puzzle& puzzle : puzzles()) {
    draw(puzzle);
    for (std::optional<Cell> cell = Cell{1, 1}; cell;) {
      const Lines as_hint = run(true).all_events();
      const CandidateCube after_hint = solver.Candidats;
      const RunRecord silent = run(false);
      ASSERT_EQ(silent.all_events(), without_naked_single(as_hint)) << puzzle;
      ASSERT_EQ(solver.Candidats, after_hint) << puzzle;
      ASSERT_EQ(silent.marks_of_techniques, Lines{}) << puzzle;
      cell = placed();
      expect_marks_of_the_end_only(game, silent.all_events(), cell);
      if (HasFailure()) FAIL() << puzzle << " and on: " << joined(shown(game.window));
      if (cell)
        game.window.MSF.set_text(cell->row - 1, cell->column - 1,
                                 std::to_string(solver.Candidats.value(*cell)));
    }
  }
}

/// The walks of all puzzles, one after another in one window.
std::vector<std::string> walks() {
  Walker walker;
  std::vector<std::string> all;
  for (const Puzzle& puzzle : puzzles()) all.push_back(walker.walk(puzzle));
  return all;
}

TEST(Walks, AreTheSameWhenRunTwice) {
  const std::vector<std::string> first = walks();
  EXPECT_EQ(walks(), first);
  EXPECT_EQ(Walker().walk(puzzles().back()), first.back()) << "the window had been used before";
}

TEST(Walks, EndInEveryWayAndUseTheCommonTechniques) {
  std::string all;
  for (const std::string& walk : walks()) all += walk;
  for (const char* line : {"E completed", "E exhausted", "E dead", "N r", "H r", "T01", "T02",
                           "T03", "T04", "T05", "T06"})
    EXPECT_NE(all.find(line), all.npos) << line;
}

// The puzzles themselves

TEST(Puzzles, AreOfEveryKind) {
  const std::vector<Puzzle>& list = puzzles();
  ASSERT_EQ(list.size() % 6, 0u);
  std::size_t several = 0, none = 0;
  for (std::size_t i = 0; i < list.size(); i += 6) {
    ASSERT_EQ(solution_count(list[i], 2), 1);
    ASSERT_EQ(solution_count(list[i + 1], 2), 1);
    several += solution_count(list[i + 2], 2) == 2;
    ASSERT_EQ(solution_count(list[i + 3], 2), 1);
    none += solution_count(list[i + 5], 1) == 0;
    for (std::size_t k = 0; k < 81; ++k) {
      Puzzle fewer = list[i + 1];
      if (fewer[k] == '.') continue;
      fewer[k] = '.';
      ASSERT_EQ(solution_count(fewer, 2), 2) << "not minimal: " << list[i + 1];
    }
  }
  EXPECT_EQ(several, list.size() / 6);
  EXPECT_GE(none, list.size() / 6 - 1);
}

}  // namespace
}  // namespace sdk::test
