// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What a window makes of the room on its screen: its size, its place and its scroll bars.

#include <qpa/qwindowsysteminterface.h>

#include <QComboBox>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>

#include "tests/ui/qt/play.hpp"
#include "ui/qt/small_screen.hpp"
#include "ui/qt/step_list.hpp"

namespace sdk::test {

namespace {

/// A hint for it finds a chain of two colours, then a naked single in row 6, column 7.
constexpr const char* chain_grid =
    "4387.9.1.\n165248379\n29713..84\n346.719..\n852493761\n"
    "719..2.43\n.8132.497\n.2498713.\n973.14...";

/// A window with a page, shown.
struct Paged {
  explicit Paged(QSize page) {
    window.setFixedSize(100, 100);
    window.show();
    QCoreApplication::processEvents();
    screen.fit(page);
  }
  QWidget window;
  SmallScreen screen{window};
};

/// What a shown window of no size of its own has for its page.
QSize room() {
  QWidget window;
  window.show();
  const QSize frame = window.frameGeometry().size() - window.geometry().size();
  return window.screen()->availableGeometry().size() - frame;
}

QScrollBar* bar_of(const QWidget& window, Qt::Orientation orientation) {
  for (auto* bar : window.findChildren<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly))
    if (bar->orientation() == orientation) return bar;
  return nullptr;
}

QScrollBar* down_of(const QWidget& window) { return bar_of(window, Qt::Vertical); }
QScrollBar* across_of(const QWidget& window) { return bar_of(window, Qt::Horizontal); }

int extent_of(const QWidget& window) {
  return window.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &window);
}

bool wheel(SmallScreen& screen, QWidget& widget, QPoint turn) {
  const QPointF middle = QRectF(widget.rect()).center();
  QWheelEvent event(middle, widget.mapToGlobal(middle), {}, turn, {}, {}, Qt::NoScrollPhase, false);
  return screen.scrolls_for(&widget, &event);
}

QRect square(int row, int column) { return {(column - 1) * 52, (row - 1) * 52, 52, 52}; }

}  // namespace

class ScreenRoomTest : public QObject {
  Q_OBJECT

 private slots:
  void a_window_is_moved_no_further_than_needed() {
    QWidget window;
    window.setFixedSize(200, 100);
    window.show();
    const QRect room = window.screen()->availableGeometry();
    const QSize size = window.frameGeometry().size();
    const int right = room.right() + 1 - size.width(), bottom = room.bottom() + 1 - size.height();
    for (const auto& [from, to] : {std::pair(QPoint(40, 50), QPoint(40, 50)),
                                   {{right, bottom}, {right, bottom}},
                                   {{right + 1, bottom + 1}, {right, bottom}},
                                   {{right + 50, 60}, {right, 60}},
                                   {{60, bottom + 30}, {60, bottom}},
                                   {{-1, -1}, {0, 0}},
                                   {{-30, 20}, {0, 20}},
                                   {{30, -20}, {30, 0}}}) {
      window.move(from);
      keep_on_screen(window);
      QCOMPARE(window.pos(), to);
    }
  }

  void a_window_that_is_too_large_shows_its_upper_left_corner() {
    QWidget window;
    window.setFixedSize(2000, 1500);
    window.move(-100, -50);
    window.show();
    keep_on_screen(window);
    QCOMPARE(window.pos(), QPoint(0, 0));
  }

  void a_page_that_is_too_high_gets_a_bar_at_its_right() {
    const int high = room().height();
    Paged paged({300, high + 20});
    const QWidget& window = paged.window;
    const int extent = extent_of(window);
    QVERIFY(!across_of(window));
    QCOMPARE(window.size(), QSize(300 + extent, high));
    const QScrollBar& down = *down_of(window);
    QVERIFY(down.isVisible());
    QCOMPARE(down.geometry(), QRect(300, 0, extent, high));
    QCOMPARE(down.minimum(), 0);
    QCOMPARE(down.maximum(), 20);
    QCOMPARE(down.pageStep(), high);
    QCOMPARE(down.singleStep(), 26);
  }

  void a_page_that_is_too_wide_gets_a_bar_below_it() {
    const int wide = room().width();
    Paged paged({wide + 30, 300});
    const QWidget& window = paged.window;
    const int extent = extent_of(window);
    QVERIFY(!down_of(window));
    QCOMPARE(window.size(), QSize(wide, 300 + extent));
    const QScrollBar& across = *across_of(window);
    QVERIFY(across.isVisible());
    QCOMPARE(across.geometry(), QRect(0, 300, wide, extent));
    QCOMPARE(across.maximum(), 30);
    QCOMPARE(across.pageStep(), wide);
    QCOMPARE(across.singleStep(), 26);
  }

  void a_bar_takes_room_from_the_other_direction() {
    const QSize all = room();
    Paged paged(all + QSize(0, 10));
    const QWidget& window = paged.window;
    const int extent = extent_of(window);
    QCOMPARE(window.size(), all);
    QCOMPARE(down_of(window)->geometry(), QRect(all.width() - extent, 0, extent, all.height()));
    QCOMPARE(across_of(window)->geometry(),
             QRect(0, all.height() - extent, all.width() - extent, extent));
    QCOMPARE(down_of(window)->maximum(), 10 + extent);
    QCOMPARE(across_of(window)->maximum(), extent);
    paged.screen.fit(all + QSize(-extent, 10));
    QVERIFY(down_of(window) && !across_of(window));
    paged.screen.fit(all + QSize(10, -extent));
    QVERIFY(!down_of(window) && across_of(window));
    paged.screen.fit(all);
    QVERIFY(!down_of(window) && !across_of(window));
  }

  void what_is_brought_into_sight_has_8_pixels_around_it() {
    Paged paged(room() + QSize(500, 500));
    const QScrollBar &down = *down_of(paged.window), &across = *across_of(paged.window);
    paged.screen.bring_into_sight(QRect(1100, 900, 20, 30));
    QCOMPARE(across.value(), 1119 + 8 - across.pageStep());
    QCOMPARE(down.value(), 929 + 8 - down.pageStep());
    QCOMPARE(paged.screen.origin(), -QPoint(across.value(), down.value()));
    paged.screen.bring_into_sight(QRect(50, 40, 20, 30));
    QCOMPARE(QPoint(across.value(), down.value()), QPoint(42, 32));
    paged.screen.bring_into_sight(QRect(60, 50, 20, 30));
    QCOMPARE(QPoint(across.value(), down.value()), QPoint(42, 32));
    paged.screen.bring_into_sight(QRect(50, 40, 1200, 1200));
    QCOMPARE(QPoint(across.value(), down.value()), QPoint(42, 32));
  }

  void the_wheel_scrolls_in_the_direction_that_it_is_turned() {
    Paged paged(room() + QSize(500, 500));
    const QScrollBar &down = *down_of(paged.window), &across = *across_of(paged.window);
    QVERIFY(wheel(paged.screen, paged.window, {0, -120}));
    QVERIFY(down.value() > 0 && across.value() == 0);
    const int before = down.value();
    QVERIFY(wheel(paged.screen, paged.window, {-120, -60}));
    QVERIFY(across.value() > 0);
    QCOMPARE(down.value(), before);
    QVERIFY(wheel(paged.screen, paged.window, {120, 60}));
    QCOMPARE(across.value(), 0);
  }

  void the_wheel_moves_the_only_bar_there_is() {
    Paged wide({room().width() + 300, 200}), high({200, room().height() + 300});
    QVERIFY(wheel(wide.screen, wide.window, {0, -120}));
    QVERIFY(across_of(wide.window)->value() > 0);
    QVERIFY(wheel(high.screen, high.window, {-120, -60}));
    QVERIFY(down_of(high.window)->value() > 0);
  }

  void without_a_bar_the_wheel_is_left_to_the_controls() {
    Paged paged({200, 200});
    QVERIFY(!wheel(paged.screen, paged.window, {0, -120}));
  }

  void other_events_and_other_windows_scroll_nothing() {
    Paged paged({200, room().height() + 300});
    QWidget other;
    QVERIFY(!wheel(paged.screen, other, {0, -120}));
    QEvent event(QEvent::MouseMove);
    QVERIFY(!paged.screen.scrolls_for(&paged.window, &event));
    QCOMPARE(down_of(paged.window)->value(), 0);
  }

  void less_room_on_the_screen_is_noticed_and_more_again() {
    Play play;
    play.find("MSF").setFocus();
    const QSize size = play.frame.size();
    const QPoint place = play.find("options").pos();
    QScreen& screen = *play.frame.screen();
    const QRect all = screen.geometry();
    set_room(screen, QRect(0, 0, 1024, 500));
    QCOMPARE(play.frame.frameGeometry().height(), 500);
    QVERIFY(QRect(0, 0, 1024, 500).contains(play.frame.frameGeometry()));
    down_of(play.frame)->setValue(100);
    QCOMPARE(play.find("options").pos(), place - QPoint(0, 100));
    set_room(screen, all);
    QVERIFY(!down_of(play.frame));
    QCOMPARE(play.frame.size(), size);
    QCOMPARE(play.find("options").pos(), place);
  }

  void another_screen_is_noticed_before_the_window_is_moved() {
    Play play;
    const QPoint place = play.find("options").pos();
    go_to(play, "small");
    QVERIFY(down_of(play.frame));
    down_of(play.frame)->setValue(50);
    go_to(play, "large");
    QVERIFY(!down_of(play.frame));
    QCOMPARE(play.find("options").pos(), place);
    go_to(play, "small");
    QScreen& screen = *play.frame.screen();
    const QRect all = screen.geometry();
    set_room(screen, QRect(1024, 0, 800, 400));
    QCOMPARE(play.frame.frameGeometry().height(), 400);
    set_room(screen, all);
  }

  void the_player_may_move_the_window_off_the_screen() {
    Play play;
    for (const QPoint place : {QPoint(500, 400), QPoint(400, 300)}) {
      play.frame.move(place);
      play.settle();
      QCOMPARE(play.frame.pos(), place);
    }
  }

  void the_wheel_over_an_open_list_leaves_the_window_where_it_is() {
    Play play;
    go_to(play, "small");
    down_of(play.frame)->setValue(down_of(play.frame)->maximum());
    auto& levels = play.find<QComboBox>("Niveau");
    levels.showPopup();
    play.settle();
    turn_wheel(play, *levels.view()->viewport(), 600);
    QCOMPARE(down_of(play.frame)->value(), down_of(play.frame)->maximum());
    levels.hidePopup();
  }

  void the_wheel_over_long_steps_scrolls_them_alone() {
    Play play;
    explain(play);
    go_to(play, "small");
    auto& steps = play.find<StepList>("steps");
    const int before = down_of(play.frame)->value(), end = steps.verticalScrollBar()->value();
    turn_wheel(play, *steps.viewport(), 120);
    QVERIFY(steps.verticalScrollBar()->value() < end);
    QCOMPARE(down_of(play.frame)->value(), before);
  }

  void tab_shows_the_whole_band_of_a_control() {
    Play play;
    go_to(play, "small");
    for (const auto& [control, band] :
         {std::pair("Check3", "options"), {"Command1", "commands"}, {"Niveau", "options"}}) {
      play.find(control).setFocus();
      play.settle();
      const QWidget& part = play.find(band);
      QVERIFY2(play.frame.rect().contains(part.geometry()), band);
    }
  }

  void a_click_does_not_move_what_is_clicked() {
    Play play;
    play.click("Check2");
    go_to(play, "small");
    play.frame.move(play.frame.screen()->geometry().topLeft());
    play.settle();
    QScrollBar& across = *across_of(play.frame);
    across.setValue(across.maximum());
    click_cell(play, "MSF", 4);
    QCOMPARE(across.value(), across.maximum());
    play.find("MSR").setFocus();
    across.setValue(0);
    click_cell(play, "MSR", 6);
    QCOMPARE(across.value(), 0);
  }

  void a_question_over_its_cell_goes_below_it() {
    Play play;
    play.draw(chain_grid);
    go_to(play, "small");
    QScreen& screen = *play.frame.screen();
    const QRect all = screen.geometry();
    set_room(screen, QRect(1024, 0, 800, 300));
    int left = 0;
    QPoint place;
    QRect cell;
    later(50, [&] {
      play.settle();
      auto* box = qobject_cast<QMessageBox*>(open_dialog());
      place = box->pos();
      left = box->parentWidget()->geometry().center().x() - box->width() / 2;
      cell = square(6, 7).translated(play.find("MSF").mapToGlobal(QPoint()));
      box->reject();
    });
    play.click("Command8");
    set_room(screen, all);
    QCOMPARE(place.y(), cell.bottom() + 1 + 12);
    QVERIFY(std::abs(place.x() - left) <= 4);
  }

  void a_click_gives_the_focus_without_moving_what_is_clicked() {
    Play play;
    explain(play);
    go_to(play, "small");
    const QWidget& steps = play.find("steps");
    const int hidden = steps.mapTo(&play.frame, QPoint()).y() + 15 - play.frame.height();
    down_of(play.frame)->setValue(down_of(play.frame)->value() + hidden);
    const int before = down_of(play.frame)->value();
    QTest::mousePress(play.frame.windowHandle(), Qt::LeftButton, {},
                      steps.mapTo(&play.frame, QPoint(5, 3)));
    QVERIFY(steps.hasFocus());
    QCOMPARE(down_of(play.frame)->value(), before);
    QTest::mouseRelease(play.frame.windowHandle(), Qt::LeftButton, {},
                        steps.mapTo(&play.frame, QPoint(5, 3)));
  }

 private:
  static void set_room(QScreen& screen, const QRect& room) {
    QWindowSystemInterface::handleScreenGeometryChange(&screen, screen.geometry(), room);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
  }

  /// Without a move.
  static void go_to(Play& play, const QString& name) {
    for (QScreen* screen : QGuiApplication::screens())
      if (screen->name() == name) play.frame.windowHandle()->setScreen(screen);
    play.settle();
  }

  static void turn_wheel(Play& play, QWidget& widget, int turn) {
    const QPointF middle = QRectF(widget.rect()).center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, turn}, {}, {}, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&widget, &event);
    play.settle();
  }

  /// A hint of two steps.
  static void explain(Play& play) {
    play.draw(chain_grid);
    BoxAnswer no(QMessageBox::No);
    play.click("Command8");
  }

  /// A cell of the third row that is in sight in part, where it is.
  void click_cell(Play& play, const char* name, int column) {
    auto& grid = play.find<GridView>(name);
    const QRect window(QPoint(), QSize(down_of(play.frame)->x(), across_of(play.frame)->y()));
    const QRect cell = square(3, column).translated(grid.mapTo(&play.frame, QPoint()));
    QVERIFY(window.intersects(cell) && !window.contains(cell));
    QTest::mouseClick(play.frame.windowHandle(), Qt::LeftButton, {},
                      window.intersected(cell).center());
    play.settle();
    QCOMPARE(grid.currentIndex().column(), column - 1);
  }
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::ScreenRoomTest)
#include "screen_room_test.moc"
