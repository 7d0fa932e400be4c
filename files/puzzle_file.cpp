// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "files/puzzle_file.hpp"

#include <cerrno>
#include <fstream>
#include <optional>
#include <system_error>
#include <utility>

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

/// More than any puzzle file holds; keeps an endless device from filling the memory.
constexpr std::size_t largest_file = 16 << 20;

[[noreturn]] void fail(const std::string& name, int error) {
  throw RuntimeError(name, std::generic_category().message(error));
}

std::string content(const std::string& name) {
  errno = 0;
  std::ifstream file(name, std::ios::binary);
  if (!file) fail(name, errno);
  std::string bytes;
  for (char chunk[4096]; file.read(chunk, sizeof chunk), file.gcount() > 0;) {
    bytes.append(chunk, static_cast<std::size_t>(file.gcount()));
    if (bytes.size() > largest_file) fail(name, EFBIG);
  }
  if (file.bad()) fail(name, errno);
  return bytes;
}

std::string grid_in(const std::string& name) {
  std::optional<std::string> grid = grid_of_file(content(name));
  if (!grid) throw RuntimeError(name, "the file is empty");
  return *std::move(grid);
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
