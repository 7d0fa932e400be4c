// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// How a step of a hint looks, on screen and in the guide.
#pragma once

#include "explanations/step_picture.hpp"

class QPainter;
class QRect;

namespace sdk {

/// Paints a step whole, box lines included, on a square of any size. The colours of the marks are
/// those of the candidate grid; the digits that the step rests on are bold, those that it removes
/// struck out.
void paint_step(QPainter& painter, const QRect& area, const StepPicture& step);

/// Paints one cell of a step on a square of any size.
void paint_step_cell(QPainter& painter, const QRect& square, const PictureCell& cell);

/// Paints what lies over the cells of a step: the lines of a fish and the links of a chain. `area`
/// is that of all cells.
void paint_step_links(QPainter& painter, const QRect& area, const StepPicture& step);

/// Frames a cell of another grid in the colour of its mark, and leaves the rest of it as it is.
/// Does nothing to a cell without a mark.
void paint_step_frame(QPainter& painter, const QRect& square, Mark mark);

}  // namespace sdk
