// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// How the frames of digits that clash or are equal look. They are for the screen, not for paper.
#pragma once

#include <QColor>

#include "screen/digit_frames.hpp"

class QPainter;
class QRect;

namespace sdk {

/// Stands out by 3 to 1 on every background that a cell of the puzzle can have, selected or not.
/// The frame must not be DigitFrame::none.
QColor frame_colour(DigitFrame frame);

/// Frames a cell of side cell_side; `in_border` leaves room for the border of the current cell. The
/// frame of a clash has sharp corners, the other one round ones, so that they are not told apart by
/// their colours alone.
void paint_digit_frame(QPainter& painter, const QRect& square, DigitFrame frame, bool in_border);

}  // namespace sdk
