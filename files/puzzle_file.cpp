// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "files/puzzle_file.hpp"

#include <utility>

#include "files/text/file_grid.hpp"
#include "files/text/puzzle_file_text.hpp"
#include "game/window.hpp"
#include "screen/errors.hpp"

namespace sdk {

std::string displayed_grid() {
  std::string texts;
  for (int r = 0; r < DisplayGrid::size; ++r)
    for (int c = 0; c < DisplayGrid::size; ++c) texts += sudoku().MSF.text(r, c);
  return texts;
}

namespace {

std::string grid_in(const std::string& name) {
  FileGrid read = grid_in_file(name);
  if (!read.failure.empty()) throw RuntimeError(name, read.failure);
  return std::move(read.cells);
}

}  // namespace

void Save_Grille(const std::string& nom) {
  std::string& grid = sudoku().ChaineGrille;
  grid = grid_to_save(displayed_grid());
  sudoku().desktop().replace_file(nom, puzzle_file_text(grid));
}

void ouvrir(const std::string& nom) {
  std::string name = nom;
  std::erase(name, '"');
  sudoku().set_title(name);
  sudoku().ChaineGrille = grid_in(name);
  sudoku().show_count(givens_of(sudoku().ChaineGrille));
  sudoku().refresh();
}

}  // namespace sdk
