// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What each button, check box and the level list do, and the end of the program.

#include <algorithm>
#include <exception>
#include <filesystem>
#include <functional>

#include "files/external_solver.hpp"
#include "files/puzzle_file.hpp"
#include "pas_a_pas/driver.hpp"
#include "pas_a_pas/view.hpp"
#include "puzzles/export.hpp"
#include "puzzles/library.hpp"
#include "ui/main_window.hpp"
#include "ui/version.hpp"

namespace sdk {

void MainWindow::click(Control button) {
  using Procedure = void (MainWindow::*)();
  struct Command {
    Control button;
    Procedure procedure;
  };
  static constexpr Command commands[] = {
      {Control::Command1, &MainWindow::new_puzzle}, {Control::Command2, &MainWindow::clear},
      {Control::Command3, &MainWindow::quit},       {Control::Command4, &MainWindow::print},
      {Control::Command5, &MainWindow::show_about}, {Control::Command6, &MainWindow::load},
      {Control::Command7, &MainWindow::essai},      {Control::Command8, &MainWindow::give_hint},
      {Control::sauve, &MainWindow::save},          {Control::Bouton_GO, &MainWindow::solve},
      {Control::aide, &MainWindow::open_help},
  };
  const auto* command = std::ranges::find(commands, button, &Command::button);
  if (command != std::end(commands)) run_guarded([&] { (this->*command->procedure)(); });
}

void MainWindow::check(Control box, bool on) {
  controls_[index(box)].checked = on;
  if (listener_) listener_->controls_changed();
  run_guarded([&] {
    if (box == Control::Check1) VerifAuVol = on;
    if (box == Control::Check2) show_candidates(on);
    if (box == Control::Check3) globals.ProtegeGrille = on;
  });
}

void MainWindow::show_candidates(bool shown) {
  globals.AfficheCandidats = shown;
  set_visible(Control::MSR, shown);
  set_visible(Control::rect2, shown);
  layout_ = sdk::layout(shown);
  if (listener_) listener_->layout_changed();
  MajCandidats();
  trace_ligne();
}

void MainWindow::choose_level(std::optional<int> item) {
  const bool exists = item && *item >= 0 && *item < static_cast<int>(levels_.size());
  chosen_level_ = exists ? item : std::nullopt;
  globals.NiveauCourant = exists ? levels_[static_cast<std::size_t>(*item)].level : std::int16_t{0};
  take_level_colour();
  if (listener_) listener_->controls_changed();
}

void MainWindow::take_level_colour() {
  globals.CouleurDonnees = colour::level.at(static_cast<std::size_t>(globals.NiveauCourant));
}

void MainWindow::new_puzzle() {
  forget_hint();
  set_visible(Control::Command8, true);
  {
    HiddenWhileWorking hidden(MSF);
    take_level_colour();
    Nouvelle_Grille(resGrille, Masque);
    set_title(globals.TitreFenetre);
    write_puzzle();
    active();
  }
  MSF.refresh();
  init_candidats();
  desktop().set_pointer(Pointer::arrow);
  MajCandidats();
  trace_ligne();
}

void MainWindow::write_puzzle() {
  ChaineGrille.clear();
  ChaineSolution.clear();
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) {
      const std::string digit = std::to_string(resGrille(r, c));
      MSF.make_current(r - 1, c - 1);
      MSF.set_text(Masque(r, c) ? digit : " ");
      MSF.set_back_colour(Masque(r, c) ? globals.CouleurDonnees : colour::white);
      MSF.set_text_colour(colour::black);
      ChaineSolution += digit;
      ChaineGrille += MSF.current().text;
    }
}

void MainWindow::clear() {
  globals.ResolutionSilencieuse = false;
  globals.GrilleOk = false;
  {
    HiddenWhileWorking hidden(MSF);
    set_visible(Control::Command8, globals.ProtegeGrille);
    for (int r = 0; r < DisplayGrid::size; ++r)
      for (int c = 0; c < DisplayGrid::size; ++c) {
        MSF.make_current(r, c);
        if (!globals.ProtegeGrille) MSF.set_back_colour(colour::white);
        if (!MSF.current().is_given()) MSF.set_text(" ");
      }
    maj_indices();
  }
  MSF.refresh();
  MajCandidats();
  trace_ligne();
}

void MainWindow::quit() {
  if (confirm_quit()) throw ProgramEnd{0};
  refresh();
  trace_ligne();
}

bool MainWindow::confirm_close(CloseMode mode) {
  return mode == CloseMode::session_end || confirm_quit();
}

bool MainWindow::confirm_quit() {
  const std::string question = text_of(Message::really_quit) + globals.TitreFenetre + "? ";
  return show_box(question, Icon::question, Buttons::yes_no) == Answer::yes;
}

void MainWindow::save() {
  const std::string name = desktop().save_dialog(file_filter);
  if (name.empty()) return;
  globals.ResolutionSilencieuse = false;
  Save_Grille(name);
}

void MainWindow::export_entry() { run_guarded(generate_sudoku); }

void MainWindow::load() {
  const std::string name = desktop().open_dialog(file_filter);
  if (name.empty()) return;
  forget_hint();
  set_title(globals.TitreFenetre);
  desktop().set_pointer(Pointer::hourglass);
  set_visible(Control::Command8, true);
  ouvrir(name);
  globals.CouleurDonnees = colour::from_file;
  CreateGrille();
  solve_opened();
}

void MainWindow::solve_opened() {
  globals.ResolutionSilencieuse = true;
  Bouton_GO_Click();
  globals.ResolutionSilencieuse = false;
  active();
  MSF.refresh();
  MajCandidats();
  trace_ligne();
  desktop().set_pointer(Pointer::arrow);
}

void MainWindow::solve() { Bouton_GO_Click(); }

void MainWindow::give_hint() {
  globals.ModePasAPas = true;
  suggestion();
}

void MainWindow::MajCandidats() {
  init_candidats();
  maj_candidats();
  affiche_candidats();
  MSR.refresh();
}

namespace {

/// Nothing that is opened beside the game may disturb it, whatever goes wrong.
void try_to_open(const std::function<void()>& open) {
  try {
    open();
  } catch (const std::exception&) {
  }
}

}  // namespace

void MainWindow::show_about() {
  about_.show(desktop().year());
  if (listener_) listener_->about_changed();
}

void MainWindow::click_about(AboutControl control) {
  if (!about_.shown()) return;
  if (control == AboutControl::Label1)
    try_to_open([&] { desktop().open_document(page_address); });
  else
    close_about();
}

void MainWindow::close_about() {
  if (!about_.shown()) return;
  about_.unload();
  if (listener_) listener_->about_changed();
}

void MainWindow::open_help() {
  const char* document = globals.Langue == "En" ? "Sudoku_En.pdf" : "Sudoku_Fr.pdf";
  try_to_open([&] {
    const auto path = desktop().program_folder() / document;
    // Asked for a document that is not there, some systems answer with a box of their own.
    if (std::filesystem::exists(path)) desktop().open_document(path.string());
  });
}

void MainWindow::focus_lost(Control control) {
  // What covered the lines while the button had the focus is gone.
  if (control == Control::aide) trace_ligne();
}

}  // namespace sdk
