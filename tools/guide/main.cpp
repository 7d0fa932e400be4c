// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// sudoku-guide: makes the player's guide of one language.

#include <QApplication>
#include <QHashFunctions>
#include <QLoggingCategory>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

#include "tools/command_line/command_line.hpp"
#include "tools/guide/guide.hpp"
#include "tools/guide/studio.hpp"

namespace {

constexpr std::string_view usage =
    "usage: sudoku-guide En|Fr TEXT.md GUIDE.pdf\n"
    "Sets the text, with pictures taken of the game's window in that language, as a PDF "
    "document.\n";

struct Order {
  std::string language, text, guide;
};

/// Nothing when a word is out of place.
std::optional<Order> read_order(int argc, const char* const* argv) {
  Order order;
  sdk::CommandLine line;
  line.add_option("LANGUAGE", order.language)->required()->check(CLI::IsMember({"En", "Fr"}));
  line.add_option("TEXT", order.text)->required();
  line.add_option("GUIDE", order.guide)->required();
  return line.read(argc, argv) ? std::optional(order) : std::nullopt;
}

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

QString in_qt(const std::string& path) { return QString::fromLocal8Bit(path.c_str()); }

}  // namespace

int main(int argc, char** argv) {
  const std::optional<Order> order = read_order(argc, argv);
  if (!order) {
    std::cerr << usage;
    return 2;
  }
  prepare_environment();
  QApplication application(argc, argv);
  try {
    sdk::make_guide({order->language, in_qt(order->text), in_qt(order->guide)});
  } catch (const std::exception& error) {
    std::cerr << "sudoku-guide: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
