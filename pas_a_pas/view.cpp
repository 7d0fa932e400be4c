// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "pas_a_pas/view.hpp"

#include <array>
#include <optional>
#include <string>

#include "game/window.hpp"
#include "pas_a_pas/tables.hpp"

namespace sdk {

namespace {

constexpr int value_size = 20, candidates_size = 10;

std::string text_of(NineSet digits) {
  std::string text;
  for (int digit = 1; digit <= 9; ++digit) {
    if (digit == 4 || digit == 7) text += '\r';
    text += digits.contains(digit) ? " " + std::to_string(digit) + " " : " . ";
  }
  return text;
}

/// The texts of all sets of candidates, by NineSet::index.
const std::array<std::string, 512>& candidate_texts() {
  static const auto texts = [] {
    std::array<std::string, 512> all;
    for (unsigned index = 0; index < all.size(); ++index) {
      NineSet digits;
      for (int digit = 1; digit <= 9; ++digit)
        if (index >> (digit - 1) & 1) digits.insert(digit);
      all[digits.index()] = text_of(digits);
    }
    return all;
  }();
  return texts;
}

/// Writes the current cell; a text that stands there already is left alone, as most do from one
/// round to the next.
void write(const std::string& text) {
  DisplayGrid& grid = sudoku().MSR;
  if (grid.current().text != text) grid.set_text(text);
}

void show_cell(Cell cell) {
  sudoku().MSR.make_current(cell.row - 1, cell.column - 1);
  const int value = Candidats.value(cell);
  if (value == 0) return write(candidate_texts()[Candidats.digits(cell).index()]);
  write(std::to_string(value));
  marque_case(cell.row, cell.column, Mark::value);
}

}  // namespace

void affiche_candidats() {
  if (globals.ModePasAPas) marque_candidats();
  std::optional<HiddenWhileWorking> hidden;
  if (globals.AfficheCandidats) hidden.emplace(sudoku().MSR);
  for (int cell = 1; cell <= 81; ++cell) show_cell(cell_at(cell));
  solver.SuggestionTrouvee = false;
}

void show_pairs() {
  DisplayGrid& grid = sudoku().MSR;
  for (const int number : Candidats.cells_counting(2)) {
    const Cell cell = cell_at(number);
    const auto [smaller, larger] = Paires(cell.row, cell.column);
    grid.set_text(cell.row - 1, cell.column - 1,
                  std::to_string(smaller) + " , " + std::to_string(larger));
  }
}

void efface_candidats() {
  for (int row = 1; row <= 9; ++row)
    for (int column = 1; column <= 9; ++column) {
      sudoku().MSR.set_text(row - 1, column - 1, " ");
      marque_case(row, column, Mark::none);
    }
}

void marque_candidats() {
  DisplayGrid& grid = sudoku().MSR;
  for (int row = 1; row <= 9; ++row)
    for (int column = 1; column <= 9; ++column) {
      if (Candidats.count({row, column}) == 0) continue;
      grid.make_current(row - 1, column - 1);
      grid.set_text_colour(colour::black);
    }
}

namespace {

enum class FontSize { kept, plain, by_text };

struct Look {
  Colour back, text;
  FontSize size;
};

constexpr std::optional<Look> look_of(int mode) {
  switch (static_cast<Mark>(mode)) {
    case Mark::none:
      return Look{colour::white, colour::black, FontSize::plain};
    case Mark::removed:
      return Look{0xFF00FF, colour::black, FontSize::kept};
    case Mark::support:
      return Look{12648384, colour::green, FontSize::by_text};
    case Mark::value:
      return Look{14737632, colour::black, FontSize::by_text};
    case Mark::second:
      return Look{0x00FFFF, colour::black, FontSize::kept};
    default:
      return std::nullopt;
  }
}

void set_size(DisplayGrid& grid, FontSize size) {
  if (size == FontSize::plain) grid.set_font_size(0);
  if (size != FontSize::by_text) return;
  const std::string& text = grid.current().text;
  const bool is_digit = text.size() == 1 && text != " ";
  grid.set_font_size(is_digit ? value_size : candidates_size);
}

}  // namespace

Colour mark_background(Mark mark) {
  return look_of(static_cast<int>(mark)).value_or(Look{colour::white, {}, {}}).back;
}

void marque_case(int row, int column, int mode) {
  const std::optional<Look> look = look_of(mode);
  if (!look) return;
  DisplayGrid& grid = sudoku().MSR;
  grid.make_current(row - 1, column - 1);
  grid.set_back_colour(look->back);
  grid.set_text_colour(look->text);
  set_size(grid, look->size);
  grid.set_mark(mode);
}

void trace_candidat(int /*row*/, int /*column*/, int /*digit*/, Colour /*colour*/) {}

namespace {

Colour colour_of(Emphasis emphasis) {
  return emphasis == Emphasis::removed ? hook::removed : hook::support;
}

}  // namespace

void draw(const std::vector<Highlight>& highlights) {
  for (const auto& [cell, mark, digits, emphasis] : highlights) {
    if (mark) marque_case(cell.row, cell.column, *mark);
    for (const int digit : digits)
      trace_candidat(cell.row, cell.column, digit, colour_of(emphasis));
  }
}

}  // namespace sdk
