// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The grid follows a current cell and a selection that neither mouse nor keys made, as those of a
// screen reader.

#include <QTableView>

#include "tests/ui/qt/play.hpp"
#include "ui/qt/cell_painter.hpp"

namespace sdk::test {

class OutsideSelectionTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    play_.emplace();
    view_ = &play_->find<QTableView>("MSF");
  }
  void cleanup() { play_.reset(); }

  void a_cell_made_current_is_the_grids_own() {
    for (const bool focus : {true, false}) {
      focus ? view_->setFocus() : view_->clearFocus();
      make_current(3, 4 + focus, QItemSelectionModel::NoUpdate);
      QCOMPARE(grid().current_row(), 3);
      QCOMPARE(grid().current_column(), 4 + focus);
    }
  }

  void a_selected_cell_is_the_grids_selection() {
    make_current(2, 7, QItemSelectionModel::ClearAndSelect);
    QCOMPARE(grid().selection(), (CellRange{2, 7, 2, 7}));
  }

  void selected_cells_are_the_grids_selection_with_the_current_one_in_its_corner() {
    make_current(5, 6, QItemSelectionModel::ClearAndSelect);
    view_->selectionModel()->select(QItemSelection(index(3, 4), index(5, 6)),
                                    QItemSelectionModel::ClearAndSelect);
    QCOMPARE(grid().selection(), (CellRange{3, 4, 5, 6}));
    QCOMPARE(grid().current_row(), 5);
    QCOMPARE(grid().current_column(), 6);
    play_->settle();
    QCOMPARE(view_->selectionModel()->selectedIndexes().size(), 9);
  }

  void what_is_selected_in_parts_is_selected_from_the_first_to_the_last_cell() {
    const QModelIndex upper_right = index(1, 7), lower_left = index(6, 2);
    const QItemSelection above(index(1, 5), upper_right), below(lower_left, index(6, 3));
    for (const QModelIndex& current : {upper_right, lower_left})
      for (const auto& [first, second] : {std::pair(above, below), std::pair(below, above)}) {
        make_current(current.row(), current.column(), QItemSelectionModel::ClearAndSelect);
        view_->selectionModel()->select(first, QItemSelectionModel::ClearAndSelect);
        view_->selectionModel()->select(second, QItemSelectionModel::Select);
        QCOMPARE(grid().selection(), (CellRange{1, 2, 6, 7}));
      }
  }

  void the_view_tells_the_text_and_the_colours_of_a_cell() {
    grid().make_current(4, 6);
    grid().set_text("7");
    grid().set_text_colour(colour::green);
    grid().set_back_colour(colour::from_file);
    QCOMPARE(index(4, 6).data().toString(), "7");
    QCOMPARE(index(4, 6).data(Qt::ForegroundRole).value<QColor>(), to_qcolor(colour::green));
    QCOMPARE(index(4, 6).data(Qt::BackgroundRole).value<QColor>(), to_qcolor(colour::from_file));
  }

  void a_selection_of_the_grid_shows_in_the_view() {
    play_->window.MSF.select(1, 2, 4, 3);
    play_->settle();
    QCOMPARE(view_->currentIndex(), index(1, 2));
    QCOMPARE(view_->selectionModel()->selectedIndexes().size(), 8);
    QVERIFY(view_->selectionModel()->isSelected(index(4, 3)));
  }

 private:
  DisplayGrid& grid() { return play_->window.MSF; }
  QModelIndex index(int row, int column) const { return view_->model()->index(row, column); }
  void make_current(int row, int column, QItemSelectionModel::SelectionFlags flags) {
    view_->selectionModel()->setCurrentIndex(index(row, column), flags);
  }

  std::optional<Play> play_;
  QTableView* view_ = nullptr;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::OutsideSelectionTest)
#include "outside_selection_test.moc"
