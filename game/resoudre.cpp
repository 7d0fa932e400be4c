// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The depth-first search over the 81 cells in row-major order.

#include "board/grid_text.hpp"
#include "board/unit_counts.hpp"
#include "game/window.hpp"

namespace sdk {

namespace {

/// One search over the window's fields. Events may run between two steps, and a search or a read
/// started by one of them works on the same fields; this search then goes on from what it finds.
class Search {
 public:
  explicit Search(Window& window) : w_(window) { ++w_.searches_running; }
  ~Search() { --w_.searches_running; }
  Search(const Search&) = delete;
  Search& operator=(const Search&) = delete;

  void run() {
    recount();
    do {
      w_.desktop().let_events_run();
      if (ended_elsewhere()) return;
      if (fills_ != w_.grid_fills) recount();
      step();
    } while (w_.NumCase != 82 && w_.NumCase >= 1 && !globals.ArretDemande);
  }

 private:
  enum class Direction { forward, backward };

  /// A nested search may have left the cell under test outside the grid.
  bool ended_elsewhere() const { return w_.Ligne >= 10 || w_.Ligne < 1 || w_.Colonne < 1; }

  void recount() {
    fills_ = w_.grid_fills;
    counts_.count(w_.Grille);
  }

  void go_to(int cell) {
    w_.NumCase = cell;
    w_.Extraire_Ligne_Colonne();
  }

  void put(int value) {
    std::int16_t& cell = w_.Grille(w_.Ligne, w_.Colonne);
    counts_.replace(w_.Ligne, w_.Colonne, cell, value);
    cell = value;
  }

  void step() {
    if (w_.Grille(w_.Ligne, w_.Colonne) == 0) put(1);
    if (w_.GrilleInitiale(w_.Ligne, w_.Colonne) != 0)
      go_to(w_.NumCase + (direction_ == Direction::forward ? 1 : -1));
    else if (direction_ == Direction::forward)
      step_forward(w_.Grille(w_.Ligne, w_.Colonne));
    else
      step_backward(w_.Grille(w_.Ligne, w_.Colonne));
  }

  void step_forward(int value) {
    if (counts_.only_here(w_.Ligne, w_.Colonne, value))
      go_to(w_.NumCase + 1);
    else if (value < 9)
      put(value + 1);
    else
      retreat();
  }

  void step_backward(int value) {
    if (value < 9) {
      direction_ = Direction::forward;
      put(value + 1);
    } else {
      retreat();
    }
  }

  void retreat() {
    direction_ = Direction::backward;
    put(0);
    go_to(w_.NumCase - 1);
  }

  Window& w_;
  UnitCounts counts_;
  Direction direction_ = Direction::forward;
  unsigned fills_ = 0;
};

void set_focus_marks(DisplayGrid& grid, bool on) {
  grid.set_tab_stop(on);
  grid.set_marks_current(on);
}

void prepare(Window& w) {
  w.Lire_Grille_Initiale(0, 0);
  w.NumCase = 1;
  w.Extraire_Ligne_Colonne();
  w.desktop().set_pointer(Pointer::hourglass);
  set_focus_marks(w.MSF, false);
  w.set_visible(Control::Command1, true);
  w.set_visible(Control::Command6, true);
  w.refresh();
  w.trace_ligne();
  globals.ArretDemande = false;
}

void end_stopped(Window& w) {
  w.show_message(23, Icon::critical);
  set_focus_marks(w.MSF, true);
  w.desktop().set_pointer(Pointer::arrow);
}

void end_solved(Window& w) {
  set_focus_marks(w.MSF, true);
  globals.GrilleOk = true;
  if (globals.ResolutionSilencieuse)
    w.ChaineSolution = digits_of(w.Grille);
  else
    w.Afficher_resGrille();
  w.MSF.refresh();
  w.MajCandidats();
  w.trace_ligne();
}

void end_impossible(Window& w) {
  w.show_message(13, Icon::critical);
  set_focus_marks(w.MSF, true);
  w.active();
}

}  // namespace

void Window::Resoudre() {
  prepare(*this);
  Search(*this).run();
  if (globals.ArretDemande) return end_stopped(*this);
  active();
  desktop_.set_pointer(Pointer::arrow);
  if (NumCase > 0)
    end_solved(*this);
  else
    end_impossible(*this);
}

}  // namespace sdk
