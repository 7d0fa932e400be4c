// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// W-wing: two cells p and q of the same candidates a and b, and a strong link on one of these whose
// ends see p and q. One end holds the link's digit, so p or q holds the other one.

#include <utility>

#include "logic/draft.hpp"
#include "logic/techniques/chains.hpp"
#include "logic/techniques/finders.hpp"

namespace sdk {

namespace {

struct Pair {
  int p, q;
  NineSet digits;

  CellSet cells() const { return {p, q}; }
};

struct Link {
  int e1, e2;
};

/// The ends e2 that make the link from e1 usable: they see q, and are neither p nor q.
CellSet far_ends(const Position& position, const Pair& pair, int digit, int e1) {
  return (position.links.strong.of(digit, e1) & peers_of(pair.q)) - pair.cells();
}

// Where p and q see each other they share out both digits without any link.
Deduction deduce(const Position& position, const Pair& pair, const CellSet& losers, int removed,
                 Link link) {
  Draft draft(position);
  draft.deduction.digits = pair.digits;
  for (const int cell : losers) draft.eliminate_shown(cell_at(cell), {removed});
  for (const int cell : pair.cells()) draft.support(cell_at(cell), Role::pattern, pair.digits);
  for (const int cell : {link.e1, link.e2})
    draft.support(cell_at(cell), Role::link_end, pair.digits - NineSet{removed}, Mark::second);
  for (const int cell : pair.cells()) draft.rest_on(cell_at(cell));
  if (!peers_of(pair.p).contains(pair.q))
    rest_on_link(draft, position, link.e1, link.e2, (pair.digits - NineSet{removed}).first());
  return std::move(draft).finished();
}

/// Tries every e2 for one e1. Where both digits have a usable link, neither counts.
std::optional<Deduction> find_from(const Position& position, const Pair& pair, int e1) {
  const int a = pair.digits.first(), b = (pair.digits - NineSet{a}).first();
  const CellSet ends_a = far_ends(position, pair, a, e1), ends_b = far_ends(position, pair, b, e1);
  for (const int e2 : ends_a ^ ends_b) {
    const int removed = ends_a.contains(e2) ? b : a;
    const CellSet seen = peers_of(pair.p) & peers_of(pair.q);
    const CellSet losers = (position.candidates.cells_with(removed) & seen) - CellSet{e1, e2};
    if (!losers.empty()) return deduce(position, pair, losers, removed, {e1, e2});
  }
  return std::nullopt;
}

std::optional<Deduction> find_at(const Position& position, const Pair& pair) {
  for (const int e1 : peers_of(pair.p) - pair.cells())
    if (auto found = find_from(position, pair, e1)) return found;
  return std::nullopt;
}

}  // namespace

std::optional<Deduction> find_w_wing(const Position& position) {
  const CellSet two_candidates = position.candidates.cells_counting(2);
  for (const int p : two_candidates)
    for (const int q : two_candidates) {
      const NineSet digits = position.candidates.digits(cell_at(p));
      if (p >= q || digits.count() != 2) continue;
      if (digits != position.candidates.digits(cell_at(q))) continue;
      if (auto found = find_at(position, {p, q, digits})) return found;
    }
  return std::nullopt;
}

}  // namespace sdk
