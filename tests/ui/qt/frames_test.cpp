// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The frames of the puzzle's cells, as the player sees them.

#include <QPainter>

#include "tests/ui/qt/play.hpp"
#include "ui/qt/cell_painter.hpp"
#include "ui/qt/digit_frame_painter.hpp"

namespace sdk::test {

namespace {

constexpr const char* some_digits =
    "12.......\n...1.....\n.........\n.........\n.........\n"
    ".........\n.........\n.........\n.........";

/// Its ninth cell of row 1 has no candidate left.
constexpr const char* dead_grid =
    "12345678.\n........9\n.........\n.........\n.........\n"
    ".........\n.........\n.........\n.........";

/// A hint for it offers the single of row 6, column 7 after a chain.
constexpr const char* offer_grid =
    "4387.9.1.\n165248379\n29713..84\n346.719..\n852493761\n"
    "719..2.43\n.8132.497\n.2498713.\n973.14...";

/// Where the frame of a cell runs, in the middle of its left side.
constexpr int in_a_cell = 2, in_the_current_cell = 4;

}  // namespace

class FramesTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    play_.emplace();
    play_->draw(some_digits);
    play_->click_cell(1, 9);
  }
  void cleanup() { play_.reset(); }

  void both_cells_of_a_clash_are_framed_while_it_lasts() {
    play_->type("2");
    QVERIFY(is_framed(1, 2, DigitFrame::clash));
    QVERIFY(is_framed(1, 9, DigitFrame::clash, in_the_current_cell));
    play_->click_cell(9, 9);
    QVERIFY(is_framed(1, 9, DigitFrame::clash));
    play_->click_cell(1, 9);
    play_->type("3");
    QVERIFY(!is_framed(1, 2, DigitFrame::clash));
    QVERIFY(!is_framed(1, 9, DigitFrame::clash, in_the_current_cell));
  }

  void the_frame_is_that_of_the_clash_and_not_of_the_red_digit() {
    play_->type("2");
    play_->click_cell(9, 9);
    play_->type("8");  // red, for the clash that is elsewhere
    QCOMPARE(play_->window.MSF.current().text_colour, colour::red);
    QVERIFY(!is_framed(9, 9, DigitFrame::clash, in_the_current_cell));
    QVERIFY(!is_underlined(9, 9));
    QVERIFY(is_underlined(1, 9));
  }

  void a_red_digit_whose_clash_is_gone_is_not_underlined_though_the_solution_differs() {
    play_->window.ChaineSolution = std::string(81, '7');
    play_->type("2");
    QVERIFY(is_underlined(1, 9));
    play_->click("Check3");
    play_->click_cell(1, 2);
    play_->press(Qt::Key_Delete);
    QCOMPARE(play_->window.MSF.cell(0, 8).text_colour, colour::red);
    QVERIFY(!is_underlined(1, 9));
    play_->click("Command7");
    QVERIFY(is_underlined(1, 9));
  }

  void undo_brings_the_zigzag_of_a_wrong_digit_back() {
    play_->window.ChaineSolution = std::string(81, '7');
    play_->type("5");
    play_->click("Command7");
    QVERIFY(is_underlined(1, 9));
    play_->click_cell(1, 9);
    play_->type("7");
    QVERIFY(!is_underlined(1, 9));
    play_->press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(is_underlined(1, 9));
  }

  void digits_equal_to_that_of_the_current_cell_are_framed() {
    play_->click_cell(1, 1);
    QVERIFY(is_framed(2, 4, DigitFrame::equal));
    QVERIFY(!is_framed(1, 2, DigitFrame::equal));
    QVERIFY(!is_framed(1, 1, DigitFrame::equal, in_the_current_cell));
    play_->press(Qt::Key_Right);
    QVERIFY(!is_framed(2, 4, DigitFrame::equal));
    play_->press(Qt::Key_Left);
    QVERIFY(is_framed(2, 4, DigitFrame::equal));
    play_->press(Qt::Key_Down);
    QVERIFY(!is_framed(2, 4, DigitFrame::equal));
  }

  void a_clash_hides_that_a_digit_is_equal() {
    play_->type("2");
    QVERIFY(!is_framed(1, 2, DigitFrame::equal));
    QVERIFY(is_framed(1, 2, DigitFrame::clash));
  }

  void a_frame_is_2_pixels_wide_and_clear_of_the_lines_or_of_the_border() {
    for (const DigitFrame frame : {DigitFrame::clash, DigitFrame::equal})
      for (const bool in_border : {false, true}) {
        const QImage image = drawn(frame, in_border);
        const int first = in_border ? in_the_current_cell : in_a_cell;
        for (int in = 0; in < 10; ++in) {
          const bool inked = in == first || in == first + 1;
          const QColor expected = inked ? frame_colour(frame) : QColor(Qt::white);
          for (const QPoint& at :
               {QPoint(in, 26), QPoint(26, in), QPoint(51 - in, 26), QPoint(26, 51 - in)})
            QCOMPARE(image.pixelColor(at), expected);
        }
      }
  }

  void a_clash_has_sharp_corners_and_an_equal_digit_round_ones() {
    const QImage sharp = drawn(DigitFrame::clash), round = drawn(DigitFrame::equal);
    for (const QPoint& corner : {QPoint(2, 2), QPoint(49, 2), QPoint(2, 49), QPoint(49, 49)})
      QCOMPARE(sharp.pixelColor(corner), frame_colour(DigitFrame::clash));
    const QColor colour = frame_colour(DigitFrame::equal);
    QCOMPARE(round.pixelColor(10, 2), colour);
    QCOMPARE(round.pixelColor(5, 2), QColor(Qt::white));
    QCOMPARE(round.pixelColor(3, 3), QColor(Qt::white));
    QVERIFY(round.pixelColor(8, 2) != colour && round.pixelColor(8, 2) != QColor(Qt::white));
  }

  void the_frames_are_dark_red_and_dark_blue_green() {
    QCOMPARE(frame_colour(DigitFrame::clash), QColor(0xc0, 0, 0));
    QCOMPARE(frame_colour(DigitFrame::equal), QColor(0, 0x66, 0x70));
  }

  void a_frame_leaves_its_cell_empty_and_the_painter_as_it_was() {
    QImage image(cell_side, cell_side, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setBrush(Qt::yellow);
    const QPen pen = painter.pen();
    paint_digit_frame(painter, image.rect(), DigitFrame::none, false);
    QCOMPARE(image.pixelColor(2, 26), QColor(Qt::white));
    paint_digit_frame(painter, image.rect(), DigitFrame::equal, false);
    QCOMPARE(image.pixelColor(26, 26), QColor(Qt::white));
    QCOMPARE(painter.pen(), pen);
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
  }

  void the_candidates_are_not_framed() {
    play_->click("Check2");
    play_->type("2");
    const QImage image = play_->find("MSR").grab().toImage();
    QVERIFY(image.pixelColor(cell_side + in_a_cell, cell_side / 2) !=
            frame_colour(DigitFrame::clash));
  }

  void an_offer_is_framed_while_its_question_is_open() {
    play_->draw(offer_grid);
    const QImage before = picture();
    QImage asked;
    ask_hint([&] { asked = picture(); });
    QCOMPARE(changed_cells(before, asked), QList<int>{6 * 9 - 2});
    QCOMPARE(changed_cells(before, picture()), QList<int>());
  }

  void a_step_that_is_chosen_takes_the_place_of_the_offer() {
    play_->draw(offer_grid);
    const QImage before = picture();
    QList<int> step, offer;
    ask_hint([&] {
      QTest::mouseClick(&play_->find("next_step"), Qt::LeftButton);
      step = changed_cells(before, picture());
      for (int i = 0; i < 2; ++i) QTest::mouseClick(&play_->find("next_step"), Qt::LeftButton);
      offer = changed_cells(before, picture());
    });
    QVERIFY(step.size() > 1);
    QCOMPARE(offer, QList<int>{6 * 9 - 2});
  }

  void an_offer_is_not_framed_beside_the_candidates() {
    play_->draw(offer_grid);
    play_->click("Check2");
    const QImage before = picture();
    QImage asked;
    ask_hint([&] { asked = picture(); });
    QCOMPARE(changed_cells(before, asked), QList<int>());
  }

  void a_dead_cell_is_framed_until_the_grid_changes() {
    play_->draw(dead_grid);
    play_->click_cell(9, 9);
    const QImage before = picture();
    play_->click("Command8");
    play_->settle();
    QCOMPARE(changed_cells(before, picture()), QList<int>{9});
    play_->click_cell(9, 8);
    play_->click_cell(9, 9);
    QCOMPARE(changed_cells(before, picture()), QList<int>{9});
    play_->type("4");
    QCOMPARE(changed_cells(before, picture()), QList<int>{4});  // equal to the typed one
  }

 private:
  /// Alone, on white.
  static QImage drawn(DigitFrame frame, bool in_border = false) {
    QImage image(cell_side, cell_side, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paint_digit_frame(painter, image.rect(), frame, in_border);
    return image;
  }

  /// Lets the window follow, and looks.
  QImage picture() {
    play_->settle();
    return play_->find("MSF").grab().toImage();
  }

  QImage picture(int row, int column) {
    return picture().copy((column - 1) * cell_side, (row - 1) * cell_side, cell_side, cell_side);
  }

  /// On all four sides.
  bool is_framed(int row, int column, DigitFrame frame, int inset = in_a_cell) {
    const QImage cell = picture(row, column);
    const int middle = cell_side / 2, far = cell_side - 1 - inset;
    for (const QPoint& point :
         {QPoint(inset, middle), QPoint(far, middle), QPoint(middle, inset), QPoint(middle, far)})
      if (cell.pixelColor(point) != frame_colour(frame)) return false;
    return true;
  }

  /// Seen where no frame and no digit is.
  bool is_underlined(int row, int column) {
    const QImage cell = picture(row, column);
    for (int y = 41; y < 46; ++y)
      for (int x = 12; x < 40; ++x)
        if (cell.pixelColor(x, y) != cell.pixelColor(10, 8)) return true;
    return false;
  }

  /// Apart from the current one, whose border tells the focus.
  QList<int> changed_cells(const QImage& before, const QImage& after) {
    QList<int> changed;
    for (int number = 1; number <= 81; ++number) {
      const Cell cell = cell_at(number);
      if (cell.row - 1 == play_->window.MSF.current_row() &&
          cell.column - 1 == play_->window.MSF.current_column())
        continue;
      const QRect square((cell.column - 1) * cell_side, (cell.row - 1) * cell_side, cell_side,
                         cell_side);
      if (before.copy(square) != after.copy(square)) changed << number;
    }
    return changed;
  }

  /// Looks while the question is open, then answers no.
  void ask_hint(const std::function<void()>& look) {
    later(50, [&] {
      look();
      open_dialog()->reject();
    });
    play_->click("Command8");
    play_->settle();
  }

  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::FramesTest)
#include "frames_test.moc"
