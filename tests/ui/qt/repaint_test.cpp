// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What changes is painted anew, and the grids stay as they are set up.

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTableView>

#include "tests/ui/qt/play.hpp"
#include "ui/qt/cell_painter.hpp"

namespace sdk::test {

namespace {

/// Counts how often a widget is painted.
class Paintings : public QObject {
 public:
  explicit Paintings(QWidget& widget) { widget.installEventFilter(this); }
  int count() const { return count_; }
  /// All that was painted together.
  const QRegion& region() const { return region_; }

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    ++count_;
    region_ += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  int count_ = 0;
  QRegion region_;
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

  void cells_far_from_the_current_one_are_painted_with_it() {
    for (const auto& change : std::initializer_list<std::function<void()>>{
             [this] { grid().make_current(4, 4); }, [this] { play_->find("Command1").setFocus(); },
             [this] { view().setFocus(); }}) {
      const Paintings paintings(*view().viewport());
      change();
      QTRY_COMPARE(paintings.region(), QRegion(view().viewport()->rect()));
    }
  }

  void a_grid_whose_marks_go_is_painted() {
    expect_painted([this] { grid().set_marks_current(false); });
  }

  void a_step_that_is_chosen_is_painted_in_either_grid() {
    play_->draw("12345678.\n" + std::string(72, '.'));
    for (const char* name : {"MSF", "MSR"}) {
      BoxAnswer no(QMessageBox::No);
      play_->click("Command8");
      QTest::qWait(50);
      const Paintings paintings(*play_->find<QTableView>(name).viewport());
      play_->window.choose_step(0);
      QTRY_VERIFY_WITH_TIMEOUT(paintings.count() > 0, 5000);
      play_->click("Check2");
    }
  }

  void what_is_to_be_seen_at_once_is_painted_at_once() {
    grid().set_text(4, 4, "5");
    const Paintings cells(*view().viewport()), button(play_->find("Command1"));
    grid().refresh();
    QVERIFY(cells.count() > 0);
    QCOMPARE(play_->text(5, 5), "5");
    QCOMPARE(button.count(), 0);
  }

  void a_grid_that_is_being_rewritten_is_not_painted() {
    grid().set_visible(false);
    play_->settle();
    QVERIFY(!view().updatesEnabled());
    grid().set_visible(true);
    play_->settle();
    QVERIFY(view().updatesEnabled());
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

  void every_cell_asks_for_its_square() {
    for (const char* name : {"MSF", "MSR"}) {
      auto& grid = play_->find<QTableView>(name);
      QCOMPARE(grid.sizeHintForIndex(grid.model()->index(4, 4)), QSize(52, 52));
    }
  }

  void each_grid_has_digits_of_its_size() {
    play_->draw(std::string(40, '.') + "8" + std::string(40, '.'));
    play_->click("Check2");
    const QRect middle(208, 208, 52, 52), beside(52, 52, 52, 52);
    QCOMPARE(seen("MSF", middle), painted(play_->window.MSF.cell(4, 4), puzzle_font_size));
    const DisplayCell& candidates = play_->window.MSR.cell(1, 1);
    QCOMPARE(seen("MSR", beside), painted(candidates, candidates_font_size));
    QVERIFY(seen("MSR", beside) != painted(candidates, candidates_font_size + 1));
  }

  void the_candidates_mark_no_cell_without_the_focus() {
    play_->click("Check2");
    play_->window.MSR.make_current(8, 8);
    const QColor before = edge("MSR", 3), before_other = edge("MSR", 4);
    play_->window.MSR.select(3, 3, 4, 4);
    QCOMPARE(edge("MSR", 3), before);
    QCOMPARE(edge("MSR", 4), before_other);
    play_->find("MSR").setFocus();
    QVERIFY(edge("MSR", 3) != before);
    QVERIFY(edge("MSR", 4) != before_other);
  }

  void the_puzzle_marks_its_current_cell_at_any_time() {
    play_->find("Command1").setFocus();
    const QColor before = edge("MSF", 3);
    grid().make_current(3, 3);
    QVERIFY(edge("MSF", 3) != before);
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

  QImage seen(const char* grid, const QRect& square) {
    play_->settle();
    const QImage image = play_->find(grid).grab(square).toImage();
    return image.convertToFormat(QImage::Format_RGB32);
  }

  static QImage painted(const DisplayCell& cell, int font_size) {
    QImage image(52, 52, QImage::Format_RGB32);
    QPainter painter(&image);
    paint_cell(painter, image.rect(), cell, font_size);
    return image;
  }

  /// The left edge of the cell that is in that row and that column, 0 the first.
  QColor edge(const char* grid, int line) {
    play_->settle();
    return play_->find(grid).grab().toImage().pixelColor(line * 52 + 1, line * 52 + 26);
  }

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
