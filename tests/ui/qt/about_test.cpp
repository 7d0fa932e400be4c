// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The about box and what is opened outside the game.

#include <QDesktopServices>
#include <QDialog>
#include <QLabel>

#include "screen/errors.hpp"
#include "tests/ui/qt/play.hpp"
#include "ui/qt/contrast.hpp"
#include "ui/version.hpp"

namespace sdk::test {

class AboutTest : public QObject {
  Q_OBJECT

 public slots:
  void open_page(const QUrl& url) { opened_ << url; }

 private slots:
  void initTestCase() {
    for (const char* scheme : {"https", "file"})
      QDesktopServices::setUrlHandler(scheme, this, "open_page");
  }
  void cleanupTestCase() {
    for (const char* scheme : {"https", "file"}) QDesktopServices::unsetUrlHandler(scheme);
  }
  void init() { play_.emplace(); }
  void cleanup() {
    play_.reset();
    opened_.clear();
  }

  void nothing_of_it_exists_before_it_is_opened_or_after_it_closed() {
    QVERIFY(!dialog());
    open();
    QVERIFY(dialog()->isVisible());
    QTest::keyClick(dialog(), Qt::Key_Space);
    QVERIFY(is_closed());
    QVERIFY(!dialog());
  }

  void it_shows_its_texts_in_french() {
    open();
    QCOMPARE(dialog()->windowTitle(), "Information");
    QCOMPARE(text("PictureCaption"), "Japonaise au chapeau par l'équipe SuDoKu");
    QCOMPARE(part("Picture").accessibleName(), "Japonaise au chapeau par l'équipe SuDoKu");
    QCOMPARE(text("Label2"), "Auteur");
    QCOMPARE(text("Label1"), "l'équipe SuDoKu");
    QCOMPARE(text("lblVersion"), program_title);
    QCOMPARE(text("lblCopyright"),
             "Copyright © l'équipe SuDoKu " + QString::number(play_->desktop.year()));
  }

  void it_shows_its_texts_in_english() {
    play_->press(Qt::Key_F1);
    open();
    QCOMPARE(dialog()->windowTitle(), "About");
    QCOMPARE(text("PictureCaption"), "Japonese women with a hat by the SuDoKu team");
    QCOMPARE(text("Label2"), "Author");
    QCOMPARE(text("Label1"), "the SuDoKu team");
  }

  void every_text_asks_for_arial() {
    open();
    for (const char* name : {"PictureCaption", "Label2", "Label1", "lblVersion", "lblCopyright"})
      QCOMPARE(part(name).font().family(), "Arial");
  }

  void the_picture_is_drawn() {
    open();
    const QImage shown = part("Picture").grab().toImage();
    QSet<QRgb> colours;
    for (int y = 0; y < shown.height(); y += 5)
      for (int x = 0; x < shown.width(); x += 5) colours << shown.pixel(x, y);
    QVERIFY(colours.size() > 10);
  }

  void any_key_closes_it() {
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_Tab, Qt::Key_Escape, Qt::Key_Return, Qt::Key_F1}) {
      open();
      QTest::keyClick(dialog(), key);
      QVERIFY(is_closed());
    }
    QCOMPARE(globals.Langue, std::string("Fr"));
  }

  void a_press_of_any_mouse_button_beside_the_controls_closes_it() {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
      open();
      QTest::mousePress(dialog(), button, {}, QPoint(3, 3));
      QVERIFY(is_closed());
    }
  }

  void a_double_click_beside_the_controls_closes_it_and_nothing_else() {
    open();
    QTest::mouseDClick(dialog(), Qt::LeftButton, {}, QPoint(3, 3));
    QVERIFY(is_closed());
    QVERIFY(play_->frame.isVisible());
    QCOMPARE(play_->window.MSF.current_row(), 8);
  }

  void a_click_on_any_control_but_the_link_closes_it() {
    for (const char* name : {"Picture", "PictureCaption", "Label2", "lblVersion", "lblCopyright"}) {
      open();
      QTest::mousePress(&part(name), Qt::LeftButton);
      QVERIFY(!is_closed());
      QTest::mouseRelease(&part(name), Qt::LeftButton);
      QVERIFY(is_closed());
    }
    QVERIFY(opened_.isEmpty());
  }

  void its_close_button_closes_it() {
    open();
    dialog()->close();
    QVERIFY(is_closed());
  }

  void the_link_looks_like_one_and_opens_the_page() {
    open();
    QVERIFY(part("Label1").font().underline());
    QCOMPARE(part("Label1").cursor().shape(), Qt::PointingHandCursor);
    QCOMPARE(part("Label1").foregroundRole(), QPalette::Link);
    QTest::mouseClick(&part("Label1"), Qt::LeftButton);
    QCOMPARE(opened_, QList<QUrl>{QUrl(page_address)});
    QVERIFY(!is_closed());
  }

  void the_link_can_be_read_on_a_dark_desktop() {
    QApplication::setPalette(QPalette(QColor(53, 53, 56), QColor(45, 45, 48)));
    open();
    const QPalette& colours = part("Label1").palette();
    QVERIFY(contrast(colours.color(QPalette::Link), colours.color(QPalette::Window)) >= 4.5);
    QApplication::setPalette(QPalette());
  }

  void a_click_that_is_released_beside_the_link_opens_nothing() {
    open();
    QTest::mousePress(&part("Label1"), Qt::LeftButton);
    QTest::mouseRelease(&part("Label1"), Qt::LeftButton, {}, QPoint(-5, -5));
    QVERIFY(opened_.isEmpty());
    QVERIFY(!is_closed());
  }

  void another_button_of_the_mouse_opens_nothing() {
    open();
    QTest::mouseClick(&part("Label1"), Qt::RightButton);
    QVERIFY(opened_.isEmpty());
    QVERIFY(!is_closed());
    QTest::mouseClick(&part("Label2"), Qt::MiddleButton);
    QVERIFY(!is_closed());
  }

  void it_keeps_the_window_waiting() {
    open();
    QCOMPARE(QApplication::activeModalWidget(), dialog());
    QTest::keyClick(dialog(), Qt::Key_1);
    play_->press(Qt::Key_F1);
    QCOMPARE(globals.Langue, std::string("En"));
  }

  void a_document_is_opened_by_its_path() {
    play_->desktop.open_document("/some/folder/50 % #1/Sudoku_Fr.pdf");
    QCOMPARE(opened_, QList<QUrl>{QUrl::fromLocalFile("/some/folder/50 % #1/Sudoku_Fr.pdf")});
  }

  void what_nothing_opens_is_an_error() {
    QDesktopServices::unsetUrlHandler("https");
    QVERIFY_THROWS_EXCEPTION(RuntimeError, play_->desktop.open_document(page_address));
    open();
    QTest::mouseClick(&part("Label1"), Qt::LeftButton);
    QVERIFY(!is_closed());
    QVERIFY(!play_->guard.status());
    QDesktopServices::setUrlHandler("https", this, "open_page");
  }

  void the_help_button_tells_that_it_lost_the_focus() {
    QSignalSpy lost(play_->frame.findChild<CommandBar*>(), &CommandBar::focus_lost);
    play_->find("aide").setFocus();
    QCOMPARE(lost.count(), 0);
    play_->find("MSF").setFocus();
    QCOMPARE(lost.count(), 1);
    QCOMPARE(lost[0][0].value<Control>(), Control::aide);
  }

  void the_box_lines_are_drawn_again_when_the_help_button_loses_the_focus() {
    play_->find("aide").setFocus();
    play_->window.MSR.set_visible(true);
    QCOMPARE(play_->window.lines().size(), 4u);
    play_->find("MSF").setFocus();
    QCOMPARE(play_->window.lines().size(), 8u);
  }

 private:
  void open() {
    play_->click("Command5");
    QVERIFY(QTest::qWaitForWindowActive(dialog()));
  }
  QDialog* dialog() { return play_->frame.findChild<QDialog*>("about"); }
  QLabel& part(const char* name) { return play_->find<QLabel>(name); }
  QString text(const char* name) { return part(name).text(); }
  bool is_closed() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return !play_->window.about().shown() && !dialog();
  }

  std::optional<Play> play_;
  QList<QUrl> opened_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::AboutTest)
#include "about_test.moc"
