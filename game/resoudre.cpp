// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The search for the solution, run by the window.

#include <utility>

#include "board/grid_text.hpp"
#include "board/search.hpp"
#include "game/window.hpp"

namespace sdk {

namespace {

/// Counts a search as running for as long as it lives.
class CountedSearch {
 public:
  explicit CountedSearch(Window& window) : window_(window) { count(1); }
  ~CountedSearch() { count(-1); }
  CountedSearch(const CountedSearch&) = delete;
  CountedSearch& operator=(const CountedSearch&) = delete;

 private:
  void count(int more) {
    window_.searches_running += more;
    window_.searches_changed();
  }

  Window& window_;
};

/// Events may run between two steps, and a search or a read started by one of them works on the
/// same fields; it may leave the cell under test outside the grid.
void run_search(Window& w) {
  const CountedSearch counted(w);
  const SearchCursor cursor{w.NumCase, w.Ligne, w.Colonne};
  Search search(w.Grille, w.GrilleInitiale, cursor);
  unsigned fills = w.grid_fills;
  do {
    w.desktop().let_events_run();
    if (cursor.is_off_the_grid()) return;
    if (std::exchange(fills, w.grid_fills) != w.grid_fills) search.recount();
    search.step();
  } while (!cursor.is_over() && !globals.ArretDemande);
}

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
  w.show_message(Message::search_stopped, Icon::critical);
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
  w.show_message(Message::impossible, Icon::critical);
  set_focus_marks(w.MSF, true);
  w.active();
}

}  // namespace

void Window::Resoudre() {
  prepare(*this);
  run_search(*this);
  if (globals.ArretDemande) return end_stopped(*this);
  active();
  desktop_.set_pointer(Pointer::arrow);
  if (NumCase > 0)
    end_solved(*this);
  else
    end_impossible(*this);
}

}  // namespace sdk
