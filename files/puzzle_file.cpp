// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "files/puzzle_file.hpp"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <system_error>

#include "grid/errors.hpp"
#include "grid/window.hpp"

namespace sdk {

namespace {

std::string displayed_grid() {
  std::string texts;
  for (int r = 0; r < DisplayGrid::size; ++r)
    for (int c = 0; c < DisplayGrid::size; ++c) texts += sudoku().MSF.text(r, c);
  return texts;
}

/// Two characters a cell; a text that is too short fills the cells it lacks with blanks.
std::string file_text(std::string_view grid) {
  std::string text;
  for (int k = 1; k <= 81; ++k) {
    const std::string_view cell = character(grid, k);
    text += ' ';
    text += cell.empty() ? " " : cell == " " ? "." : cell;
    if (k % 9 == 0) text += "\r\n";
  }
  return text;
}

}  // namespace

void Save_Grille(const std::string& nom) {
  std::string& grid = sudoku().ChaineGrille;
  grid = displayed_grid();
  std::ranges::replace(grid, '0', ' ');
  errno = 0;
  std::ofstream file(nom, std::ios::binary);
  file << file_text(grid) << std::flush;
  if (!file) throw RuntimeError(nom, std::generic_category().message(errno));
}

}  // namespace sdk
