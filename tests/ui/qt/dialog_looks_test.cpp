// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/dialog_looks.hpp"

#include <QAbstractButton>
#include <QFileDialog>
#include <QHeaderView>
#include <QTreeView>

#include "tests/ui/qt/play.hpp"
#include "ui/qt/icons.hpp"

namespace sdk::test {

namespace {

QImage picture_of(Icon icon) {
  QMessageBox box;
  set_picture(box, icon);
  return box.iconPixmap().toImage();
}

}  // namespace

class DialogLooksTest : public QObject {
  Q_OBJECT

 private slots:
  void every_kind_of_box_has_a_picture_of_its_own() {
    const QImage question = picture_of(Icon::question), exclamation = picture_of(Icon::exclamation),
                 critical = picture_of(Icon::critical);
    for (const QImage& picture : {question, exclamation, critical}) {
      QVERIFY(picture.pixelColor(picture.rect().center() + QPoint(0, 10)).alpha() == 255);
      QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
    }
    QVERIFY(question != exclamation && exclamation != critical && critical != question);
    QVERIFY(picture_of(Icon::none).isNull());
  }

  void a_picture_has_the_pixels_of_its_screen() {
    const QPixmap dense = box_picture("box_question", 36, 2);
    QCOMPARE(dense.size(), QSize(72, 72));
    QCOMPARE(dense.devicePixelRatio(), 2.0);
  }

  void the_icon_of_the_game_is_drawn_for_every_size() {
    const QList<QSize> sizes = game_icon().availableSizes();
    QCOMPARE(sizes, (QList<QSize>{{16, 16}, {32, 32}, {64, 64}}));
    for (const QSize& size : sizes) {
      const QImage image = game_icon().pixmap(size).toImage();
      QCOMPARE(image.pixelColor(image.rect().center()).alpha(), 255);
      QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    }
  }

  void a_box_of_few_words_leaves_its_title_room() {
    QMessageBox box(QMessageBox::NoIcon, "SuDoKu 1.0.0", "9", QMessageBox::Ok);
    fit_title(box);
    box.adjustSize();
    QVERIFY(box.width() >= box.fontMetrics().horizontalAdvance("SuDoKu 1.0.0") + 150);
  }

  void buttons_have_no_pictures() {
    QMessageBox box(QMessageBox::NoIcon, "SuDoKu", "9", QMessageBox::Yes | QMessageBox::No);
    for (QAbstractButton* button : box.buttons())
      button->setIcon(box_picture("box_question", 16, 1));
    remove_button_icons(box);
    for (const QAbstractButton* button : box.buttons()) QVERIFY(button->icon().isNull());
  }

  void a_file_dialog_shows_its_columns_whole() {
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    fit_columns(dialog);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto& files = *dialog.findChild<QTreeView*>("treeView");
    const QHeaderView& header = *files.header();
    QVERIFY(files.isColumnHidden(2));
    for (const int column : {1, 3})
      QVERIFY(header.sectionSize(column) >= header.sectionSizeHint(column));
    QCOMPARE(header.length(), files.viewport()->width());
  }
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::DialogLooksTest)
#include "dialog_looks_test.moc"
