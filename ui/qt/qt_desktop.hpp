// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The machine as Qt gives it.
#pragma once

#include <QPointer>

#include "files/platform_desktop.hpp"
#include "ui/qt/event_pump.hpp"
#include "ui/qt/program_guard.hpp"
#include "ui/qt/qt_language.hpp"

class QFileDialog;
class QMessageBox;

namespace sdk {

class MainFrame;

/// Every call that runs an event loop throws ProgramEnd when the player ended the program in it.
class QtDesktop final : public PlatformDesktop {
 public:
  /// `guard` must outlive the desktop.
  explicit QtDesktop(const ProgramGuard& guard) : guard_(guard) {}

  /// The window that boxes belong to and that shows the pointer.
  void set_window(MainFrame* window);

  Answer message_box(const std::string& text, Icon icon, Buttons buttons,
                     const std::string& title) override;
  std::string open_dialog(const std::string& filter) override;
  std::string save_dialog(const std::string& filter) override;
  void set_pointer(Pointer shape) override;
  void let_events_run() override;
  void set_clipboard(const std::string& text) override;
  PageSize printer_page() override;
  void print(const Page& page) override;
  std::filesystem::path data_folder() override;
  void open_document(const std::string& document_or_address) override;

 private:
  int run(QMessageBox& box, bool asks_about_hint);
  std::string chosen_file(QFileDialog& dialog, const std::string& filter);

  const ProgramGuard& guard_;
  QPointer<MainFrame> window_;
  QtLanguage language_;
  EventPump pump_;
};

}  // namespace sdk
