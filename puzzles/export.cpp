// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "puzzles/export.hpp"

#include <cerrno>
#include <fstream>
#include <string>
#include <system_error>

#include "game/window.hpp"
#include "puzzles/stock/entry_text.hpp"
#include "screen/errors.hpp"

namespace sdk {

namespace {

constexpr const char* export_file = "Grilles.txt";

void append(const std::string& lines) {
  errno = 0;
  std::ofstream file(export_file, std::ios::binary | std::ios::app);
  file << lines << std::flush;
  if (!file) throw RuntimeError(export_file, std::generic_category().message(errno));
}

void write_solution(Window& w) {
  w.ChaineSolution.clear();
  for (int i = 1; i <= 9; ++i)
    for (int j = 1; j <= 9; ++j) {
      w.MSF.make_current(i - 1, j - 1);
      w.MSF.set_text(std::to_string(w.Grille(i, j)));
      w.ChaineSolution += w.MSF.current().text;
    }
}

}  // namespace

void generate_sudoku() {
  Window& w = sudoku();
  write_solution(w);
  append(entry_lines({mask_text(w.GrilleInitiale), w.ChaineSolution}));
}

}  // namespace sdk
