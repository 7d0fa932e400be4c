// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/logic/board_call.hpp"

#include <iomanip>
#include <sstream>

#include "board/grid_text.hpp"
#include "logic/techniques.hpp"
#include "tests/logic/candidates.hpp"

namespace sdk::test {

namespace {

using Cells = Square<DrawnCell>;

const DrawnCell& at(const Cells& cells, Cell cell) { return cells(cell.row, cell.column); }

CandidateCube cube_of(const Cells& cells) {
  CandidateCube cube;
  cube = open_cube();
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    const DrawnCell& drawn = at(cells, cell);
    if (drawn.value != 0) fill(cube, cell, drawn.value);
    for (const int digit : NineSet::all() - drawn.digits) cube.remove(cell, digit);
    cube.set_count(cell, drawn.count);
  }
  return cube;
}

/// How the cells are to be after the call, `prefix` being the mark that each must have.
Cells expected(const BoardFile& file, const BoardCase& board, bool with_marks) {
  Cells cells = board.cells;
  for (int number = 1; number <= 81; ++number) {
    DrawnCell& cell = cells(cell_at(number).row, cell_at(number).column);
    cell.prefix = with_marks ? cell.mark_after() : cell.mark_before;
    if (!board.fires || !file.recomputes || cell.count == 0) continue;
    cell.count = cell.digits_after().count();
    if (cell.count == 2) cell.pair = pair_of(cell.digits_after());
  }
  return cells;
}

/// The same as the call left them.
Cells found(const BoardCase& board, const Outcome& outcome) {
  const auto& [fired, after, marks] = outcome;
  Cells cells = board.cells;
  for (int number = 1; number <= 81; ++number) {
    const Cell position = cell_at(number);
    DrawnCell& cell = cells(position.row, position.column);
    cell.removed = cell.digits - after.candidates.digits(position);
    cell.digits = cell.digits | after.candidates.digits(position);
    cell.value = after.candidates.value(position);
    cell.count = after.candidates.count(position);
    cell.pair = after.pairs(position.row, position.column);
    cell.prefix = marks(position.row, position.column);
  }
  return cells;
}

/// The drawing without the prefix of cells that keep their mark.
std::string drawn(DrawnCell cell) {
  if (cell.prefix == cell.mark_before) cell.prefix.reset();
  return drawing(cell);
}

std::string words(const DrawnCell& cell) {
  std::ostringstream text;
  text << drawn(cell) << " with mark " << cell.prefix.value_or(0) << ", count " << cell.count
       << ", pair " << int{cell.pair[0]} << int{cell.pair[1]};
  return text.str();
}

std::string whole_drawing(const Cells& cells) {
  std::ostringstream text;
  for (int row = 1; row <= 9; ++row) {
    for (int column = 1; column <= 9; ++column)
      text << std::left << std::setw(8) << drawn(cells(row, column))
           << (column % 3 == 0 && column < 9 ? " | " : " ");
    text << '\n';
  }
  return text.str();
}

std::string cell_differences(const Cells& wanted, const Cells& got) {
  std::string text;
  for (int row = 1; row <= 9; ++row)
    for (int column = 1; column <= 9; ++column)
      if (!(wanted(row, column) == got(row, column)))
        text += name_of(Cell{row, column}) + " should be " + words(wanted(row, column)) +
                "\n     but is    " + words(got(row, column)) + "\n";
  return text.empty() ? text : text + "the call did:\n" + whole_drawing(got);
}

/// The sets that the cube keeps beside its flags agree with these.
bool sets_agree(const CandidateCube& cube, const Cells& cells) {
  Cells after = cells;
  for (int number = 1; number <= 81; ++number) {
    DrawnCell& cell = after(cell_at(number).row, cell_at(number).column);
    cell.digits = cell.digits_after();
  }
  return cube == cube_of(after);
}

}  // namespace

Position position_of(const BoardFile& file, const BoardCase& board) {
  Position position{cube_of(board.cells), {}, {}};
  for (int number = 1; number <= 81; ++number) position.pairs[number] = board.cells[number].pair;
  if (file.technique->reads_links) position.links = links_of(position.candidates);
  return position;
}

std::string differences(const BoardFile& file, const BoardCase& board, const Outcome& outcome,
                        bool with_marks) {
  const Cells got = found(board, outcome);
  std::string text = cell_differences(expected(file, board, with_marks), got);
  if (outcome.fired != board.fires) text += outcome.fired ? "it fired\n" : "it did not fire\n";
  if (!sets_agree(outcome.after.candidates, got))
    text += "the cube's sets disagree with its flags\n";
  return text;
}

namespace {

/// Applies what was found, and draws its marks over the board's.
Outcome outcome_of(const BoardFile& file, const BoardCase& board, const Position& before,
                   const std::optional<Deduction>& found) {
  Outcome outcome{found.has_value(), before, {}};
  for (int number = 1; number <= 81; ++number)
    outcome.marks[number] = board.cells[number].mark_before;
  if (!found) return outcome;
  apply(*found, outcome.after);
  if (file.technique->ending != Ending::none) recompute(outcome.after);
  for (const Highlight& highlight : found->highlights)
    if (highlight.mark)
      outcome.marks(highlight.cell.row, highlight.cell.column) = static_cast<int>(*highlight.mark);
  return outcome;
}

}  // namespace

std::string differences(const BoardFile& file, const BoardCase& board) {
  const Position before = position_of(file, board);
  const Position untouched = before;
  const auto found = find_by(*file.technique, before);
  std::string text = differences(file, board, outcome_of(file, board, before, found), true);
  if (before != untouched) text += "the finder changed the position\n";
  if (find_by(*file.technique, before) != found) text += "it finds something else again\n";
  return text;
}

}  // namespace sdk::test
