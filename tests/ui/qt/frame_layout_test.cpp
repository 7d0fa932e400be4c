// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Where the parts of the window stand to each other.

#include <QFrame>
#include <QScreen>

#include "tests/ui/qt/play.hpp"

namespace sdk::test {

class FrameLayoutTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { play_.emplace(); }
  void cleanup() { play_.reset(); }

  void the_bands_above_and_below_the_grids_keep_a_margin() {
    for (const bool wide : {false, true}) {
      if (wide) play_->click("Check2");
      play_->settle();
      const QRect frame = place("rect"), above = place("commands"), below = place("options");
      QCOMPARE(above.left(), 12);
      QCOMPARE(below.left(), 12);
      QCOMPARE(frame.top() - above.bottom() - 1, 12);
      QCOMPARE(below.top() - frame.bottom() - 1, 12);
      QCOMPARE(above.width(), 669 - 2 * 12);
      QCOMPARE(below.width(), above.width());
      QVERIFY(std::abs(play_->frame.height() - below.bottom() - 12) <= 1);
    }
  }

  void each_grid_stands_in_the_middle_of_its_frame() {
    play_->click("Check2");
    play_->settle();
    for (const auto& [grid, frame] : {std::pair("MSF", "rect"), {"MSR", "rect2"}}) {
      QVERIFY2(place(frame).contains(place(grid)), grid);
      const QPoint off = place(frame).center() - place(grid).center();
      QVERIFY(std::abs(off.x()) <= 1 && std::abs(off.y()) <= 1);
      QCOMPARE(play_->find<QFrame>(frame).frameWidth(), 2);
      QCOMPARE(play_->find<QFrame>(frame).frameShape(), QFrame::Box);
      QCOMPARE(play_->find<QFrame>(frame).frameShadow(), QFrame::Plain);
    }
    QVERIFY(place("rect2").left() > place("rect").right());
  }

  void the_lines_between_the_boxes_lie_over_the_whole_window() {
    QCOMPARE(place("lines"), play_->frame.rect());
    play_->click("Check2");
    play_->settle();
    QCOMPARE(place("lines"), play_->frame.rect());
    QVERIFY(play_->find("lines").testAttribute(Qt::WA_TransparentForMouseEvents));
  }

  void an_explanation_stands_right_of_the_options_with_a_margin_to_every_side() {
    play_->click("Check2");
    play_->draw(
        "12345678.\n.........\n.........\n.........\n.........\n"
        ".........\n.........\n.........\n.........");
    BoxAnswer no(QMessageBox::No);
    play_->click("Command8");
    play_->settle();
    const QRect room = place("explanation");
    QVERIFY(play_->find("explanation").isVisible());
    QCOMPARE(room.top() - place("rect").bottom() - 1, 8);
    QVERIFY(std::abs(play_->frame.width() - room.right() - 12) <= 1);
    QVERIFY(std::abs(play_->frame.height() - room.bottom() - 8) <= 1);
    for (const char* name : {"Check2", "Label", "Astuce"})
      QVERIFY2(room.left() > place(name).right() + 8, name);
  }

  void without_the_candidates_it_stands_below_the_boxes() {
    play_->draw(
        "12345678.\n.........\n.........\n.........\n.........\n"
        ".........\n.........\n.........\n.........");
    BoxAnswer no(QMessageBox::No);
    play_->click("Command8");
    play_->settle();
    const QRect room = place("explanation");
    QCOMPARE(room.top(), place("Check3").bottom() + 1);
    QVERIFY(room.left() > place("Label").right() + 8 && room.left() > place("Astuce").right() + 8);
    QVERIFY(room.left() < place("Check2").right());
  }

  void an_explanation_stands_10_right_of_the_options_in_either_language() {
    play_->draw(
        "12345678.\n.........\n.........\n.........\n.........\n"
        ".........\n.........\n.........\n.........");
    BoxAnswer no(QMessageBox::No);
    play_->click("Command8");
    for (const auto key : {Qt::Key_F1, Qt::Key_F2}) {
      play_->press(key);
      const int below = std::max(place("Label").right(), place("Astuce").right());
      QCOMPARE(place("explanation").left(), below + 10);
    }
    play_->click("Check2");
    for (const auto key : {Qt::Key_F1, Qt::Key_F2}) {
      play_->press(key);
      int right = std::max(place("Label").right(), place("Astuce").right());
      for (const char* name : {"Check1", "Check2", "Check3"})
        right = std::max(right, place(name).right());
      QCOMPARE(place("explanation").left(), right + 10);
    }
  }

  void the_window_has_one_size() {
    QCOMPARE(play_->frame.minimumSize(), play_->frame.maximumSize());
    QCOMPARE(play_->frame.minimumSize(), play_->frame.size());
  }

  void it_is_in_the_middle_of_the_screen_from_the_start() {
    const QPoint off =
        play_->frame.geometry().center() - play_->frame.screen()->availableGeometry().center();
    QVERIFY(std::abs(off.x()) <= 2 && std::abs(off.y()) <= 2);
  }

  void it_opens_in_the_middle_of_the_screen() {
    play_->frame.move(0, 0);
    play_->frame.centre_on_screen();
    const QPoint off =
        play_->frame.geometry().center() - play_->frame.screen()->availableGeometry().center();
    // The frame's edges are 2 pixels wide here.
    QVERIFY(std::abs(off.x()) <= 2 && std::abs(off.y()) <= 2);
  }

 private:
  QRect place(const char* name) {
    QWidget& widget = play_->find(name);
    return {widget.mapTo(&play_->frame, QPoint()), widget.size()};
  }

  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::FrameLayoutTest)
#include "frame_layout_test.moc"
