// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The menu of the cell, by the mouse, by keys and as a screen reader finds it.

#include <QClipboard>
#include <QScreen>
#include <QWindow>

#include "tests/ui/qt/play.hpp"
#include "tests/ui/qt/screen_reader.hpp"

namespace sdk::test {

namespace {

constexpr const char* nearly_empty_grid =
    "7........\n.........\n.........\n.........\n.........\n"
    ".........\n.........\n.........\n.........";
constexpr const char* grid_with_a_hint =
    "12345678.\n.........\n.........\n.........\n.........\n"
    ".........\n.........\n.........\n.........";

struct ItemRow {
  const char* object;
  const char* french;
  const char* english;
  const char* description;
};

constexpr ItemRow item_rows[] = {
    {"menu_1", "1", "1", ""},
    {"menu_2", "2", "2", ""},
    {"menu_3", "3", "3", ""},
    {"menu_4", "4", "4", ""},
    {"menu_5", "5", "5", ""},
    {"menu_6", "6", "6", ""},
    {"menu_7", "7", "7", ""},
    {"menu_8", "8", "8", ""},
    {"menu_9", "9", "9", ""},
    {"menu_erase", "Effacer", "Erase", ""},
    {"menu_undo", "Annuler", "Undo", "Ctrl+Z"},
    {"menu_redo", "Rétablir", "Redo", "Ctrl+Y"},
    {"menu_copy", "Copier", "Copy", "Ctrl+C"},
    {"menu_select_all", "Tout sélectionner", "Select all", "Ctrl+A"},
};

}  // namespace

class CellMenuTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    play_.emplace();
    play_->draw(nearly_empty_grid);
    play_->press(Qt::Key_F2);
  }
  void cleanup() { play_.reset(); }

  void the_right_button_opens_it_beside_the_pointer() {
    right_click(5, 6);
    QVERIFY(menu().isVisible());
    QVERIFY(!place().contains(grid().mapToGlobal(play_->cell(5, 6))));
    QCOMPARE(selection(), (CellRange{4, 5, 4, 5}));
    QCOMPARE(focus(), "cell_menu");
  }

  void inside_the_selection_the_selection_stays() {
    play_->click_cell(2, 2);
    play_->click_cell(4, 4, Qt::ShiftModifier);
    right_click(3, 2);
    QCOMPARE(selection(), (CellRange{1, 1, 3, 3}));
    press(Qt::Key_Escape);
    right_click(5, 2);
    QCOMPARE(selection(), (CellRange{4, 1, 4, 1}));
  }

  void its_keys_open_it_beside_the_current_cell() {
    play_->click_cell(4, 5);
    for (const Qt::Key key : {Qt::Key_Menu, Qt::Key_F10}) {
      open_by_key(key);
      QVERIFY(menu().isVisible());
      const QRect square(grid().mapToGlobal(play_->cell(4, 5)) - QPoint(26, 26), QSize(52, 52));
      QVERIFY(!place().intersects(square));
      QCOMPARE(place().top(), square.top());
      QCOMPARE(focus(), "menu_1");
      press(Qt::Key_Escape);
    }
    play_->press(Qt::Key_F10);
    QVERIFY(!menu().isVisible());
  }

  void a_click_on_a_digit_types_it() {
    right_click(5, 5);
    click("menu_8");
    QVERIFY(!menu().isVisible());
    QCOMPARE(play_->text(5, 5), "8");
    QCOMPARE(play_->window.MSF.cell(4, 4).text_colour, colour::green);
    QVERIFY(grid_has_focus());
  }

  void a_digit_key_types_it() {
    for (const char digit : {'1', '5', '9'}) {
      right_click(5, 5);
      QTest::keyClick(QApplication::focusWidget(), digit);
      play_->settle();
      QVERIFY(!menu().isVisible());
      QCOMPARE(play_->text(5, 5), QString(QChar(digit)));
    }
    right_click(5, 5);
    press(Qt::Key_4, Qt::KeypadModifier);
    QCOMPARE(play_->text(5, 5), "4");
  }

  void arrows_move_over_the_pad_by_rows_and_columns() {
    type_and_undo();
    open_by_key(Qt::Key_Menu);
    walk(Qt::Key_Right, {"menu_2", "menu_3", "menu_1"});
    walk(Qt::Key_Left, {"menu_3", "menu_2"});
    walk(Qt::Key_Down, {"menu_5", "menu_8", "menu_erase", "menu_redo", "menu_copy",
                        "menu_select_all", "menu_2", "menu_5"});
    walk(Qt::Key_Left, {"menu_4", "menu_6"});
    walk(Qt::Key_Up, {"menu_3", "menu_select_all"});
    walk(Qt::Key_Right, {"menu_select_all"});
    walk(Qt::Key_Down, {"menu_3"});
  }

  void arrows_start_at_an_end_when_nothing_is_chosen() {
    right_click(5, 5);
    walk(Qt::Key_Down, {"menu_1"});
    press(Qt::Key_Escape);
    right_click(5, 5);
    walk(Qt::Key_Up, {"menu_select_all"});
    press(Qt::Key_Escape);
    right_click(5, 5);
    walk(Qt::Key_Right, {"menu_1"});
  }

  void return_enter_and_space_choose() {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
      play_->click_cell(5, 5);
      play_->press(Qt::Key_Delete);
      open_by_key(Qt::Key_Menu);
      press(Qt::Key_Down);
      press(key);
      QVERIFY(!menu().isVisible());
      QCOMPARE(play_->text(5, 5), "4");
    }
  }

  void keys_that_choose_nothing_leave_it_open() {
    right_click(5, 5);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_C, Qt::Key_0, Qt::Key_Menu, Qt::Key_Home})
      press(key);
    QVERIFY(menu().isVisible());
    QCOMPARE(play_->text(5, 5), " ");
  }

  void erase_empties_the_selection() {
    play_->click_cell(5, 5);
    play_->type("3");
    right_click(5, 5);
    click("menu_erase");
    QCOMPARE(play_->text(5, 5), " ");
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace}) {
      play_->type("3");
      right_click(5, 5);
      press(key);
      QCOMPARE(play_->text(5, 5), " ");
    }
  }

  void a_protected_given_stays() {
    right_click(1, 1);
    click("menu_2");
    right_click(1, 1);
    click("menu_erase");
    QCOMPARE(play_->text(1, 1), "7");
    play_->click("Check3");
    right_click(1, 1);
    click("menu_2");
    QCOMPARE(play_->text(1, 1), "2");
  }

  void undo_and_redo_are_greyed_while_there_is_nothing() {
    play_.emplace();
    right_click(5, 5);
    QVERIFY(!enabled("menu_undo") && !enabled("menu_redo"));
    press(Qt::Key_Escape);
    type_and_undo();
    open_by_key(Qt::Key_Menu);
    QVERIFY(!enabled("menu_undo") && enabled("menu_redo"));
    click("menu_redo");
    QCOMPARE(play_->text(row_, column_), "3");
    open_by_key(Qt::Key_Menu);
    QVERIFY(enabled("menu_undo") && !enabled("menu_redo"));
    click("menu_undo");
    QCOMPARE(play_->text(row_, column_), " ");
  }

  void the_keys_of_undo_and_redo_work_in_it() {
    type_and_undo();
    for (const auto modifiers :
         {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::ControlModifier | Qt::ShiftModifier}) {
      open_by_key(Qt::Key_Menu);
      press(modifiers == Qt::ControlModifier ? Qt::Key_Y : Qt::Key_Z, modifiers);
      QCOMPARE(play_->text(row_, column_), "3");
      QVERIFY(!menu().isVisible());
      open_by_key(Qt::Key_Menu);
      press(Qt::Key_Z, Qt::ControlModifier);
      QCOMPARE(play_->text(row_, column_), " ");
      QVERIFY(!menu().isVisible());
    }
    open_by_key(Qt::Key_Menu);
    press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(menu().isVisible());
  }

  void copy_and_select_all_do_what_their_keys_do() {
    right_click(1, 1);
    click("menu_copy");
    QCOMPARE(QApplication::clipboard()->text(), "7" + QString("\t ").repeated(8) + "\r\n");
    right_click(5, 5);
    press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), " " + QString("\t ").repeated(8) + "\r\n");
    right_click(5, 5);
    click("menu_select_all");
    QCOMPARE(selection(), (CellRange{0, 0, 8, 8}));
    QCOMPARE(QApplication::clipboard()->text(), "");
    play_->click_cell(3, 3);
    right_click(3, 3);
    press(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(selection(), (CellRange{0, 0, 8, 8}));
  }

  void cancelled_it_leaves_all_as_it_was() {
    play_->click_cell(5, 5);
    const auto cells = play_->window.MSF.cells();
    right_click(5, 5);
    press(Qt::Key_Down);
    press(Qt::Key_Escape);
    QVERIFY(!menu().isVisible());
    right_click(5, 5);
    QTest::mouseClick(menu().windowHandle(), Qt::LeftButton, {}, QPoint(-30, -30));
    QVERIFY(!menu().isVisible());
    QCOMPARE(play_->window.MSF.cells(), cells);
    QCOMPARE(selection(), (CellRange{4, 4, 4, 4}));
    QVERIFY(!play_->window.can_redo());
    QVERIFY(grid_has_focus());
  }

  void a_right_click_on_another_cell_opens_it_there() {
    right_click(5, 5);
    QTest::mouseClick(menu().windowHandle(), Qt::RightButton, {},
                      menu().mapFromGlobal(grid().mapToGlobal(play_->cell(2, 3))));
    play_->settle();
    QVERIFY(menu().isVisible());
    QCOMPARE(selection(), (CellRange{1, 2, 1, 2}));
  }

  void the_keys_of_the_window_reach_it_and_close_the_menu() {
    for (const Qt::Key key : {Qt::Key_F1, Qt::Key_F2, Qt::Key_Escape}) {
      right_click(5, 5);
      globals.ArretDemande = false;
      press(key);
      QVERIFY(!menu().isVisible());
      QCOMPARE(globals.ArretDemande, key == Qt::Key_Escape);
      QCOMPARE(globals.Langue, std::string(key == Qt::Key_F1 ? "En" : "Fr"));
      QVERIFY(grid_has_focus());
    }
  }

  void nothing_opens_while_a_hint_asks() {
    play_->draw(grid_with_a_hint);
    later(50, [this] {
      const CellRange before = selection();
      right_click(5, 5);
      QVERIFY(!menu().isVisible());
      QCOMPARE(selection(), before);
      play_->frame.activateWindow();
      grid().setFocus();
      for (const Qt::Key key : {Qt::Key_Menu, Qt::Key_F10}) open_by_key(key);
      QVERIFY(!menu().isVisible());
      open_dialog()->reject();
    });
    play_->click("Command8");
    QVERIFY(!menu().isVisible());
  }

  void during_a_search_it_changes_nothing() {
    play_->click_cell(5, 5);
    play_->type("3");
    play_->window.searches_running = 1;
    for (const char* item : {"menu_8", "menu_erase", "menu_undo"}) {
      right_click(5, 5);
      click(item);
    }
    play_->window.searches_running = 0;
    QCOMPARE(play_->text(5, 5), "3");
  }

  void the_candidates_have_none() {
    play_->click("Check2");
    auto& candidates = play_->find<GridView>("MSR");
    const CellRange before = play_->window.MSR.selection();
    right_click(candidates, 3, 3);
    candidates.setFocus();
    open_by_key(Qt::Key_Menu);
    QVERIFY(!menu().isVisible());
    QCOMPARE(play_->window.MSR.selection(), before);
  }

  void it_is_wholly_on_the_screen() {
    const QRect room = play_->frame.screen()->availableGeometry();
    for (const QPoint corner : {room.topLeft(), room.bottomRight()}) {
      play_->frame.move(corner - QPoint(300, 300));
      play_->settle();
      for (const int cell : {1, 9}) {
        play_->click_cell(cell, cell);
        open_by_key(Qt::Key_Menu);
        QVERIFY(room.contains(place()));
        press(Qt::Key_Escape);
      }
    }
  }

  void a_screen_reader_finds_every_item_in_both_languages() {
    const ScreenReader reader;
    type_and_undo();
    for (const bool english : {false, true}) {
      play_->press(english ? Qt::Key_F1 : Qt::Key_F2);
      open_by_key(Qt::Key_Menu);
      QCOMPARE(accessible(menu()).role(), QAccessible::PopupMenu);
      QCOMPARE(name_of(accessible(menu())), english ? "Cell menu" : "Menu de la case");
      const auto items = accessible_items();
      QCOMPARE(items.size(), std::ssize(item_rows));
      for (int i = 0; i < items.size(); ++i) expect_item(*items[i], item_rows[i], english);
      press(Qt::Key_Escape);
    }
  }

  void moving_in_it_is_told() {
    ScreenReader reader;
    open_by_key(Qt::Key_Menu);
    press(Qt::Key_Down);
    QCOMPARE(reader.names(QAccessible::Focus, QAccessible::MenuItem), (QStringList{"1", "4"}));
    reader.forget();
    press(Qt::Key_Escape);
    QCOMPARE(reader.names(QAccessible::Focus, QAccessible::Cell).value(0),
             "ligne 1, colonne 1: 7, donné");
  }

  void a_screen_reader_chooses() {
    const ScreenReader reader;
    right_click(5, 5);
    accessible(play_->find("menu_6"))
        .actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(play_->text(5, 5), "6");
    QVERIFY(!menu().isVisible());
  }

 private:
  GridView& grid() { return play_->find<GridView>("MSF"); }
  QWidget& menu() { return play_->find("cell_menu"); }
  /// On the screen; the platform without one puts an unseen frame of two pixels even around a menu.
  QRect place() { return menu().geometry().translated(-2, -2); }
  CellRange selection() { return play_->window.MSF.selection(); }
  bool enabled(const char* item) { return play_->find(item).isEnabled(); }
  bool grid_has_focus() { return QApplication::focusWidget() == &grid(); }
  static QString focus() {
    const QWidget* focus = QApplication::focusWidget();
    return focus ? focus->objectName() : "none";
  }

  /// As the system gives events: to the window under the mouse, and to what has the focus.
  void right_click(QWidget& view, int row, int column) {
    QTest::mouseClick(play_->frame.windowHandle(), Qt::RightButton, {},
                      view.mapTo(&play_->frame, play_->cell(row, column)));
    play_->settle();
  }
  void right_click(int row, int column) { right_click(grid(), row, column); }
  void click(const char* item) {
    QTest::mouseClick(&play_->find(item), Qt::LeftButton);
    play_->settle();
  }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    play_->settle();
  }
  void open_by_key(Qt::Key key) {
    play_->press(key, key == Qt::Key_F10 ? Qt::ShiftModifier : Qt::NoModifier);
  }

  void walk(Qt::Key key, const QStringList& items) {
    QStringList visited;
    while (visited.size() < items.size()) {
      press(key);
      visited << focus();
    }
    QCOMPARE(visited, items);
  }

  /// Types in an empty cell of a new puzzle and takes it back: there is something to redo alone.
  void type_and_undo() {
    play_.emplace();
    while (play_->window.MSF.is_filled(row_ - 1, column_ - 1)) column_ = column_ % 9 + 1;
    play_->click_cell(row_, column_);
    play_->type("3");
    play_->click("undo");
  }

  /// All that the menu tells of but the lines between its parts.
  QList<QAccessibleInterface*> accessible_items() {
    QList<QAccessibleInterface*> items = accessible_tree(menu()).mid(1);
    items.removeIf([](auto* object) { return object->role() == QAccessible::Client; });
    return items;
  }

  void expect_item(QAccessibleInterface& item, const ItemRow& row, bool english) {
    QCOMPARE(item.object()->objectName(), row.object);
    QCOMPARE(item.role(), QAccessible::MenuItem);
    QCOMPARE(name_of(item), english ? row.english : row.french);
    QCOMPARE(item.text(QAccessible::Description), row.description);
    QCOMPARE(bool(item.state().disabled), row.object == QString("menu_undo"));
    QCOMPARE(bool(item.state().focused), row.object == QString("menu_1"));
  }

  std::optional<Play> play_;
  int row_ = 5, column_ = 1;  ///< an empty cell of the new puzzle
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::CellMenuTest)
#include "cell_menu_test.moc"
