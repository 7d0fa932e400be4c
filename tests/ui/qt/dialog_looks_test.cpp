// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/dialog_looks.hpp"

#include <QAbstractButton>
#include <QFileDialog>
#include <QHeaderView>
#include <QLayout>
#include <QStyledItemDelegate>
#include <QTemporaryDir>
#include <QTreeView>

#include "tests/ui/qt/play.hpp"
#include "ui/qt/icons.hpp"
#include "ui/version.hpp"

namespace sdk::test {

namespace {

QImage picture_of(Icon icon) {
  QMessageBox box;
  set_picture(box, icon);
  return box.iconPixmap().toImage();
}

/// Gives away what a delegate writes into a cell.
class Delegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::initStyleOption;
};

QString shown_size(const QTreeView& files, const QString& name) {
  const QAbstractItemModel& model = *files.model();
  for (int row = 0; row < model.rowCount(files.rootIndex()); ++row) {
    if (model.index(row, 0, files.rootIndex()).data() != name) continue;
    const QModelIndex index = model.index(row, 1, files.rootIndex());
    QStyleOptionViewItem option;
    auto* delegate = static_cast<QStyledItemDelegate*>(files.itemDelegateForIndex(index));
    (delegate->*&Delegate::initStyleOption)(&option, index);
    return option.text;
  }
  return "the file is not listed";
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

  void a_picture_has_a_side_of_36() {
    for (const Icon icon : {Icon::question, Icon::exclamation, Icon::critical})
      QCOMPARE(picture_of(icon).size(), QSize(36, 36));
  }

  void a_box_of_the_game_shows_its_text_as_it_is_and_a_picture_of_its_own_alone() {
    QMessageBox box(QMessageBox::NoIcon, program_title, "<b>9</b>",
                    QMessageBox::Yes | QMessageBox::No);
    for (QAbstractButton* button : box.buttons())
      button->setIcon(box_picture("box_question", 16, 1));
    fit_looks(box, Icon::critical);
    QCOMPARE(box.textFormat(), Qt::PlainText);
    QCOMPARE(box.iconPixmap().toImage(), picture_of(Icon::critical));
    for (const QAbstractButton* button : box.buttons()) QVERIFY(button->icon().isNull());
    box.adjustSize();
    QVERIFY(box.width() >= box.fontMetrics().horizontalAdvance(program_title) + 150);
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
    QMessageBox box(QMessageBox::NoIcon, program_title, "9", QMessageBox::Ok);
    fit_title(box);
    box.adjustSize();
    QVERIFY(box.width() >= box.fontMetrics().horizontalAdvance(program_title) + 150);
    const QMargins margins = box.layout()->contentsMargins();
    QCOMPARE(box.width(), box.fontMetrics().horizontalAdvance(program_title) + 150 +
                              margins.left() + margins.right());
  }

  void buttons_have_no_pictures() {
    QMessageBox box(QMessageBox::NoIcon, "SuDoKu", "9", QMessageBox::Yes | QMessageBox::No);
    for (QAbstractButton* button : box.buttons())
      button->setIcon(box_picture("box_question", 16, 1));
    remove_button_icons(box);
    for (const QAbstractButton* button : box.buttons()) QVERIFY(button->icon().isNull());
  }

  void a_file_dialog_tells_sizes_in_the_language_on_screen() {
    QTemporaryDir folder;
    QFile file(folder.filePath("a.sdk"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(82, ' '));
    file.close();
    QVERIFY(QDir(folder.path()).mkdir("folder"));
    for (const auto& [language, size] :
         {std::pair("Fr", "82 octets"), std::pair("En", "82 bytes")}) {
      globals.Langue = language;
      QFileDialog dialog(nullptr, "", folder.path());
      dialog.setOption(QFileDialog::DontUseNativeDialog);
      fit_columns(dialog);
      dialog.show();
      auto& files = *dialog.findChild<QTreeView*>("treeView");
      QVERIFY(QTest::qWaitFor([&] { return files.model()->rowCount(files.rootIndex()) == 2; }));
      QCOMPARE(shown_size(files, "a.sdk"), size);
      QCOMPARE(shown_size(files, "folder"), "");
    }
    globals.Langue = "Fr";
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
