// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A grid with the candidates of its cells, and what follows from them at once.
#pragma once

#include <algorithm>
#include <optional>

#include "cells.hpp"
#include "lines.hpp"
#include "units.hpp"

namespace zolv {

/// For each cell, what a digit in it leaves to that digit.
inline constexpr auto kept_by = [] {
  Table<Cells, 81> kept;
  for (int cell = 0; cell < 81; ++cell) kept[cell] = all_but_peers(cell);
  return kept;
}();

/// What is known of a grid: for each digit (0..8 here) the cells where it can still stand.
class Board {
 public:
  Board() { std::ranges::fill(places_, Cells::all()); }

  bool can_hold(int cell, int digit) const { return places_[digit].contains(cell); }
  bool is_open(int cell) const { return !settled_.contains(cell); }
  bool solved() const { return settled_ == Cells::all(); }

  /// The candidates that are left in all cells.
  int candidates() const {
    int count = 0;
    for (const Cells& places : places_) count += places.count();
    return count;
  }

  void take(int digit, int cell) { places_[digit] -= Cells::only(cell); }

  /// Takes every other digit out of `cell`.
  void leave_only(int digit, int cell) {
    for (int other = 0; other < 9; ++other)
      if (other != digit) take(other, cell);
  }

  Board with(int digit, int cell) const {
    Board changed = *this;
    changed.leave_only(digit, cell);
    return changed;
  }

  /// Draws all conclusions from cells with one candidate left, from digits with one place left in a
  /// unit, and from boxes and lines that cross. False when they contradict each other.
  bool propagate() {
    do {
      if (!settle_singles()) return false;
    } while (!solved() && narrow_by_lines());
    return true;
  }

  /// The cell to try next: with the fewest candidates and, among these, with the most to say to
  /// its peers. There must be a cell that is open.
  int most_constrained_cell() const {
    int best = 0, most = -1;
    for (Cells left = narrowest_cells(); !left.empty(); left.remove_first()) {
      const int shared = shared_candidates(left.first());
      if (shared > most) best = left.first();
      most = std::max(most, shared);
    }
    return best;
  }

  int first_candidate(int cell) const {
    int digit = 0;
    while (!can_hold(cell, digit)) ++digit;
    return digit;
  }

 private:
  /// Gives every cell with one candidate its digit, and again for what follows from it. False when
  /// a cell has no candidate.
  bool settle_naked_singles() {
    for (;;) {
      Cells one, two;
      for (const Cells& places : places_) {
        two |= one & places;
        one |= places;
      }
      if (one != Cells::all()) return false;
      const Cells fresh = one - two - settled_;
      if (fresh.empty()) return true;
      settle(fresh);
    }
  }

  /// Takes the digit of each of `cells`, which have one candidate, out of their peers.
  void settle(const Cells& cells) {
    settled_ |= cells;
    for (Cells& places : places_)
      for (Cells left = places & cells; !left.empty(); left.remove_first())
        places &= kept_by[left.first()];
  }

  /// Takes every digit out of the cells that a box and a line that cross exclude it from; whether
  /// there were any.
  bool narrow_by_lines() {
    bool narrowed = false;
    for (Cells& places : places_) {
      const Cells left = in_use_by_lines(places);
      narrowed |= left != places;
      places = left;
    }
    return narrowed;
  }

  /// Draws all conclusions from naked and hidden singles.
  bool settle_singles() {
    std::optional<Cells> isolated;
    do {
      if (!settle_naked_singles()) return false;
      isolated = isolate_hidden_singles();
    } while (isolated && !isolated->empty());
    return isolated.has_value();
  }

  /// The cells with the fewest candidates among those with more than one. There must be one.
  Cells narrowest_cells() const {
    Table<Cells, 11> at_least{Cells::all()};
    for (const Cells& places : places_)
      for (int n = 9; n >= 1; --n) at_least[n] |= at_least[n - 1] & places;
    int n = 2;
    while (at_least[n] == at_least[n + 1]) ++n;
    return at_least[n] - at_least[n + 1];
  }

  /// How many candidates the peers of `cell` share with it.
  int shared_candidates(int cell) const {
    int shared = 0;
    for (const Cells& places : places_)
      if (places.contains(cell)) shared += (places - kept_by[cell]).count();
    return shared;
  }

  /// Takes the other digits out of every cell that is a digit's only place in a unit, and gives
  /// these cells; nothing when a digit has no place in a unit, or two digits need the same cell.
  std::optional<Cells> isolate_hidden_singles() {
    Table<Cells, 9> single;
    Cells found, contested;
    for (int digit = 0; digit < 9; ++digit) {
      const std::optional<Cells> alone = alone_in_unit(places_[digit]);
      if (!alone) return std::nullopt;
      single[digit] = *alone - settled_;
      contested |= found & single[digit];
      found |= single[digit];
    }
    if (!contested.empty()) return std::nullopt;
    for (int digit = 0; digit < 9; ++digit) places_[digit] -= found - single[digit];
    return found;
  }

  Table<Cells, 9> places_;
  Cells settled_;
};

}  // namespace zolv
