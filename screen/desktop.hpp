// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// All that the program asks of the machine it runs on. One implementation talks to a real
/// desktop, one to standard input and output; nothing else in the program talks to the machine.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "screen/drawing.hpp"

namespace sdk {

enum class Icon { none, exclamation, critical, question };
enum class Buttons { ok, yes_no };
enum class Answer { ok, yes, no };
enum class Pointer { arrow, hourglass };

/// The printable area of a page, in twips.
struct PageSize {
  float width, height;
};

/// Texts are UTF-8. A call that lets the player act may throw ProgramEnd.
class Desktop {
 public:
  virtual ~Desktop() = default;

  /// Shows a modal box and returns the button that closed it; Buttons::ok always gives Answer::ok,
  /// and closing a Yes/No box by other means gives Answer::no.
  virtual Answer message_box(const std::string& text, Icon icon, Buttons buttons,
                             const std::string& title) = 0;

  /// Full path chosen by the player, or empty when the dialog was cancelled. `filter` is
  /// "description|pattern|".
  virtual std::string open_dialog(const std::string& filter) = 0;
  virtual std::string save_dialog(const std::string& filter) = 0;

  virtual void set_pointer(Pointer shape) = 0;

  /// Handles the player's waiting events. Cheap enough to be called a hundred million times a
  /// second: an implementation may skip calls as long as events are answered within 20 ms.
  virtual void let_events_run() = 0;

  /// Replaces the clipboard's content by `text`.
  virtual void set_clipboard(const std::string& text) = 0;

  /// The portrait page of the default printer, or of what stands for it where the system has none.
  /// Throws RuntimeError when there is nothing to print on.
  virtual PageSize printer_page() = 0;
  /// Prints one copy of one page on it. Throws RuntimeError when it fails. The player may be asked
  /// where the page goes; when that is cancelled nothing is printed.
  virtual void print(const Page& page) = 0;

  /// A new seed at every call, from a clock finer than a second.
  virtual std::uint32_t random_seed() = 0;

  /// The year of the clock.
  virtual int year() = 0;

  /// Opens a document, or a web page by its address, with the system's own program for it, without
  /// waiting. Throws RuntimeError when there is none.
  virtual void open_document(const std::string& document_or_address) = 0;

  /// The player's own folder for files that the program writes unasked; it exists after the call.
  /// Throws RuntimeError when it cannot be made.
  virtual std::filesystem::path data_folder() = 0;

  /// The folder of the running program. Throws std::filesystem::filesystem_error when the system
  /// does not tell it.
  virtual std::filesystem::path program_folder() = 0;

  /// The folder for the files that are exchanged with the external solver: the value of the
  /// environment variable "tmp", which is set to a private folder when it was not set.
  virtual std::string temporary_folder() = 0;

  /// Starts a command line of the system's command interpreter without waiting; the result is not
  /// 0. Throws std::system_error when it cannot be started.
  virtual std::uint32_t start_process(const std::string& command_line) = 0;
  /// The exit code of a started process, 259 while it runs; nothing when there is no such process
  /// (any more).
  virtual std::optional<std::uint32_t> exit_code(std::uint32_t id) = 0;

  /// Makes `bytes` the whole content of `file` so that a failure leaves what was there. Throws
  /// RuntimeError naming the file.
  virtual void replace_file(const std::string& file, std::string_view bytes) = 0;

  /// Puts one line where errors are reported (standard error).
  virtual void report_error(const std::string& line) = 0;
};

}  // namespace sdk
