// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What is drawn over the cells of a step: links, lines, frames and the edges of the boxes.

#include <QPainter>

#include "pas_a_pas/view.hpp"
#include "tests/ui/qt/play.hpp"
#include "ui/qt/cell_painter.hpp"
#include "ui/qt/step_painter.hpp"

namespace sdk::test {

namespace {

constexpr int side = 9 * cell_side;

QImage white(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(Qt::white);
  return image;
}

/// Links and lines alone, on white.
QImage drawn(const StepPicture& step, int scale = 1, const QBrush& brush = Qt::NoBrush) {
  QImage image = white(scale * side, scale * side);
  QPainter painter(&image);
  painter.setBrush(brush);
  paint_step_links(painter, image.rect(), step);
  return image;
}

QRect ink(const QImage& image) {
  QRect box;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) != Qt::white) box |= QRect(x, y, 1, 1);
  return box;
}

QRect place(int row, int column, int digit) {
  return candidate_place(
      QRect((column - 1) * cell_side, (row - 1) * cell_side, cell_side, cell_side), digit);
}

StepPicture linked(Cell from, Cell to, int digit) {
  StepPicture step;
  step.links = {{{from, digit}, {to, digit}}};
  return step;
}

StepPicture framed(Unit unit) {
  StepPicture step;
  step.lines = {unit};
  return step;
}

/// Around all ink, in the units of the cells.
QRectF fine_ink(const StepPicture& step) {
  constexpr int scale = 10;
  const QRectF box = ink(drawn(step, scale));
  return {box.topLeft() / scale, box.size() / scale};
}

bool same(double found, double expected) { return std::abs(found - expected) <= 0.2; }

QImage framed_cell(Mark mark, const QBrush& brush) {
  QImage image = white(cell_side, cell_side);
  QPainter painter(&image);
  painter.setBrush(brush);
  paint_step_frame(painter, image.rect(), mark);
  return image;
}

bool about(double found, double expected) { return std::abs(found - expected) <= 2; }

}  // namespace

class StepLinesTest : public QObject {
  Q_OBJECT

 private slots:
  void a_link_goes_from_beside_one_digit_to_beside_the_other() {
    const QRect box = ink(drawn(linked({5, 1}, {5, 9}, 5)));
    QVERIFY(about(box.left(), place(5, 1, 5).center().x() + 8));
    QVERIFY(about(box.right(), place(5, 9, 5).center().x() - 8));
  }

  void a_link_is_bent_away_from_the_digits_between_its_ends() {
    const int middle = place(5, 1, 5).center().y();
    const QRect wide = ink(drawn(linked({5, 1}, {5, 9}, 5)));  // by half of 24
    QVERIFY(about(std::max(middle - wide.top(), wide.bottom() - middle), 12));
    const QRect narrow = ink(drawn(linked({5, 1}, {5, 2}, 5)));  // by half of a fifth of the way
    QVERIFY(about(std::max(middle - narrow.top(), narrow.bottom() - middle), 5));
  }

  void a_link_bends_to_the_other_side_on_its_way_back() {
    const QImage there = drawn(linked({5, 1}, {5, 9}, 5)), back = drawn(linked({5, 9}, {5, 1}, 5));
    const int middle = place(5, 1, 5).center().y();
    QVERIFY((ink(there).bottom() > middle + 4) != (ink(back).bottom() > middle + 4));
  }

  void a_link_down_a_column_is_bent_too() {
    const QRect box = ink(drawn(linked({1, 5}, {9, 5}, 5)));
    QVERIFY(about(box.top(), place(1, 5, 5).center().y() + 8));
    QVERIFY(about(box.bottom(), place(9, 5, 5).center().y() - 8));
    QVERIFY(about(box.width(), 13));
  }

  void a_link_begins_8_from_the_middle_of_its_digit_and_bends_up_on_its_way_to_the_right() {
    const QRectF wide = fine_ink(linked({5, 1}, {5, 9}, 5));
    // The ends of a line of 1.5 reach half of that further.
    QVERIFY(same(wide.left(), 26 + 7.95 - 0.75) && same(wide.right(), 442 - 7.95 + 0.75));
    QVERIFY(same(wide.top(), 234 - 24.9 / 2 - 0.75));
    const QRectF narrow = fine_ink(linked({5, 1}, {5, 2}, 5));
    QVERIFY(same(narrow.top(), 234 - (10.4 + 2.97) / 2 - 0.75));
  }

  void a_link_between_neighbours_begins_half_way_to_its_bend() {
    StepPicture step;
    step.links = {{{{5, 5}, 4}, {{5, 5}, 5}}};
    const double width = fine_ink(step).width();
    QVERIFY2(width > 8 && width < 11, qPrintable(QString::number(width)));
  }

  void links_and_lines_are_drawn_smoothly_in_a_blue_that_lets_digits_through() {
    const QImage image = drawn(linked({5, 1}, {5, 9}, 5));
    QSet<QRgb> shades;
    for (int y = 210; y < 240; ++y)
      for (int x = 30; x < 200; ++x) shades << image.pixel(x, y);
    QVERIFY(shades.size() > 10);
    QImage expected = white(1, 1);
    QPainter(&expected).fillRect(0, 0, 1, 1, QColor(0x10, 0x38, 0xa8, 0xd0));
    QCOMPARE(drawn(framed({UnitKind::row, 1}), 10).pixelColor(2340, 30), expected.pixelColor(0, 0));
  }

  void nothing_is_filled_whatever_the_painter_filled_before() {
    StepPicture step = linked({5, 1}, {5, 9}, 5);
    step.lines = {{UnitKind::row, 1}};
    QCOMPARE(drawn(step, 1, Qt::red), drawn(step));
    QCOMPARE(framed_cell(Mark::removed, Qt::red), framed_cell(Mark::removed, Qt::NoBrush));
  }

  void a_line_is_framed_3_inside_its_cells() {
    const QRectF box = fine_ink(framed({UnitKind::row, 3}));
    QVERIFY(same(box.left(), 3 - 0.75) && same(box.right(), side - 3 + 0.75));
    QVERIFY(same(box.top(), 104 + 3 - 0.75) && same(box.bottom(), 156 - 3 + 0.75));
  }

  void a_whole_step_shows_its_cells_in_their_places_and_its_links_on_top() {
    StepPicture step;
    for (const auto& [row, column] : {std::pair(1, 1), {2, 3}, {9, 9}})
      step.cells(row, column).mark = Mark::support;
    const QRect area(30, 20, side, side);
    const auto whole = [&] {
      QImage image = white(side + 60, side + 40);
      QPainter painter(&image);
      paint_step(painter, area, step);
      return image;
    };
    const QImage bare = whole();
    for (int row = 1; row <= 9; ++row)
      for (int column = 1; column <= 9; ++column)
        QCOMPARE(bare.pixelColor(area.topLeft() + place(row, column, 5).center()),
                 to_qcolor(mark_background(step.cells(row, column).mark)));
    step.links = {{{{5, 1}, 5}, {{5, 9}, 5}}};
    QVERIFY(whole() != bare);
    QVERIFY(QRect(30, 20, side, side).contains(ink(whole())));
  }

  void a_short_link_leaves_the_digits_at_its_ends_free() {
    StepPicture step;
    step.links = {{{{5, 5}, 4}, {{5, 5}, 6}}};
    const QRect box = ink(drawn(step));
    QVERIFY(!box.isEmpty());
    QVERIFY(QRect(4 * cell_side, 4 * cell_side, cell_side, cell_side).contains(box));
    QVERIFY(box.left() >= place(5, 5, 4).center().x() + 6);
    QVERIFY(box.right() <= place(5, 5, 6).center().x() - 6);
  }

  void a_link_is_blue_and_thin() {
    const QImage image = drawn(linked({5, 1}, {5, 9}, 5));
    int inked = 0;
    for (int y = 0; y < side; ++y) inked += image.pixelColor(side / 2, y).lightness() < 250;
    QVERIFY2(inked >= 2 && inked <= 3, qPrintable(QString::number(inked)));
    QColor darkest(Qt::white);
    for (int y = 0; y < side; ++y)
      if (image.pixelColor(side / 2, y).lightness() < darkest.lightness())
        darkest = image.pixelColor(side / 2, y);
    QVERIFY(darkest.blue() > darkest.red() + 60 && darkest.blue() > darkest.green() + 30);
  }

  void a_line_is_framed_inside_its_cells() {
    const auto framed = [](Unit unit) {
      StepPicture step;
      step.lines = {unit};
      return ink(drawn(step));
    };
    const auto is_inside = [](const QRect& box, const QRect& cells) {
      return about(box.left() - cells.left(), 2) && about(cells.right() - box.right(), 2) &&
             about(box.top() - cells.top(), 2) && about(cells.bottom() - box.bottom(), 2) &&
             cells.adjusted(1, 1, -1, -1).contains(box);
    };
    QVERIFY(is_inside(framed({UnitKind::row, 3}), {0, 2 * cell_side, side, cell_side}));
    QVERIFY(is_inside(framed({UnitKind::column, 9}), {8 * cell_side, 0, cell_side, side}));
    QVERIFY(is_inside(framed({UnitKind::box, 5}),
                      {3 * cell_side, 3 * cell_side, 3 * cell_side, 3 * cell_side}));
  }

  void a_framed_line_has_round_corners_and_is_empty_inside() {
    StepPicture step;
    step.lines = {{UnitKind::row, 1}};
    const QImage image = drawn(step);
    QCOMPARE(image.pixelColor(2, 2), QColor(Qt::white));
    QVERIFY(image.pixelColor(20, 2) != QColor(Qt::white));
    QCOMPARE(image.pixelColor(20, 20), QColor(Qt::white));
  }

  void the_boxes_of_a_whole_step_have_black_edges_and_its_cells_have_none() {
    QImage image = white(side, side);
    QPainter painter(&image);
    paint_step(painter, image.rect(), {});
    const auto is_black = [&](int at) {
      return image.pixelColor(at, 20) == Qt::black && image.pixelColor(20, at) == Qt::black;
    };
    for (const int edge : {3 * cell_side, 6 * cell_side}) {
      QVERIFY(is_black(edge - 1) && is_black(edge));
      QVERIFY(!is_black(edge - 2) && !is_black(edge + 1));
    }
    QVERIFY(is_black(0) && is_black(1) && !is_black(2));
    QVERIFY(is_black(side - 1) && is_black(side - 2) && !is_black(side - 3));
    QVERIFY(!is_black(cell_side) && !is_black(2 * cell_side - 1));
  }

  void a_frame_has_the_colour_of_its_mark_between_dark_edges() {
    QImage image = white(cell_side, cell_side);
    QPainter painter(&image);
    paint_step_frame(painter, image.rect(), Mark::removed);
    const QColor edge(0x30, 0x30, 0x30), mark = to_qcolor(mark_background(Mark::removed));
    const QColor expected[] = {Qt::white, Qt::white, Qt::white, Qt::white, edge,
                               mark,      mark,      mark,      edge,      Qt::white};
    for (int in = 0; in < 10; ++in) {
      QCOMPARE(image.pixelColor(in, 26), expected[in]);
      QCOMPARE(image.pixelColor(cell_side - 1 - in, 26), expected[in]);
      QCOMPARE(image.pixelColor(26, in), expected[in]);
      QCOMPARE(image.pixelColor(26, cell_side - 1 - in), expected[in]);
    }
  }

  void a_cell_without_a_mark_gets_no_frame() {
    QImage image = white(cell_side, cell_side);
    QPainter painter(&image);
    painter.setBrush(Qt::red);
    paint_step_frame(painter, image.rect(), Mark::none);
    QVERIFY(ink(image).isEmpty());
  }
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::StepLinesTest)
#include "step_lines_test.moc"
