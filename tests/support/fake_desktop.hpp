// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A desktop without a machine: it answers as scripted and remembers what it was asked.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "files/platform_desktop.hpp"
#include "files/safe_write.hpp"
#include "tests/support/files.hpp"

namespace sdk::test {

struct Box {
  std::string text;
  Icon icon;
  Buttons buttons;
  std::string title;
  bool operator==(const Box&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Box& box);

class FakeDesktop : public PlatformDesktop {
 public:
  FakeDesktop();

  // The script.
  std::deque<Answer> answers;      ///< of the next Yes/No boxes; with none left: no
  std::deque<std::string> chosen;  ///< by the next file dialogs; with none left: cancelled
  PageSize paper{11906, 16838};
  bool has_printer = true;
  bool printing_works = true;
  bool has_data_folder = true;
  std::uint32_t next_seed = 1;  ///< grows by one at each pick
  std::function<void()> at_pick = [] {};
  std::function<void(const Box&)> at_box = [](const Box&) {};  ///< while the box is open
  int clock_year = 2026;
  bool opening_works = true;
  bool has_program_folder = true;
  SaveSteps* save_steps = nullptr;                    ///< of the next saves; null: the real ones
  std::map<std::uint32_t, std::uint32_t> exit_codes;  ///< of made-up processes
  /// What happens at the n-th (from 1) call of let_events_run since the last forget().
  std::map<long, std::function<void()>> at_step;

  // The record.
  std::vector<Box> boxes;
  std::vector<std::string> filters;  ///< of the open and save dialogs
  std::vector<Pointer> pointers;     ///< every call, also without a change
  std::vector<std::string> clipboard;
  std::vector<Page> prints;
  std::vector<std::string> errors;
  std::vector<std::string> opened;  ///< documents and addresses, also those that failed
  long steps = 0;

  /// Clears the record; the script stays.
  void forget();
  /// The only puzzle file of the data folder as text; fails the program when there is none.
  std::string rescued_file() const;

  Answer message_box(const std::string& text, Icon icon, Buttons buttons,
                     const std::string& title) override;
  std::string open_dialog(const std::string& filter) override;
  std::string save_dialog(const std::string& filter) override;
  void set_pointer(Pointer shape) override;
  void let_events_run() override;
  void set_clipboard(const std::string& text) override;
  PageSize printer_page() override;
  void print(const Page& page) override;
  std::uint32_t random_seed() override;
  int year() override { return clock_year; }
  void open_document(const std::string& document_or_address) override;
  /// Folders of its own, empty at first.
  std::filesystem::path program_folder() override;
  std::string temporary_folder() override { return (scratch_ / "tmp").string(); }
  std::optional<std::uint32_t> exit_code(std::uint32_t id) override;
  void replace_file(const std::string& file, std::string_view bytes) override;
  std::filesystem::path data_folder() override;
  void report_error(const std::string& line) override;

 private:
  std::string next_file(const std::string& filter);

  ScratchFolder scratch_;
};

}  // namespace sdk::test
