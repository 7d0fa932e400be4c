// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QScreen>
#include <QToolButton>

#include "tests/ui/qt/play.hpp"

namespace sdk::test {

namespace {

constexpr const char* buttons[] = {"Command1", "Command6", "sauve",     "Command4",
                                   "Command8", "Command7", "Bouton_GO", "Command2",
                                   "aide",     "Command5", "Command3"};

QStringList items_of(const QComboBox& list) {
  QStringList items;
  for (int i = 0; i < list.count(); ++i) items << list.itemText(i);
  return items;
}

/// Where a widget stands in the window.
QRect place_of(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

}  // namespace

class ControlsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { play_.emplace(); }
  void cleanup() {
    QApplication::setPalette(QPalette());
    play_.reset();
  }

  void a_new_puzzle_fills_the_grid() {
    play_->click("Command1");
    QCOMPARE(play_->find<QLabel>("Label").text(),
             QString::fromStdString(play_->window.control(Control::Label).caption));
    QCOMPARE(play_->frame.windowTitle(), QString::fromStdString(globals.TitreFenetre));
  }

  void f1_and_f2_switch_every_text_at_once() {
    QCOMPARE(play_->find<QCheckBox>("Check2").text(), "Affiche possibilités");
    play_->press(Qt::Key_F1);
    QCOMPARE(play_->find<QCheckBox>("Check2").text(), "Show possible candidates");
    QCOMPARE(play_->find("Command1").toolTip(), "New puzzle");
    QCOMPARE(play_->find("Command8").toolTip(), "Hint");
    QCOMPARE(play_->find<QLabel>("Astuce").text(),
             "Press on the F1 key for english or F2 for french");
    QCOMPARE(play_->find<QLabel>("Label3").text(), " proposed by the SuDoKu team");
    QCOMPARE(play_->find("MSF").accessibleName(), "Puzzle");
    QCOMPARE(play_->find("Niveau").accessibleName(), "Level");
    QCOMPARE(items_of(play_->find<QComboBox>("Niveau")),
             (QStringList{"Newbie", "Easy", "Average", "Hard", "Diabolic"}));
    play_->press(Qt::Key_F2);
    QCOMPARE(play_->find<QCheckBox>("Check2").text(), "Affiche possibilités");
    QCOMPARE(play_->find("Command1").accessibleName(), "Nouvelle grille");
  }

  void f1_switches_from_whatever_control_has_the_focus() {
    for (const char* name : {"Niveau", "Check1", "Command1"}) {
      play_->find(name).setFocus();
      play_->press(Qt::Key_F1);
      QCOMPARE(play_->find("Command3").toolTip(), "Quit");
      play_->press(Qt::Key_F2);
      QCOMPARE(play_->find("Command3").toolTip(), "Quitter");
    }
  }

  void after_a_switch_no_level_is_chosen_and_the_current_one_is_named() {
    auto& levels = play_->find<QComboBox>("Niveau");
    levels.setFocus();
    play_->press(Qt::Key_End);
    QCOMPARE(globals.NiveauCourant, 4);
    QCOMPARE(levels.currentText(), "Diabolique");
    play_->press(Qt::Key_F1);
    QCOMPARE(levels.currentIndex(), -1);
    QCOMPARE(levels.placeholderText(), "Diabolic");
    QCOMPARE(globals.NiveauCourant, 4);
  }

  void choosing_a_level_changes_the_level_and_not_the_grid() {
    const QImage before = play_->find("MSF").grab().toImage();
    play_->find("Niveau").setFocus();
    play_->press(Qt::Key_Home);
    QCOMPARE(globals.NiveauCourant, 0);
    play_->find("MSF").setFocus();
    QCOMPARE(play_->find("MSF").grab().toImage(), before);
  }

  void ticks_reach_the_core() {
    play_->click("Check1");
    QVERIFY(play_->window.VerifAuVol);
    play_->click("Check3");
    QVERIFY(!globals.ProtegeGrille);
    play_->click("Check3");
    QVERIFY(globals.ProtegeGrille);
    QVERIFY(play_->find<QCheckBox>("Check3").isChecked());
  }

  void the_candidates_stand_beside_the_puzzle_on_demand() {
    QVERIFY(!play_->find("MSR").isVisible());
    QCOMPARE(play_->frame.size(), QSize(669, 678));
    QCOMPARE(place_of(play_->find("MSF")), QRect(100, 106, 468, 468));
    play_->click("Check2");
    QVERIFY(play_->find("MSR").isVisible());
    QVERIFY(play_->find("rect2").isVisible());
    QCOMPARE(play_->frame.size(), QSize(963, 678));
    QCOMPARE(place_of(play_->find("MSF")), QRect(6, 106, 468, 468));
    QCOMPARE(place_of(play_->find("MSR")), QRect(488, 106, 468, 468));
    play_->click("Check2");
    QVERIFY(!play_->find("MSR").isVisible());
    QVERIFY(!play_->find("rect2").isVisible());
    QCOMPARE(play_->frame.size(), QSize(669, 678));
  }

  void the_wide_window_stays_on_the_screen() {
    const QRect screen = play_->frame.screen()->availableGeometry();
    const QRect narrow = play_->frame.frameGeometry();
    play_->frame.move(screen.right() + 1 - narrow.width(), 40);
    play_->click("Check2");
    const QRect wide = play_->frame.frameGeometry();
    QVERIFY(wide.width() > narrow.width());
    QVERIFY(screen.contains(wide));
    QCOMPARE(wide.right(), screen.right());
    QCOMPARE(wide.top(), 40);
  }

  void nothing_but_the_grids_moves_when_the_candidates_are_shown() {
    const QRect box = place_of(play_->find("Check2")), button = place_of(play_->find("Command3"));
    play_->click("Check2");
    QCOMPARE(place_of(play_->find("Check2")), box);
    QCOMPARE(place_of(play_->find("Command3")), button);
  }

  void a_hidden_button_keeps_its_place() {
    QList<QRect> before;
    for (const char* name : buttons) before << place_of(play_->find(name));
    play_->click("Check3");
    play_->click("Command2");
    QVERIFY(!play_->find("Command8").isVisible());
    for (int i = 0; i < before.size(); ++i)
      if (qstrcmp(buttons[i], "Command8") != 0)
        QCOMPARE(place_of(play_->find(buttons[i])), before[i]);
    play_->click("Command1");
    QVERIFY(play_->find("Command8").isVisible());
    QCOMPARE(place_of(play_->find("Command8")), before[4]);
  }

  void a_click_on_a_control_leaves_the_focus_in_the_grid() {
    for (const char* name : {"Command1", "Command7", "Check1"}) {
      play_->click(name);
      QVERIFY(play_->find("MSF").hasFocus());
    }
  }

  void tab_goes_where_the_eye_goes() {
    play_->find("Command1").setFocus();
    QStringList visited{"Command1"};
    while (visited.size() < 16) {
      play_->press(Qt::Key_Tab);
      visited << QApplication::focusWidget()->objectName();
    }
    QStringList expected(std::begin(buttons), std::end(buttons));
    expected << "MSF"
             << "Check3"
             << "Check1"
             << "Check2"
             << "Niveau";
    QCOMPARE(visited, expected);
  }

  void every_control_tells_a_screen_reader_its_name_in_both_languages() {
    QStringList names(std::begin(buttons), std::end(buttons));
    names << "Check1"
          << "Check2"
          << "Check3"
          << "Niveau"
          << "MSF"
          << "MSR";
    for (const auto key : {Qt::Key_F1, Qt::Key_F2}) {
      play_->press(key);
      for (const QString& name : names)
        QVERIFY2(!play_->find(qPrintable(name)).accessibleName().isEmpty(), qPrintable(name));
    }
  }

  void nothing_is_cut_off_in_either_language() {
    for (const auto key : {Qt::Key_F1, Qt::Key_F2}) {
      play_->press(key);
      for (const char* name :
           {"Label3", "Astuce", "Label", "Niveau", "Check1", "Check2", "Check3"}) {
        const QWidget& widget = play_->find(name);
        QVERIFY2(widget.width() >= widget.sizeHint().width(), name);
        QVERIFY2(widget.height() >= widget.sizeHint().height(), name);
        QVERIFY2(play_->frame.rect().contains(place_of(widget)), name);
        QVERIFY2(!place_of(widget).intersects(place_of(play_->find("rect"))), name);
      }
    }
  }

  void a_window_of_one_size_offers_no_maximising() {
    QVERIFY(!(play_->frame.windowFlags() & Qt::WindowMaximizeButtonHint));
    for (const auto hint : {Qt::WindowTitleHint, Qt::WindowSystemMenuHint,
                            Qt::WindowMinimizeButtonHint, Qt::WindowCloseButtonHint})
      QVERIFY(play_->frame.windowFlags() & hint);
  }

  void the_level_list_has_the_background_of_the_window_open_and_closed() {
    auto& levels = play_->find<QComboBox>("Niveau");
    for (const QPalette& palette :
         {QPalette(QColor(240, 240, 240)), QPalette(QColor(53, 53, 56), QColor(45, 45, 48))}) {
      QApplication::setPalette(palette);
      play_->settle();
      const QColor window = play_->frame.palette().color(QPalette::Window);
      const QImage picture = levels.grab().toImage();
      for (const int y : {3, picture.height() / 2, picture.height() - 4})
        QCOMPARE(picture.pixelColor(4, y), window);
      levels.showPopup();
      play_->settle();
      const QWidget& list = *levels.view()->viewport();
      QCOMPARE(list.palette().color(QPalette::Base), window);
      QCOMPARE(play_->find<QComboBox>("Niveau").view()->grab().toImage().pixelColor(
                   list.width() - 3, list.height() - 3),
               window);
      levels.hidePopup();
    }
  }

  void the_cells_stay_white_on_a_dark_desktop() {
    QPalette dark(QColor(53, 53, 56), QColor(45, 45, 48));
    QApplication::setPalette(dark);
    play_->settle();
    const QImage picture = play_->find("MSF").grab().toImage();
    for (int r = 0; r < 9; ++r)
      for (int c = 0; c < 9; ++c) {
        const auto back = play_->window.MSF.cell(r, c).back_colour;
        const QColor expected =
            back == colour::white ? QColor(Qt::white) : QColor(0xFF, 0xFF, 0xC0);
        QCOMPARE(picture.pixelColor(c * 52 + 6, r * 52 + 8), expected);
      }
  }

  void the_icons_stand_out_on_light_and_dark() {
    for (const QPalette& palette :
         {QPalette(QColor(240, 240, 240)), QPalette(QColor(53, 53, 56), QColor(45, 45, 48))}) {
      QApplication::setPalette(palette);
      const QImage icon = play_->find<QToolButton>("Command1").icon().pixmap(24, 24).toImage();
      int strokes = 0;
      for (int y = 0; y < icon.height(); ++y)
        for (int x = 0; x < icon.width(); ++x) {
          const QColor pixel = icon.pixelColor(x, y);
          if (pixel.alpha() < 200) continue;
          ++strokes;
          QVERIFY(std::abs(pixel.lightness() - palette.window().color().lightness()) > 120);
        }
      QVERIFY(strokes > 50);
    }
  }

 private:
  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::ControlsTest)
#include "controls_test.moc"
