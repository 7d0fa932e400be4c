// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Undo and redo in the window, and the keys of the buttons.

#include <QShortcut>
#include <QToolButton>

#include "tests/ui/qt/play.hpp"

namespace sdk::test {

namespace {

constexpr const char* left_to_right[] = {
    "Command1", "Command6", "sauve", "Command4", "Command8", "Command7", "Bouton_GO",
    "Command2", "undo",     "redo",  "aide",     "Command5", "Command3"};

struct KeysOfButton {
  const char* button;
  const char* keys;
};

constexpr KeysOfButton keys_of_buttons[] = {
    {"Command1", "Ctrl+N"}, {"Command6", "Ctrl+O"},          {"sauve", "Ctrl+S"},
    {"Command4", "Ctrl+P"}, {"Command8", "Ctrl+H"},          {"Command3", "Ctrl+Q"},
    {"undo", "Ctrl+Z"},     {"redo", "Ctrl+Shift+Z Ctrl+Y"},
};

}  // namespace

class ShortcutsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    play_.emplace();
    while (play_->window.MSF.is_filled(row_ - 1, column_ - 1)) column_ = column_ % 9 + 1;
  }
  void cleanup() { play_.reset(); }

  void the_buttons_are_greyed_while_there_is_nothing() {
    play_->settle();
    QVERIFY(!enabled("undo") && !enabled("redo"));
    QVERIFY(play_->find("undo").isVisible() && play_->find("redo").isVisible());
    type_one();
    QVERIFY(enabled("undo") && !enabled("redo"));
    play_->click("undo");
    play_->settle();
    QVERIFY(!enabled("undo") && enabled("redo"));
    QCOMPARE(shown(), " ");
    play_->click("redo");
    play_->settle();
    QVERIFY(enabled("undo") && !enabled("redo"));
    QCOMPARE(shown(), "1");
  }

  void the_buttons_stand_in_a_row_after_clear() {
    play_->settle();
    int right = 0;
    for (const char* name : left_to_right) {
      const QWidget& button = play_->find(name);
      QVERIFY2(button.x() >= right, name);
      right = button.geometry().right() + 1;
    }
    QVERIFY(right <= play_->find("commands").width());
    QVERIFY(play_->find("commands").minimumSizeHint().width() <= play_->find("commands").width());
  }

  void they_are_named_in_both_languages() {
    for (const bool english : {true, false}) {
      play_->press(english ? Qt::Key_F1 : Qt::Key_F2);
      play_->settle();
      QCOMPARE(play_->find("undo").toolTip(), english ? "Undo" : "Annuler");
      QCOMPARE(play_->find("undo").accessibleName(), english ? "Undo" : "Annuler");
      QCOMPARE(play_->find("redo").toolTip(), english ? "Redo" : "Rétablir");
      QCOMPARE(play_->find("redo").accessibleName(), english ? "Redo" : "Rétablir");
    }
  }

  void the_usual_keys_undo_and_redo_wherever_the_focus_is() {
    for (const char* focus : {"MSF", "Check1", "Niveau", "Command5"}) {
      type_one();
      play_->find(focus).setFocus();
      play_->press(Qt::Key_Z, Qt::ControlModifier);
      QCOMPARE(shown(), " ");
      play_->settle();
      play_->press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
      QCOMPARE(shown(), "1");
      play_->settle();
      play_->press(Qt::Key_Z, Qt::ControlModifier);
      play_->settle();
      play_->press(Qt::Key_Y, Qt::ControlModifier);
      QCOMPARE(shown(), "1");
      play_->settle();
      play_->press(Qt::Key_Z, Qt::ControlModifier);
      play_->settle();
    }
  }

  void keys_pressed_faster_than_the_window_follows_all_count() {
    play_->click_cell(row_, column_);
    play_->type("12345");
    QWidget* focus = play_->frame.focusWidget();
    for (int n = 0; n < 4; ++n) QTest::keyClick(focus, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shown(), "1");
    QTest::keyClick(focus, Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(shown(), "2");
  }

  void a_key_held_down_undoes_and_redoes_on_and_does_nothing_else_again() {
    QStringList repeated;
    for (const QShortcut* shortcut : play_->find("commands").findChildren<QShortcut*>())
      if (shortcut->autoRepeat()) repeated << shortcut->key().toString();
    QCOMPARE(repeated, (QStringList{"Ctrl+Z", "Ctrl+Shift+Z", "Ctrl+Y"}));
  }

  void keys_that_find_nothing_change_nothing() {
    play_->settle();
    const auto cells = play_->window.MSF.cells();
    play_->press(Qt::Key_Z, Qt::ControlModifier);
    play_->press(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(play_->window.MSF.cells(), cells);
  }

  void letters_without_ctrl_do_nothing() {
    type_one();
    for (const Qt::Key key : {Qt::Key_Z, Qt::Key_Y, Qt::Key_N, Qt::Key_H, Qt::Key_Q})
      play_->press(key);
    QCOMPARE(shown(), "1");
    QVERIFY(play_->window.can_undo());
  }

  void nothing_is_undone_behind_a_question() {
    draw_a_grid_with_a_hint();
    type_one();
    later(50, [this] {
      for (const char* name : {"MSF", "steps"})
        QTest::keyClick(&play_->find(name), Qt::Key_Z, Qt::ControlModifier);
      QTest::keyClick(open_dialog(), Qt::Key_Z, Qt::ControlModifier);
      play_->find<QToolButton>("undo").click();
      QCOMPARE(shown(), "1");
      open_dialog()->reject();
    });
    play_->click("Command8");
    QCOMPARE(shown(), "1");
  }

  void ctrl_n_makes_a_puzzle() {
    const std::string before = play_->window.ChaineGrille;
    play_->press(Qt::Key_N, Qt::ControlModifier);
    QVERIFY(play_->window.ChaineGrille != before);
  }

  void ctrl_h_asks_for_a_hint_while_its_button_shows() {
    draw_a_grid_with_a_hint();
    BoxAnswer answer(QMessageBox::No);
    play_->press(Qt::Key_H, Qt::ControlModifier);
    QVERIFY(answer.was_shown());
    play_->window.set_visible(Control::Command8, false);
    play_->settle();
    BoxAnswer none(QMessageBox::No);
    play_->press(Qt::Key_H, Qt::ControlModifier);
    QVERIFY(!none.was_shown());
  }

  void ctrl_q_asks_whether_to_quit() {
    BoxAnswer answer(QMessageBox::No);
    play_->press(Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(answer.was_shown());
  }

  void a_button_tells_its_keys() {
    for (const auto& [button, keys] : keys_of_buttons)
      QCOMPARE(play_->find(button).accessibleDescription(), keys);
  }

 private:
  bool enabled(const char* name) { return play_->find(name).isEnabled(); }
  void type_one() {
    play_->click_cell(row_, column_);
    play_->type("1");
    play_->settle();
  }

  QString shown() { return play_->text(row_, column_); }
  void draw_a_grid_with_a_hint() {
    play_->draw(
        "12345678.\n.........\n.........\n.........\n.........\n.........\n.........\n"
        ".........\n.........\n");
  }

  std::optional<Play> play_;
  int row_ = 5, column_ = 1;  ///< an empty cell
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::ShortcutsTest)
#include "shortcuts_test.moc"
