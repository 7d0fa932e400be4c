// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The machine as Qt gives it.
#pragma once

#include <QPointer>
#include <functional>

#include "files/platform_desktop.hpp"
#include "ui/qt/event_pump.hpp"
#include "ui/qt/file_dialogs.hpp"
#include "ui/qt/program_guard.hpp"
#include "ui/qt/qt_language.hpp"

class QMessageBox;

namespace sdk {

class MainFrame;

/// Every call that runs an event loop throws ProgramEnd when the player ended the program in it.
class QtDesktop : public PlatformDesktop {
 public:
  /// `guard` must outlive the desktop.
  explicit QtDesktop(const ProgramGuard& guard) : guard_(guard) {}

  /// The window that boxes belong to and that shows the pointer.
  void set_window(MainFrame* window);

  /// Where file dialogs start until the player has chosen a file; none: in the player's documents.
  void start_dialogs_in(const std::filesystem::path& folder);

  Answer message_box(const std::string& text, Icon icon, Buttons buttons,
                     const std::string& title) override;
  std::string open_dialog(const std::string& filter) override;
  std::string save_dialog(const std::string& filter) override;
  void set_pointer(Pointer shape) override;
  void let_events_run() override;
  void set_clipboard(const std::string& text) override;
  /// Where the system has no default printer the page is a file's.
  PageSize printer_page() override;
  void print(const Page& page) override;
  std::filesystem::path data_folder() override;
  void open_document(const std::string& document_or_address) override;

 private:
  int run(QMessageBox& box, bool asks_about_hint);
  std::string ask(const std::function<std::string()>& dialog);

  const ProgramGuard& guard_;
  QPointer<MainFrame> window_;
  QtLanguage language_;
  FileDialogs dialogs_;
  EventPump pump_;
};

}  // namespace sdk
