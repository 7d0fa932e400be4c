// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A started game in its real window, and a player's hands.
#pragma once

#include <QFileDialog>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>
#include <functional>
#include <optional>
#include <string_view>

#include "ui/qt/main_frame.hpp"
#include "ui/qt/qt_desktop.hpp"

namespace sdk::test {

/// Every run of a test has the same puzzles.
class RepeatableDesktop final : public QtDesktop {
 public:
  using QtDesktop::QtDesktop;
  std::uint32_t random_seed() override { return ++seed_; }

 private:
  std::uint32_t seed_ = 0;
};

/// The game as main() starts it, but for its chance, shown and with the focus.
class Play {
 public:
  /// `command_line` names the file that is opened, if any; finish_start is not called.
  explicit Play(const std::string& command_line = "");

  ProgramGuard guard;
  RepeatableDesktop desktop{guard};
  MainWindow window{desktop};
  MainFrame frame{window, guard};

  /// The widget of that name; a test that asks for one that is missing fails.
  template <class Widget = QWidget>
  Widget& find(const char* name) {
    auto* widget = frame.findChild<Widget*>(name);
    if (!widget) qFatal("no widget is called %s", name);
    return *widget;
  }

  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// A key that produces `text`, pressed in the widget that has the focus.
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text);
  /// Each digit or letter in turn.
  void type(const char* characters);
  /// Lets the window follow the core: first the texts change, then the layout.
  void settle();
  /// The middle of a cell, rows and columns 1..9.
  QPoint cell(int row, int column) const;
  /// A click on a cell of MSF.
  void click_cell(int row, int column, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void click(const char* widget);
  QString text(int row, int column);

  /// Runs `actions` inside the program's event loop and returns its exit status. The loop ends with
  /// the program, or with `actions`; then the status is -1.
  int run_program(const std::function<void()>& actions);

  /// Fills the grid with nine lines of cells: "." an empty one, a digit a given.
  void draw(std::string_view lines);
};

/// What a message box showed.
struct ShownBox {
  QString title, text;
  QStringList buttons;  ///< without the signs of their shortcuts
  QPoint middle;        ///< on the screen
};

/// Presses `button` of the next message box as soon as it is open. The box is remembered.
class BoxAnswer : public QObject {
 public:
  explicit BoxAnswer(QMessageBox::StandardButton button);

  bool was_shown() const { return box_.has_value(); }
  /// The test has failed when no box was shown.
  const ShownBox& box() const;

 private:
  void look_for_box();

  QMessageBox::StandardButton button_;
  std::optional<ShownBox> box_;
  QTimer timer_;
};

/// The dialog that waits for the player: the modal one, or the question of a hint, which is not
/// modal; null for none.
QDialog* open_dialog();

/// Does that with the next file dialog.
void in_file_dialog(const std::function<void(QFileDialog&)>& actions);
/// Types a name in a file dialog, and Enter.
void enter_name(QFileDialog& dialog, const QString& name);
/// Chooses a file in the next file dialog.
void choose_file(const QString& path);

/// `action` after some events.
void later(int milliseconds, const std::function<void()>& action);

}  // namespace sdk::test

/// As QTEST_MAIN, without a screen, a printer or the player's own folders.
#define SUDOKU_WINDOW_TEST(Test)                \
  int main(int argc, char** argv) {             \
    sdk::test::leave_the_machine_alone();       \
    QApplication::setStyle("Fusion");           \
    QApplication application(argc, argv);       \
    QApplication::setApplicationName("sudoku"); \
    Test test;                                  \
    return QTest::qExec(&test, argc, argv);     \
  }

namespace sdk::test {
void leave_the_machine_alone();
}  // namespace sdk::test
