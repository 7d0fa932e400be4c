// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// How the menu of the cell looks, and where it opens.

#include <QMenu>
#include <QScreen>
#include <QWindow>

#include "tests/ui/qt/play.hpp"
#include "ui/qt/cell_menu.hpp"
#include "ui/qt/cell_painter.hpp"

namespace sdk::test {

namespace {

constexpr const char* rows[] = {"menu_erase", "menu_undo", "menu_redo", "menu_copy",
                                "menu_select_all"};
constexpr const char* rows_with_keys[] = {"menu_undo", "menu_redo", "menu_copy", "menu_select_all"};

/// Around what differs from the background, which is at the left edge.
QRect ink(const QImage& image) {
  QRect box;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) != image.pixel(1, y)) box |= QRect(x, y, 1, 1);
  return box;
}

int widest_gap(const QImage& image) {
  const QRect box = ink(image);
  int widest = 0, gap = 0;
  for (int x = box.left(); x <= box.right(); ++x) {
    gap = ink(image.copy(x - 1, 0, 2, image.height())).isEmpty() ? gap + 1 : 0;
    widest = std::max(widest, gap);
  }
  return widest;
}

}  // namespace

class CellMenuLooksTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    play_.emplace();
    play_->click_cell(2, 2);
    type_in_an_empty_cell();
    play_->press(Qt::Key_F2);
  }
  void cleanup() { play_.reset(); }

  void its_parts_stand_below_each_other_inside_a_frame_of_3_pixels() {
    for (const Qt::Key language : {Qt::Key_F2, Qt::Key_F1, Qt::Key_F2}) {
      play_->press(language);
      open();
      const int width = menu().width() - 2 * 3, row = height_of("menu_erase");
      int top = 3 + 3 * 36;
      QList<int> lines;
      for (const char* name : rows) {
        if (QString("menu_erase menu_undo menu_copy").contains(name)) {
          lines << top;
          top += 7;
        }
        QCOMPARE(find(name).geometry(), QRect(3, top, width, row));
        top += row;
      }
      QCOMPARE(menu().height(), top + 3);
      QCOMPARE(menu().size(), menu().sizeHint());
      QCOMPARE(tops_of_lines(width), lines);
      close();
    }
  }

  void a_square_of_the_pad_has_36_pixels_and_a_digit_of_14_points_in_its_middle() {
    open();
    for (int number = 0; number < 9; ++number) {
      QWidget& square = digit(number + 1);
      QCOMPARE(square.sizeHint(), QSize(36, 36));
      QCOMPARE(square.font(), font_of_size(14));
      QCOMPARE(square.height(), 36);
      QCOMPARE(square.y(), 3 + number / 3 * 36);
      QVERIFY(std::abs(square.x() - 3 - number % 3 * (menu().width() - 6) / 3) <= 1);
      const QRect box = ink(picture(square));
      QVERIFY(std::abs(box.center().x() - square.rect().center().x()) <= 2);
      QVERIFY(std::abs(box.center().y() - square.rect().center().y()) <= 2);
      QVERIFY(box.height() >= 12 && box.height() <= 15);
    }
  }

  void the_lines_between_its_parts_are_plain_and_faint() {
    int count = 0;
    for (const QFrame* line : menu().findChildren<QFrame*>()) {
      QCOMPARE(line->frameShape(), QFrame::HLine);
      QCOMPARE(line->frameShadow(), QFrame::Plain);
      QCOMPARE(line->foregroundRole(), QPalette::PlaceholderText);
      ++count;
    }
    QCOMPARE(count, 3);
  }

  void it_has_the_background_and_the_frame_of_a_menu() {
    open();
    const QImage image = picture(menu());
    const int right = menu().width() - 1, bottom = menu().height() - 1;
    const QColor outline = image.pixelColor(0, 50);
    QVERIFY(outline.lightness() < 200);
    for (const QPoint& edge : {QPoint(right, 50), QPoint(50, 0), QPoint(50, bottom)})
      QCOMPARE(image.pixelColor(edge), outline);
    QMenu model;
    model.setFixedSize(menu().size());
    const QColor back = picture(model).pixelColor(50, 50);
    QVERIFY(back != menu().palette().color(QPalette::Window));
    for (const QPoint& inside : {QPoint(2, 50), QPoint(right - 2, 50), QPoint(50, 2),
                                 QPoint(50, bottom - 2), QPoint(20, 3 + 3 * 36 + 1)})
      QCOMPARE(image.pixelColor(inside), back);
  }

  void what_is_chosen_is_highlighted() {
    open();
    const QPalette palette = menu().palette();
    for (const char* name : {"menu_5", "menu_copy"}) {
      QWidget& item = find(name);
      const QImage before = picture(item);
      QVERIFY(before.pixelColor(4, 4) != palette.color(QPalette::Highlight));
      item.setFocus();
      QCOMPARE(picture(item).pixelColor(4, 4), palette.color(QPalette::Highlight));
    }
  }

  void a_chosen_digit_has_the_colour_of_chosen_texts() {
    QPalette palette = menu().palette();
    palette.setColor(QPalette::Text, Qt::green);
    palette.setColor(QPalette::HighlightedText, Qt::red);
    menu().setPalette(palette);
    open();
    const auto has = [this](const QColor& colour) {
      const QImage image = picture(find("menu_5"));
      for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
          if (image.pixelColor(x, y) == colour) return true;
      return false;
    };
    QVERIFY(has(Qt::green) && !has(Qt::red));
    find("menu_5").setFocus();
    QVERIFY(has(Qt::red) && !has(Qt::green));
  }

  void the_pointer_chooses_what_it_is_over() {
    open();
    for (const char* name : {"menu_5", "menu_copy"}) {
      QEnterEvent event({5, 5}, {5, 5}, find(name).mapToGlobal(QPointF(5, 5)));
      QCoreApplication::sendEvent(&find(name), &event);
      QVERIFY(find(name).hasFocus());
    }
  }

  void a_row_shows_its_name_at_the_left_and_its_keys_at_the_right() {
    for (const Qt::Key language : {Qt::Key_F2, Qt::Key_F1}) {
      play_->press(language);
      open();
      for (const char* name : rows_with_keys) {
        const QImage image = picture(find(name));
        const QRect box = ink(image);
        const int keys =
            find(name).fontMetrics().horizontalAdvance(find(name).accessibleDescription());
        const int from_right = image.width() - 1 - box.right();
        QVERIFY2(box.left() < 40 && from_right >= 2 && from_right < 16, name);
        QVERIFY2(widest_gap(image) >= 8, name);
        QVERIFY2(box.right() - keys > box.left() + 20, name);
      }
      QVERIFY(ink(picture(find("menu_erase"))).right() < menu().width() / 2 + 10);
      close();
    }
  }

  void it_opens_right_of_its_cell_where_the_screen_has_room() {
    const QRect room = play_->frame.screen()->availableGeometry();
    const QSize size = size_of_menu();
    const QRect cell(300, 200, 52, 52);
    const auto from_left = [&](int left) { return QRect(left, 200, 52, 52); };
    const int last = room.right() - size.width() - 51;
    QCOMPARE(place_beside(cell), QPoint(352, 200));
    QCOMPARE(place_beside(from_left(last)), QPoint(last + 52, 200));
    QCOMPARE(place_beside(from_left(last + 1)), QPoint(last + 1 - size.width(), 200));
  }

  void it_stays_on_the_screen_that_its_cell_is_on() {
    const QSize size = size_of_menu();
    for (QScreen* screen : QGuiApplication::screens()) {
      const QRect room = screen->availableGeometry();
      const QRect wide(room.left(), room.top() + 20, room.width(), 40);
      QCOMPARE(place_beside(wide), QPoint(room.left(), room.top() + 20));
      const QRect low(room.left() + 50, room.bottom() - 40, 10, 60);
      QCOMPARE(place_beside(low), QPoint(room.left() + 60, room.bottom() + 1 - size.height()));
      const QRect high(room.left() + 50, room.top() - 20, 10, 60);
      QCOMPARE(place_beside(high), QPoint(room.left() + 60, room.top()));
    }
  }

  void beside_all_screens_it_opens_on_the_first() {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const int width = size_of_menu().width();
    QCOMPARE(place_beside(QRect(5000, 100, 10, 10)), QPoint(room.right() + 1 - width, 100));
  }

  void the_right_button_opens_it_at_the_pointer() {
    const QPoint pointer = grid().mapToGlobal(play_->cell(5, 6));
    right_click(5, 6);
    QCOMPARE(corner(), pointer + QPoint(1, 0));
    QTest::mouseClick(menu().windowHandle(), Qt::RightButton, {},
                      menu().mapFromGlobal(grid().mapToGlobal(play_->cell(2, 3))));
    play_->settle();
    QCOMPARE(corner(), grid().mapToGlobal(play_->cell(2, 3)) + QPoint(1, 0));
  }

  void the_key_opens_it_beside_the_cell() {
    play_->click_cell(4, 5);
    play_->press(Qt::Key_Menu);
    QCOMPARE(corner(), grid().mapToGlobal(QPoint(5 * 52, 3 * 52)));
  }

  void a_system_that_asks_for_it_by_key_gets_it_beside_the_cell() {
    play_->window.MSF.make_current(3, 4);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {1, 1}, grid().mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(grid().viewport(), &event);
    play_->settle();
    QCOMPARE(corner(), grid().mapToGlobal(QPoint(5 * 52, 3 * 52)));
    QVERIFY(find("menu_1").hasFocus());
  }

  void a_selection_that_was_just_made_stays() {
    play_->window.MSF.select(1, 1, 3, 3);
    const QPoint place = play_->cell(4, 3);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, grid().mapToGlobal(place));
    QCoreApplication::sendEvent(grid().viewport(), &event);
    QCOMPARE(play_->window.MSF.selection(), (CellRange{1, 1, 3, 3}));
  }

  void a_click_between_its_parts_leaves_it_open() {
    open();
    const QPoint between(20, 3 + 3 * 36 + 3);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
      QTest::mouseClick(menu().windowHandle(), button, {}, between);
      play_->settle();
      QVERIFY(menu().isVisible());
    }
  }

  void a_press_that_closes_it_does_nothing_else() {
    QVERIFY(menu().testAttribute(Qt::WA_NoMouseReplay));
    open();
    QTest::mouseClick(menu().windowHandle(), Qt::LeftButton, {}, {-30, -30});
    play_->settle();
    QVERIFY(!menu().isVisible());
  }

  void a_right_click_beside_the_window_closes_it() {
    play_->frame.move(0, 0);
    open();
    QTest::mouseClick(
        menu().windowHandle(), Qt::RightButton, {},
        menu().mapFromGlobal(play_->frame.frameGeometry().bottomRight() + QPoint(100, -20)));
    play_->settle();
    QVERIFY(!menu().isVisible());
  }

  void opened_by_the_mouse_its_arrows_begin_in_the_first_column() {
    play_->press(Qt::Key_Menu);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Escape})
      QTest::keyClick(QApplication::focusWidget(), key);
    right_click(5, 5);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QVERIFY(find("menu_1").hasFocus());
  }

  void letters_without_ctrl_leave_it_open() {
    open();
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_C, Qt::Key_Y, Qt::Key_Z})
      QTest::keyClick(QApplication::focusWidget(), key);
    QVERIFY(menu().isVisible());
  }

 private:
  GridView& grid() { return play_->find<GridView>("MSF"); }
  CellMenu& menu() { return play_->find<CellMenu>("cell_menu"); }
  QWidget& find(const char* name) { return play_->find(name); }
  QWidget& digit(int digit) { return find(qPrintable(QString("menu_%1").arg(digit))); }
  int height_of(const char* item) { return find(item).height(); }
  static QImage picture(QWidget& widget) { return widget.grab().toImage(); }

  void type_in_an_empty_cell() {
    play_->draw("7........\n" + std::string(72, '.'));
    play_->press(Qt::Key_Right);
    play_->type("3");
    play_->type("4");
    play_->press(Qt::Key_Z, Qt::ControlModifier);
  }

  void open() {
    right_click(5, 5);
    QVERIFY(menu().isVisible());
  }
  void close() {
    menu().close();
    play_->settle();
  }
  void right_click(int row, int column) {
    QTest::mouseClick(play_->frame.windowHandle(), Qt::RightButton, {},
                      grid().mapTo(&play_->frame, play_->cell(row, column)));
    play_->settle();
  }

  /// On the screen; the platform without one puts an unseen frame of two pixels even around a menu.
  QPoint corner() { return menu().pos() - QPoint(2, 2); }
  /// Where it opens.
  QPoint place_beside(const QRect& place) {
    menu().open(place, false);
    const QPoint opened = corner();
    close();
    return opened;
  }
  /// Before it has been open.
  QSize size_of_menu() {
    menu().show_state(play_->window);
    return menu().sizeHint();
  }

  /// Of those that are as wide as the menu and 7 pixels high.
  QList<int> tops_of_lines(int width) {
    QList<int> tops;
    for (const QFrame* line : menu().findChildren<QFrame*>())
      if (line->x() == 3 && line->size() == QSize(width, 7)) tops << line->y();
    return tops;
  }

  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::CellMenuLooksTest)
#include "cell_menu_looks_test.moc"
