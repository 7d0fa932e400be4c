// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include <QClipboard>
#include <QLabel>

#include "tests/ui/qt/play.hpp"

namespace sdk::test {

namespace {

constexpr const char* empty_grid =
    ".........\n.........\n.........\n.........\n.........\n"
    ".........\n.........\n.........\n.........";

/// Counts what a grid must not notice while it is being rewritten.
class Disturbances : public QObject {
 public:
  explicit Disturbances(QWidget& widget) { widget.installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    const auto type = event->type();
    if (type == QEvent::Hide || type == QEvent::Show || type == QEvent::FocusOut) ++count;
    return false;
  }
};

/// Counts how often a widget is painted.
class Paints : public QObject {
 public:
  explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
};

}  // namespace

class TypingTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    play_.emplace();
    play_->draw(empty_grid);
  }
  void cleanup() { play_.reset(); }

  void a_digit_goes_into_the_current_cell() {
    play_->click_cell(2, 3);
    play_->type("7");
    QCOMPARE(play_->text(2, 3), "7");
    QCOMPARE(play_->window.MSF.cell(1, 2).text_colour, colour::green);
    QCOMPARE(play_->find<QLabel>("Label").text(), " 1 indices");
  }

  void a_digit_of_a_shifted_digit_row_is_a_digit() {
    play_->press(Qt::Key_Ampersand, Qt::ShiftModifier, "1");
    QCOMPARE(play_->text(1, 1), "1");
    play_->press(Qt::Key_Ampersand, Qt::NoModifier, "&");
    QCOMPARE(play_->text(1, 1), "1");
  }

  void a_digit_of_the_keypad_is_a_digit() {
    play_->press(Qt::Key_9, Qt::KeypadModifier, "9");
    QCOMPARE(play_->text(1, 1), "9");
  }

  void zero_letters_and_signs_change_nothing() {
    play_->type("4");
    play_->type("0xQ.'(");
    play_->press(Qt::Key_0, Qt::KeypadModifier, "0");
    play_->press(Qt::Key_Period, Qt::NoModifier, ".");
    QCOMPARE(play_->text(1, 1), "4");
  }

  void a_given_is_not_overwritten() {
    play_->draw(QByteArray(empty_grid).replace(0, 1, "5").constData());
    play_->type("7");
    QCOMPARE(play_->text(1, 1), "5");
  }

  void delete_and_backspace_erase_the_selection() {
    for (const auto key : {Qt::Key_Delete, Qt::Key_Backspace}) {
      play_->click_cell(1, 1);
      play_->type("1");
      play_->press(Qt::Key_Right);
      play_->type("2");
      play_->press(Qt::Key_Left, Qt::ShiftModifier);
      play_->press(key);
      QCOMPARE(play_->text(1, 1), " ");
      QCOMPARE(play_->text(1, 2), " ");
    }
  }

  void arrows_page_home_and_end_move_the_current_cell() {
    play_->click_cell(5, 5);
    const auto at = [this] {
      return QPoint(play_->window.MSF.current_row() + 1, play_->window.MSF.current_column() + 1);
    };
    play_->press(Qt::Key_Up);
    QCOMPARE(at(), QPoint(4, 5));
    play_->press(Qt::Key_Left);
    QCOMPARE(at(), QPoint(4, 4));
    play_->press(Qt::Key_Home);
    QCOMPARE(at(), QPoint(4, 1));
    play_->press(Qt::Key_End);
    QCOMPARE(at(), QPoint(4, 9));
    play_->press(Qt::Key_PageUp);
    QCOMPARE(at(), QPoint(1, 9));
    play_->press(Qt::Key_PageDown);
    QCOMPARE(at(), QPoint(9, 9));
    play_->press(Qt::Key_Right);
    play_->press(Qt::Key_Down);
    QCOMPARE(at(), QPoint(9, 9));
    play_->press(Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(at(), QPoint(1, 1));
  }

  void shift_and_arrows_select_a_block_and_shrink_it_again() {
    play_->click_cell(3, 3);
    play_->press(Qt::Key_Down, Qt::ShiftModifier);
    play_->press(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(play_->window.MSF.selection(), (CellRange{2, 2, 3, 3}));
    play_->press(Qt::Key_Up, Qt::ShiftModifier);
    play_->press(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(play_->window.MSF.selection(), (CellRange{1, 2, 2, 3}));
    QCOMPARE(play_->window.MSF.current_row(), 1);
  }

  void the_mouse_selects_a_block() {
    QWidget* cells = play_->find<GridView>("MSF").viewport();
    QTest::mousePress(cells, Qt::LeftButton, {}, play_->cell(6, 7));
    QTest::mouseMove(cells, play_->cell(4, 5));
    QMouseEvent move(QEvent::MouseMove, play_->cell(4, 5), cells->mapToGlobal(play_->cell(4, 5)),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(cells, &move);
    QTest::mouseRelease(cells, Qt::LeftButton, {}, play_->cell(4, 5));
    QCOMPARE(play_->window.MSF.selection(), (CellRange{3, 4, 5, 6}));
    play_->click_cell(2, 2, Qt::ShiftModifier);
    QCOMPARE(play_->window.MSF.selection(), (CellRange{1, 1, 5, 6}));
  }

  void a_drag_beyond_the_grid_selects_to_its_edge() {
    for (const auto& [place, range] : {std::pair(QPoint(-70, 900), CellRange{5, 0, 8, 6}),
                                       {QPoint(900, -70), CellRange{0, 6, 5, 8}}}) {
      play_->click_cell(6, 7);
      drag(place, Qt::LeftButton);
      QCOMPARE(play_->window.MSF.selection(), range);
    }
  }

  void only_the_left_button_drags() {
    play_->click_cell(6, 7);
    for (const Qt::MouseButton button : {Qt::NoButton, Qt::RightButton}) {
      drag(play_->cell(2, 2), button);
      QCOMPARE(play_->window.MSF.selection(), (CellRange{5, 6, 5, 6}));
    }
  }

  void the_second_of_two_quick_clicks_counts_too() {
    QWidget* cells = play_->find<GridView>("MSF").viewport();
    play_->click_cell(2, 2);
    QMouseEvent event(QEvent::MouseButtonDblClick, play_->cell(2, 3),
                      cells->mapToGlobal(play_->cell(2, 3)), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(cells, &event);
    QCOMPARE(play_->window.MSF.selection(), (CellRange{1, 2, 1, 2}));
  }

  void the_left_button_alone_is_told_down_and_up() {
    auto& view = play_->find<GridView>("MSF");
    const QSignalSpy told(&view, &GridView::button_pressed_or_released);
    for (const auto& [button, count] : {std::pair(Qt::LeftButton, 1), {Qt::RightButton, 2}}) {
      QTest::mousePress(view.viewport(), button, {}, play_->cell(3, 3));
      QCOMPARE(told.count(), count);
      QTest::mouseRelease(view.viewport(), button, {}, play_->cell(3, 3));
      QCOMPARE(told.count(), 2);
    }
  }

  void the_lines_are_drawn_again_when_the_button_goes_up() {
    QWidget* cells = play_->find<GridView>("MSF").viewport();
    QTest::mousePress(cells, Qt::LeftButton, {}, play_->cell(3, 3));
    play_->settle();
    const Paints lines(play_->find("lines"));
    QTest::mouseRelease(cells, Qt::LeftButton, {}, play_->cell(3, 3));
    play_->settle();
    QCOMPARE(lines.count, 1);
  }

  void an_arrow_moves_from_where_the_game_has_just_gone() {
    play_->window.MSF.make_current(4, 4);
    QTest::keyClick(&play_->find("MSF"), Qt::Key_Right);
    QCOMPARE(play_->window.MSF.selection(), (CellRange{4, 5, 4, 5}));
  }

  void a_click_in_the_candidates_leaves_the_focus_in_the_puzzle() {
    play_->click("Check2");
    QTest::mouseClick(play_->find<GridView>("MSR").viewport(), Qt::LeftButton, {},
                      play_->cell(3, 3));
    QVERIFY(play_->find("MSF").hasFocus());
    QCOMPARE(play_->window.MSR.current_row(), 2);
    QCOMPARE(play_->find("MSR").focusPolicy(), Qt::TabFocus);
  }

  void the_view_shows_the_current_cell_and_the_selection_of_the_core() {
    auto& view = play_->find<GridView>("MSF");
    play_->window.MSF.select(2, 3, 4, 5);
    play_->settle();
    QCOMPARE(view.currentIndex(), view.model()->index(2, 3));
    QCOMPARE(view.selectionModel()->selectedIndexes().size(), 9);
    QVERIFY(view.selectionModel()->isSelected(view.model()->index(4, 5)));
  }

  void the_core_follows_a_selection_made_in_the_view() {
    auto& view = play_->find<GridView>("MSF");
    view.setCurrentIndex(view.model()->index(7, 1));
    QCOMPARE(play_->window.MSF.selection(), (CellRange{7, 1, 7, 1}));
    view.selectionModel()->select(
        QItemSelection(view.model()->index(5, 1), view.model()->index(7, 4)),
        QItemSelectionModel::ClearAndSelect);
    QCOMPARE(play_->window.MSF.selection(), (CellRange{5, 1, 7, 4}));
    QCOMPARE(play_->window.MSF.current_row(), 7);
    QCOMPARE(play_->window.MSF.current_column(), 1);
  }

  void copy_takes_the_selected_rows_whole() {
    play_->type("5");
    play_->press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), "5\t \t \t \t \t \t \t \t \r\n");
  }

  void select_all_clears_the_clipboard_and_selects_the_grid() {
    QApplication::clipboard()->setText("before");
    play_->press(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), "");
    QCOMPARE(play_->window.MSF.selection(), (CellRange{0, 0, 8, 8}));
    QCOMPARE(play_->find<GridView>("MSF").selectionModel()->selectedIndexes().size(), 81);
  }

  void tab_leaves_the_grid() {
    play_->press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->objectName(), "Check3");
    play_->find("MSF").setFocus();
    play_->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget()->objectName(), "Command3");
  }

  void tab_never_reaches_the_key_handler_of_the_grid() {
    auto& view = play_->find<GridView>("MSF");
    const QSignalSpy keys(&view, &GridView::key_pressed);
    for (const Qt::KeyboardModifier modifier :
         {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
      QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, modifier, "\t");
      QApplication::sendEvent(&view, &press);
    }
    QCOMPARE(keys.count(), 0);
  }

  void the_grid_is_not_hidden_on_screen_while_it_is_rewritten() {
    play_->press(Qt::Key_A, Qt::ControlModifier);
    Disturbances disturbances(play_->find("MSF"));
    play_->press(Qt::Key_Delete);
    play_->click("Command1");
    QCOMPARE(disturbances.count, 0);
    QVERIFY(play_->find("MSF").hasFocus());
    QVERIFY(play_->find("MSF").updatesEnabled());
  }

  void a_screen_reader_hears_row_column_and_content() {
    const auto spoken = [this](int row, int column) {
      const QAbstractItemModel& model = *play_->find<GridView>("MSF").model();
      return model.data(model.index(row - 1, column - 1), Qt::AccessibleTextRole).toString();
    };
    play_->type("8");
    QCOMPARE(spoken(1, 1), "ligne 1, colonne 1: 8");
    QCOMPARE(spoken(3, 2), "ligne 3, colonne 2: vide");
    play_->press(Qt::Key_F1);
    QCOMPARE(spoken(3, 2), "row 3, column 2: empty");
  }

  void the_candidates_are_for_reading_only() {
    play_->click("Check2");
    play_->find("MSR").setFocus();
    const auto before = play_->window.MSR.cell(0, 0).text;
    play_->press(Qt::Key_Home, Qt::ControlModifier);
    play_->type("7");
    play_->press(Qt::Key_Delete);
    QCOMPARE(play_->window.MSR.cell(0, 0).text, before);
    QCOMPARE(play_->text(1, 1), " ");
    play_->press(Qt::Key_Down);
    QCOMPARE(play_->window.MSR.current_row(), 1);
  }

  void box_lines_stay_on_top_of_what_is_typed() {
    play_->click_cell(4, 4);
    play_->type("5");
    const QImage picture = play_->frame.grab().toImage();
    QCOMPARE(play_->window.lines().size(), 4u);
    for (const int x : {255, 256, 257}) QCOMPARE(picture.pixelColor(x, 300), QColor(Qt::black));
    for (const int y : {261, 262, 263}) QCOMPARE(picture.pixelColor(300, y), QColor(Qt::black));
  }

  void redrawing_the_lines_repaints_the_lines_and_no_button() {
    const Paints lines(play_->find("lines")), button(play_->find("Command1"));
    play_->window.redraw_lines();
    play_->settle();
    QCOMPARE(lines.count, 1);
    QCOMPARE(button.count, 0);
  }

  void the_current_cell_is_marked_and_the_selection_tinted() {
    const auto edge = [this](int row, int column) {
      const QImage picture = play_->find("MSF").grab().toImage();
      return picture.pixelColor(play_->cell(row, column) - QPoint(24, 24));
    };
    play_->click_cell(5, 5);
    play_->press(Qt::Key_Right, Qt::ShiftModifier);
    const QColor current = edge(5, 6), selected = edge(5, 5), other = edge(5, 4);
    QCOMPARE(other, QColor(Qt::white));
    QVERIFY(current.lightness() < 160);
    QVERIFY(selected != other && selected.lightness() > 200);
    play_->window.MSF.set_marks_current(false);
    play_->settle();
    QCOMPARE(edge(5, 6), other);
    QCOMPARE(edge(5, 5), other);
  }

 private:
  void drag(QPoint place, Qt::MouseButton button) {
    QWidget* cells = play_->find<GridView>("MSF").viewport();
    QMouseEvent event(QEvent::MouseMove, place, cells->mapToGlobal(place), Qt::NoButton, button,
                      {});
    QApplication::sendEvent(cells, &event);
  }

  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::TypingTest)
#include "typing_test.moc"
