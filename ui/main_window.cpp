// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/main_window.hpp"

#include <utility>

#include "files/puzzle_file.hpp"
#include "pas_a_pas/tables.hpp"
#include "ui/version.hpp"

namespace sdk {

MainWindow::MainWindow(Desktop& desktop) : Window(desktop) {}

void MainWindow::start(const std::string& command_line) {
  run_guarded([&] {
    globals = {};
    solver = {};
    globals.TitreFenetre = program_title;
    langage(globals.Langue);
    inactive();
    set_visible(Control::Command1, true);
    set_visible(Control::Command6, true);
    set_caption(Control::Label3, globals.TitreFenetre + text_of(Message::credit));
    controls_[index(Control::Check3)].checked = true;
    prepare_grid(MSF);
    prepare_grid(MSR);
    set_visible(Control::MSR, false);
    set_visible(Control::rect2, false);
    if (command_line.empty())
      new_puzzle();
    else
      open_at_start(command_line);
  });
  history_.begin(game_state());
}

void MainWindow::open_at_start(const std::string& command_line) {
  ouvrir(command_line);
  globals.CouleurDonnees = colour::from_file;
  active();
  CreateGrille();
  opened_at_start_ = true;
}

void MainWindow::finish_start() {
  if (opened_at_start_) run_guarded([this] { solve_opened(); });
}

void MainWindow::prepare_grid(DisplayGrid& grid) {
  for (int r = 0; r < DisplayGrid::size; ++r)
    for (int c = 0; c < DisplayGrid::size; ++c) grid.set_text(r, c, " ");
}

bool MainWindow::visible(Control id) const {
  if (id == Control::MSF) return MSF.visible();
  if (id == Control::MSR) return MSR.visible();
  return control(id).visible;
}

const std::string& MainWindow::level_text() const { return level_name(globals.NiveauCourant); }

void MainWindow::active() {
  for (const Control id : {Control::Command2, Control::sauve, Control::Bouton_GO, Control::Command4,
                           Control::Command6})
    set_visible(id, true);
}

void MainWindow::inactive() {
  for (const Control id : {Control::Command2, Control::Command6, Control::sauve, Control::Bouton_GO,
                           Control::Command4})
    set_visible(id, false);
}

void MainWindow::tell_hint() {
  note_game();
  explanation_.tell(MSF);
  if (listener_) listener_->explanation_changed();
}

void MainWindow::leave_step() {
  explanation_.leave();
  if (listener_) listener_->explanation_changed();
}

void MainWindow::choose_step(std::optional<std::size_t> step) {
  explanation_.choose(step);
  if (listener_) listener_->explanation_changed();
}

void MainWindow::forget_hint() {
  explanation_.clear();
  if (listener_) listener_->explanation_changed();
}

void MainWindow::forget_outdated_hint() {
  if (explanation_.is_outdated(MSF)) forget_hint();
}

void MainWindow::searches_changed() {
  if (listener_) listener_->searches_changed();
}

void MainWindow::refresh() {
  if (listener_) listener_->refresh();
}

void MainWindow::set_focus(Control control) {
  focus_ = control;
  if (listener_) listener_->focus_changed();
}

void MainWindow::set_visible(Control control, bool visible) {
  if (control == Control::MSF) return MSF.set_visible(visible);
  if (control == Control::MSR) return MSR.set_visible(visible);
  controls_[index(control)].visible = visible;
  if (listener_) listener_->controls_changed();
}

void MainWindow::set_caption(Control control, std::string caption) {
  controls_[index(control)].caption = std::move(caption);
  if (listener_) listener_->controls_changed();
}

void MainWindow::set_tooltip(Control control, std::string tooltip) {
  controls_[index(control)].tooltip = std::move(tooltip);
  if (listener_) listener_->controls_changed();
}

void MainWindow::set_title(std::string title) {
  title_ = std::move(title);
  if (listener_) listener_->controls_changed();
}

}  // namespace sdk
