// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What is drawn on a window or on a page, as a list that a front end paints.
/// Coordinates are in twips (1/1440 inch; 15 twips are one logical pixel), single precision.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "screen/display_grid.hpp"

namespace sdk {

/// A straight line. On a window `width` is in pixels, on a page in twips.
struct LineDrawing {
  int width;
  float x1, y1, x2, y2;
  bool operator==(const LineDrawing&) const = default;
};

/// A line of text (UTF-8) whose top left corner is at (x, y). `size` is in points.
struct TextDrawing {
  float x, y;
  std::string font;
  int size;
  std::string text;
  bool operator==(const TextDrawing&) const = default;
};

/// A grid as the player sees it, without box lines and frames, scaled into the rectangle.
struct PictureDrawing {
  float x, y, width, height;
  std::vector<DisplayCell> cells;  ///< 81, row by row
  bool operator==(const PictureDrawing&) const = default;
};

using Drawing = std::variant<TextDrawing, PictureDrawing, LineDrawing>;
/// Painted in the order of the list.
using Page = std::vector<Drawing>;

}  // namespace sdk
