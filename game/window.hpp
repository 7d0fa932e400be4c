// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The main window `sudoku` as every folder below ui/ knows it: the fields of one game, the
/// procedures that judge and show them, and what the window above provides.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "board/bool16.hpp"
#include "board/square.hpp"
#include "game/globals.hpp"
#include "game/message.hpp"
#include "screen/controls.hpp"
#include "screen/desktop.hpp"
#include "screen/display_grid.hpp"

namespace sdk {

/// There is one window at a time. The integer grids follow the display only when
/// Lire_Grille_Initiale is called; every writer of the grid changes `MSF` first, reads it back if
/// rules are to be checked, then calls maj_indices, MajCandidats and trace_ligne.
class Window {
 public:
  /// Becomes the window that sudoku() names. `desktop` must outlive it.
  explicit Window(Desktop& desktop);
  virtual ~Window();
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  DisplayGrid MSF;  ///< the puzzle; the authority on what the board shows
  DisplayGrid MSR;  ///< the candidates

  Square<std::int16_t> Grille;          ///< working grid; 0 is empty
  Square<std::int16_t> GrilleInitiale;  ///< as last read; a search leaves its filled cells alone
  Square<std::uint8_t> resGrille;       ///< solution of the puzzle from the library
  Square<Bool16> Masque;                ///< true where that puzzle shows a given
  std::int16_t NumCase = 0;             ///< cell of the search, 1..81; outside, the search is over
  std::int16_t Ligne = 0, Colonne = 0;  ///< cell under test
  std::string ChaineGrille;             ///< the grid as text, row-major, a byte a cell
  std::string ChaineSolution;           ///< the solution's digits, row-major; may be empty
  Bool16 VerifAuVol;                    ///< typed digits are compared with the solution
  Bool16 GrilleValide;                  ///< what verify_valide found
  int searches_running = 0;             ///< nested searches; above 0 the grid takes no digits
  unsigned grid_fills = 0;              ///< how often `Grille` was filled by other than a search

  /// Sets `Ligne` and `Colonne` from `NumCase`.
  void Extraire_Ligne_Colonne();
  /// Whether the value at (`Ligne`, `Colonne`) occurs in no other cell of its row, column and box.
  Bool16 Valide() const;
  /// Sets `GrilleValide`: every filled cell of `Grille` passes Valide.
  void verify_valide();
  /// Copies `MSF` into `Grille` and `GrilleInitiale`. Any clash clears `GrilleOk` and reddens the
  /// display cell (row0, column0), 0-based, wherever the clash is.
  void Lire_Grille_Initiale(std::int16_t row0, std::int16_t column0);
  /// Writes `ChaineGrille` into `MSF`, filled cells on `CouleurDonnees`. Characters that a short
  /// text lacks become empty texts.
  void CreateGrille();
  /// Writes the digits of `Grille` into `MSF`, green where the cell was not fixed.
  void Afficher_resGrille();
  /// Shows the count of filled cells; announces a full grid by a message box. The steps of a hint
  /// for another grid are forgotten before.
  void maj_indices();
  /// Colours every cell by comparison with `ChaineSolution`: the "Show bad values" command.
  void essai();
  /// Depth-first search from the displayed grid, one call of let_events_run a step; `ArretDemande`
  /// stops it. The grid's cells take no other event into account.
  void Resoudre();

  /// Shows " <n> indices" in `Label`.
  void show_count(int filled);
  /// A box with the program's title; what Desktop::message_box returns.
  Answer show_box(const std::string& text, Icon icon, Buttons buttons);
  /// A box with the message, an OK button and the program's title.
  void show_message(Message message, Icon icon);
  Desktop& desktop() { return desktop_; }

  /// Shows the buttons that need a puzzle.
  virtual void active() = 0;
  /// Draws the box lines over the grids.
  virtual void trace_ligne() = 0;
  /// Recomputes and shows the candidates.
  virtual void MajCandidats() = 0;
  /// Tells the steps of the hint, which has come to its question or its end.
  virtual void tell_hint() = 0;
  /// Shows no step of the hint alone any more.
  virtual void leave_step() = 0;
  /// Tells the steps of no hint any more.
  virtual void forget_hint() = 0;
  /// The same when the steps that are told are those of another grid than `MSF` shows.
  virtual void forget_outdated_hint() = 0;
  /// A search begins or is over; `searches_running` has changed.
  virtual void searches_changed() = 0;
  /// Repaints the whole window.
  virtual void refresh() = 0;
  /// Gives the keyboard focus to a control.
  virtual void set_focus(Control control) = 0;
  virtual void set_visible(Control control, bool visible) = 0;
  virtual void set_caption(Control control, std::string caption) = 0;
  /// The window's own caption (UTF-8).
  virtual void set_title(std::string title) = 0;

 private:
  /// Puts every filled cell of `Grille` under test, row by row, and acts for each that clashes.
  void for_each_clash(const std::function<void()>& act);

  Desktop& desktop_;
};

/// The one window. Calling it while none exists is a programming error.
Window& sudoku();

/// A text of cells, in the single-byte code page (Latin-1), as UTF-8.
std::string from_code_page(std::string_view text);

}  // namespace sdk
