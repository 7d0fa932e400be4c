// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// W-wing: two cells p and q of the same candidates a and b, and a strong link on one of these whose
// ends see p and q. One end holds the link's digit, so p or q holds the other one.

#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

struct Pair {
  int p, q;
  NineSet digits;
};

CellSet without(CellSet cells, int cell1, int cell2) {
  cells.erase(cell1);
  cells.erase(cell2);
  return cells;
}

/// The ends e2 that make the link from e1 usable: they see q, and are neither p nor q.
CellSet far_ends(const Pair& pair, int digit, int e1) {
  return without(solver.LienFort.of(digit, e1) & peers_of(pair.q), pair.p, pair.q);
}

void remove_from(const Pair& pair, const CellSet& losers, int removed, int e1, int e2) {
  solver.step.digits = pair.digits;
  for (const int cell : losers) eliminate_shown(cell_at(cell), {removed});
  for (const int cell : {pair.p, pair.q}) support(cell_at(cell), Role::pattern, pair.digits);
  for (const int cell : {e1, e2})
    support(cell_at(cell), Role::link_end, pair.digits - NineSet{removed}, mark::second);
}

/// Tries every e2 for one e1. Where both digits have a usable link, neither counts.
bool fires_from(const Pair& pair, int e1) {
  const int a = pair.digits.first(), b = (pair.digits - NineSet{a}).first();
  const CellSet ends_a = far_ends(pair, a, e1), ends_b = far_ends(pair, b, e1);
  for (const int e2 : ends_a ^ ends_b) {
    const int removed = ends_a.contains(e2) ? b : a;
    const CellSet seen = peers_of(pair.p) & peers_of(pair.q);
    const CellSet losers = without(solver.Candidats.cells_with(removed) & seen, e1, e2);
    if (losers.empty()) continue;
    remove_from(pair, losers, removed, e1, e2);
    return true;
  }
  return false;
}

bool fires_on(const Pair& pair) {
  for (const int e1 : without(peers_of(pair.p), pair.p, pair.q))
    if (fires_from(pair, e1)) return true;
  return false;
}

}  // namespace

Bool16 aile_w() {
  const CellSet two_candidates = solver.Candidats.cells_counting(2);
  for (const int p : two_candidates)
    for (const int q : two_candidates) {
      const NineSet digits = solver.Candidats.digits(cell_at(p));
      if (p >= q || digits != solver.Candidats.digits(cell_at(q))) continue;
      if (fires_on({p, q, digits})) return true;
    }
  return false;
}

}  // namespace sdk
