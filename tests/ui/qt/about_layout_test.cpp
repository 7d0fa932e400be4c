// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Where the parts of the about box stand, and how they look.

#include <QDialog>
#include <QLabel>

#include "tests/ui/qt/play.hpp"

namespace sdk::test {

class AboutLayoutTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    play_.emplace();
    play_->click("Command5");
    play_->settle();
  }
  void cleanup() { play_.reset(); }

  void the_texts_stand_below_each_other_on_one_edge() {
    int bottom = -1;
    for (const char* name : {"lblVersion", "Label2", "Label1", "lblCopyright"}) {
      QVERIFY2(place(name).top() > bottom, name);
      QCOMPARE(place(name).left(), place("lblVersion").left());
      bottom = place(name).bottom();
    }
    QVERIFY(place("Label2").top() - place("lblVersion").bottom() > 24);
    QVERIFY(place("Label1").top() - place("Label2").bottom() < 12);
  }

  void the_texts_stand_beside_the_picture() {
    QVERIFY(place("lblVersion").left() > place("Picture").right());
    QVERIFY(place("PictureCaption").top() > place("Picture").bottom());
    QVERIFY(place("PictureCaption").top() - place("Picture").bottom() < 12);
    QCOMPARE(place("PictureCaption").center().x(), place("Picture").center().x());
  }

  void the_copyright_stands_at_the_foot_and_two_fifths_of_the_room_above_the_version() {
    QCOMPARE(place("lblCopyright").bottom(), place("PictureCaption").bottom());
    const double above = place("lblVersion").top() - place("Picture").top();
    const double below = place("lblCopyright").top() - place("Label1").bottom();
    QVERIFY(above > 10);
    QVERIFY2(std::abs(above / below - 2.0 / 3) < 0.1, qPrintable(QString::number(above / below)));
  }

  void the_version_is_written_largest_and_the_link_underlined() {
    const auto points = [this](const char* name) { return part(name).font().pointSize(); };
    QVERIFY(points("lblVersion") > points("Label1"));
    QVERIFY(points("Label1") > points("Label2"));
    QCOMPARE(points("Label2"), points("lblCopyright"));
    QVERIFY(part("Label1").font().underline());
    QVERIFY(!part("Label2").font().underline());
  }

  void sizes_and_margins_are_those_of_the_box() {
    const auto points = [this](const char* name) { return part(name).font().pointSize(); };
    QCOMPARE(points("lblVersion"), 20);
    QCOMPARE(points("Label1"), 12);
    for (const char* name : {"Label2", "lblCopyright", "PictureCaption"}) QCOMPARE(points(name), 9);
    const QRect picture = place("Picture"), caption = place("PictureCaption");
    QCOMPARE(picture.topLeft(), QPoint(20, 20));
    QCOMPARE(dialog().height() - caption.bottom() - 1, 16);
    QCOMPARE(place("lblVersion").left() - picture.right() - 1, 28);
    int right = 0;
    for (const char* name : {"lblVersion", "Label2", "lblCopyright"})
      right = std::max(right, place(name).right());
    QCOMPARE(dialog().width() - right - 1, 28);
    QCOMPARE(caption.top() - picture.bottom() - 1, 6);
    QCOMPARE(place("Label1").top() - place("Label2").bottom() - 1, 6);
    QCOMPARE(place("Label2").top() - place("lblVersion").bottom() - 1, 24 + 6);
  }

  void the_picture_has_its_own_size_and_its_caption_stands_in_the_middle() {
    QCOMPARE(part("Picture").size(), QSize(300, 400));
    QCOMPARE(part("PictureCaption").alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);
  }

  void the_link_ends_with_its_text() {
    QCOMPARE(place("Label1").width(), part("Label1").sizeHint().width());
    QVERIFY(place("Label1").width() < place("lblVersion").width());
  }

  void it_has_one_size_and_stands_in_the_middle_of_its_window() {
    QCOMPARE(dialog().minimumSize(), dialog().size());
    QCOMPARE(dialog().maximumSize(), dialog().size());
    const QPoint off = dialog().frameGeometry().center() - play_->frame.frameGeometry().center();
    QVERIFY2(std::abs(off.x()) <= 4 && std::abs(off.y()) <= 4, qPrintable(QDebug::toString(off)));
  }

  void nothing_is_cut_off() {
    for (const char* name :
         {"Picture", "PictureCaption", "lblVersion", "Label2", "Label1", "lblCopyright"}) {
      QVERIFY2(dialog().rect().contains(place(name)), name);
      QVERIFY2(part(name).width() >= part(name).sizeHint().width(), name);
      QVERIFY2(part(name).height() >= part(name).sizeHint().height(), name);
    }
  }

 private:
  QWidget& dialog() { return play_->find("about"); }
  QLabel& part(const char* name) { return *dialog().findChild<QLabel*>(name); }
  QRect place(const char* name) {
    return {part(name).mapTo(&dialog(), QPoint()), part(name).size()};
  }

  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::AboutLayoutTest)
#include "about_layout_test.moc"
