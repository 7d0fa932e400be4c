// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// All that the program asks of the machine it runs on. One implementation talks to a real
/// desktop, one to standard input and output; nothing else in the program talks to the machine.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "grid/drawing.hpp"

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

  /// The default printer's portrait page. Throws RuntimeError when there is no printer.
  virtual PageSize printer_page() = 0;
  /// Prints one copy of one page on the default printer. Throws RuntimeError when it fails.
  virtual void print(const Page& page) = 0;

  /// A new seed at every call, from a clock finer than a second.
  virtual std::uint32_t random_seed() = 0;

  /// The player's own folder for files that the program writes unasked; it exists after the call.
  /// Throws RuntimeError when it cannot be made.
  virtual std::filesystem::path data_folder() = 0;

  /// Puts one line where errors are reported (standard error).
  virtual void report_error(const std::string& line) = 0;
};

}  // namespace sdk
