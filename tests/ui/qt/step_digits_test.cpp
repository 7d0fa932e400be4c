// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The digits in the drawing of a step: their places, sizes and colours.

#include <QPainter>

#include "pas_a_pas/view.hpp"
#include "tests/ui/qt/play.hpp"
#include "ui/qt/cell_painter.hpp"
#include "ui/qt/contrast.hpp"
#include "ui/qt/step_painter.hpp"

namespace sdk::test {

namespace {

constexpr QRect square(0, 0, cell_side, cell_side);

QImage painted(const PictureCell& cell, int scale = 1) {
  QImage image(square.size() * scale, QImage::Format_RGB32);
  QPainter painter(&image);
  paint_step_cell(painter, image.rect(), cell);
  return image;
}

/// Around what differs from an empty cell of that background.
QRect ink(const PictureCell& cell, int scale = 1) {
  const QImage drawn = painted(cell, scale);
  const QImage empty = painted({.mark = cell.value ? Mark::value : cell.mark}, scale);
  QRect box;
  for (int y = 0; y < drawn.height(); ++y)
    for (int x = 0; x < drawn.width(); ++x)
      if (drawn.pixel(x, y) != empty.pixel(x, y)) box |= QRect(x, y, 1, 1);
  return box;
}

/// A digit alone on the background of `mark`, in letters of `pixels`.
QImage written(int digit, const QRect& place, int pixels, bool bold, const QColor& colour,
               Mark mark) {
  QImage image(square.size(), QImage::Format_RGB32);
  QPainter painter(&image);
  paint_background(painter, square, to_qcolor(mark_background(mark)));
  QFont font = QGuiApplication::font();
  font.setPixelSize(pixels);
  font.setBold(bold);
  painter.setFont(font);
  painter.setPen(colour);
  painter.drawText(place, Qt::AlignCenter, QString::number(digit));
  return image;
}

/// The darkest pixel's lightness.
int darkness(const QImage& image) {
  int least = 255;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      least = std::min(least, image.pixelColor(x, y).lightness());
  return least;
}

}  // namespace

class StepDigitsTest : public QObject {
  Q_OBJECT

 private slots:
  void each_candidate_stands_in_the_middle_of_its_place() {
    for (int digit = 1; digit <= 9; ++digit) {
      const QRect box = ink({.candidates = {digit}}), place = candidate_place(square, digit);
      QVERIFY2(place.contains(box), qPrintable(QString::number(digit)));
      const QPoint off = box.center() - place.center();
      QVERIFY(std::abs(off.x()) <= 2 && std::abs(off.y()) <= 2);
    }
  }

  void a_candidate_is_small_and_a_value_large() {
    for (int digit = 1; digit <= 9; ++digit) {
      const int small = ink({.candidates = {digit}}).height(),
                large = ink({.value = digit}).height();
      QVERIFY2(small >= 8 && small <= 12, qPrintable(QString::number(small)));
      QVERIFY2(large >= 18 && large <= 23, qPrintable(QString::number(large)));
    }
  }

  void a_candidate_has_10_points_and_is_bold_where_the_step_rests_on_it() {
    for (int digit = 1; digit <= 9; ++digit) {
      const QRect place = candidate_place(square, digit);
      QCOMPARE(painted({.candidates = {digit}, .pattern = {digit}}),
               written(digit, place, 13, true, Qt::black, Mark::none));
      QCOMPARE(painted({.candidates = {digit}}),
               written(digit, place, 13, false, QColor(0x60, 0x60, 0x60), Mark::none));
    }
  }

  void a_value_has_20_points() {
    for (int digit = 1; digit <= 9; ++digit)
      QCOMPARE(painted({.value = digit}),
               written(digit, square, 26, false, QColor(0x60, 0x60, 0x60), Mark::value));
  }

  void a_bystander_can_be_read_on_every_mark() {
    for (const Mark mark : {Mark::none, Mark::removed, Mark::support, Mark::value, Mark::second}) {
      const int grey = darkness(painted({.candidates = {8}, .mark = mark}, 4));
      QVERIFY(contrast(QColor(grey, grey, grey), to_qcolor(mark_background(mark))) >=
              small_text_contrast);
    }
  }

  void a_value_stands_in_the_middle_of_its_cell() {
    const QPoint off = ink({.value = 8}).center() - square.center();
    QVERIFY(std::abs(off.x()) <= 2 && std::abs(off.y()) <= 2);
  }

  void a_larger_drawing_has_larger_digits() {
    QVERIFY(std::abs(ink({.value = 8}, 3).height() - 3 * ink({.value = 8}).height()) <= 6);
  }

  void what_the_step_rests_on_is_black_and_bystanders_are_grey() {
    const auto darkness_of = [](const PictureCell& cell) { return darkness(painted(cell, 4)); };
    QCOMPARE(darkness_of({.candidates = {8}, .pattern = {8}}), 0);
    QCOMPARE(darkness_of({.candidates = {8}, .removed = {8}}), 0);
    QCOMPARE(darkness_of({.candidates = {8}}), 0x60);
    QCOMPARE(darkness_of({.value = 8}), 0x60);
  }

  void a_digit_is_struck_out_from_the_lower_left_to_the_upper_right() {
    for (int digit = 1; digit <= 9; ++digit) {
      const QRect box = ink({.candidates = {digit}, .removed = {digit}});
      const QPoint middle = candidate_place(square, digit).center();
      QVERIFY(std::abs(box.left() - (middle.x() - 7)) <= 1);
      QVERIFY(std::abs(box.right() - (middle.x() + 7)) <= 1);
      const QImage image = painted({.candidates = {digit}, .removed = {digit}});
      const auto is_dark = [&](int x, int y) {
        return image.pixelColor(middle + QPoint(x, y)).lightness() < 200;
      };
      QVERIFY(is_dark(-6, 4) && is_dark(6, -4));
      QVERIFY(!is_dark(-6, -4) && !is_dark(6, 4));
    }
  }

  void a_strike_is_14_wide_and_9_high_and_thin() {
    constexpr int scale = 20;
    const QImage image = painted({.candidates = {1}, .removed = {1}}, scale);
    const QPointF middle = QRectF(candidate_place(square, 1)).center();
    const QPointF reach(7, -4.5), across = QPointF(4.5, 7) / 8.32;
    const auto is_dark = [&](QPointF place) {
      return image.pixelColor(((middle + place) * scale).toPoint()).lightness() < 100;
    };
    for (const int way : {1, -1}) {
      QVERIFY(is_dark(1.03 * way * reach) && !is_dark(1.1 * way * reach));
      for (const double side : {1, -1}) {
        QVERIFY(is_dark(0.85 * way * reach + 0.5 * side * across));
        QVERIFY(!is_dark(0.85 * way * reach + 0.75 * side * across));
      }
    }
  }

  void a_strike_is_drawn_smoothly() {
    const QImage image = painted({.candidates = {5}, .removed = {5}});
    QSet<QRgb> shades;
    for (int x = 19; x < 22; ++x)
      for (int y = 26; y < 33; ++y) shades << image.pixel(x, y);
    QVERIFY2(shades.size() > 4, qPrintable(QString::number(shades.size())));
  }

  void a_cell_is_drawn_in_its_square_alone() {
    const PictureCell cell{.candidates = {1, 5}, .mark = Mark::support, .removed = {5}};
    QImage image(3 * cell_side, 3 * cell_side, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    const QRect place(cell_side + 3, cell_side - 2, cell_side, cell_side);
    paint_step_cell(painter, place, cell);
    QCOMPARE(image.copy(place), painted(cell));
    painter.fillRect(place, Qt::white);
    QImage untouched(image.size(), image.format());
    untouched.fill(Qt::white);
    QCOMPARE(image, untouched);
  }

  void the_background_fills_the_cell_to_its_edges() {
    const QColor back = to_qcolor(mark_background(Mark::support));
    const QImage image = painted({.mark = Mark::support});
    QCOMPARE(image.pixelColor(0, 0), back);
    QCOMPARE(image.pixelColor(cell_side - 2, cell_side - 2), back);
    QVERIFY(image.pixelColor(cell_side - 1, 0) != back);
    QVERIFY(image.pixelColor(0, cell_side - 1) != back);
  }

  void a_drawing_leaves_the_painter_as_it_was() {
    QImage image(square.size() * 2, QImage::Format_RGB32);
    QPainter painter(&image);
    const QTransform before = painter.transform();
    paint_step_cell(painter, image.rect(), {.candidates = {5}, .removed = {5}});
    QCOMPARE(painter.transform(), before);
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
  }
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::StepDigitsTest)
#include "step_digits_test.moc"
