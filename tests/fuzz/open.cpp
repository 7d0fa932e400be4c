// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Any bytes as a puzzle file: named on the command line, and chosen in the open dialog.

#include <cstdlib>

#include "files/text/puzzle_file_text.hpp"
#include "tests/fuzz/fuzz.hpp"

using namespace sdk;
using namespace sdk::test;

namespace {

/// What was read from a file, and saved, is saved alike ever after.
void require_stable_text(const std::string& bytes) {
  const std::optional<std::string> grid = grid_of_file(bytes);
  if (grid.has_value() == bytes.empty()) std::abort();
  if (!grid) return;
  const std::string text = puzzle_file_text(grid_to_save(*grid));
  if (text.size() != 180 || puzzle_file_text(*grid_of_file(text)) != text) std::abort();
}

/// Leafs through its steps while the question is open, and after No.
void ask_for_a_hint(MainWindow& window, FakeDesktop& desktop) {
  const auto leaf = [&](const Box&) {
    for (std::size_t step = 0; step < window.explanation().size(); ++step) {
      window.choose_step(step);
      if (!window.explanation().picture()) std::abort();
    }
    if (window.explanation().texts("Fr").size() != window.explanation().size()) std::abort();
  };
  desktop.at_box = leaf;
  window.click(Control::Command8);
  desktop.at_box = [](const Box&) {};
  leaf({});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static FakeDesktop desktop;
  static const std::string file = desktop.temporary_folder() + "/a.sdk";
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  require_stable_text(bytes);
  write_bytes(file, bytes);
  MainWindow window(desktop);
  const auto start = [&] {
    window.start(file);
    window.finish_start();
  };
  if (!goes_on_after(start, window, desktop)) return 0;
  if (!goes_on_after([&] { ask_for_a_hint(window, desktop); }, window, desktop)) return 0;
  desktop.chosen = {file};
  goes_on_after([&] { window.click(Control::Command6); }, window, desktop);
  return 0;
}
