// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What screen readers are told of the widgets.
#pragma once

#include <QString>

#include "ui/messages.hpp"

class QWidget;

namespace sdk {

/// Makes the window's own widgets known as what they are: a window, a tool bar, a link... To be
/// called before any of them is shown; further calls change nothing.
void install_accessible_roles();

/// Gives `widget` its name for screen readers. They hear of it only when it changes.
void set_accessible_name(QWidget& widget, const QString& name);

/// The notice in the current language.
QString notice_text(Notice which);

}  // namespace sdk
