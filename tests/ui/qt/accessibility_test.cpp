// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What a player hears who uses a screen reader.

#include <QDesktopServices>
#include <QDialog>

#include "tests/ui/qt/play.hpp"
#include "tests/ui/qt/screen_reader.hpp"
#include "ui/version.hpp"

namespace sdk::test {

namespace {

constexpr const char* half_empty_grid =
    ".234678..\n.........\n.........\n.........\n.........\n"
    ".........\n.........\n.........\n.........";

/// A control of the window as it is after the start.
struct ControlRow {
  const char* object;
  QAccessible::Role role;
  const char* states;
  const char* french;
  const char* english;
};

constexpr ControlRow control_rows[] = {
    {"sudoku", QAccessible::Window, "", program_title, program_title},
    {"commands", QAccessible::ToolBar, "", "Commandes", "Commands"},
    {"Label3", QAccessible::StaticText, "read-only", " proposé par l'équipe SuDoKu",
     " proposed by the SuDoKu team"},
    {"Command1", QAccessible::Button, "focusable", "Nouvelle grille", "New puzzle"},
    {"Command6", QAccessible::Button, "focusable", "Charger une grille", "Load puzzle"},
    {"sauve", QAccessible::Button, "focusable", "Sauver la grille", "Save puzzle"},
    {"Command4", QAccessible::Button, "focusable", "Imprimer la grille", "Print puzzle"},
    {"Command8", QAccessible::Button, "focusable", "Suggestion", "Hint"},
    {"Command7", QAccessible::Button, "focusable", "Indiquer les valeurs fausses",
     "Show bad values"},
    {"Bouton_GO", QAccessible::Button, "focusable", "Résoudre la grille", "Solve puzzle"},
    {"Command2", QAccessible::Button, "focusable", "Efface la grille", "Clean the grid"},
    {"undo", QAccessible::Button, "focusable", "Annuler", "Undo"},
    {"redo", QAccessible::Button, "focusable", "Rétablir", "Redo"},
    {"aide", QAccessible::Button, "focusable", "Aide", "Help"},
    {"Command5", QAccessible::Button, "focusable", "Information", "About"},
    {"Command3", QAccessible::Button, "focusable", "Quitter", "Quit"},
    {"rect", QAccessible::Client, "", "", ""},
    {"MSF", QAccessible::Table, "focusable", "Grille", "Puzzle"},
    {"rect2", QAccessible::Client, "invisible", "", ""},
    {"MSR", QAccessible::Table, "focusable invisible", "Candidats", "Candidates"},
    {"options", QAccessible::Grouping, "", "Options", "Options"},
    {"Check3", QAccessible::CheckBox, "focusable checkable checked", "Protéger la grille initiale",
     "Keep intact the initial grid"},
    {"Check1", QAccessible::CheckBox, "focusable checkable", "Vérification pas à pas",
     "Verification on the fly"},
    {"Check2", QAccessible::CheckBox, "focusable checkable", "Affiche possibilités",
     "Show possible candidates"},
    {"Niveau", QAccessible::ComboBox, "focusable", "Niveau", "Level"},
    {"Label", QAccessible::StaticText, "read-only", " 6 indices", " 6 indices"},
    {"Astuce", QAccessible::StaticText, "read-only",
     "Appuyer sur la touche F1 pour passer en Anglais, F2 pour le Français",
     "Press on the F1 key for english or F2 for french"},
    {"explanation", QAccessible::Grouping, "invisible", "Explication", "Explanation"},
    {"searching", QAccessible::StaticText, "read-only invisible", "", ""},
    {"steps", QAccessible::List, "focusable invisible", "Explication", "Explanation"},
    {"previous_step", QAccessible::Button, "focusable invisible", "Étape précédente",
     "Previous step"},
    {"next_step", QAccessible::Button, "focusable invisible", "Étape suivante", "Next step"},
    {"lines", QAccessible::Client, "", "", ""},
};

QStringList names_of(const QList<QAccessibleInterface*>& objects, QAccessible::Role role) {
  QStringList names;
  for (QAccessibleInterface* object : objects)
    if (object->role() == role) names << name_of(*object);
  return names;
}

/// The accessible names of 81 cells, row by row; %1 and %2 in `pattern` are row and column.
QStringList cell_names(const QString& pattern) {
  QStringList names;
  for (int i = 0; i < 81; ++i) names << pattern.arg(i / 9 + 1).arg(i % 9 + 1);
  return names;
}

}  // namespace

class AccessibilityTest : public QObject {
  Q_OBJECT

 public slots:
  void open_page(const QUrl& url) { opened_ << url; }

 private slots:
  void init() {
    reader_.emplace();
    play_.emplace();
    play_->draw(half_empty_grid);
    play_->window.maj_indices();
    play_->window.MajCandidats();
    play_->press(Qt::Key_F2);
    reader_->forget();
  }
  void cleanup() {
    play_.reset();
    reader_.reset();
  }

  void every_control_has_a_role_a_name_and_a_state_data() {
    QTest::addColumn<int>("row");
    for (int row = 0; row < static_cast<int>(std::size(control_rows)); ++row)
      QTest::newRow(control_rows[row].object) << row;
  }
  void every_control_has_a_role_a_name_and_a_state() {
    QFETCH(int, row);
    const ControlRow& expected = control_rows[row];
    QAccessibleInterface& control = accessible(find(expected.object));
    QCOMPARE(control.role(), expected.role);
    QCOMPARE(states_of(control), expected.states);
    QCOMPARE(name_of(control), expected.french);
    play_->press(Qt::Key_F1);
    QCOMPARE(name_of(control), expected.english);
    play_->press(Qt::Key_F2);
    QCOMPARE(name_of(control), expected.french);
    QCOMPARE(states_of(control), expected.states);
  }

  void nothing_else_is_in_the_window_than_controls_cells_and_levels() {
    QStringList found, expected;
    for (QAccessibleInterface* object : accessible_tree(play_->frame))
      if (object->object() && object->role() != QAccessible::List)
        found << object->object()->objectName();
    for (const ControlRow& row : control_rows)
      if (row.role != QAccessible::List) expected << row.object;
    QCOMPARE(found, expected);
  }

  void no_description_repeats_the_name() {
    for (QAccessibleInterface* object : accessible_tree(play_->frame)) {
      const QString description = object->text(QAccessible::Description);
      QVERIFY2(description.isEmpty() || description != name_of(*object), qPrintable(description));
    }
  }

  void the_list_names_its_levels_and_tells_the_current_one() {
    QCOMPARE(names_of(accessible_tree(find("Niveau")), QAccessible::ListItem),
             (QStringList{"Débutant", "Facile", "Moyen", "Difficile", "Diabolique"}));
    QCOMPARE(level_told(), "Facile");
    play_->press(Qt::Key_F1);
    QCOMPARE(names_of(accessible_tree(find("Niveau")), QAccessible::ListItem),
             (QStringList{"Newbie", "Easy", "Average", "Hard", "Diabolic"}));
    QCOMPARE(level_told(), "Easy");
    find("Niveau").setFocus();
    play_->press(Qt::Key_End);
    QCOMPARE(accessible(find("Niveau")).text(QAccessible::Value), "Diabolic");
    QCOMPARE(level_told(), "");
  }

  void ticks_and_visibility_are_told() {
    play_->click("Check2");
    QCOMPARE(states_of(accessible(find("Check2"))), "focusable checkable checked");
    QCOMPARE(states_of(accessible(find("MSR"))), "focusable");
    QCOMPARE(reader_->names(QAccessible::StateChanged, QAccessible::CheckBox),
             QStringList{"Affiche possibilités"});
    QCOMPARE(reader_->names(QAccessible::ObjectShow, QAccessible::Table), QStringList{"Candidats"});
  }

  void a_hidden_button_is_told_as_hidden() {
    play_->click("Check3");
    play_->click("Command2");
    QCOMPARE(states_of(accessible(find("Command8"))), "focusable invisible");
    QCOMPARE(reader_->names(QAccessible::ObjectHide, QAccessible::Button),
             QStringList{"Suggestion"});
  }

  void every_cell_of_the_puzzle_tells_row_column_and_content() {
    expect_cells("MSF", "ligne %1, colonne %2: vide",
                 {", colonne 2: 2, donné", ", colonne 3: 3, donné", ", colonne 4: 4, donné",
                  ", colonne 5: 6, donné", ", colonne 6: 7, donné", ", colonne 7: 8, donné"},
                 "ligne 1");
    play_->press(Qt::Key_F1);
    expect_cells("MSF", "row %1, column %2: empty",
                 {", column 2: 2, given", ", column 3: 3, given", ", column 4: 4, given",
                  ", column 5: 6, given", ", column 6: 7, given", ", column 7: 8, given"},
                 "row 1");
  }

  void the_candidates_tell_row_column_and_digits() {
    play_->click("Check2");
    QCOMPARE(spoken("MSR", 1, 1), "ligne 1, colonne 1: 1 5 9");
    QCOMPARE(spoken("MSR", 1, 2), "ligne 1, colonne 2: 2, placé");
    QCOMPARE(spoken("MSR", 2, 1), "ligne 2, colonne 1: 1 4 5 6 7 8 9");
    play_->press(Qt::Key_F1);
    QCOMPARE(spoken("MSR", 1, 2), "row 1, column 2: 2, placed");
    QCOMPARE(names_of(accessible_tree(find("MSR")), QAccessible::Cell).size(), 81);
  }

  void a_hint_tells_its_pattern_in_the_candidates() {
    play_->click("Check2");
    play_->draw(
        "12345678.\n.........\n.........\n.........\n.........\n"
        ".........\n.........\n.........\n.........");
    BoxAnswer no(QMessageBox::No);
    play_->click("Command8");
    QVERIFY(no.was_shown());
    QCOMPARE(spoken("MSR", 1, 9), "ligne 1, colonne 9: 9, appui");
  }

  void a_chosen_step_tells_the_cells_that_it_changes() {
    play_->click("Check2");
    play_->draw("12345678.\n" + std::string(72, '.'));
    BoxAnswer no(QMessageBox::No);
    play_->click("Command8");
    play_->settle();
    reader_->forget();
    play_->window.choose_step(0);
    play_->settle();
    QVERIFY(!cells_told(QAccessible::NameChanged).isEmpty());
  }

  void a_search_that_lasts_is_announced() {
    play_->draw(
        "........9\n.........\n.........\n.........\n.........\n"
        ".........\n.........\n.........\n12345678.");
    BoxAnswer stopped(QMessageBox::Ok);
    reader_->forget();
    QStringList first, all;
    const auto announced = [this] {
      return reader_->names(QAccessible::Alert, QAccessible::StaticText);
    };
    later(600, [&] {
      first = announced();
      play_->press(Qt::Key_F1);
      all = announced();
      play_->press(Qt::Key_Escape);
    });
    QCOMPARE(play_->run_program([this] { play_->click("Bouton_GO"); }), -1);
    QVERIFY(stopped.was_shown());
    QCOMPARE(first, QStringList{"Recherche en cours… Échap l'arrête."});
    QCOMPARE(all, first);
  }

  void rows_and_columns_have_names() {
    const auto tree = accessible_tree(find("MSF"));
    QCOMPARE(names_of(tree, QAccessible::RowHeader).value(8), "ligne 9");
    QCOMPARE(names_of(tree, QAccessible::ColumnHeader).value(2), "colonne 3");
    play_->press(Qt::Key_F1);
    QCOMPARE(names_of(tree, QAccessible::RowHeader).value(8), "row 9");
    QCOMPARE(names_of(tree, QAccessible::ColumnHeader).value(2), "column 3");
  }

  void a_typed_digit_is_told_with_its_cell_and_the_count() {
    play_->click_cell(9, 9);
    reader_->forget();
    play_->type("5");
    QCOMPARE(cells_told(QAccessible::NameChanged), QStringList{"ligne 9, colonne 9: 5"});
    QCOMPARE(reader_->names(QAccessible::NameChanged, QAccessible::StaticText),
             QStringList{" 7 indices"});
    reader_->forget();
    play_->press(Qt::Key_Delete);
    QCOMPARE(cells_told(QAccessible::NameChanged), QStringList{"ligne 9, colonne 9: vide"});
  }

  void a_wrong_digit_is_told_as_wrong() {
    play_->type("2");
    QCOMPARE(
        cells_told(QAccessible::NameChanged),
        (QStringList{"ligne 1, colonne 1: 2, faux", "ligne 1, colonne 2: 2, en conflit, donné"}));
    play_->press(Qt::Key_F1);
    QCOMPARE(spoken("MSF", 1, 1), "row 1, column 1: 2, wrong");
  }

  void typing_tells_which_candidates_changed_once_they_show() {
    play_->click("Check2");
    reader_->forget();
    play_->type("5");
    const QStringList told = cells_told(QAccessible::NameChanged);
    QVERIFY(told.contains("ligne 1, colonne 9: 1 9"));
    QVERIFY(told.contains("ligne 9, colonne 1: 1 2 3 4 6 7 8 9"));
    QVERIFY(!told.join(';').contains("ligne 9, colonne 9"));
  }

  void the_current_cell_is_told_as_it_moves() {
    play_->press(Qt::Key_Right);
    QCOMPARE(cells_told(QAccessible::Focus), QStringList{"ligne 1, colonne 2: 2, donné"});
    QVERIFY(cell("MSF", 1, 2).state().focused);
    QVERIFY(cell("MSF", 1, 2).state().selected);
    QVERIFY(!cell("MSF", 1, 1).state().focused);
    QVERIFY(cells_told(QAccessible::NameChanged).isEmpty());
  }

  void coming_into_the_grid_tells_its_current_cell_last() {
    find("Check3").setFocus();
    reader_->forget();
    play_->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(names_told_with(QAccessible::Focus).last(), "ligne 1, colonne 1: vide");
  }

  void cells_do_not_claim_the_focus_of_a_button() {
    find("Command1").setFocus();
    reader_->forget();
    play_->press(Qt::Key_Space);
    QCOMPARE(play_->window.MSF.current_row(), 8);
    QVERIFY(cells_told(QAccessible::Focus).isEmpty());
  }

  void a_switch_of_the_language_tells_all_that_is_called_otherwise() {
    play_->press(Qt::Key_F1);
    const QStringList told = names_told_with(QAccessible::NameChanged);
    for (const ControlRow& row : control_rows)
      if (qstrcmp(row.french, row.english) != 0) QVERIFY2(told.contains(row.english), row.object);
    QCOMPARE(cells_told(QAccessible::NameChanged).size(), 81);
  }

  void what_did_not_change_is_not_told_again() {
    play_->press(Qt::Key_F2);
    play_->click("Check1");
    QCOMPARE(names_told_with(QAccessible::NameChanged), QStringList());
  }

  void the_level_that_holds_is_told_once() {
    play_->press(Qt::Key_F2);
    play_->click("Check1");
    QCOMPARE(names_told_with(QAccessible::DescriptionChanged), QStringList());
  }

  void a_screen_reader_presses_buttons_and_ticks_boxes() {
    const QString press = QAccessibleActionInterface::pressAction(),
                  toggle = QAccessibleActionInterface::toggleAction(),
                  focus = QAccessibleActionInterface::setFocusAction();
    QAccessibleActionInterface& about = *accessible(find("Command5")).actionInterface();
    QAccessibleActionInterface& check = *accessible(find("Check1")).actionInterface();
    QCOMPARE(about.actionNames(), (QStringList{press, focus}));
    QCOMPARE(check.actionNames(), (QStringList{toggle, focus}));
    check.doAction(toggle);
    QVERIFY(play_->window.VerifAuVol);
    check.doAction(focus);
    QVERIFY(play_->window.VerifAuVol && find("Check1").hasFocus());
    check.doAction(press);
    QVERIFY(play_->window.VerifAuVol);
    about.doAction(press);
    QVERIFY(play_->window.about().shown());
  }

  void a_greyed_button_offers_nothing_to_a_screen_reader() {
    find("undo").setEnabled(false);
    QCOMPARE(accessible(find("undo")).actionInterface()->actionNames(), QStringList());
  }

  void a_button_that_is_held_down_is_told_as_pressed() {
    QWidget& button = find("Command7");
    QVERIFY(!accessible(button).state().pressed);
    QTest::mousePress(&button, Qt::LeftButton);
    QVERIFY(accessible(button).state().pressed);
    QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(-5, -5));
    QVERIFY(!accessible(button).state().pressed);
  }

  void a_message_box_is_announced_with_its_text() {
    BoxAnswer no(QMessageBox::No);
    play_->click("Command3");
    const Told alert = alert_told();
    QCOMPARE(alert.role, QAccessible::AlertMessage);
    QCOMPARE(alert.name, program_title);
    QCOMPARE(alert.value, QString("Voulez-vous vraiment quitter %1? ").arg(program_title));
    QStringList buttons = reader_->names(QAccessible::ObjectShow, QAccessible::Button);
    buttons.sort();
    QCOMPARE(buttons, (QStringList{"Non", "Oui"}));
  }

  void a_hint_is_announced_with_its_text() {
    play_->press(Qt::Key_F1);
    BoxAnswer ok(QMessageBox::Ok);
    play_->click("Command8");
    QCOMPARE(alert_told().value, "Sorry, no suggestion anymore to provide!");
  }

  void the_about_box_is_announced_and_read() {
    play_->click("Command5");
    QCOMPARE(alert_told().role, QAccessible::Dialog);
    QCOMPARE(alert_told().name, "Information");
    const auto tree = accessible_tree(find("about"));
    QCOMPARE(names_of(tree, QAccessible::Graphic),
             QStringList{"Japonaise au chapeau par l'équipe SuDoKu"});
    QCOMPARE(names_of(tree, QAccessible::Link), QStringList{"l'équipe SuDoKu"});
    QCOMPARE(names_of(tree, QAccessible::StaticText),
             (QStringList{"Japonaise au chapeau par l'équipe SuDoKu", program_title, "Auteur",
                          QString("Copyright © l'équipe SuDoKu %1").arg(play_->desktop.year())}));
  }

  void a_screen_reader_follows_the_link_of_the_about_box() {
    QDesktopServices::setUrlHandler("https", this, "open_page");
    play_->click("Command5");
    QAccessibleActionInterface& link = *accessible(find("Label1")).actionInterface();
    link.doAction(link.actionNames().value(0));
    QDesktopServices::unsetUrlHandler("https");
    QCOMPARE(opened_, QList<QUrl>{QUrl(page_address)});
    QVERIFY(play_->window.about().shown());
  }

 private:
  QWidget& find(const char* name) {
    return qstrcmp(name, "sudoku") == 0 ? play_->frame : play_->find(name);
  }

  QAccessibleInterface& cell(const char* grid, int row, int column) {
    return *accessible(find(grid)).tableInterface()->cellAt(row - 1, column - 1);
  }
  QString spoken(const char* grid, int row, int column) { return name_of(cell(grid, row, column)); }

  /// Every cell of `grid` is called by `pattern`, but those in columns 2 to 7 of row 1.
  void expect_cells(const char* grid, const char* pattern, const QStringList& others,
                    const QString& row) {
    QStringList expected = cell_names(pattern);
    for (int i = 0; i < others.size(); ++i) expected[i + 1] = row + others[i];
    QCOMPARE(names_of(accessible_tree(find(grid)), QAccessible::Cell), expected);
  }

  QString level_told() { return accessible(find("Niveau")).text(QAccessible::Description); }

  QStringList cells_told(QAccessible::Event event) const {
    return reader_->names(event, QAccessible::Cell);
  }
  QStringList names_told_with(QAccessible::Event event) const {
    QStringList names;
    for (const Told& told : reader_->told())
      if (told.event == event) names << told.name;
    return names;
  }
  Told alert_told() const {
    for (const Told& told : reader_->told())
      if (told.event == QAccessible::Alert) return told;
    return {};
  }

  std::optional<ScreenReader> reader_;
  std::optional<Play> play_;
  QList<QUrl> opened_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::AccessibilityTest)
#include "accessibility_test.moc"
