// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// How a cell looks, on screen and on paper.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <vector>

#include "screen/display_grid.hpp"

class QPainter;
class QRect;

namespace sdk {

/// The side of a cell in the painter's units.
inline constexpr int cell_side = 52;

/// The grids' own font sizes in points, where a point is 4/3 of those units.
inline constexpr int puzzle_font_size = 22;
inline constexpr int candidates_font_size = 10;

/// The colour as Qt has it.
QColor to_qcolor(Colour colour);
/// A cell's text, whose bytes are characters of the single-byte code page.
QString to_qstring(const std::string& cell_text);

/// The program's font in points of the painter's units.
QFont font_of_size(int points);
/// Where a candidate (1..9) stands in a cell of side cell_side.
QRect candidate_place(const QRect& square, int digit);

/// The background of a selected cell.
Colour selected_background(Colour back);
/// The colour a cell's text is drawn in: its own, or where that would be too faint for the
/// background and the size of the text, the nearest one that is not.
QColor drawn_text_colour(const DisplayCell& cell, int grid_font_size);

/// Paints the background of a cell of side cell_side and its thin lines, right and below.
void paint_background(QPainter& painter, const QRect& square, const QColor& back);

/// Paints one cell of side cell_side: background, thin lines and text. Three lines separated by
/// character 13 become nine entries in three columns. A wrong value is underlined by a zigzag.
void paint_cell(QPainter& painter, const QRect& square, const DisplayCell& cell,
                int grid_font_size);

/// Paints the 81 cells of a puzzle, given row by row, with its top left corner at the origin.
void paint_puzzle(QPainter& painter, const std::vector<DisplayCell>& cells);

}  // namespace sdk
