// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/game/plain_search.hpp"

#include "board/grid_text.hpp"
#include "tests/game/plain_check.hpp"

namespace sdk::test {

namespace {

/// A search below this one can end before the first cell, where there is nothing to look at.
bool outside(const MainWindow& w) { return w.Ligne < 1 || w.Colonne < 1; }

void search(MainWindow& w) {
  bool forward = true;
  while (true) {
    w.desktop().let_events_run();
    if (w.Ligne >= 10 || outside(w)) break;
    std::int16_t& v = w.Grille(w.Ligne, w.Colonne);
    if (v == 0) v = 1;
    if (w.GrilleInitiale(w.Ligne, w.Colonne) != 0) {
      w.NumCase += forward ? 1 : -1;
      w.Extraire_Ligne_Colonne();
    } else if (forward) {
      if (passes(w.Grille, w.Ligne, w.Colonne)) {
        w.NumCase += 1;
        w.Extraire_Ligne_Colonne();
      } else if (v < 9) {
        v += 1;
      } else {
        forward = false;
        v = w.GrilleInitiale(w.Ligne, w.Colonne);
        w.NumCase -= 1;
        w.Extraire_Ligne_Colonne();
      }
    } else if (v < 9) {
      forward = true;
      v += 1;
    } else {
      v = 0;
      w.NumCase -= 1;
      w.Extraire_Ligne_Colonne();
    }
    if (w.NumCase == 82 || w.NumCase < 1 || globals.ArretDemande) break;
  }
}

void restore_settings(MainWindow& w) {
  w.MSF.set_tab_stop(true);
  w.MSF.set_marks_current(true);
}

void solved(MainWindow& w) {
  restore_settings(w);
  globals.GrilleOk = true;
  if (!globals.ResolutionSilencieuse) {
    w.Afficher_resGrille();
  } else {
    w.ChaineSolution = digits_of(w.Grille);
  }
  w.MSF.refresh();
  w.MajCandidats();
  w.trace_ligne();
}

}  // namespace

void plain_resoudre(MainWindow& w) {
  w.Lire_Grille_Initiale(0, 0);
  w.NumCase = 1;
  w.Extraire_Ligne_Colonne();
  w.desktop().set_pointer(Pointer::hourglass);
  w.MSF.set_tab_stop(false);
  w.MSF.set_marks_current(false);
  w.set_visible(Control::Command1, true);
  w.set_visible(Control::Command6, true);
  w.refresh();
  w.trace_ligne();
  globals.ArretDemande = false;

  ++w.searches_running;
  search(w);
  --w.searches_running;

  if (globals.ArretDemande) {
    w.show_message(Message::search_stopped, Icon::critical);
    restore_settings(w);
    w.desktop().set_pointer(Pointer::arrow);
    return;
  }
  w.active();
  w.desktop().set_pointer(Pointer::arrow);
  if (w.NumCase > 0) {
    solved(w);
  } else {
    w.show_message(Message::impossible, Icon::critical);
    restore_settings(w);
    w.active();
  }
}

}  // namespace sdk::test
