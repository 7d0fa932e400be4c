// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/ui/qt/play.hpp"

#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

#include "ui/qt/cell_painter.hpp"

namespace sdk::test {

Play::Play(const std::string& command_line) {
  desktop.set_window(&frame);
  guard.run([&] { window.start(command_line); });
  frame.centre_on_screen();
  frame.show();
  QApplication::setActiveWindow(&frame);
  if (!QTest::qWaitFor([this] { return find("MSF").hasFocus(); }))
    qFatal("the grid does not get the focus");
}

void Play::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(frame.focusWidget(), key, modifiers);
  settle();
}

void Play::press(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text) {
  QTest::sendKeyEvent(QTest::Click, frame.focusWidget(), key, text, modifiers);
  settle();
}

void Play::type(const char* characters) {
  QTest::keyClicks(frame.focusWidget(), characters);
  settle();
}

void Play::settle() {
  for (int round = 0; round < 2; ++round) QCoreApplication::processEvents();
}

QPoint Play::cell(int row, int column) const {
  return QPoint(column * cell_side - cell_side / 2, row * cell_side - cell_side / 2);
}

void Play::click_cell(int row, int column, Qt::KeyboardModifiers modifiers) {
  QTest::mouseClick(find<GridView>("MSF").viewport(), Qt::LeftButton, modifiers, cell(row, column));
  settle();
}

void Play::click(const char* widget) {
  QWidget& target = find(widget);
  // A check box takes clicks on its box and text only.
  QTest::mouseClick(&target, Qt::LeftButton, {}, QPoint(10, target.height() / 2));
  settle();
}

QString Play::text(int row, int column) {
  const QAbstractItemModel& model = *find<GridView>("MSF").model();
  return model.data(model.index(row - 1, column - 1)).toString();
}

void Play::draw(std::string_view lines) {
  int number = 0;
  for (const char character : lines) {
    if (character == '\n') continue;
    window.MSF.make_current(number / 9, number % 9);
    window.MSF.set_text(std::string(1, character == '.' ? ' ' : character));
    window.MSF.set_text_colour(colour::black);
    window.MSF.set_back_colour(character == '.' ? colour::white : globals.CouleurDonnees);
    ++number;
  }
  window.MSF.make_current(0, 0);
  settle();
}

int Play::run_program(const std::function<void()>& actions) {
  QTimer::singleShot(0, [&] {
    actions();
    if (!guard.status()) QCoreApplication::exit(-1);
  });
  return QApplication::exec();
}

BoxAnswer::BoxAnswer(QMessageBox::StandardButton button) : button_(button) {
  connect(&timer_, &QTimer::timeout, this, &BoxAnswer::look_for_box);
  timer_.start(5);
}

const ShownBox& BoxAnswer::box() const {
  if (!box_) qFatal("no message box was shown");
  return *box_;
}

void BoxAnswer::look_for_box() {
  auto* box = qobject_cast<QMessageBox*>(open_dialog());
  if (!box || !box->isVisible()) return;
  timer_.stop();
  box_ = ShownBox{box->windowTitle(), box->text(), {}, box->frameGeometry().center()};
  for (const QAbstractButton* button : box->buttons()) box_->buttons << button->text().remove('&');
  QTest::mouseClick(box->button(button_), Qt::LeftButton);
}

QDialog* open_dialog() {
  if (QWidget* modal = QApplication::activeModalWidget()) return qobject_cast<QDialog*>(modal);
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (auto* box = qobject_cast<QMessageBox*>(widget); box && box->isVisible()) return box;
  return nullptr;
}

void in_file_dialog(const std::function<void(QFileDialog&)>& actions) {
  later(100, [actions] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (!dialog) qFatal("no file dialog is open");
    actions(*dialog);
  });
}

void enter_name(QFileDialog& dialog, const QString& name) {
  auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit");
  edit->setText(name);
  QTest::keyClick(edit, Qt::Key_Return);
}

void choose_file(const QString& path) {
  in_file_dialog([path](QFileDialog& dialog) { enter_name(dialog, path); });
}

void later(int milliseconds, const std::function<void()>& action) {
  QTimer::singleShot(milliseconds, action);
}

void leave_the_machine_alone() {
  static const QTemporaryDir folder;
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREENS);
  qputenv("CUPS_SERVER", "/nonexistent/cups");
  qputenv("XDG_DATA_HOME", folder.path().toLocal8Bit());
  qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
  qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
}

}  // namespace sdk::test
