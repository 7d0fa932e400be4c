// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "solver.hpp"

#include "cells.hpp"
#include "units.hpp"

namespace zolv {

namespace {

constexpr auto kept_by = [] {
  std::array<Cells, 81> kept;
  for (int cell = 0; cell < 81; ++cell) kept[cell] = all_but_peers(cell);
  return kept;
}();

/// What is known of a grid: for each digit (0..8 here) the cells where it can still stand.
class Board {
 public:
  Board() { places_.fill(Cells::all()); }

  bool can_hold(int cell, int digit) const { return places_[digit].contains(cell); }

  /// Takes every other digit out of `cell`.
  void leave_only(int digit, int cell) {
    for (int other = 0; other < 9; ++other)
      if (other != digit) places_[other] -= Cells::only(cell);
  }

  /// Draws all conclusions from cells with one candidate left and from digits with one place left
  /// in a unit. False when they contradict each other.
  bool propagate() {
    std::optional<Cells> isolated;
    do {
      if (!settle_naked_singles()) return false;
      isolated = isolate_hidden_singles();
    } while (isolated && !isolated->empty());
    return isolated.has_value();
  }

  bool solved() const { return settled_ == Cells::all(); }

  /// The first cell with the fewest candidates among those with more than one. There must be one.
  int most_constrained_cell() const {
    std::array<Cells, 11> at_least{Cells::all()};
    for (const Cells& places : places_)
      for (int n = 9; n >= 1; --n) at_least[n] |= at_least[n - 1] & places;
    int n = 2;
    while (at_least[n] == at_least[n + 1]) ++n;
    return (at_least[n] - at_least[n + 1]).first();
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

  /// Takes the other digits out of every cell that is a digit's only place in a unit, and gives
  /// these cells; nothing when a digit has no place in a unit, or two digits need the same cell.
  std::optional<Cells> isolate_hidden_singles() {
    std::array<Cells, 9> single;
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

  std::array<Cells, 9> places_;
  Cells settled_;
};

std::optional<Board> search(Board board) {
  if (!board.propagate()) return std::nullopt;
  if (board.solved()) return board;
  const int cell = board.most_constrained_cell();
  for (int digit = 0; digit < 9; ++digit) {
    if (!board.can_hold(cell, digit)) continue;
    Board guess = board;
    guess.leave_only(digit, cell);
    if (const std::optional<Board> full = search(guess)) return full;
  }
  return std::nullopt;
}

Board board_of(const Grid& givens) {
  Board board;
  for (int cell = 0; cell < 81; ++cell)
    if (givens[cell] != 0) board.leave_only(givens[cell] - 1, cell);
  return board;
}

Grid grid_of(const Board& solved) {
  Grid grid{};
  for (int cell = 0; cell < 81; ++cell)
    for (int digit = 0; digit < 9; ++digit)
      if (solved.can_hold(cell, digit)) grid[cell] = static_cast<std::uint8_t>(digit + 1);
  return grid;
}

}  // namespace

std::optional<Grid> solve(const Grid& givens) {
  const std::optional<Board> solved = search(board_of(givens));
  if (!solved) return std::nullopt;
  return grid_of(*solved);
}

}  // namespace zolv
