// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// From the click on the hint button to its question, painted, in the real window with the
// candidates shown: one hint on every puzzle of the library, many times.

#include <QApplication>
#include <QMessageBox>
#include <QMouseEvent>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <optional>
#include <vector>

#include "puzzles/stock/entry_text.hpp"
#include "ui/qt/main_frame.hpp"
#include "ui/qt/qt_desktop.hpp"

namespace sdk::bench {
namespace {

using Clock = std::chrono::steady_clock;

/// Notes when a message box has been painted and all that was drawn has been sent to the screen;
/// then closes it.
class BoxWatch : public QObject {
 public:
  std::optional<Clock::time_point> painted;

  bool eventFilter(QObject* object, QEvent* event) override {
    auto* box = qobject_cast<QMessageBox*>(object);
    if (box && event->type() == QEvent::Paint && !painted) {
      painted.emplace();
      QTimer::singleShot(0, this, [this, box] {
        painted = Clock::now();
        box->reject();
      });
    }
    return false;
  }
};

class Game {
 public:
  Game() {
    desktop_.set_window(&frame_);
    window_.start("");
    frame_.show();
    window_.check(Control::Check2, true);
    QApplication::processEvents();
  }

  /// Milliseconds.
  double time_to_question(const LibraryEntry& entry) {
    show(entry);
    BoxWatch watch;
    QApplication::instance()->installEventFilter(&watch);
    const auto start = Clock::now();
    click(*frame_.findChild<QWidget*>("Command8"));
    return std::chrono::duration<double, std::milli>(*watch.painted - start).count();
  }

 private:
  void show(const LibraryEntry& entry) {
    std::string texts = puzzle_text(entry);
    std::ranges::replace(texts, '.', ' ');
    for (int cell = 0; cell < 81; ++cell)
      window_.MSF.set_text(cell / 9, cell % 9, texts.substr(static_cast<std::size_t>(cell), 1));
    window_.MajCandidats();
    QApplication::processEvents();
  }

  static void click(QWidget& button) {
    const QPointF middle = QRectF(button.rect()).center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, middle, button.mapToGlobal(middle), Qt::LeftButton,
                        type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {});
      QApplication::sendEvent(&button, &event);
    }
  }

  ProgramGuard guard_;
  QtDesktop desktop_{guard_};
  MainWindow window_{desktop_};
  MainFrame frame_{window_, guard_};
};

void print_times(Game& game) {
  std::vector<double> times;
  // The first box loads what all boxes use.
  std::printf("first click to question, ms: %.1f\n", game.time_to_question(BibliothequeGrilles[0]));
  for (int round = 0; round < 10; ++round)
    for (const LibraryEntry& entry : BibliothequeGrilles)
      times.push_back(game.time_to_question(entry));
  std::ranges::sort(times);
  std::printf("later ones, ms: median %.1f, 99 %% below %.1f, longest %.1f (%zu hints)\n",
              times[times.size() / 2], times[times.size() * 99 / 100], times.back(), times.size());
}

}  // namespace
}  // namespace sdk::bench

int main(int argc, char** argv) {
  QApplication::setStyle("Fusion");
  QApplication application(argc, argv);
  sdk::bench::Game game;
  QTimer::singleShot(0, [&] {
    sdk::bench::print_times(game);
    QCoreApplication::exit();
  });
  return QApplication::exec();
}
