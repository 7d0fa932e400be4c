// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// How the options below the grids look on light and dark desktops.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

#include "tests/ui/qt/play.hpp"

namespace sdk::test {

namespace {

constexpr const char* boxes[] = {"Check3", "Check1", "Check2"};

QPalette light() { return QPalette(QColor(240, 240, 240)); }
QPalette dark() { return QPalette(QColor(53, 53, 56), QColor(45, 45, 48)); }

QColor inside_of(const QWidget& box) { return box.palette().color(QPalette::Base); }

}  // namespace

class OptionLooksTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { play_.emplace(); }
  void cleanup() {
    QApplication::setPalette(QPalette());
    play_.reset();
  }

  void an_empty_check_box_is_as_light_inside_as_a_list_on_a_light_desktop() {
    show(light());
    for (const char* name : boxes)
      QCOMPARE(inside_of(play_->find(name)), QApplication::palette().color(QPalette::Base));
  }

  void an_empty_check_box_stands_out_from_a_dark_desktop() {
    show(dark());
    const QColor window = play_->frame.palette().color(QPalette::Window);
    for (const char* name : boxes) {
      const int difference = inside_of(play_->find(name)).lightness() - window.lightness();
      QVERIFY2(difference >= 40 && difference <= 100, qPrintable(QString::number(difference)));
      QCOMPARE(inside_of(play_->find(name)), window.lighter(200));
    }
  }

  void the_level_that_holds_reads_like_a_chosen_one() {
    for (const QPalette& palette : {light(), dark()}) {
      show(palette);
      const QPalette shown = play_->find("Niveau").palette();
      QCOMPARE(shown.color(QPalette::PlaceholderText), shown.color(QPalette::ButtonText));
    }
  }

  void the_list_of_levels_is_framed_and_has_its_arrow() {
    show(light());
    const QWidget& levels = play_->find("Niveau");
    const QImage picture = play_->find("Niveau").grab().toImage();
    const QColor back = levels.palette().color(QPalette::Base);
    QVERIFY(picture.pixelColor(levels.width() / 2, 0) != back ||
            picture.pixelColor(levels.width() / 2, 1) != back);
    int inked = 0;
    for (int y = 6; y < picture.height() - 6; ++y)
      for (int x = picture.width() - 20; x < picture.width() - 4; ++x)
        inked += picture.pixelColor(x, y).lightness() < 100;
    QVERIFY2(inked > 5, qPrintable(QString::number(inked)));
  }

  void a_level_that_holds_looks_like_a_chosen_one() {
    show(light());
    auto& levels = play_->find<QComboBox>("Niveau");
    levels.setPlaceholderText(levels.itemText(2));
    levels.setCurrentIndex(2);
    const QImage chosen = levels.grab().toImage();
    levels.setCurrentIndex(-1);
    QCOMPARE(levels.grab().toImage(), chosen);
    levels.setPlaceholderText(levels.itemText(3));
    QVERIFY(levels.grab().toImage() != chosen);
    levels.setCurrentIndex(4);
    QVERIFY(levels.grab().toImage() != chosen);
  }

  void the_easiest_level_is_shown_when_it_is_chosen() {
    auto& levels = play_->find<QComboBox>("Niveau");
    levels.setPlaceholderText(levels.itemText(0));
    levels.setCurrentIndex(0);
    const QImage chosen = levels.grab().toImage();
    levels.setPlaceholderText(levels.itemText(3));
    QCOMPARE(levels.grab().toImage(), chosen);
  }

  void the_list_grows_with_the_names_of_its_levels() {
    auto& levels = play_->find<QComboBox>("Niveau");
    play_->settle();
    const int before = levels.width();
    levels.addItem("Plus que diabolique");
    QTRY_VERIFY_WITH_TIMEOUT(levels.width() > before, 2000);
  }

  void a_box_says_what_it_does_under_the_pointer() {
    for (const auto key : {Qt::Key_F1, Qt::Key_F2}) {
      play_->press(key);
      for (const char* name : boxes)
        QCOMPARE(play_->find(name).toolTip(), play_->find<QCheckBox>(name).text());
    }
  }

  void the_options_fill_their_band_from_edge_to_edge() {
    QCOMPARE(play_->find("Check3").pos(), QPoint(0, 0));
    QCOMPARE(play_->find("Astuce").geometry().bottom(), play_->find("options").height() - 1);
    const int above = play_->find("Niveau").y() - play_->find("Check3").geometry().bottom();
    const int below = play_->find("Astuce").y() - play_->find("Niveau").geometry().bottom();
    QVERIFY(std::abs(above - below) <= 1);
    for (const char* name : {"Label", "Astuce"})
      QCOMPARE(play_->find(name).width(), play_->find(name).sizeHint().width());
  }

  void the_boxes_stand_in_a_row_from_the_left() {
    int right = -1 - gap;
    for (const char* name : boxes) {
      QCOMPARE(play_->find(name).x(), right + 1 + gap);
      QCOMPARE(play_->find(name).y(), play_->find("Check3").y());
      right = play_->find(name).geometry().right();
    }
  }

  void the_level_and_the_count_stand_below_and_the_language_hint_last() {
    const QRect level = play_->find("Niveau").geometry(), count = play_->find("Label").geometry();
    QCOMPARE(level.left(), 0);
    QVERIFY(level.top() > play_->find("Check3").geometry().bottom());
    QVERIFY(count.left() > level.right() && count.left() <= level.right() + 12);
    QCOMPARE(play_->find("Astuce").x(), 0);
    QVERIFY(play_->find("Astuce").y() > level.bottom());
  }

  void a_click_on_an_option_takes_the_focus_from_nobody_and_tab_reaches_it() {
    for (const char* name : {"Check3", "Check1", "Check2", "Niveau"})
      QCOMPARE(play_->find(name).focusPolicy(), Qt::TabFocus);
  }

  void texts_are_shown_as_they_are() {
    for (const char* name : {"Label", "Astuce"})
      QCOMPARE(play_->find<QLabel>(name).textFormat(), Qt::PlainText);
  }

 private:
  static constexpr int gap = 20;

  void show(const QPalette& palette) {
    QApplication::setPalette(palette);
    play_->settle();
  }

  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::OptionLooksTest)
#include "option_looks_test.moc"
