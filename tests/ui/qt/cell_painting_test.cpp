// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// How a cell of the grids is painted: its edges, its text, its candidates, the mark of a wrong one.

#include <QPainter>

#include "tests/ui/qt/play.hpp"
#include "ui/qt/cell_painter.hpp"

namespace sdk::test {

namespace {

constexpr QRect square(0, 0, cell_side, cell_side);

DisplayCell cell_of(const std::string& text, Colour colour = colour::black) {
  DisplayCell cell;
  cell.text = text;
  cell.text_colour = colour;
  cell.back_colour = colour::white;
  return cell;
}

DisplayCell wrong_cell() {
  DisplayCell cell = cell_of("8", colour::red);
  cell.wrong = true;
  return cell;
}

QImage painted(const DisplayCell& cell, int font_size = puzzle_font_size) {
  QImage image(square.size(), QImage::Format_RGB32);
  QPainter painter(&image);
  paint_cell(painter, square, cell, font_size);
  return image;
}

/// The same large enough to look at its details.
QImage enlarged(const DisplayCell& cell, int font_size, int scale) {
  QImage image(square.size() * scale, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.scale(scale, scale);
  paint_cell(painter, square, cell, font_size);
  return image;
}

/// Around what is not as in an empty cell.
QRect ink(const QImage& image) {
  const QImage empty = painted(cell_of(" "));
  QRect box;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) != empty.pixel(x, y)) box |= QRect(x, y, 1, 1);
  return box;
}

bool about(int found, int expected) { return std::abs(found - expected) <= 2; }

}  // namespace

class CellPaintingTest : public QObject {
  Q_OBJECT

 private slots:
  void thin_lines_run_right_and_below() {
    const QImage image = painted(cell_of(" "));
    const QColor line = image.pixelColor(51, 0);
    QCOMPARE(line, QColor(199, 199, 199));
    for (int at = 0; at < cell_side; ++at) {
      QCOMPARE(image.pixelColor(51, at), line);
      QCOMPARE(image.pixelColor(at, 51), line);
    }
    for (int at = 0; at < cell_side - 1; ++at) {
      QCOMPARE(image.pixelColor(50, at), QColor(Qt::white));
      QCOMPARE(image.pixelColor(at, 0), QColor(Qt::white));
    }
  }

  void a_digit_stands_in_the_middle_in_the_size_of_its_grid() {
    const QRect large = ink(painted(cell_of("8"))), small = ink(painted(cell_of("8"), 10));
    for (const QRect& box : {large, small})
      QVERIFY(about(box.center().x(), 26) && about(box.center().y(), 26));
    QVERIFY(about(large.height(), 22));
    QVERIFY(about(small.height(), 10));
  }

  void a_cell_may_have_a_font_size_of_its_own() {
    DisplayCell cell = cell_of("8");
    cell.font_size = 10;
    QCOMPARE(painted(cell), painted(cell_of("8"), 10));
  }

  void candidates_stand_three_by_three_and_dots_where_there_are_none() {
    const QImage all = painted(cell_of("1  2  3  \r4  5  6  \r7  8  9  "), 10);
    const QImage none = painted(cell_of(".  .  .  \r.  .  .  \r.  .  .  "), 10);
    const QImage empty = painted(cell_of(" "));
    for (int digit = 1; digit <= 9; ++digit) {
      const QRect place = candidate_place(square, digit);
      QCOMPARE(place.size(), QSize(16, 16));
      QCOMPARE(place.topLeft(), QPoint(2 + (digit - 1) % 3 * 16, 2 + (digit - 1) / 3 * 16));
      QVERIFY(all.copy(place) != empty.copy(place));
      QVERIFY(none.copy(place) != empty.copy(place));
      QVERIFY(none.copy(place) != all.copy(place));
    }
    QVERIFY(darkest(none) > darkest(all) + 100);
  }

  void a_dot_is_small_and_stands_in_the_middle_of_its_place() {
    const QRect box = ink(painted(cell_of("         \r   .     \r         "), 10));
    QVERIFY(box.height() <= 4 && box.width() <= 4);
    QVERIFY(about(box.center().x(), 26) && about(box.center().y(), 26));
  }

  void a_dot_is_pale() {
    const QImage dots = enlarged(cell_of(".  .  .  \r.  .  .  \r.  .  .  "), 10, 10);
    int darkest = 255;
    for (int y = 20; y < 500; ++y)
      for (int x = 20; x < 500; ++x) darkest = std::min(darkest, dots.pixelColor(x, y).lightness());
    QCOMPARE(darkest, 255 - 80);
  }

  void a_zigzag_has_seven_steps_of_4_and_a_line_of_2() {
    const QImage image = enlarged(wrong_cell(), puzzle_font_size, 20);
    const auto is_red = [&](double x, double y) {
      return image.pixelColor(int(x * 20), int(y * 20)) == QColor(Qt::red);
    };
    const auto is_white = [&](double x, double y) {
      return image.pixelColor(int(x * 20), int(y * 20)) == QColor(Qt::white);
    };
    for (int corner = 1; corner <= 6; ++corner) {
      const double x = 12 + 4 * corner, y = corner % 2 == 0 ? 41 : 45;
      const double outward = corner % 2 == 0 ? -1 : 1;
      QVERIFY(is_red(x, y) && is_red(x, y + 0.55 * outward));
      QVERIFY(is_white(x, y + 0.85 * outward));
    }
    for (const auto& [x, y, way] : {std::tuple(12.0, 41.0, -1), {40.0, 45.0, 1}}) {
      QVERIFY(is_red(x + 0.6 * way, y + 0.6 * way));
      QVERIFY(is_white(x + 1.6 * way, y + 1.6 * way));
    }
  }

  void a_wrong_digit_is_underlined_by_a_zigzag() {
    const QRect right = ink(painted(cell_of("8"))), wrong = ink(painted(wrong_cell()));
    QVERIFY(wrong.bottom() > right.bottom() + 4);
    QVERIFY(about(wrong.left(), 11) && about(wrong.right(), 41) && about(wrong.bottom(), 46));
    const QImage image = painted(wrong_cell());
    // It begins above and ends below.
    QVERIFY(image.pixelColor(12, 41) != Qt::white && image.pixelColor(12, 45) == Qt::white);
    QVERIFY(image.pixelColor(40, 45) != Qt::white && image.pixelColor(40, 41) == Qt::white);
  }

  void the_zigzag_is_drawn_smoothly_and_the_painter_left_as_it_was() {
    QImage image(square.size(), QImage::Format_RGB32);
    QPainter painter(&image);
    paint_cell(painter, square, wrong_cell(), puzzle_font_size);
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
    QSet<QRgb> shades;
    for (int x = 11; x < 42; ++x)
      for (int y = 40; y < 48; ++y) shades << image.pixel(x, y);
    QVERIFY(shades.size() > 5);
  }

  void a_selected_cell_is_tinted_towards_blue() {
    const QColor white = to_qcolor(selected_background(colour::white));
    QVERIFY(white.red() < 230 && white.red() > 180);
    QVERIFY(white.blue() > white.green() && white.green() > white.red());
    QCOMPARE(to_qcolor(selected_background(0)),
             QColor(0x1c * 0x38 / 255, 0x6d * 0x38 / 255, 0xd0 * 0x38 / 255));
  }

  void a_puzzle_is_painted_row_by_row() {
    std::vector<DisplayCell> cells(81, cell_of(" "));
    cells[9 + 2].back_colour = colour::from_file;
    cells[80].back_colour = colour::from_file;
    QImage image(9 * cell_side, 9 * cell_side, QImage::Format_RGB32);
    QPainter painter(&image);
    paint_puzzle(painter, cells);
    for (int row = 0; row < 9; ++row)
      for (int column = 0; column < 9; ++column) {
        const bool marked = (row == 1 && column == 2) || (row == 8 && column == 8);
        QCOMPARE(image.pixelColor(column * cell_side + 3, row * cell_side + 3),
                 marked ? to_qcolor(colour::from_file) : QColor(Qt::white));
      }
  }

 private:
  static int darkest(const QImage& image) {
    int least = 255;
    for (int y = 2; y < 50; ++y)
      for (int x = 2; x < 50; ++x) least = std::min(least, image.pixelColor(x, y).lightness());
    return least;
  }
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::CellPaintingTest)
#include "cell_painting_test.moc"
