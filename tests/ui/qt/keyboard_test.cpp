// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// A player without a mouse: every control is reached by Tab and used by keys.

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>

#include "tests/ui/qt/play.hpp"

namespace sdk::test {

namespace {

/// Presses a key in each of the next dialogs as soon as it is open, and remembers the first.
class KeyInDialog : public QObject {
 public:
  explicit KeyInDialog(QList<Qt::Key> keys) : keys_(std::move(keys)) {
    connect(&timer_, &QTimer::timeout, this, &KeyInDialog::look_for_dialog);
    timer_.start(5);
  }

  /// What kind of dialog it was; empty when there was none.
  const QString& kind() const { return kind_; }

 private:
  void look_for_dialog() {
    QWidget* dialog = open_dialog();
    if (!dialog || !dialog->isVisible()) return;
    if (kind_.isEmpty()) kind_ = dialog->metaObject()->className();
    const Qt::Key key = keys_.takeFirst();
    if (keys_.isEmpty()) timer_.stop();
    QTest::keyClick(dialog->focusWidget() ? dialog->focusWidget() : dialog, key);
  }

  QList<Qt::Key> keys_;
  QString kind_;
  QTimer timer_;
};

}  // namespace

class KeyboardTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { play_.emplace(); }
  void cleanup() { play_.reset(); }

  void every_control_is_reached_forwards_and_backwards_data() {
    QTest::addColumn<QString>("control");
    for (const char* name : {"Command1", "Command6", "sauve", "Command4", "Command8", "Command7",
                             "Bouton_GO", "Command2", "aide", "Command5", "Command3", "MSF", "MSR",
                             "Check3", "Check1", "Check2", "Niveau"})
      QTest::newRow(name) << name;
  }
  void every_control_is_reached_forwards_and_backwards() {
    QFETCH(QString, control);
    play_->click("Check2");
    play_->find("MSF").setFocus();
    if (control != "MSF") go_to(control);
    QCOMPARE(focus(), control);
    play_->press(Qt::Key_Tab);
    QVERIFY(focus() != control);
    play_->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(focus(), control);
  }

  void the_new_button_makes_a_puzzle() {
    const std::string before = play_->window.ChaineGrille;
    use("Command1");
    QVERIFY(play_->window.ChaineGrille != before);
  }

  void the_clear_button_clears() {
    use("Check3");
    use("Command2");
    QCOMPARE(play_->window.control(Control::Label).caption, std::string(" 0 indices"));
  }

  void the_open_and_save_buttons_open_a_dialog_that_escape_cancels() {
    for (const char* button : {"Command6", "sauve"}) {
      KeyInDialog cancel({Qt::Key_Escape});
      use(button);
      QCOMPARE(cancel.kind(), "QFileDialog");
    }
  }

  void the_bad_values_button_judges_every_cell() {
    use("Command7");
    const DisplayGrid& grid = play_->window.MSF;
    for (int i = 0; i < 81; ++i)
      QCOMPARE(grid.cell(i / 9, i % 9).text_colour == colour::red, !grid.is_filled(i / 9, i % 9));
  }

  void yes_to_a_hint_places_a_digit() {
    play_->draw(
        "12345678.\n.........\n.........\n.........\n.........\n"
        ".........\n.........\n.........\n.........");
    KeyInDialog yes({Qt::Key_Return, Qt::Key_Escape});
    use("Command8");
    QCOMPARE(yes.kind(), "QMessageBox");
    QCOMPARE(play_->text(1, 9), "9");
  }

  void no_to_a_hint_places_none() {
    play_->draw(
        "12345678.\n.........\n.........\n.........\n.........\n"
        ".........\n.........\n.........\n.........");
    KeyInDialog no({Qt::Key_Escape});
    use("Command8");
    QCOMPARE(no.kind(), "QMessageBox");
    QCOMPARE(play_->text(1, 9), " ");
  }

  void the_solve_button_solves() {
    KeyInDialog ok({Qt::Key_Return});
    use("Bouton_GO");
    QCOMPARE(ok.kind(), "QMessageBox");
    QCOMPARE(play_->window.control(Control::Label).caption, std::string(" 81 indices"));
  }

  void the_help_button_asks_for_the_guide() {
    QSignalSpy asked(play_->frame.findChild<CommandBar*>(), &CommandBar::clicked);
    use("aide");
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked[0][0].value<Control>(), Control::aide);
  }

  void the_about_button_opens_the_box_that_space_closes() {
    use("Command5");
    QVERIFY(play_->window.about().shown());
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Space);
    QVERIFY(!play_->window.about().shown());
  }

  void the_print_button_asks_for_a_file_and_escape_prints_nothing() {
    KeyInDialog cancel({Qt::Key_Escape});
    QCOMPARE(play_->run_program([this] { use("Command4"); }), -1);
    QCOMPARE(cancel.kind(), "QFileDialog");
  }

  void yes_to_the_quit_button_ends_the_program() {
    KeyInDialog yes({Qt::Key_Return});
    QCOMPARE(play_->run_program([this] { use("Command3"); }), 0);
    QCOMPARE(yes.kind(), "QMessageBox");
  }

  void escape_at_the_quit_button_goes_on() {
    KeyInDialog no({Qt::Key_Escape});
    use("Command3");
    QCOMPARE(no.kind(), "QMessageBox");
    QVERIFY(!play_->guard.status());
  }

  void space_ticks_every_option() {
    for (const char* box : {"Check3", "Check1", "Check2"}) {
      const bool before = play_->find<QCheckBox>(box).isChecked();
      use(box);
      QCOMPARE(play_->find<QCheckBox>(box).isChecked(), !before);
    }
    QVERIFY(!globals.ProtegeGrille && play_->window.VerifAuVol && globals.AfficheCandidats);
  }

  void arrows_choose_a_level_in_the_closed_list() {
    go_to("Niveau");
    play_->press(Qt::Key_End);
    QCOMPARE(globals.NiveauCourant, 4);
    play_->press(Qt::Key_Up);
    QCOMPARE(globals.NiveauCourant, 3);
  }

  void arrows_and_return_choose_a_level_in_the_open_list() {
    go_to("Niveau");
    play_->press(Qt::Key_Space);
    QWidget* levels = play_->find<QComboBox>("Niveau").view();
    QVERIFY(QTest::qWaitFor([&] { return levels->isVisible(); }));
    QTest::keyClick(levels, Qt::Key_End);
    QTest::keyClick(levels, Qt::Key_Return);
    QCOMPARE(globals.NiveauCourant, 4);
  }

  void the_keys_of_the_window_reach_it_while_the_list_is_open_and_close_it() {
    QWidget* levels = play_->find<QComboBox>("Niveau").view();
    for (const auto key : {Qt::Key_Escape, Qt::Key_F1, Qt::Key_F2}) {
      go_to("Niveau");
      play_->press(Qt::Key_Space);
      QVERIFY(QTest::qWaitFor([&] { return levels->isVisible(); }));
      globals.ArretDemande = false;
      QTest::keyClick(levels, key);
      QCOMPARE(globals.ArretDemande, key == Qt::Key_Escape);
      QCOMPARE(globals.Langue, std::string(key == Qt::Key_F1 ? "En" : "Fr"));
      QVERIFY(!levels->isVisible());
      QCOMPARE(focus(), "Niveau");
    }
    QCOMPARE(globals.NiveauCourant, 1);
  }

  void the_list_opens_again_in_the_new_language() {
    auto& list = play_->find<QComboBox>("Niveau");
    go_to("Niveau");
    play_->press(Qt::Key_Space);
    QVERIFY(QTest::qWaitFor([&] { return list.view()->isVisible(); }));
    QTest::keyClick(list.view(), Qt::Key_F1);
    play_->press(Qt::Key_Space);
    QVERIFY(QTest::qWaitFor([&] { return list.view()->isVisible(); }));
    QCOMPARE(list.view()->model()->index(4, 0).data(), "Diabolic");
    for (const auto key : {Qt::Key_Home, Qt::Key_End, Qt::Key_Return})
      QTest::keyClick(list.view(), key);
    QCOMPARE(list.currentText(), "Diabolic");
    QCOMPARE(globals.NiveauCourant, 4);
  }

  void arrows_move_in_both_grids() {
    use("Check2");
    for (const char* grid : {"MSF", "MSR"}) {
      go_to(grid);
      play_->press(Qt::Key_Home, Qt::ControlModifier);
      play_->press(Qt::Key_Right);
      play_->press(Qt::Key_Down);
    }
    QCOMPARE(play_->window.MSF.selection(), (CellRange{1, 1, 1, 1}));
    QCOMPARE(play_->window.MSR.selection(), (CellRange{1, 1, 1, 1}));
  }

  void a_puzzle_is_played_with_keys_alone() {
    use("Check3");
    use("Command2");
    go_to("MSF");
    play_->press(Qt::Key_Home, Qt::ControlModifier);
    play_->type("4");
    play_->press(Qt::Key_Right);
    play_->type("4");
    QCOMPARE(play_->window.MSF.cell(0, 1).text_colour, colour::red);
    play_->press(Qt::Key_Delete);
    QCOMPARE(play_->text(1, 1), "4");
    QCOMPARE(play_->text(1, 2), " ");
  }

 private:
  QString focus() { return play_->frame.focusWidget()->objectName(); }
  /// Presses Tab until the control has the focus. A test cannot go on without: the next key would
  /// go to another control, and perhaps open a box that nobody answers.
  void go_to(const QString& control) {
    for (int i = 0; i < 20 && focus() != control; ++i) play_->press(Qt::Key_Tab);
    if (focus() != control) qFatal("Tab does not come to %s", qPrintable(control));
  }
  /// Goes to a button or a box and presses the space bar.
  void use(const char* control) {
    go_to(control);
    play_->press(Qt::Key_Space);
  }

  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::KeyboardTest)
#include "keyboard_test.moc"
