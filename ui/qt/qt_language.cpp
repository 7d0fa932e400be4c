// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/qt_language.hpp"

#include <QCoreApplication>
#include <QLibraryInfo>

#include "game/globals.hpp"

namespace sdk {

void QtLanguage::follow() {
  const bool french = globals.Langue == "Fr";
  if (french == speaks_french_) return;
  speaks_french_ = french;
  if (!french) {
    QCoreApplication::removeTranslator(&french_);
  } else if (!french_.isEmpty() ||
             french_.load("qtbase_fr", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&french_);
  }
}

}  // namespace sdk
