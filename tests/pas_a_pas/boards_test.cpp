// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The drawn boards once more, through the game's own tables and the marks on its candidate grid.

#include <gtest/gtest.h>

#include <sstream>

#include "pas_a_pas/techniques.hpp"
#include "pas_a_pas/view.hpp"
#include "tests/logic/board_call.hpp"
#include "tests/pas_a_pas/hint_game.hpp"

namespace sdk::test {
namespace {

/// The tables, both grids and the marks become those of the board.
void set_up(HintGame& game, const BoardFile& file, const BoardCase& board) {
  solver = {};
  solver.position = position_of(file, board);
  for (int number = 1; number <= 81; ++number) {
    const auto [row, column] = cell_at(number);
    const int value = board.cells[number].value;
    game.window.MSF.set_text(row - 1, column - 1, value == 0 ? " " : std::to_string(value));
    marque_case(row, column, 0);
    marque_case(row, column, board.cells[number].mark_before);
  }
}

/// `MSF` as text, everything that can be seen of its cells.
std::string seen_in_puzzle(const HintGame& game) {
  std::ostringstream text;
  for (int row = 0; row < 9; ++row)
    for (int column = 0; column < 9; ++column) {
      const DisplayCell& cell = game.window.MSF.cell(row, column);
      text << cell.text << ' ' << cell.text_colour << ' ' << cell.back_colour << ' '
           << cell.font_size << ' ' << cell.mark << '\n';
    }
  return text.str();
}

std::string call_differences(HintGame& game, const BoardFile& file, const BoardCase& board,
                             bool in_steps) {
  set_up(game, file, board);
  globals.ModePasAPas = in_steps;
  const std::string puzzle = seen_in_puzzle(game);
  Outcome outcome;
  outcome.fired = find_and_perform(*file.technique);
  outcome.after = solver.position;
  for (int number = 1; number <= 81; ++number)
    outcome.marks[number] = game.window.MSR.cell((number - 1) / 9, (number - 1) % 9).mark;
  std::string text = differences(file, board, outcome, in_steps);
  if (seen_in_puzzle(game) != puzzle) text += "MSF has changed\n";
  return text;
}

TEST(BoardsInTheGame, AreRemovedAndMarkedAsDrawnAndMarkedInAHintOnly) {
  HintGame game;
  int calls = 0;
  for (const BoardFile& file : read_all_boards(BOARDS))
    for (const BoardCase& board : file.cases)
      for (const bool in_steps : {true, false}) {
        EXPECT_EQ(call_differences(game, file, board, in_steps), "")
            << file.technique->name << ": " << board.name;
        ++calls;
      }
  EXPECT_GT(calls, 400);
}

}  // namespace
}  // namespace sdk::test
