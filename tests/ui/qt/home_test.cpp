// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What a run of the program itself leaves in its player's home.

#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "tests/support/machine.hpp"

namespace sdk::test {

class HomeTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    home_.emplace();
    write_file(home_->filePath("a.sdk").toStdString(), puzzle);
  }

  void a_run_that_opened_saved_and_printed_leaves_what_was_asked_for() {
    QCOMPARE(status_of("Command6=a.sdk;sauve=b.sdk;Command4=c.pdf;Command6=b.sdk;Command3"), 0);
    QCOMPARE(files(), (QStringList{"a.sdk", "b.sdk", "c.pdf"}));
  }

  void a_run_that_used_no_file_leaves_nothing() {
    QCOMPARE(status_of("Command1;Bouton_GO;Command3"), 0);
    QCOMPARE(files(), QStringList{"a.sdk"});
  }

  void dialogs_begin_in_the_folder_of_the_file_that_was_opened_at_the_start() {
    QVERIFY(QDir(home_->path()).mkdir("puzzles"));
    QVERIFY(QFile::rename(home_->filePath("a.sdk"), home_->filePath("puzzles/a.sdk")));
    QCOMPARE(status_of("sauve=b.sdk;Command3", {home_->filePath("puzzles/a.sdk")}), 0);
    QCOMPARE(files(), (QStringList{"puzzles", "puzzles/a.sdk", "puzzles/b.sdk"}));
  }

  void a_file_that_is_missing_at_the_start_ends_the_program() {
    QCOMPARE(status_of("Command3", {home_->filePath("missing.sdk")}), 1);
  }

  void settings_that_were_there_stay_as_they_were() {
    QVERIFY(QDir(home_->path()).mkdir(".config"));
    const QString settings = home_->filePath(".config/QtProject.conf");
    write_file(settings.toStdString(), "[FileDialog]\nhistory=file:///somewhere\n");
    QCOMPARE(status_of("Command6=a.sdk;Command3"), 0);
    QFile file(settings);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "[FileDialog]\nhistory=file:///somewhere\n");
  }

 private:
  /// Plays with a home of its own, started with `arguments`.
  int status_of(const QString& steps, const QStringList& arguments = {}) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& name : environment.keys())
      if (name.startsWith("XDG_")) environment.remove(name);
    environment.insert("HOME", home_->path());
    environment.insert("CUPS_SERVER", "/nonexistent/cups");
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("QT_PLUGIN_PATH", PLAYER_PLUGIN);
    environment.insert("QT_QPA_GENERIC_PLUGINS", "player:" + steps);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(SUDOKU_PROGRAM, arguments);
    const bool ended = program.waitForFinished(20'000);
    return ended && program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
  }

  /// All that the home holds, folders too, in order.
  QStringList files() {
    QStringList names;
    QDirIterator all(home_->path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) names << QDir(home_->path()).relativeFilePath(all.next());
    names.sort();
    return names;
  }

  std::optional<QTemporaryDir> home_;
};

}  // namespace sdk::test

QTEST_GUILESS_MAIN(sdk::test::HomeTest)
#include "home_test.moc"
