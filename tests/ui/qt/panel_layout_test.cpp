// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Where the parts of an explanation stand, and how its list shows that it has the focus.

#include <QToolButton>

#include "tests/ui/qt/play.hpp"
#include "ui/qt/step_list.hpp"

namespace sdk::test {

class PanelLayoutTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    play_.emplace();
    play_->click("Check2");
    play_->draw(
        "12345678.\n.........\n.........\n.........\n.........\n"
        ".........\n.........\n.........\n.........");
    BoxAnswer no(QMessageBox::No);
    play_->click("Command8");
    play_->settle();
  }
  void cleanup() { play_.reset(); }

  void the_list_fills_the_panel_beside_its_two_buttons() {
    const QRect list = play_->find("steps").geometry();
    QCOMPARE(list.topLeft(), QPoint(0, 0));
    QCOMPARE(list.bottom(), play_->find("explanation").rect().bottom());
    QCOMPARE(button("previous_step").geometry().left(), list.right() + 1 + 2);
    QCOMPARE(button("previous_step").geometry().right(), play_->find("explanation").rect().right());
  }

  void the_buttons_stand_at_the_top_below_each_other() {
    const QRect above = button("previous_step").geometry(), below = button("next_step").geometry();
    QCOMPARE(above.top(), 0);
    QCOMPARE(below.top(), above.bottom() + 1 + 2);
    QCOMPARE(below.left(), above.left());
  }

  void the_buttons_are_small_squares_that_tab_reaches() {
    for (const char* name : {"previous_step", "next_step"}) {
      QCOMPARE(button(name).size(), QSize(28, 28));
      QCOMPARE(button(name).iconSize(), QSize(18, 18));
      QCOMPARE(button(name).focusPolicy(), Qt::TabFocus);
    }
    QVERIFY(button("previous_step").icon().pixmap(18, 18).toImage() !=
            button("next_step").icon().pixmap(18, 18).toImage());
  }

  void the_buttons_are_named_in_both_languages() {
    play_->press(Qt::Key_F1);
    QCOMPARE(button("previous_step").toolTip(), "Previous step");
    QCOMPARE(button("next_step").toolTip(), "Next step");
    play_->press(Qt::Key_F2);
    QCOMPARE(button("previous_step").toolTip(), "Étape précédente");
    QCOMPARE(button("next_step").toolTip(), "Étape suivante");
  }

  void the_list_is_framed_while_it_has_the_focus() {
    StepList& list = play_->find<StepList>("steps");
    const QColor frame = list.palette().color(QPalette::Highlight);
    const auto edge = [&](QPoint at) { return list.viewport()->grab().toImage().pixelColor(at); };
    const QRect inside = list.viewport()->rect();
    for (const QPoint corner : {inside.topLeft(), inside.bottomRight()})
      QVERIFY(edge(corner) != frame);
    list.setFocus();
    for (const QPoint corner : {inside.topLeft(), inside.bottomRight()})
      QCOMPARE(edge(corner), frame);
    QVERIFY(edge(inside.bottomRight() - QPoint(1, 1)) != frame);
  }

  void the_list_never_scrolls_sideways_nor_by_whole_rows() {
    const StepList& list = play_->find<StepList>("steps");
    QCOMPARE(list.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(list.verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
    QCOMPARE(list.editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(list.selectionMode(), QAbstractItemView::SingleSelection);
  }

 private:
  QToolButton& button(const char* name) { return play_->find<QToolButton>(name); }

  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::PanelLayoutTest)
#include "panel_layout_test.moc"
