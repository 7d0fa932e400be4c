// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// A player for the program itself, which loads it with QT_QPA_GENERIC_PLUGINS=player:STEP;STEP...
// A step is the name of a button, or BUTTON=FILE where its dialog asks for a file. Boxes are
// answered with Yes or OK.

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGenericPlugin>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace {

class Player : public QObject {
 public:
  explicit Player(const QString& steps) : steps_(steps.split(';')) { act_soon(); }

 private:
  void act_soon() { QTimer::singleShot(50, this, &Player::act); }
  void act();
  void press_next_button();
  void enter_file(QFileDialog& dialog);

  QStringList steps_;
  QString file_;
};

void answer(QMessageBox& box) {
  const auto buttons = {box.button(QMessageBox::Yes), box.button(QMessageBox::Ok)};
  for (QAbstractButton* button : buttons)
    if (button) return button->click();
}

void Player::act() {
  act_soon();  // also while what is pressed here waits for an answer
  QWidget* modal = QApplication::activeModalWidget();
  if (auto* dialog = qobject_cast<QFileDialog*>(modal)) return enter_file(*dialog);
  if (auto* box = qobject_cast<QMessageBox*>(modal)) return answer(*box);
  press_next_button();
}

void Player::enter_file(QFileDialog& dialog) {
  const auto accepts = dialog.acceptMode() == QFileDialog::AcceptOpen ? QDialogButtonBox::Open
                                                                      : QDialogButtonBox::Save;
  dialog.findChild<QLineEdit*>("fileNameEdit")->setText(file_);
  dialog.findChild<QDialogButtonBox*>("buttonBox")->button(accepts)->click();
}

void Player::press_next_button() {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() != "sudoku" || !window->isVisible() || steps_.isEmpty()) continue;
    const QStringList step = steps_.takeFirst().split('=');
    file_ = step.value(1);
    return window->findChild<QAbstractButton*>(step.value(0))->click();
  }
}

}  // namespace

class PlayerPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "player_plugin.json")

 public:
  QObject* create(const QString&, const QString& steps) override { return new Player(steps); }
};

#include "player_plugin.moc"
