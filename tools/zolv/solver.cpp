// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "solver.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "board.hpp"

namespace zolv {

namespace {

/// A search by the most constrained cell that gives up after some boards.
class QuickSearch {
 public:
  /// A solution of `board`; nothing when there is none, or when the search gave up.
  std::optional<Board> run(Board board) {
    while (boards_left_-- > 0) {
      if (!board.propagate()) return std::nullopt;
      if (board.solved()) return board;
      const int cell = board.most_constrained_cell(), digit = board.first_candidate(cell);
      std::optional<Board> full = run(board.with(digit, cell));
      if (full || gave_up()) return full;
      board.take(digit, cell);
    }
    return std::nullopt;
  }

  bool gave_up() const { return boards_left_ < 0; }

 private:
  int boards_left_ = 1000;  // about a millisecond
};

/// Looks one step ahead: which candidates contradict what is known, and which cell splits a grid
/// into the smallest parts.
class Lookahead {
 public:
  explicit Lookahead(const Board& board) : board_(board) {}

  /// Takes out all candidates that lead to a contradiction at once. False when nothing is left.
  bool narrow() {
    if (!board_.propagate()) return false;
    do {
      narrowed_ = false;
      smallest_ = std::numeric_limits<double>::infinity();
      for (int cell = 0; cell < 81; ++cell)
        if (board_.is_open(cell) && !try_cell(cell)) return false;
    } while (narrowed_);
    return true;
  }

  const Board& board() const { return board_; }
  /// Where to split a board that narrow() left unsolved.
  int best_cell() const { return best_cell_; }

 private:
  bool try_cell(int cell) {
    double size = 0;
    for (int digit = 0; digit < 9; ++digit) {
      if (!board_.can_hold(cell, digit)) continue;
      Board next = board_.with(digit, cell);
      if (next.propagate())
        size += std::exp2(next.candidates() / 8.0);
      else if (!take(digit, cell))
        return false;
    }
    if (size < smallest_) best_cell_ = cell;
    smallest_ = std::min(smallest_, size);
    return true;
  }

  bool take(int digit, int cell) {
    narrowed_ = true;
    board_.take(digit, cell);
    return board_.propagate();
  }

  Board board_;
  bool narrowed_ = false;
  double smallest_ = 0;
  int best_cell_ = 0;
};

/// A solution of `board`. Contradictions that the quick search meets too late, again and again, are
/// seen by looking ahead; neither answers all grids fast alone.
std::optional<Board> find_solution(const Board& board) {
  QuickSearch quick;
  std::optional<Board> full = quick.run(board);
  if (!quick.gave_up()) return full;
  Lookahead lookahead(board);
  if (!lookahead.narrow()) return std::nullopt;
  if (lookahead.board().solved()) return lookahead.board();
  const int cell = lookahead.best_cell();
  for (int digit = 0; digit < 9 && !full; ++digit)
    if (lookahead.board().can_hold(cell, digit))
      full = find_solution(lookahead.board().with(digit, cell));
  return full;
}

/// A solution with a digit below `digit` in `cell`.
std::optional<Board> find_below(Board board, int cell, int digit) {
  if (board.first_candidate(cell) >= digit) return std::nullopt;
  for (int other = digit; other < 9; ++other) board.take(other, cell);
  return find_solution(board);
}

/// The first solution of `board` in row order, from any one of them: cell by cell, no solution with
/// the cells before may have a smaller digit there.
Board first_in_row_order(Board board, Board solution) {
  board.propagate();
  for (int cell = 0; cell < 81 && !board.solved(); ++cell) {
    while (const auto smaller = find_below(board, cell, solution.first_candidate(cell)))
      solution = *smaller;
    board.leave_only(solution.first_candidate(cell), cell);
    board.propagate();
  }
  return solution;
}

Board board_of(const Grid& givens) {
  Board board;
  int cell = 0;
  for (const int digit : givens) {
    if (digit != 0) board.leave_only(digit - 1, cell);
    ++cell;
  }
  return board;
}

Grid grid_of(const Board& solved) {
  Grid grid{};
  int cell = 0;
  for (std::uint8_t& digit : grid)
    digit = static_cast<std::uint8_t>(solved.first_candidate(cell++) + 1);
  return grid;
}

}  // namespace

std::optional<Grid> solve(const Grid& givens) {
  const Board board = board_of(givens);
  const std::optional<Board> solution = find_solution(board);
  if (!solution) return std::nullopt;
  return grid_of(first_in_row_order(board, *solution));
}

}  // namespace zolv
