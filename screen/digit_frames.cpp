// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "screen/digit_frames.hpp"

#include "board/cell_set.hpp"
#include "board/clashes.hpp"
#include "board/grid_text.hpp"

namespace sdk {

namespace {

const DisplayCell& shown(const DisplayGrid& puzzle, Cell cell) {
  return puzzle.cell(cell.row - 1, cell.column - 1);
}

/// 0 for none.
int digit_of(const DisplayCell& cell) { return numeric_prefix(cell.text); }

bool is_current(const DisplayGrid& puzzle, Cell cell) {
  return cell.row - 1 == puzzle.current_row() && cell.column - 1 == puzzle.current_column();
}

bool is_equal(const DisplayGrid& puzzle, Cell cell) {
  const int digit = digit_of(shown(puzzle, cell));
  return digit != 0 && digit == digit_of(puzzle.current()) && !is_current(puzzle, cell);
}

}  // namespace

bool clashes(const DisplayGrid& puzzle, Cell cell) {
  const auto digits = [&](int row, int column) { return digit_of(shown(puzzle, {row, column})); };
  return digits(cell.row, cell.column) != 0 && has_clash(digits, cell);
}

DigitFrame digit_frame(const DisplayGrid& puzzle, Cell cell) {
  if (clashes(puzzle, cell)) return DigitFrame::clash;
  return puzzle.marks_current() && is_equal(puzzle, cell) ? DigitFrame::equal : DigitFrame::none;
}

DisplayCell as_seen(const DisplayGrid& puzzle, Cell cell) {
  DisplayCell seen = shown(puzzle, cell);
  seen.wrong = seen.wrong || (seen.text_colour == colour::red && clashes(puzzle, cell));
  return seen;
}

std::vector<DisplayCell> as_seen(const DisplayGrid& puzzle) {
  std::vector<DisplayCell> cells;
  for (const int number : all_cells) cells.push_back(as_seen(puzzle, cell_at(number)));
  return cells;
}

}  // namespace sdk
