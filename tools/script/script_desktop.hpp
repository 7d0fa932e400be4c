// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The desktop as text: what the player would see is printed, what the player would answer is taken
/// from queues.
#pragma once

#include <deque>
#include <functional>
#include <iosfwd>
#include <optional>

#include "files/platform_desktop.hpp"

namespace sdk {

/// What a script settles about the machine.
struct MachineSettings {
  std::optional<std::uint32_t> seed;  ///< of every puzzle; none: the clock
  bool printer = true;
  std::optional<int> year;        ///< none: the clock's
  std::filesystem::path program;  ///< the program's own folder; empty: the real one
};

class ScriptDesktop final : public PlatformDesktop {
 public:
  /// Both streams must outlive the desktop.
  ScriptDesktop(std::ostream& out, std::ostream& errors) : out_(out), errors_(errors) {}

  MachineSettings settings;

  /// What happens whenever the program lets pending events run; has to be told before it does.
  void set_events(std::function<void()> events) { events_ = std::move(events); }
  /// What happens while a Yes/No box is open; has to be told before one is.
  void set_question(std::function<void()> question) { question_ = std::move(question); }
  /// Answers are taken in the order in which they were queued.
  void queue_answer(Answer answer, long times) {
    answers_.insert(answers_.end(), static_cast<std::size_t>(times), answer);
  }
  void queue_file(std::string path) { files_.push_back(std::move(path)); }

  /// The pointer is the arrow again, as for a program that has just started.
  void forget_pointer() { pointer_ = Pointer::arrow; }

  Pointer pointer() const { return pointer_; }
  const std::string& clipboard() const { return clipboard_; }

  /// A Yes/No box without a queued answer is answered No.
  Answer message_box(const std::string& text, Icon icon, Buttons buttons,
                     const std::string& title) override;
  /// A dialog without a queued answer is cancelled.
  std::string open_dialog(const std::string& filter) override;
  std::string save_dialog(const std::string& filter) override;
  void set_pointer(Pointer shape) override;
  void let_events_run() override { events_(); }
  void set_clipboard(const std::string& text) override { clipboard_ = text; }
  PageSize printer_page() override;
  void print(const Page& page) override;
  std::uint32_t random_seed() override;
  int year() override;
  void open_document(const std::string& document_or_address) override;
  std::filesystem::path data_folder() override;
  std::filesystem::path program_folder() override;
  void report_error(const std::string& line) override;

 private:
  Answer take_answer();
  std::string answer_dialog(const char* kind, const std::string& filter);

  std::ostream& out_;
  std::ostream& errors_;
  std::function<void()> events_, question_;
  std::deque<Answer> answers_;
  std::deque<std::string> files_;
  Pointer pointer_ = Pointer::arrow;
  std::string clipboard_;
};

/// "arrow" or "hourglass".
const char* pointer_name(Pointer shape);

}  // namespace sdk
