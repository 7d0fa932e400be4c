// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// XY-wing, XYZ-wing and W-wing.

#include "explanations/claims.hpp"
#include "explanations/tellers.hpp"

namespace sdk {

namespace {

/// A pivot, the pincers that the deduction rests on, and the digit that one of them must be.
struct Wing {
  Cell pivot;
  NineSet pivot_digits;
  std::vector<CellHolds> pincers;
  int digit;

  explicit Wing(const Deduction& deduction)
      : pivot(cell_at(*deduction.cells_as(Role::pivot).begin())),
        pivot_digits(deduction.digits),
        pincers(premises_of<CellHolds>(deduction)),
        digit(removed_digits(deduction).first()) {
    std::erase_if(pincers, [&](const CellHolds& fact) { return fact.cell == pivot; });
  }

  NineSet alternatives() const { return pivot_digits - NineSet{digit}; }
  bool may_be_pivot() const { return pivot_digits.contains(digit); }
  CellSet pincers_with(int alternative) const {
    CellSet cells;
    for (const CellHolds& fact : pincers)
      if (fact.digits.contains(alternative)) cells.insert(fact.cell);
    return cells;
  }
  /// One pincer for each alternative, and the pivot if it may be it, that the target sees.
  CellSet seen_by(int target) const {
    CellSet seen;
    if (may_be_pivot()) seen.insert(pivot);
    for (const int alternative : alternatives())
      seen.insert(*(pincers_with(alternative) & peers_of(target)).begin());
    return seen;
  }
};

/// Of the pivot: "if it is 6, r5c2 is 2; if it is 9, r2c5 is 2".
std::string consequences(const Words& words, const Wing& wing) {
  std::vector<std::string> clauses;
  for (const int alternative : wing.alternatives()) {
    const CellSet pincers = wing.pincers_with(alternative);
    clauses.push_back(words.say(pincers.count() == 1
                                    ? Text{"si elle est %1, %2 est %3", "if it is %1, %2 is %3"}
                                    : Text{"si elle est %1, %2 sont %3", "if it is %1, %2 are %3"},
                                alternative, words.all_of(pincers), wing.digit));
  }
  if (wing.may_be_pivot())
    clauses.push_back(words.say({"sinon elle est %1", "otherwise it is %1"}, wing.digit));
  return words.listed(clauses);
}

}  // namespace

std::string tell_pivot_wing(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  const Wing wing(deduction);
  const Text any_case = wing.may_be_pivot() ? Text{"Dans tous les cas", "In any case"}
                                            : Text{"Dans les deux cas", "Either way"};
  return words.say({"%1. %2 voit les autres : %3. %4, %5.", "%1. %2 sees the others: %3. %4 %5."},
                   can_only_be(words, premises_of<CellHolds>(deduction)), wing.pivot,
                   consequences(words, wing), words.say(any_case),
                   who_sees(words, deduction, losers(deduction),
                            [&](int target) { return wing.seen_by(target); }));
}

namespace {

/// The end of the link that the cell of the pair sees while the other cell sees the other end.
Cell end_for(const CellSet& ends, int cell, int other) {
  const int first = *ends.begin(), last = *(ends - CellSet{first}).begin();
  const bool sees_first = peers_of(cell).contains(first) && peers_of(other).contains(last);
  return cell_at(sees_first ? first : last);
}

/// "In r4c1 it makes r1c1 a 5; in r4c5 it makes r2c5 a 5. Either way"
std::string link_consequences(const Words& words, const DigitInUnit& link, int p, int q,
                              int removed) {
  const Cell end_p = end_for(link.cells, p, q);
  const Cell end_q = cell_at(*(link.cells - CellSet{end_p.number()}).begin());
  return words.say({"%1. En %2, il fait de %3 %6 ; en %4, il fait de %5 %6. Dans les deux cas,",
                    "%1. In %2 it makes %3 %6; in %4 it makes %5 %6. Either way"},
                   capital(in_their_units(words, {link})), end_p, cell_at(p), end_q, cell_at(q),
                   words.a(removed));
}

}  // namespace

std::string tell_w_wing(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  const CellSet& pair = deduction.cells_as(Role::pattern);
  const int removed = removed_digits(deduction).first();
  const int p = *pair.begin(), q = *(pair - CellSet{p}).begin();
  const auto links = premises_of<DigitInUnit>(deduction);
  return words.say({"%1. %2 %3.", "%1. %2 %3."},
                   can_only_be(words, premises_of<CellHolds>(deduction)),
                   links.empty() ? words.say({"Elles se voient : l'une est %1. Donc",
                                              "They see each other: one of them is %1. So"},
                                             removed)
                                 : link_consequences(words, links.front(), p, q, removed),
                   who_sees(words, deduction, losers(deduction), [&](int) { return pair; }));
}

}  // namespace sdk
