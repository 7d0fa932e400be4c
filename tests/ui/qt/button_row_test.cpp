// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// How the buttons above the grids stand and look.

#include <QPainter>
#include <QToolButton>

#include "tests/ui/qt/play.hpp"

namespace sdk::test {

namespace {

constexpr const char* row[] = {"Command1", "Command6",  "sauve",    "Command4", "Command8",
                               "Command7", "Bouton_GO", "Command2", "undo",     "redo",
                               "aide",     "Command5",  "Command3"};

bool starts_group(const QString& name) { return name == "Command8" || name == "aide"; }

}  // namespace

class ButtonRowTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { play_.emplace(); }
  void cleanup() { play_.reset(); }

  void the_buttons_of_a_group_stand_close_and_the_groups_apart() {
    for (std::size_t i = 1; i < std::size(row); ++i) {
      const int gap = play_->find(row[i]).x() - play_->find(row[i - 1]).geometry().right() - 1;
      if (starts_group(row[i]))
        QVERIFY2(gap > 10, row[i]);
      else
        QCOMPARE(gap, 2);
    }
  }

  void the_groups_share_what_is_left_of_the_row() {
    const QWidget& bar = play_->find("commands");
    QCOMPARE(play_->find("Command1").x(), 0);
    QCOMPARE(play_->find("Command3").geometry().right(), bar.width() - 1);
    const int before_hint = play_->find("Command8").x() - play_->find("Command4").x();
    const int before_help = play_->find("aide").x() - play_->find("redo").x();
    QVERIFY(std::abs(before_hint - before_help) <= 1);
  }

  void a_button_is_a_flat_square_around_its_icon() {
    for (const char* name : row) {
      const auto& button = play_->find<QToolButton>(name);
      QCOMPARE(button.size(), QSize(44, 44));
      QCOMPARE(button.iconSize(), QSize(28, 28));
      QVERIFY2(button.autoRaise(), name);
      QCOMPARE(button.icon().pixmap(28, 28).size(), QSize(28, 28));
    }
  }

  void an_icon_is_painted_as_its_picture_is_and_so_is_its_copy() {
    const QIcon icon = play_->find<QToolButton>("Command1").icon();
    QImage painted(28, 28, QImage::Format_ARGB32_Premultiplied);
    painted.fill(Qt::transparent);
    QPainter painter(&painted);
    icon.paint(&painter, painted.rect());
    painter.end();
    QCOMPARE(painted, icon.pixmap(28, 28).toImage());
    QIcon copy = icon;
    copy.addPixmap(QPixmap(1, 1));  // from now on the copy has an engine of its own
    QCOMPARE(copy.pixmap(28, 28).toImage(), painted);
  }

  void an_icon_has_the_colour_of_a_text_on_its_button() {
    const QIcon icon = play_->find<QToolButton>("undo").icon();
    for (const auto& [mode, group] :
         {std::pair(QIcon::Normal, QPalette::Active), {QIcon::Disabled, QPalette::Disabled}}) {
      const QImage picture = icon.pixmap(QSize(28, 28), mode).toImage();
      const QColor expected = QApplication::palette().color(group, QPalette::ButtonText);
      int strokes = 0;
      for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) strokes += picture.pixelColor(x, y) == expected;
      QVERIFY2(strokes > 20, qPrintable(QString::number(strokes)));
    }
  }

  void an_icon_is_transparent_around_its_strokes() {
    for (const char* name : row) {
      const QImage picture = play_->find<QToolButton>(name).icon().pixmap(28, 28).toImage();
      for (const QPoint& corner : {picture.rect().topLeft(), picture.rect().bottomRight()})
        QCOMPARE(picture.pixelColor(corner).alpha(), 0);
    }
  }

  void no_two_buttons_look_alike() {
    QList<QImage> pictures;
    for (const char* name : row) {
      const QImage picture = play_->find<QToolButton>(name).icon().pixmap(28, 28).toImage();
      QVERIFY2(!pictures.contains(picture), name);
      pictures << picture;
    }
  }

  void the_title_stands_above_the_buttons() {
    const QWidget& title = play_->find("Label3");
    QVERIFY(title.geometry().bottom() < play_->find("Command1").y());
    QCOMPARE(title.pos(), QPoint(0, 0));
  }

 private:
  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::ButtonRowTest)
#include "button_row_test.moc"
