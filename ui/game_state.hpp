// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The game at one moment.
#pragma once

#include <bitset>
#include <cstdint>
#include <optional>
#include <string>

#include "board/bool16.hpp"
#include "board/square.hpp"
#include "screen/controls.hpp"
#include "screen/display_grid.hpp"

namespace sdk {

/// A cell of `MSF` in a quarter of the room, of which a long game keeps many. No cell of `MSF`
/// holds more than one character, has a mark or a size of its own.
class SavedCell {
 public:
  SavedCell() = default;
  explicit SavedCell(const DisplayCell& cell);

  DisplayCell cell() const;
  bool has_text_of(const SavedCell& other) const { return text_ == other.text_; }
  bool operator==(const SavedCell&) const = default;

 private:
  std::optional<char> text_ = ' ';  ///< none is an empty text, which is not an empty cell
  bool wrong_ = false;
  Colour text_colour_ = colour::black, back_colour_ = colour::white;
};

/// All that belongs to the puzzle in hand; level, language, options, the current cell and the
/// candidates do not. The fields are those of the window, or of the globals, of the same name.
struct GameState {
  Square<SavedCell> cells;
  Square<std::int16_t> Grille, GrilleInitiale;
  Square<std::uint8_t> resGrille;
  Square<Bool16> Masque;
  std::string ChaineGrille, ChaineSolution;
  Bool16 GrilleValide, GrilleOk;
  std::string title;                                   ///< the window's caption
  std::string count;                                   ///< the caption of `Label`
  std::bitset<std::size(all_controls)> buttons_shown;  ///< by Control; of others it tells nothing

  /// Whether every cell has the same text in both, whatever the colours.
  bool has_texts_of(const GameState& other) const;
  bool operator==(const GameState&) const = default;
};

}  // namespace sdk
