// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The steps of the last hint: when they come, what chooses one of them, and when they go.

#include "ui/explanation.hpp"

#include <gtest/gtest.h>

#include <vector>

#include "pas_a_pas/singles.hpp"
#include "pas_a_pas/tables.hpp"
#include "tests/support/game.hpp"
#include "ui/state_check.hpp"

namespace sdk::test {
namespace {

/// What the explanation was at every change that was told.
class Watcher : public WindowListener {
 public:
  explicit Watcher(const MainWindow& window) : window_(window) {}

  std::vector<std::size_t> sizes;
  std::vector<std::size_t> chosen_steps;  ///< 0 the first; only when one was chosen

  void explanation_changed() override {
    sizes.push_back(window_.explanation().size());
    if (const auto chosen = window_.explanation().chosen()) chosen_steps.push_back(*chosen);
  }

 private:
  const MainWindow& window_;
};

/// `complete_grid` without its digits at these places of its text, 0-based.
std::string complete_but_for(std::initializer_list<std::size_t> places) {
  std::string grid = complete_grid;
  for (const std::size_t place : places) grid.at(place) = '.';
  return grid;
}

/// Its last three digits are naked singles.
const std::string three_left = complete_but_for({7, 8, 88});
const std::string last_left = complete_but_for({88});

/// Nothing is left for the ninth cell of row 1.
const char* const dead_grid =
    "12345678.\n"
    "........9\n"
    ".........\n"
    ".........\n"
    ".........\n"
    ".........\n"
    ".........\n"
    ".........\n"
    ".........\n";

const char* const empty_grid =
    ".........\n"
    ".........\n"
    ".........\n"
    ".........\n"
    ".........\n"
    ".........\n"
    ".........\n"
    ".........\n"
    ".........\n";

class ExplanationOfAHint : public testing::Test {
 protected:
  ExplanationOfAHint() { w.set_listener(&watcher); }

  void hint() { w.click(Control::Command8); }
  const Explanation& explanation() const { return w.explanation(); }
  std::vector<std::string> texts() const { return explanation().texts(globals.Langue); }

  Game game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
  Watcher watcher{w};
};

TEST_F(ExplanationOfAHint, IsEmptyFromTheStart) {
  EXPECT_EQ(explanation().size(), 0u);
  EXPECT_TRUE(texts().empty());
  w.choose_step(0);
  EXPECT_FALSE(explanation().chosen());
  EXPECT_FALSE(explanation().picture());
}

TEST_F(ExplanationOfAHint, StandsForAListenerThatOverridesNothing) {
  WindowListener deaf;
  w.set_listener(&deaf);
  game.draw(three_left);
  hint();
  EXPECT_EQ(explanation().size(), 1u);
}

TEST_F(ExplanationOfAHint, StandsWhenTheQuestionOpensAndStaysAfterNo) {
  game.draw(three_left);
  std::size_t at_question = 0;
  desktop.at_box = [&](const Box&) { at_question = explanation().size(); };
  hint();
  EXPECT_EQ(at_question, 1u);
  EXPECT_EQ(texts().size(), 1u);
  EXPECT_EQ(state_fault(w), "");
}

TEST_F(ExplanationOfAHint, NamesTheCellThatIsOfferedWhileThereIsOne) {
  EXPECT_EQ(explanation().offered_cell(), std::nullopt);
  game.draw(last_left);
  hint();
  EXPECT_EQ(explanation().offered_cell(), (Cell{9, 9}));
  game.draw(dead_grid);
  hint();
  EXPECT_EQ(explanation().offered_cell(), std::nullopt);
}

TEST_F(ExplanationOfAHint, AnyAnswerLeavesTheStep) {
  for (const Answer answer : {Answer::no, Answer::yes}) {
    game.draw(three_left);
    watcher.chosen_steps.clear();
    desktop.answers = {answer};
    desktop.at_box = [&](const Box&) {
      if (desktop.boxes.size() == 1) w.choose_step(0);
    };
    hint();
    EXPECT_EQ(watcher.chosen_steps, std::vector<std::size_t>{0});
    EXPECT_FALSE(explanation().chosen());
  }
}

TEST_F(ExplanationOfAHint, YesBringsTheStepsOfTheNextRunAndForgetsTheOthersBefore) {
  game.draw(three_left);
  desktop.answers = {Answer::yes};
  hint();
  // Forgotten at the start of a run, told, left; here twice, with the placed digit between them.
  EXPECT_EQ(watcher.sizes, (std::vector<std::size_t>{0, 1, 1, 0, 0, 1, 1}));
  EXPECT_EQ(explanation().picture(), std::nullopt);
  w.choose_step(0);
  EXPECT_EQ(explanation().picture()->cells(1, 8).value, 8);
}

TEST_F(ExplanationOfAHint, TheNextHintForgetsThemBeforeItBegins) {
  game.draw(three_left);
  hint();
  watcher.sizes.clear();
  hint();
  EXPECT_EQ(watcher.sizes, (std::vector<std::size_t>{0, 1, 1}));
}

TEST_F(ExplanationOfAHint, TellsEveryEnd) {
  const auto last_event = [&](const char* grid) {
    game.draw(grid);
    hint();
    EXPECT_EQ(texts().size(), explanation().size());
    EXPECT_EQ(state_fault(w), "");
    return solver.hint->events().back().kind;
  };
  EXPECT_EQ(last_event(complete_grid), EventKind::completed);
  EXPECT_EQ(last_event(dead_grid), EventKind::dead);
  EXPECT_EQ(last_event(empty_grid), EventKind::exhausted);
}

TEST_F(ExplanationOfAHint, PointsAtTheOfferUntilItIsAnswered) {
  game.draw(three_left);
  std::vector<Mark> at_question;
  const auto look = [&] { at_question.push_back(explanation().outcome()->cells(1, 8).mark); };
  desktop.at_box = [&](const Box&) {
    look();
    w.choose_step(0);
    w.choose_step(std::nullopt);
    look();
  };
  hint();
  EXPECT_EQ(at_question, (std::vector<Mark>{Mark::support, Mark::support}));
  EXPECT_FALSE(explanation().outcome());
  hint();
  EXPECT_EQ(at_question.size(), 4u) << "asked again, it is pointed at again";
}

TEST_F(ExplanationOfAHint, PointsAtADeadCellUntilTheGridChanges) {
  game.draw(dead_grid);
  hint();
  ASSERT_TRUE(explanation().outcome());
  EXPECT_EQ(explanation().outcome()->cells(1, 9).mark, Mark::removed);
  game.select(5, 5);
  game.press('5');
  EXPECT_FALSE(explanation().outcome());
}

TEST_F(ExplanationOfAHint, PointsAtNothingAtItsOtherEnds) {
  EXPECT_FALSE(explanation().outcome());
  for (const char* grid : {complete_grid, empty_grid}) {
    game.draw(grid);
    hint();
    EXPECT_FALSE(explanation().outcome());
  }
}

TEST_F(ExplanationOfAHint, StandsBehindTheBoxThatTellsTheEnd) {
  std::size_t at_box = 0;
  desktop.at_box = [&](const Box&) { at_box = explanation().size(); };
  for (const char* grid : {complete_grid, empty_grid}) {
    game.draw(grid);
    at_box = 0;
    hint();
    EXPECT_EQ(at_box, 1u);
  }
}

TEST_F(ExplanationOfAHint, GoesBeforeABoxTellsThatTheGridIsFull) {
  game.draw(last_left);
  hint();
  ASSERT_EQ(explanation().size(), 1u);
  std::size_t at_box = 99;
  desktop.at_box = [&](const Box&) { at_box = explanation().size(); };
  game.select(9, 9);
  game.press('5');
  EXPECT_EQ(desktop.boxes.back(), message(Message::completed, Icon::exclamation));
  EXPECT_EQ(at_box, 0u);
}

TEST_F(ExplanationOfAHint, GoesBeforeTheLastPlacementIsTold) {
  game.draw(last_left);
  desktop.answers = {Answer::yes};
  std::vector<std::size_t> at_boxes;
  desktop.at_box = [&](const Box&) { at_boxes.push_back(explanation().size()); };
  hint();
  // The question, the full grid, the end of the next run.
  EXPECT_EQ(at_boxes, (std::vector<std::size_t>{1, 0, 1}));
}

TEST_F(ExplanationOfAHint, IsInTheLanguageOfTheMoment) {
  game.draw(dead_grid);
  hint();
  const auto french = texts();
  w.preview_key(key::f1);
  EXPECT_NE(texts(), french);
  w.preview_key(key::f2);
  EXPECT_EQ(texts(), french);
}

TEST_F(ExplanationOfAHint, ShowsTheChosenOneOfSeveralSteps) {
  game.draw(grid_of_several_steps);
  hint();
  ASSERT_EQ(explanation().size(), 5u);
  for (std::size_t step = 0; step < 5; ++step) {
    w.choose_step(step);
    EXPECT_EQ(explanation().picture(), picture_of(solver.hint->events()[step]));
    EXPECT_EQ(state_fault(w), "");
  }
}

TEST_F(ExplanationOfAHint, AStepThatIsNotThereIsNone) {
  game.draw(three_left);
  hint();
  w.choose_step(0);
  EXPECT_EQ(explanation().chosen(), 0u);
  EXPECT_EQ(explanation().picture(), picture_of(solver.hint->events().front()));
  w.choose_step(1);
  EXPECT_FALSE(explanation().chosen());
}

TEST_F(ExplanationOfAHint, AChoiceLeavesTheGridsAndTheirMarksAlone) {
  game.draw(three_left);
  for (const bool shown : {true, false}) {
    w.check(Control::Check2, shown);
    hint();
    const std::string before = dump(w);
    w.choose_step(0);
    EXPECT_EQ(difference(before, dump(w)), "");
    w.choose_step(std::nullopt);
    EXPECT_EQ(difference(before, dump(w)), "");
  }
}

TEST_F(ExplanationOfAHint, GoesWithTheResultOfASearchThatItWasAskedDuring) {
  game.draw(three_left);
  std::size_t during = 0;
  desktop.at_step = {{1, [&] { hint(); }}, {2, [&] { during = explanation().size(); }}};
  w.click(Control::Bouton_GO);
  EXPECT_EQ(during, 1u);
  EXPECT_EQ(explanation().size(), 0u);
  EXPECT_EQ(state_fault(w), "");
}

TEST_F(ExplanationOfAHint, HasNothingToTellOfASingleThatNoHintFound) {
  ASSERT_FALSE(solver.hint);
  place_singleton_cache(1, 1, 5);
  EXPECT_EQ(explanation().size(), 0u);
  EXPECT_EQ(state_fault(w), "");
}

}  // namespace
}  // namespace sdk::test
