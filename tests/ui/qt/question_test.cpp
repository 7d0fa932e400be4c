// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// While a hint asks, its explanation is read step by step and everything else waits.

#include <QAccessible>
#include <QCheckBox>
#include <QPushButton>
#include <QToolButton>
#include <QWindow>

#include "tests/ui/qt/play.hpp"
#include "ui/qt/step_list.hpp"

namespace sdk::test {

namespace {

/// A hint for it finds a chain of two colours, then a naked single.
constexpr const char* chain_grid =
    "4387.9.1.\n165248379\n29713..84\n346.719..\n852493761\n"
    "719..2.43\n.8132.497\n.2498713.\n973.14...";

using Step = std::optional<std::size_t>;

}  // namespace

class QuestionTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    play_.emplace();
    play_->draw(chain_grid);
    play_->press(Qt::Key_F2);
    play_->click("Check2");
  }
  void cleanup() { play_.reset(); }

  void the_steps_are_led_through_by_the_mouse() {
    ask([this] {
      click("next_step");
      QCOMPARE(chosen(), Step(0));
      QCOMPARE(list().chosen(), Step(0));
      click("previous_step");
      QCOMPARE(chosen(), Step());
      list().scrollToBottom();
      click(list().viewport(), row(1).center());
      QCOMPARE(chosen(), Step(1));
    });
  }

  void the_steps_are_led_through_by_keys_and_tab_comes_back_to_the_box() {
    ask([this] {
      QStringList visited;
      for (int i = 0; i < 6; ++i) {
        visited << focus_name();
        press(Qt::Key_Tab);
      }
      QCOMPARE(visited,
               (QStringList{"&Oui", "&Non", "steps", "previous_step", "next_step", "&Oui"}));
      press(Qt::Key_Backtab, Qt::ShiftModifier);
      press(Qt::Key_Backtab, Qt::ShiftModifier);
      QCOMPARE(focus_name(), "next_step");
      press(Qt::Key_Space);
      QCOMPARE(chosen(), Step(0));
      press(Qt::Key_Backtab, Qt::ShiftModifier);
      press(Qt::Key_Backtab, Qt::ShiftModifier);
      press(Qt::Key_End);
      QCOMPARE(chosen(), Step(1));
    });
  }

  void escape_in_the_list_leaves_the_step_and_then_goes_back_to_the_box() {
    ask([this] {
      press(Qt::Key_Backtab, Qt::ShiftModifier);
      press(Qt::Key_Space);
      QCOMPARE(chosen(), Step(0));
      press(Qt::Key_Escape);
      QCOMPARE(chosen(), Step());
      QVERIFY(box().isVisible());
      press(Qt::Key_Escape);
      QVERIFY(box().isVisible());
      QVERIFY(box().isActiveWindow());
    });
  }

  void escape_that_leaves_a_step_goes_no_further() {
    ask([this] {
      press(Qt::Key_Backtab, Qt::ShiftModifier);
      press(Qt::Key_Space);
      press(Qt::Key_Escape);
      QCOMPARE(chosen(), Step());
      QCOMPARE(focus_name(), "next_step");
      press(Qt::Key_F1);
      QCOMPARE(focus_name(), "next_step");
    });
  }

  void the_window_that_comes_to_the_front_gives_the_keys_to_the_list() {
    ask([this] {
      play_->frame.activateWindow();
      play_->settle();
      QCOMPARE(focus_name(), "steps");
    });
  }

  void the_window_that_comes_back_to_the_front_leaves_the_keys_where_they_were() {
    ask([this] {
      press(Qt::Key_Backtab, Qt::ShiftModifier);
      QCOMPARE(focus_name(), "next_step");
      box().activateWindow();
      play_->settle();
      QCOMPARE(focus_name(), "&Oui");
      play_->frame.activateWindow();
      play_->settle();
      QCOMPARE(focus_name(), "next_step");
    });
  }

  void tab_in_what_waits_leads_to_the_box() {
    ask([this] {
      for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        play_->frame.activateWindow();
        play_->settle();
        QTest::keyClick(&play_->find("MSF"), key);
        play_->settle();
        QCOMPARE(focus_name(), "&Oui");
        QVERIFY(box().isActiveWindow());
      }
    });
  }

  void tab_goes_from_left_to_right_on_desktops_that_put_no_first() {
    qApp->setStyleSheet("QDialogButtonBox { button-layout: 1 }");
    ask([this] {
      box().button(QMessageBox::No)->setFocus();
      QVERIFY(box().button(QMessageBox::No)->x() < box().button(QMessageBox::Yes)->x());
      press(Qt::Key_Tab);
      QCOMPARE(focus_name(), "&Oui");
      press(Qt::Key_Tab);
      QCOMPARE(focus_name(), "steps");
    });
    qApp->setStyleSheet("");
  }

  void nothing_else_answers_the_mouse() {
    ask([this] {
      const auto cells = play_->window.MSF.cells();
      click(play_->find<GridView>("MSF").viewport(), play_->cell(4, 4));
      for (const char* name : {"Command1", "Command2", "Command3", "Command5", "Command7",
                               "Command8", "Bouton_GO", "Check1", "Check2", "Check3", "Niveau"}) {
        play_->frame.activateWindow();
        click(name);
        QVERIFY2(box().isVisible() && box().isActiveWindow(), name);
        QVERIFY2(!QApplication::activePopupWidget(), name);
      }
      wheel(play_->find("Niveau"));
      QCOMPARE(play_->window.MSF.cells(), cells);
      QCOMPARE(play_->window.MSF.current_row(), 0);
      QVERIFY(play_->find<QCheckBox>("Check2").isChecked());
      QVERIFY(!play_->window.about().shown());
      QCOMPARE(globals.NiveauCourant, 1);
    });
  }

  void no_key_reaches_the_game() {
    ask([this] {
      const auto cells = play_->window.MSF.cells();
      for (QWidget* widget : {&play_->find("MSF"), &play_->find("Command1"), &play_->find("steps")})
        for (const auto key : {Qt::Key_F1, Qt::Key_6, Qt::Key_Space, Qt::Key_Delete}) {
          QTest::keyClick(widget, key);
          play_->settle();
        }
      QCOMPARE(globals.Langue, std::string("Fr"));
      QCOMPARE(play_->window.MSF.cells(), cells);
    });
  }

  void the_window_does_not_close() {
    ask([this] {
      QVERIFY(!play_->frame.close());
      QVERIFY(box().isVisible());
      QVERIFY(!play_->guard.status());
    });
  }

  void a_screen_reader_cannot_press_what_waits() {
    ask([this] {
      for (const char* name : {"Command1", "Check2"}) {
        QAccessibleInterface* button = QAccessible::queryAccessibleInterface(&play_->find(name));
        for (const QString& action : button->actionInterface()->actionNames())
          button->actionInterface()->doAction(action);
        play_->settle();
      }
      QVERIFY(play_->find<QCheckBox>("Check2").isChecked());
      QCOMPARE(play_->text(1, 1), "4");
      QVERIFY(box().isVisible());
    });
  }

  void the_end_of_the_session_closes_without_a_question() {
    const int status = play_->run_program([this] {
      later(50, [this] {
        play_->frame.expect_session_end();
        play_->frame.close();
      });
      play_->click("Command8");
    });
    QCOMPARE(status, 0);
  }

  void no_answer_keeps_the_step_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("cell");
    QTest::newRow("Return") << int(Qt::Key_Return) << "8";
    QTest::newRow("Escape") << int(Qt::Key_Escape) << " ";
    QTest::newRow("the box is closed") << 0 << " ";
  }
  void no_answer_keeps_the_step() {
    QFETCH(int, key);
    QFETCH(QString, cell);
    const QImage before = candidates();
    std::optional<BoxAnswer> next;
    later(50, [&] {
      click("next_step");
      QCOMPARE(chosen(), Step(0));
      if (cell != " ") later(20, [&] { next.emplace(QMessageBox::No); });
      QMessageBox& asked = box();
      key ? QTest::keyClick(asked.focusWidget(), Qt::Key(key)) : void(asked.close());
    });
    play_->click("Command8");
    QCOMPARE(play_->text(6, 7), cell);
    QCOMPARE(chosen(), Step());
    if (cell == " ") QVERIFY(candidates() != before);  // the marks of the hint are there
    QVERIFY(play_->find("MSF").hasFocus());
  }

  void the_focus_comes_back_to_the_grid_from_the_list() {
    ask([this] {
      press(Qt::Key_Backtab, Qt::ShiftModifier);
      QCOMPARE(focus_name(), "next_step");
    });
    play_->settle();
    QVERIFY(play_->find("MSF").hasFocus());
    QVERIFY(play_->find("explanation").isVisible());
    QVERIFY(play_->frame.isActiveWindow());
  }

  void the_sentence_of_the_offer_is_the_description_of_the_box() {
    ask([this] {
      QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&box());
      QCOMPARE(heard->text(QAccessible::Description),
               list().model()->index(1, 0).data().toString());
    });
  }

  void the_rows_are_named_by_their_sentences() {
    ask([this] {
      QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&list());
      QCOMPARE(heard->role(), QAccessible::List);
      QCOMPARE(heard->childCount(), 2);
      QVERIFY(heard->child(1)->text(QAccessible::Name).startsWith("2. Singleton nu"));
      QCOMPARE(heard->child(1)->role(), QAccessible::ListItem);
    });
  }

  void a_screen_reader_chooses_a_row() {
    ask([this] {
      QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&list());
      heard->child(0)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
      QCOMPARE(chosen(), Step(0));
      play_->settle();
      QVERIFY(heard->child(0)->state().selected);
    });
  }

  void the_cells_speak_the_chosen_step() {
    ask([this] {
      click("next_step");
      QCOMPARE(spoken("MSR", 6, 7), "ligne 6, colonne 7: 5 8, perd 5");
      click("previous_step");
      QCOMPARE(spoken("MSR", 6, 7), "ligne 6, colonne 7: 8, appui");
    });
  }

  void without_the_candidates_only_marked_cells_of_the_puzzle_speak_the_step() {
    play_->click("Check2");
    ask([this] {
      click("next_step");
      QCOMPARE(spoken("MSF", 6, 7), "ligne 6, colonne 7: 5 8, perd 5");
      QCOMPARE(spoken("MSF", 6, 4), "ligne 6, colonne 4: vide");
    });
  }

  void the_box_hides_neither_the_steps_nor_the_candidates() {
    ask([this] {
      const QRect place = box().frameGeometry();
      for (const char* name : {"explanation", "MSR"}) {
        const QWidget& widget = play_->find(name);
        QVERIFY2(!place.intersects(QRect(widget.mapToGlobal(QPoint()), widget.size())), name);
      }
    });
  }

 private:
  StepList& list() { return play_->find<StepList>("steps"); }
  QRect row(int number) { return list().visualRect(list().model()->index(number, 0)); }
  Step chosen() { return play_->window.explanation().chosen(); }
  QMessageBox& box() {
    auto* box = qobject_cast<QMessageBox*>(open_dialog());
    if (!box) qFatal("no question is open");
    return *box;
  }
  QImage candidates() { return play_->find("MSR").grab().toImage(); }
  QString spoken(const char* grid, int row, int column) {
    const QAbstractItemModel& model = *play_->find<GridView>(grid).model();
    return model.data(model.index(row - 1, column - 1), Qt::AccessibleTextRole).toString();
  }
  QString focus_name() {
    const auto* focus = QApplication::focusWidget();
    if (!focus) return "none";
    const auto* button = qobject_cast<const QPushButton*>(focus);
    return button ? button->text() : focus->objectName();
  }
  /// As the system gives events: to the window under the mouse, and to what has the focus.
  void click(QWidget* widget, QPoint place) {
    QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, {},
                      widget->mapTo(widget->window(), place));
    play_->settle();
  }
  void click(const char* name) {
    QWidget& widget = play_->find(name);
    click(&widget, QPoint(10, widget.height() / 2));
  }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    play_->settle();
  }
  static void wheel(QWidget& widget) {
    const QPointF middle = QRectF(widget.rect()).center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, -120}, {}, {}, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&widget, &event);
  }
  /// Asks for a hint, acts while its question is open, and answers No by Escape in the box.
  void ask(const std::function<void()>& actions) {
    later(50, [&] {
      play_->settle();
      actions();
      if (QTest::currentTestFailed()) play_->settle();
      QTest::keyClick(&box(), Qt::Key_Escape);
    });
    play_->click("Command8");
    QVERIFY(!open_dialog());
    QCOMPARE(chosen(), Step());
  }

  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::QuestionTest)
#include "question_test.moc"
