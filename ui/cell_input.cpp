// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The keys of the puzzle grid.

#include "board/grid_text.hpp"
#include "ui/main_window.hpp"

namespace sdk {

namespace {

bool is_between(int code, int first, int last) { return code >= first && code <= last; }

/// The digit a key stands for, as a character; 0 when it stands for none.
char digit_of(int code) {
  if (is_between(code, key::digit_1, key::digit_9)) return static_cast<char>(code);
  if (is_between(code, key::keypad_1, key::keypad_9))
    return static_cast<char>(code - key::keypad_1 + key::digit_1);
  return 0;
}

bool may_change(const DisplayCell& cell) { return !cell.is_given() || !globals.ProtegeGrille; }

}  // namespace

void MainWindow::key_down(int code, bool ctrl) {
  run_guarded([&] {
    if (ctrl && code == key::c)
      copy_rows();
    else if (ctrl && code == key::a)
      select_all();
    else if (code == key::del || code == key::backspace)
      erase_selection();
    else if (const char digit = digit_of(code))
      type_digit(digit);
    set_focus(Control::MSF);
  });
}

void MainWindow::copy_rows() {
  const CellRange range = MSF.selection();
  std::string text;
  for (int r = range.first_row; r <= range.last_row; ++r)
    for (int c = 0; c < DisplayGrid::size; ++c)
      text += MSF.text(r, c) + (c < DisplayGrid::size - 1 ? "\t" : "\r\n");
  desktop().set_clipboard(from_code_page(text));
}

void MainWindow::select_all() {
  globals.GrilleOk = false;
  MSF.select(0, 0, DisplayGrid::size - 1, DisplayGrid::size - 1);
  desktop().set_clipboard("");
}

void MainWindow::erase_selection() {
  if (searches_running > 0) return;
  {
    HiddenWhileWorking hidden(MSF);
    const CellRange range = MSF.selection();
    for (int r = range.first_row; r <= range.last_row; ++r)
      for (int c = range.first_column; c <= range.last_column; ++c) {
        MSF.make_current(r, c);
        if (may_change(MSF.current())) MSF.set_text(" ");
      }
  }
  set_focus(Control::MSF);
  maj_indices();
  MajCandidats();
  trace_ligne();
}

void MainWindow::type_digit(char digit) {
  if (searches_running > 0) return;
  if (may_change(MSF.current())) write_digit(digit);
  maj_indices();
  MSF.refresh();
  MajCandidats();
  trace_ligne();
}

void MainWindow::write_digit(char digit) {
  const int row = MSF.current_row();
  const int column = MSF.current_column();
  MSF.set_text_colour(colour::green);
  MSF.set_back_colour(colour::white);
  MSF.set_text(std::string(1, digit));
  Lire_Grille_Initiale(static_cast<std::int16_t>(row), static_cast<std::int16_t>(column));
  verify_valide();
  if (!VerifAuVol || !GrilleValide) return;
  const bool right = character(ChaineSolution, row * 9 + column + 1) == MSF.text(row, column);
  MSF.set_verdict(right ? colour::green : colour::red);
}

}  // namespace sdk
