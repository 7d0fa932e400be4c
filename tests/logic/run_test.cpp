// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// A run from its start to each of its ends: rounds, the order of what is tried, what is kept.

#include "logic/run.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "board/grid_text.hpp"

namespace sdk::test {
namespace {

// Techniques that only note that they were asked.

std::vector<std::string> asked;

template <char name>
std::optional<Deduction> find_nothing(const Position&) {
  asked.emplace_back(1, name);
  return std::nullopt;
}

/// Takes the smallest candidate of the first cell of three or more, and fires twice at most.
std::optional<Deduction> find_twice(const Position& position) {
  asked.emplace_back("twice");
  if (std::ranges::count(asked, "twice") > 2) return std::nullopt;
  Deduction deduction;
  for (int number = 1; number <= 81; ++number) {
    const NineSet digits = position.candidates.digits(cell_at(number));
    if (digits.count() < 3) continue;
    deduction.removed[static_cast<std::size_t>(digits.first())].insert(number);
    return deduction;
  }
  return std::nullopt;
}

std::vector<std::size_t> links_seen;

/// Notes how many cells a 5 is linked to in the first cell.
std::optional<Deduction> find_links(const Position& position) {
  links_seen.push_back(static_cast<std::size_t>(position.links.strong.of(5, 1).count() +
                                                position.links.weak.of(5, 1).count()));
  return std::nullopt;
}

constexpr std::array quiet_techniques{Technique{1, "a", "a", find_nothing<'a'>},
                                      Technique{2, "b", "b", find_twice},
                                      Technique{3, "c", "c", find_nothing<'c'>}};

const std::string no_digit(81, '.');

sdk::Run run_on(const std::string& grid) { return sdk::Run(puzzle_of(grid)); }

std::vector<EventKind> kinds(sdk::Run run) {
  std::vector<EventKind> kinds;
  while (!run.is_over()) kinds.push_back(run.next().kind);
  return kinds;
}

TEST(Runs, TryTheTechniquesInTheirOrderAndBeginAgainAfterOneThatFired) {
  asked.clear();
  EXPECT_EQ(kinds(sdk::Run(open_position({}), quiet_techniques)),
            (std::vector{EventKind::removal, EventKind::removal, EventKind::exhausted}));
  EXPECT_EQ(asked, (std::vector<std::string>{"a", "twice", "a", "twice", "a", "twice", "c"}));
}

int calls = 0;

std::optional<Deduction> count_call(const Position&) {
  ++calls;
  return std::nullopt;
}

TEST(Runs, AskEveryTechniqueBeforeTheyAreExhausted) {
  std::array counting = techniques;
  for (Technique& technique : counting) technique.find = count_call;
  calls = 0;
  EXPECT_EQ(sdk::Run(open_position({}), counting).next().kind, EventKind::exhausted);
  EXPECT_EQ(calls, 20);
}

TEST(Runs, TryTechniquesByPlacesThatNeverMove) {
  std::vector<int> places;
  for (const Technique& technique : techniques) places.push_back(technique.place);
  // At 19 the links are built for the two after it.
  EXPECT_EQ(places,
            (std::vector{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 20, 21}));
}

TEST(Runs, BuildTheLinksBeforeTheFirstTechniqueThatReadsThem) {
  const std::array order{
      Technique{18, "before", "before", find_links},
      Technique{
          .place = 20, .id = "reads", .name = "reads", .find = find_links, .reads_links = true},
      Technique{21, "after", "after", find_links}};
  links_seen.clear();
  sdk::Run run(open_position({}), order);
  EXPECT_EQ(run.next().kind, EventKind::exhausted);
  EXPECT_EQ(links_seen, (std::vector<std::size_t>{0, 20, 20}));
}

TEST(Runs, AreOverAtTheFirstRoundOfAFullGridEvenWhenItBreaksTheRules) {
  EXPECT_EQ(kinds(run_on(std::string(81, '1'))), std::vector{EventKind::completed});
}

TEST(Runs, EndAtTheFirstDeadCellBeforeAnySingle) {
  std::string grid = no_digit;
  grid.replace(0, 8, "12345678");
  grid[17] = '9';
  grid.replace(30, 7, "1234567");
  sdk::Run run = run_on(grid);
  const Event& event = run.next();
  ASSERT_EQ(event.kind, EventKind::dead);
  EXPECT_EQ(*event.deduction.cells_as(Role::pattern).begin(), 9);
  EXPECT_EQ(event.deduction.highlights,
            (std::vector{Highlight{{1, 9}, Mark::removed, {}, Emphasis::support}}));
  EXPECT_TRUE(run.is_over());
}

TEST(Runs, OfferANakedSingleBeforeAHiddenOne) {
  std::string grid = no_digit;
  for (const std::size_t k : {13, 25, 37, 65}) grid[k] = '9';  // leave r1c1 the 9 of row 1
  EXPECT_EQ(run_on(grid).next().deduction.technique, &technique_named("hidden_single"));
  grid.replace(72, 8, "12345678");
  sdk::Run run = run_on(grid);
  const Event& event = run.next();
  EXPECT_EQ(event.kind, EventKind::offer);
  EXPECT_EQ(event.deduction.technique, &technique_named("naked_single"));
  EXPECT_EQ(event.deduction.placement, (Placement{{9, 9}, 9}));
  EXPECT_TRUE(event.is_last());
}

const std::string box_line_grid =
    "129.654.767491..528532..91643512...9791....252685.91.4582691743917.5.268346782591";

TEST(Runs, KeepEveryEventWithThePositionBeforeIt) {
  sdk::Run run = run_on(box_line_grid);
  while (!run.is_over()) run.next();
  const auto& events = run.events();
  ASSERT_GT(events.size(), 1u);
  for (std::size_t i = 0; i + 1 < events.size(); ++i) {
    Position next = events[i].before;
    apply(events[i].deduction, next);
    recompute(next);
    EXPECT_EQ(next.candidates, events[i + 1].before.candidates) << i;
    EXPECT_EQ(find_by(*events[i].deduction.technique, events[i].before), events[i].deduction) << i;
  }
}

TEST(Runs, AnEventLivesAsLongAsTheRun) {
  sdk::Run run = run_on(box_line_grid);
  const Event& first = run.next();
  const Deduction as_it_was = first.deduction;
  while (!run.is_over()) run.next();
  EXPECT_EQ(first.deduction, as_it_was);
  EXPECT_EQ(&first, &run.events().front());
}

TEST(Runs, StartFromAnyPositionAndRecomputeIt) {
  sdk::Run run(open_position(puzzle_of(box_line_grid)));
  EXPECT_EQ(run.next().before, run_on(box_line_grid).next().before);
}

TEST(Runs, FindTheAvoidableRectangleOnlyWhereTheFormerPairsAreKnown) {
  const Square<std::int16_t> grid = puzzle_of(
      ".54762.93.635.14272.7.43.653816279546754193824293587167.823654.5321.467..46.7523.");
  Position start = open_position(grid);
  for (const Cell cell : {Cell{5, 6}, {2, 6}, {5, 5}}) start.pairs(cell.row, cell.column) = {1, 9};
  const auto fires = [](sdk::Run run) {
    while (!run.is_over())
      if (run.next().deduction.technique == &technique_named("avoidable_rectangle")) return true;
    return false;
  };
  EXPECT_TRUE(fires(sdk::Run(start)));
  EXPECT_FALSE(fires(sdk::Run(grid)));
}

}  // namespace
}  // namespace sdk::test
