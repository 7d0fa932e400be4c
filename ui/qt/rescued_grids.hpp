// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The way back to grids that the program saved unasked.
#pragma once

class QFileDialog;
class QString;

namespace sdk {

/// Puts `folder` in the sidebar of the dialog, under a name in the language on screen, if there is
/// a puzzle file in it. It need not exist.
void offer_rescued_grids(QFileDialog& dialog, const QString& folder);

}  // namespace sdk
