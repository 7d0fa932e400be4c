// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Undo and redo: the whole game is kept at each change of the grid, and put back.

#include <tuple>
#include <utility>

#include "board/cell_set.hpp"
#include "ui/main_window.hpp"

namespace sdk {

namespace {

/// What the window and a state of the game name alike.
template <class Owner>
auto fields_of(Owner& owner) {
  return std::tie(owner.Grille, owner.GrilleInitiale, owner.resGrille, owner.Masque,
                  owner.ChaineGrille, owner.ChaineSolution, owner.GrilleValide);
}

/// Writes the cells that differ; which cell is current and what is selected stays.
void write(const Square<SavedCell>& cells, DisplayGrid& grid) {
  HiddenWhileWorking hidden(grid);
  for (const int number : all_cells) {
    const auto [row, column] = cell_at(number);
    if (SavedCell(grid.cell(row - 1, column - 1)) != cells[number])
      grid.set_cell(row - 1, column - 1, cells[number].cell());
  }
}

}  // namespace

GameState MainWindow::game_state() const {
  GameState state;
  fields_of(state) = fields_of(*this);
  for (const int number : all_cells) {
    const auto [row, column] = cell_at(number);
    state.cells[number] = SavedCell(MSF.cell(row - 1, column - 1));
  }
  state.GrilleOk = globals.GrilleOk;
  state.title = title_;
  state.count = control(Control::Label).caption;
  for (const ControlRow& row : all_controls)
    state.buttons_shown[index(row.control)] = is_button(row.control) && visible(row.control);
  return state;
}

void MainWindow::restore(const GameState& state) {
  forget_hint();
  fields_of(*this) = fields_of(state);
  ++grid_fills;
  globals.GrilleOk = state.GrilleOk;
  write(state.cells, MSF);
  set_title(state.title);
  set_caption(Control::Label, state.count);
  for (const ControlRow& row : all_controls)
    if (is_button(row.control)) set_visible(row.control, state.buttons_shown[index(row.control)]);
  MSF.refresh();
  MajCandidats();
  trace_ligne();
}

void MainWindow::note_game() {
  GameState now = game_state();
  // Until a search is over the integer grids hold its tries, which nobody wants back.
  if (searches_running > 0 && now.has_texts_of(history_.present())) return;
  if (history_.note(std::move(now)) && listener_) listener_->controls_changed();
}

void MainWindow::undo() {
  run_guarded([this] {
    if (searches_running == 0 && can_undo()) restore(history_.undo());
  });
}

void MainWindow::redo() {
  run_guarded([this] {
    if (searches_running == 0 && can_redo()) restore(history_.redo());
  });
}

}  // namespace sdk
