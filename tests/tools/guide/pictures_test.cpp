// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What the pictures of the guides show.

#include <QtTest>

#include "pas_a_pas/view.hpp"
#include "tools/guide/pictures.hpp"
#include "tools/guide/positions.hpp"
#include "tools/guide/studio.hpp"
#include "ui/qt/cell_painter.hpp"

namespace sdk::test {

namespace {

constexpr int cell_picture_side = (cell_side - 2) * picture_scale;

/// The background of a cell's picture.
QColor back_of(const QImage& cell) { return cell.pixelColor(12, 12); }

bool has(const QImage& image, const QColor& colour) {
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) == colour) return true;
  return false;
}

int darkest(const QImage& image) {
  int least = 255;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      least = std::min(least, image.pixelColor(x, y).lightness());
  return least;
}

bool is_like(const QString& name, const char* beginning) { return name.startsWith(beginning); }

}  // namespace

class PicturesTest : public QObject {
  Q_OBJECT

 private slots:
  void each_kind_has_its_width_in_millimetres() {
    for (const QString& name : pictures_.names()) {
      const double width = pictures_.take(name).width;
      const double expected = name == "window"                          ? 76
                              : name == "candidates" || name == "offer" ? 118
                              : is_like(name, "step-")                  ? 68
                                                                        : 5.5;
      QVERIFY2(width == expected, qPrintable(name));
    }
  }

  void givens_have_the_colour_of_their_level() {
    for (int level = 0; level < 5; ++level)
      QCOMPARE(back_of(image(QString("given-%1").arg(level))), to_qcolor(colour::level[level]));
    QCOMPARE(back_of(image("given-file")), to_qcolor(colour::from_file));
  }

  void digits_that_are_typed_offered_and_wrong_have_their_colours() {
    for (const char* name : {"typed", "wrong", "hinted"})
      QCOMPARE(back_of(image(name)), QColor(Qt::white));
    QVERIFY(has(image("wrong"), Qt::red));
    QVERIFY(!has(image("typed"), Qt::red) && !has(image("hinted"), Qt::red));
    QVERIFY(image("hinted") != image("typed"));
  }

  void marked_cells_have_the_colours_of_their_marks() {
    for (const auto& [name, mark] : {std::pair("mark-removed", Mark::removed),
                                     {"mark-support", Mark::support},
                                     {"mark-second", Mark::second},
                                     {"mark-value", Mark::value}})
      QCOMPARE(back_of(image(name)), to_qcolor(mark_background(mark)));
  }

  void a_cell_is_framed_and_three_times_as_large() {
    const QImage cell = image("given-1");
    QCOMPARE(cell.size(), QSize(cell_picture_side, cell_picture_side));
    QCOMPARE(cell.devicePixelRatio(), 3.0);
    for (const int at : {1, cell_picture_side - 2}) {
      QCOMPARE(cell.pixelColor(at, 75), QColor(Qt::lightGray));
      QCOMPARE(cell.pixelColor(75, at), QColor(Qt::lightGray));
    }
    for (const int at : {4, cell_picture_side - 5})
      QVERIFY(cell.pixelColor(at, 75) != QColor(Qt::lightGray));
  }

  void a_step_is_drawn_three_times_as_large() {
    const QImage step = image("step-xy_wing");
    QCOMPARE(step.size(), QSize(9 * cell_side, 9 * cell_side) * picture_scale);
    QCOMPARE(step.devicePixelRatio(), 3.0);
  }

  void a_step_has_the_marks_of_what_it_removes_or_rests_on() {
    for (const GuidePosition& position : positions()) {
      const std::string name = "step-" + name_of(position);
      const QImage step = image(QString::fromStdString(name));
      QVERIFY2(has(step, QColor(0xFF, 0, 0xFF)) || has(step, QColor(0xC0, 0xFF, 0xC0)),
               name.c_str());
    }
  }

  void the_window_is_shown_narrow_and_wide_as_the_player_sees_it() {
    QCOMPARE(image("window").size(), QSize(669, 678) * picture_scale);
    QCOMPARE(image("candidates").size(), QSize(963, 678) * picture_scale);
    QCOMPARE(image("offer").size(), QSize(963, 678) * picture_scale);
  }

  void a_picture_leaves_nothing_behind_in_the_next() {
    const QImage before = image("window");
    for (const char* name :
         {"candidates", "offer", "hinted", "wrong", "given-file", "mark-value"}) {
      image(name);
      QVERIFY2(image("window") == before, name);
    }
  }

  void buttons_are_shown_as_they_are_while_they_can_be_used() {
    for (const char* name : {"button-undo", "button-redo", "button-new", "button-quit"}) {
      const QImage button = image(name);
      QCOMPARE(button.size(), QSize(44, 44) * picture_scale);
      QVERIFY2(darkest(button) < 60, name);
    }
  }

 private:
  QImage image(const QString& name) { return pictures_.take(name).image; }

  Pictures pictures_{"En"};
};

}  // namespace sdk::test

int main(int argc, char** argv) {
  sdk::prepare_screen();
  QApplication::setStyle("Fusion");
  QApplication application(argc, argv);
  sdk::test::PicturesTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "pictures_test.moc"
