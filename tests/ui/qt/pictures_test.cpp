// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What the window and its boxes look like, pixel by pixel: the pictures in pictures/ are what it
// looked like when somebody last looked and found it right. After a deliberate change the same test
// with SUDOKU_NEW_PICTURES=1 in its environment takes them anew.

#include <QComboBox>
#include <QDir>
#include <QFontInfo>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include "tests/ui/qt/play.hpp"
#include "ui/printing.hpp"
#include "ui/qt/page_painter.hpp"
#include "ui/version.hpp"

namespace sdk::test {

namespace {

/// Letters look otherwise elsewhere.
const QString taken_with = "Qt 6.4.2, DejaVu Sans";

constexpr const char* played_grid =
    "5.7...42.\n4...3.9.7\n9.2.4.6.5\n..91..2..\n.1.7.9...\n"
    "..8..31..\n7.4..8...\n...5.28..\n....1679.";
constexpr const char* chain_grid =
    "4387.9.1.\n165248379\n29713..84\n346.719..\n852493761\n"
    "719..2.43\n.8132.497\n.2498713.\n973.14...";
/// Its search takes longer than anyone can wait.
constexpr const char* endless_grid =
    "........9\n.........\n.........\n.........\n.........\n"
    ".........\n.........\n.........\n12345678.";

QImage picture_of(QWidget& widget) {
  return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// Leaves out what is not the same in every version, and how many digits the random puzzle had that
/// stood there first.
QImage picture_of_window(Play& play) {
  for (QLabel* label : play.frame.findChildren<QLabel*>())
    if (label->text().contains(program_title))
      label->setText(label->text().replace(program_title, "SuDoKu"));
  play.find<QLabel>("Label").setText("30 indices");
  return picture_of(play.frame);
}

void click_button(Play& play, const char* name) {
  QTest::mouseClick(&play.find(name), Qt::LeftButton);
  play.settle();
}

/// Digits of the player: a clash, one that is equal to others, a selection.
void play_some(Play& play) {
  play.draw(played_grid);
  play.click_cell(1, 5);
  play.type("5");
  play.click_cell(2, 6);
  play.type("1");
  play.click_cell(8, 7, Qt::ShiftModifier);
  play.click_cell(4, 4);
  play.press(Qt::Key_Right, Qt::ShiftModifier);
}

QImage puzzle(Play& play) {
  play_some(play);
  return picture_of_window(play);
}

QImage dark_puzzle(Play& play) {
  QApplication::setPalette(QPalette(QColor(53, 53, 56), QColor(45, 45, 48)));
  play.click("Check2");
  play_some(play);
  const QImage picture = picture_of_window(play);
  QApplication::setPalette(QApplication::style()->standardPalette());
  return picture;
}

/// A hint that was refused, and its first step chosen.
void look_at_step(Play& play) {
  play.draw(chain_grid);
  BoxAnswer no(QMessageBox::No);
  play.click("Command8");
  click_button(play, "next_step");
}

QImage step(Play& play) {
  play.press(Qt::Key_F1);
  play.click("Check2");
  look_at_step(play);
  return picture_of_window(play);
}

QImage step_in_the_puzzle(Play& play) {
  look_at_step(play);
  return picture_of_window(play);
}

QImage question(Play& play) {
  play.draw(chain_grid);
  QImage picture;
  later(100, [&] {
    picture = picture_of(*open_dialog());
    QTest::keyClick(open_dialog(), Qt::Key_Escape);
  });
  play.click("Command8");
  return picture;
}

QImage message(Play& play, Icon icon) {
  QImage picture;
  later(100, [&] {
    picture = picture_of(*open_dialog());
    QTest::keyClick(open_dialog(), Qt::Key_Return);
  });
  play.desktop.message_box("Résolution interrompu!", icon, Buttons::ok, "SuDoKu");
  return picture;
}

QImage exclamation(Play& play) { return message(play, Icon::exclamation); }
QImage critical(Play& play) { return message(play, Icon::critical); }

QImage about(Play& play) {
  play.click("Command5");
  play.find<QLabel>("lblVersion").setText("SuDoKu");
  play.find<QLabel>("lblCopyright").setText("2026");
  play.settle();
  return picture_of(play.find("about"));
}

QImage cell_menu(Play& play) {
  play_some(play);
  play.press(Qt::Key_Menu);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  play.settle();
  return picture_of(play.find("cell_menu"));
}

QImage levels(Play& play) {
  auto& list = play.find<QComboBox>("Niveau");
  list.showPopup();
  play.settle();
  const QImage picture = picture_of(*list.view()->window());
  list.hidePopup();
  return picture;
}

QImage small_screen(Play& play) {
  play_some(play);
  play.click("Check2");
  QScreen* small = QGuiApplication::screens().last();
  play.frame.windowHandle()->setScreen(small);
  play.frame.move(small->geometry().topLeft());
  play.settle();
  return picture_of_window(play);
}

QImage search(Play& play) {
  play.draw(endless_grid);
  QImage picture;
  BoxAnswer stopped(QMessageBox::Ok);
  later(500, [&] {
    picture = picture_of_window(play);
    play.press(Qt::Key_Escape);
  });
  play.run_program([&] { play.click("Bouton_GO"); });
  return picture;
}

/// On A4, a pixel a point.
QImage page(Play& play) {
  play_some(play);
  QImage picture(595, 842, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.scale(1 / 20.0, 1 / 20.0);
  paint_drawings(painter, printed_page({11900, 16840}, play.window.layout(), play.window.MSF,
                                       "SuDoKu", "SuDoKu"));
  return picture;
}

struct Scene {
  const char* name;
  QImage (*take)(Play&);
};

constexpr Scene scenes[] = {
    {"puzzle", puzzle},
    {"dark_puzzle", dark_puzzle},
    {"step", step},
    {"step_in_the_puzzle", step_in_the_puzzle},
    {"question", question},
    {"exclamation", exclamation},
    {"critical", critical},
    {"about", about},
    {"cell_menu", cell_menu},
    {"levels", levels},
    {"small_screen", small_screen},
    {"search", search},
    {"page", page},
};

QRect difference(const QImage& one, const QImage& other) {
  QRect box;
  for (int y = 0; y < one.height(); ++y)
    for (int x = 0; x < one.width(); ++x)
      if (one.pixel(x, y) != other.pixel(x, y)) box |= QRect(x, y, 1, 1);
  return box;
}

}  // namespace

class PicturesTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    const QString here =
        QString("Qt %1, %2").arg(qVersion(), QFontInfo(QApplication::font()).family());
    if (here != taken_with)
      QSKIP(qPrintable("The pictures were taken with " + taken_with + ", here is " + here));
  }

  void it_looks_as_it_did_data() {
    QTest::addColumn<int>("scene");
    for (int i = 0; i < int(std::size(scenes)); ++i) QTest::newRow(scenes[i].name) << i;
  }

  void it_looks_as_it_did() {
    QFETCH(int, scene);
    const QString name = QString("%1.png").arg(scenes[scene].name);
    Play play;
    const QImage now = scenes[scene].take(play);
    if (qEnvironmentVariableIsSet("SUDOKU_NEW_PICTURES")) QVERIFY(now.save(PICTURES "/" + name));
    const QImage expected = QImage(PICTURES "/" + name).convertToFormat(QImage::Format_RGB32);
    if (now == expected) return;
    QVERIFY(QDir().mkpath(DIFFERENT) && now.save(DIFFERENT "/" + name));
    const QString where = now.size() == expected.size()
                              ? QDebug::toString(difference(now, expected))
                              : QDebug::toString(now.size());
    QFAIL(qPrintable(name + " differs at " + where + "; now it is " DIFFERENT "/" + name));
  }
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::PicturesTest)
#include "pictures_test.moc"
