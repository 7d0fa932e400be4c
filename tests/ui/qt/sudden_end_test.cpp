// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What the whole program leaves behind when it is told to end, or its process exits.

#include <signal.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>
#include <cstdlib>

#include "ui/qt/sudden_end.hpp"

namespace sdk::test {

namespace {

constexpr const char* puzzle =
    "..39.5..1\n6...3....\n.9.6....4\n...8..3..\n.5.....2.\n..8..1...\n4....6.7.\n....2...8\n"
    "5..4.72..\n";

QByteArray content(const QString& name) {
  QFile file(name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& name, const QByteArray& bytes) {
  QFile file(name);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
    qFatal("%s cannot be written", qPrintable(name));
}

}  // namespace

class SuddenEndTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    folder_.emplace();
    for (const char* name : {"home", "data", "tmp"}) QDir(folder_->path()).mkdir(name);
    write(folder_->filePath("puzzle.sdk"), puzzle);
  }
  void cleanup() {
    game_.kill();
    game_.waitForFinished();
    folder_.reset();
  }

  void a_signal_ends_the_game_with_its_status_and_rescues_the_grid_data() {
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("name");
    QTest::newRow("SIGTERM") << SIGTERM << "SIGTERM";
    QTest::newRow("SIGHUP") << SIGHUP << "SIGHUP";
    QTest::newRow("SIGINT") << SIGINT << "SIGINT";
  }
  void a_signal_ends_the_game_with_its_status_and_rescues_the_grid() {
    QFETCH(int, number);
    QFETCH(QString, name);
    start();
    QTRY_VERIFY(takes_signals());
    kill(static_cast<pid_t>(game_.processId()), number);
    QVERIFY(game_.waitForFinished());
    QCOMPARE(game_.exitStatus(), QProcess::NormalExit);
    QCOMPARE(game_.exitCode(), 128 + number);
    const QString rescued = folder_->filePath("data/sudoku/SuDoKu-1.sdk");
    QVERIFY(content(rescued).replace(" ", "").contains("6...3...."));
    const QString told = QString::fromUtf8(game_.readAllStandardError());
    QVERIFY2(told.contains(name) && told.contains(rescued), qPrintable(told));
    QCOMPARE(exchange_folders(), QStringList());
  }

  void earlier_rescued_grids_stay() {
    QDir(folder_->filePath("data")).mkdir("sudoku");
    write(folder_->filePath("data/sudoku/SuDoKu-1.sdk"), "earlier");
    start();
    QTRY_VERIFY(takes_signals());
    game_.terminate();
    QVERIFY(game_.waitForFinished());
    QCOMPARE(content(folder_->filePath("data/sudoku/SuDoKu-1.sdk")), "earlier");
    QVERIFY(QFile::exists(folder_->filePath("data/sudoku/SuDoKu-2.sdk")));
  }

  void what_is_watched_for_happens_at_exit_alone() {
    for (const bool watched : {true, false}) {
      QProcess child;
      child.start(QCoreApplication::applicationFilePath(), {watched ? "--exit" : "--return"});
      QVERIFY(child.waitForFinished());
      QCOMPARE(child.readAllStandardOutput(), watched ? "done" : "");
    }
  }

 private:
  void start() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("tmp");
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("HOME", folder_->filePath("home"));
    environment.insert("XDG_DATA_HOME", folder_->filePath("data"));
    environment.insert("TMPDIR", folder_->filePath("tmp"));
    game_.setProcessEnvironment(environment);
    game_.start(SUDOKU_PROGRAM, {folder_->filePath("puzzle.sdk")});
    QVERIFY(game_.waitForStarted());
  }
  /// Whether the game has come so far that it handles SIGTERM, by what the system tells of it.
  bool takes_signals() const {
    static const QRegularExpression handled("SigCgt:\\s*([0-9a-f]+)");
    const QString status = content(QString("/proc/%1/status").arg(game_.processId()));
    const auto set = handled.match(status).captured(1).toULongLong(nullptr, 16);
    return (set >> (SIGTERM - 1) & 1) != 0;
  }
  QStringList exchange_folders() const {
    return QDir(folder_->filePath("tmp")).entryList({"sudoku-*"}, QDir::Dirs);
  }

  std::optional<QTemporaryDir> folder_;
  QProcess game_;
};

namespace {

void tell_exit() {
  std::fputs("done", stdout);
  std::fflush(stdout);
}

}  // namespace

}  // namespace sdk::test

int main(int argc, char** argv) {
  const QString order = argc > 1 ? argv[1] : "";
  if (order == "--exit" || order == "--return") {
    const sdk::ExitWatch watch(sdk::test::tell_exit);
    if (order == "--return") return 0;
    std::exit(0);
  }
  QCoreApplication application(argc, argv);
  sdk::test::SuddenEndTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "sudden_end_test.moc"
