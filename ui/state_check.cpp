// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/state_check.hpp"

#include <algorithm>
#include <string_view>

#include "board/grid_text.hpp"
#include "ui/messages.hpp"

namespace sdk {

namespace {

/// Collects the first fault only; what follows it is usually its consequence.
class Check {
 public:
  void expect(bool holds, const std::string& what) {
    if (!holds && fault_.empty()) fault_ = what;
  }
  std::string fault() && { return std::move(fault_); }

 private:
  std::string fault_;
};

std::string cell_name(std::string_view grid, int row, int column) {
  return std::string(grid) + ' ' + name_of(Cell{row, column});
}

bool is_between(int value, int low, int high) { return value >= low && value <= high; }

bool all_digits(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

void check_puzzle_cell(Check& check, const DisplayGrid& grid, int row, int column) {
  const DisplayCell& cell = grid.cell(row - 1, column - 1);
  const std::string name = cell_name("MSF", row, column);
  check.expect(cell.text.size() <= 1, name + " holds more than one character");
  check.expect(cell.text_colour == colour::black || cell.text_colour == colour::green ||
                   cell.text_colour == colour::red,
               name + " has an unknown text colour");
  check.expect(!cell.wrong || cell.text_colour == colour::red, name + " is wrong but not red");
  check.expect(cell.back_colour == colour::white || cell.back_colour == colour::from_file ||
                   std::ranges::count(colour::level, cell.back_colour) == 1,
               name + " has an unknown background");
}

void check_cells(Check& check, const MainWindow& w) {
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) {
      check_puzzle_cell(check, w.MSF, r, c);
      check.expect(is_between(w.MSR.cell(r - 1, c - 1).mark, 0, 6),
                   cell_name("MSR", r, c) + " has an unknown mark");
      check.expect(is_between(w.Grille(r, c), 0, 9), cell_name("Grille", r, c) + " out of range");
      check.expect(is_between(w.GrilleInitiale(r, c), 0, 9),
                   cell_name("GrilleInitiale", r, c) + " out of range");
      check.expect(is_between(w.resGrille(r, c), 0, 9),
                   cell_name("resGrille", r, c) + " out of range");
    }
}

void check_chains(Check& check, const MainWindow& w) {
  check.expect(w.ChaineSolution.size() <= 81, "ChaineSolution is too long");
  check.expect(all_digits(w.ChaineSolution), "ChaineSolution holds more than digits");
}

void check_globals(Check& check, const Globals& g) {
  check.expect(is_between(g.NiveauCourant, 0, 4), "NiveauCourant out of range");
  check.expect(g.CouleurDonnees == colour::from_file ||
                   std::ranges::count(colour::level, g.CouleurDonnees) == 1,
               "CouleurDonnees is no colour of givens");
  check.expect(g.Langue == "Fr" || g.Langue == "En", "Langue is unknown");
  check.expect(g.Messages == messages_in(g.Langue), "Messages differ from Langue");
  check.expect(!g.ResolutionSilencieuse, "ResolutionSilencieuse outlived its solve");
}

void check_controls(Check& check, const MainWindow& w, const Globals& g) {
  check.expect(w.MSF.visible(), "MSF stayed hidden");
  check.expect(w.MSR.visible() == bool(g.AfficheCandidats), "MSR is not as Check2 says");
  check.expect(w.visible(Control::rect2) == w.MSR.visible(), "rect2 is not as MSR");
  check.expect(w.control(Control::Check1).checked == bool(w.VerifAuVol), "Check1 differs");
  check.expect(w.control(Control::Check2).checked == bool(g.AfficheCandidats), "Check2 differs");
  check.expect(w.control(Control::Check3).checked == bool(g.ProtegeGrille), "Check3 differs");
  check.expect(w.visible(Control::Command1), "Command1 is hidden");
  check.expect(w.levels().size() == 5, "Niveau has lost its items");
  check.expect(w.searches_running == 0, "a search is still counted");
  check.expect(w.MSF.tab_stop() && w.MSF.marks_current(), "MSF stayed without focus marks");
  check.expect(w.lines().size() == (w.MSR.visible() ? 8u : 4u), "box lines are missing");
}

void check_explanation(Check& check, const MainWindow& w) {
  const std::string fault = w.explanation().fault(w.MSF);
  check.expect(fault.empty(), fault);
}

}  // namespace

std::string state_fault(const MainWindow& window) {
  Check check;
  check_cells(check, window);
  check_chains(check, window);
  check_globals(check, globals);
  check_controls(check, window, globals);
  check_explanation(check, window);
  return std::move(check).fault();
}

}  // namespace sdk
