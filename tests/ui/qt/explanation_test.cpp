// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What a player reads under the grids after a hint, and how its steps are led through.

#include <QPainter>
#include <QScrollBar>
#include <QToolButton>
#include <QToolTip>

#include "tests/ui/qt/play.hpp"
#include "ui/qt/cell_painter.hpp"
#include "ui/qt/step_list.hpp"
#include "ui/qt/step_painter.hpp"

namespace sdk::test {

namespace {

/// A hint for it finds a chain of two colours, then a naked single.
constexpr const char* chain_grid =
    "4387.9.1.\n165248379\n29713..84\n346.719..\n852493761\n"
    "719..2.43\n.8132.497\n.2498713.\n973.14...";

QRect place_of(const QWidget& widget) {
  return QRect(widget.mapTo(widget.window(), QPoint()), widget.size());
}

/// What must stand where it stood, whatever is explained.
constexpr const char* standing[] = {"Label3", "Astuce", "Label", "Niveau",   "Check1",  "Check2",
                                    "Check3", "rect",   "MSF",   "Command1", "Command3"};

using Step = std::optional<std::size_t>;

}  // namespace

class ExplanationTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    play_.emplace();
    play_->draw(chain_grid);
    play_->press(Qt::Key_F2);
  }
  void cleanup() { play_.reset(); }

  void nothing_is_drawn_before_a_hint() { QVERIFY(!panel().isVisible()); }

  void a_hint_fills_the_room_with_its_steps_the_last_in_view() {
    play_->click("Check2");
    hint();
    QVERIFY(panel().isVisible());
    QCOMPARE(list().model()->rowCount(), 2);
    QVERIFY(text(0).startsWith("1. "));
    QVERIFY(text(1).startsWith("2. Singleton nu"));
    QVERIFY(list().viewport()->rect().contains(row(1)));
    QCOMPARE(chosen(), Step());
  }

  void its_language_follows_at_once() {
    hint();
    play_->press(Qt::Key_F1);
    QVERIFY(text(1).startsWith("2. Naked single"));
    QCOMPARE(play_->find("next_step").toolTip(), "Next step");
    QCOMPARE(play_->find("previous_step").accessibleName(), "Previous step");
    QCOMPARE(list().accessibleName(), "Explanation");
    play_->press(Qt::Key_F2);
    QCOMPARE(list().accessibleName(), "Explication");
  }

  void it_goes_with_the_next_change_of_the_grid() {
    hint();
    play_->click_cell(1, 5);
    QVERIFY(panel().isVisible());
    play_->type("6");
    QVERIFY(!panel().isVisible());
  }

  void the_focus_goes_to_the_grid_when_the_steps_go() {
    hint();
    list().setFocus();
    play_->click("Command1");
    QVERIFY(!panel().isVisible());
    QVERIFY(play_->find("MSF").hasFocus());
  }

  void it_has_room_beside_the_options_with_the_candidates() {
    play_->click("Check2");
    hint();
    QVERIFY(place_of(panel()).width() >= 430);
    for (const auto key : {Qt::Key_F2, Qt::Key_F1}) {
      play_->press(key);
      const QRect room = place_of(panel());
      QVERIFY(room.width() >= 370 && room.height() >= 86);
      expect_free(room);
    }
  }

  void it_has_room_below_the_options_without_the_candidates() {
    hint();
    for (const auto key : {Qt::Key_F2, Qt::Key_F1}) {
      play_->press(key);
      const QRect room = place_of(panel());
      QVERIFY(room.width() >= 220 && room.height() >= 60);
      expect_free(room);
    }
  }

  void five_lines_are_in_view_with_the_candidates() {
    play_->click("Check2");
    hint();
    QVERIFY(list().viewport()->height() >= 5 * list().fontMetrics().lineSpacing());
  }

  void nothing_else_moves_for_it() {
    QList<QRect> before;
    for (const char* name : standing) before << place_of(play_->find(name));
    const QSize size = play_->frame.size();
    hint();
    for (int i = 0; i < before.size(); ++i) QCOMPARE(place_of(play_->find(standing[i])), before[i]);
    QCOMPARE(play_->frame.size(), size);
  }

  void a_long_sentence_is_wrapped_and_scrolls_by_keys() {
    hint();
    list().setFocus();
    play_->press(Qt::Key_Home);
    QCOMPARE(chosen(), Step(0));
    QVERIFY(row(0).height() > list().viewport()->height());
    QVERIFY(row(0).width() <= list().viewport()->width());
    QCOMPARE(row(0).top(), 0);
    play_->press(Qt::Key_Down);
    QCOMPARE(chosen(), Step(0));
    QVERIFY(row(0).top() < 0);
    for (int i = 0; i < 100 && chosen() == Step(0); ++i) play_->press(Qt::Key_Down);
    QCOMPARE(chosen(), Step(1));
  }

  void the_mouse_over_a_sentence_that_is_too_long_is_told_the_whole() {
    play_->click("Check2");
    hint();
    QVERIFY(help_for(1).isEmpty());
    QVERIFY(help_for(0).contains("Coloriage simple"));
  }

  void a_larger_font_is_wrapped_as_well() {
    QFont font = list().font();
    font.setPointSize(font.pointSize() * 2);
    list().setFont(font);
    hint();
    QVERIFY(row(0).height() > 8 * list().fontMetrics().lineSpacing());
    list().verticalScrollBar()->setValue(list().verticalScrollBar()->maximum());
    QVERIFY(row(1).bottom() < list().viewport()->height());
  }

  void a_click_chooses_a_step_and_another_one_leaves_it() {
    hint();
    click_row(1);
    QCOMPARE(chosen(), Step(1));
    QCOMPARE(list().chosen(), Step(1));
    click_row(1);
    QCOMPARE(chosen(), Step());
    QCOMPARE(list().chosen(), Step());
  }

  void the_buttons_lead_round_through_the_steps() {
    hint();
    for (const Step step : {Step(0), Step(1), Step()}) {
      click_button("next_step");
      QCOMPARE(chosen(), step);
    }
    for (const Step step : {Step(1), Step(0), Step()}) {
      click_button("previous_step");
      QCOMPARE(chosen(), step);
    }
    QVERIFY(play_->find("MSF").hasFocus());
  }

  void keys_lead_through_the_steps() {
    play_->click("Check2");
    hint();
    list().setFocus();
    for (const auto& [key, step] :
         {std::pair(Qt::Key_Up, Step(1)), std::pair(Qt::Key_Home, Step(0)),
          std::pair(Qt::Key_End, Step(1)), std::pair(Qt::Key_Down, Step()),
          std::pair(Qt::Key_Down, Step(0)), std::pair(Qt::Key_Escape, Step())}) {
      play_->press(key);
      QCOMPARE(chosen(), step);
    }
  }

  void page_keys_scroll_the_steps_and_choose_none() {
    hint();
    QScrollBar& bar = *list().verticalScrollBar();
    list().setFocus();
    bar.setValue(bar.maximum());
    play_->press(Qt::Key_PageUp);
    const int above = bar.value();
    QVERIFY(above < bar.maximum());
    play_->press(Qt::Key_PageDown);
    QVERIFY(bar.value() > above);
    QCOMPARE(chosen(), Step());
  }

  void tab_comes_to_the_steps_after_the_options() {
    hint();
    play_->find("Niveau").setFocus();
    for (const char* name : {"steps", "previous_step", "next_step", "Command1"}) {
      play_->press(Qt::Key_Tab);
      QCOMPARE(QApplication::focusWidget()->objectName(), name);
    }
  }

  void the_list_shows_that_it_has_the_focus() {
    hint();
    const QImage before = list().grab().toImage();
    list().setFocus();
    play_->settle();
    QVERIFY(list().grab().toImage() != before);
  }

  void digits_typed_in_the_list_change_no_cell() {
    hint();
    list().setFocus();
    play_->type("6");
    QVERIFY(panel().isVisible());
    QCOMPARE(chosen(), Step());
  }

  void a_chosen_step_is_painted_in_the_candidates_and_leaves_them_as_they_are() {
    play_->click("Check2");
    hint();
    const QImage before = picture("MSR");
    const std::vector<DisplayCell> cells = play_->window.MSR.cells();
    click_button("next_step");
    QCOMPARE(picture("MSR"), painted(*play_->window.explanation().picture()));
    QCOMPARE(play_->window.MSR.cells(), cells);
    click_button("next_step");
    click_button("next_step");
    QCOMPARE(picture("MSR"), before);
  }

  void a_struck_out_digit_looks_otherwise() {
    PictureCell cell{.candidates = {5, 6}, .mark = Mark::removed};
    const QImage kept = painted(cell);
    cell.removed = {5};
    const QImage lost = painted(cell);
    cell.pattern = {6};
    const QImage bold = painted(cell);
    for (const auto& [one, other, digit, same] :
         {std::tuple(kept, lost, 5, false), std::tuple(kept, lost, 6, true),
          std::tuple(lost, bold, 6, false), std::tuple(lost, bold, 5, true)}) {
      const QRect place = candidate_place(QRect(0, 0, cell_side, cell_side), digit);
      QCOMPARE(one.copy(place) == other.copy(place), same);
    }
  }

  void without_the_candidates_the_cells_of_a_step_are_framed_in_the_puzzle() {
    hint();
    const QImage before = picture("MSF");
    const std::vector<DisplayCell> cells = play_->window.MSF.cells();
    click_button("previous_step");
    const QImage framed = picture("MSF");
    for (int number = 1; number <= 81; ++number) {
      const auto [row, column] = cell_at(number);
      const QRect square((column - 1) * cell_side, (row - 1) * cell_side, cell_side, cell_side);
      const bool marked = number == 6 * 9 - 2;  // the single of row 6, column 7
      QCOMPARE(framed.copy(square) != before.copy(square), marked);
    }
    QCOMPARE(play_->window.MSF.cells(), cells);
    click_button("next_step");
    QCOMPARE(picture("MSF"), before);
  }

  void a_step_moves_to_the_grid_that_is_on_screen() {
    hint();
    click_button("previous_step");
    const QImage framed = picture("MSF");
    play_->click("Check2");
    QCOMPARE(picture("MSR"), painted(*play_->window.explanation().picture()));
    QVERIFY(picture("MSF") != framed);
  }

  void a_step_is_painted_at_any_size() {
    hint();
    play_->window.choose_step(0);
    const StepPicture step = *play_->window.explanation().picture();
    for (const int side : {300, 468, 1404}) {
      QImage image(side, side, QImage::Format_RGB32);
      QPainter painter(&image);
      paint_step(painter, image.rect(), step);
      const auto back = [&](int row, int column) {
        return image.pixelColor((column - 1) * side / 9 + side / 45,
                                (row - 1) * side / 9 + side / 45);
      };
      QCOMPARE(back(8, 9), QColor(0xff, 0xff, 0));
      QCOMPARE(back(1, 5), QColor(0xc0, 0xff, 0xc0));
      QCOMPARE(image.pixelColor(side - 1, side - 1), QColor(Qt::black));
    }
  }

  void the_sentences_are_wrapped_anew_for_another_room() {
    hint();
    for (int round = 0; round < 2; ++round) {
      play_->click("Check2");
      QCOMPARE(row(0).width(), list().viewport()->width());
      QCOMPARE(row(0).height(), list().sizeHintForIndex(list().model()->index(0, 0)).height());
      QVERIFY(row(1).top() >= 0 && row(1).top() < list().viewport()->height());
    }
  }

  void what_the_player_scrolled_to_stays_in_view() {
    hint();
    list().verticalScrollBar()->setValue(0);
    play_->click("Check1");
    QCOMPARE(list().verticalScrollBar()->value(), 0);
    click_button("previous_step");
    QVERIFY(list().verticalScrollBar()->value() > 0);
    list().verticalScrollBar()->setValue(0);
    play_->click("Check1");
    QCOMPARE(list().verticalScrollBar()->value(), 0);
    click_button("next_step");
    QCOMPARE(chosen(), Step());
    QCOMPARE(list().verticalScrollBar()->value(), 0);
  }

  void up_and_down_scroll_a_long_sentence_by_a_line() {
    hint();
    list().setFocus();
    play_->press(Qt::Key_Home);
    const int line = list().fontMetrics().lineSpacing();
    for (const auto& [key, lines] :
         {std::pair(Qt::Key_Down, 1), {Qt::Key_Down, 2}, {Qt::Key_Up, 1}, {Qt::Key_Up, 0}}) {
      play_->press(key);
      QCOMPARE(list().verticalScrollBar()->value(), lines * line);
      QCOMPARE(chosen(), Step(0));
    }
    play_->press(Qt::Key_Up);
    QCOMPARE(chosen(), Step());
  }

  void page_keys_scroll_and_choose_nothing() {
    hint();
    list().setFocus();
    QScrollBar& bar = *list().verticalScrollBar();
    bar.setValue(0);
    play_->press(Qt::Key_PageDown);
    QCOMPARE(bar.value(), bar.pageStep());
    play_->press(Qt::Key_PageUp);
    QCOMPARE(bar.value(), 0);
    QCOMPARE(chosen(), Step());
  }

  void the_language_keys_leave_the_step_chosen() {
    hint();
    list().setFocus();
    play_->press(Qt::Key_Home);
    for (const auto key : {Qt::Key_F1, Qt::Key_F2}) {
      play_->press(key);
      QCOMPARE(chosen(), Step(0));
    }
  }

  void escape_elsewhere_leaves_the_step_chosen() {
    hint();
    click_button("next_step");
    for (const char* name : {"MSF", "Check1"}) {
      play_->find(name).setFocus();
      play_->press(Qt::Key_Escape);
      QCOMPARE(chosen(), Step(0));
    }
  }

  void the_whole_of_a_long_sentence_is_told_at_the_mouse() {
    play_->click("Check2");
    hint();
    help_for(0);
    const QPoint mouse = list().viewport()->mapToGlobal(row(0).topLeft() + QPoint(5, 5));
    for (const QWidget* tip : QApplication::topLevelWidgets())
      if (tip->inherits("QTipLabel")) {
        QVERIFY(tip->isVisible());
        QVERIFY(QRect(mouse, QSize(1, 1)).adjusted(-40, -40, 40, 40).intersects(tip->geometry()));
      }
  }

 private:
  QWidget& panel() { return play_->find("explanation"); }
  StepList& list() { return play_->find<StepList>("steps"); }
  QString text(int row) { return list().model()->index(row, 0).data().toString(); }
  QRect row(int number) { return list().visualRect(list().model()->index(number, 0)); }
  void expect_free(const QRect& room) {
    QVERIFY(play_->frame.rect().contains(room));
    for (const char* name : standing) QVERIFY2(!room.intersects(place_of(play_->find(name))), name);
    for (const char* grid : {"rect", "rect2"})
      QVERIFY(!room.intersects(place_of(play_->find(grid))));
  }
  void click_row(int number) {
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, row(number).center());
    play_->settle();
  }
  QString help_for(int number) {
    list().scrollTo(list().model()->index(number, 0));
    const QPoint place = row(number).topLeft() + QPoint(5, 5);
    QHelpEvent event(QEvent::ToolTip, place, list().viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(list().viewport(), &event);
    return QToolTip::text();
  }
  void click_button(const char* name) {
    QTest::mouseClick(&play_->find(name), Qt::LeftButton);
    play_->settle();
  }
  QImage picture(const char* grid) { return play_->find(grid).grab().toImage(); }
  /// What the candidate grid shows of a step: the box lines are drawn over it.
  QImage painted(const StepPicture& step) {
    QImage image = picture("MSR");
    QPainter painter(&image);
    for (int number = 1; number <= 81; ++number) {
      const auto [row, column] = cell_at(number);
      paint_step_cell(painter,
                      QRect((column - 1) * cell_side, (row - 1) * cell_side, cell_side, cell_side),
                      step.cells(row, column));
    }
    paint_step_links(painter, QRect(QPoint(), QSize(9 * cell_side, 9 * cell_side)), step);
    return image;
  }
  static QImage painted(const PictureCell& cell) {
    QImage image(cell_side, cell_side, QImage::Format_RGB32);
    QPainter painter(&image);
    paint_step_cell(painter, image.rect(), cell);
    return image;
  }
  Step chosen() { return play_->window.explanation().chosen(); }
  void hint() {
    BoxAnswer no(QMessageBox::No);
    play_->click("Command8");
    play_->settle();
    if (!no.was_shown()) qFatal("no question was asked");
  }

  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::ExplanationTest)
#include "explanation_test.moc"
