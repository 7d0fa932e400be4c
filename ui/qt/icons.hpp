// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The buttons' icons.
#pragma once

#include <QIcon>

namespace sdk {

/// The icon drawn in icons/`name`.svg, in the colour of the palette's button text, sharp at any
/// size.
QIcon button_icon(const char* name);

}  // namespace sdk
