// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Asking the player for a file.
#pragma once

#include <QString>
#include <filesystem>
#include <string>

class QFileDialog;
class QWidget;

namespace sdk {

/// The dialogs speak the language on screen. What can be seen at once to be no file to read, or to
/// write, they refuse with a box and stay open. They start where the last file was chosen, and keep
/// nothing beyond the end of the program.
class FileDialogs {
 public:
  FileDialogs();

  /// Where dialogs start until a file is chosen. As long as there is no such folder they start in
  /// the player's documents, or at home.
  void start_in(const std::filesystem::path& folder);

  /// The full path that the player chose, in UTF-8, without an ending that was not typed; empty
  /// when the dialog was cancelled. `filter` is "description|pattern|"; `parent` may be null.
  std::string file_to_open(QWidget* parent, const std::string& filter);
  std::string file_to_save(QWidget* parent, const std::string& filter);
  /// The same, for a page that no printer takes.
  std::string file_to_print_to(QWidget* parent);

 private:
  QString start_folder() const;
  std::string chosen_file(QFileDialog& dialog, const std::string& filter);

  QString folder_;
};

}  // namespace sdk
