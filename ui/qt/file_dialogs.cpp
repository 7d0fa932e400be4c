// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/file_dialogs.hpp"

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>

#include "ui/qt/accessibility.hpp"
#include "ui/qt/dialog_looks.hpp"
#include "ui/qt/file_refusals.hpp"
#include "ui/qt/rescued_grids.hpp"
#include "ui/qt/small_screen.hpp"

namespace sdk {

namespace {

/// "description|pattern|" as Qt writes it. Qt's dialog shows the description alone.
QString name_filter(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split('|');
  return parts.value(0) + " (" + parts.value(1) + ")";
}

/// A dialog that looks at a file before it takes it.
class CarefulDialog final : public QFileDialog {
 public:
  using Refusal = QString (*)(const QString& file);

  CarefulDialog(QWidget* parent, AcceptMode mode, Refusal refusal)
      : QFileDialog(parent), refusal_(refusal) {
    // The system's own dialogs speak the system's language.
    setOption(DontUseNativeDialog);
    setOption(HideNameFilterDetails);
    setAcceptMode(mode);
    setFileMode(mode == AcceptOpen ? ExistingFile : AnyFile);
    fit_columns(*this);
  }

  void propose(const QString& name);

 protected:
  void accept() override;
  void showEvent(QShowEvent* event) override;

 private:
  QLineEdit* name_edit() const { return findChild<QLineEdit*>("fileNameEdit"); }
  void let_a_typed_path_count();
  bool is_entered(const QString& folder) const;
  void tell(const QString& refusal);

  Refusal refusal_;
  QString proposed_;
};

void CarefulDialog::propose(const QString& name) {
  proposed_ = name;
  selectFile(name);
}

/// What is typed over the proposed name keeps its ending.
void CarefulDialog::showEvent(QShowEvent* event) {
  QFileDialog::showEvent(event);
  keep_on_screen(*this);
  if (!proposed_.isEmpty())
    name_edit()->setSelection(0, static_cast<int>(proposed_.lastIndexOf('.')));
}

void CarefulDialog::accept() {
  let_a_typed_path_count();
  const QString file = selectedFiles().value(0);
  const QString refusal = is_entered(file) ? QString() : refusal_(file);
  if (refusal.isEmpty()) return QFileDialog::accept();
  tell(refusal);
}

/// While a path is typed Qt may select a folder on its way, and would take that for the file.
void CarefulDialog::let_a_typed_path_count() {
  if (name_edit()->text().contains('/')) findChild<QListView*>("listView")->clearSelection();
}

/// A folder is entered when it is picked in the list, or typed with the sign that makes it one.
bool CarefulDialog::is_entered(const QString& folder) const {
  const QString typed = name_edit()->text();
  return QFileInfo(folder).isDir() && (typed.isEmpty() || typed.endsWith('/') || typed == "..");
}

void CarefulDialog::tell(const QString& refusal) {
  QMessageBox box(QMessageBox::NoIcon, windowTitle(), refusal, QMessageBox::Ok, this);
  fit_looks(box, Icon::exclamation);
  box.exec();
}

/// "Grille.sdk", or the first of "Grille 2.sdk", "Grille 3.sdk"... that the folder does not hold.
QString unused_name(const QDir& folder, const QString& ending) {
  const QString first = notice_text(Notice::puzzle);
  QString name = first + ending;
  for (int n = 2; folder.exists(name); ++n) name = first + ' ' + QString::number(n) + ending;
  return name;
}

}  // namespace

/// Qt would write the player's folders and files into its own settings, for every program to show.
FileDialogs::FileDialogs() {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QProcess::nullDevice());
}

void FileDialogs::start_in(const std::filesystem::path& folder) {
  folder_ = QString::fromStdString(folder.string());
}

QString FileDialogs::start_folder() const {
  for (const QString& folder :
       {folder_, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)})
    if (!folder.isEmpty() && QDir(folder).exists()) return folder;
  return QDir::homePath();
}

std::string FileDialogs::file_to_open(QWidget* parent, const std::string& filter) {
  CarefulDialog dialog(parent, QFileDialog::AcceptOpen, refusal_to_open);
  offer_rescued_grids(dialog, QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
  return chosen_file(dialog, filter);
}

std::string FileDialogs::file_to_save(QWidget* parent, const std::string& filter) {
  CarefulDialog dialog(parent, QFileDialog::AcceptSave, refusal_to_save);
  dialog.propose(unused_name(start_folder(), ".sdk"));
  return chosen_file(dialog, filter);
}

std::string FileDialogs::file_to_print_to(QWidget* parent) {
  CarefulDialog dialog(parent, QFileDialog::AcceptSave, refusal_to_save);
  dialog.setWindowTitle(notice_text(Notice::print_to_file));
  dialog.propose(unused_name(start_folder(), ".pdf"));
  return chosen_file(dialog, notice_text(Notice::pdf_files).toStdString() + "|*.pdf|");
}

std::string FileDialogs::chosen_file(QFileDialog& dialog, const std::string& filter) {
  dialog.setNameFilter(name_filter(filter));
  dialog.setDirectory(start_folder());
  if (dialog.exec() != QDialog::Accepted) return {};
  const QString file = dialog.selectedFiles().value(0);
  folder_ = QFileInfo(file).path();
  return file.toStdString();
}

}  // namespace sdk
