// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What premises imply, against trying every filling.

#include "tests/proofs/implication.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace sdk::proofs {
namespace {

Digits digits(const std::vector<std::size_t>& all) {
  Digits set;
  for (const std::size_t digit : all) set.set(digit);
  return set;
}

TEST(Implication, ACellHoldsOneDigit) {
  const Premises premises{CellPremise{0, digits({7})}};
  EXPECT_TRUE(is_forced(premises, {0, 7}));
  EXPECT_TRUE(is_excluded(premises, {0, 8}));
  EXPECT_FALSE(is_excluded(premises, {0, 7}));
  EXPECT_FALSE(is_forced({}, {0, 7}));
}

TEST(Implication, CellsThatSeeEachOtherDiffer) {
  const Premises premises{CellPremise{0, digits({7})}};
  EXPECT_TRUE(is_excluded(premises, {8, 7}));
  EXPECT_TRUE(is_excluded(premises, {72, 7}));
  EXPECT_TRUE(is_excluded(premises, {20, 7}));
  EXPECT_FALSE(is_excluded(premises, {30, 7}));
}

TEST(Implication, EightDigitsInEightCellsLeaveTheNinthToTheNinth) {
  Premises premises;
  for (int cell = 0; cell < 8; ++cell)
    premises.emplace_back(CellPremise{cell, all_digits() & ~digits({9})});
  EXPECT_TRUE(is_forced(premises, {8, 9}));
  premises.pop_back();
  EXPECT_FALSE(is_forced(premises, {8, 9}));
}

TEST(Implication, AUnitWhoseCellsAreNotNamedHasNoSay) {
  const Premises premises{UnitPremise{"row 1", 5, {0, 1}}};
  EXPECT_TRUE(is_excluded(premises, {2, 5}));
  EXPECT_TRUE(is_excluded(premises, {9, 5}));
  EXPECT_FALSE(is_excluded(premises, {18 + 3, 5}));
  EXPECT_FALSE(is_excluded(premises, {0, 5}));
}

TEST(Implication, PremisesThatCannotBeMetImplyEverything) {
  EXPECT_TRUE(is_excluded({CellPremise{0, {}}}, {80, 1}));
  EXPECT_TRUE(is_excluded({UnitPremise{"row 1", 5, {}}}, {80, 1}));
}

TEST(Implication, OnlyTheTwoCrosswiseFillingsAreForbidden) {
  const UniquePremise rectangle{3, 8, {0, 1, 27, 28}};
  const auto filled = [&](std::size_t a, std::size_t b, std::size_t c, int d) {
    return has_a_way({rectangle, CellPremise{0, digits({a})}, CellPremise{1, digits({b})},
                      CellPremise{27, digits({c})}},
                     28, digits({static_cast<std::size_t>(d)}));
  };
  EXPECT_FALSE(filled(3, 8, 8, 3));
  EXPECT_FALSE(filled(8, 3, 3, 8));
  EXPECT_TRUE(filled(3, 8, 8, 5));
  EXPECT_TRUE(filled(4, 7, 7, 4));
}

TEST(Implication, ACornerWithoutAPremiseCanBeSettledByOthers) {
  Premises premises{UniquePremise{3, 8, {0, 1, 27, 28}}, CellPremise{1, digits({8})},
                    CellPremise{27, digits({8})}};
  EXPECT_FALSE(is_excluded(premises, {28, 3}));
  int cell = 2;
  for (const std::size_t digit : {1u, 2u, 4u, 5u, 6u, 7u, 9u})
    premises.emplace_back(CellPremise{cell++, digits({digit})});
  EXPECT_TRUE(is_excluded(premises, {28, 3}));
}

/// Some cells in two bands, so that rows, columns and boxes all matter.
const std::vector<int> few_cells{0, 1, 9, 27, 28};

class RandomPremises {
 public:
  explicit RandomPremises(std::uint32_t seed) : engine_(seed) {}

  Premises next() {
    Premises premises;
    for (const int cell : few_cells)
      if (below(2) == 0) premises.emplace_back(CellPremise{cell, some_digits()});
    for (const char* unit : {"row 1", "column 1", "box 1"})
      if (below(2) == 0) premises.emplace_back(UnitPremise{unit, below(3) + 1, some_cells(unit)});
    if (below(2) == 0) premises.emplace_back(UniquePremise{1, 2, {0, 1, 27, 28}});
    return premises;
  }

  int below(int n) { return static_cast<int>(engine_() % static_cast<unsigned>(n)); }

 private:
  Digits some_digits() {
    Digits set;
    while (set.none() || below(2) == 0) set.set(static_cast<std::size_t>(below(4) + 1));
    return set;
  }

  std::vector<int> some_cells(const char* unit) {
    std::vector<int> cells;
    for (const int cell : cells_of_unit(unit))
      if (std::ranges::find(few_cells, cell) != few_cells.end() && below(3) > 0)
        cells.push_back(cell);
    return cells;
  }

  std::mt19937 engine_;
};

using Filling = std::array<int, cell_count>;

int in(const Filling& filling, int cell) { return filling[static_cast<std::size_t>(cell)]; }

bool meets(const Filling& f, const CellPremise& p) {
  return p.digits.test(static_cast<std::size_t>(in(f, p.cell)));
}
bool meets(const Filling& f, const UnitPremise& p) {
  return std::ranges::any_of(p.cells, [&](int cell) { return in(f, cell) == p.digit; });
}
bool meets(const Filling& f, const UniquePremise& p) {
  const int a = in(f, p.corners[0]), b = in(f, p.corners[1]);
  const bool crosswise = a == in(f, p.corners[3]) && b == in(f, p.corners[2]);
  return !(crosswise && ((a == p.low && b == p.high) || (a == p.high && b == p.low)));
}

/// Whether one of all fillings of the few cells from the k-th on does it.
bool exists(Filling& filling, std::size_t k, const Premises& premises) {
  if (k == few_cells.size())
    return std::ranges::all_of(premises, [&](const Premise& premise) {
      return std::visit([&](const auto& p) { return meets(filling, p); }, premise);
    });
  int& digit = filling[static_cast<std::size_t>(few_cells[k])];
  for (digit = 1; digit <= 9; ++digit) {
    const bool differs = std::none_of(
        few_cells.begin(), few_cells.begin() + static_cast<long>(k),
        [&](int cell) { return see_each_other(cell, few_cells[k]) && in(filling, cell) == digit; });
    if (differs && exists(filling, k + 1, premises)) return true;
  }
  return false;
}

TEST(Implication, IsWhatAllFillingsSay) {
  RandomPremises random(3);
  int with_a_way = 0;
  for (int i = 0; i < 600; ++i) {
    Premises premises = random.next();
    const int cell = few_cells[static_cast<std::size_t>(random.below(5))];
    const Digits one = digits({static_cast<std::size_t>(random.below(4) + 1)});
    const bool found = has_a_way(premises, cell, one);
    premises.emplace_back(CellPremise{cell, one});
    Filling filling{};
    EXPECT_EQ(found, exists(filling, 0, premises)) << i;
    with_a_way += found;
  }
  EXPECT_GT(with_a_way, 100);
  EXPECT_LT(with_a_way, 500);
}

}  // namespace
}  // namespace sdk::proofs
