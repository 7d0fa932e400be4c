// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What the player can do, and what he sees, while a search runs.

#include <QElapsedTimer>
#include <QLabel>
#include <QTemporaryDir>
#include <QToolButton>

#include "tests/ui/qt/play.hpp"
#include "ui/qt/long_search.hpp"
#include "ui/state_check.hpp"

namespace sdk::test {

namespace {

/// Its last cell has no digit left, and a search finds that out only after more steps than anyone
/// can wait for.
constexpr const char* endless_grid =
    "........9\n.........\n.........\n.........\n.........\n"
    ".........\n.........\n.........\n12345678.";

constexpr const char* puzzle =
    "987654321\n1.5927468\n642138579\n426571983\n793482156\n518396742\n371865294\n2697438.5\n"
    ".5421963.\n";

const QString stopped_text = "Résolution interrompu!";

}  // namespace

class SearchTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    play_.emplace();
    play_->draw(endless_grid);
  }
  void cleanup() { play_.reset(); }

  void a_command_stops_the_search_and_is_done_after_its_box_data() {
    QTest::addColumn<QString>("command");
    for (const char* command : {"Command1", "Command2", "Command7", "Command8", "undo", "redo"})
      QTest::newRow(command) << command;
  }

  void a_command_stops_the_search_and_is_done_after_its_box() {
    QFETCH(QString, command);
    play_->click_cell(5, 5);
    play_->type("1");
    play_->press(Qt::Key_Delete);
    play_->press(Qt::Key_Z, Qt::ControlModifier);
    const GameState before = play_->window.game_state();
    BoxAnswer stopped(QMessageBox::Ok);
    search_and([&] {
      play_->click(command.toUtf8().constData());
      QVERIFY(play_->window.game_state().has_texts_of(before));
    });
    QCOMPARE(stopped.box().text, stopped_text);
    QCOMPARE(state_fault(play_->window), "");
    QVERIFY(was_done(command));
  }

  void a_new_puzzle_is_judged_by_its_own_solution() {
    BoxAnswer stopped(QMessageBox::Ok);
    search_and([this] { play_->click("Command1"); });
    QVERIFY(stopped.was_shown());
    for (int cell = 0; cell < 81; ++cell) {
      const QString text = play_->text(cell / 9 + 1, cell % 9 + 1);
      const char right = play_->window.ChaineSolution.at(static_cast<std::size_t>(cell));
      QVERIFY(text == " " || text == QString(QChar(right)));
    }
  }

  void a_file_is_opened_as_it_is() {
    QTemporaryDir folder;
    const QString path = save(folder.filePath("one.sdk"), puzzle);
    BoxAnswer stopped(QMessageBox::Ok);
    const auto open = [&] {
      play_->click("Command6");
      later(0, [&] { choose_when_asked(path); });
    };
    search_and(open);
    QVERIFY(stopped.was_shown());
    QCOMPARE(play_->frame.windowTitle(), path);
    QCOMPARE(play_->text(1, 1), "9");
    QCOMPARE(play_->text(2, 2), " ");
    QCOMPARE(play_->window.ChaineSolution.substr(9, 3), std::string("135"));
  }

  void a_save_writes_the_grid_that_is_shown() {
    QTemporaryDir folder;
    const QString path = folder.filePath("saved.sdk");
    BoxAnswer stopped(QMessageBox::Ok);
    search_and([&] {
      play_->click("sauve");
      later(0, [&] { choose_when_asked(path); });
    });
    QVERIFY(stopped.was_shown());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString(file.readLine()).remove(' ').trimmed(), "........9");
  }

  void a_page_is_printed_after_the_search() {
    QTemporaryDir folder;
    const QString path = folder.filePath("page.pdf");
    BoxAnswer stopped(QMessageBox::Ok);
    search_and([&] {
      play_->click("Command4");
      later(0, [&] { choose_when_asked(path); });
    });
    QVERIFY(stopped.was_shown());
    QVERIFY(QFile::exists(path));
  }

  void the_last_command_is_done_alone() {
    const QString title = play_->frame.windowTitle();
    BoxAnswer stopped(QMessageBox::Ok);
    search_and([this] {
      play_->click("Command6");
      play_->click("Command1");
      play_->click("Command2");
    });
    QVERIFY(stopped.was_shown());
    QCOMPARE(play_->frame.windowTitle(), title);
    QCOMPARE(play_->text(9, 1), "1");
    QCOMPARE(play_->text(1, 9), "9");
    QVERIFY(!open_dialog());
  }

  void a_new_puzzle_is_made_when_the_solving_of_an_opened_one_is_stopped() {
    QTemporaryDir folder;
    const QString path = save(folder.filePath("endless.sdk"), endless_grid);
    play_.reset();
    play_.emplace(path.toStdString());
    BoxAnswer stopped(QMessageBox::Ok);
    later(50, [this] { play_->click("Command1"); });
    QCOMPARE(play_->run_program([this] { play_->frame.finish_start(); }), -1);
    play_->settle();
    QVERIFY(stopped.was_shown());
    QVERIFY(play_->frame.windowTitle() != path);
    QCOMPARE(state_fault(play_->window), "");
  }

  void solve_pressed_again_does_nothing() {
    BoxAnswer stopped(QMessageBox::Ok);
    search_and([this] {
      for (int press = 0; press < 4; ++press) play_->click("Bouton_GO");
      QCOMPARE(play_->window.searches_running, 1);
      play_->press(Qt::Key_Escape);
    });
    QVERIFY(stopped.was_shown());
    QCOMPARE(play_->window.searches_running, 0);
  }

  void solve_does_not_take_the_place_of_a_command_that_waits() {
    BoxAnswer stopped(QMessageBox::Ok);
    search_and([this] {
      play_->click("Command1");
      play_->click("Bouton_GO");
    });
    QVERIFY(stopped.was_shown());
    QVERIFY(play_->text(1, 9) != "9" || play_->text(9, 1) != "1" || play_->text(9, 2) != "2");
    QCOMPARE(play_->window.searches_running, 0);
  }

  void what_leaves_the_grid_alone_acts_at_once() {
    BoxAnswer stopped(QMessageBox::Ok);
    search_and([this] {
      play_->press(Qt::Key_F1);
      QCOMPARE(play_->find("Command1").toolTip(), "New puzzle");
      play_->click("Check1");
      QVERIFY(play_->window.VerifAuVol);
      play_->click("Command5");
      QVERIFY(play_->window.about().shown());
      QCOMPARE(play_->window.searches_running, 1);
      play_->window.close_about();
      play_->press(Qt::Key_Escape);
    });
    QCOMPARE(stopped.box().text, "Solver stopped!");
  }

  void a_search_that_lasts_is_told_in_the_language_on_screen() {
    BoxAnswer stopped(QMessageBox::Ok);
    later(600, [this] {
      QVERIFY(notice().isVisible());
      QCOMPARE(notice().text(), "Recherche en cours… Échap l'arrête.");
      play_->press(Qt::Key_F1);
      QCOMPARE(notice().text(), "Searching… Escape stops it.");
      play_->press(Qt::Key_Escape);
    });
    search_and([this] { QVERIFY(!notice().isVisible()); });
    QVERIFY(stopped.was_shown());
    QVERIFY(!notice().isVisible());
    QVERIFY(!play_->find("explanation").isVisible());
  }

  void the_notice_is_gone_before_the_box_is_answered() {
    later(600, [this] { play_->press(Qt::Key_Escape); });
    later(800, [this] {
      QVERIFY(open_dialog());
      QVERIFY(!notice().isVisible());
      open_dialog()->close();
    });
    search_and([] {});
  }

  void the_notice_fits_its_room_in_both_layouts_and_languages() {
    BoxAnswer stopped(QMessageBox::Ok);
    later(600, [this] {
      for (const Qt::Key language : {Qt::Key_F1, Qt::Key_F2})
        for (int layout = 0; layout < 2; ++layout) {
          play_->press(language);
          play_->click("Check2");
          const QSize room = notice().size();
          QVERIFY(notice().heightForWidth(room.width()) <= room.height());
          QVERIFY(
              play_->frame.rect().contains(QRect(notice().mapTo(&play_->frame, QPoint()), room)));
        }
      play_->press(Qt::Key_Escape);
    });
    search_and([] {});
    QVERIFY(stopped.was_shown());
  }

  void the_notice_is_bold() {
    QVERIFY(notice().font().bold());
    QVERIFY(notice().wordWrap());
  }

  void a_search_that_is_over_soon_is_never_noticed() {
    int changes = 0;
    LongSearch search([&] { ++changes; });
    search.set_searches(1);
    search.set_searches(0);
    QTest::qWait(400);
    QVERIFY(!search.is_noticed());
    QCOMPARE(changes, 0);
  }

  void searches_within_a_search_do_not_put_its_notice_off() {
    int changes = 0;
    LongSearch search([&] { ++changes; });
    QElapsedTimer time;
    time.start();
    for (int running = 1; !search.is_noticed() && time.elapsed() < 3000; ++running) {
      search.set_searches(running);
      QTest::qWait(20);
    }
    QVERIFY(search.is_noticed());
    QVERIFY(time.elapsed() >= 280);
    search.set_searches(0);
    QVERIFY(!search.is_noticed());
    QCOMPARE(changes, 2);
  }

  void the_steps_of_a_hint_come_back_after_the_search() {
    play_->click("Command8");
    QVERIFY(play_->find("steps").isVisible());
    BoxAnswer stopped(QMessageBox::Ok);
    later(600, [this] {
      QVERIFY(notice().isVisible());
      QVERIFY(!play_->find("steps").isVisible());
      play_->press(Qt::Key_Escape);
    });
    search_and([] {});
    QVERIFY(!notice().isVisible());
    QVERIFY(play_->find("steps").isVisible());
  }

 private:
  /// Solves, and does `actions` in the middle of the search.
  void search_and(const std::function<void()>& actions) {
    later(50, [&] {
      QCOMPARE(play_->window.searches_running, 1);
      actions();
    });
    QCOMPARE(play_->run_program([this] { play_->click("Bouton_GO"); }), -1);
    play_->settle();
  }

  QLabel& notice() { return play_->find<QLabel>("searching"); }

  /// Chooses the file once the dialog is open.
  void choose_when_asked(const QString& path) {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (dialog && dialog->isVisible()) return enter_name(*dialog, path);
    later(20, [this, path] { choose_when_asked(path); });
  }

  QString save(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("no file");
    return path;
  }

  /// The puzzle that the digits are compared with is made at random, and may have some of them.
  bool some_digit_is_red() const {
    for (int row = 0; row < DisplayGrid::size; ++row)
      for (int column = 0; column < DisplayGrid::size; ++column)
        if (play_->window.MSF.cell(row, column).text_colour == colour::red) return true;
    return false;
  }

  /// What each command leaves where a digit was typed in the middle and can be taken back, or away
  /// again.
  bool was_done(const QString& command) {
    const MainWindow& window = play_->window;
    const bool empty = play_->text(5, 5) == " ";
    if (command == "Command1") return play_->text(1, 9) != "9" || play_->text(9, 1) != "1";
    if (command == "Command2") return empty && window.can_undo() && !window.can_redo();
    if (command == "Command7") return some_digit_is_red();
    if (command == "Command8") return window.explanation().size() > 0;
    if (command == "undo") return empty && window.can_redo();
    return empty && window.can_undo() && !window.can_redo();
  }

  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::SearchTest)
#include "search_test.moc"
