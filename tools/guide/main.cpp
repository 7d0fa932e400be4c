// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// sudoku-guide: makes the player's guide of one language.

#include <QApplication>
#include <QHashFunctions>
#include <QLoggingCategory>
#include <exception>
#include <iostream>
#include <string_view>

#include "tools/guide/guide.hpp"
#include "tools/guide/studio.hpp"

namespace {

constexpr std::string_view usage =
    "usage: sudoku-guide En|Fr TEXT.md GUIDE.pdf\n"
    "Sets the text, with pictures taken of the game's window in that language, as a PDF "
    "document.\n";

/// Nothing of the machine may show in the pictures; nor chance, or the place on earth, in the
/// document.
void prepare_environment() {
  QHashSeed::setDeterministicGlobalSeed();
  qputenv("TZ", "UTC");
  sdk::prepare_screen();
  qputenv("QT_QPA_PLATFORMTHEME", "");
  QLoggingCategory::setFilterRules("default.warning=false");  // of what is missing off screen
  QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
  QApplication::setStyle("Fusion");
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view language = argc == 4 ? argv[1] : "";
  if (language != "En" && language != "Fr") {
    std::cerr << usage;
    return 2;
  }
  prepare_environment();
  QApplication application(argc, argv);
  try {
    sdk::make_guide({argv[1], QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3])});
  } catch (const std::exception& error) {
    std::cerr << "sudoku-guide: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
