// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The hint command played to its end on one puzzle after another, as text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "files/platform_desktop.hpp"
#include "pas_a_pas/observer.hpp"
#include "ui/main_window.hpp"

namespace sdk {

/// Accepts every offer and has nothing else of a machine.
class YesDesktop : public PlatformDesktop {
 public:
  Answer message_box(const std::string& text, Icon icon, Buttons buttons,
                     const std::string& title) override;
  std::string open_dialog(const std::string&) override { return ""; }
  std::string save_dialog(const std::string&) override { return ""; }
  void set_pointer(Pointer) override {}
  void let_events_run() override {}
  void set_clipboard(const std::string&) override {}
  void open_document(const std::string&) override {}
  PageSize printer_page() override;
  void print(const Page&) override {}
  std::uint32_t random_seed() override { return 0; }
  std::filesystem::path data_folder() override;
};

/// One window, on which any number of puzzles is played. A puzzle must pass puzzle_fault.
class Walker {
 public:
  Walker();

  /// Every change of a technique, every offer and the end, a line each, after a line with the grid.
  std::string walk(std::string_view puzzle);
  /// The same in sentences, in the language "En" or "Fr".
  std::string explained(std::string_view puzzle, std::string_view language);

 private:
  void play(std::string_view puzzle, SolverObserver& observer);

  YesDesktop desktop_;
  MainWindow window_{desktop_};
};

/// A checksum of the walks of the forty puzzles of the library. It changes when, and practically
/// only when, one of these walks does.
std::uint64_t library_signature();

}  // namespace sdk
