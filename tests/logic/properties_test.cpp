// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What holds of every finder and every run, over puzzles of every kind. HINT_GRIDS in the
// environment says from how many grids they are made, six puzzles a grid.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "board/grid_text.hpp"
#include "logic/position_check.hpp"
#include "logic/run.hpp"
#include "tests/support/puzzle_generator.hpp"
#include "tests/support/solution_counter.hpp"
#include "tests/support/wanted_count.hpp"
#include "tools/walk/play.hpp"

namespace sdk::test {
namespace {

const std::vector<Puzzle>& puzzles() {
  static const auto all = [] {
    PuzzleGenerator generator(20260101);
    std::vector<Puzzle> list;
    for (int left = wanted_count("HINT_GRIDS", 10); left > 0; --left)
      for (Puzzle& puzzle : generator.next()) list.push_back(std::move(puzzle));
    return list;
  }();
  return all;
}

bool are_within(const CandidateCube& some, const CandidateCube& all) {
  for (int cell = 1; cell <= 81; ++cell)
    if (!all.digits(cell_at(cell)).contains_all(some.digits(cell_at(cell)))) return false;
  return true;
}

/// What the deduction says of one cell.
NineSet removed_from(const Deduction& deduction, int cell) {
  NineSet digits;
  for (int digit = 1; digit <= 9; ++digit)
    if (deduction.losers_of(digit).contains(cell)) digits.insert(digit);
  return digits;
}

/// The flags after are those before without what the deduction removes, which all stood there.
bool removes_exactly(const Deduction& deduction, const CandidateCube& before,
                     const CandidateCube& after) {
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    const NineSet removed = removed_from(deduction, number);
    if (!before.digits(cell).contains_all(removed)) return false;
    if (after.digits(cell) != before.digits(cell) - removed) return false;
    if (after.value(cell) != before.value(cell) || after.count(cell) != before.count(cell))
      return false;
  }
  return true;
}

/// The position with its links, and with pairs that solved cells might have had.
Position with_tables(Position position) {
  position.links = links_of(position.candidates);
  for (int cell = 2; cell <= 81; cell += 2)
    if (const int value = position.candidates.value(cell_at(cell)); value > 0)
      position.pairs[cell] = {static_cast<std::uint8_t>(value == 1 ? 1 : value - 1),
                              static_cast<std::uint8_t>(value == 1 ? 2 : value)};
  return position;
}

/// So many of the positions that runs come to, spread evenly over all of them.
std::vector<Position> positions(std::size_t wanted) {
  std::vector<Position> all, chosen;
  for (const Puzzle& puzzle : puzzles())
    play(puzzle_of(puzzle), [&](const Event& event) { all.push_back(event.before); });
  for (std::size_t i = 0; i < wanted && wanted <= all.size(); ++i)
    chosen.push_back(with_tables(all[i * all.size() / wanted]));
  return chosen;
}

/// What is wrong with a technique's answer on the position; empty when nothing is.
std::string fault_of(const Technique& technique, const Position& position) {
  Position after = position;
  const auto found = find_by(technique, position);
  if (position != after) return "the position was changed";
  if (find_by(technique, position) != found) return "a second call finds something else";
  if (!found) return "";
  apply(*found, after);
  if (!found->removes_something()) return "nothing is removed";
  if (!removes_exactly(*found, position.candidates, after.candidates))
    return "other candidates are removed than the deduction says";
  if (found->technique != &technique || !technique.rules.contains(found->rule))
    return "technique or rule are not those of the row";
  return "";
}

TEST(Finders, LeaveThePositionAloneAndSayExactlyWhatIsRemoved) {
  const std::vector<Position> all = positions(2000);
  ASSERT_EQ(all.size(), 2000u);
  std::set<std::string_view> fired;
  for (const Position& position : all)
    for (const Technique& technique : techniques) {
      ASSERT_EQ(fault_of(technique, position), "") << technique.name;
      if (technique.find(position)) fired.insert(technique.id);
    }
  EXPECT_GE(fired.size(), 12u);
}

/// Follows runs and notes the first thing that must never be.
class Judge {
 public:
  std::string fault;
  int offers = 0, ends = 0;

  void look_at(const Event& event) {
    expect(position_fault(event.before).empty(), position_fault(event.before));
    if (last_) expect(are_within(event.before.candidates, *last_), "a candidate came back");
    last_ = event.before.candidates;
    if (event.kind == EventKind::offer)
      ++offers;
    else if (event.is_last())
      ++ends;
    else
      expect(event.deduction.removes_something(), "a removal removes nothing");
    if (event.is_last()) last_.reset();
  }

 private:
  void expect(bool holds, const std::string& otherwise) {
    if (!holds && fault.empty()) fault = otherwise;
  }

  std::optional<CandidateCube> last_;
};

TEST(Runs, EndAndKeepToTheirRules) {
  for (const Puzzle& puzzle : puzzles()) {
    Judge judge;
    play(puzzle_of(puzzle), [&](const Event& event) { judge.look_at(event); });
    ASSERT_EQ(judge.fault, "") << puzzle;
    ASSERT_EQ(judge.ends, 1) << puzzle;
    ASSERT_LE(judge.offers, std::ranges::count(puzzle, '.')) << puzzle;
  }
}

TEST(Runs, EndInEveryWayAndUseTheCommonTechniques) {
  std::set<EventKind> kinds;
  std::set<std::string_view> used;
  for (const Puzzle& puzzle : puzzles())
    play(puzzle_of(puzzle), [&](const Event& event) {
      kinds.insert(event.kind);
      if (event.deduction.technique) used.insert(event.deduction.technique->id);
    });
  EXPECT_EQ(kinds.size(), 5u);
  for (const char* id : {"naked_single", "hidden_single", "pointing_rows", "pointing_columns",
                         "box_line_rows", "box_line_columns", "naked_pair", "hidden_pair"})
    EXPECT_TRUE(used.contains(id)) << id;
}

// The puzzles themselves

TEST(Puzzles, AreOfEveryKind) {
  const std::vector<Puzzle>& list = puzzles();
  ASSERT_FALSE(list.empty());
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
