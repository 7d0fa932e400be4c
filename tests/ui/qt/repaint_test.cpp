// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What changes is painted anew, and the grids stay as they are set up.

#include <QScrollBar>
#include <QTableView>

#include "tests/ui/qt/play.hpp"

namespace sdk::test {

namespace {

/// Counts how often a widget is painted.
class Paintings : public QObject {
 public:
  explicit Paintings(QWidget& widget) { widget.installEventFilter(this); }
  int count() const { return count_; }

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    count_ += event->type() == QEvent::Paint;
    return false;
  }
  int count_ = 0;
};

}  // namespace

class RepaintTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    play_.emplace();
    play_->settle();
    QTest::qWait(50);
  }
  void cleanup() { play_.reset(); }

  void a_changed_cell_is_painted() {
    expect_painted([this] {
      grid().make_current(4, 4);
      grid().set_text("9");
    });
  }

  void a_changed_selection_is_painted() {
    expect_painted([this] { grid().select(1, 1, 3, 3); });
  }

  void a_change_of_the_focus_is_painted() {
    expect_painted([this] { play_->find("Command1").setFocus(); });
    expect_painted([this] { view().setFocus(); });
  }

  void nothing_is_painted_while_nothing_changes() {
    const Paintings paintings(*view().viewport());
    QTest::qWait(100);
    QCOMPARE(paintings.count(), 0);
  }

  void a_grid_never_scrolls_however_small_it_is() {
    for (const char* name : {"MSF", "MSR"}) {
      auto& grid = play_->find<QTableView>(name);
      grid.resize(200, 200);
      play_->settle();
      QVERIFY2(!grid.horizontalScrollBar()->isVisibleTo(&grid), name);
      QVERIFY2(!grid.verticalScrollBar()->isVisibleTo(&grid), name);
    }
  }

  void the_cells_fill_the_grid_without_edges_of_its_own() {
    for (const char* name : {"MSF", "MSR"}) {
      auto& grid = play_->find<QTableView>(name);
      QCOMPARE(grid.frameWidth(), 0);
      QVERIFY(!grid.showGrid());
      QCOMPARE(grid.visualRect(grid.model()->index(0, 0)), QRect(0, 0, 52, 52));
      QCOMPARE(grid.visualRect(grid.model()->index(8, 8)), QRect(416, 416, 52, 52));
    }
  }

 private:
  QTableView& view() { return play_->find<QTableView>("MSF"); }
  DisplayGrid& grid() { return play_->window.MSF; }

  void expect_painted(const std::function<void()>& change) {
    const Paintings paintings(*view().viewport());
    change();
    QTRY_VERIFY_WITH_TIMEOUT(paintings.count() > 0, 5000);
  }

  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::RepaintTest)
#include "repaint_test.moc"
