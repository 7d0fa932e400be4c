// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// A witness of the program itself, which loads it with QT_QPA_GENERIC_PLUGINS=witness. When the
// window shows, or after ten seconds, it prints what it sees, a fact a line, and ends the program.

#include <QApplication>
#include <QGenericPlugin>
#include <QGuiApplication>
#include <QIcon>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QWidget>
#include <cstdlib>
#include <iostream>

namespace {

QWidget* shown_window() {
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->objectName() == "sudoku" && window->isVisible()) return window;
  return nullptr;
}

void tell(const char* fact, const QString& value) {
  std::cout << fact << ": " << value.toStdString() << std::endl;
}

bool is_in_the_middle(const QWidget& window) {
  const QPoint off = window.geometry().center() - window.screen()->availableGeometry().center();
  return std::abs(off.x()) <= 2 && std::abs(off.y()) <= 2;
}

void tell_all(const QWidget* window) {
  tell("window", !window ? "none" : is_in_the_middle(*window) ? "in the middle" : "elsewhere");
  tell("name", QCoreApplication::applicationName());
  tell("desktop file", QGuiApplication::desktopFileName());
  tell("icon", QApplication::windowIcon().isNull() ? "none" : "some");
  tell("style", QApplication::style()->objectName());
  tell("scale", QString::number(qApp->devicePixelRatio()));
}

class Witness : public QObject {
 public:
  Witness() {
    connect(&timer_, &QTimer::timeout, this, &Witness::look);
    timer_.start(50);
  }

 private:
  void look() {
    const QWidget* window = shown_window();
    if (!window && ++looks_ < 200) return;
    tell_all(window);
    timer_.stop();
    QCoreApplication::exit(0);  // quitting would ask the player
  }

  QTimer timer_;
  int looks_ = 0;
};

}  // namespace

class WitnessPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "witness_plugin.json")

 public:
  QObject* create(const QString&, const QString&) override { return new Witness; }
};

#include "witness_plugin.moc"
