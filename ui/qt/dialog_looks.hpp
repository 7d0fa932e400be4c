// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What Qt's own dialogs need to be read whole and sharp on every screen.
#pragma once

#include "screen/desktop.hpp"

class QFileDialog;
class QMessageBox;

namespace sdk {

/// Makes the box one of the game's: its text plain, and all that follows here.
void fit_looks(QMessageBox& box, Icon icon);

/// Gives the box the game's own picture for `icon`: Qt's are drawn for small screens alone.
void set_picture(QMessageBox& box, Icon icon);

/// Makes the box wide enough for its title beside the buttons of its frame.
void fit_title(QMessageBox& box);

/// Takes Qt's pictures off the buttons, which are drawn for small screens too.
void remove_button_icons(QMessageBox& box);

/// Makes the columns as wide as what they show, hides the files' type, which is always the same,
/// and tells their sizes in the language on screen.
void fit_columns(QFileDialog& dialog);

}  // namespace sdk
