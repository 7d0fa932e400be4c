// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "files/puzzle_file.hpp"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <system_error>

#include "board/grid_text.hpp"
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
  if (bytes.empty()) throw RuntimeError(name, "the file is empty");
  return bytes;
}

/// The cells of a file's lines, whatever ends them.
std::string cells(std::string bytes) {
  std::erase_if(bytes, [](char c) { return c == ' ' || c == '\r' || c == '\n'; });
  std::ranges::replace(bytes, '.', ' ');
  return bytes;
}

}  // namespace

void Save_Grille(const std::string& nom) {
  std::string& grid = sudoku().ChaineGrille;
  grid = displayed_grid();
  std::ranges::replace(grid, '0', ' ');
  sudoku().desktop().replace_file(nom, file_text(grid));
}

void ouvrir(const std::string& nom) {
  std::string name = nom;
  std::erase(name, '"');
  sudoku().set_title(name);
  std::string& grid = sudoku().ChaineGrille;
  grid = cells(content(name));
  const auto shown = std::string_view(grid).substr(0, 81);
  sudoku().show_count(
      static_cast<int>(std::ranges::count_if(shown, [](char c) { return c != ' '; })));
  sudoku().refresh();
}

}  // namespace sdk
