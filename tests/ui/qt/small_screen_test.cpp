// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The window on a screen that is smaller than it.

#include "ui/qt/small_screen.hpp"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QToolButton>
#include <QWindow>

#include "tests/ui/qt/play.hpp"
#include "ui/qt/step_list.hpp"

namespace sdk::test {

namespace {

constexpr const char* chain_grid =
    "4387.9.1.\n165248379\n29713..84\n346.719..\n852493761\n"
    "719..2.43\n.8132.497\n.2498713.\n973.14...";

constexpr const char* commands[] = {"Command1",  "Command6", "sauve", "Command4", "Command8",
                                    "Command7",  "Command2", "aide",  "Command5", "Command3",
                                    "Bouton_GO", "undo",     "redo"};
constexpr const char* options[] = {"Check3", "Check1", "Check2", "Niveau"};

}  // namespace

class SmallScreenTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    play_.emplace();
    play_->press(Qt::Key_F2);
  }
  void cleanup() { play_.reset(); }

  void a_large_screen_shows_all_and_no_scroll_bar() {
    for (int round = 0; round < 2; ++round) {
      QVERIFY(!down() && !across());
      QVERIFY(screen().contains(play_->frame.frameGeometry()));
      play_->click("Check2");
    }
  }

  void a_small_screen_holds_the_window_with_its_frame() {
    go_to_small_screen();
    QVERIFY(down() && !across());
    QVERIFY(screen().contains(play_->frame.frameGeometry()));
    QCOMPARE(play_->frame.frameGeometry().height(), 600);
    tick_by_key("Check2");
    QVERIFY(down() && across());
    QVERIFY(screen().contains(play_->frame.frameGeometry()));
    QCOMPARE(play_->frame.frameGeometry().size(), QSize(800, 600));
  }

  void the_window_comes_back_to_its_size_on_a_large_screen() {
    const QImage before = play_->frame.grab().toImage();
    go_to_small_screen();
    play_->find("Niveau").setFocus();
    play_->find("MSF").setFocus();
    go_to_screen("large");
    QVERIFY(!down() && !across());
    QCOMPARE(play_->frame.size(), QSize(669, 678));
    QCOMPARE(play_->frame.grab().toImage(), before);
  }

  void the_wheel_reaches_every_control_data() { both_layouts(); }
  void the_wheel_reaches_every_control() {
    QFETCH(bool, wide);
    go_to_small_screen(wide);
    for (const char* name : commands) QVERIFY2(see_by_bars(name), name);
    for (const char* name : options) QVERIFY2(see_by_bars(name), name);
    for (const char* name : {"Label3", "Label", "Astuce", "MSF"}) QVERIFY2(see_by_bars(name), name);
    scroll_to_end();
    wheel(play_->find("Check1"), 600);
    QCOMPARE(down()->value(), 0);
    wheel(play_->find<GridView>("MSF").viewport(), -600);
    QCOMPARE(down()->value(), down()->maximum());
  }

  void the_wheel_over_the_levels_scrolls_and_chooses_none() {
    go_to_small_screen();
    scroll_to_end();
    wheel(play_->find("Niveau"), 600);
    QCOMPARE(down()->value(), 0);
    QCOMPARE(globals.NiveauCourant, 1);
  }

  void a_click_on_the_lowest_control_arrives() {
    go_to_small_screen();
    scroll_to_end();
    click("Check2");
    QVERIFY(play_->find<QCheckBox>("Check2").isChecked());
  }

  void what_tab_reaches_is_in_sight_data() { both_layouts(); }
  void what_tab_reaches_is_in_sight() {
    QFETCH(bool, wide);
    go_to_small_screen(wide);
    QStringList visited;
    for (int i = 0; i < 18; ++i) {
      play_->press(Qt::Key_Tab);
      const QWidget& focus = *QApplication::focusWidget();
      visited << focus.objectName();
      if (visited.last() == "MSF" || visited.last() == "MSR")
        QVERIFY(sees(focus, square(9, 9)));
      else
        QVERIFY2(sees(focus, focus.rect()), qPrintable(visited.last()));
    }
    for (const char* name : options) QVERIFY2(visited.contains(name), name);
  }

  void the_current_cell_is_in_sight_wherever_the_keys_take_it() {
    go_to_small_screen();
    const QWidget& grid = play_->find("MSF");
    scroll_to_end();
    play_->press(Qt::Key_Home, Qt::NoModifier);
    play_->press(Qt::Key_PageUp);
    QVERIFY(sees(
        grid, square(play_->window.MSF.current_row() + 1, play_->window.MSF.current_column() + 1)));
    for (int row = 1; row < 9; ++row) {
      play_->press(Qt::Key_Down);
      QVERIFY(sees(grid, square(play_->window.MSF.current_row() + 1,
                                play_->window.MSF.current_column() + 1)));
    }
    down()->setValue(0);
  }

  void a_digit_that_is_typed_out_of_sight_brings_its_cell_back() {
    play_->draw(chain_grid);
    go_to_small_screen(true);
    across()->setValue(across()->maximum());
    QVERIFY(!sees(play_->find("MSF"), square(1, 1)));
    play_->press(Qt::Key_5);
    QVERIFY(sees(play_->find("MSF"), square(1, 1)));
  }

  void the_open_list_of_levels_is_on_the_screen() {
    go_to_small_screen();
    scroll_to_end();
    auto& levels = play_->find<QComboBox>("Niveau");
    levels.showPopup();
    play_->settle();
    QVERIFY(screen().contains(levels.view()->window()->frameGeometry()));
    levels.hidePopup();
  }

  void dialogs_are_on_the_screen_data() {
    QTest::addColumn<QString>("keys");
    for (const char* keys : {"Ctrl+O", "Ctrl+S", "Ctrl+P", "Ctrl+Q"}) QTest::newRow(keys) << keys;
  }
  void dialogs_are_on_the_screen() {
    QFETCH(QString, keys);
    go_to_small_screen();
    play_->frame.move(screen().center());
    QRect place;
    later(100, [&] {
      place = open_dialog()->frameGeometry();
      QTest::keyClick(open_dialog(), Qt::Key_Escape);
    });
    QTest::keySequence(&play_->frame, QKeySequence(keys));
    QVERIFY2(screen().contains(place), qPrintable(QDebug::toString(place)));
  }

  void the_about_box_is_on_the_screen() {
    go_to_small_screen();
    click("Command5");
    QVERIFY(open_dialog());
    QVERIFY(screen().contains(open_dialog()->frameGeometry()));
    QTest::keyClick(open_dialog(), Qt::Key_Escape);
  }

  void a_box_with_a_long_path_is_on_the_screen() {
    go_to_small_screen();
    QRect place;
    later(100, [&] {
      place = open_dialog()->frameGeometry();
      QTest::keyClick(open_dialog(), Qt::Key_Return);
    });
    play_->desktop.message_box("/folder" + std::string(80, 'x') + "/puzzle.sdk", Icon::exclamation,
                               Buttons::ok, "SuDoKu");
    QVERIFY2(screen().contains(place), qPrintable(QDebug::toString(place)));
  }

  void the_question_shows_its_cell_and_its_reasons_data() { both_layouts(); }
  void the_question_shows_its_cell_and_its_reasons() {
    QFETCH(bool, wide);
    play_->draw(chain_grid);
    go_to_small_screen(wide);
    later(50, [&] {
      play_->settle();
      auto* box = qobject_cast<QMessageBox*>(open_dialog());
      QVERIFY(box);
      QVERIFY(screen().contains(box->frameGeometry()));
      const QWidget& grid = play_->find(wide ? "MSR" : "MSF");
      QVERIFY(sees(grid, square(6, 7)));
      QVERIFY(sees(play_->find("explanation"), play_->find("explanation").rect()));
      QVERIFY(
          !box->frameGeometry().intersects(square(6, 7).translated(grid.mapToGlobal(QPoint()))));
      const int before = down()->value();
      wheel(play_->find("MSF"), before == 0 ? -600 : 600);
      QVERIFY(down()->value() != before);
      QTest::mouseClick(down(), Qt::LeftButton, {}, QPoint(5, before == 0 ? 3 : 200));
      QTest::keyClick(box, Qt::Key_Escape);
    });
    play_->click("Command8");
    QVERIFY(!open_dialog());
  }

  void the_question_moves_off_its_cell() {
    play_->draw(
        "1234.6789\n.........\n.........\n.........\n.........\n"
        ".........\n.........\n.........\n.........");
    go_to_small_screen();
    later(50, [&] {
      play_->settle();
      const QWidget& grid = play_->find("MSF");
      const QRect cell = square(1, 5).translated(grid.mapToGlobal(QPoint()));
      QVERIFY(sees(grid, square(1, 5)));
      QVERIFY(!open_dialog()->frameGeometry().intersects(cell));
      QTest::keyClick(open_dialog(), Qt::Key_Escape);
    });
    play_->click("Command8");
    QVERIFY(!open_dialog());
  }

 private:
  static void both_layouts() {
    QTest::addColumn<bool>("wide");
    QTest::newRow("narrow") << false;
    QTest::newRow("wide") << true;
  }
  QScrollBar* down() { return bar(Qt::Vertical); }
  QScrollBar* across() { return bar(Qt::Horizontal); }
  QScrollBar* bar(Qt::Orientation orientation) {
    for (auto* bar : play_->frame.findChildren<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly))
      if (bar->orientation() == orientation) return bar;
    return nullptr;
  }
  QRect screen() { return play_->frame.screen()->availableGeometry(); }
  static QRect square(int row, int column) { return {(column - 1) * 52, (row - 1) * 52, 52, 52}; }
  void go_to_screen(const QString& name) {
    for (QScreen* screen : QGuiApplication::screens()) {
      if (screen->name() != name) continue;
      play_->frame.windowHandle()->setScreen(screen);
      play_->frame.move(screen->geometry().topLeft());
    }
    play_->settle();
    if (play_->frame.screen()->name() != name) qFatal("the window did not change its screen");
  }
  void go_to_small_screen(bool wide = false) {
    if (wide) play_->click("Check2");
    go_to_screen("small");
  }
  void tick_by_key(const char* box) {
    play_->find(box).setFocus();
    play_->press(Qt::Key_Space);
  }
  /// Whether that part of a widget can be seen whole: it is neither off the window nor under a bar.
  bool sees(const QWidget& widget, const QRect& part) {
    QRect room = play_->frame.rect();
    if (down()) room.setRight(down()->x() - 1);
    if (across()) room.setBottom(across()->y() - 1);
    return room.contains(part.translated(widget.mapTo(&play_->frame, QPoint())));
  }
  bool see_by_bars(const char* name) {
    const QWidget& widget = play_->find(name);
    for (const int x : {0, across() ? across()->maximum() : 0})
      for (const int y : {0, down()->maximum()}) {
        if (across()) across()->setValue(x);
        down()->setValue(y);
        if (sees(widget, widget.rect())) return true;
      }
    return false;
  }
  void scroll_to_end() { down()->setValue(down()->maximum()); }
  void wheel(QWidget* widget, int turn) { wheel(*widget, turn); }
  void wheel(QWidget& widget, int turn) {
    const QPointF middle = QRectF(widget.rect()).center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, turn}, {}, {}, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&widget, &event);
    play_->settle();
  }
  /// As the system gives a click: to the window, at the place on the screen.
  void click(const char* name) {
    QWidget& widget = play_->find(name);
    QTest::mouseClick(play_->frame.windowHandle(), Qt::LeftButton, {},
                      widget.mapTo(&play_->frame, QPoint(10, widget.height() / 2)));
    play_->settle();
  }

  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::SmallScreenTest)
#include "small_screen_test.moc"
