// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What the widgets are called; tests and style sheets find them by it.
#pragma once

#include <QObject>
#include <QString>

#include "screen/controls.hpp"
#include "ui/about.hpp"

namespace sdk {

/// Calls a widget what the rest of the program calls its control: a Control or an AboutControl.
template <class AnyControl>
void name_after(QObject& widget, AnyControl control) {
  const std::string_view name = name_of(control);
  widget.setObjectName(QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())));
}

}  // namespace sdk
