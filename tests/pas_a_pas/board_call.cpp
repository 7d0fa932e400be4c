// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/pas_a_pas/board_call.hpp"

#include <iomanip>
#include <sstream>

#include "game/window.hpp"
#include "pas_a_pas/tables.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk::test {

namespace {

using Cells = Square<DrawnCell>;

const DrawnCell& at(const Cells& cells, Cell cell) { return cells(cell.row, cell.column); }

CandidateCube cube_of(const Cells& cells) {
  CandidateCube cube;
  cube.reset();
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    const DrawnCell& drawn = at(cells, cell);
    if (drawn.value != 0) cube.fill(cell, drawn.value);
    for (const int digit : NineSet::all() - drawn.digits) cube.remove(cell, digit);
    cube.set_count(cell, drawn.count);
  }
  return cube;
}

/// `MSF` shows the values.
void show_values(DisplayGrid& grid, const Cells& cells) {
  for (int row = 1; row <= 9; ++row)
    for (int column = 1; column <= 9; ++column) {
      const int value = cells(row, column).value;
      grid.set_text(row - 1, column - 1, value == 0 ? " " : std::to_string(value));
    }
}

void set_up(const Cells& cells, bool reads_links) {
  solver = {};
  solver.Candidats = cube_of(cells);
  show_values(sudoku().MSF, cells);
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    solver.Paires(cell.row, cell.column) = at(cells, cell).pair;
    marque_case(cell.row, cell.column, at(cells, cell).mark_before);
  }
  if (reads_links) construit_liens();
}

/// How the cells are to be after the call, `prefix` being the mark that each must have.
Cells expected(const BoardFile& file, const BoardCase& board, bool in_steps) {
  Cells cells = board.cells;
  for (int number = 1; number <= 81; ++number) {
    DrawnCell& cell = cells(cell_at(number).row, cell_at(number).column);
    cell.prefix = in_steps ? cell.mark_after() : cell.mark_before;
    if (!board.fires || !file.recomputes || cell.count == 0) continue;
    cell.count = cell.digits_after().count();
    if (cell.count == 2) cell.pair = pair_of(cell.digits_after());
  }
  return cells;
}

/// The same as the call left them.
Cells found(const BoardCase& board) {
  Cells cells = board.cells;
  for (int number = 1; number <= 81; ++number) {
    const Cell position = cell_at(number);
    DrawnCell& cell = cells(position.row, position.column);
    cell.removed = cell.digits - solver.Candidats.digits(position);
    cell.digits = cell.digits | solver.Candidats.digits(position);
    cell.value = solver.Candidats.value(position);
    cell.count = solver.Candidats.count(position);
    cell.pair = solver.Paires(position.row, position.column);
    cell.prefix = sudoku().MSR.cell(position.row - 1, position.column - 1).mark;
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
        text += "r" + std::to_string(row) + "c" + std::to_string(column) + " should be " +
                words(wanted(row, column)) + "\n     but is    " + words(got(row, column)) + "\n";
  return text.empty() ? text : text + "the call did:\n" + whole_drawing(got);
}

/// The step names the removed candidates, neither more nor fewer.
bool step_tells(const Cells& cells) {
  for (int number = 1; number <= 81; ++number)
    for (int digit = 1; digit <= 9; ++digit)
      if (solver.step.removed[static_cast<std::size_t>(digit)].contains(number) !=
          at(cells, cell_at(number)).removed.contains(digit))
        return false;
  return true;
}

/// `MSF` as text, everything that can be seen of its cells.
std::string seen_in_puzzle() {
  std::ostringstream text;
  for (int row = 0; row < 9; ++row)
    for (int column = 0; column < 9; ++column) {
      const DisplayCell& cell = sudoku().MSF.cell(row, column);
      text << cell.text << ' ' << cell.text_colour << ' ' << cell.back_colour << ' '
           << cell.font_size << ' ' << cell.mark << '\n';
    }
  return text.str();
}

/// The sets that the cube keeps beside its flags agree with these.
bool sets_agree(const Cells& cells) {
  Cells after = cells;
  for (int number = 1; number <= 81; ++number) {
    DrawnCell& cell = after(cell_at(number).row, cell_at(number).column);
    cell.digits = cell.digits_after();
  }
  return solver.Candidats == cube_of(after);
}

std::string call_differences(const BoardFile& file, const BoardCase& board, bool in_steps) {
  set_up(board.cells, file.reads_links);
  globals.ModePasAPas = in_steps;
  const std::string puzzle = seen_in_puzzle();
  const bool fired = file.procedure();
  const Cells got = found(board);
  std::string text = cell_differences(expected(file, board, in_steps), got);
  if (fired != board.fires) text += fired ? "it fired\n" : "it did not fire\n";
  if (!sets_agree(got)) text += "the cube's sets disagree with its flags\n";
  if (!step_tells(board.cells)) text += "the step names other removals than the drawing\n";
  if (seen_in_puzzle() != puzzle) text += "MSF has changed\n";
  return text;
}

}  // namespace

std::string differences(const BoardFile& file, const BoardCase& board) {
  std::string text;
  for (const bool in_steps : {true, false})
    if (const std::string found = call_differences(file, board, in_steps); !found.empty())
      text += std::string("with ModePasAPas ") + (in_steps ? "true" : "false") + ":\n" + found;
  return text;
}

}  // namespace sdk::test
