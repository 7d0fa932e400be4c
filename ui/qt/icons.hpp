// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The game's icon, and the pictures on buttons and in message boxes.
#pragma once

#include <QIcon>
#include <QToolButton>

namespace sdk {

/// The icon drawn in icons/`name`.svg, in the colour of the palette's button text, sharp at any
/// size.
QIcon button_icon(const char* name);

/// A flat square button with that icon.
class IconButton : public QToolButton {
  Q_OBJECT

 public:
  /// Sides in pixels; `name` is the object's.
  IconButton(const char* name, const char* icon, int icon_side, int side, QWidget* parent);
};

/// The picture drawn in icons/`name`.svg, in its own colours, for a screen of that pixel ratio.
QPixmap box_picture(const char* name, int side, double pixel_ratio);

/// What desktops show for the game's windows.
QIcon game_icon();

}  // namespace sdk
