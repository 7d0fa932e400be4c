// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The program itself as it is started.

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace sdk::test {

class ProgramTest : public QObject {
  Q_OBJECT

 private slots:
  void it_opens_its_window_in_the_middle_of_the_screen() {
    QCOMPARE(seen(),
             (QStringList{"window: in the middle", "name: sudoku", "desktop file: sudoku-pas-a-pas",
                          "icon: some", "style: fusion", "scale: 1"}));
  }

  void an_answer_that_cannot_be_written_is_a_failure() {
    QProcess shell;
    shell.start("/bin/sh", {"-c", SUDOKU_PROGRAM " --version >/dev/full"});
    QVERIFY(shell.waitForFinished());
    QCOMPARE(shell.exitCode(), 1);
  }

  void an_answer_that_was_written_is_none() {
    QProcess shell;
    shell.start("/bin/sh", {"-c", SUDOKU_PROGRAM " --version >/dev/null"});
    QVERIFY(shell.waitForFinished());
    QCOMPARE(shell.exitCode(), 0);
  }

 private:
  /// What the witness says of a started program.
  static QStringList seen() {
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home.path());
    environment.insert("XDG_RUNTIME_DIR", home.path());
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("QT_PLUGIN_PATH", PLUGINS);
    environment.insert("QT_QPA_GENERIC_PLUGINS", "witness");
    environment.insert("QT_SCALE_FACTOR", "0.5");  // too small to be obeyed
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(SUDOKU_PROGRAM, {});
    if (!program.waitForFinished(60'000) || program.exitCode() != 0) return {"it failed"};
    return QString::fromUtf8(program.readAllStandardOutput()).trimmed().split('\n');
  }
};

}  // namespace sdk::test

QTEST_GUILESS_MAIN(sdk::test::ProgramTest)
#include "program_test.moc"
