// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/game_state.hpp"

#include "board/cell_set.hpp"

namespace sdk {

SavedCell::SavedCell(const DisplayCell& cell)
    : wrong_(cell.wrong), text_colour_(cell.text_colour), back_colour_(cell.back_colour) {
  text_ = cell.text.empty() ? std::nullopt : std::optional(cell.text.front());
}

DisplayCell SavedCell::cell() const {
  return {.text = text_ ? std::string(1, *text_) : "",
          .text_colour = text_colour_,
          .back_colour = back_colour_,
          .wrong = wrong_};
}

bool GameState::has_texts_of(const GameState& other) const {
  for (const int number : all_cells)
    if (!cells[number].has_text_of(other.cells[number])) return false;
  return true;
}

}  // namespace sdk
