// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/proofs/implication.hpp"

#include <algorithm>
#include <set>

namespace sdk::proofs {

namespace {

Digits only(int digit) { return Digits().set(static_cast<std::size_t>(digit)); }

/// What each cell may still hold, by cell.
using Open = std::array<Digits, cell_count>;

Digits& at(Open& open, int cell) { return open[static_cast<std::size_t>(cell)]; }
const Digits& at(const Open& open, int cell) { return open[static_cast<std::size_t>(cell)]; }

bool allows(const Open& open, int cell, int digit) {
  return at(open, cell).test(static_cast<std::size_t>(digit));
}

bool holds(const Open& open, int cell, int digit) { return at(open, cell) == only(digit); }

/// Two ways on of which every filling goes exactly one: the cell holds the digit, or it does not.
struct Choice {
  int cell = -1;
  int digit = 0;
};

class Ways {
 public:
  Ways(const Premises& premises, int cell, const Digits& digits) {
    open_.fill(all_digits());
    at(open_, cell) = digits;
    named_.insert(cell);
    for (const Premise& premise : premises) std::visit([&](const auto& p) { add(p); }, premise);
  }

  bool exist() const { return exist(open_); }

 private:
  void add(const CellPremise& premise) {
    at(open_, premise.cell) &= premise.digits;
    named_.insert(premise.cell);
  }

  void add(const UnitPremise& premise) {
    units_.push_back(premise);
    named_.insert(premise.cells.begin(), premise.cells.end());
  }

  void add(const UniquePremise& premise) {
    rectangles_.push_back(premise);
    named_.insert(premise.corners.begin(), premise.corners.end());
  }

  bool exist(Open open) const {
    if (!narrow(open)) return false;
    const Choice choice = next_choice(open);
    if (choice.cell < 0) return true;
    Open without = open;
    at(open, choice.cell) = only(choice.digit);
    if (exist(open)) return true;
    at(without, choice.cell) &= ~only(choice.digit);
    return exist(without);
  }

  /// Takes away what cannot be until nothing changes; false when a premise or a cell is beyond
  /// being met.
  bool narrow(Open& open) const {
    for (Open before{}; before != open;) {
      before = open;
      for (const int cell : named_)
        if (!spread(open, cell)) return false;
      for (const UnitPremise& unit : units_)
        if (!settle(open, unit)) return false;
    }
    return std::ranges::none_of(rectangles_,
                                [&](const UniquePremise& p) { return is_crosswise(open, p); });
  }

  /// A cell with one digit left takes it from those that it sees.
  bool spread(Open& open, int cell) const {
    if (at(open, cell).count() == 1)
      for (const int other : named_)
        if (see_each_other(cell, other)) at(open, other) &= ~at(open, cell);
    return at(open, cell).any();
  }

  static bool settle(Open& open, const UnitPremise& unit) {
    std::vector<int> places = unit.cells;
    std::erase_if(places, [&](int cell) { return !allows(open, cell, unit.digit); });
    if (places.size() == 1) at(open, places[0]) = only(unit.digit);
    return !places.empty();
  }

  /// Corners are ascending: the outer two lie on one diagonal, the inner two on the other.
  static bool is_crosswise(const Open& open, const UniquePremise& p) {
    const auto is_filled = [&](int outer, int inner) {
      return holds(open, p.corners[0], outer) && holds(open, p.corners[3], outer) &&
             holds(open, p.corners[1], inner) && holds(open, p.corners[2], inner);
    };
    return is_filled(p.low, p.high) || is_filled(p.high, p.low);
  }

  /// Where the fewest ways lead on, be it from a cell or from a premise about a unit.
  Choice next_choice(const Open& open) const {
    std::size_t fewest = 10;
    Choice best;
    for (const int cell : named_) consider(open, cell, fewest, best);
    for (const UnitPremise& unit : units_) consider(open, unit, fewest, best);
    return best;
  }

  static void consider(const Open& open, int cell, std::size_t& fewest, Choice& best) {
    const std::size_t ways = at(open, cell).count();
    if (ways == 1 || ways >= fewest) return;
    fewest = ways;
    best.cell = cell;
    best.digit = 1;
    while (!allows(open, cell, best.digit)) ++best.digit;
  }

  static void consider(const Open& open, const UnitPremise& unit, std::size_t& fewest,
                       Choice& best) {
    std::size_t ways = 0;
    int last = -1;
    for (const int cell : unit.cells) {
      if (holds(open, cell, unit.digit)) return;
      if (!allows(open, cell, unit.digit)) continue;
      ++ways;
      last = cell;
    }
    if (ways >= fewest) return;
    fewest = ways;
    best = {last, unit.digit};
  }

  std::set<int> named_;
  Open open_;
  std::vector<UnitPremise> units_;
  std::vector<UniquePremise> rectangles_;
};

}  // namespace

bool has_a_way(const Premises& premises, int cell, const Digits& digits) {
  return Ways(premises, cell, digits).exist();
}

bool is_excluded(const Premises& premises, const CellDigit& candidate) {
  return !has_a_way(premises, candidate.cell, only(candidate.digit));
}

bool is_forced(const Premises& premises, const CellDigit& placed) {
  return !has_a_way(premises, placed.cell, all_digits() & ~only(placed.digit));
}

}  // namespace sdk::proofs
