// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The least that a Qt program can show: one white window, as large as the game's.

#include <QApplication>
#include <QPalette>
#include <QWidget>

#include "ui/layout.hpp"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const sdk::Rectangle size = sdk::layout(false).window;
  QWidget window;
  window.setPalette(QPalette(Qt::white));
  window.resize(qRound(size.width / sdk::twips_per_pixel),
                qRound(size.height / sdk::twips_per_pixel));
  window.show();
  return application.exec();
}
