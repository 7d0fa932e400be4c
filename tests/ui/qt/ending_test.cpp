// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include <QStandardPaths>
#include <QToolButton>

#include "tests/ui/qt/play.hpp"
#include "ui/state_check.hpp"
#include "ui/version.hpp"

namespace sdk::test {

namespace {

/// Its last cell has no digit left, and a search finds that out only after more steps than anyone
/// can wait for.
constexpr const char* endless_grid =
    "........9\n.........\n.........\n.........\n.........\n"
    ".........\n.........\n.........\n12345678.";

}  // namespace

class EndingTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { play_.emplace(); }
  void cleanup() { play_.reset(); }

  void no_to_the_quit_question_goes_on() {
    BoxAnswer no(QMessageBox::No);
    QCOMPARE(play_->run_program([this] { play_->click("Command3"); }), -1);
    QCOMPARE(no.box().text, QString("Voulez-vous vraiment quitter %1? ").arg(program_title));
    QCOMPARE(no.box().title, program_title);
    QVERIFY(!play_->guard.status());
    QVERIFY(play_->frame.isVisible());
  }

  void yes_to_the_quit_question_ends_the_program() {
    BoxAnswer yes(QMessageBox::Yes);
    QCOMPARE(play_->run_program([this] { play_->click("Command3"); }), 0);
    QVERIFY(yes.was_shown());
    QCOMPARE(play_->guard.status(), std::optional(0));
  }

  void the_close_button_asks_too() {
    {
      BoxAnswer no(QMessageBox::No);
      QCOMPARE(play_->run_program([this] { play_->frame.close(); }), -1);
      QVERIFY(no.was_shown());
      QVERIFY(play_->frame.isVisible());
    }
    BoxAnswer yes(QMessageBox::Yes);
    QCOMPARE(play_->run_program([this] { play_->frame.close(); }), 0);
    QVERIFY(yes.was_shown());
  }

  void escape_in_the_quit_question_means_no() {
    later(100, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    QCOMPARE(play_->run_program([this] { play_->click("Command3"); }), -1);
    QVERIFY(!play_->guard.status());
  }

  void the_buttons_of_a_box_speak_the_language_of_the_game() {
    for (const auto& [key, words] : {std::pair(Qt::Key_F1, QStringList{"Yes", "No"}),
                                     std::pair(Qt::Key_F2, QStringList{"Oui", "Non"})}) {
      play_->press(key);
      BoxAnswer no(QMessageBox::No);
      play_->click("Command3");
      QCOMPARE(no.box().buttons, words);
    }
  }

  void the_end_of_the_session_asks_nothing() {
    BoxAnswer never(QMessageBox::No);
    const int status = play_->run_program([this] {
      play_->frame.expect_session_end();
      play_->frame.close();
    });
    QCOMPARE(status, 0);
    QVERIFY(!never.was_shown());
  }

  void a_session_that_goes_on_after_all_is_asked_about_again() {
    play_->frame.expect_session_end();
    play_->click_cell(1, 1);
    BoxAnswer no(QMessageBox::No);
    QCOMPARE(play_->run_program([this] { play_->frame.close(); }), -1);
    QVERIFY(no.was_shown());
  }

  void a_page_that_cannot_be_written_saves_the_grid_and_ends_with_status_1() {
    BoxAnswer replace(QMessageBox::Yes);
    std::optional<BoxAnswer> ok;
    in_file_dialog([&](QFileDialog& dialog) {
      enter_name(dialog, "/dev/full");
      ok.emplace(QMessageBox::Ok);
    });
    QCOMPARE(play_->run_program([this] { play_->click("Command4"); }), 1);
    QVERIFY(ok->box().text.contains("/dev/full: No space left on device"));
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QVERIFY(ok->box().text.contains(folder));
    QVERIFY(QFile::exists(folder + "/SuDoKu-1.sdk"));
  }

  void nothing_runs_after_the_end() {
    play_->draw(endless_grid);
    play_->click_cell(1, 1);
    BoxAnswer yes(QMessageBox::Yes);
    play_->run_program([this] { play_->frame.close(); });
    const auto before = play_->window.MSF.text(0, 0);
    play_->type("5");
    QCOMPARE(play_->window.MSF.text(0, 0), before);
    int runs = 0;
    play_->guard.run([&] { ++runs; });
    QCOMPARE(runs, 0);
    QVERIFY_THROWS_EXCEPTION(ProgramEnd, play_->guard.rethrow());
  }

  void a_box_that_the_end_closes_has_no_answer() {
    later(50, [this] { play_->guard.run([] { throw ProgramEnd{3}; }); });
    QVERIFY_THROWS_EXCEPTION(ProgramEnd, play_->desktop.message_box("Solve?", Icon::question,
                                                                    Buttons::yes_no, "SuDoKu"));
    QCOMPARE(play_->guard.status(), 3);
  }

  void a_search_solves_the_puzzle() {
    BoxAnswer completed(QMessageBox::Ok);
    play_->run_program([this] { play_->click("Bouton_GO"); });
    QCOMPARE(completed.box().text, "Grille terminée!!");
    QVERIFY(play_->text(1, 1) != " ");
    QCOMPARE(state_fault(play_->window), "");
  }

  void escape_stops_a_search_and_leaves_the_grid_as_it_was() {
    play_->draw(endless_grid);
    later(50, [this] {
      QCOMPARE(play_->window.searches_running, 1);
      QCOMPARE(play_->frame.cursor().shape(), Qt::WaitCursor);
      play_->type("5");
      play_->press(Qt::Key_Escape);
    });
    BoxAnswer stopped(QMessageBox::Ok);
    QCOMPARE(play_->run_program([this] { play_->click("Bouton_GO"); }), -1);
    QCOMPARE(stopped.box().text, "Résolution interrompu!");
    QCOMPARE(play_->window.searches_running, 0);
    QCOMPARE(play_->text(1, 1), " ");
    QCOMPARE(play_->frame.cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(state_fault(play_->window), "");
  }

  void the_grid_keeps_the_focus_through_a_search_that_tab_does_not_reach() {
    play_->draw(endless_grid);
    later(50, [this] {
      QVERIFY(!(play_->find("MSF").focusPolicy() & Qt::TabFocus));
      QVERIFY(play_->find("MSF").hasFocus());
      play_->press(Qt::Key_Escape);
    });
    BoxAnswer stopped(QMessageBox::Ok);
    play_->run_program([this] { play_->click("Bouton_GO"); });
    play_->settle();
    QVERIFY(play_->find("MSF").focusPolicy() & Qt::TabFocus);
    QCOMPARE(play_->frame.focusWidget(), &play_->find("MSF"));
  }

  void quitting_during_a_search_ends_the_program_at_once() {
    play_->draw(endless_grid);
    BoxAnswer yes(QMessageBox::Yes);
    later(50, [this] { play_->frame.close(); });
    QCOMPARE(play_->run_program([this] { play_->click("Bouton_GO"); }), 0);
    QVERIFY(yes.was_shown());
    QCOMPARE(play_->window.searches_running, 0);
  }

  void no_to_quitting_during_a_search_lets_it_go_on() {
    play_->draw(endless_grid);
    BoxAnswer no(QMessageBox::No);
    std::optional<BoxAnswer> stopped;
    later(50, [&] {
      play_->click("Command3");
      QCOMPARE(play_->window.searches_running, 1);
      stopped.emplace(QMessageBox::Ok);
      play_->press(Qt::Key_Escape);
    });
    QCOMPARE(play_->run_program([this] { play_->click("Bouton_GO"); }), -1);
    QVERIFY(no.was_shown());
    QVERIFY(stopped && stopped->was_shown());
    QVERIFY(!play_->guard.status());
  }

  void a_new_puzzle_may_be_made_during_a_search() {
    play_->draw(endless_grid);
    later(50, [this] {
      play_->click("Command1");
      play_->press(Qt::Key_Escape);
    });
    BoxAnswer stopped(QMessageBox::Ok);
    QCOMPARE(play_->run_program([this] { play_->click("Bouton_GO"); }), -1);
    QCOMPARE(stopped.box().text, "Résolution interrompu!");
    QCOMPARE(state_fault(play_->window), "");
  }

 private:
  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::EndingTest)
#include "ending_test.moc"
