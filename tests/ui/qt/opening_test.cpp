// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Puzzle files in the real window and in the real program.

#include <QFile>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>

#include "tests/ui/qt/play.hpp"
#include "ui/state_check.hpp"

namespace sdk::test {

namespace {

constexpr const char* puzzle =
    "987654321\n1.5927468\n642138579\n426571983\n793482156\n518396742\n371865294\n2697438.5\n"
    ".5421963.\n";

}  // namespace

class OpeningTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    QFile file(path("my puzzle.sdk"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(puzzle);
  }

  void a_puzzle_opens_from_the_dialog() {
    Play play;
    choose_file(path("my puzzle.sdk"));
    play.click("Command6");
    QCOMPARE(play.text(1, 1), "9");
    QCOMPARE(play.text(2, 2), " ");
    QCOMPARE(play.frame.windowTitle(), path("my puzzle.sdk"));
    QCOMPARE(play.frame.cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(play.window.ChaineSolution.substr(9, 3), std::string("135"));
    QCOMPARE(state_fault(play.window), "");
  }

  void a_cancelled_dialog_changes_nothing() {
    Play play;
    const QString title = play.frame.windowTitle();
    later(100, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    play.click("Command6");
    QCOMPARE(play.frame.windowTitle(), title);
  }

  void a_saved_puzzle_opens_in_another_program() {
    QString first;
    {
      Play play;
      choose_file(path("saved.sdk"));
      play.click("sauve");
      for (int r = 1; r <= 9; ++r)
        for (int c = 1; c <= 9; ++c) first += play.text(r, c);
    }
    Play play;
    choose_file(path("saved.sdk"));
    play.click("Command6");
    QString second;
    for (int r = 1; r <= 9; ++r)
      for (int c = 1; c <= 9; ++c) second += play.text(r, c);
    QCOMPARE(second, first);
  }

  void a_save_that_fails_keeps_the_grid_and_ends() {
    Play play;
    BoxAnswer replace(QMessageBox::Yes);
    std::optional<BoxAnswer> ok;
    in_file_dialog([&](QFileDialog& dialog) {
      enter_name(dialog, "/dev/full");
      ok.emplace(QMessageBox::Ok);
    });
    QCOMPARE(play.run_program([&] { play.click("sauve"); }), 1);
    QVERIFY(ok->box().text.contains("/dev/full: No space left on device"));
    QVERIFY(ok->box().text.contains("SuDoKu-1.sdk"));
  }

  void a_missing_file_at_the_start_is_told_before_the_window_is_shown() {
    ProgramGuard guard;
    QtDesktop desktop(guard);
    MainWindow window(desktop);
    MainFrame frame(window, guard);
    desktop.set_window(&frame);
    BoxAnswer ok(QMessageBox::Ok);
    guard.run([&] { window.start(path("missing.sdk").toStdString()); });
    QCOMPARE(ok.box().text,
             "SuDoKu doit s'arrêter (" + path("missing.sdk") + ": No such file or directory)");
    QCOMPARE(guard.status(), std::optional(1));
    QVERIFY(!frame.isVisible());
  }

  void an_empty_file_is_told_in_the_language_on_screen() {
    QFile file(path("empty.sdk"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    for (const bool french : {true, false}) {
      Play play;
      if (!french) play.press(Qt::Key_F1);
      BoxAnswer ok(QMessageBox::Ok);
      choose_file(path("empty.sdk"));
      QCOMPARE(play.run_program([&] { play.click("Command6"); }), 1);
      QVERIFY(ok.box().text.contains(french ? "empty.sdk: le fichier est vide)"
                                            : "empty.sdk: the file is empty)"));
    }
  }

  void a_box_before_the_window_is_shown_stands_in_the_middle_of_the_screen() {
    ProgramGuard guard;
    QtDesktop desktop(guard);
    MainWindow window(desktop);
    MainFrame frame(window, guard);
    desktop.set_window(&frame);
    BoxAnswer ok(QMessageBox::Ok);
    guard.run([&] { window.start(path("missing.sdk").toStdString()); });
    const QPoint off = ok.box().middle - frame.screen()->availableGeometry().center();
    // A frame is only known once it is shown; here its edges are 2 pixels wide.
    QVERIFY(std::abs(off.x()) <= 2 && std::abs(off.y()) <= 2);
  }

  void help_and_version_alone_are_answered_without_a_display() {
    QCOMPARE(output_of({"--version"}), "SuDoKu " PROJECT_VERSION "\n");
    QVERIFY(output_of({"--help"}).startsWith("usage: sudoku [PUZZLE.sdk]\n"));
  }

 private:
  QString path(const QString& name) { return folder_.filePath(name); }

  /// The program itself, which would not start for lack of a display.
  QString output_of(const QStringList& arguments) {
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("DISPLAY", ":no-such-display");
    program.setProcessEnvironment(environment);
    program.start(SUDOKU_PROGRAM, arguments);
    if (!program.waitForFinished() || program.exitCode() != 0) return "it failed";
    return QString::fromUtf8(program.readAllStandardOutput());
  }

  QTemporaryDir folder_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::OpeningTest)
#include "opening_test.moc"
