// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeView>

#include "tests/support/machine.hpp"
#include "tests/ui/qt/play.hpp"
#include "ui/qt/command_line.hpp"
#include "ui/qt/file_refusals.hpp"

namespace sdk::test {

namespace {

QString folder_of(const QFileDialog& dialog) { return dialog.directory().absolutePath(); }

QString proposed_in(const QFileDialog& dialog) {
  return dialog.findChild<QLineEdit*>("fileNameEdit")->text();
}

/// What the sidebar shows, from above.
QStringList places_of(const QFileDialog& dialog) {
  const QAbstractItemModel& model = *dialog.findChild<QListView*>("sidebar")->model();
  QStringList names;
  for (int row = 0; row < model.rowCount(); ++row) names << model.index(row, 0).data().toString();
  return names;
}

/// The files that it lists: as Qt knows them, and as it tells the player.
QStringList kinds_of(const QFileDialog& dialog) {
  return dialog.nameFilters() << dialog.findChild<QComboBox*>("fileTypeCombo")->currentText();
}

/// What its buttons and its title say.
QStringList words_of(const QFileDialog& dialog) {
  QStringList words{dialog.windowTitle()};
  for (const auto* button : dialog.findChild<QDialogButtonBox*>("buttonBox")->buttons())
    words << button->text().remove('&');
  return words;
}

bool shows_types(const QFileDialog& dialog) {
  return !dialog.findChild<QTreeView*>("treeView")->isColumnHidden(2);
}

/// How far its middle is from that of the game's window.
QPoint off_the_middle(const QFileDialog& dialog) {
  return dialog.frameGeometry().center() - dialog.parentWidget()->frameGeometry().center();
}

/// Types a name key by key, as a player does while the dialog proposes how it may go on, and Enter.
void type_name(QFileDialog& dialog, const QString& name) {
  auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit");
  edit->clear();
  for (const QChar letter : name) {
    QWidget* proposals = QApplication::activePopupWidget();
    QTest::keyClick(proposals ? proposals : edit, letter.toLatin1(), Qt::NoModifier, 20);
  }
  QTest::keyClick(edit, Qt::Key_Return, Qt::NoModifier, 200);
}

void write(const QString& file) { write_file(file.toStdString(), puzzle); }

QString text_of_file(const QString& file) {
  QFile stream(file);
  return stream.open(QIODevice::ReadOnly) ? QString::fromLatin1(stream.readAll()) : QString();
}

}  // namespace

class FileDialogsTest : public QObject {
  Q_OBJECT

 private:
  /// What `look` sees in the dialog of a button, which is then cancelled.
  template <class Look>
  auto seen_in(const char* button, Look look) {
    decltype(look(std::declval<QFileDialog&>())) seen;
    in_file_dialog([&](QFileDialog& dialog) {
      seen = look(dialog);
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    play_->click(button);
    return seen;
  }

 private slots:
  void init() {
    home_.emplace();
    qputenv("HOME", home_->path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", at("data").toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", at("config").toLocal8Bit());
    make("Documents");
    play_.emplace();
  }

  void cleanup() {
    play_.reset();
    home_.reset();
  }

  void the_first_dialog_shows_the_documents() {
    for (const char* button : {"Command6", "sauve", "Command4"})
      QCOMPARE(start_of(button), at("Documents"));
  }

  void the_dialogs_are_those_that_speak_the_language_of_the_game() {
    for (const char* button : {"Command6", "sauve", "Command4"}) {
      bool is_own = false;
      in_file_dialog([&](QFileDialog& dialog) {
        is_own = dialog.testOption(QFileDialog::DontUseNativeDialog);
        dialog.reject();
      });
      play_->click(button);
      QVERIFY2(is_own, button);
    }
  }

  void its_buttons_follow_the_language_of_the_game() {
    play_->press(Qt::Key_F1);
    QVERIFY(words_in("Command6").contains("Cancel"));
    play_->press(Qt::Key_F2);
    QVERIFY(words_in("sauve").contains("Annuler"));
    play_->press(Qt::Key_F1);
    QVERIFY(words_in("Command4").contains("Cancel"));
  }

  void it_lists_the_files_of_its_kind_and_names_the_kind_without_its_pattern() {
    for (const auto& [button, kind, pattern] :
         {std::tuple("Command6", "Sudoku files (.sdk)", "*.sdk"),
          {"sauve", "Sudoku files (.sdk)", "*.sdk"},
          {"Command4", "Documents PDF (.pdf)", "*.pdf"}})
      QCOMPARE(seen_in(button, kinds_of),
               (QStringList{QString("%1 (%2)").arg(kind, pattern), kind}));
  }

  void it_stands_in_the_middle_of_the_window_and_hides_the_types_of_its_files() {
    for (const char* button : {"Command6", "sauve", "Command4"}) {
      const QPoint off = seen_in(button, off_the_middle);
      QVERIFY2(std::abs(off.x()) <= 4 && std::abs(off.y()) <= 4, qPrintable(QDebug::toString(off)));
      QVERIFY2(!seen_in(button, shows_types), button);
    }
  }

  void without_documents_it_shows_the_home_folder() {
    QVERIFY(QDir(at("Documents")).removeRecursively());
    QCOMPARE(start_of("sauve"), home_->path());
    QVERIFY(!QFile::exists(at("Documents")));
  }

  void after_a_start_with_a_file_it_shows_the_folder_of_that_file() {
    make("puzzles");
    KeptFolder kept;
    std::filesystem::current_path(home_->path().toStdString());
    play_->desktop.start_dialogs_in(folder_of_file("\"puzzles/my puzzle.sdk\""));
    std::filesystem::current_path("/");
    QCOMPARE(start_of("sauve"), at("puzzles"));
    QCOMPARE(start_of("Command6"), at("puzzles"));
  }

  void a_line_without_a_file_names_no_folder() {
    QCOMPARE(folder_of_file("").string(), std::string());
    QCOMPARE(folder_of_file("/a/b.sdk").string(), std::string("/a"));
  }

  void later_dialogs_show_the_folder_that_was_used_last() {
    make("puzzles");
    write(at("puzzles/a.sdk"));
    choose_file(at("puzzles/a.sdk"));
    play_->click("Command6");
    QCOMPARE(start_of("sauve"), at("puzzles"));
    choose_file(at("b.sdk"));
    play_->click("sauve");
    QCOMPARE(start_of("Command6"), home_->path());
    QCOMPARE(start_of("Command4"), home_->path());
  }

  void a_folder_that_is_gone_is_not_shown() {
    make("puzzles");
    choose_file(at("puzzles/a.sdk"));
    play_->click("sauve");
    QVERIFY(QDir(at("puzzles")).removeRecursively());
    QCOMPARE(start_of("sauve"), at("Documents"));
  }

  void a_player_saves_after_opening_and_solving() {
    write(at("Documents/a.sdk"));
    choose_file("a.sdk");
    play_->click("Command6");
    BoxAnswer completed(QMessageBox::Ok);
    play_->click("Bouton_GO");
    choose_file("partie");
    play_->click("sauve");
    QCOMPARE(text_of_file(at("Documents/partie")).left(18), " 9 8 7 6 5 4 3 2 1");
  }

  void saving_refuses_what_is_no_place_for_a_file() {
    make("sub");
    QCOMPARE(refusal_of("sauve", at("none/a.sdk")), "Il n'y a pas de dossier " + at("none") + ".");
    QCOMPARE(refusal_of("sauve", at("none/")), "Il n'y a pas de dossier " + at("none") + ".");
    QCOMPARE(refusal_of("sauve", at("sub")), at("sub") + " est un dossier, pas un fichier.");
    QCOMPARE(refusal_of("Command4", at("none/a.pdf")),
             "Il n'y a pas de dossier " + at("none") + ".");
    play_->press(Qt::Key_F1);
    QCOMPARE(refusal_of("sauve", at("none/a.sdk")), "There is no folder " + at("none") + ".");
    QCOMPARE(refusal_of("sauve", at("sub")), at("sub") + " is a folder, not a file.");
    QVERIFY(!play_->guard.status());
  }

  void opening_refuses_what_cannot_be_read() {
    make("sub");
    const QString title = play_->frame.windowTitle();
    QCOMPARE(refusal_of("Command6", at("a.sdk")), "Il n'y a pas de fichier " + at("a.sdk") + ".");
    QCOMPARE(refusal_of("Command6", at("sub")), at("sub") + " est un dossier, pas un fichier.");
    play_->press(Qt::Key_F1);
    QCOMPARE(refusal_of("Command6", at("a.sdk")), "There is no file " + at("a.sdk") + ".");
    QCOMPARE(play_->frame.windowTitle(), title);
  }

  void a_refusal_is_told_in_a_box_like_the_others() {
    QString title, own_title;
    QMessageBox::StandardButtons buttons;
    QSize picture;
    const QWidget* parent = nullptr;
    in_file_dialog([&](QFileDialog& dialog) {
      own_title = dialog.windowTitle();
      later(50, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) qFatal("no box is open");
        title = box->windowTitle();
        buttons = box->standardButtons();
        picture = box->iconPixmap().size();
        parent = box->parentWidget();
        QTest::keyClick(box, Qt::Key_Escape);
        QCOMPARE(parent, &dialog);
      });
      enter_name(dialog, at("none.sdk"));
      dialog.reject();
    });
    play_->click("Command6");
    QCOMPARE(title, own_title);
    QCOMPARE(buttons, QMessageBox::Ok);
    QCOMPARE(picture, QSize(36, 36));
  }

  void a_refused_name_can_be_mended() {
    BoxAnswer ok(QMessageBox::Ok);
    in_file_dialog([this](QFileDialog& dialog) {
      enter_name(dialog, at("none/a.sdk"));
      enter_name(dialog, at("a.sdk"));
    });
    play_->click("sauve");
    QVERIFY(ok.was_shown());
    QVERIFY(QFile::exists(at("a.sdk")));
  }

  void access_rights_are_looked_at() {
    make("closed");
    write(at("closed/open.sdk"));
    write(at("unreadable.sdk"));
    write(at("read-only.sdk"));
    QFile::setPermissions(at("closed/open.sdk"), QFile::Permissions(0x6666));
    QFile::setPermissions(at("unreadable.sdk"), {});
    QFile::setPermissions(at("read-only.sdk"), QFile::ReadOwner | QFile::ReadOther);
    QFile::setPermissions(at("closed"), QFile::Permissions(0x5555));
    QFile::setPermissions(home_->path(), QFile::Permissions(0x7777));
    const PlainUser user;
    QCOMPARE(refusal_to_save(at("closed/a.sdk")),
             "Vous n'avez pas le droit de créer un fichier dans " + at("closed") + ".");
    QCOMPARE(refusal_to_save(at("closed/open.sdk")), "");
    QCOMPARE(refusal_to_save(at("read-only.sdk")),
             "Vous n'avez pas le droit de modifier " + at("read-only.sdk") + ".");
    QCOMPARE(refusal_to_save(at("a.sdk")), "");
    QCOMPARE(refusal_to_open(at("unreadable.sdk")),
             "Vous n'avez pas le droit de lire " + at("unreadable.sdk") + ".");
    QCOMPARE(refusal_to_open(at("read-only.sdk")), "");
  }

  void a_folder_typed_with_a_slash_is_entered() {
    make("sub");
    QString entered;
    in_file_dialog([&](QFileDialog& dialog) {
      enter_name(dialog, at("sub/"));
      entered = folder_of(dialog);
      dialog.reject();
    });
    play_->click("Command6");
    QCOMPARE(entered, at("sub"));
  }

  void two_dots_lead_to_the_folder_above() {
    BoxAnswer never(QMessageBox::Ok);
    QString entered;
    in_file_dialog([&](QFileDialog& dialog) {
      enter_name(dialog, "..");
      entered = folder_of(dialog);
      dialog.reject();
    });
    play_->click("Command6");
    QVERIFY(!never.was_shown());
    QCOMPARE(entered, home_->path());
  }

  void a_folder_picked_in_the_list_is_entered() {
    make("Documents/sub");
    BoxAnswer never(QMessageBox::Ok);
    QString entered;
    in_file_dialog([&](QFileDialog& dialog) {
      auto& list = *dialog.findChild<QListView*>("listView");
      QVERIFY(QTest::qWaitFor([&] { return list.model()->rowCount(list.rootIndex()) == 1; }));
      list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
      QTest::keyClick(&list, Qt::Key_Return);
      entered = folder_of(dialog);
      dialog.reject();
    });
    play_->click("Command6");
    QVERIFY(!never.was_shown());
    QCOMPARE(entered, at("Documents/sub"));
  }

  void saving_proposes_a_name_and_takes_any_other() {
    QCOMPARE(proposal_of("sauve"), "Grille.sdk");
    QCOMPARE(proposal_of("Command4"), "Grille.pdf");
    write(at("Documents/Grille.sdk"));
    QCOMPARE(proposal_of("sauve"), "Grille 2.sdk");
    write(at("Documents/Grille 2.sdk"));
    QCOMPARE(proposal_of("sauve"), "Grille 3.sdk");
    play_->press(Qt::Key_F1);
    QCOMPARE(proposal_of("sauve"), "Puzzle.sdk");
    choose_file("as I like");
    play_->click("sauve");
    QVERIFY(QFile::exists(at("Documents/as I like")));
    QVERIFY(!QFile::exists(at("Documents/as I like.sdk")));
  }

  void what_is_typed_over_the_proposed_name_keeps_its_ending() {
    in_file_dialog([](QFileDialog& dialog) {
      auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit");
      QTest::keyClicks(edit, "partie");
      QTest::keyClick(edit, Qt::Key_Return);
    });
    play_->click("sauve");
    QVERIFY(QFile::exists(at("Documents/partie.sdk")));
  }

  void a_whole_path_that_is_typed_names_the_file_and_not_the_folder_on_the_way() {
    make("Documents/p");
    const QString first = at("Documents/p/first.sdk"), path = at("Documents/p/puzzle.sdk");
    for (const QString& file : {first, path}) write(file);
    choose_file(first);
    play_->click("Command6");
    BoxAnswer refused(QMessageBox::Ok);
    in_file_dialog([&](QFileDialog& dialog) {
      type_name(dialog, path);
      if (dialog.isVisible()) dialog.reject();
    });
    play_->click("Command6");
    QVERIFY(!refused.was_shown());
    QCOMPARE(play_->frame.windowTitle(), path);
  }

  void rescued_grids_stand_in_the_sidebar_under_a_name_of_their_own() {
    make("data/sudoku");
    QVERIFY(!places_in("Command6").contains("Grilles récupérées"));
    write(at("data/sudoku/SuDoKu-1.sdk"));
    QCOMPARE(places_in("Command6").last(), "Grilles récupérées");
    play_->press(Qt::Key_F1);
    QCOMPARE(places_in("Command6").last(), "Rescued grids");
    QVERIFY(!places_in("sauve").contains("Rescued grids"));
  }

  void their_place_is_offered_for_puzzles_alone_and_named_whole() {
    make("data/sudoku/folder.sdk");
    write(at("data/sudoku/notes.txt"));
    QVERIFY(!places_in("Command6").contains("Grilles récupérées"));
    write(at("data/sudoku/SuDoKu-1.sdk"));
    const bool fits = seen_in("Command6", [](const QFileDialog& dialog) {
      const auto& sidebar = *dialog.findChild<QListView*>("sidebar");
      const QModelIndex place = sidebar.model()->index(sidebar.model()->rowCount() - 1, 0);
      return sidebar.viewport()->width() >= sidebar.sizeHintForIndex(place).width();
    });
    QVERIFY(fits);
  }

  void their_place_keeps_its_name_and_leads_to_them() {
    make("data/sudoku");
    write(at("data/sudoku/SuDoKu-1.sdk"));
    QString shown, name;
    in_file_dialog([&](QFileDialog& dialog) {
      auto& sidebar = *dialog.findChild<QListView*>("sidebar");
      const QModelIndex place = sidebar.model()->index(sidebar.model()->rowCount() - 1, 0);
      QTest::mouseClick(sidebar.viewport(), Qt::LeftButton, {}, sidebar.visualRect(place).center());
      write(at("data/sudoku/SuDoKu-2.sdk"));
      QTest::qWait(300);
      shown = folder_of(dialog);
      name = place.data().toString();
      dialog.reject();
    });
    play_->click("Command6");
    QCOMPARE(shown, at("data/sudoku"));
    QCOMPARE(name, "Grilles récupérées");
  }

  void looking_for_rescued_grids_makes_no_folder() {
    start_of("Command6");
    QVERIFY(!QFile::exists(at("data")));
  }

  void without_a_printer_the_page_goes_to_a_pdf_file() {
    for (const auto& [key, title] : {std::pair(Qt::Key_F1, "Print to a PDF file"),
                                     std::pair(Qt::Key_F2, "Imprimer dans un fichier PDF")}) {
      play_->press(key);
      const QString page = QString("page%1.pdf").arg(key);
      QString shown;
      in_file_dialog([&](QFileDialog& dialog) {
        shown = dialog.windowTitle();
        enter_name(dialog, page);
      });
      play_->click("Command4");
      QCOMPARE(shown, title);
      const QString pdf = text_of_file(at("Documents/" + page));
      QVERIFY(pdf.startsWith("%PDF"));
      QCOMPARE(pdf.count("/Type /Page\n"), 1);
      QVERIFY(pdf.trimmed().endsWith("%%EOF"));
    }
    QVERIFY(!play_->guard.status());
  }

  void a_cancelled_page_is_not_printed() {
    BoxAnswer never(QMessageBox::Ok);
    QCOMPARE(start_of("Command4"), at("Documents"));
    QVERIFY(!never.was_shown());
    QVERIFY(!play_->guard.status());
    QVERIFY(QDir(at("Documents")).isEmpty());
  }

  void the_page_of_a_file_is_an_a4_sheet_without_its_margins() {
    const PageSize page = play_->desktop.printer_page();
    QVERIFY(page.width > 11000 && page.width < 11906);
    QVERIFY(page.height > 16000 && page.height < 16838);
  }

 private:
  QString at(const QString& name) const { return home_->filePath(name); }
  void make(const QString& folder) { QVERIFY(QDir().mkpath(at(folder))); }

  QString start_of(const char* button) { return seen_in(button, folder_of); }
  QString proposal_of(const char* button) { return seen_in(button, proposed_in); }
  QStringList words_in(const char* button) { return seen_in(button, words_of); }
  QStringList places_in(const char* button) { return seen_in(button, places_of); }

  /// The words with which a dialog refuses a name; it must then still be open.
  QString refusal_of(const char* button, const QString& name) {
    BoxAnswer ok(QMessageBox::Ok);
    const bool stays = seen_in(button, [&](QFileDialog& dialog) {
      enter_name(dialog, name);
      return dialog.isVisible();
    });
    return stays && ok.was_shown() ? ok.box().text : "it was taken";
  }

  std::optional<QTemporaryDir> home_;
  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::FileDialogsTest)
#include "file_dialogs_test.moc"
